from pathlib import Path

import pytest


@pytest.fixture(scope="session")
def documents():
    return Path(__file__).parents[2] / "examples" / "documents"


@pytest.fixture(scope="session")
def sample(documents):
    return documents / "imx477.json"

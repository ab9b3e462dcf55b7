"""What the program qvdb finds: checker and differ are there once, for the shell and for Python."""

from __future__ import annotations

import json
import os
import shutil
import subprocess
from dataclasses import dataclass
from pathlib import Path
from typing import Any

from ._library import DatabaseError


@dataclass(frozen=True)
class Finding:
    """Something that is wrong with a document.

    file, line, column: where, from 1; in an image line and column are None and `offset` tells the byte
    level: "error" or "warning"
    path: the field, or ""
    text: what is wrong
    id: the kind of finding
    """

    file: str
    line: int | None
    column: int | None
    offset: int | None
    level: str
    path: str
    text: str
    id: str


class Difference(tuple):
    """(path, old, new)."""


def _run(*words: str) -> tuple[int, str]:
    beside = Path(__file__).resolve().parents[4] / "bin" / "qvdb"
    program = str(beside) if beside.exists() else shutil.which("qvdb")
    if program is None:
        raise FileNotFoundError("the program qvdb, which checks and compares, is not installed")
    done = subprocess.run([program, *words], capture_output=True, text=True, check=False)
    if done.returncode not in (0, 1):
        raise DatabaseError(1, done.stderr.strip() or f"qvdb ended with {done.returncode}")
    return done.returncode, done.stdout


def check(file: str | bytes | os.PathLike, *, strict: bool = False) -> list[Finding]:
    """All faults of a document, in the order of their places; an empty list for a clean one."""
    raise NotImplementedError


def diff(a: str | bytes | os.PathLike, b: str | bytes | os.PathLike, *, exact: bool = False,
         tolerance: float | None = None) -> list[tuple[str, Any, Any]]:
    """What differs between two sets, of whatever forms: (path, value in a, value in b)."""
    raise NotImplementedError

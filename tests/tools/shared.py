"""What the tests of qvdb share: what has failed so far, and files."""

import json
import sys

failures = []


def check(condition, what):
    if not condition:
        failures.append(what)


def finish(summary=""):
    """Ends the program, with all that has failed."""
    for failure in failures[:40]:
        print("FAILED:", failure)
    print(f"{summary}{len(failures)} failures")
    sys.exit(1 if failures else 0)


def read(name):
    """The bytes of a file as text, line ends as they are."""
    with open(name, "rb") as file:
        return file.read().decode()


def load(name):
    return json.loads(read(name))


def write(name, content):
    """Bytes, a text, or a document."""
    text = content if isinstance(content, (bytes, str)) else json.dumps(content)
    with open(name, "wb") as file:
        file.write(text.encode() if isinstance(text, str) else text)
    return name

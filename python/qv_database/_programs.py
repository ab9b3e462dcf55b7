"""What the program qvdb finds: checker and differ are there once, for the shell and for Python."""

from __future__ import annotations

import json
import os
import shutil
import subprocess
from dataclasses import dataclass, fields
from pathlib import Path
from typing import Any, NamedTuple

from ._library import DatabaseError


@dataclass(frozen=True)
class Finding:
    """Something that is wrong with a document.

    file: its name
    line, column: place in a text, from 1; None in an image
    offset, length: the same in bytes
    severity: "error" for what a load loses, changes or refuses, "warning" for what looks wrong and is loaded as it stands
    id: the kind of finding
    path: the field, or ""
    text: what is wrong
    """

    file: str
    line: int | None
    column: int | None
    offset: int
    length: int
    severity: str
    id: str
    path: str
    text: str


class Difference(NamedTuple):
    """A value that differs: numbers, bools or texts.

    Of a list with another number of items in use, `path` is "len(PATH)" and old and new are the numbers.
    """

    path: str
    old: Any
    new: Any


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
    """All faults of a document, in the order of their places; an empty list for a clean one. DatabaseError for a file that
    can't be read.

    strict: levels all warnings up to errors
    """
    _, lines = _run("check", "--json", *(["--strict"] if strict else []), "--", os.fsdecode(file))
    names = {field.name for field in fields(Finding)}
    found = [json.loads(line) for line in lines.splitlines()]
    return [Finding(**{name: each.get(name) for name in names}) for each in found]


def diff(a: str | bytes | os.PathLike, b: str | bytes | os.PathLike, *, exact: bool = False,
         tolerance: float | None = None) -> list[Difference]:
    """What differs between two sets, of whatever forms: (path, value in a, value in b). DatabaseError for a file that can't
    be read.

    exact: compares every bit, also what no text document carries
    tolerance: numbers that differ by no more than this are equal
    """
    options = (["--exact"] if exact else []) + ([f"--tolerance={tolerance!r}"] if tolerance is not None else [])
    _, text = _run("diff", "--json", "--all", *options, "--", os.fsdecode(a), os.fsdecode(b))
    return [
        Difference(each["path"], each["old"], each["new"]) if "old" in each
        else Difference(f"len({each['path']})", each["oldLength"], each["newLength"])
        for each in json.loads(text)["differences"]
    ]

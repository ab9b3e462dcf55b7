"""The catalog of fields, and the numpy types made of it."""

from __future__ import annotations

import ctypes
import difflib
import enum
import functools
import math
from collections.abc import Iterable, Iterator
from dataclasses import dataclass, field as dataclass_field

import numpy as np

from . import _library
from ._library import CatalogCategory, CatalogCursor, CatalogField, CatalogPlace, CatalogValue, database


class Element(enum.IntEnum):
    """What one element of a field is."""

    BOOL = 0
    INTEGER = 1
    FLOAT = 2
    DOUBLE = 3
    TEXT = 4
    RECORD = 5
    POINTER = 6


class Document(enum.IntEnum):
    """Where categories and fields stand."""

    MEMORY = 0
    IMAGE = 1
    TUNING = 2
    SIMULATOR = 3
    CALIBRATION = 4
    INITIALIZATION = 5
    META = 6
    VERSION = 7


ROLES = (
    "", "gain-axis", "curve-x", "curve-y", "curve", "matrix", "map", "weights", "window", "count-of", "measured", "bits",
    "handle",
)


class UnknownName(AttributeError, KeyError):
    """A category, field or path that there is none of; the text names the nearest one."""

    def __str__(self) -> str:
        return str(self.args[0])


def unknown(what: str, name: str, candidates: Iterable[str]) -> UnknownName:
    """The error for a name that there is none of."""
    near = difflib.get_close_matches(name, list(candidates), 1)
    return UnknownName(f"{what} {name!r}" + (f"; did you mean {near[0]!r}?" if near else ""))


@dataclass(frozen=True)
class Field:
    """A member of a record, as C has it.

    name: its name in C, and that of the attribute
    path: where it stands, with [] behind every list, such as "A2DNR_5_2.tables[].strength[]"
    element: what one element is
    shape: extents of a list, () for a single element
    offset: bytes from the beginning of the record that it belongs to
    width: bytes of one element
    minimum, maximum: range that makes sense, infinite where none is known; the range of the type holds anyway
    unit: such as "px", or "" where none is known
    values: numbers that have a name, by name
    role, other: what it is there for, such as "curve-x" of the field `other`; "" where nothing more is known
    rows, columns: of a matrix, map or grid of weights; else 0
    meaning: what it means
    record: C type of a nested record, or ""
    members: fields of that record
    """

    name: str
    path: str
    element: Element
    is_signed: bool
    shape: tuple[int, ...]
    offset: int
    width: int
    minimum: float
    maximum: float
    unit: str
    values: dict[str, int] = dataclass_field(hash=False)
    role: str
    other: str
    rows: int
    columns: int
    meaning: str
    record: str
    members: tuple[Field, ...] = ()

    @property
    def is_settable(self) -> bool:
        """False for addresses and for objects of the run time."""
        return self.element != Element.POINTER and self.role != "handle"

    @functools.cached_property
    def dtype(self) -> np.dtype:
        """Type of one element."""
        if self.element == Element.RECORD:
            return record_dtype(self.members, self.width)
        if self.element in (Element.INTEGER, Element.POINTER):
            return np.dtype(f"{'i' if self.is_signed else 'u'}{self.width}")
        return np.dtype({Element.BOOL: "?", Element.FLOAT: "f4", Element.DOUBLE: "f8"}.get(self.element, f"S{self.width}"))

    @property
    def limits(self) -> tuple[float, float]:
        """Least and greatest number that the field holds: of its type, and of what is known of it."""
        low, high = -math.inf, math.inf
        if self.element == Element.BOOL:
            low, high = 0, 1
        elif self.element in (Element.INTEGER, Element.POINTER):
            info = np.iinfo(self.dtype)
            low, high = int(info.min), int(info.max)
        elif self.element in (Element.FLOAT, Element.DOUBLE):
            high = float(np.finfo(self.dtype).max)
            low = -high
        return max(low, self.minimum), min(high, self.maximum)


@dataclass(frozen=True)
class Category:
    """A category of the database.

    key: what `Database[key]` takes
    record: name of the record's C type
    meaning: what it is
    size: bytes of the record
    documents: the documents that carry it
    image_offset: place in a binary image, or None
    members: fields of the record
    """

    key: str
    record: str
    meaning: str
    size: int
    documents: tuple[Document, ...]
    image_offset: int | None
    members: tuple[Field, ...]

    @functools.cached_property
    def dtype(self) -> np.dtype:
        """Type of the record."""
        return record_dtype(self.members, self.size)


def record_dtype(members: Iterable[Field], size: int) -> np.dtype:
    """A structured type with the offsets of C."""
    members = tuple(members)
    return np.dtype({
        "names": [member.name for member in members],
        "formats": [(member.dtype, member.shape) if member.shape else member.dtype for member in members],
        "offsets": [member.offset for member in members],
        "itemsize": size,
    })


def _text(text: bytes | None) -> str:
    return "" if text is None else text.decode()


def _values(row: CatalogField) -> dict[str, int]:
    values = {}
    value = CatalogValue()
    while database.QvDatabaseCatalog_value(ctypes.byref(row), len(values), ctypes.byref(value)) == 0:
        values[_text(value.short)] = value.value
    return values


def _rows(document: Document, key: str) -> Iterator[CatalogField]:
    """The fields of a walk; each row is the same struct, filled anew."""
    cursor = CatalogCursor()
    row = CatalogField()
    if database.QvDatabaseCatalog_walk(document, key.encode(), ctypes.byref(cursor)) == 0:
        while database.QvDatabaseCatalog_next(ctypes.byref(cursor), ctypes.byref(row)) == 0:
            yield row


def _members(rows: list[tuple[int, dict]], depth: int, prefix: str) -> tuple[Field, ...]:
    """Takes the fields of one depth, and what lies in them, from the front of a list."""
    members = []
    while rows and rows[0][0] == depth:
        row = rows.pop(0)[1]
        path = f"{prefix}.{row['name']}" + "[]" * len(row["shape"])
        members.append(Field(**row, path=path, members=_members(rows, depth + 1, path)))
    return tuple(members)


def _described(row: CatalogField) -> dict:
    return {
        "name": _text(row.name), "element": Element(row.element), "is_signed": row.is_signed,
        "shape": tuple(row.extents[: row.rank]), "offset": row.offset, "width": row.width, "minimum": row.minimum,
        "maximum": row.maximum, "unit": _text(row.unit), "values": _values(row) if row.value_number else {},
        "role": ROLES[row.role] if row.role < len(ROLES) else "", "other": _text(row.other), "rows": row.role_rows,
        "columns": row.role_columns, "meaning": _text(row.meaning), "record": _text(row.record),
    }


@functools.cache
def keys() -> dict[str, CatalogCategory]:
    """All categories by key, in the order of registration."""
    found = {}
    entry = CatalogCategory()
    while database.QvDatabaseCatalog_category(Document.MEMORY, len(found), ctypes.byref(entry)) == 0:
        found[_text(entry.key)] = entry
        entry = CatalogCategory()
    return found


@functools.cache
def category(key: str) -> Category:
    """A category by its key. UnknownName for one that there is none of."""
    if key not in keys():
        raise unknown("there is no category", key, keys())
    entry = keys()[key]
    rows = [(row.depth, _described(row)) for row in _rows(Document.MEMORY, key)]
    return Category(
        key=key, record=_text(entry.record), meaning=_text(entry.meaning), size=entry.record_size,
        documents=tuple(document for document in Document if entry.documents >> document & 1),
        image_offset=None if entry.image_offset == _library.NONE else entry.image_offset,
        members=_members(rows, 0, key),
    )


def categories() -> list[Category]:
    """All categories in the order of registration."""
    return [category(key) for key in keys()]


def fields(key: str | None = None) -> list[Field]:
    """All fields of a category, or of all of them, each record before its own fields."""

    def flat(members: Iterable[Field]) -> Iterator[Field]:
        for member in members:
            yield member
            yield from flat(member.members)

    chosen = categories() if key is None else [category(key)]
    return [member for each in chosen for member in flat(each.members)]


def find(path: str) -> CatalogPlace:
    """Follows a path by the names of memory, tuning, calibration or simulator. UnknownName where it leads nowhere."""
    best: CatalogPlace | None = None
    for document in (Document.MEMORY, Document.TUNING, Document.CALIBRATION, Document.SIMULATOR):
        place = CatalogPlace()
        if database.QvDatabaseCatalog_find(document, path.encode(), ctypes.byref(place)) == 0:
            return place
        if best is None or place.reached > best.reached:
            best = place
    assert best is not None
    raise _lost(path, best)


def field_of(place: CatalogPlace) -> CatalogField | None:
    """The field at a place; None where it is a whole category."""
    row = CatalogField()
    return row if database.QvDatabaseCatalog_field(ctypes.byref(place), ctypes.byref(row)) == 0 else None


_STOPS = (
    "", "no name, dot or index there", "there is no such category", "there is no such member", "it has no members",
    "a list wants an index first", "an index, and it is no list", "the list is shorter than that",
)


def _lost(path: str, place: CatalogPlace) -> UnknownName:
    word = path[place.reached :].lstrip(".").split(".")[0].split("[")[0]
    reached = path[: place.reached].rstrip(".")
    names: list[str] = list(keys())
    if place.key is not None:
        cursor = CatalogCursor()
        names = []
        if database.QvDatabaseCatalog_siblings(ctypes.byref(place), ctypes.byref(cursor)) == 0:
            row = CatalogField()
            while database.QvDatabaseCatalog_next(ctypes.byref(cursor), ctypes.byref(row)) == 0:
                names.append(_text(row.key or row.name))
    reason = _STOPS[place.stop] if place.stop < len(_STOPS) else "it leads nowhere"
    return unknown(f"{path}: {reason}" + (f" behind {reached}" if reached else "") + ":", word, names)

"""An open database."""

from __future__ import annotations

import ctypes
import os
import re
from collections.abc import Iterator
from ctypes import c_void_p
from typing import Any

import numpy as np

from . import _catalog, _library
from ._catalog import unknown
from ._library import check, database
from ._record import Memory, Record, record_of

PathName = str | bytes | os.PathLike


class _Handle(Memory):
    """Owns a handle of the library. Views hold on to it, so it is closed when the last of them has gone."""

    def __init__(self) -> None:
        self.handle = c_void_p()
        _library.begin_traces()
        check(database.QvDatabase_open(ctypes.byref(_library.OpenParam()), ctypes.byref(self.handle)))

    def __del__(self, close: Any = database.QvDatabase_close) -> None:
        if self.handle:
            close(ctypes.byref(self.handle))

    def record(self, category: _catalog.Category) -> np.ndarray:
        """The memory of a category, as an array without dimensions that holds on to this."""
        pointer = c_void_p()
        check(database.QvDatabase_query(self.handle, category.key.encode(), ctypes.byref(pointer)))
        block = (ctypes.c_char * category.size).from_address(pointer.value or 0)
        block.owner = self
        return np.ndarray((), category.dtype, block)


class Database:
    """The parameters of an image signal processor.

    files: are loaded in order, each over what is there; the end of a name decides the form as in QvDatabase_load

    A context manager that closes at its end. One thread at a time uses a database. Raises DatabaseError for what the
    library refuses.
    """

    def __init__(self, *files: PathName) -> None:
        self._memory = _Handle()
        self._records: dict[str, Record] = {}
        self.load(*files)

    def __enter__(self) -> Database:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    @property
    def is_open(self) -> bool:
        return self._memory.is_open

    def close(self) -> None:
        """Ends the use of the database and of all records and views of it: using one raises ValueError from now on. The
        memory is released with the last of them. Closing twice does nothing."""
        self._memory.is_open = False
        self._records.clear()

    def _handle(self) -> c_void_p:
        self._memory.check()
        return self._memory.handle

    def _call(self, function: Any, file: PathName) -> None:
        name = os.fsencode(file)
        check(function(self._handle(), name), os.fsdecode(name))

    def load(self, *files: PathName) -> None:
        """Loads files over what is there: .json a text document, .ini an initialization file, others a binary image. What
        a failing load has read until there stays. Records and views stay valid."""
        for file in files:
            self._call(database.QvDatabase_load, file)

    def save(self, file: PathName, protocol: str = "standard") -> None:
        """Saves everything in the form that the end of the name says. The file is replaced at once or not at all.

        protocol: JSON form: standard (a tuning document) or simulator
        """
        setting = self._setting(protocol)
        try:
            self._call(database.QvDatabase_save, file)
        finally:
            self["ST"].protocol = setting

    def load_meta(self, file: PathName) -> None:
        """Loads frame metadata, category MT, from either of its JSON forms."""
        self._call(database.QvDatabase_metaLoad, file)

    def save_meta(self, file: PathName, protocol: str = "standard") -> None:
        """Saves frame metadata in the JSON form that the protocol says."""
        setting = self._setting(protocol)
        try:
            self._call(database.QvDatabase_metaSave, file)
        finally:
            self["ST"].protocol = setting

    def _setting(self, protocol: str) -> int:
        """Chooses the JSON form for a save; gives what was chosen before."""
        choices = {"standard": "Standard", "simulator": "Simulator"}
        if protocol not in choices:
            raise ValueError(f"protocol is standard or simulator, not {protocol!r}")
        before = self["ST"].protocol
        self["ST"].protocol = choices[protocol]
        return before

    def reset(self) -> None:
        """Puts 37 categories back to their defaults, as QvDatabase_reset does."""
        check(database.QvDatabase_reset(self._handle()))

    def __getitem__(self, key: str) -> Record:
        """The record of a category, such as database["AE_3"]. UnknownName, with the nearest key."""
        self._memory.check()
        if key not in self._records:
            category = _catalog.category(key)
            self._records[key] = record_of(self._memory.record(category), category, self._memory)
        return self._records[key]

    def __iter__(self) -> Iterator[str]:
        return iter(_catalog.keys())

    def __contains__(self, key: object) -> bool:
        return key in _catalog.keys()

    def __len__(self) -> int:
        return len(_catalog.keys())

    def keys(self) -> list[str]:
        """All categories, in the order of registration."""
        return list(_catalog.keys())

    def _ipython_key_completions_(self) -> list[str]:
        return self.keys()

    def __dir__(self) -> list[str]:
        return list(super().__dir__())

    def get(self, path: str) -> Any:
        """What a path leads to, such as "A2DNR_5_2.tables[0].strength[5]": a value, a View, a Record or Records. The
        names are those of C or of the documents. UnknownName for a path that leads nowhere."""
        target, name = self._parent(path)
        return target if name is None else target[name]

    def set(self, path: str, value: Any) -> None:
        """Stores a value where a path leads to, checked as by an attribute."""
        target, name = self._parent(path)
        if name is None:
            target.assign(value)
        else:
            target[name] = value

    def _parent(self, path: str) -> tuple[Any, Any]:
        """What holds the end of a path, and its name or index there; None for the name of a whole category."""
        self._memory.check()
        while (named := re.search(r"\[([^\[\]]*[^\[\]0-9][^\[\]]*)\]", path)) is not None:
            index = self._index_of(path[: named.start()], named[1])
            path = f"{path[: named.start()]}[{index}]{path[named.end() :]}"
        place = _catalog.find(path)
        if place.heap_offset != _library.NONE:
            raise ValueError(f"{path} lies in an array on the heap, which only the library holds")
        key = place.key.decode()
        record, members, offset = self[key], _catalog.category(key).members, place.offset
        if _catalog.field_of(place) is None:
            return record, None
        while True:
            field = next(each for each in members if each.offset <= offset < each.offset + each.width * _count(each))
            offset -= field.offset
            if place.length == field.width * _count(field) and place.rank >= len(field.shape):
                return record, field.name
            if not field.shape:
                record, members = record[field.name], field.members
                continue
            values = record[field.name]
            first, offset = divmod(offset, field.width)
            index = tuple(int(each) for each in np.unravel_index(first, field.shape))
            if field.element == _catalog.Element.RECORD and place.length < field.width:
                record, members = values[index], field.members
            elif place.length == field.width:
                return values, index
            elif len(field.shape) == 1:
                return values, slice(first, first + place.length // field.width)
            else:
                return values, index[: len(field.shape) - place.rank]

    def _index_of(self, path: str, name: str) -> int:
        """The item of a list of records whose field `name` holds that text."""
        names = self.get(path)["name"].tolist()
        if name not in names:
            raise unknown(f"{path} has no item", name, names)
        return names.index(name)

    def to_dict(self) -> dict[str, Any]:
        """All categories as dicts."""
        return {key: self[key].to_dict() for key in self}

    def from_dict(self, values: dict[str, Any]) -> None:
        """Takes what a dict of categories holds. All or nothing."""
        scratch = {key: self[key].copied() for key in values}
        for key, value in values.items():
            scratch[key].assign(value)
        for key, record in scratch.items():
            self[key].assign(record)

    def __repr__(self) -> str:
        return f"<qv_database.Database with {len(self)} categories{'' if self.is_open else ', closed'}>"



def _count(field: _catalog.Field) -> int:
    return int(np.prod(field.shape, dtype=int))

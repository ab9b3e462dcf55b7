"""Records as numpy views on the live memory of a database.

Three shapes of the same memory:

- `Record`: one record; its fields are attributes and items.
- `View`: a list of numbers, bools or texts, an ndarray.
- `Records`: a list of records, an ndarray too; an index gives a Record, a field's name a View of that field across all.

All hold on to the memory of their database, so that it stays allocated as long as any of them lives; using one after the
database was closed raises ValueError.
"""

from __future__ import annotations

import html
from collections.abc import Iterator, Mapping
from typing import Any

import numpy as np

from ._catalog import Category, Element, Field, unknown

Members = tuple[Field, ...]


class Memory:
    """What a database owns; the handle is closed when nothing refers to it any longer."""

    is_open = True

    def check(self) -> None:
        """Raises ValueError after the database was closed."""
        if not self.is_open:
            raise ValueError("the database is closed")


def _within(path: str, low: float, high: float) -> str:
    return f"{path} takes {low:g} to {high:g}"


def fitting(value: Any, field: Field, path: str) -> Any:
    """The value as the field's own type; ValueError or OverflowError, with path and range, for what it can't hold."""
    if not field.is_settable:
        raise ValueError(f"{path} belongs to the library and can't be set")
    if field.element == Element.TEXT:
        return _fitting_text(value, field, path)
    if field.values:
        value = _named(value, field, path)
    numbers = np.asarray(value)
    low, high = field.limits
    if numbers.dtype.kind == "O" and all(isinstance(each, int) for each in numbers.flat):
        raise OverflowError(f"{_within(path, low, high)}, not {max(numbers.flat, key=abs)}")  # beyond 64 bits
    if numbers.dtype.kind not in "biuf":
        raise ValueError(f"{path} takes numbers, not {value!r}")
    if numbers.dtype.kind == "f" and not np.isfinite(numbers).all():
        raise ValueError(f"{path} takes finite numbers")
    if field.element in (Element.BOOL, Element.INTEGER) and numbers.dtype.kind == "f":
        if (numbers != np.trunc(numbers)).any():
            raise ValueError(f"{path} takes whole numbers, not {numbers[numbers != np.trunc(numbers)].flat[0]:g}")
    is_wrong = (numbers < low) | (numbers > high)
    if is_wrong.any():
        text = f"{_within(path, low, high)}, not {numbers[is_wrong].flat[0] if numbers.ndim else numbers}"
        raise OverflowError(text)
    return numbers.astype(field.dtype)


def _named(value: Any, field: Field, path: str) -> Any:
    """Names of values as their numbers."""
    if isinstance(value, str):
        if value not in field.values:
            raise ValueError(str(unknown(f"{path} has no value", value, field.values)))
        return field.values[value]
    return [_named(each, field, path) for each in value] if isinstance(value, (list, tuple)) else value


def _fitting_text(value: Any, field: Field, path: str) -> Any:
    def encoded(text: Any) -> bytes:
        if not isinstance(text, (str, bytes)):
            raise ValueError(f"{path} takes a text, not {text!r}")
        coded = text.encode() if isinstance(text, str) else bytes(text)
        if b"\0" in coded:
            raise ValueError(f"{path} takes no zero bytes")
        if len(coded) >= field.width:
            raise ValueError(f"{path} takes texts of at most {field.width - 1} bytes, not {len(coded)}")
        return coded

    if isinstance(value, (str, bytes)):
        return np.bytes_(encoded(value))
    texts = np.asarray(value)
    if texts.dtype.kind not in "SU":
        raise ValueError(f"{path} takes texts, not {value!r}")
    return np.array([encoded(text) for text in texts.flat], field.dtype).reshape(texts.shape)


def _scalar(value: Any, field: Field) -> Any:
    """One value as Python's own: a float with as few digits as tell it from any other of its type, 40.8 instead of
    40.79999923706055."""
    if field.element == Element.TEXT:
        return bytes(value).decode("utf-8", "replace")
    return float(str(value)) if field.element == Element.FLOAT else value.item()


def _plain(value: Any) -> Any:
    """The same with plain arrays instead of views, in lists and tuples as well."""
    if isinstance(value, View):
        value._qv_memory.check()
        return value.view(np.ndarray)
    if isinstance(value, (list, tuple)):
        return type(value)(_plain(each) for each in value)
    return value


def _wide(value: Any) -> Any:
    """Integers of up to 32 bits in 64."""
    is_narrow = isinstance(value, (np.ndarray, np.generic)) and value.dtype.kind in "iu" and value.dtype.itemsize < 8
    return value.astype(np.int64) if is_narrow else value


class View(np.ndarray):
    """A list of numbers, bools or texts in the live memory of a database.

    An ndarray in all that matters. What is computed from it is a plain array. Storing into it by index or in place
    (`view[0] *= 1.1`) checks that the field holds the values, and raises OverflowError or ValueError with path and range
    before anything changes; functions that write into an array they are given, such as `np.copyto`, follow numpy's own
    rules. `np.asarray(view)` is a plain array on the same memory, which stays allocated but is guarded no longer.
    """

    _qv_memory: Memory
    _qv_field: Field
    _qv_path: str

    def __array_finalize__(self, source: Any) -> None:
        self._qv_memory = getattr(source, "_qv_memory", None)
        self._qv_field = getattr(source, "_qv_field", None)
        self._qv_path = getattr(source, "_qv_path", "")

    @property
    def path(self) -> str:
        """Where it stands."""
        return self._qv_path

    @property
    def field(self) -> Field:
        """What it is."""
        return self._qv_field

    def _live(self) -> np.ndarray:
        self._qv_memory.check()
        return np.ndarray.view(self, np.ndarray)

    def _wrapped(self, result: Any) -> Any:
        """A part of the same memory as a view."""
        if isinstance(result, np.ndarray) and np.may_share_memory(result, self):
            result = np.ndarray.view(result, type(self))
            result._qv_memory, result._qv_field, result._qv_path = self._qv_memory, self._qv_field, self._qv_path
        return result

    def _path_of(self, index: Any) -> str:
        """Indices go into the brackets that are still empty, and behind the end."""
        indices = index if isinstance(index, tuple) else (index,)
        path = self._qv_path
        if all(isinstance(each, (int, np.integer)) for each in indices):
            for each in indices:
                path = path.replace("[]", f"[{each}]", 1) if "[]" in path else f"{path}[{each}]"
        return path

    def __getitem__(self, index: Any) -> Any:
        result = self._live()[_plain(index)]
        if not isinstance(result, np.ndarray):
            return _scalar(result, self._qv_field) if self._qv_field.element == Element.TEXT else result
        result = self._wrapped(result)
        if isinstance(result, View):
            result._qv_path = self._path_of(index)
        return result

    def __setitem__(self, index: Any, value: Any) -> None:
        live = self._live()
        live[_plain(index)] = fitting(_plain(value), self._qv_field, self._path_of(index))

    def __iter__(self) -> Iterator[Any]:
        return (self[i] for i in range(len(self)))

    def __array_ufunc__(self, ufunc: np.ufunc, method: str, *inputs: Any, out: tuple = (), **options: Any) -> Any:
        if not out or not any(isinstance(each, View) for each in out):
            if out:
                options["out"] = out
            return getattr(ufunc, method)(*(_plain(each) for each in inputs), **options)
        # Into a view: computed beside it first, so that nothing changes if the values don't fit, and with room for those
        # that don't.
        is_bitwise = ufunc in (np.invert, np.bitwise_and, np.bitwise_or, np.bitwise_xor)
        inputs = tuple(_plain(each) if is_bitwise else _wide(_plain(each)) for each in inputs)
        results = getattr(ufunc, method)(*inputs, **options)
        results = results if isinstance(results, tuple) else (results,)
        for target, result in zip(out, results):
            if isinstance(target, View):
                fitting(result, target._qv_field, target._qv_path)
        for target, result in zip(out, results):
            target[...] = result
        return out[0] if len(out) == 1 else out

    def __array_function__(self, function: Any, types: Any, arguments: tuple, options: dict) -> Any:
        return function(*_plain(arguments), **{name: _plain(value) for name, value in options.items()})

    # Comparisons of numpy swallow what its own protocol raises.
    def __eq__(self, other: Any) -> Any:
        return self._live() == _plain(other)

    def __ne__(self, other: Any) -> Any:
        return self._live() != _plain(other)

    def __repr__(self) -> str:
        if not self._qv_memory.is_open:
            return f"<{self._qv_path}: the database is closed>"
        unit = f" {self._qv_field.unit}" if self._qv_field.unit else ""
        return f"{self._qv_path}{unit} = {np.array_repr(self._live())}"

    def __str__(self) -> str:
        return str(self._live())

    def __reduce__(self) -> Any:
        return self._live().copy().__reduce__()

    def tolist(self) -> list:
        """The values as Python's own, texts as str."""
        values = self._live()
        if self._qv_field.element == Element.TEXT:
            return np.char.decode(values, "utf-8", "replace").tolist()
        return (values.astype("U").astype(float) if self._qv_field.element == Element.FLOAT else values).tolist()

    def fill(self, value: Any) -> None:
        """Stores one value everywhere, checked as by an index."""
        self[...] = value


def _guard(name: str) -> None:
    """Lets a method of ndarray look whether the database is open first; what it gives of the same memory is a view."""
    method = getattr(np.ndarray, name)

    def guarded(self: View, *arguments: Any, **options: Any) -> Any:
        return self._wrapped(method(self._live(), *_plain(arguments), **options))

    guarded.__name__ = name
    guarded.__doc__ = method.__doc__
    setattr(View, name, guarded)


for _name in dir(np.ndarray):
    _is_method = callable(getattr(np.ndarray, _name)) and not _name.startswith("_")
    if _is_method and _name not in View.__dict__ and _name not in ("view",):
        _guard(_name)
for _name in ("__bool__", "__int__", "__float__", "__complex__", "__index__", "__contains__", "__copy__", "__deepcopy__"):
    _guard(_name)


class Records(View):
    """A list of records in the live memory of a database: an index gives a Record, a slice Records, the name of a field
    a View of that field across all of them."""

    def __getitem__(self, index: Any) -> Any:
        if isinstance(index, str):
            path = self._qv_path + "[]" * self.ndim
            return member_of(self._live(), self._qv_field.members, index, path, self._qv_memory)
        live = self._live()[index]
        path = self._path_of(index)
        if isinstance(live, np.void):
            return Record(self._element(index), self._qv_field.members, path, self._qv_memory, self._qv_field.record)
        return _as_view(live, self._qv_field, path, self._qv_memory)

    def _element(self, index: Any) -> np.ndarray:
        """One record as an array without dimensions, on the same memory."""
        indices = index if isinstance(index, tuple) else (index,)
        return self._live()[(*indices, ...)]

    def __setitem__(self, index: Any, value: Any) -> None:
        if isinstance(index, str):
            self[index][...] = value
            return
        targets = self[index]
        if isinstance(targets, Record):
            targets.assign(value)
            return
        if not isinstance(value, (list, tuple, Records)) or len(value) != len(targets):
            raise ValueError(f"{self._qv_path}: {len(targets)} records are wanted")
        scratch = [each.copied() for each in targets]
        for each, single in zip(scratch, value):
            each.assign(single)
        for target, each in zip(targets, scratch):
            target.assign(each)

    def __getattr__(self, name: str) -> Any:
        raise unknown(f"{self._qv_path} is a list of {len(self)} records; for one field of all of them take [name]. No",
                      name, (member.name for member in self._qv_field.members))

    def tolist(self) -> list:
        """The records as dicts."""
        return [each.to_dict() if isinstance(each, Record) else each.tolist() for each in self]

    def __repr__(self) -> str:
        if not self._qv_memory.is_open:
            return f"<{self._qv_path}: the database is closed>"
        extents = " x ".join(str(extent) for extent in self.shape)
        return f"{self._qv_path}: {extents} records of {self._qv_field.record}"


def _as_view(array: np.ndarray, field: Field, path: str, memory: Memory) -> View:
    view = array.view(Records if field.element == Element.RECORD else View)
    view._qv_memory, view._qv_field, view._qv_path = memory, field, path
    return view


def member_of(array: np.ndarray, members: Members, name: str, path: str, memory: Memory) -> Any:
    """A field of a structured array: a value, a View, a Record or Records."""
    for field in members:
        if field.name == name:
            break
    else:
        raise unknown(f"{path} has no field", name, (member.name for member in members))
    part = array[name]
    where = f"{path}.{name}"
    if part.ndim == 0 and field.element == Element.RECORD:
        return Record(part, field.members, where, memory, field.record)
    if part.ndim == 0:
        return _scalar(part[()], field)
    return _as_view(part, field, where, memory)


class Record:
    """A record in the live memory of a database. Its fields are attributes, and items by name.

    Assigning checks that the field holds the value: OverflowError or ValueError, with path and range, and nothing is
    changed. A name that there is none of raises UnknownName, an AttributeError and KeyError, with the nearest one.
    """

    __slots__ = ("_array", "_members", "_path", "_memory", "_type")

    def __init__(self, array: np.ndarray, members: Members, path: str, memory: Memory, type_name: str) -> None:
        for slot, value in zip(Record.__slots__, (array, members, path, memory, type_name)):
            object.__setattr__(self, slot, value)

    def __getattr__(self, name: str) -> Any:
        if name.startswith("__"):
            raise AttributeError(name)
        self._memory.check()
        return member_of(self._array, self._members, name, self._path, self._memory)

    __getitem__ = __getattr__

    def __setattr__(self, name: str, value: Any) -> None:
        self._memory.check()
        field = next((member for member in self._members if member.name == name), None)
        if field is None:
            raise unknown(f"{self._path} has no field", name, (member.name for member in self._members))
        path = f"{self._path}.{name}"
        if field.element == Element.RECORD:
            target = self[name]
            if isinstance(target, Record):
                target.assign(value)
            else:
                target[: len(value)] = value
            return
        fitted = fitting(_plain(value), field, path)
        try:
            np.broadcast_to(fitted, field.shape)
        except ValueError:
            raise ValueError(f"{path} has the shape {field.shape}, not {np.shape(fitted)}") from None
        self._array[name] = fitted

    __setitem__ = __setattr__

    def __dir__(self) -> list[str]:
        return [member.name for member in self._members] + list(super().__dir__())

    def __iter__(self) -> Iterator[str]:
        return (member.name for member in self._members)

    def __contains__(self, name: object) -> bool:
        return any(member.name == name for member in self._members)

    def __array__(self, dtype: Any = None) -> np.ndarray:
        self._memory.check()
        return self._array if dtype is None else self._array.astype(dtype)

    def keys(self) -> list[str]:
        """Names of the fields."""
        return list(self)

    def copied(self) -> Record:
        """The same in memory of its own, which no database sees."""
        self._memory.check()
        return Record(self._array.copy(), self._members, self._path, Memory(), self._type)

    def assign(self, value: Record | Mapping[str, Any]) -> None:
        """Takes all fields of another record of the same type, or those that a mapping holds. All or nothing."""
        if isinstance(value, Record) and value._array.dtype == self._array.dtype:
            value._memory.check()
            self._memory.check()
            for member in self._members:
                if member.is_settable:
                    self._array[member.name] = value._array[member.name]
            return
        if not isinstance(value, Mapping):
            raise ValueError(f"{self._path} takes a mapping or a record of its own type, not {value!r}")
        scratch = self.copied()
        for name, each in value.items():
            scratch[name] = each
        for name in value:
            self._array[name] = scratch._array[name]

    from_dict = assign

    def to_dict(self) -> dict[str, Any]:
        """The fields as Python's own values: numbers, bools, str, lists and dicts. Addresses are left out."""
        self._memory.check()
        values = {}
        for member in self._members:
            if member.is_settable:
                value = self[member.name]
                is_single = not isinstance(value, (Record, View))
                values[member.name] = value if is_single else value.to_dict() if isinstance(value, Record) else value.tolist()
        return values

    def _rows(self) -> list[tuple[str, str, str, str]]:
        rows = []
        for member in self._members:
            value = self[member.name]
            if isinstance(value, Records):
                shown = f"{' x '.join(map(str, value.shape))} records"
            elif isinstance(value, Record):
                shown = "{" + ", ".join(value.keys()[:4]) + (", ...}" if len(value.keys()) > 4 else "}")
            elif isinstance(value, View):
                shown = np.array2string(value._live(), threshold=6, edgeitems=2, separator=", ").replace("\n", " ")
                shown = shown if len(shown) <= 48 else f"{' x '.join(map(str, value.shape))}: {shown[:36]} ..."
            else:
                shown = repr(value) if isinstance(value, str) else f"{value:g}" if isinstance(value, float) else str(value)
            rows.append((member.name, shown, member.unit, member.meaning))
        return rows

    def __repr__(self) -> str:
        if not self._memory.is_open:
            return f"<{self._path}: the database is closed>"
        rows = self._rows()
        widths = [max((len(row[i]) for row in rows), default=0) for i in range(3)]
        lines = [f"{self._path} ({self._type})"]
        for name, value, unit, meaning in rows:
            line = f"  {name:{widths[0]}}  {value:{widths[1]}}  {unit:{widths[2]}}  {meaning}".rstrip()
            lines.append(line if len(line) <= 118 else line[:115] + "...")
        return "\n".join(lines)

    def _repr_html_(self) -> str:
        rows = "".join("<tr>" + "".join(f"<td>{html.escape(each)}</td>" for each in row) + "</tr>" for row in self._rows())
        head = "<tr><th>field</th><th>value</th><th>unit</th><th>meaning</th></tr>"
        caption = html.escape(f"{self._path} ({self._type})")
        return f"<table><caption>{caption}</caption>{head}{rows}</table>"


def record_of(array: np.ndarray, category: Category, memory: Memory) -> Record:
    """The record of a whole category."""
    return Record(array, category.members, category.key, memory, category.record)

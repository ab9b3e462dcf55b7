"""The shared libraries by ctypes: structs, prototypes, statuses, traces.

ctypes and no extension module: the library's interface is plain C with structs of fixed layout, the records themselves are
read and written by numpy without any call, and so there is nothing to compile and one package serves every Python 3.
"""

from __future__ import annotations

import ctypes
import logging
import re
import threading
from ctypes import POINTER, c_bool, c_char_p, c_double, c_int, c_int64, c_size_t, c_uint16, c_uint32, c_void_p
from pathlib import Path

log = logging.getLogger("qv_database")
log.addHandler(logging.NullHandler())

NONE = 2 ** (8 * ctypes.sizeof(c_size_t)) - 1  # SIZE_MAX


class _Sized(ctypes.Structure):
    """A struct that begins with its size, which the caller sets."""

    def __init__(self) -> None:
        super().__init__()
        self.size = ctypes.sizeof(self)


class CatalogCategory(_Sized):
    _fields_ = [
        ("size", c_size_t), ("key", c_char_p), ("record", c_char_p), ("meaning", c_char_p), ("record_size", c_size_t),
        ("documents", c_uint32), ("image_offset", c_size_t), ("place", c_char_p), ("class_name", c_char_p),
        ("class_key", c_char_p), ("is_written", c_bool),
    ]


class CatalogValue(_Sized):
    _fields_ = [
        ("size", c_size_t), ("value", c_int64), ("name", c_char_p), ("short", c_char_p), ("meaning", c_char_p),
    ]


class CatalogField(_Sized):
    _fields_ = [
        ("size", c_size_t), ("name", c_char_p), ("key", c_char_p), ("depth", c_size_t), ("element", c_int),
        ("is_signed", c_bool), ("written", c_int), ("is_written_signed", c_bool), ("width", c_size_t),
        ("rank", c_size_t), ("extents", c_size_t * 3), ("offset", c_size_t), ("count", c_int), ("counter", c_char_p),
        ("counter_offset", c_size_t), ("counter_width", c_size_t), ("bound", c_char_p), ("direction", c_int), ("is_twin", c_bool),
        ("record", c_char_p), ("meaning", c_char_p), ("unit", c_char_p), ("minimum", c_double), ("maximum", c_double),
        ("value_number", c_size_t), ("role", c_int), ("other", c_char_p), ("role_rows", c_size_t),
        ("role_columns", c_size_t), ("internal", c_void_p * 2),
    ]


class CatalogCursor(_Sized):
    _fields_ = [
        ("size", c_size_t), ("depth", c_size_t), ("table", c_void_p * 8), ("next", c_uint16 * 8), ("document", c_int),
    ]


class CatalogPlace(_Sized):
    _fields_ = [
        ("size", c_size_t), ("key", c_char_p), ("offset", c_size_t), ("length", c_size_t), ("rank", c_size_t),
        ("extents", c_size_t * 3), ("heap_offset", c_size_t), ("heap_item", c_size_t), ("heap_counter", c_size_t),
        ("reached", c_size_t), ("stop", c_int), ("document", c_int), ("internal", c_void_p * 4),
    ]


class OpenParam(ctypes.Structure):
    _fields_ = [("logger", c_void_p)]


_TraceWrite = ctypes.CFUNCTYPE(c_int, c_void_p, c_int, c_void_p, c_size_t)


class TracerOpenParam(ctypes.Structure):
    _fields_ = [("level", c_int), ("stream", c_void_p), ("write", _TraceWrite), ("user_data", c_void_p)]


def _load(name: str) -> ctypes.CDLL:
    """The library beside the package, as in a build tree, or that of the system."""
    beside = Path(__file__).resolve().parents[3] / name
    return ctypes.CDLL(str(beside) if beside.exists() else name)


# A symbol of the libraries that it needs is found through it as well, in the very build of them that it uses.
database = _load("libqv_database_c.so.0")

_PROTOTYPES = {
    "QvDatabase_open": [POINTER(OpenParam), POINTER(c_void_p)],
    "QvDatabase_close": [POINTER(c_void_p)],
    "QvDatabase_query": [c_void_p, c_char_p, POINTER(c_void_p)],
    "QvDatabase_load": [c_void_p, c_char_p],
    "QvDatabase_save": [c_void_p, c_char_p],
    "QvDatabase_metaLoad": [c_void_p, c_char_p],
    "QvDatabase_metaSave": [c_void_p, c_char_p],
    "QvDatabase_reset": [c_void_p],
    "QvDatabaseCatalog_category": [c_int, c_size_t, POINTER(CatalogCategory)],
    "QvDatabaseCatalog_walk": [c_int, c_char_p, POINTER(CatalogCursor)],
    "QvDatabaseCatalog_next": [POINTER(CatalogCursor), POINTER(CatalogField)],
    "QvDatabaseCatalog_value": [POINTER(CatalogField), c_size_t, POINTER(CatalogValue)],
    "QvDatabaseCatalog_find": [c_int, c_char_p, POINTER(CatalogPlace)],
    "QvDatabaseCatalog_field": [POINTER(CatalogPlace), POINTER(CatalogField)],
    "QvDatabaseCatalog_siblings": [POINTER(CatalogPlace), POINTER(CatalogCursor)],
}
for _name, _arguments in _PROTOTYPES.items():
    getattr(database, _name).argtypes = _arguments
    getattr(database, _name).restype = c_int
database.QvDatabaseCatalog_document.argtypes = [c_int]
database.QvDatabaseCatalog_document.restype = c_char_p
database.QvCommonError_text.argtypes = [c_int]
database.QvCommonError_text.restype = c_char_p
database.QvCommonTracer_open.argtypes = [POINTER(TracerOpenParam), POINTER(c_void_p)]
database.QvCommonTracer_close.argtypes = [POINTER(c_void_p)]


class DatabaseError(Exception):
    """What the library refused.

    status: its number, as QvCommonError_t has it
    text: what the number means, and what the library said beyond that
    file: the file it was about, or None
    line, column: the place in that file, from 1, where the library named it; else None
    """

    def __init__(self, status: int, text: str, file: str | None = None, line: int | None = None,
                 column: int | None = None) -> None:
        place = "" if file is None else f"{file}: " if line is None else f"{file}:{line}:{column}: "
        super().__init__(f"{place}{text} ({status})")
        self.status = status
        self.text = text
        self.file = file
        self.line = line
        self.column = column

    def __reduce__(self):
        return type(self), (self.status, self.text, self.file, self.line, self.column)


class _Trace(threading.local):
    """The first error line of the operation at hand; later ones come from the levels that a failure passes."""

    first_error: str | None = None


_trace = _Trace()
_LEVELS = (logging.DEBUG, logging.INFO, logging.WARNING, logging.ERROR)


def _write(_user_data: int | None, level: int, text: int, length: int) -> int:
    line = ctypes.string_at(text, length).decode("utf-8", "replace")
    if level == 3 and _trace.first_error is None:
        _trace.first_error = line
    log.log(_LEVELS[level], "%s", line.split(": ", 1)[-1])
    return 0


_write_callback = _TraceWrite(_write)  # as long as the module lives, so does what the library calls


def trace_level(level: int) -> None:
    """Chooses from which level of `logging` on the library traces at all. DEBUG tells every member that a document
    lacks and costs time. No other thread may be using a database meanwhile. The first database of a process chooses
    DEBUG where the logger `qv_database` is enabled for it, and else INFO."""
    tracer = c_void_p.in_dll(database, "hTracer")
    if tracer.value:
        if not _is_own_tracer:
            return  # the program around us has its own, and keeps it
        database.QvCommonTracer_close(ctypes.byref(tracer))
    lowest = sum(level > each for each in _LEVELS[:3])  # errors are always wanted, for what an exception says
    param = TracerOpenParam(lowest, None, _write_callback, None)
    if database.QvCommonTracer_open(ctypes.byref(param), ctypes.byref(tracer)) == 0:
        globals()["_is_own_tracer"] = True


_is_own_tracer = False


def begin_traces() -> None:
    """Opens the tracer, once."""
    if not _is_own_tracer:
        trace_level(logging.DEBUG if log.isEnabledFor(logging.DEBUG) else logging.INFO)


def check(status: int, file: str | None = None) -> None:
    """Raises DatabaseError for a status that is not 0, with the place that the library's trace named."""
    line, _trace.first_error = _trace.first_error, None
    if status == 0:
        return
    text = database.QvCommonError_text(status).decode()
    words = f"{text}({status})"
    detail = line.split(words, 1)[1].lstrip(": ") if line is not None and words in line else ""
    found = re.search(r"at line (\d+), column (\d+)", detail)
    if found is None:
        raise DatabaseError(status, f"{text}: {detail}" if detail else text, file)
    before = detail[: found.start()].strip()
    raise DatabaseError(status, f"{text}: {before}" if before else text, file, int(found[1]), int(found[2]))

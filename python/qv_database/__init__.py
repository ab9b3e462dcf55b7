"""The parameters of an image signal processor, with numpy views on the live records.

    import qv_database as qv

    with qv.Database("imx477.json", "board.ini") as db:     # loads in order
        db["AE_3"].setPoint = 45.0
        db["A2DNR_5_2"].tables["sigma"][0] *= 1.1           # 20 x 20 numbers of the live record
        db.get("A2DNR_5_2.tables[0].strength[5]")
        db.save("changed.json")

    qv.diff("a.json", "b.bin")                              # what differs
    qv.check("a.json")                                      # what is wrong with a document
    qv.fields("AE_3")                                       # what there is

Errors of the library are DatabaseError; a name that there is none of is UnknownName (an AttributeError and KeyError); a
value that doesn't fit its field is OverflowError or ValueError, and nothing is changed; use after close is ValueError.
The library's traces go to the logger "qv_database"; see trace_level for its finest ones.
"""

from ._catalog import Category, Document, Element, Field, UnknownName, categories, category, fields
from ._database import Database
from ._library import DatabaseError, trace_level
from ._programs import Difference, Finding, check, diff
from ._record import Record, Records, View

__all__ = [
    "Category", "Database", "DatabaseError", "Difference", "Document", "Element", "Field", "Finding", "Record", "Records",
    "UnknownName", "View", "categories", "category", "check", "diff", "fields", "trace_level",
]

"""carried_test.py QVDB DOCUMENT: the table of docs/formats.md that tells which members of each category come through which
file is what `qvdb fields` says; what it should be is printed."""

import json
import re
import subprocess
import sys

from shared import check, finish, read

FILES = {
    "text, standard": ("tuning", "calibration", "version"),
    "text, simulator": ("simulator", "calibration", "version"),
    "`.ini`": ("initialization",),
    "image": ("image",),
    "metadata": ("meta",),
}


def places_of(rows, file):
    """Where a member stands in a file: of each place whether it is read there, and whether written."""
    if file == "image":
        return [(True, True) for row in rows if row["imageOffset"] is not None]
    return [(place["isRead"], place["isWritten"]) for row in rows for place in row["places"]
            if place["document"] in FILES[file]]


def cell_of(members, file):
    """What is lacking while that is little, else how much is there."""
    places = {name: places_of(rows, file) for name, rows in members.items()}
    if not any(places.values()):
        return ""
    if not any(is_written for found in places.values() for _, is_written in found):
        return "read only "
    one_way = tuple(name + "." for name, found in places.items() if found and (True, True) not in found)
    carried = {name for name, found in places.items() if (True, True) in found and not name.startswith(one_way)}
    for name, rows in members.items():  # a list of records carries its length
        record = name.rpartition(".")[0]
        counted = rows[0]["role"].removeprefix("length of ")
        counted = f"{record}.{counted}" if record else counted
        if counted in carried and members[counted][0]["isRecord"]:
            carried.add(name)
    values = [name for name, rows in members.items() if not rows[0]["isRecord"]]
    lacking = [f"`{name}`" for name in values if name not in carried]
    if len(lacking) > 4:
        return f"{len(values) - len(lacking)} of {len(values)} "
    return f"all but {', '.join(lacking)} " if lacking else "all "


told = subprocess.run([sys.argv[1], "fields", "*", "--json"], check=True, capture_output=True)
categories = {}
for row in json.loads(told.stdout):
    name = re.sub(r"\[[^]]*\]", "", row["member"])
    categories.setdefault(row["category"], {}).setdefault(name, []).append(row)
table = f"| category | {' | '.join(FILES)} |\n|---|---|---|---|---|---|\n"
for key, members in categories.items():
    table += f"| `{key}` | " + "| ".join(cell_of(members, file) for file in FILES) + "|\n"
check(table in read(sys.argv[2]), "the table should be\n" + table)
finish()

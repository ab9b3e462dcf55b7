"""fields_page_test.py QVDB PAGE: the page of all fields, held against what `qvdb fields` tells of the same catalog in its
own way: every member has its row, every key of every document stands in the row of the member that it carries, and
nothing else does."""

import json
import re
import subprocess
import sys
from collections import Counter

from shared import check, finish, read

ROW = re.compile(r'<tr class="member[^"]*" id="([^"]+)".*?</tr>', re.S)
PLACE = re.compile(r'<span class="doc (\w+)">[^<]*</span> <code class="key" data-keys="([^"]*)"')
CELLS = re.compile(r'<td class="type"><code>([^<]*)</code></td><td class="number">(\d+)</td><td class="number">(\d*)</td>')

page = read(sys.argv[2])
rows = [(found[1], found[0]) for found in ROW.finditer(page)]
done = subprocess.run([sys.argv[1], "fields", "*", "--json"], check=True, capture_output=True)
fields = {}  # of C, by their ids; one with an older key is told of twice
for field in json.loads(done.stdout):
    fields.setdefault(re.sub(r"\[[^]]*\]", "", f"{field['category']}.{field['member']}"), []).append(field)


def element_of(type):
    """A type without its dimensions, which a document may have otherwise."""
    return type.split("[")[0].rstrip("*")


def test_members():
    check(len(rows) == len(fields) > 1000, f"{len(rows)} rows for {len(fields)} members")
    check(fields.keys() == dict(rows).keys(), f"rows of {sorted(fields.keys() ^ dict(rows).keys())[:5]}")
    ends = {}
    for id, row in rows:
        record = id.rpartition(".")[0]
        check("." in record or f'<section id="{record}">' in page, f"{record} has no section")
        type, offset, in_image = CELLS.search(row).groups()
        check(int(offset) >= ends.get(record, 0), f"{id} stands behind a member that C has behind it")
        ends[record] = int(offset) + 1
        field = fields[id][0]
        told = (element_of(field["type"]), "" if field["imageOffset"] is None else str(field["imageOffset"]))
        check((element_of(type), in_image) == told, f"{id} is said to be {type} at {in_image}, not {told}")


def keys_of(id, place):
    """A key without those around it, for each item where a section has one a key; an item's with its list."""
    *_, around, key = ("/" + place["key"]).split("/")
    if place["document"] == "initialization" and "[0]" in key:
        [number] = fields[id.split(".")[0] + "." + key.split("[")[0]][0]["extents"]
        return [key.replace("[0]", f"[{i}]") for i in range(number)]
    return [f"{around}[{key}]" if key.isdigit() else key]


def test_places():
    places = {(id, place["document"], str(place["class"]), place["key"]): keys_of(id, place)
              for id, told in fields.items() for field in told for place in field["places"]}
    expected = Counter((id, document, key) for (id, document, *_), keys in places.items() for key in keys)
    found = Counter((id, document, key.split("/")[-1]) for id, row in rows for document, keys in PLACE.findall(row)
                    for key in keys.split())
    check(len(expected) > 1000, f"only {len(expected)} places")
    check(not expected - found, f"the page lacks {sorted(expected - found)[:5]}")
    check(not found - expected, f"the page has too much: {sorted(found - expected)[:5]}")


def test_what_is_known():
    for id, *texts in [
        ("AE_3.roiNum", ">0..25<", "length of <code>roiWindow<", "uint8_t", ">roiNumber<"),
        ("AES_2.rectangle.offset.x", ">px<", "saved signed"),
        ("AEE_2.tables.hdr", "read, saved as null"),
        ("AEE_2.tables.caEnable", "bool[20]", "number for bool"),
        ("SS.modes.type", "<b>1</b>", ">StitchingHdr<", "stitching HDR"),
        ("SS.driverName", ">name<", "only read", "char[20]"),
        ("SS.testPattern", "older key"),
        ("MT.bitWidth", "only written", "measured"),
        ("CLB.sensor.cc.ccMatrix", "in rows [3][3]", "matrix 3×3"),
        ("CLB.system.afpsDefault", ">AFPS/aFpsDefault<"),
        ("IPT.paths.enable", "paths[0…2].enable"),
        ("DUMP.pRegisters", "Register*", "any length, into registerNumber"),
        ("DUMP.pRegisters.address", "char[10]", ">address<"),
    ]:
        lacks = [text for text in texts if text not in dict(rows).get(id, "")]
        check(not lacks, f"{id} lacks {lacks}")


def test_links():
    for word in ("://", "src=", "@import"):
        check(word not in page, f"the page needs more than itself: {word}")
    ids = Counter(re.findall(r'id="([^"]+)"', page))
    check(max(ids.values()) == 1, f"twice: {ids.most_common(3)}")
    lost = [target for target in re.findall(r'href="([^"]+)"', page) if target[0] != "#" or target[1:] not in ids]
    check(not lost, f"links lead to {lost[:5]}")


test_members()
test_places()
test_what_is_known()
test_links()
finish()

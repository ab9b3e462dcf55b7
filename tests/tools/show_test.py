"""show_test.py QVDB SAVE_RANDOM DOCUMENTS DATABASES: diff, dump, at, fields and get as a user calls them, held against
each other, against what the catalog says of each field, and against documents that the library saved."""
import functools
import itertools
import json
import math
import os
import random
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

from shared import load, write

QVDB, SAVE_RANDOM, DOCUMENTS = map(os.path.abspath, sys.argv[1:4])
DATABASES = int(sys.argv[4])
DOCUMENTS_OF = {"tuning": ["tuning", "calibration", "version"], "simulator": ["simulator", "calibration", "version"],
                "section": ["initialization"], "image": ["image"]}
SUFFIX = {"tuning": ".json", "simulator": ".json", "section": ".ini", "image": ".bin"}
# What no catalog tells: MISC and the simulator's driver share a key, a load of the simulator's form fills the gaps of a
# curve, and a list of calibration is read as far as another one goes.
ONE_OF_A_KIND = re.compile(r"MISC\.nrReloc|CPD_1_1\.expandCurveY|sensor\.BNR\b")


def run(*words, status=0):
    done = subprocess.run([QVDB, *words], capture_output=True, text=True, timeout=60)
    assert done.returncode == status, f"{words}: {done.returncode}\n{done.stdout}{done.stderr}"
    return done


def result(*words, status=0):
    text = run(*words, "--json", status=status).stdout
    return json.loads(text, parse_int=lambda digits: -0.0 if digits == "-0" else int(digits))


def read(name):
    with open(name, "rb") as file:
        return file.read()


def elements(path, value):
    """The elements of a value and their paths."""
    if isinstance(value, list):
        for i, item in enumerate(value):
            yield from elements(f"{path}[{i}]", item)
    else:
        yield path, value


def settings(name):
    return dict(itertools.chain.from_iterable(elements(*item) for item in result("get", name).items()))


@functools.cache
def field_of(path):
    """A path without its indices, as rows of the catalog and elements have it in common."""
    return re.sub(r"\[[0-9*]+\]", "", path)


def as_written(value):
    return f"{float(value):.6f}" if isinstance(value, (int, float)) and not isinstance(value, bool) else value


def catalog():
    rows = {}
    for row in result("fields", "*"):
        rows.setdefault(field_of(row["path"]), row)
    return rows


def lines_of(text):
    return text.splitlines()


class Sets(unittest.TestCase):
    """The sample and random sets in all forms."""

    @classmethod
    def setUpClass(cls):
        cls.fields = catalog()
        run("convert", "imx477.json", "tuning.json")
        run("convert", "imx477.json", "simulator.json", "--protocol", "simulator")
        run("convert", "imx477.json", "section.ini")
        run("convert", "imx477.json", "image.bin")
        subprocess.run([SAVE_RANDOM, ".", str(DATABASES)], check=True)
        cls.defaults = settings(write("empty.json", "{}"))

    @classmethod
    @functools.cache
    def carried(cls, form, path):
        """Whether a save writes a field into a form, from which a load takes it."""
        row = cls.fields[field_of(path)]
        if form == "image":
            return row["imageOffset"] is not None
        return any(place["document"] in DOCUMENTS_OF[form] and place["isRead"] and place["isWritten"]
                   for place in row["places"])

    def note_on(self, form, path):
        """How a line says that a form doesn't carry a field."""
        places = [place for place in self.fields[field_of(path)]["places"] if place["document"] in DOCUMENTS_OF[form]]
        return "not saved into " if any(place["isRead"] for place in places) else "no place in "

    def loses_fraction(self, form, path):
        return form == "section" and self.fields[field_of(path)]["type"] == "float"

    def check_pair(self, forms, values, names):
        differences = result("diff", *names, "--all", status=0 if forms[0] == forms[1] else 1)["differences"]
        lengths = {line["path"]: line for line in differences if "oldLength" in line}
        lines = {line["path"]: line for line in differences if "oldLength" not in line}
        old, new = values
        expected = {path for path, value in old.items() if new.get(path, value) != value}
        self.assertEqual(sorted(lines.keys() ^ expected)[:5], [])
        is_in_lengths = re.compile("(" + "|".join(map(re.escape, lengths)) + r")\[")
        self.assertEqual([path for path in old.keys() ^ new.keys() if not is_in_lengths.match(path)][:5], [])
        for path, line in lines.items():
            lost = [form for form in forms if not self.carried(form, path)]
            kept = [form for form in forms if self.carried(form, path)]
            if lost:
                self.assertIn(line["note"][:12], {self.note_on(form, path)[:12] for form in lost})
            elif not ONE_OF_A_KIND.match(path):
                self.assertEqual(line["note"], "")
                self.assertTrue(any(self.loses_fraction(form, path) for form in kept), f"{path} in {forms}: {line}")
        for list_path, line in lengths.items():
            self.assertTrue(line["note"] or ONE_OF_A_KIND.match(list_path), line)

    def test_a_set_differs_from_itself_in_what_its_forms_do_not_carry(self):
        self.assertNotIn("MT.frameCount", self.defaults)  # frame metadata has files of its own
        for number in ["", *map(str, range(DATABASES))]:
            names = {form: form + number + SUFFIX[form] for form in SUFFIX}
            values = {form: settings(name) for form, name in names.items()}
            for form, found in values.items():
                for path, value in found.items():
                    if not self.carried(form, path) and not ONE_OF_A_KIND.match(path):
                        # A schedule that is made by a load begins with zeros.
                        self.assertEqual(value, self.defaults.get(path, type(value)()), f"{path} in {names[form]}")
            values = {form: {path: as_written(value) for path, value in found.items()}
                      for form, found in values.items()}
            for pair in itertools.combinations_with_replacement(SUFFIX, 2):
                with self.subTest(number=number, forms=pair):
                    self.check_pair(pair, [values[form] for form in pair], [names[form] for form in pair])

    def test_each_bit_of_an_image_belongs_to_what_dump_says(self):
        chance = random.Random(7)
        image = read("image.bin")
        padding = [stretch["offset"] for stretch in result("dump", "image.bin") if stretch["path"] is None]
        for offset in chance.sample(padding, 2) + chance.sample(range(len(image)), 8 + 8 * DATABASES):
            changed = bytearray(image)
            changed[offset] ^= 1 << chance.randrange(8)
            write("changed.bin", bytes(changed))
            [line] = result("diff", "image.bin", "changed.bin", "--exact", status=1)["differences"]
            place = result("dump", "changed.bin", "--at", hex(offset))
            self.assertEqual(place["offset"] + place["byte"] - 1, offset)
            if place["path"] is not None:
                self.assertEqual(line["path"], place["path"])
                self.assertEqual(place["bytes"], bytes(changed[place["offset"]:][:place["size"]]).hex())
                self.assertLessEqual(place["byte"], place["size"])
            else:
                self.assertEqual(line["padding"], 1)

    def test_a_dump_tells_each_byte_once_and_the_values_that_a_load_takes(self):
        reached, values = 0, {}
        for stretch in result("dump", "image0.bin"):
            self.assertEqual((stretch["offset"], len(stretch["bytes"])), (reached, 2 * stretch["size"]))
            reached += stretch["size"]
            if stretch["isInUse"] and stretch["path"] is not None:
                values.update(elements(stretch["path"], stretch["value"]))
        self.assertEqual(reached, 564730)
        found = {path: value for path, value in settings("image0.bin").items() if self.carried("image", path)}
        wrong = [path for path, value in found.items() if values[path] != value]
        self.assertEqual((wrong[:5], len(found) > 20000), ([], True))
        settings_found = set(map(field_of, found))
        unused = [path for path in values if field_of(path) in settings_found and path not in found]
        self.assertEqual(unused[:5], [])

    def test_fields_stand_where_the_catalog_says(self):
        stretches = {stretch["offset"]: stretch["path"] for stretch in result("dump", "image.bin")}
        texts = {"tuning": load("tuning.json"), "simulator": load("simulator.json")}
        texts["calibration"] = texts["version"] = texts["tuning"]
        sections = sections_of(read("section.ini").decode())
        looked_up = dict.fromkeys([*texts, "initialization"], 0)
        for row in self.fields.values():
            is_key = not row["isRecord"] and not row["path"].endswith(("]", "tableIdx"))
            if is_key and row["imageOffset"] is not None and not any("only read" in place["note"]
                                                                     for place in row["places"]):
                self.assertEqual(field_of(stretches[row["imageOffset"]]), field_of(row["path"]))
            for place in row["places"]:
                if not place["isWritten"] or not is_key:
                    continue
                if place["document"] == "initialization":
                    self.assertIn(place["key"], sections[place["place"]])
                elif place["document"] == "meta" or place["place"].endswith("metadata"):
                    continue
                else:
                    self.assert_in_document(texts[place["document"]], place)
                looked_up[place["document"]] += 1
        self.assertGreater(min(looked_up.values()), 1)
        self.assertGreater(looked_up["tuning"], 400)

    def assert_in_document(self, document, place):
        """Follows a place to its first items."""
        reached = [document]
        for name in (place["place"] + "/" + place["key"]).split("/")[1:]:
            if name == "*":
                reached = [item for value in reached for item in (value or [])]
            else:
                reached = [value[int(name)] if isinstance(value, list) else value[name] for value in reached
                           if (int(name) < len(value) if isinstance(value, list) else name in (value or {}))]
            if place["class"] is not None:
                reached = [value for value in reached if not isinstance(value, dict) or
                           place["class"] in (value.get("classname"), value.get("class")) or
                           not {"classname", "class"} & value.keys() or "driver" in value]
            if name == "*" and not reached:
                return  # a list without items
        self.assertTrue(reached, place)

    def test_rows_at_a_gain(self):
        found = result("get", "imx477.json", "AWDR_5_2_1.tables[0].gain", "AWDR_5_2_1.tables[0].satRange",
                       "AWDR_5_2_1.tables[0].wdrColorWeight")
        gains, ranges, weights = found.values()
        for gain, lower, upper, where in [(3, 3, 4, "between"), (gains[6], 6, 6, "at"), (0.5, 0, 0, "below"),
                                          (5000, 19, 19, "beyond")]:
            report = result("at", "imx477.json", "AWDR_5_2_1", "--gain", str(gain), "--interpolate", "linear")
            schedule = report["schedules"][0]
            lists = {line["path"].split(".")[-1]: line for line in schedule["lists"]}
            points = sorted({lower, upper})
            self.assertEqual((schedule["points"], schedule["where"]), (points, where))
            self.assertEqual(schedule["gains"], [gains[i] for i in points])
            self.assertEqual(lists["satRange"]["rows"], [ranges[i] for i in points])
            share = (gain - gains[lower]) / (gains[upper] - gains[lower]) if lower != upper else 0
            for row, expected in [(lists["satRange"], [ranges]), (lists["wdrColorWeight"], zip(*weights))]:
                for value, column in zip(flat(row["linear"]), expected):
                    between = column[lower] + share * (column[upper] - column[lower])
                    self.assertTrue(math.isclose(value, between, rel_tol=1e-5, abs_tol=1e-5), row)
            self.assertEqual(len(lists), 29)
            self.assertIn("layers above", report["note"])
        [schedule] = result("at", "imx477.json", "AWDR_5_2_1.tables[1].satRange", "--gain", "3.9", "--interpolate",
                            "nearest")["schedules"]
        self.assertEqual([line["nearest"] for line in schedule["lists"]], [schedule["lists"][0]["rows"][1]])
        # An axis counts as far as it rises.
        falling = {"tuning": {"A2DNR_5_2": {"tables": [{"gain": [1, 2, 8, 4, 16], "sigma": [1, 2, 3, 4, 5]}]}}}
        [schedule] = result("at", write("falling.json", falling), "A2DNR_5_2", "--gain", "10")["schedules"]
        self.assertEqual((schedule["risingPoints"], schedule["points"], schedule["where"]), (3, [2], "beyond"))
        self.assertIn("rises up to [2]", run("at", "falling.json", "A2DNR_5_2", "--gain", "10").stdout)
        for path in ["AE_3", "A2DNR_5_2.tables[0].hdr", "ABLS.tables[0].gain[2]", "A2DNR_5_2.table"]:
            self.assertEqual(len(lines_of(run("at", "imx477.json", path, "--gain", "3", status=1).stderr)), 1)
        run("at", "imx477.json", "A2DNR_5_2", status=2)


def flat(value):
    return [element for _, element in elements("", value)]


def sections_of(text):
    sections = {}
    for line in text.splitlines():
        if line.startswith("["):
            keys = sections.setdefault(line.strip("[]"), set())
        elif " = " in line:
            keys.add(line.split(" = ")[0])
    return sections


class Rules(unittest.TestCase):
    """What counts as a difference, and how it is said."""

    def changed(self, path, content, name="rule.bin"):
        """The sample's image with other bytes at a field."""
        place = result("dump", "rules.bin", path)[0]["offset"]
        image = bytearray(read("rules.bin"))
        image[place:place + len(content)] = content
        return write(name, bytes(image))

    @classmethod
    def setUpClass(cls):
        run("convert", "imx477.json", "rules.bin")

    def diff(self, old, new, *words, status=1):
        return lines_of(run("diff", old, new, *words, status=status).stdout)

    def test_numbers(self):
        damping = "AE_3.dampOver"
        near = self.changed(damping, struct.pack("<f", 0.8000002))
        self.assertEqual(self.diff("rules.bin", near, status=0), [])
        self.assertEqual(self.diff("rules.bin", near, "--exact"), [damping + "  0.8 -> 0.8000002"])
        far = self.changed(damping, struct.pack("<f", 0.85))
        self.assertEqual(self.diff("rules.bin", far), [damping + "  0.8 -> 0.85"])
        self.assertEqual(self.diff("rules.bin", far, "--tolerance", "0.05", status=0), [])
        self.assertEqual(self.diff("rules.bin", far, "--tolerance", "0.04"), [damping + "  0.8 -> 0.85"])
        infinite = self.changed(damping, struct.pack("<f", math.inf))
        self.assertEqual(self.diff("rules.bin", infinite, "--tolerance", "1e9"), [damping + "  0.8 -> null"])
        nan = self.changed(damping, struct.pack("<f", math.nan), "nan.bin")
        self.assertEqual(self.diff(nan, infinite, status=0), [])
        self.assertEqual(self.diff(nan, infinite, "--exact"),
                         [damping + "  null (0x7fc00000) -> null (0x7f800000)"])
        zero = self.changed(damping, struct.pack("<f", -0.0))
        positive = self.changed(damping, struct.pack("<f", 0.0), "positive.bin")
        self.assertEqual(self.diff(positive, zero), [damping + "  0 -> -0"])

    def test_what_is_no_number(self):
        two = self.changed("AE_3.enable", b"\2")
        self.assertEqual(self.diff("rules.bin", two, status=0), [])
        self.assertEqual(self.diff("rules.bin", two, "--exact"), ["AE_3.enable  true (0x01) -> true (0x02)"])
        self.assertEqual(self.diff("rules.bin", self.changed("AE_3.enable", b"\0"), "--tolerance", "5"),
                         ["AE_3.enable  true -> false"])
        rest = self.changed("SS.driverName", b"imx477\0rest")
        self.assertEqual(self.diff("rules.bin", rest, status=0), [])
        self.assertEqual(self.diff("rules.bin", rest, "--exact"),
                         ['SS.driverName  "imx477" -> "imx477"  (differs behind the text\'s end)'])
        date = self.changed("MISC.exportDate", b"2001-01-01T00:00:00\0")
        self.assertEqual(self.diff("rules.bin", date, status=0), [])
        self.assertRegex(self.diff("rules.bin", date, "--exact")[0], "^MISC.exportDate  ")
        unused = self.changed("A2DNR_5_2.tables[5].sigma[3]", struct.pack("<f", 1))
        self.assertEqual(self.diff("rules.bin", unused, status=0), [])
        self.assertEqual(self.diff("rules.bin", unused, "--exact"), ["A2DNR_5_2.tables[5].sigma[3]  0 -> 1"])
        measured = self.changed("AFM.sharpnessA", struct.pack("<I", 77))
        self.assertEqual(self.diff("rules.bin", measured, status=0), [])
        self.assertEqual(len(self.diff("rules.bin", measured, "--exact")), 1)

    def test_lists(self):
        document = {"tuning": {"LSC_4": {"matrix": [[0] * 1089] * 4}, "A2DNR_5_2": {"tables": [{}]}}}
        old = write("old.json", document)
        document["tuning"]["LSC_4"]["matrix"] = [[0] * 1089, [0] * 20 + [7] * 4 + [0] * 1065, [0] * 1089, [0] * 1089]
        new = write("new.json", document)
        path = "LSC_4.matrix[1]"
        self.assertEqual(self.diff(old, new), [f"{path}[{i}]  0 -> 7" for i in range(20, 24)])
        document["tuning"]["LSC_4"]["matrix"][1] = [0] * 20 + [7, 7, 9, 8, 7] + [0] * 1064
        document["tuning"]["A2DNR_5_2"]["tables"] = [{"sigma": [2]}, {}, {}]
        new = write("new.json", document)
        expected = ["LSC_4.matrix  5 of 4356 differ, most [1][22] by 9"]
        self.assertEqual(self.diff(old, new, "--category", "LSC_4"), expected)
        self.assertEqual(len(self.diff(old, new, "--category", "LSC_4", "--all")), 5)
        self.assertEqual(self.diff(old, new, "--category", "A2DNR_5_2"),
                         ["A2DNR_5_2.tables  1 -> 3 items, only in the second: [1] [2]",
                          "A2DNR_5_2.tables[0].sigma[0]  0 -> 2"])
        self.assertEqual(self.diff(old, new, "--as", "simulator", "--category", "CLscv2"),
                         [line.replace("LSC_4", "CLscv2") for line in expected])
        self.assertEqual(self.diff(old, new, "--stat"),
                         ["A2DNR_5_2    2 fields, 2 values", "LSC_4        1 field, 5 values"])
        document = load("imx477.json")
        del document["sensor"]["LSC"][6:]
        self.assertEqual(self.diff("imx477.json", write("new.json", document))[0].split(":")[0],
                         "sensor.LSC  8 -> 6 items, only in the first")

    def test_statuses(self):
        self.assertEqual(self.diff("imx477.json", "/dev/null")[0].split("  ")[0], "header.creation_date")
        self.assertIn("holds nothing", run("diff", write("number.json", "5"), write("list.json", "[]")).stderr)
        for words, text in [(["imx477.json", "missing.json"], "not found"),
                            (["imx477.json", write("broken.json", "{")], "syntax"),
                            (["imx477.json", "rules.bin", "--category", "AE_4"], "did you mean AE_3"),
                            (["-", "-"], "standard input"),
                            (["rules.bin", "rules.bin", "--exact", "--tolerance", "1"], "--exact")]:
            done = run("diff", *words, status=2)
            self.assertEqual((done.stdout, len(lines_of(done.stderr))), ("", 1))
            self.assertIn(text, done.stderr)

    def test_dumps_of_what_is_short(self):
        image = read("rules.bin")
        calibration = run("dump", write("calibration.bin", image[:89736]))
        self.assertEqual(calibration.stderr, "")
        self.assertRegex(lines_of(calibration.stdout)[-1], "^0x015e87   89735  00 +padding$")
        cut = run("dump", write("cut.bin", image[:89743]))
        self.assertIn("ends at 89743", cut.stderr)
        self.assertTrue(lines_of(cut.stdout)[-1].endswith("2DNR_5_2.sigma  cut off"))
        self.assertIn("(byte 2 of 4)", run("dump", "rules.bin", "--at", "089741").stdout)
        for words in [["cut.bin", "AE_3"], ["cut.bin", "--at", "89743"], ["rules.bin", "AGE"], ["rules.bin", "AE_3.x"],
                      ["imx477.json"]]:
            done = run("dump", *words, status=1)
            self.assertEqual((done.stdout, len(lines_of(done.stderr))), ("", 1))


if __name__ == "__main__":
    folder = tempfile.mkdtemp()
    try:
        shutil.copy(os.path.join(DOCUMENTS, "imx477.json"), folder)
        os.chdir(folder)
        unittest.main(argv=sys.argv[:1] + sys.argv[5:])
    finally:
        os.chdir("/")
        shutil.rmtree(folder)

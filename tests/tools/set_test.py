#!/usr/bin/env python3
"""set_test.py QVDB SAMPLES NUMBER: changes files by `qvdb set` and looks at every byte of what comes out.

Paths and values are drawn at random with a fixed seed, so many in one call. What must come out is worked out from the
document alone: the same tokens but for those that were set, the same lines, the same bytes.
"""

import json
import os
import random
import re
import subprocess
import sys
import tempfile

from shared import check, failures, finish, read, write

qvdb, samples, number_of_values = sys.argv[1], sys.argv[2], int(sys.argv[3])
random.seed(20)

TOKEN = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:[^"\\]|\\.)*"|[^\s{}\[\],:"/]+|[{}\[\],:]|\s+', re.S)


fail = failures.append


def run(*words, data=None):
    done = subprocess.run([qvdb, *words], capture_output=True, input=data, check=False)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


def leaves(value, path):
    """All numbers, texts and bools below a value, with their paths."""
    if isinstance(value, dict):
        for key, inner in value.items():
            yield from leaves(inner, f"{path}.{key}" if path else key)
    elif isinstance(value, list):
        for index, inner in enumerate(value):
            yield from leaves(inner, f"{path}[{index}]")
    elif value is not None:
        yield path, value


def other(value):
    """Another value of the same kind, within any range that holds the one at hand."""
    if isinstance(value, bool):
        return not value
    if isinstance(value, int):
        return value - 1 if value > 0 else value + 1
    if isinstance(value, float):
        choices = [value * 0.5, value + 0.25, 0.1, 1e-9, 3.0, value - 2**-20]
        return random.choice([each for each in choices if not isSame(value, each)])
    return "".join(random.choice("aZ09_-x ") for _ in range(len(value) or 1))


def typed(value):
    if isinstance(value, bool):
        return "true" if value else "false"
    return repr(value) if isinstance(value, float) else str(value)


def isSame(value, found):
    if isinstance(value, int) and isinstance(found, int) and found < 0 < value:
        return (value - found) in (1 << 16, 1 << 32)  # some documents write a sign otherwise than the member has it
    if isinstance(value, float) or isinstance(found, float):
        return abs(value - found) <= 2 ** -23 * abs(value)  # a float's own steps
    return value == found


def get(name, paths, *options):
    status, out, error = run("get", name, "--json", *paths, *options)
    return json.loads(out) if status == 0 else fail(f"get {name}: {error}") or {}


def set_values(name, values, *options):
    status, out, error = run("set", name, *(f"{path}={typed(value)}" for path, value in values.items()), *options)
    check(status == 0, f"set {name}: {error}")
    return status == 0


def check_values(name, values, *options):
    found = get(name, values, *options)
    for path, value in values.items():
        check(path in found and isSame(value, found[path]), f"{name}: {path} is {found.get(path)} and not {value}")


def check_tokens(name, before, after, number):
    """Nothing but values may differ, and no more of them than were set."""
    old, new = TOKEN.findall(before), TOKEN.findall(after)
    if len(old) != len(new):
        return fail(f"{name}: {len(old)} tokens became {len(new)}")
    changed = [(a, b) for a, b in zip(old, new) if a != b]
    beside = [a for a, _ in changed if a.isspace() or a[0] in "/{}[],:"]
    check(not beside, f"{name}: something else than a value was changed: {beside[:3]}")
    check(len(changed) == number, f"{name}: {number} values set, {len(changed)} changed")


def loosened(text):
    """The same document with comments, odd blanks and line ends of another system."""
    parts = []
    for token in TOKEN.findall(text):
        parts.append(token)
        if token == "," and random.random() < 0.02:
            parts.append(random.choice([" /* between, {[ */", "\t", "  // behind \"x\": 1\n", "\n\n"]))
        if token == "{" and random.random() < 0.1:
            parts.append(" // first\n\n   /* above \n two */ ")
    return "".join(parts).replace("\n", "\r\n")


def change_documents():
    sample = read(f"{samples}/imx477.json")
    document = json.loads(sample)
    known = dict(leaves(document["tuning"], ""))
    for part in ("header", "sensor", "system"):
        known.update(leaves(document.get(part, {}), part))
    known = {path: value for path, value in known.items() if ".aeInfo." not in path}  # never read
    run("convert", f"{samples}/imx477.json", "simulator.json", "--protocol", "simulator")
    simulator = read("simulator.json")
    root = json.loads(simulator)["root"]
    objects = [item for item in root if "driver" not in item] + next(item for item in root if "driver" in item)["driver"]
    classes = {path: value for item in objects for path, value in leaves(item, item.get("classname", item.get("class")))
               if not re.search(r"\.class(name)?$|\.aeInfo\.", path)}
    for name, text, paths, *options in (
        ("plain.json", sample, known),
        ("loose.json", loosened(sample), known),
        ("classes.json", loosened(simulator), classes, "--as", "simulator"),
    ):
        write(name, text)
        values = {path: other(paths[path]) for path in random.sample(sorted(paths), number_of_values)}
        if set_values(name, values, *options):
            check_values(name, values, *options)
            check_tokens(name, text, read(name), len(values))


def members_of(lines):
    """The paths of all members of a document as the library lays it out: line, path, whether all of it is there."""
    stack = []
    for number, line in enumerate(lines):
        text = line.strip()
        if text.startswith("}, {"):
            stack[-1][1] += 1
        elif text and text[0] in "}]" and stack:
            stack.pop()
        key = re.match(r'"([^"]*)": (.*)$', text)
        if not key:
            continue
        path = "".join(f".{name}" + (f"[{item}]" if item >= 0 else "") for name, item in stack) + "." + key[1]
        opens = key[2] in ("{", "[{")
        yield number, path[1:], key[2].rstrip(","), opens
        if opens:
            stack.append([key[1], 0 if key[2] == "[{" else -1])


def bring_back():
    """What was taken out of a saved document and is set again stands where it stood, to the byte."""
    sample = read(f"{samples}/imx477.json")
    lines = sample.split("\n")
    members = list(members_of(lines))
    chosen = [member for member in random.sample(members, number_of_values)
              if not member[3] and not re.match(r"(.*aeInfo|version\.exportDate|header\.creation)", member[1])
              and member[2] not in ("null", "[]")][:120]
    values = {}
    gone = set()
    for number, path, value, _ in chosen:
        first = lines[number - 1].strip()[-1] == "{"
        last = lines[number + 1].strip()[0] == "}"
        if (first and last) or number - 1 in gone or number + 1 in gone:
            continue
        gone.add(number)
        values[path.replace("version.", "MISC.")] = value
    for key in random.sample(sorted(json.loads(sample)["tuning"]), 6):
        begin = next(number for number, path, _, _ in members if path == f"tuning.{key}")
        end = next(number for number in range(begin, len(lines)) if lines[number].startswith("    }"))
        if "null" in "".join(lines[begin:end]) or key == "SS":
            continue
        values = {path: value for path, value in values.items() if not path.startswith(f"tuning.{key}.")}
        gone.update(range(begin, end + 1))
        values[key] = json.dumps(json.loads(sample)["tuning"][key])
    left = [line for number, line in enumerate(lines) if number not in gone]
    text = re.sub(r",(\s*\n\s*})", r"\1", "\n".join(left))
    write("less.json", text)
    status, _, error = run("set", "less.json", *(f"{path}={value}" for path, value in values.items()))
    check(status == 0 and read("less.json") == sample, f"{len(values)} members came back otherwise: {error}")


def change_image():
    run("convert", f"{samples}/imx477.json", "a.bin")
    document = json.loads(read(f"{samples}/imx477.json"))
    inside = {path: value for path, value in leaves(document["tuning"], "")
              if not re.search(r"aeInfo|^(AGE|DUMP)\.", path)}
    values = {path: other(inside[path]) for path in random.sample(sorted(inside), number_of_values)}
    status, out, error = run("set", "a.bin", "-o", "b.bin", "--json",
                             *(f"{path}={typed(value)}" for path, value in values.items()))
    if status != 0:
        return fail(f"image: {error}")
    check_values("b.bin", values)
    changes = json.loads(out)["changes"]
    with open("a.bin", "rb") as before, open("b.bin", "rb") as after:
        different = {at for at, (a, b) in enumerate(zip(before.read(), after.read())) if a != b}
    told = {change["offset"] + byte for change in changes for byte in range(
        max(len(change["old"]), len(change["new"])) + 1 if isinstance(change["new"], str) else 8)}
    check(len(changes) == len(values) and different and not different - told, "image: bytes beside the values were changed")
    status, _, error = run("set", "b.bin", 'A2DNR_5_2.tables=[{"sigma": 3}]')
    check(status == 0 and len(get("b.bin", ["A2DNR_5_2.tables"])["A2DNR_5_2.tables"]) == 1,
          f"image: a schedule of another length: {error}")


def change_ini():
    sample = read(f"{samples}/imx477.ini")
    lines = sample.split("\n")
    section, members = "", {}
    for number, line in enumerate(lines):
        section = line[1:-1] if line.startswith("[") else section
        if " = " in line:
            members[number] = (section, *line.split(" = ", 1))
    chosen = random.sample(sorted(members), 60)
    dvc = lines.index("[DVC]")
    gone = set(chosen) | set(range(dvc, lines.index("", dvc) + 1))  # a section whole
    write("a.ini", "\n".join(line for number, line in enumerate(lines) if number not in gone))
    back = [f"{members[n][0]}.{members[n][1]}={members[n][2]}" for n in sorted(gone) if n in members]
    random.shuffle(back)
    status, _, error = run("set", "a.ini", *back)
    check(status == 0 and read("a.ini") == sample, f"lines of an .ini file came back otherwise {error}")
    status, _, error = run("set", "a.ini", "IPT.framerate=29.97", "SS.driverName= a;b")
    changed = [(a, b) for a, b in zip(lines, read("a.ini").split("\n")) if a != b]
    check(changed == [("framerate = 30", "framerate = 29.97"), ("driverName = imx477", 'driverName = " a;b"')],
          f"an .ini file was changed elsewhere: {changed} {error}")


# A document, what is set, and the document behind it.
CASES = (
    ("comments stay with their members",
     '{"tuning": {"AE_3": {\n\t"enable": true, // on\n\t// above\n\t"motionThr": 1 // last\n\t// end\n}}}',
     ["AE_3.tolerance=2", "AE_3.targetFilter=3"],
     '{"tuning": {"AE_3": {\n\t"enable": true, // on\n\t"tolerance": 2.000000,\n\t// above\n\t"motionThr": 1, // last\n'
     '\t"targetFilter": 3.000000\n\t// end\n}}}'),
    ("members that share a line",
     '{"tuning": {"AE_3": {"tolerance": 2 /* two */, "enable": true // on\n}}}',
     ["AE_3.setPoint=2", "AE_3.motionThr=1"],
     '{"tuning": {"AE_3": {"tolerance": 2 /* two */, "motionThr": 1.000000, "enable": true, // on\n'
     '"setPoint": 2.000000\n}}}'),
    ("what holds the value already stays, null and numbers for bools as well",
     '{"tuning":{"AE_3":{"setPoint":4e1,"enable":1,"tolerance":null,"frameCalEnable":true}}}',
     ["AE_3.setPoint=40", "AE_3.enable=false", "AE_3.tolerance=0.1", "AE_3.frameCalEnable=0"],
     '{"tuning":{"AE_3":{"setPoint":4e1,"enable":0,"tolerance":0.100000,"frameCalEnable":false}}}'),
    ("six digits, or as many as it takes",
     '{"tuning": {"AE_3": {"setPoint": 1, "tolerance": 2, "motionThr": 3}}}',
     ["AE_3.setPoint=0.5", "AE_3.tolerance=1e-9", "AE_3.motionThr=16777217"],
     '{"tuning": {"AE_3": {"setPoint": 0.500000, "tolerance": 1e-09, "motionThr": 16777216.000000}}}'),
    ("of doubled keys the last",
     '{"tuning": {"AE_3": {"setPoint": 1}}, "tuning": {"AE_3": {"setPoint": 2, "setPoint": 3}}}',
     ["AE_3.setPoint=9"],
     '{"tuning": {"AE_3": {"setPoint": 1}}, "tuning": {"AE_3": {"setPoint": 2, "setPoint": 9.000000}}}'),
    ("lists that are too short, and no lists",
     '{"tuning": {"2DNR_5_2": {"lumaCurveX": [1, 2], "lumaCurveY": 5}, "HDR_2_1": {"transRange": [[1, 2], [3]]}}}',
     ["2DNR_5_2.lumaCurveX[3]=9", "2DNR_5_2.lumaCurveY[1]=3", "HDR_2_1.transRange[1][1]=4", "HDR_2_1.transRange[2]=8"],
     '{"tuning": {"2DNR_5_2": {"lumaCurveX": [1, 2, 0, 9], "lumaCurveY": [0, 3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0]}, '
     '"HDR_2_1": {"transRange": [[1, 2], [3, 4.000000], [8.000000, 8.000000]]}}}'),
    ("records in lists",
     '{\n  "tuning": {\n    "IPT": {\n      "paths": [{\n        }]\n    }\n  }\n}\n',
     ["IPT.paths[0].format=2", 'IPT.paths[2].rectangle={"width": 1}'],
     '{\n  "tuning": {\n    "IPT": {\n      "paths": [{\n          "format": 2\n        }, {}, {\n'
     '          "rectangle": {\n            "width": 1\n          }\n        }]\n    }\n  }\n}\n'),
    ("objects on one line of several",
     '{"tuning": {"IPT": {"paths": [{"enable": true}]}}\n}\n',
     ["IPT.paths[0].rectangle.width=3", "IPT.paths[1].format=2"],
     '{"tuning": {"IPT": {"paths": [{"enable": true, "rectangle": {"width": 3}}, {"format": 2}]}}\n}\n'),
    ("a schedule of another length",
     '{\n  "tuning": {\n    "AGE": {\n      "enable": true\n    }\n  }\n}\n',
     ['AGE.tables=[{"hdr": true, "threshold": 1}]', "AGE.tables[0].gains[0]=2"],
     '{\n  "tuning": {\n    "AGE": {\n      "enable": true,\n      "tables": [{\n          "hdr": true,\n          "gains": '
     '[2.000000' + ', 0.000000' * 19 + '],\n          "threshold": [1.000000' + ', 1.000000' * 19 +
     ']\n        }]\n    }\n  }\n}\n'),
    ("objects of classes",
     '{"root": [{"classname": "AdaptiveAe"}, {"nr_reloc": false}]}',
     ["EE_2.enable=true", "AF_3.enable=true", "AE_3.setPoint=5"],
     '{"root": [{"classname": "AdaptiveAe", "setPoint": 5.000000}, {"nr_reloc": false, "driver": [{"class": "CEEv1", '
     '"enable": 1}]}, {"classname": "Af", "enable": true}]}'),
    ("an empty document",
     '// mine\r\n{\r\n}\r\n',
     ["AE_3.setPoint=40", "MISC.versionNumber=6.8.25.2"],
     '// mine\r\n{\r\n  "version": {\r\n    "versionNumber": "6.8.25.2"\r\n  },\r\n  "tuning": {\r\n    "AE_3": {\r\n'
     '      "setPoint": 40.000000\r\n    }\r\n  }\r\n}\r\n'),
    ("sections, with the comments above them",
     '# TM\r\n[TM]\r\nhttp.portControl=4\r\n[TM]\r\nhttp.portControl\t=5 ; port\r\nuart.portControl\r\nisStreamable =',
     ["TM.http.portControl=6", "IPT.framerate=5.5", "TM.uart.portControl=x", "TM.isStreamable=true"],
     '[IPT]\r\nframerate = 5.5\r\n\r\n# TM\r\n[TM]\r\nhttp.portControl=4\r\n[TM]\r\nhttp.portControl\t=6 ; port\r\n'
     'uart.portControl = x\r\nisStreamable =true'),
)


def change_cases():
    for what, before, settings, after in CASES:
        name = "case.ini" if before.startswith("#") else "case.json"
        write(name, before)
        status, _, error = run("set", name, *settings)
        check(status == 0 and read(name) == after, f"{what}: {error}{read(name)}\n  instead of\n{after}")
        for word, note in (("doubled", "AE_3.setPoint: setPoint stands there 2 times"),
                           ("short", "lumaCurveX[3]: the list ended before item 3; items from 2 on")):
            check((word in what) == (note in error), f"{what}: it said {error}")


# What can't be set, and a word of the one line that says why.
REFUSED = (
    ("AE_3.setPont=1", "did you mean setPoint?"),
    ("AE3.setPoint=1", "did you mean AE_3?"),
    ("AE_3.setPoint", "PATH=VALUE"),
    ("AE_3.setPoint=", "takes no"),
    ("AE_3.setPoint=nan", "finite"),
    ("AE_3.setPoint=null", "takes no null"),
    ("2DNR_5_2.strength=256", "0..255 (uint8)"),
    ("2DNR_5_2.strength=-1", "0..255"),
    ("2DNR_5_2.strength=1.5", "takes no 1.5"),
    ("2DNR_5_2.enable=ture", "did you mean true?"),
    ("DMSC_2.dmscSkinCbThrMin=65536", "-32768..32767"),
    ("2DNR_5_2.lumaCurveX=[1,2]", "takes 12 values, but the list has 2"),
    ("2DNR_5_2.lumaCurveX=[1,", "takes no [1,"),
    ("2DNR_5_2.lumaCurveX[12]=1", "12 is past the last"),
    ("A2DNR_5_2.tables[2].strength[0]=1", "isn't in use: tables has 2 items"),
    ("A2DNR_5_2=1", "is a record"),
    ("A2DNR_5_2.tables=1", "is a list of records"),
    ('A2DNR_5_2.tables=[' + ','.join(['{}'] * 21) + ']', "room for 20"),
    ('AE_3={"setPont": 1}', "did you mean setPoint?"),
    ("SS.driverName=" + "x" * 20, "at most 19 bytes"),
    ("MISC.exportDate=2026", "no load takes this"),
    ("ST.protocol=1", "no load takes this"),
    ("sensor.BLS=[]", "would also change sensor.BNR[0]"),
)


def refuse():
    sample = read(f"{samples}/imx477.json")
    write("kept.json", sample)
    for setting, word in REFUSED:
        status, out, error = run("set", "kept.json", "AE_3.setPoint=1", setting)
        is_one_line = word in error and error.count("\n") == 1
        check((status, out, is_one_line) == (1, "", True), f"{setting}: {status} {out}{error}")
    check(read("kept.json") == sample, "what is refused must change nothing")
    write("bare.json", '{"sensor": {"CC": [{"name": "a"}]}}')
    for name, setting, word in (("bare.json", "header.creator=x", '"header"'),
                                ("b.bin", "AGE.enable=true", "an image doesn't carry it"),
                                ("a.ini", "AE_3.setPoint=1", "an .ini file"),
                                ("bare.json", "-ob.bin", "convert changes it"),
                                (f"{samples}/imx477_calibration.txt", "CCM_1_1.enable=1", "calibration text")):
        status, _, error = run("set", name, setting, "AE_3.setPoint=1")
        check(status == 1 and word in error, f"{name}: {setting}: {status} {error}")
    # A stream stays one, and a file that holds the values already isn't written.
    os.chmod("kept.json", 0o444)
    before = os.stat("kept.json")
    check(run("set", "kept.json", "AE_3.setPoint=40.8")[0] == 0, "a value that is there already")
    check(os.path.samestat(before, os.stat("kept.json")) and before.st_mtime_ns == os.stat("kept.json").st_mtime_ns,
          "a file that holds the value already was written")
    answer = run("set", "-", "AE_3.setPoint=2", data=b'{"tuning": {"AE_3": {"setPoint": 1}}}')
    check(answer == (0, '{"tuning": {"AE_3": {"setPoint": 2.000000}}}', ""), f"standard input: {answer}")


def explain():
    texts = {
        "base.json": '{"header": {"creator": "a", "sensor_name": "b"}, "tuning": {"AE_3": {"setPoint": 1, "tolerance": 2},\n'
                     '"AGE": {"tables": [{"hdr": true}, {"hdr": false}]}, "2DNR_5_2": {"lumaCurveX": [1, 2, 3]}}}',
        "mid.json": '{"tuning": {"AE_3": {"setPoint": 1,\n  "tolerance": 3}, "2DNR_5_2": {"lumaCurveX": [1, 5]},\n'
                    '  "AGE": {"enable": true}}}',
        "last.json": '{"header": {"creator": "c"}, "root": [{"classname": "AdaptiveAe", "setPoint": 6},\n'
                     ' {"classname": "AdaptiveAe", "setPoint": 7},\n'
                     ' {"nr_reloc": true}]}',
        "last.ini": "[TM]\nhttp.portControl = 5\n[TM]\nhttp.portControl = 6\n",
    }
    for name, text in texts.items():
        write(name, text)

    def place(name, key):
        """Line and column of the value behind a key, the last of its name."""
        at = texts[name].rindex(f'"{key}": ') + len(key) + 4
        return name, texts[name].count("\n", 0, at) + 1, at - texts[name].rfind("\n", 0, at)

    run("convert", "base.json", "image.bin")
    status, out, error = run("merge", "base.json", "mid.json", "last.json", "--explain", "--json", "-o", "all.json")
    if status != 0:
        return fail(f"merge: {error}")
    told = json.loads(out)
    fields = {field["path"]: field for field in told["fields"]}
    places = {path: [(layer["file"], layer["line"], layer["column"]) for layer in field["layers"]]
              for path, field in fields.items()}
    values = {path: [layer["value"] for layer in field["layers"]] for path, field in fields.items()}
    expected = {
        "header.creator": [place("base.json", "creator"), place("last.json", "creator")],
        "AE_3.setPoint": [place(name, "setPoint") for name in ("base.json", "mid.json", "last.json")],
        "AE_3.tolerance": [place(name, "tolerance") for name in ("base.json", "mid.json")],
        "2DNR_5_2.lumaCurveX": [place(name, "lumaCurveX") for name in ("base.json", "mid.json")],
    }
    check(places == expected, f"merge tells {places}")
    check((values["AE_3.setPoint"], values["header.creator"]) == ([1, 1, 7], ["a", "c"]), f"merge tells {values}")
    sizes = [layer["set"] for layer in fields["2DNR_5_2.lumaCurveX"]["layers"]]
    check((fields["AE_3.tolerance"]["winner"], sizes) == ("mid.json", [3, 2]), f"merge tells {fields}")
    check(told["replaced"] == [
        {"path": "AGE.tables", "file": "mid.json", "line": None, "column": None, "offset": None,
         "before": 2, "after": 0, "lost": None},
        {"path": "calibration", "file": "last.json", "line": 1, "column": 24, "offset": None,
         "before": None, "after": None, "lost": 1},
    ], f"merge tells {told['replaced']}")
    for path, field in fields.items():  # who wins is who is found in the end
        winner = next(layer["value"] for layer in field["layers"] if layer["file"] == field["winner"])
        found = get("all.json", [path])[path]
        if path.endswith("lumaCurveX"):
            winner, found = winner[:2], found[:2]
        check(found == winner, f"merge: {path} is {found}, but {winner} wins")
    status, out, error = run("merge", "image.bin", "last.ini", "--explain")
    layers = r"^TM.http.portControl\n +image.bin, offset \d+ +8080\n +last.ini:4:20 +6  wins$"
    check(status == 0 and re.search(layers, out, re.M), f"merge of an image: {out}{error}")
    for words in (["base.json"], ["base.json", "--json", "-o", "x.json"], ["-", "--explain", "-o", "x.json"]):
        check(run("merge", *words)[0] == 2, f"merge {words} is no usage")


with tempfile.TemporaryDirectory() as folder:
    samples = os.path.abspath(samples)
    qvdb = os.path.abspath(qvdb)
    os.chdir(folder)
    change_documents()
    bring_back()
    change_image()
    change_ini()
    change_cases()
    refuse()
    explain()
finish()

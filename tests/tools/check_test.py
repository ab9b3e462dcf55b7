"""check_test.py QVDB SAVE_RANDOM PLANTED DOCUMENTATION DATABASES: faults that were planted are found, each with place,
words and id; what the library saves is clean; what check says of a value is what a load makes of it."""

import difflib
import glob
import json
import os
import pty
import re
import shutil
import struct
import subprocess
import sys
import tempfile

from shared import check, finish, load, read, write

qvdb, save_random, planted, documentation, databases = sys.argv[1:6]
qvdb, save_random = os.path.abspath(qvdb), os.path.abspath(save_random)

def run(*words, cwd=None, stdin=None):
    return subprocess.run([qvdb, *words], cwd=cwd, input=stdin, capture_output=True, text=True, timeout=300)


def patched(image, patches):
    for offset, data in patches:
        image = image[:offset] + data + image[offset + len(data) :]
    return image


def make_images(folder):
    """Images with faults: all records of a fresh database, and bytes of some of them changed."""
    write(folder + "/empty.json", "{}")
    run("convert", "empty.json", "fresh.bin", cwd=folder)
    fresh = open(folder + "/fresh.bin", "rb").read()
    os.remove(folder + "/empty.json")
    os.remove(folder + "/fresh.bin")
    noise, tables = 89736, 89736 + 84  # 2DNR_5_2 and A2DNR_5_2, behind calibration
    faults = [
        (0, b"x" * 50 + b"y"),  # header.creation_date runs into the creator
        (640, b"\x02"),  # two resolutions, and room for one
        (noise, b"\x02"),
        (noise + 4, struct.pack("<f", float("nan"))),
        (noise + 12, struct.pack("<3H", 5, 4, 6)),
        (tables + 23296, struct.pack("<Q", 1)),
        (tables + 4, struct.pack("<3f", 2, 1, 3)),  # the gains of the row in use
        (tables + 4 + 1164, struct.pack("<3f", 2, 1, 3)),  # and of one that isn't
    ]
    images = {"e_image": patched(fresh, faults), "e_short": fresh[:100000], "e_long": fresh + b"12", "good": fresh}
    images["e_calibration"] = patched(fresh[:89736], faults[:2])
    for name, image in images.items():
        write(f"{folder}/{name}.bin", image)


def test_planted(folder):
    """All planted faults and nothing else; without an id all but those of that id."""
    names = sorted(os.listdir(folder))
    expected = read(planted + "/expected.txt").splitlines()
    result = run("check", *names, cwd=folder)
    found = result.stderr.splitlines()
    difference = difflib.unified_diff(expected, found, "planted", "found", n=0, lineterm="")
    check(found == expected, "\n".join(difference))
    check(result.returncode == 1 and result.stdout == "", f"status {result.returncode}, output {result.stdout[:80]}")

    refusal = run("check", "--disable", "unknown-mamber", names[0], cwd=folder)
    ids = refusal.stderr.split("those there are: ")[-1].split(";")[0].split(", ")
    check(refusal.returncode == 2 and "did you mean unknown-member?" in refusal.stderr, "an unknown id: " + refusal.stderr)
    described = re.findall(r"^\| `([a-z-]+)` \| (?:error|warning|note) \|", read(documentation), re.M)
    check(described == ids, f"documented are {described}")
    for name in ids:
        own = [line for line in expected if line.endswith(f"[{name}]")]
        check(own or name == "missing", f"nothing is planted for {name}")
        others = run("check", "--disable", name, *names, cwd=folder).stderr.splitlines()
        check(others == [line for line in expected if line not in own], f"without {name}")

    lines = [json.loads(line) for line in run("check", "--json", *names, cwd=folder).stdout.splitlines()]
    told = [f"[{line['id']}]" for line in lines]
    check(told == [line[line.rindex("[") :] for line in expected], "--json tells others")
    for name in names:
        severe = any(line["file"] == name and line["severity"] == "error" for line in lines)
        status = run("check", name, cwd=folder).returncode
        strict = run("check", "--strict", name, cwd=folder).returncode
        check(status == severe, f"{name}: status {status}")
        check(strict == (not name.startswith("good")), f"{name}: strict status {strict}")
        check(name.startswith("e_") == severe, f"{name} is not what its name says")
    return lines


def test_calls(folder):
    check(run("check", "good.json", "none.json", "e_root.json", cwd=folder).returncode == 2, "a file that isn't there")
    result = run("check", "-", stdin='{"tuning": {"AE_4": {}}}')
    wanted = "standard input:1:13: error: AE_4: there is no such category (did you mean AE_3?) [unknown-category]\n"
    check(result.stderr == wanted and result.returncode == 1, "standard input: " + result.stderr)
    text = '{"root": [{"classname": "ABls", "enable": "1"}]}'
    check("ABls.enable: " in run("check", "--as", "simulator", "-", stdin=text).stderr, "the simulator's names")

    missing = run("check", "--missing", "-", stdin='{"tuning": {"A2DNR_5_2": {"enable": true}, "AES_2": {}}}')
    lines = missing.stderr.splitlines()
    check(missing.returncode == 0 and all(line.endswith("[missing]") for line in lines), "status of --missing")
    row = "standard input:1:13: note: A2DNR_5_2: lacks tables, which empties the list [missing]"
    category = "standard input:1:1: note: AE_3: the document lacks the category [missing]"
    check(row in lines and category in lines, "--missing tells " + missing.stderr[:300])

    main, other = pty.openpty()
    process = subprocess.Popen([qvdb, "check", "e_root.json"], cwd=folder, stderr=other, env={"NO_COLOR": "1"})
    process.wait()
    os.close(other)
    shown = os.read(main, 4096).decode().splitlines()
    check(shown[1:] == ["    [1, 2]", "    ^~~~~~"], f"a terminal shows {shown}")


def leaves(value, path=""):
    """Paths of all scalars, of a list of them the first, with holder and key."""
    items = value.items() if isinstance(value, dict) else list(enumerate(value))[: None if has_records(value) else 1]
    for key, inner in items:
        at = f"{path}[{key}]" if isinstance(value, list) else f"{path}.{key}" if path else key
        if isinstance(inner, (dict, list)):
            yield from leaves(inner, at)
        else:
            yield at, value, key


def has_records(value):
    return isinstance(value, list) and value and isinstance(value[0], dict)


def values(folder, name, paths):
    """What a load made of them."""
    result = run("get", name, *paths, "--json", cwd=folder)
    check(result.returncode == 0, "get: " + result.stderr[:200])
    return json.loads(result.stdout or "{}")


def is_said(text, value):
    """Whether the words of a finding name the value that the field has come to hold."""
    said = re.search(r"is stored as (.+?)(?: without a terminator)?$", text).group(1)
    if said.startswith("the byte") or said.endswith("infinity"):
        return True  # nothing that JSON could show
    said = json.loads(said)
    return said == (value is True) or is_same(said, value)


def test_stored(folder, lines):
    """Where check says what a value is stored as, that is what get shows after a load."""
    stored = {}
    for line in lines:
        loads = line["file"] not in ("e_syntax.json", "e_syntax.ini", "e_root.json", "e_calibration.json")
        if loads and " is stored as " in line["text"] and "..." not in line["text"]:
            stored.setdefault(line["file"], {})[line["path"]] = line["text"]
    check(len(stored) > 3, f"values are stored in {list(stored)} alone")
    for name, texts in stored.items():
        got = values(folder, name, texts)
        for path, text in texts.items():
            check(is_said(text, got.get(path)), f"{name}: {path}: {text}, and get shows {got.get(path)}")


def is_same(written, value):
    is_number = isinstance(written, (int, float)) and isinstance(value, (int, float))
    return written == value or is_number and struct.pack("f", written) == struct.pack("f", value)


def test_every_field(folder):
    """All fields at once hold a value that many of them don't take. What a load and a save change has been told, with
    what it is stored as; what comes back as it was has not been called an error."""
    number = 0
    faults = (2**40 + 5, -7, 3.5, "x", True)[: 5 if int(databases) > 2 else 2]
    for fault in faults:
        document = load(folder + "/tuning0.json")
        del document["version"]
        paths = []
        for path, holder, key in list(leaves(document)):
            if "aeInfo" not in path:  # written and never read
                holder[key] = fault
                paths.append(path.removeprefix("tuning."))
        write(folder + "/faults.json", document)
        lines = run("check", "--json", "faults.json", cwd=folder).stdout.splitlines()
        findings = {}
        for line in map(json.loads, lines):
            findings.setdefault(line["path"], []).append(line)
        got = values(folder, "faults.json", paths)
        run("convert", "faults.json", "saved.json", cwd=folder)
        saved = {path.removeprefix("tuning."): holder[key] for path, holder, key in leaves(load(folder + "/saved.json"))}
        for path in paths:
            told = [line for line in findings.get(path, []) if line["id"] not in ("not-rising", "count-mismatch")]
            number += 1
            if not is_same(fault, got[path]) and not is_same(fault, saved.get(path)):
                check(told, f"{path}: {fault} becomes {got[path]}, without a word")
            else:
                check(all(line["severity"] == "warning" for line in told), f"{path}: {fault} is kept, but: {told}")
            for line in told:
                if " is stored as " in line["text"]:
                    check(is_said(line["text"], got[path]), f"{path}: {line['text']}, and get shows {got[path]}")
    check(number > 600 * len(faults), f"only {number} values were tried")


def test_saved(folder):
    """What the library saves has no errors, whatever the records hold. The sample, and what is saved of it and of a fresh
    database, has not even warnings."""
    subprocess.run([save_random, folder, databases], check=True, capture_output=True)
    names = sorted(name for name in os.listdir(folder) if re.search(r"\d", name))
    check(len(names) == 6 * int(databases), f"{len(names)} files are saved")
    for line in run("check", "--json", *names, cwd=folder).stdout.splitlines():
        finding = json.loads(line)
        check(finding["id"] in ("not-rising", "version", "bounded"), f"a save doesn't pass its own check: {line}")
    write(folder + "/empty.json", "{}")
    samples = os.path.dirname(os.path.abspath(documentation)) + "/../examples/documents/imx477"
    for source in ("empty.json", samples + ".json", samples + ".ini"):
        for words in (["saved.json"], ["saved.ini"], ["saved.bin"], ["saved.json", "--protocol", "simulator"]):
            run("convert", source, *words, cwd=folder)
            result = run("check", "--strict", source, words[0], cwd=folder)
            check(result.returncode == 0, f"{source}, {words[0]}: {result.stderr[:200]}")


def scalars(value):
    if isinstance(value, (dict, list)):
        return sum(map(scalars, value.values() if isinstance(value, dict) else value))
    return value is not None


def test_coverage(folder):
    """Of a save every value counts but what is written and never read; of planted faults what is passed over."""
    for name in ("tuning0.json", "meta0.json", "meta_simulator0.json"):
        document = load(f"{folder}/{name}")
        result = json.loads(run("coverage", "--json", name, cwd=folder).stdout)
        if "version" in document:
            del document["version"]["exportDate"]
        for driver in document.get("tuning", {}).get("SS", {}).get("listInfos") or []:
            for mode in driver["drvModeInfos"] or []:
                del mode["aeInfo"]
        if name == "meta0.json":
            for key in ("bitWidth", "width", "height", "bayerPattern", "sensorMode"):
                del document[key]
        number = scalars(document)
        sets = sum(category["sets"] for category in result["categories"])
        check(sets == number and not result["passedOver"], f"{name} sets {number} values, coverage says {sets}")
    shutil.copy(planted + "/e_unknown.json", folder)
    result = json.loads(run("coverage", "--json", "e_unknown.json", cwd=folder).stdout)
    passed = [item["path"] for item in result["passedOver"]]
    check(passed[:3] == ["tunning", "AE_3", "AE_4"] and len(passed) == 10, f"passed over are {passed}")
    calibration = next(item for item in result["categories"] if item["name"] == "calibration")
    check((calibration["sets"], calibration["lists"][0]["items"]) == (1, 1), f"calibration: {calibration}")


with tempfile.TemporaryDirectory() as folder:
    for name in glob.glob(planted + "/*"):
        if not name.endswith("expected.txt"):
            shutil.copy(name, folder)
    make_images(folder)
    found = test_planted(folder)
    test_calls(folder)
    test_stored(folder, found)
with tempfile.TemporaryDirectory() as folder:
    test_saved(folder)
    test_coverage(folder)
    test_every_field(folder)

finish()

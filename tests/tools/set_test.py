#!/usr/bin/env python3
"""set_test.py QVDB SAMPLES: changes files by `qvdb set` and looks at every byte of what comes out.

Paths and values are drawn at random with a fixed seed, hundreds in one call. What must come out is worked out from the
document alone: the same tokens but for those that were set, the same lines, the same bytes.
"""

import json
import os
import random
import re
import subprocess
import sys
import tempfile

qvdb, samples = sys.argv[1:3]
random.seed(20)
failures = 0

TOKEN = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:[^"\\]|\\.)*"|[^\s{}\[\],:"/]+|[{}\[\],:]|\s+', re.S)


def fail(what):
    global failures
    failures += 1
    if failures <= 20:
        print("FAILED:", what)


def run(*words, data=None):
    done = subprocess.run([qvdb, *words], capture_output=True, input=data, check=False)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


def read(name):
    with open(name, "rb") as file:
        return file.read().decode()


def write(name, text):
    with open(name, "wb") as file:
        file.write(text.encode())


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
    if status != 0:
        fail(f"set {name}: {error}")
    return status == 0


def check_values(name, values, *options):
    found = get(name, values, *options)
    for path, value in values.items():
        if path in found and not isSame(value, found[path]):
            fail(f"{name}: {path} is {found[path]} and not {value}")
    if len(found) != len(values):
        fail(f"{name}: {len(values)} values set, {len(found)} found")


def check_tokens(name, before, after, number):
    """Nothing but values may differ, and no more of them than were set."""
    old, new = TOKEN.findall(before), TOKEN.findall(after)
    if len(old) != len(new):
        return fail(f"{name}: {len(old)} tokens became {len(new)}")
    changed = [(a, b) for a, b in zip(old, new) if a != b]
    if any(a.isspace() or a[0] in "/{}[],:" for a, _ in changed):
        fail(f"{name}: something else than a value was changed: {changed[:3]}")
    if len(changed) != number:
        fail(f"{name}: {number} values set, {len(changed)} changed")


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
        values = {path: other(paths[path]) for path in random.sample(sorted(paths), 400)}
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
    chosen = [member for member in random.sample(members, 400)
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
        values[key] = "".join("{" + line.strip() for line in lines[begin + 1:end + 1]) if False else json.dumps(
            json.loads(sample)["tuning"][key])
    left = [line for number, line in enumerate(lines) if number not in gone]
    text = re.sub(r",(\s*\n\s*})", r"\1", "\n".join(left))
    write("less.json", text)
    status, _, error = run("set", "less.json", *(f"{path}={value}" for path, value in values.items()))
    if status != 0:
        return fail(f"bring back: {error}")
    if read("less.json") != sample:
        write("/tmp/setw/less_now.json", read("less.json"))
        write("/tmp/setw/less_before.json", text)
        fail(f"{len(values)} members that were taken out came back otherwise")


with tempfile.TemporaryDirectory() as folder:
    samples = os.path.abspath(samples)
    qvdb = os.path.abspath(qvdb)
    os.chdir(folder)
    change_documents()
    bring_back()
sys.exit(failures != 0)

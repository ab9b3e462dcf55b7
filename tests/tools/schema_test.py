#!/usr/bin/env python3
"""Holds the schemas of qvdb against the library: schema_test.py QVDB SAVE_RANDOM DOCUMENTS NUMBER

What the library saves from NUMBER databases full of random values and what the samples hold must be valid, and every kind
of fault must be found in it.
"""

import copy
import glob
import json
import os
import subprocess
import sys
import tempfile

from jsonschema import Draft7Validator, validators

from shared import check, failures, finish, load

FORMS = ["", "tuning", "simulator", "calibration", "meta"]

qvdb, save_random, documents = sys.argv[1:4]
databases = int(sys.argv[4])


def run(*words):
    return subprocess.run(words, check=True, capture_output=True, text=True).stdout


def check_items(validator, items, instance, schema):
    """The library's keyword takes each of thousands of numbers alone. Of those without a list of values the least and the
    greatest of a kind tell of all."""
    if isinstance(instance, list) and isinstance(items, dict) and {"minimum", "allOf"} & items.keys() and len(instance) > 8:
        kinds = {}
        for i, item in enumerate(instance):
            is_number = isinstance(item, (int, float)) and not isinstance(item, bool)
            kinds.setdefault((type(item), item == item // 1) if is_number else i, []).append(i)
        chosen = {pick(kind, key=instance.__getitem__) for kind in kinds.values() for pick in (min, max)}
        for i in sorted(chosen):
            yield from validator.descend(instance[i], items, path=i)
    else:
        yield from Draft7Validator.VALIDATORS["items"](validator, items, instance, schema)


Validator = validators.extend(Draft7Validator, {"items": check_items})


def make_validators():
    made = {}
    for form in FORMS:
        text = run(qvdb, "schema", *([form] if form else []))
        check(text == run(qvdb, "schema", *([form] if form else [])), f"schema {form}: differs from call to call")
        schema = json.loads(text)
        Draft7Validator.check_schema(schema)
        check(schema["$schema"] == "http://json-schema.org/draft-07/schema#", f"schema {form}: names no draft")
        made[form] = Validator(schema)
    return made


def expect_valid(form, document, what):
    for error in list(VALIDATORS[form].iter_errors(document))[:3]:
        place = "/".join(str(step) for step in error.absolute_path)
        failures.append(f"{what} by schema {form or 'of all'}: {place}: {error.message[:100]}")


CLASS_KEYS = ("classname", "class")


def surroundings(document, path):
    """A document with nothing but what leads to a path, and the path there: lists keep their length with empty objects
    in it, and of objects with a class the one on the path is left."""
    if not path:
        return document, []
    step = path[0]
    if isinstance(document, list):
        if not isinstance(document[0], dict):
            return document, path
        item, rest = surroundings(document[step], path[1:])
        isRoot = any(key in other for other in document for key in CLASS_KEYS)
        if isRoot:
            return [item], [0, *rest]
        return [item if i == step else {} for i in range(len(document))], [step, *rest]
    result = {key: document[key] for key in CLASS_KEYS if key in document}
    rest = []
    if step in document:
        result[step], rest = surroundings(document[step], path[1:])
    return result, [step, *rest]


def edited(document, path, value):
    """A copy with another value at a path; a function of the old one, or the value itself."""
    result = copy.deepcopy(document)
    at = result
    for step in path[:-1]:
        at = at[step]
    last = path[-1]
    at[last] = value(at[last]) if callable(value) else value
    return result


def expect_fault(form, document, path, value, keyword):
    """The edit must be found, at its place or the object around it, and by this keyword alone."""
    small, at = surroundings(document, path)
    errors = list(VALIDATORS[form].iter_errors(edited(small, at, value)))
    found = {error.validator for error in errors}
    places = [list(error.absolute_path) for error in errors]
    fits = found == {keyword} and all(place == at[: len(place)] or at == place[: len(at)] for place in places)
    check(fits, f"{path} by schema {form or 'of all'}: wanted {keyword}, found {found or 'nothing'} at {places}")


def paths_of(document, path=()):
    """All paths, of lists of values the list alone and its first value, of lists of objects all objects' paths."""
    yield list(path)
    if isinstance(document, dict):
        for key, value in document.items():
            yield from paths_of(value, path + (key,))
    elif isinstance(document, list):
        isObjects = document and isinstance(document[0], dict)
        for i in range(len(document) if isObjects else min(1, len(document))):
            yield from paths_of(document[i], path + (i,))


def faults_of(value, path):
    """Values that may never stand in the place of another."""
    name = path[-1]
    if isinstance(name, int) and isinstance(value, float):
        return ["1", 3.5e38]  # of long lists, which take their time, the least that tells
    if isinstance(name, int) and isinstance(value, int):
        return ["1", 0.5, 2**65]
    if isinstance(value, dict):
        return [[value], 1, {**value, "noSuchMember": 1}]
    if isinstance(value, list):
        if name in ("root", "driver", "registers"):
            return [{"0": value}, 1]  # as long as one likes
        if isinstance(value[0], dict):
            return [{"0": value}, 1, value + [{}] * 50]
        return [{"0": value}, 1, value + value[-1:], *([] if isinstance(value[0], str) else [value[:-1]])]
    if isinstance(value, str):
        return [1, None, [value], "x" * 300]
    if value is None:
        return ["true", 1, [True]]
    if isinstance(value, bool):
        return ["true", 1, None, [value]]
    if isinstance(value, int):
        return ["1", None, True, [value], 0.5, 2**64 + 2**13, -(2**63) - 2**12]
    isDouble = name in ("maxGain", "minGain", "max_gain", "min_gain")
    return ["1", None, True, [value], *([] if isDouble else [3.5e38, -3.5e38])]


def sweep(form, document, what):
    """Every member of a document, in its smallest surroundings, with every fault that it can have."""
    seen = set()
    number = 0
    for path in paths_of(document):
        if not path or path[-1] in CLASS_KEYS:
            continue
        small, at = surroundings(document, path)
        value = small
        pattern = []  # the same member in another item of a list is the same once more
        for step in at:
            if isinstance(value, dict):
                pattern += [value.get(key) for key in CLASS_KEYS] + [step]
            value = value[step]
        pattern = (*pattern, len(at))
        if pattern in seen:
            continue
        seen.add(pattern)
        expect_valid(form, small, f"{what} with nothing but {path}")
        for fault in faults_of(value, path):
            number += 1
            isFound = not VALIDATORS[form].is_valid(edited(small, at, lambda old, fault=fault: fault))
            check(isFound, f"{what} {path}: {str(fault)[:60]} is not found")
    return number


def test_saved(folder):
    run(save_random, folder, str(databases))
    saved = sorted(glob.glob(folder + "/*.json"))
    check(len(saved) == 4 * databases + 1, f"{len(saved)} files are saved")
    for name in saved:
        own = os.path.basename(name).rstrip(".json0123456789").removesuffix("_simulator")
        document = load(name)
        if own == "meta" or name.endswith("0.json"):
            expect_valid(own, document, os.path.basename(name))
        if own != "meta":
            expect_valid("", document, os.path.basename(name))


def converted(folder, source, name, *words):
    run(qvdb, *words[:1], source, f"{folder}/{name}", *words[1:])
    return load(f"{folder}/{name}")


def test_faults(tuning, simulator):
    """Ends of ranges and rooms, named values, and some of what the sweep tries everywhere, here with place and keyword."""
    sensor = ["tuning", "SS"]
    row = ["tuning", "A2DNR_5_2", "tables", 0]
    driver = next(i for i, item in enumerate(simulator["root"]) if "driver" in item)
    manual = ["root", driver, "driver"]
    classes = [item["class"] for item in simulator["root"][driver]["driver"]]
    statistics = manual + [classes.index("ExpV2")]
    interface = manual + [classes.index("C3Av2Interface")]

    def longer(items):
        return items + items[-1:]

    def shorter(items):
        return items[:-1]

    for path, value, keyword in [
        (["tuning", "AE_4"], {}, "additionalProperties"),
        (["tuning", "AE_3", "setPoint"], "1", "type"),
        (["tuning", "2DNR_5_2", "strength"], 256, "maximum"),
        (["tuning", "2DNR_5_2", "strength"], -1, "minimum"),
        (["tuning", "WDR_5_2_1", "contrast"], 32768, "maximum"),
        (["tuning", "WDR_5_2_1", "contrast"], -32769, "minimum"),
        (["tuning", "AE_3", "roiNum"], 26, "maximum"),
        (sensor + ["modeNumber"], 21, "maximum"),
        (row + ["gain", 19], 1e39, "maximum"),
        (row + ["gain", 19], -1e39, "minimum"),
        (row + ["lumaCurveX", 3, 11], 65536, "maximum"),
        # written with the other sign than the member has
        (["tuning", "AES_2"], {"rectangle": {"offset": {"x": 65536}}}, "maximum"),
        (["tuning", "AES_2"], {"rectangle": {"offset": {"x": -32769}}}, "minimum"),
        (["tuning", "DMSC_2", "dmscSkinCbThrMax"], 65536, "maximum"),
        (["tuning", "DMSC_2", "dmscSkinCbThrMax"], -32769, "minimum"),
        (["tuning", "3DNR_2_1", "motionDilateEn"], 2, "maximum"),
        (["tuning", "TM", "fs", "frameCount"], 2**65, "maximum"),
        (["tuning", "TM", "fs", "frameCount"], -(2**64), "minimum"),
        (["tuning", "2DNR_5_2", "lumaCurveX"], longer, "maxItems"),
        (row + ["lumaCurveX", 3], shorter, "minItems"),
        (["tuning", "A2DNR_5_2", "tables"], lambda items: items[:1] * 21, "maxItems"),
        (["tuning", "IPT", "paths"], longer, "maxItems"),
        (["tuning", "IPT", "paths"], shorter, "minItems"),
        (sensor + ["modes"], longer, "maxItems"),
        (sensor + ["listInfos"], lambda items: items[:1] * 31, "maxItems"),
        (["sensor", "CC"], lambda items: items[:1] * 15, "maxItems"),
        (["sensor", "AWB", "illumination", 0, "aLSC"], longer, "maxItems"),
        (["version", "versionNumber"], "1" * 21, "maxLength"),
        (sensor + ["modes", 0, "type"], 3, "enum"),
        (["tuning", "IPT", "type"], -1, "enum"),
    ]:
        expect_fault("", tuning, path, value, keyword)
        if path[0] == "tuning":
            expect_fault("tuning", tuning, path, value, keyword)
        else:
            expect_fault("calibration", {key: tuning[key] for key in tuning if key != "tuning"}, path, value, keyword)

    for path, value, keyword in [
        (["root", 0, "classname"], "A2dnr", "enum"),
        (["root", 0, "classname"], "C2dnrv5_1", "enum"),
        (["root", driver, "input", "path"], longer, "maxItems"),
        (manual + [0, "class"], "c2dnrv5_1", "enum"),
        (manual + [0], {"enable": True}, "required"),
        (manual + [0, "noSuchMember"], 1, "additionalProperties"),
        (statistics + ["windows", 1], -1, "minimum"),
        (interface + ["xml"], "x" * 257, "maxLength"),
    ]:
        for form in ("", "simulator"):
            expect_fault(form, simulator, path, value, keyword)

    expect_fault("tuning", tuning, ["root"], [], "additionalProperties")
    expect_fault("simulator", simulator, ["tuning"], {}, "additionalProperties")


def test_readable(tuning, simulator):
    """What is out of the ordinary and read as it stands."""
    for path, value in [
        (["$schema"], "text.json"),
        (["tuning", "AES_2"], {"rectangle": {"offset": {"x": -32768, "y": 65535}}}),
        (["tuning", "DMSC_2", "dmscSkinCbThrMax"], -1),
        (["tuning", "DMSC_2", "dmscSkinCbThrMax"], 65535),
        (["tuning", "TM", "fs", "frameCount"], 2**64 - 1),
        (["tuning", "TM", "fs", "frameCount"], -1),
        (["tuning", "SS", "listInfos"], None),
        (["tuning", "SS", "pattern"], {"enable": True}),
        (["tuning", "SS", "name"], "x"),
        (["tuning", "DUMP", "registers"], [{"address": "0x00000700"}] * 100),
        (["tuning", "A2DNR_5_2", "tables"], []),
        (["header", "resolution"], None),
        (["tuning", "AE_3", "setPoint"], 3),
    ]:
        small, at = surroundings({**tuning, "$schema": ""}, path)
        expect_valid("", edited(small, at, value), str(path))
    for form in FORMS:
        expect_valid(form, {}, "an empty document")
    for item in simulator["root"]:
        if "classname" in item:
            small = {"root": [{"classname": item["classname"]}, {"driver": [{"class": "Bls"}]}, {}]}
            expect_valid("simulator", small, item["classname"])


def test_meta(plain, small):
    for document, path, value, keyword in [
        (plain, ["frame_index"], 1, "additionalProperties"),
        (plain, ["bufChainId"], 2**32, "maximum"),
        (plain, ["bufChainId"], -(2**31) - 1, "minimum"),
        (small, ["root", "metadata", "frameCount"], 1, "additionalProperties"),
    ]:
        expect_fault("meta", document, path, value, keyword)
    check(not VALIDATORS["meta"].is_valid({**small, "frameCount": 1}), "a mixture of the forms of metadata is valid")


VALIDATORS = make_validators()
with tempfile.TemporaryDirectory() as folder:
    test_saved(folder)
    sample = documents + "/imx477.json"
    for name in glob.glob(documents + "/*.json"):
        expect_valid("", load(name), name)
        expect_valid("tuning", load(name), name)

    # The sample with something in every list, and the same in the other forms.
    tuning = load(sample)
    tuning["tuning"]["AES_2"] = {}
    simulator = converted(folder, sample, "simulator.json", "convert", "--protocol", "simulator")
    plain = load(folder + "/meta0.json")
    small = load(folder + "/meta_simulator0.json")
    test_faults(tuning, simulator)
    test_readable(tuning, simulator)
    test_meta(plain, small)
    number = sweep("", tuning, "tuning") + sweep("", {"root": simulator["root"]}, "simulator")
    number += sweep("meta", plain, "meta") + sweep("meta", small, "simulator meta")
    check(number > 5000, f"only {number} faults were tried")

finish(f"{number} faults swept, ")

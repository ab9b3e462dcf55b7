"""Types, views and their lifetime, values that don't fit."""

import copy
import gc
import pickle

import numpy as np
import pytest

import qv_database as qv


def test_types_have_the_sizes_of_c():
    assert len(qv.categories()) == 58
    for category in qv.categories():
        assert category.dtype.itemsize == category.size
        for field in category.members:  # each inside its record, none over the one before it
            assert category.dtype.fields[field.name][1] == field.offset
        ends = [field.offset + category.dtype[field.name].itemsize for field in category.members]
        assert all(end <= field.offset for end, field in zip(ends, category.members[1:]))
        assert ends[-1] <= category.size
    for field in qv.fields():
        assert field.dtype.itemsize == field.width, field.path


def test_views_are_live_both_ways(sample, tmp_path):
    with qv.Database(sample) as db:
        sigma = db["A2DNR_5_2"].tables["sigma"]
        assert isinstance(sigma, np.ndarray) and sigma.shape == (20, 20) and sigma.dtype == np.float32
        before = float(sigma[0, 3])
        sigma[0] *= 1.5
        assert db.get("A2DNR_5_2.tables[0].sigma[3]") == db["A2DNR_5_2"].tables[0].sigma[3] == np.float32(before * 1.5)
        db["AE_3"].setPoint = 45.5
        db["A2DNR_5_2"]["tables"][1]["strength"][...] = 7
        db.set("sensor.CC[CT2850_100].ccMatrix", np.eye(3).ravel())
        db.save(tmp_path / "x.json")
        view = db["AE_3"].lowlightHdrGain
        view[0] = 99.0
        db.load(tmp_path / "x.json")
        assert view[0] == 1.0  # a load is seen through a view that was there before
    with qv.Database(tmp_path / "x.json") as other:
        assert other["AE_3"].setPoint == 45.5
        assert other["A2DNR_5_2"].tables[1].strength.tolist() == [7] * 20
        assert other.get("sensor.CC[CT2850_100].ccMatrix").tolist() == [1, 0, 0, 0, 1, 0, 0, 0, 1]


def test_texts_and_nested_records(sample):
    with qv.Database(sample) as db:
        assert db["CLB"].header.creator == "calibration bench 2"
        db["CLB"].header.creator = "bänch"
        assert db.get("header.creator") == "bänch"
        assert db["CLB"].sensor.cc["name"].tolist()[0] == db["CLB"].sensor.cc[0].name == "CT2850_100"
        db["IPT"].paths[1].rectangle = {"width": 640, "offset": {"x": 3}}
        assert db.get("IPT.paths[1].rectangle.offset.x") == 3
        assert db["IPT"].paths["rectangle"]["width"][1] == 640
        db["IPT"].paths[2].rectangle = db["IPT"].paths[1].rectangle
        assert db["IPT"].paths[2].rectangle.to_dict() == db["IPT"].paths[1].rectangle.to_dict()


USES = [
    lambda v: v[0], lambda v: v.__setitem__(0, 1), lambda v: v + 1, lambda v: v.__iadd__(1), lambda v: v.sum(),
    lambda v: np.sum(v), lambda v: np.concatenate([v, v]), lambda v: v.tolist(), lambda v: list(v), lambda v: v.copy(),
    lambda v: v.reshape(-1), lambda v: v.fill(1), lambda v: str(v), lambda v: copy.copy(v), lambda v: pickle.dumps(v),
    lambda v: v == v, lambda v: v.astype(int),
]


@pytest.mark.parametrize("use", USES)
def test_a_closed_database_is_not_used(use):
    db = qv.Database()
    view = db["A2DNR_5_2"].tables["strength"]
    parts = [view, view[0], view.T, view[0].reshape(4, 5), view[:, 2:5]]
    for part in parts:
        use(part.copy()), use(part)
    db.close()
    db.close()
    for part in parts:
        with pytest.raises(ValueError, match="closed"):
            use(part)
    assert "closed" in repr(view)


def test_memory_lives_as_long_as_anything_refers_to_it(sample):
    db = qv.Database(sample)
    view, record = db["AE_3"].lowlightHdrGain, db["AE_3"]
    plain = np.asarray(db["A2DNR_5_2"].tables["sigma"])
    expected = plain.copy()
    tables = db["A2DNR_5_2"].tables
    del db
    gc.collect()
    others = [qv.Database(sample) for _ in range(4)]  # would take freed memory again
    assert view[1] == 2.0 and record.setPoint == 40.8
    others[0].close()
    assert (plain == expected).all() and tables[0].strength[0] == 40
    uses = [lambda r: r.setPoint, lambda r: setattr(r, "setPoint", 1), lambda r: r.to_dict(), lambda r: np.asarray(r)]
    closed = others[1]["AE_3"]
    for use in uses:
        use(closed)
    others[1].close()
    for use in uses:
        with pytest.raises(ValueError, match="closed"):
            use(closed)
    with pytest.raises(ValueError, match="closed"):
        others[1].load(sample)


WRONG = [
    ("2DNR_5_2.strength", 300, OverflowError, r"2DNR_5_2\.strength takes 0 to 255, not 300"),
    ("2DNR_5_2.strength", 2**70, OverflowError, "0 to 255"),
    ("2DNR_5_2.strength", 1.5, ValueError, "whole"),
    ("2DNR_5_2.strength", "much", ValueError, "numbers"),
    ("AE_3.setPoint", float("nan"), ValueError, "finite"),
    ("AE_3.setPoint", 1e39, OverflowError, r"AE_3\.setPoint"),
    ("AE_3.enable", 2, OverflowError, "0 to 1"),
    ("AE_3.lowlightHdrGain", [1, 2, 3], ValueError, r"shape \(8,\)"),
    ("A2DNR_5_2.tables[3].strength[7]", 256, OverflowError, r"A2DNR_5_2\.tables\[3\]\.strength\[7\] takes 0 to 255"),
    ("A2DNR_5_2.tables[3].strength", [-1] + [0] * 19, OverflowError, "not -1"),
    ("A2DNR_5_2.tableNumber", 21, OverflowError, "0 to 20"),
    ("header.creator", "x" * 200, ValueError, "at most"),
    ("header.creator", "a\0b", ValueError, "zero"),
    ("header.creator", 5, ValueError, "text"),
    ("RAM.hBufferQueueFile", 1, ValueError, "belongs to the library"),
    ("IPT.paths[0]", {"rectangle": {"width": 5}, "enable": 7}, OverflowError, "enable"),
]


def test_what_does_not_fit_changes_nothing(sample):
    with qv.Database(sample) as db:
        before = {key: np.asarray(db[key]).tobytes() for key in db}
        for path, value, error, text in WRONG:
            with pytest.raises(error, match=text):
                db.set(path, value)
            assert {key: np.asarray(db[key]).tobytes() for key in db} == before, path


def test_in_place_arithmetic_does_not_wrap(sample):
    with qv.Database(sample) as db:
        strength = db["A2DNR_5_2"].tables["strength"]
        before = strength.copy()
        for change in (lambda: strength.__iadd__(250), lambda: strength.__isub__(250), lambda: np.add(strength, 250, out=strength),
                       lambda: strength.__imul__(1.01)):
            with pytest.raises((OverflowError, ValueError), match=r"tables\[\]\.strength takes"):
                change()
            assert (strength == before).all()
        strength += 1
        strength[0] //= 2
        assert strength[1, 0] == before[1, 0] + 1 and strength[0, 0] == (before[0, 0] + 1) // 2


def test_a_wrong_name_suggests_the_nearest(sample):
    with qv.Database(sample) as db:
        for use in (lambda: db["AE_3"].setPiont, lambda: db["AE_3"]["setPiont"], lambda: setattr(db["AE_3"], "setPiont", 1),
                    lambda: db.get("AE_3.setPiont")):
            with pytest.raises(AttributeError, match="setPoint"):
                use()
        with pytest.raises(KeyError, match="AE_3"):
            db["AE3"]
        with pytest.raises(AttributeError, match="sigma"):
            db["A2DNR_5_2"].tables["sgima"]
        with pytest.raises(AttributeError, match="CT2850_100"):
            db.get("sensor.CC[CT2850_10].name")
        assert not hasattr(db["AE_3"], "nothing") and "setPoint" in dir(db["AE_3"])


def test_dicts_hold_everything(sample):
    with qv.Database(sample) as db, qv.Database() as other:
        values = db.to_dict()
        assert values["A2DNR_5_2"]["tables"][0]["strength"][5] == 60
        other.from_dict(values)
        assert other.to_dict() == values
        with pytest.raises(OverflowError):
            other.from_dict({"AE_3": {"setPoint": 1.0}, "2DNR_5_2": {"strength": 256}})
        assert other.to_dict() == values


def test_records_show_themselves(sample):
    with qv.Database(sample) as db:
        text = repr(db["IPT"].paths[0].rectangle)
        assert text.splitlines()[1].split() == ["height", "1080", "px", "number", "of", "rows"]
        assert "<td>height</td><td>1080</td><td>px</td><td>number of rows</td>" in db["IPT"].paths[0].rectangle._repr_html_()
        for key in db:
            assert repr(db[key]) and db[key]._repr_html_()

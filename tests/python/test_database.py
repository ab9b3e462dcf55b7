"""Files, errors, traces, the catalog, the programs behind, the example."""

import logging
import os
import pickle
import subprocess
import sys
from pathlib import Path

import pytest

import qv_database as qv


def test_every_sample_survives_a_round_trip(sample, documents, tmp_path):
    with qv.Database(sample, documents / "imx477.ini") as db:
        values = db.to_dict()
        values["MISC"].pop("exportDate")  # of the save
        memory_alone = {"AGE", "DUMP", "MT", "MD", "3AI_2", "ISP", "RGT", "ST"}
        carried = {"x.json": set(values), "x.bin": set(values) - memory_alone, "x.ini": {"C_MODEL", "DVC", "IPT", "TM"},
                   "s.json": {"CLB"}}
        for name, keys in carried.items():
            db.save(tmp_path / name, protocol="simulator" if name == "s.json" else "standard")
            with qv.Database(tmp_path / name) as other:
                found = other.to_dict()
                found["MISC"].pop("exportDate")
                assert [key for key in keys if found[key] != values[key]] == []
                assert name == "x.ini" or other["2DNR_5_2"].strength == db["2DNR_5_2"].strength != 0
        with pytest.raises(ValueError, match="simulator"):
            db.save(tmp_path / "x.json", protocol="simulater")
        assert (tmp_path / "s.json").read_text().count('"classname"') == 19


def test_frame_metadata(tmp_path):
    (tmp_path / "a.json").write_text('{"root": {"metadata": {"frame_index": 5}}}')
    with qv.Database() as db:
        db.load_meta(tmp_path / "a.json")
        db.save_meta(os.fsencode(tmp_path / "b.json"))
        assert db["MT"].frameCount == 5
        db["2DNR_5_2"].strength = 7
        db.reset()
        assert db["2DNR_5_2"].strength == 0
    assert '"frameCount": 5,' in (tmp_path / "b.json").read_text()


def test_errors_tell_the_place(tmp_path):
    broken = tmp_path / "broken.json"
    broken.write_text('{\n  "tuning": {\n    "AE_3": }\n}\n')
    with qv.Database() as db:
        with pytest.raises(qv.DatabaseError) as caught:
            db.load(broken)
        error = caught.value
        assert (error.status, error.file, error.line, error.column) == (7, str(broken), 3, 13)
        assert str(error).startswith(f"{broken}:3:13: syntax error: expected") and str(error).endswith("(7)")
        assert str(pickle.loads(pickle.dumps(error))) == str(error)
        with pytest.raises(qv.DatabaseError, match=r"nowhere: file not found \(3\)") as caught:
            db.load(tmp_path / "nowhere")
        assert (caught.value.status, caught.value.line) == (3, None)
        (tmp_path / "short.bin").write_bytes(b"\0" * 1000)
        with pytest.raises(qv.DatabaseError, match="(6)"):
            db.load(tmp_path / "short.bin")
    with pytest.raises(qv.DatabaseError):
        qv.Database(tmp_path / "nowhere")


def test_traces_go_to_logging(caplog, tmp_path):
    (tmp_path / "x.json").write_text('{"version": {"versionNumber": "1.2"}, "tuning": {"AE_3": {"setPoint": 5}}}')
    caplog.set_level(logging.DEBUG, "qv_database")
    try:
        qv.trace_level(logging.DEBUG)
        with qv.Database(tmp_path / "x.json"):
            assert any("tolerance" in record.message for record in caplog.records if record.levelname == "DEBUG")
            assert any("1.2" in record.message for record in caplog.records if record.levelname == "WARNING")
        qv.trace_level(logging.CRITICAL)
        caplog.clear()
        with qv.Database(tmp_path / "x.json") as db, pytest.raises(qv.DatabaseError, match="file not found"):
            db.load(tmp_path / "nowhere")
        assert [record.levelname for record in caplog.records if record.levelname != "ERROR"] == []
    finally:
        qv.trace_level(logging.INFO)


def test_the_catalog_tells_what_fields_are():
    by_path = {field.path: field for field in qv.fields()}
    assert len(by_path) > 900
    gain = by_path["A2DNR_5_2.tables[].gain[]"]
    assert gain.role == "gain-axis" and gain.shape == (20,) and gain.dtype == "f4"
    assert by_path["IPT.paths[].rectangle.width"].unit == "px"
    assert by_path["A2DNR_5_2.tableNumber"].limits == (0, 20)
    assert by_path["ST.protocol"].values == {"Simulator": 0, "Standard": 1}
    assert qv.Document.SIMULATOR in qv.category("AE_3").documents
    with pytest.raises(qv.UnknownName, match="AE_3"):
        qv.fields("AE3")


def test_check_and_diff(sample, tmp_path):
    assert qv.check(sample) == []
    faulty = tmp_path / "faulty.json"
    faulty.write_text('{"tuning": {\n  "2DNR_5_2": {"strength": 300, "stength": 1}}}')
    findings = qv.check(faulty)
    assert [(finding.line, finding.path) for finding in findings] == [(2, "2DNR_5_2.strength"), (2, "2DNR_5_2.stength")]
    assert "strength" in findings[1].text and findings[0].severity == "error" and findings[0].column == 28
    with qv.Database(sample) as db:
        db["AE_3"].setPoint = 45.5
        db["A2DNR_5_2"].tables[1].strength[3] = 7
        db.save(tmp_path / "b.bin")
        db.save(tmp_path / "b.json")
    assert qv.diff(sample, sample) == []
    assert qv.diff(sample, tmp_path / "b.json") == [
        ("A2DNR_5_2.tables[1].strength[3]", 52, 7), ("AE_3.setPoint", 40.8, 45.5)]
    with pytest.raises(qv.DatabaseError, match="nowhere"):
        qv.diff(sample, tmp_path / "nowhere.json")
    with pytest.raises(qv.DatabaseError, match="nowhere"):
        qv.check(tmp_path / "nowhere.json")


def test_the_example_plots(sample, tmp_path):
    pytest.importorskip("matplotlib")
    program = Path(__file__).parents[2] / "examples" / "plot_gamma.py"
    done = subprocess.run([sys.executable, program, sample, sample, tmp_path / "x.png"], capture_output=True, check=False)
    assert done.returncode == 0, done.stderr.decode()
    assert (tmp_path / "x.png").read_bytes().startswith(b"\x89PNG") and (tmp_path / "x.png").stat().st_size > 20000

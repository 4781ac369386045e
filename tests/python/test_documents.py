"""The examples of docstrings and documents run as they show."""
import doctest
import inspect
import os
import re
import runpy

import numpy as np
import pytest

import sorvik
from conftest import ROOT
from nemohRun import write_results


def test_docstrings(examples):
    finder, runner = doctest.DocTestFinder(), doctest.DocTestRunner()
    for name in sorvik.__all__:
        # False: methods of the C++ part count as those of the class.
        for test in finder.find(getattr(sorvik, name), name, module=False, globs={"sorvik": sorvik, "np": np}):
            runner.run(test)
    assert runner.failures == 0 and runner.tries > 12


def test_page_of_python(examples):
    text = re.sub(r"^```.*$", "", (ROOT / "docs/python.md").read_text(), flags=re.M)
    runner = doctest.DocTestRunner()
    runner.run(doctest.DocTestParser().get_doctest(text, {}, "docs/python.md", None, 0))
    assert runner.failures == 0 and runner.tries > 10


def test_hints_have_every_member():
    hints = (ROOT / "python/sorvik/__init__.pyi").read_text()
    for name in filter(lambda name: inspect.isclass(getattr(sorvik, name)), sorvik.__all__):
        member = getattr(sorvik, name)
        public = {each for each in vars(member) if not each.startswith("_")}
        body = hints.split(f"class {name}", 1)[1].split("\nclass ", 1)[0]
        missing = {each for each in public if not re.search(rf"\b{each}[(:]", body)}
        assert not missing - {"get", "items", "keys", "values"}, name  # of Mapping


def test_example(examples, monkeypatch, capsys):
    pytest.importorskip("matplotlib")
    os.chdir("8-python")
    monkeypatch.setattr("sys.argv", ["hullAndSea.py"])
    runpy.run_path("hullAndSea.py", run_name="__main__")
    said = capsys.readouterr().out
    assert "".join(f"    {line}\n" for line in said.splitlines()) in (examples / "8-python/README.md").read_text()
    alone = (examples / "8-python/pythonRun.png").read_bytes()
    write_results(examples / "run")
    monkeypatch.setattr("sys.argv", ["hullAndSea.py", "../run"])
    assert len(runpy.run_path("hullAndSea.py")["axes"][2].get_lines()) == 1  # heave, and not pitch
    assert 20000 < len(alone) != (examples / "8-python/pythonRun.png").stat().st_size

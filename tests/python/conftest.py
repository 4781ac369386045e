"""Fixtures: a copy of the examples as the current folder, and the programs of the build."""
import os
import pathlib
import shutil
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]


@pytest.fixture
def examples(tmp_path, monkeypatch):
    place = shutil.copytree(ROOT / "examples", tmp_path / "examples")
    monkeypatch.chdir(place)
    return place


@pytest.fixture
def program():
    """program(NAME, ARGUMENT...): runs a program of the build and returns what it prints."""
    folder = pathlib.Path(os.environ["SORVIK_PROGRAMS"])

    def run(name, *arguments):
        return subprocess.run([folder / name, *map(str, arguments)], capture_output=True, text=True).stdout

    return run

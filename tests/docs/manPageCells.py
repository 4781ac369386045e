#!/usr/bin/env python3
"""manPageCells.py MANUAL PAGE: lists the table cells of the manual that its page lacks."""
import pathlib
import re
import sys

manual, page = (pathlib.Path(name).read_text() for name in sys.argv[1:])
NAMED = {"dq": '"', "aq": "'", "ga": "`", "ha": "^", "ti": "~", "rs": "\\", "at": "@", "S2": "²", "S3": "³"}


def plain(text):
    return re.sub(r"[\s*]+", "", text)


page = re.sub(r"\\f(\[\w*\]|.)|\\[:&]", "", page)
page = re.sub(r"\\\[(\w\w)\]|\\\((\w\w)", lambda m: NAMED[m[1] or m[2]], page).replace(r"\-", "-").replace(r"\e", "\\")
cells = {plain(cell) for cell in re.findall(r"T\{\n(.*?)\n?T\}", page, re.DOTALL)}
rows = [row for row in re.findall(r"(?m)^\| (.*) \|$", manual)]
wanted = [re.sub(r"\]\(#[^)]*\)|`|\[(?=[A-Z])", "", cell.replace(r"\|", "|")) for row in rows
          for cell in re.split(r"(?<!\\)\|", row)]
missing = [cell for cell in wanted if plain(cell) and plain(cell) not in cells]
print("\n".join(missing) or f"{len(wanted)} cells are there.")
sys.exit(bool(missing) or len(wanted) < 50)

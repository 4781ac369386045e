#!/usr/bin/env python3
"""installedDocuments.py CMAKE BUILD: installs the build; fails for links and paths of its documents that lead nowhere."""
import pathlib
import re
import subprocess
import sys
import tempfile

FOLDERS = r"(?:scripts|share|docs|examples|tools|build[\w-]*|src|tests|cmake|fuzz|bench|\.ci)"
with tempfile.TemporaryDirectory() as name:
    prefix = pathlib.Path(name)
    subprocess.run([sys.argv[1], "--install", sys.argv[2], "--prefix", name], check=True, stdout=subprocess.DEVNULL)
    readme, = prefix.rglob("doc/*/README.md")
    pages, found, lost = sorted(readme.parent.rglob("*.md")), 0, []
    for page in pages:
        text = page.read_text()
        places = [page.parent, readme.parent, prefix, *prefix.glob("include/*")]
        named = set(re.findall(rf"(?<![\w/.$-])(?:\.\./)*{FOLDERS}/[\w./-]*|\b\w+/\w+\.hpp", text))
        links = set(re.findall(r"\]\((?!https?:)([^)#]+)", text))
        lost += [f"{page.relative_to(prefix)}: {link}" for link in links if not (page.parent / link).exists()]
        lost += [f"{page.relative_to(prefix)}: {path}" for path in named
                 if not any((place / path).exists() for place in places)]
        found += len(named) + len(links)
print("\n".join(lost) or f"{found} links and paths of {len(pages)} documents are there.")
sys.exit(bool(lost) or found < 30)

#!/usr/bin/env python3
"""completeness.py SRC DOCUMENT...: lists the keys, flags and texts in SRC that the documents lack."""
import pathlib
import re
import sys

TOKEN = re.compile(r"""//[^\n]*|'(?:\\.|[^'\\\n])+'|((?:"(?:\\.|[^"\\\n])*"\s*)+)""")
# A user never sees these: processors, names of inputs without a name, a sentinel, an assertion.
SILENT = {"avx2", "avx512f", "/dev/null", "inputMap.txt", "sorvikInput.m", "hello",
          "a corner reaches into two cells along an axis"}
# Keys that the code joins from a prefix and a name.
BUILT = [("waves", r'prefix \+ "(\w+)"', "environment.wave."), ("waves", r'\{"(\w+)", (?:true|false)', "environment.wave."),
         ("waves", r'read\("(\w+)"', "environment."), ("nemoh", r'prefix \+ "(\w+)"', "hydroBodyB.bemInput.")]


def plain(text):
    return re.sub(r"[\s`\\]+", " ", text.replace(r"\t", " ")).strip(" /")


folder, *documents = map(pathlib.Path, sys.argv[1:])
told = "\n".join(d.read_text() for d in documents)
words, missing, found = plain(told), [], 0
for file in sorted(folder.rglob("*.[ch]pp")):
    # The manual of sorvikCheck is compared with its table; pages explain themselves.
    if {"check", "view", "commandLine.hpp", "programEntry.hpp"} & set(file.relative_to(folder).parts):
        continue
    code = re.sub(r"(?m)^#.*", "", file.read_text())
    texts = ["".join(re.findall(r'"((?:\\.|[^"\\\n])*)"', t)) for t in TOKEN.findall(code)]
    keys = [t for t in texts if re.fullmatch(r"(environment|simulation|bem)(\.\w+)+", t)]
    keys += [head + name for part, read, head in BUILT if part in file.relative_to(folder).parts for name in re.findall(read, code)]
    wanted = [f"| `{k}` |" for k in keys] + [f"`{t}" for t in texts if re.fullmatch(r"-\w+", t)]
    lines = [plain(line) for t in texts if t not in SILENT for line in t.split(r"\n") if re.search(r"\w{3}", line)]
    missing += [f"{file}: {w}" for w in wanted if w not in told] + [f"{file}: {t}" for t in lines if t not in words]
    found += len(wanted) + len(lines)
print("\n".join(missing) or f"{found} texts are documented.")
sys.exit(bool(missing) or found < 300)

#!/usr/bin/env python3
"""check_includes.py [--all | FILES...]: finds includes of this project's headers that are plainly wrong.

A header that no name of is used by the including file need not be included (a file's own header always may). A source includes its own
header first, so that every compilation proves the header complete in itself. Names are looked for as words, so that this errs on the quiet
side. Takes a second for everything; without arguments or with --all, that is what it does.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FOLDERS = ("platform", "include", "ipcparam", "jobedit", "tests", "benchmarks", "fuzz")
BASES = (ROOT / "platform", ROOT / "include", ROOT / "ipcparam" / "source", ROOT / "jobedit", ROOT)
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"(.*)$', re.MULTILINE)
WORD = re.compile(r"[A-Za-z_]\w*")
# What a header declares: types, aliases, macros, and names in front of "(", "=", ";", "{" or ",", which holds for functions, constants and enumerators.
DECLARED = re.compile(r"\b(?:class|struct|union|enum class|enum|using|concept|namespace)\s+(?:\w+_EXPORT\s+)?(\w+)|#\s*define\s+(\w+)|\b([A-Za-z_]\w*)\s*(?=[(=;{,\[])")


def without_comments(text):
    return re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.DOTALL)


def header_of(file, name):
    for base in (file.parent, *BASES):
        if (base / name).is_file():
            return (base / name).resolve()
    return None


def names_in(header, known={}):
    if header not in known:
        text = without_comments(header.read_text())
        own = {name for match in DECLARED.finditer(INCLUDE.sub("", text)) for name in match.groups() if name}
        # A header of includes and forwarded names alone stands for what it includes.
        included = [header_of(header, match.group(1)) for match in INCLUDE.finditer(text)]
        if not re.search(r"\b(?:class|struct|enum)\s+[^;{]*\{|\(|constexpr", INCLUDE.sub("", text)):
            for each in included:
                own |= names_in(each) if each and each != header else set()
        known[header] = own - {"TKE", "JOBEDIT", "Keys", "public", "private", "protected", "const", "override", "default", "explicit",
                               "inline", "static", "namespace", "Q_OBJECT", "if", "return", "parent", "QWidget", "QString", "void"}
    return known[header]


def faults_of(file):
    text = without_comments(file.read_text())
    words = set(WORD.findall(INCLUDE.sub("", text)))
    own = None
    for position, match in enumerate(INCLUDE.finditer(text)):
        header = header_of(file, match.group(1))
        if not header:
            continue
        if header.stem == file.stem and header.suffix == ".h":
            own = header
            if file.suffix == ".cpp" and position > 0:
                yield f'includes its own header "{match.group(1)}" after others'
        elif not names_in(header) & words:
            yield f'includes "{match.group(1)}" and uses nothing of it'
    if file.suffix == ".cpp" and not own and file.with_suffix(".h").is_file() and not file.name.startswith("test_"):
        yield "does not include its own header"


def main():
    arguments = [argument for argument in sys.argv[1:] if argument != "--all"]
    files = [Path(argument).resolve() for argument in arguments] or [
        path for folder in FOLDERS for path in sorted((ROOT / folder).rglob("*")) if path.suffix in (".h", ".cpp")]
    files = [path for path in files if path.suffix in (".h", ".cpp") and path.is_file()]
    faults = [f"{path.relative_to(ROOT)} {fault}" for path in files for fault in faults_of(path)]
    print("\n".join(faults) if faults else f"{len(files)} files include what they use")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

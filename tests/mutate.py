#!/usr/bin/env python3
"""Does the suite bite? Makes small faults in the sources, one at a time, and looks whether a test notices.

    tests/mutate.py --folder platform/value                  # 60 faults, drawn with seed 1
    tests/mutate.py --folder ipcparam/source/tuner --count 20 --seed 7
    tests/mutate.py --file platform/value/format.cpp --list  # only says what it would change

Each fault ("mutant") is one line changed: a condition negated, a comparison or an arithmetic sign swapped, a statement dropped, a number
one off, a literal or a flag changed, two neighbouring rows of a table swapped (in panels: their places in the grid). The target is built,
then the tests of the folder run, the nearest first, until one fails. The report names the share that was caught and each survivor with
file, line and change. A survivor is a question: is a promise untested, is the code needless, or does the change mean the same? Those of the
last kind are noted in the source: a line with "// same either way" is left alone. What does not compile does not count, nor does what the
build leaves unchanged byte by byte.

The work goes on in a copy of the tree under build/mutate, which is brought up to date first and kept, so that the next run starts warm.
The tree itself is never written. Faults are drawn evenly over the kinds, always the same ones for the same seed and sources.
Exit status: 0 when the share reaches --goal (85 %), 1 when it does not, 2 when nothing could be tried.
"""

import argparse
import filecmp
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent

# Which tests cover a folder, the quickest and nearest first. The longest prefix that matches counts.
TESTS = {
    "platform/application": ["application"],
    "platform/exciter": ["exciterparameter", "exciter"],
    "platform/jobmodel": ["jobmodel", "jobfile", "jobstructure", "rules", "exciterparameter"],
    "platform/value": ["value", "tree", "observable"],
    "platform/valuewidgets": ["valuewidgets", "entrywidgets", "fieldmarks"],
    "ipcparam/source": ["host", "samplejob"],
    "ipcparam/source/analysis": ["panelrows", "panels", "demodulator", "rules"],
    "ipcparam/source/exciter": ["panelrows", "exciter", "rules", "samplejob"],
    "ipcparam/source/framework": ["parameterdlg", "panelrows", "panels", "rules"],
    "ipcparam/source/recording": ["panelrows", "panels", "rules"],
    "ipcparam/source/scan": ["panelrows", "panels", "host", "rules"],
    "ipcparam/source/tuner": ["panelrows", "panels", "host", "rules"],
    "ipcparam/source/wavecom": ["panelrows", "wavecom"],
    "ipcparam/source/widgets": ["lists", "periodwidgets", "valuewidgets"],
}


@dataclass(frozen=True)
class Mutant:
    kind: str
    path: str  # below the root
    line: int  # from 1
    lines: tuple  # what replaces the lines from `line` on
    count: int = 1  # how many lines that are

    def text(self, before):
        old = " / ".join(each.strip() for each in before[self.line - 1 : self.line - 1 + self.count])
        new = " / ".join(each.strip() for each in self.lines) or "(nothing)"
        return f"{self.path}:{self.line}: {self.kind}\n    - {old}\n    + {new}"


COMPARISONS = {"==": ["!="], "!=": ["=="], "<": ["<=", ">="], ">": [">=", "<="], "<=": ["<", ">"], ">=": [">", "<"]}
PLACE = re.compile(r"\{\d+, \d+(?:, \d+)*\}")
QUOTED = re.compile(r'"(?:[^"\\]|\\.)*"')
ROW = re.compile(r"^\s*(?:\w+\.\w+\(\{\d+, \d+|\{.*\},?\s*(?://.*)?$)")
STATEMENT = re.compile(r"^\s+(?!\s|return\b|using\b|case\b|default\b|break;|else\b|const\b|auto\b|static|constexpr\b|typedef\b|goto\b)"
                       r"[\w:.>\-*()\[\]&\"', +]+(?:\([^{}]*\)|\s[+\-|&*]?=\s[^{}]+|\+\+|--);\s*(?://.*)?$")


def code_of(line):
    """The line with texts and comments blanked, so that nothing is found in them; same length."""
    blank = QUOTED.sub(lambda match: '"' + " " * (len(match.group()) - 2) + '"', line)
    comment = blank.find("//")
    return blank if comment < 0 else blank[:comment] + " " * (len(blank) - comment)


def mutants_of(path, lines):
    """All mutants of one file."""
    found = []

    def add(kind, number, new, count=1):
        if list(new) != lines[number : number + count]:
            found.append(Mutant(kind, path, number + 1, tuple(new), count))

    def replaced(number, start, end, text):
        return [lines[number][:start] + text + lines[number][end:]]

    depth = 0  # of braces: what is dropped stands inside of a function
    inside_comment = False
    for number, line in enumerate(lines):
        code = code_of(line)
        stripped = code.strip()
        inside_comment = inside_comment or stripped.startswith("/*")
        skip = inside_comment or not stripped or stripped.startswith("#") or "same either way" in line
        if "*/" in stripped:
            inside_comment = False
        if skip:
            continue
        # Conditions.
        match = re.search(r"\b(?:else )?(?:if|while) \((.*)\)\s*$", code)
        if match and code.count("(") == code.count(")") and ";" not in match.group(1) and not re.match(r"\s*(const |auto|\w+\* )", match.group(1)):
            start, end = match.span(1)
            add("condition negated", number, replaced(number, start, end, f"!({line[start:end]})"))
        match = re.match(r"^(\s+return )([^;?]*(?:==|!=|<|>|&&|\|\|| ! ?)[^;?]*);\s*$", code)
        if match and "<<" not in code and "<" not in code.replace("<=", "") and code.count("(") == code.count(")"):
            start, end = match.span(2)
            add("result negated", number, replaced(number, start, end, f"!({line[start:end]})"))
        # Operators.
        for match in re.finditer(r" (==|!=|<=|>=|<|>) ", code):
            for other in COMPARISONS[match.group(1)]:
                add("comparison swapped", number, replaced(number, match.start(1), match.end(1), other))
        for match in re.finditer(r" (&&|\|\|) ", code):
            add("and/or swapped", number, replaced(number, match.start(1), match.end(1), "||" if match.group(1) == "&&" else "&&"))
        for match in re.finditer(r"(?<=[\w)\]]) ([+\-*/]) (?=[\w(])", code):
            other = {"+": "-", "-": "+", "*": "/", "/": "*"}[match.group(1)]
            add("sign swapped", number, replaced(number, match.start(1), match.end(1), other))
        # Literals. Grid places are rows of a table: see below.
        places = [match.span() for match in PLACE.finditer(code)]
        for match in re.finditer(r"(?<![\w.'\"])\d+(?![\w.'])", code):
            if not any(start <= match.start() < end for start, end in places):
                add("one off", number, replaced(number, *match.span(), str(int(match.group()) + 1)))
        for match in re.finditer(r"\b(true|false)\b", code):
            add("flag changed", number, replaced(number, *match.span(), "false" if match.group() == "true" else "true"))
        for match in QUOTED.finditer(line):
            if len(match.group()) > 2 and code[match.start()] == '"' and "include" not in code and "Q_DECLARE" not in code:
                add("text changed", number, replaced(number, match.start(), match.start() + 1, '"~'))
        # Statements.
        if depth > 0 and STATEMENT.match(code) and code.count("(") == code.count(")") and starts_statement(lines, number):
            add("statement dropped", number, [re.match(r"\s*", line).group() + "{}\n"])
        # Rows: of a table as they stand, of a panel by their places, since the order of the calls says little there.
        if ROW.match(line) and number + 1 < len(lines) and ROW.match(lines[number + 1]):
            here, there = PLACE.search(line), PLACE.search(lines[number + 1])
            if here and there and "." in line.split("(")[0]:
                if line.split("(")[0].split(".")[0] == lines[number + 1].split("(")[0].split(".")[0]:
                    add("rows swapped", number,
                        [line[: here.start()] + there.group() + line[here.end() :],
                         lines[number + 1][: there.start()] + here.group() + lines[number + 1][there.end() :]], 2)
            elif line.rstrip().endswith(",") == lines[number + 1].rstrip().endswith(","):
                add("rows swapped", number, [lines[number + 1], line], 2)
        depth += code.count("{") - code.count("}")
        if stripped.startswith(("namespace", "}")) and depth <= 1 and "namespace" in stripped:
            depth = 0
    return found


def starts_statement(lines, number):
    """Whether the line before ended something, so that this one is a statement of its own."""
    for before in reversed(lines[:number]):
        code = code_of(before).strip()
        if code:
            return code[-1] in ";{}:" or bool(re.match(r"(?:else )?(?:if|for|while) \(.*\)$|else$", code))
    return False


def draw(mutants, count, seed):
    """`count` of them: the kinds in turn, so that the frequent ones do not crowd out the others, and no two in one line as long as it goes."""
    chance = random.Random(seed)
    pools = {}
    for mutant in mutants:
        pools.setdefault(mutant.kind, []).append(mutant)
    for pool in pools.values():
        chance.shuffle(pool)
    chosen, later, lines = [], [], set()
    while any(pools.values()) and len(chosen) < count:
        for kind in sorted(pools):
            if not pools[kind] or len(chosen) >= count:
                continue
            mutant = pools[kind].pop()
            if (mutant.path, mutant.line) in lines:
                later.append(mutant)
            else:
                lines.add((mutant.path, mutant.line))
                chosen.append(mutant)
    return chosen + later[: count - len(chosen)]


def run(command, limit, cwd=None):
    """The exit status, None when the time was up, and the output. Ends what it started, and its children."""
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", CCACHE_DISABLE="1")
    process = subprocess.Popen(command, cwd=cwd, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, env=environment, start_new_session=True)
    try:
        output, _ = process.communicate(timeout=limit)
        return process.returncode, output.decode(errors="replace")
    except subprocess.TimeoutExpired:
        return None, ""
    finally:
        if process.poll() is None:
            os.killpg(process.pid, signal.SIGKILL)
            process.communicate()


class Copy:
    """The copy of the tree, its build, and the faults in it."""

    def __init__(self, place, jobs):
        self.tree, self.build, self.jobs = place / "tree", place / "build", jobs

    def update(self):
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT, check=True,
                                capture_output=True).stdout.decode().split("\0")
        wanted = {name for name in listed if name and (ROOT / name).is_file()}
        for name in sorted(wanted):
            source, target = ROOT / name, self.tree / name
            if not target.is_file() or not filecmp.cmp(source, target, shallow=False):
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(source, target)
        for path in [path for path in self.tree.rglob("*") if path.is_file()]:
            if str(path.relative_to(self.tree)) not in wanted:
                path.unlink()
        if not (self.build / "build.ninja").is_file():
            subprocess.run(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                            "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DIPCPARAM_BENCHMARKS=OFF"], check=True, stdout=subprocess.DEVNULL)

    def make(self, targets, limit):
        return run(["ninja", "-C", str(self.build), f"-j{self.jobs}", *targets], limit)

    def program(self, test):
        return self.build / "tests" / f"test_{test}"

    def passes(self, test, limit):
        status, output = run([str(self.program(test))], limit, cwd=self.build / "tests")
        return status == 0, output

    def image(self, test):
        """The program without what changes with every build."""
        return self.program(test).read_bytes()


def tests_of(path):
    fitting = [folder for folder in TESTS if path.startswith(folder)]
    tests = TESTS[max(fitting, key=len)] if fitting else []
    return [test for test in tests if (ROOT / "tests" / f"test_{test}.cpp").is_file()]


def first_failure(output):
    match = re.search(r"^(?:FAIL!|QFATAL)\s*:\s*(\S+)", output, re.MULTILINE)
    return match.group(1) if match else "crash or exit status"


def try_mutant(copy, mutant, lines, limit, originals):
    """What became of it: (verdict, by what)."""
    target = copy.tree / mutant.path
    start = mutant.line - 1
    target.write_text("".join(lines[:start] + list(mutant.lines) + lines[start + mutant.count :]))
    try:
        changed = False
        for test in tests_of(mutant.path):
            status, _ = copy.make([f"test_{test}"], limit)
            if status is None:
                return "no build in time", test
            if status != 0:
                return "does not compile", ""
            if copy.image(test) == originals[test]:
                continue  # not linked in, or the same program
            changed = True
            good, output = copy.passes(test, limit)
            if not good:
                return "caught", f"{test}: {first_failure(output)}"
        return ("survived" if changed else "same program"), ""
    finally:
        target.write_text("".join(lines))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--folder", action="append", default=[], help="below which sources are changed; may be repeated")
    parser.add_argument("--file", action="append", default=[], help="a source that is changed; may be repeated")
    parser.add_argument("--count", type=int, default=60, help="how many faults (60)")
    parser.add_argument("--seed", type=int, default=1, help="which ones (1)")
    parser.add_argument("--headers", action="store_true", help="headers too, which build slowly")
    parser.add_argument("--limit", type=float, default=300, help="seconds per build and per test program (300)")
    parser.add_argument("--minutes", type=float, default=0, help="stop after so long and report what there is")
    parser.add_argument("--goal", type=float, default=85, help="share to be caught, in percent (85)")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1, help="of the build")
    parser.add_argument("--work", type=Path, default=ROOT / "build" / "mutate", help="where the copy is kept")
    parser.add_argument("--list", action="store_true", help="print the faults and try none")
    arguments = parser.parse_args()

    kinds = ("*.cpp", "*.h") if arguments.headers else ("*.cpp",)
    paths = sorted({path for folder in arguments.folder for kind in kinds for path in (ROOT / folder).rglob(kind)}
                   | {ROOT / name for name in arguments.file})
    sources = {str(path.relative_to(ROOT)): path.read_text().splitlines(keepends=True) for path in paths}
    mutants = [mutant for path, lines in sources.items() if tests_of(path) for mutant in mutants_of(path, lines)]
    chosen = draw(mutants, arguments.count, arguments.seed)
    if arguments.list:
        for mutant in chosen:
            print(mutant.text(sources[mutant.path]))
    if not chosen or arguments.list:
        print(f"{len(chosen)} of {len(mutants)} possible faults in {len(sources)} files")
        return 0 if chosen else 2

    copy = Copy(arguments.work.resolve(), arguments.jobs)
    copy.update()
    tests = sorted({test for mutant in chosen for test in tests_of(mutant.path)})
    print(f"{len(chosen)} of {len(mutants)} possible faults in {len(sources)} files; tests: {' '.join(tests)}", flush=True)
    status, output = copy.make([f"test_{test}" for test in tests], None)
    if status != 0:
        print(output[-4000:], "\nThe tree does not build.", file=sys.stderr)
        return 2
    for test in tests:
        good, output = copy.passes(test, arguments.limit)
        if not good:
            print(f"test_{test} fails without any fault: {first_failure(output)}", file=sys.stderr)
            return 2
    originals = {test: copy.image(test) for test in tests}

    verdicts, begin = [], time.monotonic()
    for number, mutant in enumerate(chosen, 1):
        if arguments.minutes and time.monotonic() - begin > 60 * arguments.minutes:
            print(f"Time is up after {number - 1} faults.")
            break
        verdict, by = try_mutant(copy, mutant, sources[mutant.path], arguments.limit, originals)
        verdicts.append((verdict, mutant))
        print(f"{number:3d} {verdict:16} {mutant.path}:{mutant.line} {mutant.kind}{'  ' + by if by else ''}", flush=True)

    survivors = [mutant for verdict, mutant in verdicts if verdict == "survived"]
    caught = sum(verdict == "caught" for verdict, _ in verdicts)
    counted = caught + len(survivors)
    if not counted:
        print("No fault could be tried.")
        return 2
    if survivors:
        print("\nSurvivors:")
        for mutant in survivors:
            print(mutant.text(sources[mutant.path]))
    share = 100 * caught / counted
    print(f"\n{caught} of {counted} caught: {share:.0f} %, goal {arguments.goal:.0f} %"
          f" ({len(verdicts) - counted} not counted, {(time.monotonic() - begin) / max(len(verdicts), 1):.0f} s each)")
    return 0 if share >= arguments.goal else 1


if __name__ == "__main__":
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit(130)

#!/usr/bin/env python3
"""check_static.py [PATTERN...]: runs clang-tidy (.clang-tidy says what for) and clazy (level 1) over platform, library and editor.

Clang's own warnings count too. Each finding is told once and fails. With patterns, only sources whose path holds one of them are looked at.
Many sources are read as one, since most of the time goes into Qt's headers; the directory build/static is configured for that.
"""

import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "static"
FOLDERS = ("platform", "ipcparam", "jobedit")
# Left out: moc's names, since nothing is connected by name; properties without a signal, since they are Designer's and no QML binds them.
CLAZY = "level1,no-fully-qualified-moc-types,no-qproperty-without-notify"
FINDING = re.compile(r"^(?P<place>\S+:\d+:\d+): (?P<kind>warning|error|fatal error): ")
CONTEXT = re.compile(r"^(\S+:\d+:\d+: note: |\s|In file included from )")


def configure():
    """Makes the compile database of large sources. No source includes what Qt's tools generate, so that nothing has to be built."""
    subprocess.run(["cmake", "-S", ROOT, "-B", BUILD, "-G", "Ninja", "-DCMAKE_CXX_COMPILER=clang++", "-DCMAKE_BUILD_TYPE=Debug",
                    "-DCMAKE_UNITY_BUILD=ON", "-DCMAKE_UNITY_BUILD_BATCH_SIZE=32", "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON",
                    "-DIPCPARAM_BENCHMARKS=OFF"], check=True, stdout=subprocess.DEVNULL)


def sources(patterns):
    """(source, directory, command) of each source, the largest first, so that no core waits at the end."""
    found = []
    for entry in json.loads((BUILD / "compile_commands.json").read_text()):
        file = Path(entry["file"])
        in_build = file.is_relative_to(BUILD)
        folder = file.relative_to(BUILD if in_build else ROOT).parts[0]
        if folder not in FOLDERS or file.name.startswith(("mocs_", "qrc_")):
            continue
        included = re.findall(r'#include "(.+)"', file.read_text()) if in_build else [str(file)]
        if not patterns or any(pattern in name for pattern in patterns for name in included):
            found.append((sum(os.path.getsize(name) for name in included), file, entry))
    found.sort(key=lambda each: -each[0])
    return [(file, entry["directory"], shlex.split(entry["command"])) for _, file, entry in found]


def tidy(file, directory, command):
    return subprocess.run(["clang-tidy", "--quiet", "-p", BUILD, file], cwd=directory, text=True, capture_output=True)


def clazy(file, directory, command):
    if Path(command[0]).name == "ccache":
        del command[0]
    end = command.index("-o")
    # Names of other sources within the same large one are no shadows; GCC looks for those that are.
    command = ["clazy", *command[1:end], "-Wno-shadow", "-fsyntax-only", *command[end + 2:]]
    return subprocess.run(command, cwd=directory, text=True, capture_output=True, env={**os.environ, "CLAZY_CHECKS": CLAZY})


def findings_of(result):
    """(place and text, all lines) of each finding."""
    current = None
    for line in (result.stdout + result.stderr).splitlines():
        if FINDING.match(line):
            if current:
                yield current[0], current
            current = [line]
        elif current and CONTEXT.match(line):
            current.append(line)
    if current:
        yield current[0], current


def main():
    subprocess.run([ROOT / "cmake" / "install_packages.sh", "packages_static.txt"], check=True)
    start = time.monotonic()
    configure()
    jobs = [(tool, *source) for source in sources(sys.argv[1:]) for tool in (tidy, clazy)]
    told = set()
    failed = not jobs
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for job, result in zip(jobs, pool.map(lambda each: each[0](*each[1:]), jobs)):
            findings = list(findings_of(result))
            for finding, lines in findings:
                if finding not in told:
                    told.add(finding)
                    print("\n".join(lines), flush=True)
            if result.returncode != 0 and not findings:
                print(f"{job[0].__name__} failed on {job[1]}:\n{result.stdout}{result.stderr}")
                failed = True
    print(f"{len(jobs)} runs in {time.monotonic() - start:.0f} s, {len(told)} findings" if jobs else "There is nothing to look at.")
    return 1 if told or failed else 0


if __name__ == "__main__":
    sys.exit(main())

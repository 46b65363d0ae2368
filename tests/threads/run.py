#!/usr/bin/python3
"""Runs a program that was built with the thread sanitizer; exit status 1 when it fails or races.

usage: run.py [--races] PROGRAM ARGUMENT...

Debian's Qt is not built with the sanitizer. The sanitizer does not see how Qt's own threads (the watchdog of Qt Test, its thread
pool) wait for each other, and reports them. A report counts unless both of its accesses are inside such a library; those are only
counted and printed.

--races  reversed: the program must be reported
"""

import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
REPORTED = 66  # the sanitizer's exit status


def accesses(report: str) -> list[str]:
    """The stacks of the racing accesses, without those of allocations and thread starts."""
    stacks = re.split(r"\n\s*\n", report)
    return [
        stack
        for stack in stacks
        if re.search(r"(read|write) of size|Mutex|Cycle", stack, re.IGNORECASE)
        and not re.match(r"\s*(Mutex|Location|Thread|As if)", stack)
    ]


def is_ours(report: str) -> bool:
    def module_that_acts(stack: str) -> str:
        frames = re.findall(r"^\s+#\d+ .*\((\S+)\+0x[0-9a-f]+\)", stack, re.MULTILINE)
        return next((module for module in frames if not module.startswith("libtsan")), "")

    found = accesses(report)
    return not found or not all(re.match(r"lib(Qt6|dbus|glib|c\.)", Path(module_that_acts(stack)).name) for stack in found)


def main() -> int:
    races = sys.argv[1] == "--races"
    command = sys.argv[2 if races else 1 :]
    with tempfile.TemporaryDirectory() as folder:
        options = f"log_path={folder}/report:exitcode={REPORTED}:second_deadlock_stack=1:history_size=4"
        done = subprocess.run(command, cwd=PROJECT, env=os.environ | {"TSAN_OPTIONS": options}, check=False)
        text = "".join(path.read_text() for path in sorted(Path(folder).iterdir()))
    reports = [part for part in text.split("=" * 18) if "WARNING: ThreadSanitizer" in part]
    ours = [report for report in reports if is_ours(report)]
    print(f"{len(reports)} reports, {len(ours)} of them about this project's code", flush=True)
    if done.returncode not in (0, REPORTED):
        print(f"the program ended with {done.returncode}", file=sys.stderr)
        return 1
    if races:
        return 0 if any("data race" in report for report in ours) else 1
    print("".join(ours), file=sys.stderr)
    print("".join(report.strip().splitlines()[-1] + "\n" for report in reports if report not in ours))
    return 1 if ours or (done.returncode == REPORTED and not reports) else 0


if __name__ == "__main__":
    sys.exit(main())

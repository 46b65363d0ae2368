#!/usr/bin/python3
"""Runs the unit tests of the sanitized build and prints which lines of src/ they ran.

usage: coverage.py [ROOM...] [--missing] [--no-run] [--json FILE]

ROOM       runs the unit tests of these rooms alone, and counts these rooms alone

--missing  also the numbers of the lines that no test ran
--no-run   take what the last run has left

A room is good when nine in ten of its lines were run; the rooms that only draw, start things or speak to a terminal have no
such goal (they are tested as whole programs). Exit status 1 when a room that has a goal misses it, or a test failed.
"""

import argparse
import json
import shutil
import subprocess
import sys
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[1]
sys.dont_write_bytecode = True
sys.path.insert(0, str(PROJECT / "tools"))

from moving import Moving  # noqa: E402

BUILD = PROJECT / "build" / "asan"
GOAL = 90.0  # per cent
LOGIC = ("base", "platform", "system", "control", "bridges", "circuits", "checks", "log", "terminal", "controller", "instance")


def run_tests(rooms: list[str]) -> bool:
    for counts in BUILD.rglob("*.gcda"):
        counts.unlink()
    chosen = ["-R", f"^unit/({'|'.join(rooms)})/"] if rooms else []
    return subprocess.run(["ctest", "--preset", "asan", "-L", "^unit$", *chosen], cwd=PROJECT, check=False).returncode == 0


def unmarked_copy() -> Path:
    """g++ marks the body of a coroutine as made by the compiler, and gcov leaves such functions out. So that they count, the
    mark is taken off, in a copy of what compiler and programs have noted."""
    copy = PROJECT / "build" / "coverage"
    shutil.rmtree(copy, ignore_errors=True)
    for counts in BUILD.rglob("*.gcda"):
        notes = counts.with_suffix(".gcno")
        target = copy / counts.relative_to(BUILD)
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(counts, target)
        target.with_suffix(".gcno").write_bytes(notes.read_bytes().replace(b".Frame.actor\0\1\0\0\0", b".Frame.actor\0\0\0\0\0"))
    return copy


def line_counts() -> dict[str, dict[int, bool]]:
    """For each file of src/, the lines that hold code and whether they were run."""
    done = subprocess.run(
        ["gcovr", "--root", PROJECT, "--filter", f"{PROJECT}/src/", "--exclude-throw-branches", "--json", "-j", "2", "."],
        cwd=unmarked_copy(),
        capture_output=True,
        text=True,
        check=True,
    )
    counts: dict[str, dict[int, bool]] = {}
    for file in json.loads(done.stdout)["files"]:
        counts[file["file"]] = {line["line_number"]: line["count"] > 0 for line in file["lines"] if not line["gcovr/noncode"]}
    return {name: lines for name, lines in counts.items() if lines}


def share(lines: list[bool]) -> float:
    return 100.0 * sum(lines) / len(lines) if lines else 100.0


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("rooms", nargs="*", metavar="ROOM")
    parser.add_argument("--missing", action="store_true")
    parser.add_argument("--no-run", action="store_true")
    parser.add_argument("--json", metavar="FILE")
    given = parser.parse_args()
    passed = given.no_run or run_tests(given.rooms)
    with Moving("Counting the lines that were run"):
        files = line_counts()
    rooms: dict[str, list[bool]] = {}
    for name, lines in files.items():
        if not given.rooms or name.split("/")[1] in given.rooms:
            rooms.setdefault(name.split("/")[1], []).extend(lines.values())
    short = []
    for room in sorted(rooms):
        percent = share(rooms[room])
        goal = f"goal {GOAL:.0f}" if room in LOGIC else ""
        print(f"{room:<24}{percent:7.1f} % of {len(rooms[room]):5} lines   {goal}")
        if room in LOGIC and percent < GOAL:
            short.append(room)
        for name, lines in sorted(files.items()):
            if name.split("/")[1] == room and share(list(lines.values())) < GOAL:
                print(f"    {name[4:]:<40}{share(list(lines.values())):7.1f} %")
                if given.missing:
                    print("        " + " ".join(str(number) for number, run in sorted(lines.items()) if not run))
    print(f"{'together':<24}{share([run for lines in rooms.values() for run in lines]):7.1f} %")
    if given.json:
        figures = {room: round(share(lines), 1) for room, lines in rooms.items()}
        Path(given.json).write_text(json.dumps(figures, indent=1) + "\n")
    if short:
        print("below the goal: " + ", ".join(short), file=sys.stderr)
    return 0 if passed and not short else 1


if __name__ == "__main__":
    sys.exit(main())

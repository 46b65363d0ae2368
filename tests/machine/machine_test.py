#!/usr/bin/python3
"""Boots a whole Debian 12 in the private Tor network and tests the package on it: ./build.sh machine-test

    machine_test.py PACKAGE.deb [WORD...]    the cases whose names contain one of the words; without words all cases

Prints a table, and writes it to build/machine/table.md beside the pictures. Status 77, with the reason in one line, where it cannot
run; 1 when a case failed; 2 when one could not be tried, so that it does not count as a pass.
"""

import os
import sys
import time
import traceback
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

import base  # noqa: E402
from base import Moving  # noqa: E402
from boot import program  # noqa: E402
from veldlab.lab import Lab, LabUnavailable  # noqa: E402

import case_desktop  # noqa: E402
import case_firewall  # noqa: E402
import case_install  # noqa: E402
import case_network  # noqa: E402
import case_readme  # noqa: E402
import case_sleep  # noqa: E402
import case_tor  # noqa: E402
import case_trouble  # noqa: E402
import case_windows  # noqa: E402
from stage import Broken, CannotRun, Stage  # noqa: E402

FAILED, UNTRIED, SKIPPED = 1, 2, 77
CASES = (
    case_desktop.CASES
    | case_windows.CASES
    | case_tor.CASES
    | case_network.CASES
    | case_firewall.CASES
    | case_trouble.CASES
    | case_sleep.CASES
    | case_install.CASES
    | case_readme.CASES
)


_CANNOT = "cannot run here"


def attempt(stage: Stage, name: str, case) -> tuple[str, str, float]:
    stage.note = ""
    started = time.monotonic()
    try:
        with Moving(name):
            case(stage)
        result = "passed" + (f": {stage.note}" if stage.note else "")
    except CannotRun as reason:
        result = f"{_CANNOT}: {reason}"
    except Broken as reason:
        traceback.print_exc()
        result = f"FAILED: {reason}"
    except Exception as error:  # noqa: BLE001 whatever it is, the next case is to run
        traceback.print_exc()
        result = f"FAILED: {type(error).__name__}: {(str(error).splitlines() or [''])[0]}"
    seconds = time.monotonic() - started
    print(f"{name}: {result} ({seconds:.0f} s)", flush=True)
    return name, result, seconds


def table(rows: list[tuple[str, str, float]]) -> str:
    lines = ["| case | result | seconds |", "|---|---|---|"]
    return "\n".join(lines + [f"| {name} | {result} | {seconds:.0f} |" for name, result, seconds in rows]) + "\n"


def main() -> int:
    if os.geteuid() != 0:
        print("The machine test cannot run here: a machine is booted by root; run sudo ./build.sh machine-test")
        return SKIPPED
    package, words = Path(sys.argv[1]).resolve(), [word.lower() for word in sys.argv[2:]]
    lab = Lab()
    try:
        program()
        tree = base.prepare(package, lambda line: print(line, flush=True))
        started = time.monotonic()
        with Moving("Starting the private Tor network"):
            lab.up()
    except (base.Unprepared, LabUnavailable) as reason:
        print(f"The machine test cannot run here: {reason}")
        return SKIPPED
    try:
        stage = Stage(lab, tree, package)
        with stage.leases:
            rows = [attempt(stage, "apt install ./veldmark.deb, on the running machine", case_install.install)]
            for name, case in CASES.items():
                if not words or any(word in name.lower() for word in words):
                    rows.append(attempt(stage, name, case))
    finally:
        lab.down()
    text = table(rows)
    (base.FOLDER / "table.md").write_text(text)
    failed = sum(result.startswith("FAILED") for _, result, _ in rows)
    untried = sum(result.startswith(_CANNOT) for _, result, _ in rows)
    print(
        f"\n{text}\n{len(rows)} cases, {failed} failed, {untried} could not be tried here, "
        f"in {(time.monotonic() - started) / 60:.1f} minutes; pictures in {base.FOLDER}/pictures"
    )
    return FAILED if failed else UNTRIED if untried else 0


if __name__ == "__main__":
    sys.exit(main())

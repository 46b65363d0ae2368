#!/usr/bin/python3
"""Prints the benchmarks as a table, or with --json as one JSON object. `--only WORD` runs the groups whose name contains WORD.

    parsing     framing and reading circuit-status lines against python3-stem, the log against a short Python program, interleaved
    helper      the helper's connect and disconnect in strict mode
    killswitch  the time to load the rules, and their cost compared with none, interleaved
    namespace   Tor on the host against Tor in a network namespace of its own, what each costs a packet, interleaved
    download    SOCKS downloads through Tor with the kill switch and without, interleaved
    identities  the cost of separate applications for a connection, interleaved; the program that watches groups
    prompt      the time that terminal mode's hook adds to a shell's prompt
    desktop     redrawing the windows; first frame, memory and processor time of the application against a bare tray program
    connect     from the call of connect() to connected, and disconnect, against a bare tor with the same torrc, interleaved
    discovery   the search for bridge programs in a folder of 12,000 files against find, interleaved
    service     memory, processor time and wake-ups of veldmarkctl run, connected, against nyx

A group that needs Tor has a private Tor network, which ends with it. Everything runs on this machine in its own network namespaces.
Exit status 77 where namespaces are not permitted. --quick measures everything once, to check that it works, and all groups in one
Tor network: the figures of such a round mean nothing.
"""

import argparse
import contextlib
import importlib
import json
import os
import platform
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from figures import PROGRAMS, Figures, Rounds  # noqa: E402  (it says where the lab's modules are)
from moving import Moving  # noqa: E402
from veldlab.lab import Lab, LabUnavailable  # noqa: E402
from veldlab.product import Product  # noqa: E402

GROUPS = (
    "parsing",
    "helper",
    "killswitch",
    "namespace",
    "download",
    "identities",
    "prompt",
    "desktop",
    "connect",
    "discovery",
    "service",
)
QUICK_IDLE_SECONDS = 2.0


# What a group may leave in the home of the host's root: settings of the program, and start-up files of shells.
FORGET = "rm -rf /root/.config /root/.local /root/.cache /root/.bashrc /root/.zshrc"


def run_alone(group, figures: Figures, rounds: Rounds) -> None:
    if hasattr(group, "run"):
        group.run(figures, rounds)


def run_in(lab: Lab, group, figures: Figures, rounds: Rounds) -> None:
    if hasattr(group, "run_in_lab"):
        group.run_in_lab(figures, rounds, lab, Product(lab, PROGRAMS))


def run_apart(names: list[str], figures: Figures, rounds: Rounds) -> None:
    for name in names:
        print(name, flush=True)
        group = importlib.import_module(f"groups.{name}")
        with Moving(name):
            run_alone(group, figures, rounds)
            if hasattr(group, "run_in_lab"):
                with Lab() as lab:
                    run_in(lab, group, figures, rounds)


def run_together(names: list[str], figures: Figures, rounds: Rounds) -> None:
    """What needs no lab runs while the one lab of all groups starts."""
    groups = {name: importlib.import_module(f"groups.{name}") for name in names}

    def alone() -> None:
        for name, group in groups.items():
            with Moving(name):
                run_alone(group, figures, rounds)

    with ThreadPoolExecutor(1) as pool, contextlib.ExitStack() as stack:
        others = pool.submit(alone)
        if any(hasattr(group, "run_in_lab") for group in groups.values()):
            lab = stack.enter_context(Lab())
        others.result()
        for name, group in groups.items():
            if hasattr(group, "run_in_lab"):
                print(name, flush=True)
                with Moving(name):
                    run_in(lab, group, figures, rounds)
                lab.host.run(["sh", "-c", FORGET], check=True)


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--json", metavar="FILE", help="also write the figures there")
    parser.add_argument("--only", default="", metavar="WORD")
    parser.add_argument("--idle", type=float, default=300, metavar="SECONDS", help="how long what does nothing is watched")
    parser.add_argument("--quick", action="store_true", help="measure everything once")
    arguments = parser.parse_args()
    groups = [name for name in GROUPS if arguments.only in name]
    if not groups:
        parser.error(f"no group has \"{arguments.only}\" in its name; there are {', '.join(GROUPS)}")
    rounds = Rounds(QUICK_IDLE_SECONDS if arguments.quick else arguments.idle, arguments.quick)
    figures = Figures(judges=not arguments.quick)
    print(
        f"{platform.machine()}, {os.cpu_count()} processors, {platform.system()} {platform.release()}, load {os.getloadavg()[0]:.1f}"
    )
    try:
        (run_together if arguments.quick else run_apart)(groups, figures, rounds)
    except LabUnavailable as error:
        print(error, file=sys.stderr)
        return 77
    if arguments.json:
        Path(arguments.json).write_text(json.dumps(figures.rows, indent=2) + "\n")
    if figures.missed and not arguments.quick:
        print("missed: " + "; ".join(name.strip() for name in figures.missed))
    return 0


if __name__ == "__main__":
    sys.exit(main())

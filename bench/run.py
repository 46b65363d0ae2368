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
    discovery   the search for transport programs in a folder of 12,000 files against find, interleaved
    service     memory, processor time and wake-ups of veldmarkctl run, connected, against nyx

A group that needs Tor has a private Tor network, which ends with it. Everything runs on this machine in its own network namespaces.
Exit status 77 where namespaces are not permitted. --quick measures everything once, to check that it works.
"""

import argparse
import importlib
import json
import os
import platform
import sys
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


def run_group(name: str, figures: Figures, rounds: Rounds) -> None:
    group = importlib.import_module(f"groups.{name}")
    if hasattr(group, "run"):
        group.run(figures, rounds)
    if hasattr(group, "run_in_lab"):
        with Lab() as lab:
            group.run_in_lab(figures, rounds, lab, Product(lab, PROGRAMS))


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
        for name in groups:
            print(name, flush=True)
            with Moving(name):
                run_group(name, figures, rounds)
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

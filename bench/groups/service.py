"""The resources of the idle service."""

import json
from pathlib import Path

from figures import PROGRAMS, Figures, Rounds

PROBE = Path(__file__).with_name("service_probe.py")


def run_in_lab(figures: Figures, rounds: Rounds, lab, product) -> None:
    output = lab.host.run(
        ["/usr/bin/python3", "-B", str(PROBE), str(PROGRAMS), str(rounds.idle_seconds)],
        check=True,
        timeout=rounds.idle_seconds + 300,
    ).stdout
    found = json.loads(output)
    nyx, ours = found["nyx"], found["run"]
    for one, what in ((nyx, "nyx, on a terminal"), (ours, "veldmarkctl run, connected")):
        figures.add(f"{what}: resident memory", one["rssMB"], "MB", f"{one['pssMB']:.1f} proportional, {one['ownMB']:.1f} its own")
        figures.add("  processor, share of one core", one["cpuPercent"], "%", f"over {rounds.idle_seconds:.0f} s")
        figures.add("  wake-ups each second", one["wakesPerSecond"])
    for key, what in (("rssMB", "memory"), ("cpuPercent", "processor"), ("wakesPerSecond", "wake-ups")):
        if nyx[key]:
            figures.add(f"veldmarkctl run: {what}, share of nyx's", ours[key] / nyx[key], most=1)

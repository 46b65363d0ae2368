"""The windows, and the application compared with a bare tray program."""

import json
import time
from pathlib import Path

from figures import BENCHES, PROGRAMS, Figures, Rounds, fixed_time, measured, middle, spread

PROBE = Path(__file__).with_name("desktop_probe.py")


def run(figures: Figures, rounds: Rounds) -> None:
    graph, fixed, log = measured("GraphBench"), fixed_time(rounds, time.process_time), measured("LogWindowBench")
    figures.add("a fixed computation in Python (processor time)", fixed, "ms")
    for count, most in (("30", 2), ("300", 7.5)):
        figures.add(
            f"graph of {count} circuits redrawn (processor time)",
            graph[f"{count}lightGraphMs"],
            "ms",
            f"of {graph['repetitions']}; dark {graph[f'{count}darkGraphMs']:.2f}",
        )
        figures.add("  in fixed computations", graph[f"{count}lightGraphMs"] / fixed, most=most)
        figures.add(
            "  the whole window, after news from Tor",
            graph[f"{count}lightWindowMs"],
            "ms",
            f"dark {graph[f'{count}darkWindowMs']:.2f}",
        )
    for name, words in (("added", "a line added"), ("replaced", "every line replaced"), ("scrolled", "scrolled")):
        figures.add(
            f"log of 3,000 lines drawn, {words}",
            log[f"{name}Ms"],
            "ms",
            f"of {log['repetitions']}, at most {log[f'{name}MostMs']:.2f}",
        )
        figures.add("  in fixed computations", log[f"{name}Ms"] / fixed, most=4)


def run_in_lab(figures: Figures, rounds: Rounds, lab, product) -> None:
    pairs = rounds.of(8)
    output = lab.host.run(
        ["/usr/bin/python3", "-B", str(PROBE), str(PROGRAMS), str(BENCHES), str(pairs), str(rounds.idle_seconds)],
        env={"LANG": "C.UTF-8"},
        check=True,
        timeout=rounds.idle_seconds + 600,
    ).stdout
    found = json.loads(output)
    frames, bare, ours = found["firstFrameMs"], found["idle"]["bare"], found["idle"]["veldmark"]
    figures.add("first frame of the bare tray program", middle(frames["bare"]), "ms", spread(frames["bare"]))
    figures.add("first frame of veldmark", middle(frames["veldmark"]), "ms", spread(frames["veldmark"]))
    figures.add("  in bare programs", middle(frames["veldmark"]) / middle(frames["bare"]), "", most=2.2)
    for one, what in ((bare, "bare tray program, hidden"), (ours, "veldmark, hidden and connected")):
        figures.add(f"{what}: resident memory", one["rssMB"], "MB", f"{one['pssMB']:.1f} proportional, {one['ownMB']:.1f} its own")
    figures.add("  in bare programs", ours["rssMB"] / bare["rssMB"], "", most=1.5)
    for one, what, most in ((bare, "bare tray program", None), (ours, "veldmark", 0.3)):
        figures.add(f"{what}: processor, share of one core", one["cpuPercent"], "%", f"over {rounds.idle_seconds:.0f} s", most=most)
        figures.add("  wake-ups each second", one["wakesPerSecond"])

"""Reading Tor's replies and log, by Veldmark and by other programs."""

import tempfile
from pathlib import Path

from figures import Figures, Rounds, fixed_computation, measured, middle, spread
from groups.log_yardstick import log_file, read_with_python
from groups.stem_yardstick import read_with_stem


def run(figures: Figures, rounds: Rounds) -> None:
    framed, parsed, stem, graph, fixed, ours, slowest, python = ([] for _ in range(8))
    with tempfile.TemporaryDirectory() as folder:
        paths = [f"{folder}/{name}" for name in ("start.out", "notices.log", "launcher.out")]
        for path in paths:
            Path(path).write_bytes(log_file())
        for _ in range(rounds.of(8)):
            framed.append(measured("FramingBench")["median_ms"])
            circuits = measured("CircuitBench")
            parsed.append(circuits["parseMedianMs"])
            graph.append(circuits["graphMedianMs"])
            fixed.append(fixed_computation())
            stem.append(read_with_stem() * 1000)
            log = measured("LogBench", "5")
            ours.append(log["torLinesMedianMs"])
            slowest.append(max(value for key, value in log.items() if key.endswith("MedianMs")))
            python.append(read_with_python(paths))
    together = [one + other for one, other in zip(framed, parsed)]
    figures.add("10,000 circuit-status lines: framed", middle(framed), "ms", spread(framed))
    figures.add("10,000 circuit-status lines: parsed", middle(parsed), "ms", spread(parsed))
    figures.add("the same with python3-stem", middle(stem), "ms", spread(stem))
    times = [theirs / mine for theirs, mine in zip(stem, together)]
    figures.add("  framed and read: times as fast as python3-stem", middle(times), "", spread(times), least=30)
    figures.add("graph of 1,000 circuits: build and layout", middle(graph), "ms", spread(graph))
    figures.add("a fixed computation in Python", middle(fixed), "ms", spread(fixed))
    shares = [mine / yardstick for mine, yardstick in zip(graph, fixed)]
    figures.add("  the graph, share of that", middle(shares), "", spread(shares), most=1)
    figures.add("Tor's log, 3 x 1 MB: read, merged and parsed", middle(ours), "ms", spread(ours))
    figures.add("  the slowest kind of content", middle(slowest), "ms", spread(slowest))
    figures.add("the same log with a short Python program", middle(python), "ms", spread(python))
    figures.add("Tor's log: one look when nothing has changed", log["pollMedianUs"] / 1000, "ms", "three stat calls")

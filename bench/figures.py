"""Shared by the groups: a figure with its goal, the number of measurements, and the machine."""

import dataclasses
import json
import statistics
import subprocess
import sys
import time
from collections.abc import Callable
from pathlib import Path

sys.dont_write_bytecode = True
PROJECT = Path(__file__).resolve().parents[1]
sys.path[:0] = [str(PROJECT / "tests" / "lab"), str(PROJECT / "tools")]

from moving import say  # noqa: E402

PROGRAMS = PROJECT / "build" / "bin"
BENCHES = PROJECT / "build" / "dev" / "bench"
RUN_FOLDER = "/var/lib/veldmark/run"
FIXED_STEPS = 20_000


@dataclasses.dataclass
class Rounds:
    """The numbers of measurements. A quick run only checks that everything works; its figures mean nothing."""

    idle_seconds: float
    quick: bool

    def of(self, usual: int) -> int:
        return 1 if self.quick else usual


class Figures:
    """The table, printed row by row. A goal is a maximum or a minimum, of a share of a yardstick where it would be a time. A value
    without a goal is a yardstick, or explains another value."""

    def __init__(self, judges: bool):
        self.rows: list[dict] = []
        self.missed: list[str] = []
        self._judges = judges

    def add(
        self, name: str, value: float, unit: str = "", note: str = "", *, most: float | None = None, least: float | None = None
    ) -> None:
        goal = f"at most {most:g}" if most is not None else f"at least {least:g}" if least is not None else ""
        met = (most is None or value <= most) and (least is None or value >= least)
        self.rows.append(
            {"name": name, "value": round(value, 3), "unit": unit, "goal": goal, "met": met if goal else None, "note": note}
        )
        if goal and not met:
            self.missed.append(name)
        verdict = "" if not goal or not self._judges else "met" if met else "MISSED"
        say(f"  {name:<58}{value:>9.2f} {unit:<5} {goal:<15} {verdict:<7} {note}".rstrip())


def middle(values: list[float]) -> float:
    return statistics.median(values)


def spread(values: list[float]) -> str:
    return f"of {len(values)}, {min(values):.2f} to {max(values):.2f}"


def fixed_computation(clock: Callable[[], float] = time.perf_counter) -> float:
    """The milliseconds of a fixed computation, the same on every machine: making and finding small objects."""
    start = clock()
    relays = {f"relay{number}": [number] for number in range(FIXED_STEPS)}
    assert sum(relays[f"relay{number}"][0] for number in range(FIXED_STEPS)) == FIXED_STEPS * (FIXED_STEPS - 1) // 2
    return (clock() - start) * 1000


def fixed_time(rounds: Rounds, clock: Callable[[], float] = time.perf_counter) -> float:
    """The yardstick of what no other program does: how fast this machine is now, by the same kind of time."""
    return middle([fixed_computation(clock) for _ in range(rounds.of(8))])


def measured(program: str, *arguments: str) -> dict:
    """The output of a C++ benchmark."""
    return json.loads(subprocess.run([BENCHES / program, *arguments], capture_output=True, text=True, check=True).stdout)


def hashed_password(lab) -> str:
    return lab.host.run(["tor", "--quiet", "--hash-password", "bench"], check=True).stdout.split()[-1]

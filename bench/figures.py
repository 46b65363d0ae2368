"""What the groups share: a figure with its goal, how often it is measured, and the machine that it is measured on."""

import dataclasses
import json
import statistics
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True
PROJECT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(PROJECT / "tests" / "lab"))

PROGRAMS = PROJECT / "build" / "bin"
BENCHES = PROJECT / "build" / "dev" / "bench"
RUN_FOLDER = "/var/lib/veldmark/run"


@dataclasses.dataclass
class Rounds:
    """How often things are measured. A quick run tries that everything works; its figures mean nothing."""

    idle_seconds: float
    quick: bool

    def of(self, usual: int) -> int:
        return 1 if self.quick else usual


class Figures:
    """The table, printed row by row. A goal is the most or the least that a value may be; a value without one is a yardstick, or tells how
    another came about."""

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
        print(f"  {name:<58}{value:>9.2f} {unit:<5} {goal:<15} {verdict:<7} {note}".rstrip(), flush=True)


def middle(values: list[float]) -> float:
    return statistics.median(values)


def spread(values: list[float]) -> str:
    return f"of {len(values)}, {min(values):.2f} to {max(values):.2f}"


def measured(program: str, *arguments: str) -> dict:
    """What one of the C++ benchmarks says."""
    return json.loads(subprocess.run([BENCHES / program, *arguments], capture_output=True, text=True, check=True).stdout)


def hashed_password(lab) -> str:
    return lab.host.run(["tor", "--quiet", "--hash-password", "bench"], check=True).stdout.split()[-1]

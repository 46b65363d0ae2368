#!/usr/bin/python3
"""Runs the program for a long time in the private Tor network. It must use as much memory at the end as at the start.

usage: soak.py [--quick] [--cycles N] [--minutes M] [--hours H] [--rounds R] [--seed N] [--programs FOLDER] [--json FILE]

cycles  connects and disconnects one running instance N times (500), in both modes by turns, or as often as M minutes (60) permit.
        In one of ten cycles Tor is killed while connected. In three of four cycles the disconnect comes while the new
        connection's checks run. The host must then be as before.
hours   keeps a session for H hours (2) of a clock that runs sixty times as fast, with circuits and log shown. Tor is
        killed at random, and its log grows.
rounds  opens and closes the circuits, the log and the settings R times (60) in the desktop application, connected, on an X
        server of its own. In one of ten rounds Tor is killed while they are open, and the application connects again.

Memory, descriptors and threads are read along the way. The median of the last readings is compared with that of the first readings
after a warm-up. The warm-up is a tenth of the cycles and of the rounds. For the hours it lasts until the kept log and the part of
its file that is read have reached their limits, and Tor has died and been started again. Exit status 1 when something has grown, 77
where no lab can run.

--quick  a few cycles, some minutes of a clock that runs ten times as fast, with Tor left alone, and one round. It shows that all of
         this still works, and judges no memory.
"""

import argparse
import json
import os
import random
import statistics
import subprocess
import sys
import threading
import time
from contextlib import ExitStack
from pathlib import Path

sys.dont_write_bytecode = True
sys.path[:0] = [str(Path(__file__).resolve().parent), str(Path(__file__).resolve().parents[2] / "tools")]

from moving import Moving, say  # noqa: E402
from veldlab import desktop as person  # noqa: E402
from veldlab.lab import PROJECT, Lab, LabUnavailable  # noqa: E402
from veldlab.product import Product, Session, difference, is_probed  # noqa: E402

FAST_FORWARD = os.environ.get("VELDMARK_FAST_FORWARD", str(PROJECT / "build" / "dev" / "tests" / "FastForward"))
KINDS = ("memoryKiB", "descriptors", "threads")
HEAP = "heapKiB"  # the memory in use, where the process reports it
# The allocator keeps some freed memory, so memory may differ by this much. A leak of 10 KiB in each cycle or minute would exceed it
# by far. Descriptors and threads may not differ.
MEMORY_SLACK = 0.05
WARM_UP = 0.1  # the share of the cycles
COMPARED = 0.2  # the share of the readings, at both ends
FULL_LOG = {"logLines": 3000, "logBytes": 1000000}  # the limits of src/log/TorLog.h
WINDOWS = ("Circuits", "Tor Log", "Settings")
LEAST_READINGS = 10  # after the warm-up

# Runs on the host: the use of a process, found by its program's path and first argument; Tor's process ids.
TAKEN = """
for p in /proc/[0-9]*; do
  [ "$(readlink "$p/exe")" = "$1" ] && tr '\\0' ' ' <"$p/cmdline" | grep -q -- " $2" || continue
  echo "$(awk '/^VmRSS/ { print $2 }' "$p/status") $(ls "$p/fd" | wc -l) $(ls "$p/task" | wc -l)"
done
"""
TOR_PIDS = """
uid=$(id -u _veldmark)
for p in /proc/[0-9]*; do
  [ "$(readlink "$p/exe")" = /usr/bin/tor ] && [ "$(stat -c %u "$p")" = "$uid" ] && echo "${p#/proc/}"
done
true
"""
GROW_LOG = """
line="Nov 16 00:41:07.123 [notice] A line of the soak, one of many, about as long as those that Tor writes."
some=$(for i in 1 2 3 4 5 6 7 8 9 10; do echo "$line"; done)
many=$(i=0; while [ $((i += 1)) -le 1100 ]; do echo "$some"; done)
while sleep 0.05; do
  if size=$(stat -c %s "$1" 2>/dev/null); then
    if [ "$size" -lt 1000000 ]; then echo "$many" >>"$1"; else echo "$some" >>"$1"; fi
  fi
done
"""


def kill_tor(lab: Lab) -> bool:
    """Kills Tor; returns whether there was a process to kill."""
    pids = lab.host.run(["sh", "-c", TOR_PIDS], check=True).stdout.split()
    return bool(pids) and lab.host.run(["kill", "-9", *pids]).returncode == 0


def taken(lab: Lab, program: Path | str, argument: str = "") -> dict[str, int]:
    [line] = lab.host.run(["sh", "-c", TAKEN, "taken", str(program), argument], check=True).stdout.splitlines()
    return dict(zip(KINDS, map(int, line.split())))


def growth(kept: list[dict], quick: bool) -> list[str]:
    """Prints start and end of each kind of reading after the warm-up; returns what has grown."""
    if quick:
        print(f"  {len(kept)} readings, too few to judge", flush=True)
        return [] if kept and all(kept[-1][kind] > 0 for kind in KINDS) else ["nothing was read"]
    share = max(1, int(len(kept) * COMPARED))
    grown = []
    for kind in (kind for kind in (*KINDS, HEAP) if kind in kept[0]):
        first = statistics.median(reading[kind] for reading in kept[:share])
        last = statistics.median(reading[kind] for reading in kept[-share:])
        slack = first * MEMORY_SLACK if kind.endswith("KiB") else 0
        print(f"  {kind:<12} {first:>9.0f} at the start {last:>9.0f} at the end", flush=True)
        if last > first + slack:
            grown.append(f"{kind} grew from {first:.0f} to {last:.0f}")
    return grown


def after_filling(readings: list[dict]) -> list[dict]:
    """The readings since everything with a limit has reached it and Tor has died once."""
    reached = dict.fromkeys(FULL_LOG, 0)
    for number, reading in enumerate(readings):
        reached = {kind: max(most, reading[kind]) for kind, most in reached.items()}
        if reading["deaths"] and all(reached[kind] >= limit for kind, limit in FULL_LOG.items()):
            return readings[number:]
    return []


def connect_only(product: Product, session: Session) -> None:
    """Connects, and returns without waiting for the checks, as when a user disconnects early."""
    verb = product.lab.host.popen(
        [product.ctl, "connect"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
    )
    try:
        session.wait_phase("connected", 120)
    finally:
        verb.terminate()
        verb.wait()


def cycles(
    lab: Lab, product: Product, count: int, minutes: float, chance: random.Random, quick: bool = False
) -> tuple[list[str], dict]:
    before = lab.host.snapshot()
    readings, kills, started = [], 0, time.monotonic()
    with product.session(connect=False) as session, Moving("Cycles") as moving:
        session.wait_phase("disconnected")
        for number in range(count):
            moving.step(number + 1, count)
            product.run_verb("set", "strictMode", "true" if number % 2 else "false", check=True)
            if number // 2 % 4 == 0:  # every fourth cycle of each mode waits for the checks
                product.run_verb("connect", check=True, timeout=120)
            else:
                connect_only(product, session)
            if (chance.random() < 0.1 or quick and number == 1) and kill_tor(lab):
                kills += 1
                session.wait_phase("stale")
                product.run_verb("restore", check=True)
            else:
                product.run_verb("disconnect", check=True)
            readings.append(taken(lab, product.ctl, "run"))
            if time.monotonic() - started > minutes * 60:
                say(f"  the time is over after {number + 1} cycles")
                break
            if (number + 1) % 50 == 0:
                say(f"  {number + 1} cycles, {kills} with Tor killed, {time.monotonic() - started:.0f} s: {readings[-1]}")
        session.interrupt()
    problems = growth(readings[int(len(readings) * WARM_UP) :], quick)
    if quick and not kills:
        problems.append("Tor was not killed")
    lab.host.run(["rm", "-rf", "/root/.config/veldmark"], check=True)
    if left := difference(before, lab.host.snapshot()):
        problems.append("the host is not as it was: " + left)
    return problems, {"cycles": len(readings), "kills": kills, "seconds": round(time.monotonic() - started), "readings": readings}


def hours(lab: Lab, programs: Path, length: float, chance: random.Random, quick: bool = False) -> tuple[list[str], dict]:
    before = lab.host.snapshot()
    stop = threading.Event()
    kills = 0

    def disturb() -> None:
        nonlocal kills
        while not stop.wait(chance.uniform(5, 20)):  # real seconds: five to twenty minutes of the fast clock
            kills += kill_tor(lab)

    growing = lab.host.popen(["sh", "-c", GROW_LOG, "grow", "/var/lib/veldmark/run/notices.log"])
    readings = []
    environment = {"VELDMARK_PROGRAMS": str(programs), **({"VELDMARK_SPEED": "10"} if quick else {})}
    monitor = lab.host.popen([FAST_FORWARD, "monitor", str(length)], env=environment, stdout=subprocess.PIPE, text=True)
    disturber = threading.Thread(target=(lambda: None) if quick else disturb)
    disturber.start()
    try:
        with Moving("The fast clock"):
            for line in monitor.stdout:
                readings.append(json.loads(line))
                say(f"  {readings[-1]}")
    finally:
        stop.set()
        disturber.join()
        growing.kill()
        growing.wait()
    kept = readings if quick else after_filling(readings)
    print(f"  {len(kept)} of {len(readings)} readings after the warm-up", flush=True)
    problems = (
        growth(kept, quick) if quick or len(kept) >= LEAST_READINGS else ["too few readings after the warm-up to say anything"]
    )
    if monitor.wait() != 0:
        problems.append("the network was not restored")
    last = readings[-1]
    if not (last["refreshes"] and last["logLines"] and (quick or kills and last["deaths"])):
        problems.append(f"nothing was tried: {kills} kills, {last}")
    lab.host.run(["rm", "-rf", "/root/.config/veldmark"], check=True)
    if left := difference(before, lab.host.snapshot()):
        problems.append("the host is not as it was: " + left)
    return problems, {"hours": length, "kills": kills, "readings": readings}


def windows(lab: Lab, programs: Path, count: int, chance: random.Random, quick: bool = False) -> tuple[list[str], dict]:
    user = lab.host.user
    Product(lab, programs).run_helper("install-privileged", "--user", user, check=True)
    product = Product(lab, programs, user=user)
    readings, kills, started = [], 0, time.monotonic()
    with person.Desktop(lab, user) as desktop, desktop.start(programs) as application, Moving("Rounds") as moving:
        application.click("push button", "Connect to Tor")
        product.wait_state(is_probed)
        for number in range(count):
            moving.step(number + 1, count)
            # The test opens each window by its button in the main window, and closes it before the next.
            for title in WINDOWS:
                application.click("push button", title)
                application.wait_for("frame", title, state="active")
                killed = title == WINDOWS[number % len(WINDOWS)] and chance.random() < 0.1 and kill_tor(lab)
                if killed:
                    kills += 1
                    application.wait_for("heading", "Needs Attention")
                application.press("ctrl+w")
                application.wait_until(lambda: not application.find("frame", title))
                if killed:
                    application.click("push button", "Restore Network")
                    application.click("push button", "Connect to Tor")
                    product.wait_state(is_probed)
            readings.append(taken(lab, Path(programs) / "veldmark"))
            if (number + 1) % 10 == 0:
                say(f"  {number + 1} rounds, {kills} with Tor killed, {time.monotonic() - started:.0f} s: {readings[-1]}")
        application.click("push button", "Disconnect")
        application.wait_for("heading", "Not Protected")
    return (
        growth(readings[int(len(readings) * WARM_UP) :], quick),
        {"rounds": len(readings), "kills": kills, "seconds": round(time.monotonic() - started), "readings": readings},
    )


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--cycles", type=int)
    parser.add_argument("--minutes", type=float, default=60)
    parser.add_argument("--hours", type=float)
    parser.add_argument("--rounds", type=int)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--programs", type=Path, default=Path(os.environ.get("VELDMARK_PROGRAMS", PROJECT / "build" / "bin")))
    parser.add_argument("--json", metavar="FILE")
    given = parser.parse_args()
    for name, whole, few in ("cycles", 500, 4), ("hours", 2.0, 0.15), ("rounds", 60, 1):
        if getattr(given, name) is None:
            setattr(given, name, few if given.quick else whole)
    if given.rounds and (reason := person.missing()):
        print(reason, file=sys.stderr)
        return 77
    chance = random.Random(given.seed)
    problems, report = [], {}
    try:
        with ExitStack() as held:
            with Moving("Starting the private Tor network"):
                lab = held.enter_context(Lab(share=[given.programs.resolve()]))
            programs = given.programs.resolve()
            product = Product(lab, programs)
            if given.cycles:
                print(f"{given.cycles} cycles", flush=True)
                found, report["cycles"] = cycles(lab, product, given.cycles, given.minutes, chance, given.quick)
                problems += found
            if given.hours:
                print(f"{given.hours} hours of a fast clock", flush=True)
                found, report["hours"] = hours(lab, programs, given.hours, chance, given.quick)
                problems += found
            if given.rounds:
                print(f"{given.rounds} rounds of windows", flush=True)
                found, report["rounds"] = windows(lab, programs, given.rounds, chance, given.quick)
                problems += found
    except LabUnavailable as error:
        print(error, file=sys.stderr)
        return 77
    report["problems"] = problems
    if given.json:
        Path(given.json).write_text(json.dumps(report, indent=1) + "\n")
    for problem in problems:
        print("soak:", problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())

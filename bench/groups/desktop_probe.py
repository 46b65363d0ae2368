#!/usr/bin/python3
"""Measures veldmark and the bare tray program under an X server and a session bus of their own; prints one JSON object.

    desktop_probe.py PROGRAMS BENCHES PAIRS SECONDS

Runs on the lab's host, with `autoConnect` set. First the time from the start of each program to the first change of the
screen, interleaved; then both run hidden, veldmark connected, and memory, processor time and wake-ups are counted.
"""

import contextlib
import json
import mmap
import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PATIENCE = 120  # the limit in seconds for any change; no figure includes further waiting


def until(what: str, condition, pause: float = 0.05):
    deadline = time.monotonic() + PATIENCE
    while time.monotonic() < deadline:
        if value := condition():
            return value
        time.sleep(pause)
    raise TimeoutError(what)


class Screen:
    """The X server's picture, which is in a file."""

    WIDTH, HEIGHT, STRIDE = 1024, 768, 1024 * 4

    def __init__(self, folder: str):
        path = Path(folder, "Xvfb_screen0")
        until("no screen", lambda: path.exists() and path.stat().st_size > self.HEIGHT * self.STRIDE)
        with path.open("rb") as file:
            self._bytes = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        self._empty = self._lines()

    def _lines(self) -> list[bytes]:
        """A sample of its lines; a window of hundreds of pixels changes many of them."""
        start = len(self._bytes) - self.HEIGHT * self.STRIDE
        return [self._bytes[start + y * self.STRIDE : start + (y + 1) * self.STRIDE] for y in range(12, self.HEIGHT, 48)]

    def is_empty(self) -> bool:
        return self._lines() == self._empty


def first_frame(screen: Screen, command: list[str]) -> float:
    """Milliseconds from the start of a program to its first pixels."""
    until("the screen was not cleared", screen.is_empty)
    started = time.monotonic()
    with running(command):
        until(f"{command[0]} drew nothing", lambda: not screen.is_empty(), 0.001)
        return (time.monotonic() - started) * 1000


@contextlib.contextmanager
def running(command: list[str], **options):
    process = subprocess.Popen(command, **options)
    try:
        yield process
    finally:
        process.terminate()
        process.wait(60)


def memory(pid: int) -> dict[str, float]:
    """Resident and proportional megabytes."""
    fields = dict(line.split(":", 1) for line in Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:])
    return {
        "rssMB": int(fields["Rss"].split()[0]) / 1000,
        "pssMB": int(fields["Pss"].split()[0]) / 1000,
        "ownMB": int(fields["Private_Dirty"].split()[0]) / 1000,
    }


def spent(pid: int) -> tuple[float, int]:
    """The seconds of processor time, and the number of its threads' sleeps."""
    nanoseconds = sleeps = 0
    for task in Path(f"/proc/{pid}/task").iterdir():
        nanoseconds += int((task / "schedstat").read_text().split()[0])
        for line in (task / "status").read_text().splitlines():
            if line.startswith("voluntary_ctxt_switches"):
                sleeps += int(line.split()[1])
    return nanoseconds / 1e9, sleeps


def idle(pids: dict[str, int], seconds: float) -> dict:
    before = {name: spent(pid) for name, pid in pids.items()}
    started = time.monotonic()
    time.sleep(seconds)  # the figure is about this span of time
    passed = time.monotonic() - started
    result = {}
    for name, pid in pids.items():
        cpu, sleeps = spent(pid)
        result[name] = memory(pid) | {
            "cpuPercent": 100 * (cpu - before[name][0]) / passed,
            "wakesPerSecond": (sleeps - before[name][1]) / passed,
        }
    return result


def connected(ctl: str) -> bool:
    answer = subprocess.run([ctl, "status", "--json"], capture_output=True, text=True)
    state = json.loads(answer.stdout) if answer.returncode == 0 and answer.stdout.strip() else {}
    return state.get("phase") == "connected" and not state.get("isChecking")


def main() -> None:
    programs, benches, pairs, seconds = sys.argv[1], sys.argv[2], int(sys.argv[3]), float(sys.argv[4])
    bare, veldmark, ctl = f"{benches}/BareTray", f"{programs}/veldmark", f"{programs}/veldmarkctl"
    with contextlib.ExitStack() as stack:
        folder = stack.enter_context(tempfile.TemporaryDirectory())
        read, write = os.pipe()
        stack.enter_context(
            running(
                ["Xvfb", "-displayfd", str(write), "-screen", "0", "1024x768x24", "-fbdir", folder, "-nolisten", "tcp"],
                pass_fds=[write],
                stderr=subprocess.DEVNULL,
            )
        )
        os.close(write)
        with os.fdopen(read) as display:
            os.environ["DISPLAY"] = ":" + display.readline().strip()
        bus = stack.enter_context(
            running(["dbus-daemon", "--session", "--nofork", "--print-address=1"], stdout=subprocess.PIPE, text=True)
        )
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        tray = stack.enter_context(running([f"{benches}/TrayHost"], stdout=subprocess.PIPE, text=True))
        if tray.stdout.readline().strip() != "ready":
            raise RuntimeError("no tray")
        screen = Screen(folder)

        subprocess.run([ctl, "set", "autoConnect", "false"], check=True, stdout=subprocess.DEVNULL)
        for program in (bare, veldmark):
            first_frame(screen, [program])  # from a warm cache, like the yardstick
        frames = {"bare": [], "veldmark": []}
        for _ in range(pairs):
            frames["bare"].append(first_frame(screen, [bare]))
            frames["veldmark"].append(first_frame(screen, [veldmark]))
        subprocess.run([ctl, "set", "autoConnect", "true"], check=True, stdout=subprocess.DEVNULL)

        yardstick = stack.enter_context(running([bare, "--hidden"]))
        ours = stack.enter_context(running([veldmark, "--hidden"]))
        until("not connected", lambda: connected(ctl))
        pids = {"bare": yardstick.pid, "veldmark": ours.pid}
        figures = idle(pids, seconds)
        print(json.dumps({"firstFrameMs": frames, "seconds": seconds, "idle": figures}), flush=True)
        subprocess.run([ctl, "disconnect"], check=True, stdout=subprocess.DEVNULL)


if __name__ == "__main__":
    main()

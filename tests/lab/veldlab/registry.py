"""The list of labs that run on this machine: one small JSON file each in /run/veldlab, readable by root only.

A record has what a second process needs to enter a lab (process ids as the machine sees them), and the control group, which a later
start removes after a killed run. Everything else of a lab is in namespaces, which end with its processes.
"""

import json
import os
import secrets
import signal
from pathlib import Path

FOLDER = Path("/run/veldlab")


class LabUnavailable(Exception):
    """This machine or user cannot run a lab; the text is one line that says what to do."""


def process_start_time(pid: int) -> str:
    """Field 22 of /proc/PID/stat, which tells a process from a later one with the same id; "" when there is none."""
    try:
        stat = Path(f"/proc/{pid}/stat").read_text()
    except OSError:
        return ""
    fields = stat.rpartition(")")[2].split()
    return "" if fields[0] in "ZX" else fields[19]


def is_alive(record: dict) -> bool:
    started = record.get("supervisor_started", "")
    return bool(started) and process_start_time(record.get("supervisor", 0)) == started


def new_id() -> str:
    return secrets.token_hex(4)


def write(record: dict) -> None:
    temporary = FOLDER / f".{record['id']}.new"
    while True:
        FOLDER.mkdir(mode=0o700, exist_ok=True)
        try:
            temporary.write_text(json.dumps(record, indent=1))
            break
        except FileNotFoundError:
            continue  # another lab that just ended removed the empty folder in between
    os.replace(temporary, FOLDER / f"{record['id']}.json")


def remove(lab_id: str) -> None:
    for name in (f"{lab_id}.json", f".{lab_id}.new"):
        (FOLDER / name).unlink(missing_ok=True)
    try:
        FOLDER.rmdir()
    except OSError:
        pass  # another lab still has its record there


def records() -> list[dict]:
    found = []
    for path in sorted(FOLDER.glob("*.json")):
        try:
            found.append(json.loads(path.read_text()))
        except (OSError, ValueError):
            continue  # it ended between the listing and the reading
    return found


def running() -> list[dict]:
    return [record for record in records() if is_alive(record) and record.get("ready")]


def find(lab_id: str | None) -> dict:
    """The record of the lab with this id, or of the only one. Raises LookupError with a line for the user."""
    labs = running()
    if lab_id:
        labs = [record for record in labs if record["id"] == lab_id]
        if not labs:
            raise LookupError(f"No lab {lab_id} is running.")
    if not labs:
        raise LookupError("No lab is running; start one with: lab.py up")
    if len(labs) > 1:
        raise LookupError("Several labs are running, say which with --lab: " + " ".join(r["id"] for r in labs))
    return labs[0]


def sweep() -> list[str]:
    """Removes the leftovers of dead runs; returns their ids. Called with the cgroup v2 tree at /sys/fs/cgroup."""
    swept = []
    for record in records():
        if is_alive(record):
            continue
        remove_cgroup(f"/sys/fs/cgroup/{record['cgroup']}")
        remove(record["id"])
        swept.append(record["id"])
    return swept


def remove_cgroup(path: str) -> None:
    """Kills the processes left in the control group, and removes it with all groups below. A missing group is no error."""
    if not os.path.isdir(path):
        return
    try:
        Path(path, "cgroup.kill").write_text("1")
    except OSError:
        _kill_members(path)
    _wait_until_empty(path)
    for folder, _, _ in os.walk(path, topdown=False):
        os.rmdir(folder)


def _kill_members(path: str) -> None:
    """For kernels before 5.14, which have no cgroup.kill."""
    for folder, _, _ in os.walk(path):
        for pid in Path(folder, "cgroup.procs").read_text().split():
            try:
                os.kill(int(pid), signal.SIGKILL)
            except ProcessLookupError:
                pass


def _wait_until_empty(path: str, timeout_ms: int = 10_000) -> None:
    import select

    with open(f"{path}/cgroup.events", "rb", buffering=0) as events:
        poller = select.poll()
        poller.register(events, select.POLLPRI)
        while True:
            events.seek(0)
            if b"populated 0" in events.read():
                return
            if not poller.poll(timeout_ms):
                raise TimeoutError(f"{path} still has processes")

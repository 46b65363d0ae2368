"""The host's state as comparable text, to show that an operation put everything back.

A snapshot is a dict of section to text. Counters, process ids and the like, which change by themselves, are left out.

    nft         ruleset without counters                listening   TCP and UDP ports with the owner's uid
    resolv      /etc/resolv.conf: kind, owner, mode,    processes   uid and command line of each process
                inode, time of change, content          cgroups     groups below the host's own
    links       interfaces and addresses                files       what differs from the machine below /etc and /usr
    routes      IPv4, IPv6 and rules                    proxy       GNOME's and KDE's proxy settings of alice
    mounts      of the host's mount namespace
"""

import difflib
import hashlib
import json
import os
import stat
from pathlib import Path

from veldlab import topology as at

_COLLECT = Path(__file__).resolve().with_name("snapshot_collect.py")


def take(host) -> dict[str, str]:
    """Raises CommandFailed when a section cannot be read: an incomplete snapshot would prove nothing."""
    collected = host.run([at.PYTHON, "-I", "-S", "-", host.user], input=_COLLECT.read_text(), check=True)
    files = _changed_files(host.upper("/etc"), Path("/etc")) + _changed_files(host.upper("/usr"), Path("/usr"))
    return json.loads(collected.stdout) | {"files": "\n".join(sorted(files))}


def _changed_files(upper: Path, machine: Path) -> list[str]:
    """What an overlay's upper folder adds, changes or hides. A folder counts only when the machine has none there."""
    lines = []
    for folder, folders, names in os.walk(upper):
        for name in folders + names:
            path = Path(folder, name)
            own = machine / path.relative_to(upper)
            description = _describe(path)
            if description != (_describe(own) if os.path.lexists(own) else None):
                lines.append(f"{own} {description}")
    return lines


def _describe(path: Path) -> str:
    status = path.lstat()
    facts = f"{stat.filemode(status.st_mode)} {status.st_uid}:{status.st_gid}"
    if stat.S_ISCHR(status.st_mode):
        return "removed"
    if stat.S_ISLNK(status.st_mode):
        return f"{facts} -> {os.readlink(path)}"
    if stat.S_ISREG(status.st_mode):
        return f"{facts} sha256 {hashlib.sha256(path.read_bytes()).hexdigest()}"
    return facts


def diff(before: dict[str, str], after: dict[str, str]) -> str:
    """A unified diff of all sections; "" when the two are equal."""
    parts = []
    for section in sorted(before.keys() | after.keys()):
        old, new = before.get(section, "").splitlines(), after.get(section, "").splitlines()
        parts += difflib.unified_diff(old, new, f"before: {section}", f"after: {section}", lineterm="", n=1)
    return "\n".join(parts)

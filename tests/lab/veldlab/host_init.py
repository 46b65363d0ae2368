"""Lays out the host's private view of the machine, from inside the host's process 1.

Afterwards, in the host's mount namespace:

    /etc /usr /var /home /opt     overlays: the machine's files, every change kept in memory; likewise /srv
    /run /tmp /root /dev/shm      empty, in memory; likewise /var/lib/veldmark and /home/alice
    /proc /sys /sys/fs/cgroup     of the host's own pid, network and cgroup namespaces
    shared folders                the project's tree, and what the caller names, at their own paths, as they are
    everything else               the machine's, read-only

and an ordinary account, alice, who exists nowhere else. Raises OSError or ValueError; the lab then does not start.
"""

import os
import shutil
import subprocess
from pathlib import Path

from veldlab import kernel
from veldlab import topology as at

USER = "alice"
HOST_NAME = "veldlab-host"
OVERLAYS = ("/etc", "/usr", "/var", "/home", "/opt", "/srv")
UPPER_FOLDER = f"{at.LAB_FOLDER}/host"  # as the lab's first mount namespace sees it
_SAFE = kernel.MS_NOSUID | kernel.MS_NODEV


def prepare(options: dict) -> None:
    """`options["share"]`: absolute folders to keep visible where an overlay or a memory folder would cover them."""
    kernel.set_process_name("veldlab-host")
    kernel.unshare(kernel.CLONE_NEWNS | kernel.CLONE_NEWIPC | kernel.CLONE_NEWUTS)
    kernel.make_mounts_private()
    kernel.set_host_name(HOST_NAME)
    shared = _open_shared(options.get("share", []))
    for folder in filter(os.path.isdir, OVERLAYS):
        _overlay(folder)
    _umount_tree("/run")
    for folder, mode in (("/run", 755), ("/tmp", 1777), ("/root", 700), ("/dev/shm", 1777)):
        _memory(folder, f"mode={mode}")
    _memory("/var/lib/veldmark", "mode=755")
    for folder in ("/run/lock", "/run/user", "/run/user/0"):
        os.mkdir(folder)
    os.chmod("/run/lock", 0o1777)
    os.chmod("/run/user/0", 0o700)
    _show_shared(shared)
    _system_mounts()
    kernel.mount("none", "/", flags=kernel.MS_REMOUNT | kernel.MS_BIND | kernel.MS_RDONLY)
    _name_files()
    _make_user(_free_id())


def _open_shared(folders: list[str]) -> list[tuple[int, str]]:
    return [(os.open(folder, os.O_PATH | os.O_DIRECTORY), folder) for folder in sorted(set(folders))]


def _show_shared(shared: list[tuple[int, str]]) -> None:
    for fd, folder in shared:
        os.makedirs(folder, exist_ok=True)  # nothing to make unless a folder in memory covers it
        kernel.bind(f"/proc/self/fd/{fd}", folder)
        os.close(fd)


def _overlay(folder: str) -> None:
    name = folder.strip("/").replace("/", "-")
    upper, work = f"{UPPER_FOLDER}/{name}", f"{UPPER_FOLDER}/.{name}-work"
    os.makedirs(upper)
    os.makedirs(work)
    shutil.copystat(folder, upper)
    kernel.mount("veldlab", folder, "overlay", 0, f"lowerdir={folder},upperdir={upper},workdir={work}")


def _memory(folder: str, options: str) -> None:
    os.makedirs(folder, exist_ok=True)
    kernel.mount("veldlab", folder, "tmpfs", _SAFE, options)


def _umount_tree(folder: str) -> None:
    subprocess.run(["umount", "--lazy", "--recursive", folder], check=True, capture_output=True)


def _system_mounts() -> None:
    safe = _SAFE | kernel.MS_NOEXEC
    kernel.mount("proc", "/proc", "proc", safe)
    kernel.mount("sysfs", "/sys", "sysfs", safe)
    kernel.mount("cgroup2", "/sys/fs/cgroup", "cgroup2", safe)


def _replace(path: str, text: str, mode: int = 0o644) -> None:
    """An ordinary file, also where the machine has a link."""
    Path(path).unlink(missing_ok=True)
    Path(path).write_text(text)
    os.chmod(path, mode)


def _name_files() -> None:
    _replace("/etc/resolv.conf", f"nameserver {at.DNS_ADDRESS}\n")
    _replace("/etc/hostname", f"{HOST_NAME}\n")
    _replace(
        "/etc/hosts",
        f"127.0.0.1 localhost\n127.0.1.1 {HOST_NAME}\n::1 localhost ip6-localhost ip6-loopback\n"
        "ff02::1 ip6-allnodes\nff02::2 ip6-allrouters\n",
    )


def _free_id() -> int:
    """The first number from 1000 on that is neither a user nor a group."""
    taken = set()
    for path in ("/etc/passwd", "/etc/group"):
        for line in Path(path).read_text().splitlines():
            fields = line.split(":")
            if len(fields) > 2 and fields[2].isdigit():
                taken.add(int(fields[2]))
            if fields[0] == USER:
                raise ValueError(f"this machine has an account or group {USER} of its own")
    return next(number for number in range(1000, 60000) if number not in taken)


def _append(path: str, line: str) -> None:
    if os.path.exists(path):
        text = Path(path).read_text()
        Path(path).write_text(text + ("" if text.endswith("\n") or not text else "\n") + line + "\n")


def _make_user(number: int) -> None:
    """An account with a home, a runtime folder and the password "alice" (sudo and polkit ask for one)."""
    home = f"/home/{USER}"
    password = subprocess.run(
        ["openssl", "passwd", "-6", "-stdin"], input=USER, text=True, check=True, capture_output=True
    ).stdout.strip()
    _append("/etc/passwd", f"{USER}:x:{number}:{number}:Alice Example,,,:{home}:/bin/bash")
    _append("/etc/group", f"{USER}:x:{number}:")
    _append("/etc/shadow", f"{USER}:{password}:19000:0:99999:7:::")
    _append("/etc/gshadow", f"{USER}:!::")
    for folder in (home, f"/run/user/{number}"):
        _memory(folder, f"mode=700,uid={number},gid={number}")
    for source in Path("/etc/skel").iterdir() if os.path.isdir("/etc/skel") else ():
        if source.is_file():
            shutil.copy(source, home)
            os.chown(f"{home}/{source.name}", number, number)

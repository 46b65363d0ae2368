"""Whether this machine and user can run a lab, as one line that says what to do, or "" when all is well."""

import os
import shutil
import subprocess
import sys

_PROGRAMS = {
    "tor": "tor",
    "tor-gencert": "tor",
    "obfs4proxy": "obfs4proxy",
    "ip": "iproute2",
    "nft": "nftables",
    "openssl": "openssl",
    "unshare": "util-linux",
    "curl": "curl",
}
# Tries, in short-lived namespaces, everything of a lab that a container or a hardened kernel may refuse.
_TRIAL = r"""
set -eu
ip link set lo up
ip link add trial0 type veth peer name trial1
ip link add trial2 type bridge
mount -t tmpfs veldlab /run
mkdir /run/upper /run/work
mount -t overlay veldlab -o lowerdir=/etc,upperdir=/run/upper,workdir=/run/work /etc
mkdir /run/groups
mount -t cgroup2 veldlab /run/groups
mkdir "/run/groups/veldlab-trial-$1"
rmdir "/run/groups/veldlab-trial-$1"
"""


def missing() -> str:
    if not sys.platform.startswith("linux"):
        return "The lab needs Linux network namespaces; this system has none."
    if os.geteuid() != 0:
        return "Network namespaces need root: run with sudo, for example: sudo /usr/bin/python3 tests/lab/lab.py up"
    packages = sorted({package for program, package in _PROGRAMS.items() if not shutil.which(program)})
    if packages:
        return f"Programs are missing: run sudo apt install {' '.join(packages)}"
    trial = subprocess.run(
        ["unshare", "--net", "--mount", "--pid", "--fork", "--ipc", "--uts", "--cgroup", "sh", "-s", str(os.getpid())],
        input=_TRIAL,
        capture_output=True,
        text=True,
    )
    if trial.returncode != 0:
        reason = (trial.stderr.strip().splitlines() or ["no reason given"])[-1]
        return f"This machine refuses what the lab needs ({reason}): run it as root on a real or virtual machine"
    return ""

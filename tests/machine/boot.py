"""A booted Debian in the private Tor network: systemd as process 1, with its own network link in place of the lab's host.

    with Machine(lab, [base], "first") as machine:
        machine.boot()
        machine.run(["systemctl", "is-system-running"])
        machine.power_cut()
        machine.boot()          # the same disk, a new network device, nothing in the kernel's firewall

The disk is an overlay: `layers` stay unchanged, and changes are in memory until the lab ends. The machine takes the lab host's
place in the network and gets its address by DHCP from the router.
"""

import contextlib
import os
import signal
import subprocess
import threading
import time
from pathlib import Path

from base import PROJECT, Unprepared
from veldlab import certificates
from veldlab import topology as at
from veldlab.space import Space

NSPAWN = PROJECT / "build" / "nspawn"
ROOM = "/run/machine"  # in the lab's first mount namespace
NETWORK = "machine"
USER, UID = "alice", 1000
HARDWARE = "52:54:00:00:77:02"
CONNECTION = f"""[connection]
id=Home
type=ethernet
interface-name=eth0

[ethernet]
mac-address={HARDWARE}

[ipv4]
method=auto

[ipv6]
method=manual
address1={at.HOST_ADDRESS6}/64
gateway={at.ROUTER_LAN_ADDRESS6}
dns={at.DNS_ADDRESS6};
"""
# udev does not run in a container, and without it NetworkManager ignores Ethernet devices of this kind.
_MANAGED = "[device-eth0]\nmatch-device=interface-name:eth0\nmanaged=1\n[main]\nplugins=keyfile\nno-auto-default=*\n"
_DNS = "[main]\ndns=default\nrc-manager=file\n"  # NetworkManager writes resolv.conf, as without systemd-resolved
_DISK = r"""
set -eu
mountpoint -q "$1" || { mkdir -p "$1"; mount -t tmpfs -o mode=755,size=8g machine "$1"; }
mkdir "$1/$2" "$1/$2.upper" "$1/$2.work"
mount -t overlay -o "lowerdir=$3,upperdir=$1/$2.upper,workdir=$1/$2.work" machine "$1/$2"
"""
_PLUG_IN = r"""
set -eu
ip -n router link set host0 down
ip netns del "$1" 2>/dev/null || true
ip -n router link del machine0 2>/dev/null || true
ip netns add "$1"
ip -n router link add machine0 type veth peer name eth0 address "$2" netns "$1"
ip -n router link set machine0 master br0
ip -n router link set machine0 up
ip -n "$1" link set lo up
"""


def program() -> Path:
    """systemd-nspawn, installed or unpacked by build.sh. Raises Unprepared."""
    for path in (NSPAWN / "usr/bin/systemd-nspawn", Path("/usr/bin/systemd-nspawn")):
        if path.exists():
            return path
    raise Unprepared("systemd-nspawn is missing: ./build.sh machine-test fetches it, or run sudo apt install systemd-container")


class Machine(contextlib.AbstractContextManager):
    user, uid = USER, UID

    def __init__(self, lab, layers: list[str], name: str):
        self.lab, self.name, self.layers = lab, name, layers
        self.root = Path(ROOM) / name
        self._world = lab.spaces["world"]
        self._process: subprocess.Popen | None = None
        self._inside: Space | None = None
        self._console: list[str] = []
        self._kept = False
        self._shell(self._world, _DISK, ROOM, name, ":".join(map(str, layers)))
        self._join_lab()

    @property
    def disk(self) -> list[str]:
        """The layers for a further machine when this one is off: this machine's present state."""
        return [f"{self.root}.upper", *map(str, self.layers)]

    @property
    def console(self) -> str:
        return "".join(self._console)

    @staticmethod
    def _shell(space, script: str, *words: str) -> str:
        return space.run(["/bin/sh", "-c", script, "sh", *map(str, words)], check=True).stdout

    def path(self, inside: str) -> Path:
        """The caller's path to a file of the disk, with the machine on or off; without the running machine's mounts."""
        return self._world.path(str(self.root)) / inside.lstrip("/")

    def write(self, inside: str, text: str | bytes, mode: int = 0o644, uid: int = 0) -> None:
        target = self.path(inside)
        missing = [folder for folder in target.parents if not folder.exists()]
        for folder in reversed(missing):
            folder.mkdir()
            os.chown(folder, uid, uid)
        target.unlink(missing_ok=True)
        target.write_bytes(text.encode() if isinstance(text, str) else text)
        os.chown(target, uid, uid)
        target.chmod(mode)

    def _join_lab(self) -> None:
        """Makes every tor that starts here a client of the lab, and trusts the lab's certificate authority."""
        host = self.lab.host
        for name in ("torrc-defaults", "veldlab-geoip"):
            self.write(f"/etc/tor/{name}", host.path(f"/etc/tor/{name}").read_bytes())
        authority = self.lab.world.certificate_authority()
        self.write("/etc/ssl/certs/veldmark-lab-ca.pem", authority)
        link = self.path(f"/etc/ssl/certs/{certificates.subject_hash(str(self.path('/etc/ssl/certs/veldmark-lab-ca.pem')))}.0")
        link.unlink(missing_ok=True)
        link.symlink_to("veldmark-lab-ca.pem")
        bundle = "/etc/ssl/certs/ca-certificates.crt"
        self.write(bundle, self.path(bundle).read_bytes() + b"\n" + authority)
        self.write("/etc/hostname", "debian\n")
        self.write("/etc/hosts", "127.0.0.1 localhost\n127.0.1.1 debian\n::1 localhost\n")
        self.write("/etc/NetworkManager/system-connections/Home.nmconnection", CONNECTION, 0o600)
        self.write("/etc/NetworkManager/conf.d/eth0.conf", _MANAGED)
        self.write("/etc/NetworkManager/conf.d/dns.conf", _DNS)
        self.write("/etc/resolv.conf", "")

    # Power ------------------------------------------------------------------------------------------------------------

    def boot(self, timeout: float = 60) -> float:
        """Boots; returns the seconds until systemd has started its units and NetworkManager has the network."""
        assert self._process is None, "it is on"
        started = time.monotonic()
        self._shell(self._world, _PLUG_IN, NETWORK, HARDWARE)
        nspawn = program()
        command = [
            nspawn,
            "--directory",
            self.root,
            "--boot",
            f"--network-namespace-path=/run/netns/{NETWORK}",
            "--capability=CAP_NET_ADMIN,CAP_NET_RAW",
            "--register=no",
            "--keep-unit",
            "--settings=no",
            "--machine=debian",
            "--resolv-conf=off",
            *(["--bind=/dev/net/tun"] if Path("/dev/net/tun").exists() else []),
            "--timezone=off",
            "--link-journal=no",
            "--console=pipe",
            "--quiet",
            "--kill-signal=SIGRTMIN+4",
        ]
        self._process = self._world.popen(
            command,
            env={"SYSTEMD_NSPAWN_UNIFIED_HIERARCHY": "1", "LD_LIBRARY_PATH": str(NSPAWN / "usr/lib/x86_64-linux-gnu/systemd")},
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
            errors="replace",
        )
        self._reader = threading.Thread(target=self._read, args=(self._process.stdout,), daemon=True)
        self._reader.start()
        try:
            leader = self._wait(self._leader, timeout, "no process 1")
            self._inside = _Inside(leader, self.lab.record)
            self._wait(lambda: self.path("/") and self._answers(), timeout, "systemd did not get ready")
            self._wait(self.is_online, timeout, "no network")
        except BaseException:
            self.power_cut()
            raise
        return time.monotonic() - started

    def _read(self, stream) -> None:
        for line in stream:
            self._console.append(line)

    def _wait(self, condition, timeout: float, what: str):
        deadline = time.monotonic() + timeout
        while not (found := condition()):
            if self._process.poll() is not None or time.monotonic() > deadline:
                raise RuntimeError(f"{what} within {timeout:.0f} s\n{self.console[-4000:]}")
            time.sleep(0.05)
        return found

    def _leader(self) -> int:
        """The id of the machine's process 1 in the caller's namespace; 0 without one."""
        waiting = [self._process.pid]
        while waiting:
            pid = waiting.pop()
            with contextlib.suppress(OSError):
                numbers = next(
                    line.split()[1:] for line in Path(f"/proc/{pid}/status").read_text().splitlines() if line.startswith("NSpid:")
                )
                if numbers[-1] == "1" and Path(f"/proc/{pid}/comm").read_text().strip() == "systemd":
                    return pid
                waiting += map(int, Path(f"/proc/{pid}/task/{pid}/children").read_text().split())
        return 0

    def _answers(self) -> bool:
        state = self.run(["systemctl", "is-system-running"]).stdout.strip()
        return state in ("running", "degraded")

    def is_online(self) -> bool:
        """NetworkManager says so as soon as the addresses of one protocol are there: the lease may take a moment longer, and so may the
        kernel's own look whether another computer has the address."""
        told = self.run(
            [
                "/bin/sh",
                "-c",
                "nmcli -t -f STATE general; nmcli -g IP4.ADDRESS device show eth0; ip -6 -oneline address show tentative",
            ]
        ).stdout.splitlines()
        return len(told) == 2 and told[0] == "connected" and bool(told[1])

    def _off(self, timeout: float) -> None:
        process, self._process, self._inside = self._process, None, None
        process.wait(timeout)
        self._reader.join()
        process.stdout.close()

    def power_off(self, timeout: float = 90) -> float:
        """Shuts down as the desktop's menu does."""
        started = time.monotonic()
        self.run(["systemctl", "poweroff"])
        self._off(timeout)
        return time.monotonic() - started

    def power_cut(self) -> None:
        """Kills all processes at once."""
        if self._process is None:
            return
        if leader := self._leader():
            os.kill(leader, signal.SIGKILL)
        else:
            self._process.terminate()
        self._off(30)

    def reboot(self) -> None:
        self.power_off()
        self.boot()

    def keep(self) -> None:
        """Keeps the disk's state until the lab ends, as layers of other machines."""
        self._kept = True

    def __exit__(self, *_) -> None:
        self.power_cut()
        self._shell(self._world, 'umount "$1"' if self._kept else 'umount "$1"; rm -rf "$1.upper" "$1.work" "$1"', self.root)

    # Inside -----------------------------------------------------------------------------------------------------------

    def run(self, argv, **options) -> subprocess.CompletedProcess:
        return self._inside.run(argv, **options)

    def popen(self, argv, **options) -> subprocess.Popen:
        return self._inside.popen(argv, **options)

    def shell(self, script: str, *words: str, user: str = "root", **options) -> str:
        return self.run(["/bin/bash", "-c", script, "bash", *words], user=user, check=True, **options).stdout


class _Inside(Space):
    """Commands in a running machine. They run in the control group of its process 1, unlike those of an administrator's
    `systemd-run --scope`. A login starts the user's programs (desktops.py)."""

    def __init__(self, leader: int, record: dict):
        super().__init__("host", record)
        self._init = leader
        group = next(line[3:] for line in Path(f"/proc/{leader}/cgroup").read_text().splitlines() if line.startswith("0::"))
        self._cgroup = f"/sys/fs/cgroup{group}"

"""A clean Debian 12 in a folder, inside the lab's host. The package is installed there.

    with CleanDebian(lab, base) as debian:
        debian.run(["apt-get", "install", "-y", "/packages/x.deb"], check=True)

`prepare` makes the folder once from the registry of this machine's own apt. It contains only debootstrap's minimal system.
`prepare` also fetches, but does not install, the package's dependencies. The lab has no route to the registry, so only packages
that the package's own fields name get installed there.
"""

import contextlib
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path[:0] = [str(Path(__file__).resolve().parent), str(Path(__file__).resolve().parents[2] / "tools")]

from moving import Moving  # noqa: E402

RELEASE = "bookworm"
USER, UID = "alice", 1000
PROGRESS = Path(__file__).resolve().parents[2] / "tools" / "progress.sh"
_ENVIRONMENT = {"LANG": "C.UTF-8", "DEBIAN_FRONTEND": "noninteractive"}
_START_NOTHING = "#!/bin/sh\nexit 101\n"
_SETUP = r"""
set -eu
root=$1 layers=$2
mkdir -p "$root.upper" "$root.work" "$root"
mount -t overlay -o "lowerdir=$layers,upperdir=$root.upper,workdir=$root.work" clean "$root"
mount --rbind /proc "$root/proc"
mount --rbind /sys "$root/sys"
mount --rbind /dev "$root/dev"
mount -t tmpfs -o mode=755 private "$root/run"
mount -t tmpfs -o mode=1777 private "$root/tmp"
rm -f "$root/etc/resolv.conf"
cp /etc/resolv.conf /etc/hosts "$root/etc/"
"""
_USER = """
set -eu
id alice 2>/dev/null || { useradd --uid 1000 --create-home --shell /bin/bash alice && echo alice:alice | chpasswd; }
mkdir -p /run/user/1000 /run/lock
chown 1000:1000 /run/user/1000
chmod 700 /run/user/1000
"""


class Unprepared(Exception):
    """The reason why there is no clean Debian here, in one line."""


def registry() -> str:
    """The registry from which this machine's own apt gets Debian 12."""
    try:
        targets = subprocess.run(
            ["apt-get", "indextargets", "--format", "$(SITE) $(RELEASE)"], check=True, capture_output=True, text=True
        ).stdout
    except (OSError, subprocess.CalledProcessError):
        raise Unprepared("This machine has no apt that works, so there is no registry to make a Debian from.") from None
    for line in targets.splitlines():
        site, _, release = line.partition(" ")
        if release == RELEASE:
            return site
    raise Unprepared(f"The apt sources of this machine name no registry of Debian 12 ({RELEASE}).")


def unprepared(what: str, log: Path, began: int) -> Unprepared:
    """Why a step failed whose output is in `log` from byte `began` on, in the words that build.sh has for it."""
    reason = ""
    with contextlib.suppress(OSError), tempfile.NamedTemporaryFile() as part:
        part.write(log.read_bytes()[began:])
        part.flush()
        reason = subprocess.run(
            ["/bin/bash", "-c", 'source "$1" && explain_failure "$2"', "bash", PROGRESS, part.name],
            capture_output=True,
            text=True,
            check=False,
        ).stdout.strip()
    return Unprepared(reason or f"{what} failed; see {log}")


def _do(log: Path, what: str, *words) -> None:
    with open(log, "ab") as output, Moving(what):
        began = output.tell()
        done = subprocess.run(
            list(map(str, words)),
            stdout=output,
            stderr=output,
            stdin=subprocess.DEVNULL,
            env=os.environ | _ENVIRONMENT,
            check=False,
        )
    if done.returncode:
        raise unprepared(what, log, began)


def minimal(folder: Path) -> Path:
    """Makes debootstrap's minimal system once in `folder`. Remove the folder to make it again."""
    base = folder / "minimal"
    if shutil.which("debootstrap") is None:
        raise Unprepared("debootstrap is not installed; ./build.sh deps does it")
    if not base.exists():
        folder.mkdir(parents=True, exist_ok=True)
        shutil.rmtree(folder / "new", ignore_errors=True)
        print("Fetching a minimal Debian from its registry", flush=True)
        _do(
            folder / "log",
            "Fetching a minimal Debian from its registry",
            "debootstrap",
            "--variant=minbase",
            RELEASE,
            folder / "new",
            registry(),
        )
        (folder / "new").rename(base)
    return base


def prepare(folder: Path, package: Path) -> Path:
    """Makes the base in `folder` unless it exists, and fetches the package's dependencies into it when they have changed. Remove
    the folder to make it again."""
    base = folder / "base"
    log = folder / "log"
    if not base.exists():
        source = minimal(folder)
        shutil.rmtree(folder / "new", ignore_errors=True)
        _do(log, "Copying a minimal Debian", "cp", "-a", "--reflink=auto", source, folder / "new")
        (folder / "new/usr/sbin/policy-rc.d").write_text(_START_NOTHING)
        (folder / "new/usr/sbin/policy-rc.d").chmod(0o755)
        (folder / "new").rename(base)
    needs = subprocess.run(
        ["dpkg-deb", "--field", package, "Depends", "Recommends"], check=True, capture_output=True, text=True
    ).stdout
    fetched = folder / "fetched"  # the dependencies that the base's packages were fetched for
    if fetched.exists() and fetched.read_text() == needs:
        return base
    shutil.copy("/etc/resolv.conf", base / "etc/resolv.conf")
    shutil.copy(package, base / "tmp/package.deb")
    try:
        _do(log, "Asking Debian's registry", "chroot", base, "apt-get", "update")
        _do(
            log,
            "Fetching what the package depends on",
            "chroot",
            base,
            "apt-get",
            "install",
            "--yes",
            "--download-only",
            "/tmp/package.deb",
        )
    finally:
        (base / "tmp/package.deb").unlink()
    fetched.write_text(needs)
    return base


class CleanDebian(contextlib.AbstractContextManager):
    """A root folder in the lab's host, an overlay over `base`; with `over`, over another one's present state.

    It has the lab's network, processes and control groups. Its own files are in memory.
    """

    def __init__(self, lab, base: Path, name: str, over: "CleanDebian | None" = None):
        self.lab = lab
        self.root = f"/run/debian/{name}"
        self.layers = f"{over.root}.upper:{over.layers}" if over else str(base)
        self._host("mkdir -p /run/debian")
        self._host(_SETUP, self.root, self.layers)
        self.run(["/bin/sh", "-c", _USER], check=True)

    def __exit__(self, *_) -> None:
        self._host('umount --lazy --recursive "$1"', self.root)

    def _host(self, script: str, *words: str) -> str:
        return self.lab.host.run(["/bin/sh", "-c", script, "sh", *words], check=True).stdout

    def path(self, inside: str) -> Path:
        return self.lab.host.path(self.root) / inside.lstrip("/")

    def _inside(self, argv, user: str, env) -> list[str]:
        home, path = ("/root", "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin")
        who: list[str] = []
        variables = dict(_ENVIRONMENT)
        if user != "root":
            home, path = f"/home/{user}", "/usr/local/bin:/usr/bin:/bin"
            who = [f"--userspec={user}:{user}", f"--groups={user}"]
            variables["XDG_RUNTIME_DIR"] = f"/run/user/{UID}"
        variables |= {"HOME": home, "PATH": path, "USER": user, "LOGNAME": user} | (env or {})
        return ["chroot", *who, self.root, "/usr/bin/env", "-i", *(f"{k}={v}" for k, v in variables.items()), *argv]

    def run(self, argv, *, user: str = "root", env=None, **options):
        return self.lab.host.run(self._inside(argv, user, env), **options)

    def popen(self, argv, *, user: str = "root", env=None, **options):
        return self.lab.host.popen(self._inside(argv, user, env), **options)

    def shell(self, script: str, *words: str, **options) -> str:
        return self.run(["/bin/bash", "-c", script, "bash", *words], check=True, **options).stdout

    def put(self, source: Path, inside: str) -> str:
        target = self.path(inside)
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source, target)
        return inside

    def join_lab(self) -> None:
        """Makes tor a client of the lab, and trusts the lab's certificate authority, as the host does."""
        self._host(
            r"""
            set -eu
            mkdir -p "$1/etc/tor"
            cp /etc/tor/torrc-defaults "$1/etc/tor/"
            for word in $(cat /etc/tor/torrc-defaults); do
                case $word in /*) if [ -f "$word" ]; then mkdir -p "$1${word%/*}"; cp "$word" "$1$word"; fi ;; esac
            done
            cp -P /etc/ssl/certs/veldmark-lab-ca.pem "$1/etc/ssl/certs/"
            for link in /etc/ssl/certs/*.0; do
                if [ "$(readlink "$link")" = veldmark-lab-ca.pem ]; then cp -P "$link" "$1/etc/ssl/certs/"; fi
            done
            cat /etc/ssl/certs/veldmark-lab-ca.pem >>"$1/etc/ssl/certs/ca-certificates.crt"
        """,
            self.root,
        )

"""The tree of the booted Debian 12. It is made once from the registry of this machine's own apt, and kept in build/machine.

It contains a desktop's packages. The dependencies of the package under test are fetched but not installed, since the lab has no
route to the registry. A changed list of packages adds to the tree; remove the folder to make it again.
"""

import os
import shutil
import subprocess
import sys
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(PROJECT / "tests" / "package"), str(PROJECT / "tests" / "lab"), str(PROJECT / "tools")]

from clean_debian import RELEASE, Unprepared, registry, unprepared  # noqa: E402
from moving import Moving  # noqa: E402

FOLDER = PROJECT / "build" / "machine"
# The packages that boot it; they are needed before the first boot.
_FIRST = "systemd,systemd-sysv,dbus,udev"
_PACKAGES = (
    # The machine's packages: sessions, the administrator's prompt, the network's managers.
    "libpam-systemd dbus-user-session polkitd pkexec sudo network-manager iproute2 iputils-ping curl procps "
    "ca-certificates locales python3 "
    # Desktops: Xfce on an X server without a screen, sway and LXQt; each with its panel and its polkit agent.
    "xvfb xauth xdotool x11-utils scrot at-spi2-core python3-gi gir1.2-atspi-2.0 gir1.2-gdkpixbuf-2.0 librsvg2-common adwaita-icon-theme fonts-dejavu-core fonts-font-awesome "
    "xfce4-session xfce4-panel xfwm4 xfdesktop4 xfce4-settings xfce4-notifyd policykit-1-gnome greybird-gtk-theme "
    "sway waybar grim wtype mate-polkit "
    "lxqt-session lxqt-panel lxqt-policykit lxqt-notificationd openbox breeze-icon-theme "
    # Other programs that configure the network.
    "nftables iptables firewalld ufw systemd-resolved wireguard-tools wireguard-go dnsmasq-base"
).split()
_LOCALES = ("en_GB.UTF-8", "de_DE.UTF-8")
_START_NOTHING = "#!/bin/sh\nexit 101\n"
_SETUP = r"""
set -eu
for name; do echo "$name UTF-8"; done >/etc/locale.gen
locale-gen
id alice 2>/dev/null || useradd --uid 1000 --create-home --shell /bin/bash --groups sudo --comment 'Alice Example' alice
echo alice:alice | chpasswd
# As on a desktop that was just set up: NetworkManager has the network and writes resolv.conf; the others wait.
systemctl disable firewalld ufw systemd-resolved systemd-networkd 2>/dev/null || true
systemctl disable NetworkManager-wait-online.service 2>/dev/null || true
systemctl set-default multi-user.target
rm -f /etc/resolv.conf /etc/machine-id
: >/etc/machine-id
"""


def _run(log: Path, what: str, *words, chroot: Path | None = None) -> None:
    command = ([] if chroot is None else ["chroot", chroot]) + list(words)
    environment = os.environ | {"LANG": "C.UTF-8", "DEBIAN_FRONTEND": "noninteractive"}
    with open(log, "ab") as output, Moving(what):
        began = output.tell()
        done = subprocess.run(
            list(map(str, command)), stdout=output, stderr=output, stdin=subprocess.DEVNULL, env=environment, check=False
        )
    if done.returncode:
        raise unprepared(what, log, began)


def prepare(package: Path, say=print) -> Path:
    """Makes the tree or updates it. Raises Unprepared, in one line, where that fails."""
    base, new, log = FOLDER / "base", FOLDER / "new", FOLDER / "log"
    FOLDER.mkdir(parents=True, exist_ok=True)
    if shutil.which("debootstrap") is None:
        raise Unprepared("debootstrap is not installed; ./build.sh deps does it")
    if not base.exists():
        say("Fetching a minimal Debian 12, once.")
        shutil.rmtree(new, ignore_errors=True)
        _run(
            log,
            "Fetching a minimal Debian from its registry",
            "debootstrap",
            "--variant=minbase",
            f"--include={_FIRST}",
            RELEASE,
            new,
            registry(),
        )
        new.rename(base)
    _install(base, log, say)
    _fetch(base, package, log, say)
    return base


def _install(base: Path, log: Path, say) -> None:
    wanted = "\n".join(_PACKAGES) + _SETUP
    installed = FOLDER / "installed"
    if installed.exists() and installed.read_text() == wanted:
        return
    say(f"Installing {len(_PACKAGES)} packages and what they need into it, once.")
    shutil.copy("/etc/resolv.conf", base / "etc/resolv.conf")
    policy = base / "usr/sbin/policy-rc.d"
    policy.write_text(_START_NOTHING)
    policy.chmod(0o755)
    try:
        _run(log, "Asking Debian's registry", "apt-get", "update", chroot=base)
        _run(log, "Installing a desktop", "apt-get", "install", "--yes", "--no-install-recommends", *_PACKAGES, chroot=base)
        _run(log, "Setting the machine up", "/bin/sh", "-c", _SETUP, "sh", *_LOCALES, chroot=base)
    finally:
        policy.unlink()
    _run(log, "Clearing up", "apt-get", "clean", chroot=base)
    installed.write_text(wanted)
    (FOLDER / "fetched").unlink(missing_ok=True)


def _fetch(base: Path, package: Path, log: Path, say) -> None:
    """Fetches the package's dependencies and recommendations into apt's folder of the tree."""
    needs = subprocess.run(
        ["dpkg-deb", "--field", package, "Depends", "Recommends"], check=True, capture_output=True, text=True
    ).stdout
    fetched = FOLDER / "fetched"
    if fetched.exists() and fetched.read_text() == needs:
        return
    say("Fetching what the package depends on, once.")
    resolver = base / "etc/resolv.conf"
    resolver.unlink(missing_ok=True)
    shutil.copy("/etc/resolv.conf", resolver)
    shutil.copy(package, base / "tmp/package.deb")
    try:
        _run(log, "Asking Debian's registry", "apt-get", "update", chroot=base)
        _run(
            log,
            "Fetching what the package depends on",
            "apt-get",
            "install",
            "--yes",
            "--download-only",
            "/tmp/package.deb",
            chroot=base,
        )
    finally:
        (base / "tmp/package.deb").unlink()
        resolver.unlink()
    fetched.write_text(needs)

"""Real services of a desktop in a test's machine: a user's session bus with GNOME's settings, and systemd-resolved.

    start_session_bus(machine), as_user(machine, script)
    require_resolved() before anything else, daemon = start_resolved(machine); daemon.wait() after the machine was closed
"""

import os
import subprocess
import sys

from namespace import USER_UID

RUNTIME = f"/run/user/{USER_UID}"
SESSION = {"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)}   # of a helper that this user's prompt has started
DESKTOP = {"PATH": os.environ["PATH"], "HOME": "/home/alice", "XDG_RUNTIME_DIR": RUNTIME,
           "DBUS_SESSION_BUS_ADDRESS": f"unix:path={RUNTIME}/bus"}

ROOT = os.environ.get("VELDMARK_RESOLVED", "/")
DAEMON = os.path.join(ROOT, "lib/systemd/systemd-resolved")
POLICY = os.path.join(ROOT, "usr/share/dbus-1/system.d/org.freedesktop.resolve1.conf")


def as_user(machine, script, **options):
    return machine.run("/bin/bash", "-c", script, uid=USER_UID, env=DESKTOP, **options).stdout


def start_session_bus(machine):
    machine.run("dbus-daemon", "--session", f"--address=unix:path={RUNTIME}/bus", "--fork", uid=USER_UID, env=DESKTOP)


def gnome_settings(machine):
    """What every program sees, and what is set."""
    return as_user(machine, "gsettings list-recursively org.gnome.system.proxy | sort"), as_user(machine, "dconf dump /system/proxy/")


def require_resolved():
    """Ends the test program with status 77 where it cannot run."""
    if not (os.path.exists(DAEMON) and os.path.exists(POLICY)):
        print("systemd-resolved is not here: unpack its package and name the folder in VELDMARK_RESOLVED.")
        sys.exit(77)


def start_resolved(machine):
    """With two links that have an address each, w0 and w1; the system's resolver file is the daemon's."""
    machine.shell("""
        mount -t overlay -o "lowerdir=$1/usr/bin:/usr/bin" private /usr/bin
        grep -q ^systemd-resolve: /etc/passwd || { echo 'systemd-resolve:x:990:990::/:/usr/sbin/nologin' >>/etc/passwd; echo 'systemd-resolve:x:990:' >>/etc/group; }
        mkdir -p /run/dbus /run/systemd/resolve /etc/dbus-1/system.d; chown systemd-resolve:systemd-resolve /run/systemd/resolve
        cp "$2" /etc/dbus-1/system.d/; dbus-daemon --system --fork
        for n in 0 1; do ip link add w$n type veth peer name p$n; ip link set w$n up; ip link set p$n up; ip addr add 192.0.2.1$n/24 dev w$n; done
    """, ROOT.rstrip("/") or "", POLICY)
    daemon = machine.start(DAEMON, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    machine.shell("until resolvectl dns >/dev/null 2>&1; do :; done; ln -sf /run/systemd/resolve/stub-resolv.conf /etc/resolv.conf;"
                  "until [ -s /etc/resolv.conf ]; do :; done")
    return daemon


def give_links_servers(machine):
    machine.shell("resolvectl dns w0 192.0.2.53 2001:db8::53 192.0.2.54:5353#dns.example; resolvectl domain w0 corp.example '~lan.example';"
                  "resolvectl dnsovertls w0 opportunistic; resolvectl dns w1 ''")


def resolved_settings(machine):
    return machine.shell("for k in dns domain default-route dnsovertls dnssec; do echo $k; resolvectl $k; done")

"""Services of a desktop in a test's machine. The session bus with GNOME's settings and systemd-resolved are the real ones. The
system's own Tor service is a stand-in with a stand-in of systemctl.

    start_session_bus(machine), as_user(machine, script)
    call require_resolved() first, then daemon = start_resolved(machine); call daemon.wait() after closing the machine
    add_systemctl(machine), start_tor_service(machine)
"""

import os
import subprocess
import sys

from namespace import USER_UID

RUNTIME = f"/run/user/{USER_UID}"
SESSION = {"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)}  # of a helper that this user's prompt starts
DESKTOP = {
    "PATH": os.environ["PATH"],
    "HOME": "/home/alice",
    "XDG_RUNTIME_DIR": RUNTIME,
    "DBUS_SESSION_BUS_ADDRESS": f"unix:path={RUNTIME}/bus",
}

ROOT = os.environ.get("VELDMARK_RESOLVED", "/")
DAEMON = os.path.join(ROOT, "lib/systemd/systemd-resolved")
POLICY = os.path.join(ROOT, "usr/share/dbus-1/system.d/org.freedesktop.resolve1.conf")


def as_user(machine, script, **options):
    return machine.run("/bin/bash", "-c", script, uid=USER_UID, env=DESKTOP, **options).stdout


def start_session_bus(machine):
    machine.run("dbus-daemon", "--session", f"--address=unix:path={RUNTIME}/bus", "--fork", uid=USER_UID, env=DESKTOP)


def gnome_settings(machine):
    """The settings that every program reads, and the ones that are set."""
    return as_user(machine, "gsettings list-recursively org.gnome.system.proxy | sort"), as_user(
        machine, "dconf dump /system/proxy/"
    )


def require_resolved():
    """Ends the test program with status 77 where it cannot run."""
    if not (os.path.exists(DAEMON) and os.path.exists(POLICY)):
        print("systemd-resolved is not here: unpack its package and name the folder in VELDMARK_RESOLVED.")
        sys.exit(77)


def start_resolved(machine):
    """Starts systemd-resolved with two links, w0 and w1, that have an address each. The system's resolver file is the daemon's."""
    machine.shell(
        """
        mount -t overlay -o "lowerdir=$1/usr/bin:/usr/bin" private /usr/bin
        grep -q ^systemd-resolve: /etc/passwd || { echo 'systemd-resolve:x:990:990::/:/usr/sbin/nologin' >>/etc/passwd; echo 'systemd-resolve:x:990:' >>/etc/group; }
        mkdir -p /run/dbus /run/systemd/resolve /etc/dbus-1/system.d; chown systemd-resolve:systemd-resolve /run/systemd/resolve
        cp "$2" /etc/dbus-1/system.d/; dbus-daemon --system --fork
        for n in 0 1; do ip link add w$n type veth peer name p$n; ip link set w$n up; ip link set p$n up; ip addr add 192.0.2.1$n/24 dev w$n; done
        ln -sf /run/systemd/resolve/stub-resolv.conf /etc/resolv.conf
    """,
        ROOT.rstrip("/") or "",
        POLICY,
    )
    daemon = machine.start(DAEMON, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    machine.shell("until resolvectl dns >/dev/null 2>&1 && [ -s /etc/resolv.conf ]; do :; done")
    return daemon


def add_global_servers(machine, servers, more=""):
    """Adds servers to the daemon's configuration, and a systemctl that can restart it. Call it after start_resolved() and
    add_systemctl()."""
    machine.shell(
        r"""
        cd /run/units; unit=systemd-resolved.service
        printf '#!/bin/sh\nexec %s\n' "$1" >$unit; printf '#!/bin/sh\nresolvectl dns >/dev/null 2>&1\n' >$unit.ready; chmod 755 $unit $unit.ready
        [ -e $unit.pid ] || pgrep -x systemd-resolve >$unit.pid
        printf '[Resolve]\nDNS=%s\n%s\n' "$2" "$3" >/etc/systemd/resolved.conf
        systemctl restart $unit
    """,
        DAEMON,
        servers,
        more,
    )


def give_links_servers(machine):
    machine.shell(
        "resolvectl dns w0 192.0.2.53 2001:db8::53 192.0.2.54:5353#dns.example; resolvectl domain w0 corp.example '~lan.example';"
        "resolvectl dnsovertls w0 opportunistic; resolvectl dns w1 ''"
    )


def resolved_settings(machine):
    return machine.shell("for k in dns domain default-route dnsovertls dnssec; do echo $k; resolvectl $k; done")


# The stand-in of systemctl keeps its state in /run/units: NAME is a unit's program, NAME.pid its process. A unit with a file
# NAME.stuck can neither be started nor stopped.
SYSTEMCTL = r"""#!/bin/bash
cd /run/units
echo "$*" >>said
property='' words=()
for word; do
  case $word in
  --property=*) property=${word#*=} ;;
  -*) ;;
  *) words[${#words[@]}]=$word ;;
  esac
done
unit=${words[1]}
running() { [ -s "$unit.pid" ] && kill -0 "$(cat "$unit.pid")" 2>/dev/null; }
case ${words[0]}-$property in
show-MainPID) if running; then cat "$unit.pid"; else echo 0; fi ;;
show-LoadState) if [ -e "$unit" ]; then echo loaded; else echo not-found; fi ;;
stop-*)
  [ ! -e "$unit.stuck" ] || { echo "Job for $unit failed." >&2; exit 1; }
  ! running || { kill "$(cat "$unit.pid")"; while running; do sleep 0.01; done; }
  rm -f "$unit.pid" ;;
start-*)
  [ -e "$unit" ] || { echo "Failed to start $unit: Unit $unit not found." >&2; exit 5; }
  ! running || exit 0
  [ ! -e "$unit.stuck" ] || { echo "Job for $unit failed." >&2; exit 1; }
  rm -f up
  # As systemd does, outside of the caller's control group.
  { printf '0\n' >/sys/fs/cgroup/cgroup.procs; exec setsid "./$unit"; } </dev/null >/dev/null 2>&1 7>&- 8>&- 9>&- &
  echo $! >"$unit.pid"
  until [ -e up ] || { [ -x "$unit.ready" ] && "./$unit.ready"; } || ! running; do sleep 0.01; done ;;
restart-*) "$0" stop "$unit" && "$0" start "$unit" ;;
reset-failed-*) ;;
*) exit 1 ;;
esac
"""

# Listens on Tor's ports like Debian's service: root opens the ports, and an account of its own runs the service.
TOR_SERVICE = """#!/usr/bin/python3
import ctypes, os, signal, socket
ctypes.CDLL(None).prctl(15, b"tor")
sockets = []
for port in %r:
    sockets.append(socket.socket()); sockets[-1].setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1); sockets[-1].bind(("127.0.0.1", port)); sockets[-1].listen()
os.setgroups([]); os.setgid(4108); os.setuid(4108)
open("/run/units/up", "w").close()
signal.pause()
"""
TOR_UNIT = "tor@default.service"


def add_systemctl(machine):
    machine.shell(
        'mkdir -p -m 777 /run/units; printf %s "$1" >/run/units/systemctl; chmod 755 /run/units/systemctl;'
        "mount --bind /run/units/systemctl /usr/bin/systemctl",
        SYSTEMCTL,
    )


def start_tor_service(machine, unit=TOR_UNIT, ports=(9050, 9051)):
    machine.shell('cd /run/units; printf %s "$1" >"$2"; chmod 755 "$2"; systemctl start "$2"', TOR_SERVICE % (ports,), unit)


def tor_service_runs(machine, unit=TOR_UNIT):
    return machine.shell('systemctl show --property=MainPID --value "$1"', unit) != "0\n"

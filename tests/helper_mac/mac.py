"""A private machine that looks like a Mac to the root helper.

Its root is an overlay over this system's, so nothing outside changes. The folders are a Mac's. Programs that only Linux has are
hidden. Programs that only a Mac has are stand-ins (standins/server.pl), which keep their state in /mac. Programs of both systems
refuse what a Mac's would refuse (standins/program.c). Tor is the real one, with `DisableNetwork 1`. These tests show nothing else
of a real Mac's behaviour.
"""

import fcntl
import ipaddress
import os
import re
import shutil
import socket
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "helper"))

import namespace  # noqa: E402
from namespace import HASH, TOR, USER_UID, HelperTest, main  # noqa: E402,F401

STAND_INS = (
    "uname sync mv killall ifconfig sysctl stat ls scutil dscacheutil dscl networksetup launchctl lsof " "pfctl df mount"
).split()
BSD = (
    "perl cat chmod chown cp date dirname env grep head id ln mkdir mktemp readlink rm rmdir sed shasum sleep sort tail touch tr wc xargs"
).split()
ONLY_LINUX = "flock timeout setpriv unshare setsid getent sha256sum nft umount ip ss gsettings pkexec useradd".split()

SETUP = """
set -eu
ip link set lo up
mount -t tmpfs -o mode=755 private /mnt
mkdir /mnt/upper /mnt/work /mnt/root
mount -t overlay -o "lowerdir=/,upperdir=/mnt/upper,workdir=/mnt/work" private /mnt/root
cd /mnt/root
mount -t proc proc proc
mount --rbind /dev dev
mkdir -p Library/Preferences "Library/Application Support" private/var/db private/var/run mac/gnu etc/tor
chmod 755 Library "Library/Application Support" private private/var private/var/db
for name in %(linux)s %(names)s; do
  for place in usr/bin usr/sbin; do
    [ ! -e $place/$name ] || mv $place/$name mac/gnu/$name
  done
done
for name in %(names)s; do ln -s /mac/program usr/bin/$name; done
rm -rf var/db var/lib/veldmark run/veldmark*
ln -s /private/var/db var/db
printf '127.0.0.1\\tlocalhost\\n::1\\tlocalhost' >private_hosts
mkdir -p private/etc
mv private_hosts private/etc/hosts
printf '%%s\\n' 'DisableNetwork 1' 'GeoIPFile /dev/null' 'GeoIPv6File /dev/null' >etc/tor/torrc-defaults
echo 'alice:x:%(uid)s:%(uid)s::/home/alice:/bin/bash' >>etc/passwd
echo 'alice:x:%(uid)s:' >>etc/group
mkdir -p home/alice && chown %(uid)s:%(uid)s home/alice && chmod 755 home home/alice
pivot_root . mnt
/mac/gnu/umount -l /mnt
cd /
""" % {
    "linux": " ".join(ONLY_LINUX),
    "names": " ".join(STAND_INS + BSD),
    "uid": USER_UID,
}

SERVICES = {  # the earlier settings of each service; the second one's name has special characters
    "Wi-Fi": {"dns": "192.0.2.53\n2001:db8::53", "bypass": "*.local\n169.254/16"},
    "Büro: USB 10/100 “LAN”": {
        "web": "Yes\tproxy.example\t3128",
        "secureweb": "Yes\tproxy.example\t3128",
        "auto": "Yes\thttp://wpad.example/a.pac",
        "discovery": "On",
        "socksfirewall": "Yes\t192.0.2.9\t1080",
    },
    "Thunderbolt Bridge": {},
    "*iPhone USB": {"dns": "192.0.2.99"},
    "Firma (IKEv2)": {"refuses": "set", "discovery": "On"},  # a VPN, which its own program or a profile sets
}

BEFORE_PF = {
    "pf  filter": 'scrub-anchor "com.apple/*" all fragment reassemble\nanchor "com.apple/*" all',
    "pf  dummynet": 'dummynet-anchor "com.apple/*" all',
    "pf  nat": 'nat-anchor "com.apple/*" all\nrdr-anchor "com.apple/*" all',
    "pf tokens": "77 socketfilterfw 18446743524953000000",
    "pf enabled": "1",
}


def escaped(value):
    return value.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t")


def unescaped(value):
    return (value.replace("\\\\", "\0").replace("\\n", "\n").replace("\\t", "\t")).replace("\0", "\\")


class Mac(namespace.Machine):
    SYSTEM = "darwin"
    SETUP = SETUP

    def __init__(self):
        super().__init__()
        self.root = f"/proc/{self.pid}/root"
        source = self.helper
        self.helper = "/Applications/Veldmark.app/Contents/Resources/veldmark-helper.sh"
        self.place(source, self.helper)
        subprocess.run(
            [
                "cc",
                "-O1",
                "-static",
                "-Wall",
                "-Wextra",
                "-Werror",
                "-o",
                self.root + "/mac/program",
                os.path.join(HERE, "standins", "program.c"),
            ],
            check=True,
        )
        for part in "server.pl", "launchd.pl", "pf.pl":
            self.place(os.path.join(HERE, "standins", part), "/mac/" + part)
        self.run("/mac/gnu/perl", "/mac/server.pl")
        self.reset()

    def command(self, words, uid=0):
        there = {"--wd=/": "--root", "setpriv": "/mac/gnu/setpriv"}
        return [there.get(word, word) for word in super().command([], uid)] + list(words)

    def place(self, source, target):
        path = self.root + target
        os.makedirs(os.path.dirname(path), exist_ok=True)
        shutil.copy(source, path)
        os.chmod(path, 0o755)

    def read(self, path):
        try:
            with open(self.root + path, encoding="utf-8") as file:
                return file.read()
        except FileNotFoundError:
            return None

    def write(self, path, text):
        with open(self.root + path, "w", encoding="utf-8") as file:
            file.write(text)

    @property
    def state(self):
        lines = (self.read("/mac/state") or "").splitlines()
        return {key: unescaped(value) for key, value in (line.split("\t", 1) for line in lines)}

    @state.setter
    def state(self, values):
        """The state of an idle Mac. While stand-ins run, use set_state for changes."""
        self.write("/mac/state.test", "".join(f"{key}\t{escaped(value)}\n" for key, value in sorted(values.items())))
        os.rename(self.root + "/mac/state.test", self.root + "/mac/state")

    def end_watcher(self):
        self.shell("launchctl bootout system/veldmark.watch; while launchctl list veldmark.watch; do sleep 0.02; done")

    def set_state(self, values):
        """Changes a part of the state in one step, under the stand-ins' lock."""
        with open(self.root + "/mac/lock", "a", encoding="ascii") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX)
            self.state = {**self.state, **values}

    def change(self, **values):
        """Changes the state; keys have "_" for blanks."""
        self.set_state({key.replace("_", " "): value for key, value in values.items()})

    def reset(self):
        """Makes the Mac as before its first connect."""
        state = {
            "primary": "Wi-Fi",
            "boot": "11111111-2222-3333-4444-555555555555",
            "location": "Automatic",
            "console": str(USER_UID),
            f"user {USER_UID}": f"alice {USER_UID} /home/alice",
            "user 0": "root 0 /var/root",
            "services Automatic": "\n".join(SERVICES),
            **BEFORE_PF,
            "record /Users/alice": "1",
            "record /Users/alice UniqueID": str(USER_UID),
            "record /Users/daemon UniqueID": "350",
            "record /Groups/staff PrimaryGroupID": "20",
            "record /Groups/_other PrimaryGroupID": "351",
        }
        for name, values in SERVICES.items():
            for key, value in values.items():
                state[f"service Automatic/{name.lstrip('*')} {key}"] = value
        self.state = state
        self.write("/mac/calls", "")

    def calls(self, name=""):
        return [line for line in self.read("/mac/calls").splitlines() if line.startswith(name)]

    def fail_at(self, number, mode="status"):
        self.write("/mac/fail", f"{number} {mode}\n")

    def fail_never(self):
        try:
            os.remove(self.root + "/mac/fail")
        except FileNotFoundError:
            pass

    def help_apart(self, *arguments, keeps):
        """Runs the helper as a prompt that makes only the effective ids root's, in a bash that keeps them or gives them up: this
        system's keeps them with -p."""
        apart = ["/mac/gnu/perl", "-e", f"$( = $< = {USER_UID}; exec @ARGV"]
        return self.run(*apart, "/bin/bash", *(["-p"] if keeps else []), self.helper, *arguments, check=False)

    def restart(self):
        """Restarts the computer: settings and files stay; rules, jobs and processes go."""
        state = self.state
        for key in [key for key in state if key.startswith(("job ", "pf ", "spawning ", "leaving ", "settling "))]:
            if key.startswith("job "):
                self.shell(f"kill -9 {state[key]} || true")
            del state[key]
        state.update(BEFORE_PF, boot="99999999-2222-3333-4444-555555555555")
        self.state = state

    def tor(self):
        """The process id of Tor's job, or None."""
        return self.state.get("job veldmark.tor")

    def settings(self):
        """The settings that a session may change and must put back. Accounts and counters stay."""
        state = {
            key: value
            for key, value in self.state.items()
            if not key.startswith(
                ("record ", "settling ", "pf flushes", "pf states", "pf last token", "dns flushed", "cache flushed")
            )
        }
        # networksetup does not distinguish an empty list from one that was never set.
        state = {
            key: value
            for key, value in state.items()
            if not (key.startswith("service ") and value in ("", "No\t\t0", "No\t(null)", "Off"))
        }
        files = self.shell(
            r"""
            find "/Library/Application Support/Veldmark/state" "/Library/Application Support/Veldmark/journal" -type f 2>/dev/null || true
            md5sum /private/etc/hosts; /mac/gnu/stat -c '%a %u %g' /private/etc/hosts
            pgrep -x tor || true; pgrep -f /watcher[.]sh || true"""
        )
        return state, files

    def decision(self, direction, proto, device, packet):
        """The rule that decides on this packet, or "pass" when none does."""
        state = self.state
        if state.get("pf enabled") != "1" or device in state.get("pf skip", "").split():
            return "pass"
        for line in state["pf  filter"].splitlines():
            rules = state.get("pf veldmark filter", "").splitlines() if line == 'anchor "veldmark" all' else [line]
            for rule in rules:
                if rule.startswith(("pass", "block")) and matches(rule, direction, proto, device, packet, state):
                    return rule
        return "pass"

    @staticmethod
    def packet(**packet):
        return {
            "af": "inet",
            "source": "198.51.100.7",
            "to": "203.0.113.5",
            "sport": "50000",
            "port": "443",
            "user": "501",
            "group": "20",
            "kind": "",
            "flags": "S",
            **{key: str(value) for key, value in packet.items()},
        }

    @staticmethod
    def flow(direction, proto, device, packet):
        return " ".join([direction, proto, device, *(packet[key] for key in ("source", "sport", "to", "port"))])

    def verdict(self, direction, proto="tcp", device="en0", **packet):
        """Whether pf passes a packet, according to its manual. packet: af, source, sport, to, port, user, group, kind, flags ("A":
        of a connection that stands)."""
        packet = self.packet(**packet)
        if self.flow(direction, proto, device, packet) in self.state.get("pf states", "").splitlines():
            return "pass"
        return self.decision(direction, proto, device, packet).split()[0]

    def begin_flow(self, direction, proto="tcp", device="en0", **packet):
        """Sends a connection's first packet. A rule that keeps state lets the others pass."""
        packet = self.packet(**packet)
        rule = self.decision(direction, proto, device, packet)
        if rule.startswith("pass") and rule.endswith("keep state"):
            flows = self.state.get("pf states", "").splitlines()
            self.set_state({"pf states": "\n".join([*flows, self.flow(direction, proto, device, packet)])})
        return rule.split()[0]

    def redirected(self, device="lo0", to="127.0.0.1", port=53):
        """Where a datagram for this address ends up, as "ADDRESS PORT"."""
        state = self.state
        enabled = state.get("pf enabled") == "1" and device not in state.get("pf skip", "").split()
        if enabled and 'rdr-anchor "veldmark" all' in state["pf  nat"].splitlines():
            for rule in state.get("pf veldmark nat", "").splitlines():
                found = re.fullmatch(r"rdr pass on (\S+) inet proto udp from any to (\S+) port = (\S+) -> (\S+) port (\d+)", rule)
                if (found[1], found[2], number_of(found[3])) == (device, to, str(port)):
                    return f"{found[4]} {found[5]}"
        return f"{to} {port}"


def number_of(port):
    """The number of a port that pfctl has printed by its name."""
    return {"dhcpv6-client": "546", "dhcpv6-server": "547"}.get(port) or (
        port if port.isdigit() else str(socket.getservbyname(port))
    )


MESSAGES = {"groupqry": "listqry", "grouprep": "listenrep"}  # two names for one message


def matches(rule, direction, proto, device, packet, state):
    """Whether an expanded rule matches this packet. An unknown word is an error."""
    words = rule.split()[1:]
    if words[0] in ("return", "drop"):
        words.pop(0)
    if words[0] in ("in", "out") and words.pop(0) != direction:
        return False
    assert words.pop(0) == "quick"
    side, ok = "from", True
    while words:
        word = words.pop(0)
        if word == "on":
            ok &= words.pop(0) == device
        elif word in ("inet", "inet6"):
            ok &= packet["af"] == word
        elif word == "proto":
            ok &= words.pop(0) == proto
        elif word == "all":
            pass
        elif word in ("from", "to"):
            side, where = word, words.pop(0)
            address = ipaddress.ip_address(packet["source" if side == "from" else "to"])
            if where.startswith("<"):
                ok &= str(address) in state.get(f"pf table {where[1:-1]}", "").split()
            elif where != "any":
                network = ipaddress.ip_network(where)
                ok &= network.version == address.version and address in network
        elif word == "port":
            assert words.pop(0) == "="
            ok &= number_of(words.pop(0)) == packet["sport" if side == "from" else "port"]
        elif word in ("user", "group"):
            assert words.pop(0) == "="
            ok &= words.pop(0) == packet[word] and direction == "out"
        elif word == "flags":
            assert words.pop(0) == "S/SA"
            ok &= proto != "tcp" or packet["flags"] == "S"
        elif word == "icmp6-type":
            kind = words.pop(0)
            ok &= MESSAGES.get(kind, kind) == packet["kind"]
        elif word in ("keep", "no"):
            assert words.pop(0) == "state"
        else:
            raise AssertionError(f"{word!r} in {rule!r}")
    return ok


class MacTest(HelperTest):
    """Tests on one private Mac per class."""

    @classmethod
    def setUpClass(cls):
        cls.machine = Mac()

    def setUp(self):
        self.machine.fail_never()
        self.machine.help("disconnect")
        self.machine.reset()
        self.before = self.machine.settings()

    def assertRestored(self):
        self.assertEqual(self.machine.settings(), self.before)

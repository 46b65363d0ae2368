"""Rows of the leak matrix for two more identities: a hostile program of the session's user, and one of another account.

The sessions between them have every pair of settings: bridges or none, passwordless mode on or off, the local network open or
closed. With passwordless mode the other account may use it as well. Each attack first works without its defence. There is one lab
with four sessions.
"""

import contextlib
from pathlib import Path

from leaks import attacks, probes
from leaks.case import HASH, PROGRAMS, SENDER
from leaks.matrix import CLOSED, Matrix

ATTACKS = str(Path(__file__).resolve().with_name("attacks.py"))
IDENTITIES = ("a program of the session's user", "a program of another account")
INDICES = (6, 7)  # the index of their probes
INSTALLED = "/usr/local/libexec/veldmark/veldmark-helper.sh"
ELSEWHERE = "/opt/own/veldmark-helper.sh"  # here sudo's rule counts as an administrator's approval
RULE = "/etc/sudoers.d/veldmark"
FILTER = "/usr/libexec/veldmark/veldmark-control"
BY_RULE = ("proxy", "lan", "interpreter", "program", "medium", "approval", "launch")
AWAY = "pkill -KILL -u _veldmark; while pgrep -u _veldmark; do sleep 0.01; done"
# bridges, passwordless, local network: each pair of settings occurs
SESSIONS = ((True, False, 0), (False, True, 0), (False, False, 1), (True, True, 1))
PACKETS = {"ordinary packets": probes.CORE, "by a setuid file of Tor's account": ("HTTP",), "by a port mapping of others": ("SSH",)}


class HostileRows:
    """A part of a LeakCase."""

    def hostile_rows(self):
        table = Matrix(IDENTITIES)
        names = [row for _, row in attacks.ATTACKS.values()] + list(PACKETS)
        rows = {name: table.row(name, [CLOSED, CLOSED]) for name in names}
        self.users = (self.host.user, "games")
        self.lab.tor.wait_bridges()
        self.host.write("/run/hostile/attacks.py", Path(ATTACKS).read_text(encoding="utf-8"))
        with contextlib.ExitStack() as stack:
            stack.callback(lambda: print(f"\nattacks that succeed where the defence is out / in strict mode\n{table}", flush=True))
            self.prepare(stack)
            self.without_defence(rows)
            for bridges, free, lan in SESSIONS:
                with self.subTest(bridges=bridges, free=free, lan=lan):
                    self.attacked_session(rows, bridges, free, lan)
            self.assertEqual(table.broken(set(table.rows)), [])

    def prepare(self, stack):
        self.sh(
            f"install -D -m 0755 {PROGRAMS}/veldmark-helper.sh {INSTALLED}; grep -q '^@includedir /etc/sudoers.d' /etc/sudoers ||"
            " echo '@includedir /etc/sudoers.d' >>/etc/sudoers; mkdir -p /opt/own /opt/interpreter; cp /usr/bin/perl /opt/interpreter/program;"
            f"cp /usr/bin/tor /opt/own/tor; chown {self.host.uid} /opt/own/tor; cp $(readlink -f /usr/bin/python3) /opt/own/left;"
            f"chown _veldmark /opt/own/left; chmod 4755 /opt/own/left; cp {INSTALLED} {ELSEWHERE}; cp {PROGRAMS}/veldmark-launch /opt/own"
        )
        stack.callback(self.sh, f"rm -rf /opt/own /opt/interpreter /usr/local/libexec/veldmark {RULE} /run/hostile")
        # A folder of root's, until it is a medium.
        self.sh(f"install -D /usr/bin/tor {attacks.MEDIUM}/tor")
        stack.callback(self.sh, f"! mountpoint -q {attacks.MEDIUM} || umount -l {attacks.MEDIUM}; rm -r {attacks.MEDIUM}")
        self.sh(f"mkdir {attacks.GROUP}; chmod 666 {attacks.GROUP}/cgroup.kill")
        stack.callback(self.sh, f"rmdir {attacks.GROUP}")
        maps = "; ".join(f"ip daddr 192.168.77.2 tcp dport 80{i} dnat to {probes.public(i)}:22" for i in INDICES)
        self.sh(f"nft -f - <<<'table ip other {{ chain o {{ type nat hook output priority -100; {maps}; }}; }}'")
        stack.callback(self.sh, "nft delete table ip other")

    def allow(self, helper):
        """Lets both accounts run that helper without a password. None: no account."""
        rules = "".join(f"{user} ALL=(root) NOPASSWD:NOSETENV: {helper}\n" for user in self.users)
        self.sh(f"printf '%s' \"$0\" >{RULE}; chmod 0440 {RULE}" if helper else f"rm -f {RULE}", rules)

    @classmethod
    def sh(cls, script, *words, **options):
        return cls.host.run(["/bin/bash", "-c", script, *words], check=True, **options).stdout

    def attack(self, rows, phase, *names, helper=INSTALLED, after=None):
        for column, user in enumerate(self.users):
            done = self.host.run(
                ["/usr/bin/python3", "-B", "/run/hostile/attacks.py", helper, *names], user=user, cwd="/", check=True
            )
            for name in done.stdout.split():
                cell = rows[attacks.ATTACKS[name][1]][column]
                setattr(cell, phase, getattr(cell, phase) + 1)
            if after:
                after()

    def packets(self, rows, phase):
        connect = "import socket; s = socket.socket(); s.setblocking(False); s.connect_ex(('{}', {}))"
        with self.watched() as seen:
            for index, user in zip(INDICES, self.users):
                for command in (
                    ["/usr/bin/python3", "-B", SENDER, "send", str(index), *probes.CORE],
                    ["/opt/own/left", "-c", connect.format(probes.public(index), 80)],
                    ["/usr/bin/python3", "-c", connect.format("192.168.77.2", f"80{index}")],
                ):
                    self.host.run(command, user=user, cwd="/", check=True)
        for (name, index), number in seen.counts().items():
            if index in INDICES:
                row = next(row for row, kinds in PACKETS.items() if name in kinds)
                cell = rows[row][INDICES.index(index)]
                setattr(cell, phase, getattr(cell, phase) + number)

    def bridge_words(self):
        return ["--bridge", self.lab.tor.bridge_line("obfs4"), "--pt-lyrebird", "/usr/bin/obfs4proxy"]

    def begin(self, bridges, lan, helper=PROGRAMS / "veldmark-helper.sh"):
        more = self.bridge_words() if bridges else []
        self.sh(
            f'echo 0 >{attacks.GROUP}/cgroup.procs; PKEXEC_UID=$0 exec "$@"',
            str(self.host.uid),
            "/bin/bash",
            str(helper),
            "connect",
            "--tor",
            "/usr/bin/tor",
            "--hash",
            HASH,
            "--strict",
            "1",
            "--lan",
            str(lan),
            *more,
        )
        if bridges:  # until the bridge program serves
            address, port = more[1].split()[1].rsplit(":", 1)
            type(self).bridge = address, int(port)
            self.sh("until grep -c ' 0A .* '$(id -u _veldmark)' ' /proc/net/tcp | grep -q 3; do sleep 0.05; done", timeout=30)

    def without_defence(self, rows):
        self.packets(rows, "control")
        # The path in the rule prevents an approval and an application.
        self.allow(ELSEWHERE)
        self.attack(rows, "control", "approval", helper=ELSEWHERE)
        self.begin(False, 0)
        self.attack(rows, "control", "launch", helper=ELSEWHERE)
        self.disconnect()
        # The filter, which the helper does not find here, and for the other account the rules.
        self.sh(f"mv {FILTER} {FILTER}.away")
        self.begin(False, 0, ELSEWHERE)
        self.sh(f"mv {FILTER}.away {FILTER}; pkill -STOP -f watcher[.]sh; nft delete table inet veldmark")
        self.attack(rows, "control", "configuration")
        self.sh("pkill -CONT -f watcher[.]sh")
        self.disconnect()
        # The running session prevents the local network and proxy mode. An interpreter is refused by its name, and a user's own
        # program by its missing approval.
        self.allow(INSTALLED)
        self.attack(rows, "control", "lan", after=self.disconnect)
        self.sh("mv /opt/interpreter/program /opt/interpreter/lyrebird; ln -s lyrebird /opt/interpreter/program")
        self.attack(rows, "control", "proxy", "interpreter", "program", "medium")
        self.sh("rm /opt/interpreter/program; mv /opt/interpreter/lyrebird /opt/interpreter/program")
        self.disconnect()
        self.sh(f"mount -t tmpfs -o nosuid,nodev medium {attacks.MEDIUM}; cp /usr/bin/tor {attacks.MEDIUM}")
        self.sh("rm -r /var/lib/veldmark/programs/*")
        self.allow(None)
        self.begin(True, 0)
        self.sh(
            "pkill -STOP -f watcher[.]sh; for c in answering opening; do nft flush chain inet veldmark $c; nft add rule inet veldmark $c accept; done;"
            "sysctl -qw net.ipv4.ip_unprivileged_port_start=0"
        )
        self.attack(rows, "control", "tunnel", "beside")
        self.sh(f"sysctl -qw net.ipv4.ip_unprivileged_port_start=1024; {AWAY}")
        self.attack(rows, "control", "place")
        self.sh("pkill -CONT -f watcher[.]sh")

        def in_reach():
            self.helper("fix-dns")
            self.sh(f"pgrep -o -f watcher[.]sh >{attacks.GROUP}/cgroup.procs")

        in_reach()
        self.attack(rows, "control", "kill", after=in_reach)
        self.disconnect()

    def attacked_session(self, rows, bridges, free, lan):
        self.allow(INSTALLED if free else None)
        self.attack(rows, "session", "interpreter", "program", "medium", "approval")  # these are refused without a session, too
        self.begin(bridges, lan)
        try:
            state = self.truth()
            self.attack(rows, "session", "beside", "configuration", *BY_RULE, *(["tunnel"] if bridges else []))
            self.packets(rows, "session")
            self.attack(rows, "session", "kill")
            self.assertEqual(self.truth(), state)
            self.sh(AWAY)
            self.attack(rows, "session", "place")
        finally:
            self.disconnect()

    def truth(self):
        return self.sh(
            "cat /var/lib/veldmark/state/active; md5sum </var/lib/veldmark/asked; nft -s -t list table inet veldmark; pgrep -u _veldmark"
        )

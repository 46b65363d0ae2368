"""The base of every scenario of the leak matrix: the host with its identities, the router that sees every packet, and the rows.

A scenario sets up further things (a device, a container, a proxy) by itself; see test_leaks.py.
"""

import contextlib
import os
import subprocess
import unittest
from pathlib import Path

from leaks import matrix, probes
from leaks.matrix import ABSENT, CLOSED, OPEN, Matrix
from veldlab.lab import PROJECT, Lab
from veldlab.product import Product

PROGRAMS = Path(os.environ.get("VELDMARK_PROGRAMS", PROJECT / "build" / "bin"))
SENDER = str(Path(__file__).resolve().with_name("sender.py"))
HASH = "16:0123456789ABCDEF60CA93B6650FDA506D171E63461568B343DE96B286"  # of "the word"
GROUPS = {2: "/sys/fs/cgroup/veldmark/tor", 3: "/sys/fs/cgroup/veldmark-bypass"}  # the identities that are in a control group
EVERYBODY = range(len(matrix.IDENTITIES))


class LeakCase(unittest.TestCase):
    """All scenarios of a class share a lab and a matrix. The class prints the matrix at its end."""

    @classmethod
    def setUpClass(cls):
        cls.lab = Lab()
        cls.lab.up()
        cls.addClassCleanup(cls.lab.down)
        cls.product = Product(cls.lab, PROGRAMS)
        cls.product.install_filter()
        cls.host = cls.lab.host
        cls.matrix = Matrix()
        cls.addClassCleanup(lambda: print(f"\npackets seen when nothing blocks / in strict mode\n{cls.matrix}", flush=True))
        world = "ip route add blackhole 203.0.113.0/24; ip route add blackhole 2001:db8:cb::/64"
        cls.lab.spaces["world"].run(["sh", "-c", world], check=True)
        cls.sh(
            "echo '0 2147483647' >/proc/sys/net/ipv4/ping_group_range; echo 2 >/proc/sys/net/ipv4/conf/eth0/force_igmp_version;"
            "echo 1 >/proc/sys/net/ipv6/conf/eth0/force_mld_version; echo 0 >/proc/sys/net/ipv4/icmp_ratelimit"
        )
        cls.connect()
        cls.disconnect()  # Tor's account exists from here on
        cls.sentinels = 0

    def setUp(self):
        self.known = set(self.matrix.rows)

    # ---- The host ----

    @classmethod
    def sh(cls, script, **options):
        return cls.host.run(["/bin/bash", "-c", script], check=True, **options).stdout

    @classmethod
    def helper(cls, *words, check=True):
        return cls.host.run(
            ["env", f"PKEXEC_UID={cls.host.uid}", "/bin/bash", str(PROGRAMS / "veldmark-helper.sh"), *words], check=check
        )

    @classmethod
    def connect(cls, lan=0, check=True):
        return cls.helper("connect", "--tor", "/usr/bin/tor", "--hash", HASH, "--strict", "1", "--lan", str(lan), check=check)

    bridge = None  # the bridge's address and port, in a session in which Tor reaches nothing else

    @classmethod
    def disconnect(cls):
        cls.helper("disconnect")
        cls.bridge = None

    @contextlib.contextmanager
    def session(self, **options):
        self.connect(**options)
        try:
            yield
        finally:
            self.disconnect()

    def words(self, identity, *arguments, within=True):
        """(command, options) that runs sender.py as the identity; `within` its control group, if it has one."""
        command = ["/usr/bin/python3", "-B", SENDER, *map(str, arguments)]
        if identity in GROUPS and within:  # root puts it in the group, as the helper does; without a session there is no group
            user = "_veldmark" if identity == 2 else str(self.host.uid)
            group = "_veldmark" if identity == 2 else str(self.host.uid)
            enter = '[ ! -d "$0" ] || echo 0 >"$0/cgroup.procs"; exec setpriv --reuid "$1" --regid "$2" --clear-groups -- /bin/sh -c \'cd /; exec "$@"\' sh "${@:3}"'
            return ["/bin/bash", "-c", enter, GROUPS[identity], user, group, *command], {}
        user = ("nobody", "root", "_veldmark", "root", "root", "root")[identity]
        return command, {"user": user, "cwd": "/"}

    def start(self, identity, *arguments, within=True, **pipes):
        command, options = self.words(identity, *arguments, within=within)
        return self.host.popen(
            command, **options, **({"stdout": subprocess.PIPE, "stderr": subprocess.STDOUT, "text": True} | pipes)
        )

    def send(self, names, identities=EVERYBODY, within=True):
        """Sends as all identities at once; returns when everything has been sent."""
        running = {}
        for identity in identities:
            mine = [n for n in names if matrix.promise(n, identity) != ABSENT]
            running[identity] = self.start(identity, "send", identity, *mine, within=within)
        for identity, process in running.items():
            output, _ = process.communicate(timeout=60)
            self.assertEqual(process.returncode, 0, f"{matrix.IDENTITIES[identity]}: {output}")

    # ---- The router ----

    @contextlib.contextmanager
    def watched(self):
        """Captures both of the router's links. After the context the yielded object has the packets from the user's side."""
        seen = Seen()
        with self.lab.capture("host") as host, self.lab.capture("world") as world:
            seen.captures = host, world
            yield seen
            self.settle(seen)
        seen.packets = [[p for p in capture.packets if p.out] for capture in (host, world)]

    def settle(self, seen):
        """Returns when everything that the host has sent so far is recorded: a later packet, which passes in every state, has
        arrived."""
        # That packet would overtake a packet that waits for a neighbour's address; the kernel gives up by itself after three
        # seconds.
        self.sh("while ip neigh show nud incomplete | grep -q .; do sleep 0.02; done", timeout=30)
        type(self).sentinels += 1
        port = 20000 + self.sentinels  # the kernel assigns other ports
        address, at_port = self.bridge or (matrix.SENTINEL, 1000)
        self.host.run(
            [
                "/bin/sh",
                "-c",
                '[ ! -d "$0" ] || echo 0 >"$0/cgroup.procs"; exec setpriv --reuid _veldmark --clear-groups "$@"',
                GROUPS[2],
                "/usr/bin/python3",
                "-c",
                f"import socket; s = socket.socket(); s.bind(('', {port})); s.setblocking(False);"
                f"s.connect_ex(('{address}', {at_port}))",
            ],
            cwd="/",
            check=True,
        )
        for capture in seen.captures:
            capture.wait_for(lambda p: p.dst == address and p.sport == port)

    def run_probes(self, names, identities=EVERYBODY, within=True):
        with self.watched() as seen:
            self.send(names, identities, within)
        return seen

    def assert_no_strangers(self, scenario, seen):
        strangers = seen.strangers()
        self.assertEqual(strangers, [], f"{scenario}: packets of no identity that are not on the allow-list")

    # ---- Rows ----

    def assert_kept(self):
        """Asserts the promises of this test's rows."""
        self.assertEqual(self.matrix.broken(set(self.matrix.rows) - self.known), [])

    def core(self, scenario, names=probes.CORE, phase="session", identities=EVERYBODY):
        """One row: the sum over ordinary probes for each identity. Tor's TCP is allowed, so its cell counts the other probes."""
        cells = self.matrix.row(
            scenario, [CLOSED if i < 3 and i in identities else OPEN if i in identities else ABSENT for i in EVERYBODY]
        )
        seen = self.run_probes(names, identities)
        counts = seen.counts()
        for (name, identity), number in counts.items():
            if identity < len(cells) and not (identity == 2 and probes.PROBES[name][0] == "tcp"):
                setattr(cells[identity], phase, getattr(cells[identity], phase) + number)
        if phase == "session":
            self.assert_no_strangers(scenario, seen)
        return seen

    def in_both(self, arrangements, **options):
        """Tries each arrangement of the network, {name: (make, unmake, probes)}, first without a session, then in one."""
        for phase in ("control", "session"):
            with self.session(**options) if phase == "session" else contextlib.nullcontext():
                for name, (make, unmake, names) in arrangements.items():
                    with self.subTest(name, phase=phase):
                        self.sh(make)
                        try:
                            self.core(name, names, phase)
                        finally:
                            self.sh(unmake)

    def under_flood(self, scenario, action):
        """The row counts the packets that came through while `action` ran and all identities sent without pause."""
        cells = self.matrix.rows[scenario]
        with self.watched() as seen:
            floods = [self.start(i, "flood", i, *probes.CORE, stdin=subprocess.PIPE) for i in EVERYBODY]
            try:
                for flood in floods:
                    self.assertEqual(flood.stdout.readline(), "ready\n")
                action()
            finally:
                for flood in floods:
                    flood.communicate()
        for (name, identity), number in seen.counts().items():
            if not (identity == 2 and probes.PROBES[name][0] == "tcp"):
                cells[identity].session += number
        self.assert_no_strangers(scenario, seen)

    @staticmethod
    def counted(packets):
        counts = {}
        for packet in packets:
            owner = probes.owner(packet) if packet.out else None
            if owner and not (owner[1] == 2 and probes.PROBES[owner[0]][0] == "tcp"):
                counts[owner[1]] = counts.get(owner[1], 0) + 1
        return counts


class Seen:
    """The packets of the user's machine in two captures."""

    packets: list
    captures: tuple

    def counts(self):
        """{(probe, identity): packets}. The larger number of the two links counts, since most packets pass both."""
        totals = {}
        for packets in self.packets:
            found = {}
            for packet in packets:
                owner = probes.owner(packet)
                if owner:
                    found[owner] = found.get(owner, 0) + 1
            for owner, number in found.items():
                totals[owner] = max(totals.get(owner, 0), number)
        return totals

    def strangers(self):
        """Unexpected packets on the link to the user's machine. The other link has the router's own packets as well."""
        return [str(p) for p in self.packets[0] if not probes.owner(p) and not matrix.is_allowed(p)]

"""The leak matrix: the packets that leave the user's machine in strict mode, at every moment and by every known way.

Every scenario runs as four identities (nobody, root, Tor's account, an application without Tor), with all of the router's packets
captured; matrix.is_allowed is the only filter. A control run first shows that the probes arrive when nothing blocks them. Prints
the table.
"""

import contextlib
import subprocess
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from leaks import matrix, probes  # noqa: E402
from leaks.case import EVERYBODY, HASH, PROGRAMS, SENDER, LeakCase, Seen  # noqa: E402
from leaks.hostile import HostileRows  # noqa: E402
from leaks.matrix import ABSENT, CLOSED, OPEN  # noqa: E402
from leaks.swapped import SwappedRow  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.lab import PROJECT  # noqa: E402

CONTAINER, FORWARDER = 4, 5  # the indices of senders that are no identities
LAN_NAMES = ("a neighbour, TCP", "a neighbour, TCP, IPv6", "a neighbour, UDP", "the gateway, TCP")
NEVER_LAN = (
    "DNS to the gateway",
    "DNS to a neighbour",
    "mDNS",
    "mDNS, IPv6",
    "LLMNR",
    "LLMNR, IPv6",
    "NetBIOS names",
    "NetBIOS datagrams",
)


class Leaks(HostileRows, SwappedRow, LeakCase):
    def test_1_every_kind_of_packet(self):
        self.matrix.add_kinds(self.run_probes(list(probes.PROBES)).counts(), "control")
        with self.session():
            seen = self.run_probes(list(probes.PROBES))
        self.matrix.add_kinds(seen.counts(), "session")
        self.assert_no_strangers("every kind", seen)
        self.assert_kept()

    def test_2_networks_that_change_during_the_session(self):
        four = [n for n in probes.CORE if "IPv6" not in n]
        router = self.lab.router
        router.run(
            ["sh", "-c", "echo 1 >/proc/sys/net/ipv4/conf/br0/proxy_arp; echo 80 >/proc/sys/net/ipv4/neigh/br0/proxy_delay"],
            check=True,
        )
        via = at.ROUTER_LAN_ADDRESS
        self.in_both(
            {
                "a new route for half of the world": (
                    f"ip route add 0.0.0.0/1 via {via}; ip route add 128.0.0.0/1 via {via}",
                    "ip route del 0.0.0.0/1; ip route del 128.0.0.0/1",
                    probes.CORE,
                ),
                "a new route for one address": (
                    "".join(f"ip route add {probes.public(i)}/32 via {via};" for i in EVERYBODY),
                    "".join(f"ip route del {probes.public(i)}/32;" for i in EVERYBODY),
                    four,
                ),
                "public addresses announced as on the link": (
                    "ip route add 203.0.113.96/27 dev eth0; ip route add 203.0.113.128/25 dev eth0",
                    "ip route del 203.0.113.96/27; ip route del 203.0.113.128/25",
                    four,
                ),
                "a new address": (
                    "ip addr add 192.168.77.60/24 dev eth0; ip route replace default via 192.168.77.1 src 192.168.77.60",
                    "ip route replace default via 192.168.77.1; ip addr del 192.168.77.60/24 dev eth0",
                    four,
                ),
                "another program's rule that accepts": (
                    "nft -f - <<<'table inet other { chain o { type filter hook output priority -300; policy accept; accept; };"
                    " chain p { type filter hook output priority 300; policy accept; accept; }; }'",
                    "nft delete table inet other",
                    probes.CORE,
                ),
                "an interface that appears": (
                    "ip link add new0 type veth peer name new1; ip link set new0 up; ip link set new1 up; ip addr add 10.9.0.1/24 dev new0",
                    "ip link del new0",
                    probes.CORE,
                ),
            }
        )
        self.assert_kept()

    def test_2_a_hostile_dhcp_server(self):
        """The lease makes a neighbour the gateway and the route to each half of the addresses, puts public addresses on the link,
        and changes address, packet size and name server. The resolver file is written in place, as clients do where they cannot
        replace it."""
        neighbour, neighbour6 = at.LAN_ADDRESS, at.LAN_ADDRESS6
        lease = (
            f"cp /etc/resolv.conf /run/resolv.before; echo 'nameserver {neighbour}' >/etc/resolv.conf; ip link set eth0 mtu 1400;"
            f"ip addr add 192.168.77.61/24 dev eth0; ip route replace default via {neighbour}; ip route replace ::/0 via {neighbour6};"
            f"ip route add 0.0.0.0/1 via {neighbour}; ip route add 128.0.0.0/1 via {neighbour}; ip route add 8000::/1 via {neighbour6};"
            f"ip route add 203.0.113.128/25 dev eth0; ip route add {matrix.SENTINEL}/32 via {at.ROUTER_LAN_ADDRESS}"
        )
        end = (
            f"cat /run/resolv.before >/etc/resolv.conf; ip link set eth0 mtu 1500; ip route del {matrix.SENTINEL}/32; ip route del 203.0.113.128/25;"
            f"ip route del 8000::/1; ip route del 128.0.0.0/1; ip route del 0.0.0.0/1; ip route replace default via {at.ROUTER_LAN_ADDRESS};"
            f"ip route replace ::/0 via {at.ROUTER_LAN_ADDRESS6}; ip addr del 192.168.77.61/24 dev eth0"
        )
        names = (*probes.CORE, "DNS over TCP", "DNS over TLS", "DNS to a neighbour", "DNS to the gateway")
        self.in_both({"a hostile DHCP lease": (lease, end, names)})
        self.in_both({"a hostile DHCP lease, with --lan 1": (lease, end, names)}, lan=1)
        self.assert_kept()

    def test_3_a_second_way_out(self):
        """A network device that is plugged in later has its own route to the world."""
        four = [n for n in probes.CORE if "IPv6" not in n]
        for phase in ("control", "session"):
            with self.session() if phase == "session" else contextlib.nullcontext():
                # A bridge takes the lowest address of its ports; a new one must not change the gateway's.
                self.lab.router.run(
                    [
                        "sh",
                        "-c",
                        "ip link add two1 address fe:ff:ff:ff:ff:fe type veth peer name two0 netns host; ip link set two1 master br0; "
                        "ip link set two1 up",
                    ],
                    check=True,
                )
                self.sh(
                    "ip link set two0 up; ip addr add 192.168.77.70/32 dev two0; ip route add 192.168.77.1/32 dev two0 src 192.168.77.70;"
                    "ip route add 203.0.113.96/27 via 192.168.77.1 dev two0; ip route add 203.0.113.128/25 via 192.168.77.1 dev two0"
                )
                try:
                    self.core("a second device with a way out", four, phase)
                finally:
                    self.sh("ip link del two0")
        self.assert_kept()

    def test_4_moments_of_a_session(self):
        moments = [
            "Tor has not bootstrapped yet",
            "connected",
            "Tor was killed",
            "Tor hangs",
            "the rules were loaded twenty times",
            "fix-dns ran",
            "the rules were flushed, and they are back",
            "Tor could not start again",
            "the helper was killed while it connected again",
        ]
        control = {}
        seen = self.run_probes(probes.CORE)
        for (name, identity), number in seen.counts().items():
            if not (identity == 2 and probes.PROBES[name][0] == "tcp"):
                control[identity] = control.get(identity, 0) + number
        for moment in moments:
            for identity, cell in enumerate(self.matrix.row(moment, [CLOSED, CLOSED, CLOSED, OPEN])):
                cell.control = control.get(identity, 0)
        self.sh("rm -rf /var/lib/veldmark/run/tor/data")
        with self.session():
            self.core("Tor has not bootstrapped yet")
            self.sh("until grep -q 'Bootstrapped 100%' /var/lib/veldmark/run/notices.log; do sleep 0.05; done", timeout=60)
            self.core("connected")
            self.sh("pgrep -u _veldmark -x tor")  # the probes' lookups are short and invalid: they must not have ended Tor
            self.sh("pkill -STOP -u _veldmark")
            self.core("Tor hangs")
            self.sh("pkill -KILL -u _veldmark; while pgrep -u _veldmark; do sleep 0.01; done")
            self.core("Tor was killed")
            self.helper("fix-dns")
            self.core("fix-dns ran")
            self.sh(
                "until pgrep -x nft; do sleep 0.01; done; nft flush ruleset; until nft list chain inet veldmark output; do :; done >/dev/null 2>&1"
            )
            self.core("the rules were flushed, and they are back")
            holder = self.host.popen(
                [
                    "/usr/bin/python3",
                    "-c",
                    "import socket,sys; s = socket.socket(); s.bind(('127.0.0.1', 9051));"
                    "print('up', flush=True); sys.stdin.read()",
                ],
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
            )
            self.assertEqual(holder.stdout.readline(), b"up\n")
            self.assertNotEqual(self.connect(check=False).returncode, 0)
            self.core("Tor could not start again")
            holder.communicate()
            self.under_flood(
                "the rules were loaded twenty times",
                lambda: self.sh("for i in $(seq 20); do nft -f /var/lib/veldmark/run/firewall.nft; done"),
            )
            stepped = str(PROJECT / "tests" / "helper" / "stepped.sh")
            words = ["connect", "--tor", "/usr/bin/tor", "--hash", HASH, "--strict", "1", "--lan", "0"]

            def stepped_to(kill_after):
                self.host.run(
                    [
                        "env",
                        "-i",
                        f"PKEXEC_UID={self.host.uid}",
                        "/bin/bash",
                        "-p",
                        stepped,
                        str(PROGRAMS / "veldmark-helper.sh"),
                        "/run/changes",
                        kill_after,
                        "",
                        "",
                        *words,
                    ],
                    timeout=300,
                )  # besides four senders without a pause
                self.sh("flock /run/veldmark.lock true")
                return self.sh("cat /run/changes").splitlines()

            # One flood for each kill: the recorder cannot keep up with a longer flood.
            scenario, points = "the helper was killed while it connected again", []
            self.under_flood(scenario, lambda: points.extend(stepped_to("")))
            self.assertGreater(len(points), 20)
            # The number of a process's children differs from run to run.
            for point in [point for point in points if '"$child" #' not in point][::5]:
                self.under_flood(scenario, lambda p=point: self.assertEqual(stepped_to(p)[-1], p))
        self.assert_kept()

    def test_5_from_the_first_moment_to_the_last(self):
        """Probes are sent without pause over a whole connect and disconnect. None arrives between the loading of the rules and the
        disconnect."""
        cells = self.matrix.row("from the first rule to the disconnect", [CLOSED] * 3 + [ABSENT])
        with self.lab.capture("host") as capture:
            floods = [self.start(i, "flood", i, *probes.CORE, stdin=subprocess.PIPE) for i in range(3)]
            for flood in floods:
                self.assertEqual(flood.stdout.readline(), "ready\n")
            for identity in range(3):
                capture.wait_for(lambda p, i=identity: probes.owner(p) == ("UDP", i))
            before = self.counted(capture.packets)
            waiting = self.host.popen(["/bin/bash", "-c", "until nft list chain inet veldmark output; do :; done >/dev/null 2>&1"])
            helper = self.host.popen(
                [
                    "env",
                    f"PKEXEC_UID={self.host.uid}",
                    "/bin/bash",
                    str(PROGRAMS / "veldmark-helper.sh"),
                    "connect",
                    "--tor",
                    "/usr/bin/tor",
                    "--hash",
                    HASH,
                    "--strict",
                    "1",
                    "--lan",
                    "0",
                ]
            )
            self.assertEqual(waiting.wait(30), 0)
            seen = Seen()
            seen.captures = (capture,)
            self.settle(seen)
            first = len(capture.packets)
            self.assertEqual(helper.wait(60), 0)
            self.settle(seen)
            during = self.counted(capture.packets[first:])
            for flood in floods:
                flood.communicate()
            self.disconnect()
        for identity in range(3):
            cells[identity].control, cells[identity].session = before.get(identity, 0), during.get(identity, 0)
        self.assert_kept()

    def test_6_what_was_open_before(self):
        rows = {
            name: self.matrix.row(name, promises)
            for name, promises in {
                # Tor's account as well: its sockets are from outside Tor's control group.
                "a TCP connection from before": [CLOSED] * 4,
                "a UDP flow from before": [CLOSED] * 4,
                "a DNS flow from before": [CLOSED] * 4,
            }.items()
        }
        bases = dict(zip(rows, (probes.HELD_TCP, probes.HELD_UDP, probes.HELD_DNS)))
        holders = [self.start(i, "hold", i, stdin=subprocess.PIPE) for i in EVERYBODY]
        for holder in holders:
            self.assertEqual(holder.stdout.readline(), "ready\n")

        def use(phase):
            with self.watched() as seen:
                for holder in holders:
                    holder.stdin.write("\n")
                    holder.stdin.flush()
                    self.assertEqual(holder.stdout.readline(), "sent\n")
            for name, cells in rows.items():
                for identity, cell in enumerate(cells):
                    port = bases[name] + identity
                    # The mere end of a connection reveals nothing new; data would.
                    found = [p for p in seen.packets[0] if p.sport == port]
                    setattr(cell, phase, len(found))

        use("control")
        with self.session():
            use("session")
            for holder in holders:
                holder.communicate()
        self.assert_kept()

    def test_7_a_container_behind_the_machine(self):
        cells = self.matrix.row("forwarded for a container", [ABSENT, CLOSED, ABSENT, ABSENT])
        holder = self.host.popen(["unshare", "--net", "sh", "-c", "echo $$; exec sleep 1000"], stdout=subprocess.PIPE, text=True)
        pid = holder.stdout.readline().strip()
        # The shell prints the process id on the host, so it is the host's.
        self.sh(
            f"ip link add c0 type veth peer name c1; ip link set c1 netns {pid}; ip link set c0 up; ip addr add 10.88.0.1/24 dev c0;"
            "ip addr add fd88::1/64 dev c0 nodad; echo 1 >/proc/sys/net/ipv4/ip_forward; echo 1 >/proc/sys/net/ipv6/conf/all/forwarding;"
            f"nsenter -t {pid} -n sh -c 'ip link set lo up; ip link set c1 up; ip addr add 10.88.0.2/24 dev c1; ip addr add fd88::2/64 dev c1 nodad;"
            "ip route add default via 10.88.0.1; ip -6 route add default via fd88::1'; ip route replace ::/0 via 2001:db8:77::1"
        )
        try:
            for phase in ("control", "session"):
                with self.session() if phase == "session" else contextlib.nullcontext():
                    with self.watched() as seen:
                        self.host.run(
                            ["nsenter", "-t", pid, "-n", "/usr/bin/python3", "-B", SENDER, "send", str(CONTAINER), *probes.CORE],
                            check=True,
                        )
                    setattr(cells[1], phase, sum(n for (_, i), n in seen.counts().items() if i == CONTAINER))
                    if phase == "session":
                        self.assert_no_strangers("container", seen)
        finally:
            self.sh(
                "ip link del c0; echo 0 >/proc/sys/net/ipv4/ip_forward; echo 0 >/proc/sys/net/ipv6/conf/all/forwarding;"
                f"kill {pid}; ip route replace ::/0 via 2001:db8:77::1"
            )
            holder.wait()
            holder.stdout.close()
        self.assert_kept()

    def test_8_a_local_proxy_of_roots(self):
        cells = self.matrix.row("by a local proxy of root's", [CLOSED, ABSENT, ABSENT, ABSENT])
        forwarder = self.start(FORWARDER, "forward", FORWARDER)
        self.assertEqual(forwarder.stdout.readline(), "ready\n")
        try:
            for phase in ("control", "session"):
                with self.session() if phase == "session" else contextlib.nullcontext():
                    with self.watched() as seen:
                        asked = self.start(0, "ask")
                        output, _ = asked.communicate(timeout=30)
                        self.assertEqual(asked.returncode, 0, output)
                    setattr(cells[0], phase, sum(n for (_, i), n in seen.counts().items() if i == FORWARDER))
        finally:
            forwarder.kill()
            forwarder.communicate()
        self.assert_kept()

    def test_9_probes_from_outside(self):
        """The host answers no unsolicited packet, neither from the neighbour nor from the world."""
        cells = self.matrix.row("answers to probes from outside", [ABSENT, CLOSED, ABSENT, ABSENT])
        server = self.host.popen(
            [
                "/usr/bin/python3",
                "-c",
                "import socket; s = socket.create_server(('', 8081)); print('up', flush=True);" "\nwhile True: s.accept()",
            ],
            stdout=subprocess.PIPE,
        )
        self.assertEqual(server.stdout.readline(), b"up\n")
        knock = (
            "import socket, struct\nfor port in (8081, 81):\n s = socket.socket(); s.setblocking(False); s.connect_ex(('192.168.77.2', port))\n"
            "u = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); u.sendto(b'x', ('192.168.77.2', 82))\n"
            "p = socket.socket(socket.AF_INET, socket.SOCK_RAW, 1); p.sendto(struct.pack('!BBHHH', 8, 0, 0xF7FF, 0, 0), ('192.168.77.2', 0))"
        )
        try:
            for phase in ("control", "session"):
                with self.session() if phase == "session" else contextlib.nullcontext():
                    with self.watched() as seen:
                        for space in ("lan", "world"):
                            self.lab.spaces[space].run(["/usr/bin/python3", "-c", knock], check=True)
                    answers = [
                        p
                        for p in seen.packets[0]
                        if not matrix.is_allowed(p) and p.dst in (at.LAN_ADDRESS, at.WORLD_ADDRESS, "203.0.113.1")
                    ]
                    setattr(cells[1], phase, len(answers))
        finally:
            server.kill()
            server.communicate()
        self.assert_kept()

    def test_a_with_the_local_network_open(self):
        control = self.run_probes([*LAN_NAMES, *NEVER_LAN, *probes.CORE]).counts()
        with self.session(lan=1):
            seen = self.run_probes([*LAN_NAMES, *NEVER_LAN, *probes.CORE])
            session = seen.counts()
        groups = {
            "with --lan 1: the local network": (LAN_NAMES[:1] + LAN_NAMES[2:], [OPEN] * 4),
            "with --lan 1: names from the local network": (NEVER_LAN, [CLOSED] * 3 + [OPEN]),
            "with --lan 1: the world": (probes.CORE, [CLOSED] * 3 + [OPEN]),
        }
        for row, (names, promises) in groups.items():
            for identity, cell in enumerate(self.matrix.row(row, promises)):
                wanted = [n for n in names if not (identity == 2 and row.endswith("world") and probes.PROBES[n][0] == "tcp")]
                cell.control = sum(control.get((n, identity), 0) for n in wanted)
                cell.session = sum(session.get((n, identity), 0) for n in wanted)
        self.assert_kept()

    def test_b_the_application_was_killed(self):
        control = self.run_probes(probes.CORE)
        cells = self.matrix.row("the application was killed", [CLOSED] * 3 + [OPEN])
        for (name, identity), number in control.counts().items():
            if not (identity == 2 and probes.PROBES[name][0] == "tcp"):
                cells[identity].control += number
        with self.product.session() as session:
            session.wait_phase("connected")
            self.host.run(["pkill", "-KILL", "veldmarkctl"], check=True)
            session.process.wait()
        self.core("the application was killed")
        self.disconnect()
        after = self.run_probes(probes.CORE).counts()
        open_again = self.matrix.row("after the disconnect everything is open again", [OPEN] * 4)
        for (_, identity), number in control.counts().items():
            open_again[identity].control += number
        for (_, identity), number in after.items():
            open_again[identity].session += number
        self.assert_kept()

    def test_c_an_application_that_was_opened_without_tor(self):
        """The helper's launch starts it. It reaches the world directly, and looks up names at the former resolver."""
        script = "/usr/local/bin/opened"
        self.host.write(
            script,
            "#!/bin/sh\ncurl -4 -sS --max-time 10 http://www.example.test/ip >/home/alice/ip.new 2>&1\n"
            "mv /home/alice/ip.new /home/alice/ip\n",
            mode=0o755,
        )
        with self.session():
            since = len(self.lab.world.dns_log())
            self.helper("launch", "--uid", str(self.host.uid), "--app", script)
            self.sh("until [ -e /home/alice/ip ]; do sleep 0.02; done", timeout=30)
            self.assertEqual(self.sh("cat /home/alice/ip").strip(), at.HOST_ADDRESS)
            asked = [entry for entry in self.lab.world.dns_log(since) if entry["name"] == "www.example.test"]
            self.assertTrue(asked and all(entry["source"] == at.HOST_ADDRESS for entry in asked), asked)
        self.sh(f"rm {script} /home/alice/ip")

    def test_d_tors_account_outside_its_control_group(self):
        """The packets of a setuid file of Tor's account that an earlier session has left."""
        cells = self.matrix.row("Tor's account outside Tor's control group", [ABSENT, ABSENT, CLOSED, ABSENT])
        cells[2].control = sum(self.run_probes(probes.CORE, [2]).counts().values())
        with self.session():
            self.assertGreater(sum(self.run_probes(probes.CORE, [2]).counts().values()), 0, "in the group its TCP goes out")
            cells[2].session = sum(self.run_probes(probes.CORE, [2], within=False).counts().values())
        self.assert_kept()

    def test_e_programs_without_roots_rights(self):
        """Attacks on the session by programs of the session's user and of another account."""
        self.hostile_rows()

    def test_f_a_bridge_program_that_is_swapped_after_it_was_verified(self):
        """A program of the session's user swaps it; no approval is needed for that program."""
        self.swapped_row()


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(77)
    unittest.main(verbosity=2)

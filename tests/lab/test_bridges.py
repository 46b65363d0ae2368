"""Bridges end to end: the shipped program, Debian's obfs4proxy at both ends, and only the bridge's traffic on the wire."""

import contextlib
import json
import re
import subprocess
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import FAST_FORWARD, PROGRAMS, RESTORE, SKIPPED, TIMEOUT, LabCase  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.product import is_probed  # noqa: E402

OBFS4 = next(node for node in at.BRIDGES if node.transport == "obfs4")
PLAIN = next(node for node in at.BRIDGES if not node.transport)


class Bridges(LabCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.lab.tor.wait_bridges()

    def setUp(self):
        # A cached network would let tor start without asking the bridge.
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/tor/data"], check=True)
        super().setUp()

    def use(self, *lines):
        self.set("bridgeChoice", "custom")
        self.set("customBridges", "\n".join(lines))

    @staticmethod
    def sent(packets):
        """The packets that left the host, without the router's own neighbour discovery on its link."""
        return [
            p
            for p in packets
            if p.out and p.family != "arp" and not p.src.startswith("fe80:") and p.src != at.ROUTER_WORLD_ADDRESS6
        ]

    def connect_by(self, bridge):
        """Connects, and asserts that the host talks only to the bridge."""
        with self.lab.capture() as capture, self.product.session() as session:
            state = session.wait(is_probed)
            self.assertEqual(state["activeBridge"], "custom")
            self.assertIn(state["exitIP"], self.lab.tor.exits)
            self.assertEqual(state["leakStatus"], "blocked")
            seen = len(capture.packets)
            self.assertEqual(session.interrupt(), 0, session.output)
        sent = self.sent(capture.packets[:seen])
        self.assertTrue(sent)
        self.assertEqual({p.dst for p in sent}, {bridge})
        self.assert_restored()

    def test_a_bridge_programs_port_is_no_tunnel_for_others(self):
        """Every account can see the transport's port in /proc/net/tcp. A program that could use it would reach a server of its own
        from the real address."""
        ask = (
            "import socket, sys; s = socket.socket(); s.settimeout(float(sys.argv[2])); print(s.connect_ex(('127.0.0.1', int(sys.argv[1]))) or"
            " (s.send(b'\\x05\\x01\\x02'), s.recv(2).hex())[1])"
        )
        self.use(self.lab.tor.bridge_line("obfs4"))
        with self.product.session() as session:
            session.wait(is_probed)
            listening = self.lab.host.run(
                ["/bin/sh", "-c", "awk -v u=$(id -u _veldmark) '$4 == \"0A\" && $8 == u {print $2}' /proc/net/tcp"]
            ).stdout.split()
            ports = {int(line.split(":")[1], 16) for line in listening} - {9050, 9051}
            self.assertEqual(len(ports), 1, listening)
            [port] = ports

            def asked(user, seconds):
                return self.lab.host.run(
                    ["/usr/bin/python3", "-c", ask, str(port), str(seconds)], user=user, cwd="/", check=True
                ).stdout.strip()

            for user in "nobody", "root", "_veldmark":
                self.assertEqual(asked(user, 1), "11", user)
            self.lab.host.run(
                [
                    "/bin/sh",
                    "-c",
                    "pkill -STOP -f watcher[.]sh; nft flush chain inet veldmark answering; nft add rule inet veldmark answering accept",
                ],
                check=True,
            )
            self.assertEqual(asked("nobody", 10), "0502")  # it speaks SOCKS with every client
            self.lab.host.run(["pkill", "-CONT", "-f", "watcher[.]sh"], check=True)
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_an_obfs4_bridge_is_all_that_is_contacted(self):
        self.use(self.lab.tor.bridge_line("obfs4"))
        self.connect_by(OBFS4.address)

    def test_a_plain_bridge_needs_no_program(self):
        self.use("Bridge " + self.lab.tor.bridge_line(""))
        self.connect_by(PLAIN.address)

    def test_a_bridge_with_an_ipv6_address_is_all_that_is_contacted(self):
        self.use(self.lab.tor.bridge_line("", ipv6=True))
        self.connect_by(PLAIN.address6)

    def test_an_obfs4_bridge_with_an_ipv6_address_is_all_that_is_contacted(self):
        self.use(self.lab.tor.bridge_line("obfs4", ipv6=True))
        self.connect_by(OBFS4.address6)

    def test_the_first_hop_of_a_circuit_is_the_bridge_with_its_address(self):
        self.use(self.lab.tor.bridge_line("obfs4"))
        with self.product.session() as session:
            session.wait(is_probed)
            with self.download(at.WEB_HOSTS[0]):
                for circuit in self.circuits_to(*at.WEB_SITES):
                    self.assertEqual((circuit["hops"][0]["ip"], circuit["hops"][0]["country"]), (OBFS4.address, "no"))
        self.assert_restored()

    def test_a_bad_line_among_good_ones_stops_the_connect(self):
        good = self.lab.tor.bridge_line("obfs4")
        for bad in ("obfs4 example.org:443 nonsense", good + " #mine", good + ' "x"', good + "\\"):
            with self.subTest(bad):
                self.use(good, bad)
                with self.product.session() as session:
                    self.assertEqual(session.process.wait(20), 1)
                self.assertIn("Some custom bridge lines aren't valid. Fix them under Bridges → Custom….", session.output)
                self.assertRegex(self.product.run_verb("bridges").stdout, "(?m)^  line 2 is not a bridge line: ")
                self.assert_restored()

    def test_more_bridges_than_can_be_used_are_refused_before_anything_changes(self):
        lines = [f"203.0.113.33:{port}" for port in range(1, 103)]
        self.use(*lines)
        with self.product.session() as session:
            self.assertEqual(session.process.wait(20), 1)
        self.assertIn("At most 100 custom bridges can be used.", session.output)
        shown = self.product.run_verb("bridges")
        self.assertEqual(shown.returncode, 1)
        self.assertIn("100 valid\n  2 too many, from line 101 on; at most 100 can be used", shown.stdout)
        self.use(*lines[:100])
        self.assertEqual(self.product.run_verb("bridges").returncode, 0)
        self.assert_restored()

    def test_built_in_bridges_that_nobody_has_are_explained(self):
        self.set("bridgeChoice", "snowflake")
        with self.product.session() as session:
            self.assertEqual(session.process.wait(20), 1)
        self.assertIn("Built-in Snowflake bridges come from Tor Browser.", session.output)
        self.assert_restored()

    def stand_in(self, script):
        """Puts a program in lyrebird's place in the downloaded bundle's folder, and approves it."""
        program = "/root/.local/share/veldmark/TorExpertBundle/tor/pluggable_transports/lyrebird"
        self.lab.host.write(program, script if script.startswith("#!") else f"#!/bin/sh\n{script}\n", mode=0o755)
        self.addCleanup(self.lab.host.run, ["rm", "-rf", "/root/.local/share/veldmark/TorExpertBundle"], check=True)
        self.product.approve(program, "lyrebird")

    def test_a_transport_may_look_its_front_up_before_tor_has_a_circuit(self):
        plain = self.lab.tor.bridge_line("").split()
        host, port = plain[0].rsplit(":", 1)
        script = Path(__file__).with_name("fronted_transport.py").read_text()
        for word, value in (('"FRONT"', f'"{at.WEB_HOSTS[0]}"'), ('"HOST"', f'"{host}"'), (" PORT)", f" {port})")):
            self.assertIn(word, script)
            script = script.replace(word, value)
        self.stand_in(script)
        self.use(f"webtunnel 192.0.2.3:1 {plain[1]} url=https://{at.WEB_HOSTS[0]}/")
        with self.lab.capture() as capture, self.product.session() as session:
            session.wait(is_probed)
            found, resolver = self.lab.host.read("/var/lib/veldmark/run/tor/data/pt_state/front").split("\n", 1)
            self.assertEqual(found, at.WEB_ADDRESS)
            self.assertIn(f"nameserver {at.DNS_ADDRESS}", resolver)
            seen = len(capture.packets)
            self.assertEqual(session.interrupt(), 0, session.output)
        sent = self.sent(capture.packets[:seen])
        self.assertEqual({p.dst for p in sent}, {host, at.DNS_ADDRESS})
        self.assertTrue(all(p.dport == 53 for p in sent if p.dst == at.DNS_ADDRESS))
        self.assert_restored()

    # Failures of a transport program, and the message to the user, which comes from Tor's own report.
    READY = "printf 'VERSION 1\\nCMETHOD obfs4 socks5 127.0.0.1:4711\\nCMETHODS DONE\\n'"
    USELESS = {
        "dies at its start": ("exit 1", r"The bridge program lyrebird keeps ending \(exit status 1\)\."),
        "dies later": (f"{READY}; sleep 2; exit 3", r"The bridge program lyrebird keeps ending \(exit status 3\)\."),
        "prints garbage": (
            "printf 'GARBAGE\\n\\377\\n'; exec sleep 600",
            'The bridge program printed something that Tor doesn\'t understand: "GARBAGE".',
        ),
        "hangs": ("exec sleep 600", "Tor is waiting for the bridge program, which hasn't said that it is ready."),
        "never listens": (f"{READY}; exec sleep 600", "Tor can't reach the bridge program: Connection refused."),
        "refuses": (
            "printf 'VERSION 1\\nCMETHOD-ERROR obfs4 no luck\\nCMETHODS DONE\\n'; exec sleep 600",
            r"Tor has trouble with the bridge program: .*method error\. \(obfs4 no luck\)\.",
        ),
    }

    def forget_network(self):
        """Removes Tor's cache, so that it must ask its bridge again."""
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/tor/data"], check=True)

    def test_a_transport_that_is_no_use_is_told_and_never_looks_connected(self):
        # The same setup does connect when the program in lyrebird's place works.
        self.stand_in("exec /usr/bin/obfs4proxy")
        self.use(self.lab.tor.bridge_line("obfs4"))
        with self.product.session() as session:
            state = session.wait_phase("connected")
            self.assertIsNone(state["bootstrapProblem"])
            self.assertEqual(session.interrupt(), 0, session.output)
        for name, (script, told) in self.USELESS.items():
            with self.subTest(name):
                self.forget_network()
                self.stand_in(script)
                with self.lab.capture() as capture, self.product.session() as session:
                    state = session.wait(lambda s: re.fullmatch(told, s["bootstrapProblem"] or ""))
                    self.assertEqual((state["phase"], state["title"]), ("connecting", "Connecting…"))
                    self.assertTrue(state["canCancel"])
                    self.assertIsNone(state["errorMessage"])
                    self.assertLess(state["bootstrapProgress"], 0.1)
                    self.assertIn(state["statusDetail"], ("Starting", "Connecting to pluggable transport"))  # Tor's summary
                    self.assertRegex(self.product.run_verb("status", check=True).stdout, f"\n  Cause +{told}\n")
                    self.assertEqual(session.interrupt(), 0, session.output)
                self.assertRegex(session.output, f"(?m)^{told}$")
                self.assertNotIn("Protected\n", session.output.replace("Not Protected", ""))
                sent = [p for p in capture.packets if p.out and p.proto in ("tcp", "udp") and p.is_opening]
                self.assertEqual([str(p) for p in sent], [])
                self.assert_restored()

    def test_an_attempt_that_is_followed_from_outside_tells_as_well(self):
        self.stand_in("exec /usr/bin/obfs4proxy")
        self.use(self.lab.tor.bridge_line("obfs4"))
        with self.product.session() as session:
            session.wait_phase("connected")
            self.assertEqual(self.product.run_verb("disconnect").returncode, 0)
            self.forget_network()
            self.stand_in("exit 7")  # as after a failed update
            with self.lab.host.popen(
                [self.product.ctl, "connect"], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True
            ) as connect:
                told = r"The bridge program lyrebird keeps ending \(exit status 7\)\."
                state = session.wait(lambda s: re.fullmatch(told, s["bootstrapProblem"] or ""))
                self.assertEqual(state["phase"], "connecting")
                self.assertEqual(self.product.run_verb("disconnect").returncode, 0)
                output, _ = connect.communicate(timeout=20)
            self.assertNotEqual(connect.returncode, 0)
            self.assertRegex(output, f"(?m)^{told}$")
            self.assertIsNone(self.product.status()["bootstrapProblem"])
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_after_five_minutes_the_failure_says_which_program(self):
        self.stand_in("exit 1")
        self.use(self.lab.tor.bridge_line("obfs4"))
        env = {"VELDMARK_PROGRAMS": str(PROGRAMS), "VELDMARK_SPEED": "20"}
        result = self.lab.host.run([FAST_FORWARD, "connect"], env=env, check=True, timeout=90)
        state = json.loads(result.stdout)
        self.assertEqual((state["phase"], state["statusDetail"]), ("stale", "Tor didn't finish connecting"))
        self.assertEqual(state["errorMessage"], TIMEOUT + RESTORE)
        self.assertEqual(state["bootstrapProblem"], "The bridge program lyrebird keeps ending (exit status 1).")
        self.assert_restored()

    def test_behind_the_kill_switch_the_fastest_bridges_are_kept(self):
        self.use(*(f"{node.address}:{at.OR_PORT}" for node in at.EXITS))
        self.set("optimizeSpeed", "true")

        def used():
            return re.findall(r"(?m)^Bridge (.+)$", self.lab.host.read("/var/lib/veldmark/run/torrc"))

        with self.product.session() as session:
            session.wait(is_probed)
            fastest = used()
            self.assertEqual(len(fastest), 3)
            self.kill_tor()
            session.wait_phase("stale")
            self.assertIsNone(self.direct("-4"))  # it would refuse the probes too
            self.product.run_verb("connect", check=True)
            self.assertEqual(used(), fastest)
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assertNotIn("No bridge answered a quick test", session.output)
        self.assert_restored()

    def test_of_ten_bridges_the_three_fastest_are_used(self):
        # Any relay works as a plain bridge. No program listens at the last three addresses.
        delays = dict(zip((*at.EXITS, at.MIDDLES[0]), (320, 40, 500, 120, 400, 0, 240)))
        dead = ["203.0.113.33", "203.0.113.34", "203.0.113.35"]
        self.use(*(f"{address}:{at.OR_PORT}" for address in (*dead[:2], *(node.address for node in delays), dead[2])))
        self.set("optimizeSpeed", "true")
        with contextlib.ExitStack() as shaped:
            for node, delay in delays.items():
                shaped.enter_context(self.lab.netem(to=node.address, delay_ms=delay))
            with self.lab.capture() as capture, self.product.session() as session:
                session.wait(is_probed)
                torrc = self.lab.host.read("/var/lib/veldmark/run/torrc")
                seen = len(capture.packets)
                self.assertEqual(session.interrupt(), 0, session.output)
        self.assertIn("Testing 10 bridges…", session.output)
        self.assertIn("Using the 3 fastest of 10 bridges", session.output)
        fastest = [node.address for node in sorted(delays, key=delays.get)[:3]]
        self.assertEqual(re.findall(r"(?m)^Bridge (.+)$", torrc), [f"{address}:{at.OR_PORT}" for address in fastest])
        # A repeated SYN comes from the same port.
        first = {}
        for packet in capture.packets[:seen]:
            if packet.out and packet.proto == "tcp" and packet.is_opening:
                first.setdefault((packet.dst, packet.sport), packet.time)
        opened = sorted((time, address) for (address, _), time in first.items())
        # Exactly these addresses were probed: the seven by one connection each before Tor began to connect.
        self.assertEqual({address for _, address in opened}, {node.address for node in delays} | set(dead))
        probed, used = set(), []
        for time, address in opened:
            if address in probed and address not in dead:
                used.append((time, address))
            probed.add(address)
        self.assertTrue(used)
        self.assertLessEqual({address for _, address in used}, set(fastest))
        # The dead addresses refuse at once (one probe may try them twice); Tor never tries them.
        self.assertLess(max(time for time, address in opened if address in dead), used[0][0])
        self.assert_restored()


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)

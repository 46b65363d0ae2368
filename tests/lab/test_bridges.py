"""Bridges end to end: the shipped program, Debian's obfs4proxy at both ends, and nothing but the bridge on the wire."""

import contextlib
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from test_connect import SKIPPED, LabCase  # noqa: E402
from veldlab import topology as at  # noqa: E402

OBFS4 = next(node for node in at.BRIDGES if node.transport == "obfs4").address
PLAIN = next(node for node in at.BRIDGES if not node.transport).address


class Bridges(LabCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.lab.tor.wait_bridges()

    def setUp(self):
        # A cached network would let tor start without asking the bridge.
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/data"], check=True)
        super().setUp()

    def use(self, *lines):
        self.set("bridgeChoice", "custom")
        self.set("customBridges", "\n".join(lines))

    def connect_by(self, bridge):
        """Connects, and asserts that the bridge is all that the host talks to."""
        with self.lab.capture() as capture, self.product.session() as session:
            state = session.wait(lambda s: s["phase"] == "connected" and not s["isChecking"] and s["exitIP"])
            self.assertEqual(state["activeBridge"], "custom")
            self.assertIn(state["exitIP"], self.lab.tor.exits)
            self.assertEqual(state["leakStatus"], "blocked")
            seen = len(capture.packets)
            self.assertEqual(session.interrupt(), 0, session.output)
        sent = [p for p in capture.packets[:seen] if p.out and p.family != "arp" and not p.src.startswith("fe80:")]
        self.assertTrue(sent)
        self.assertEqual({p.dst for p in sent}, {bridge})
        self.assert_restored()

    def test_an_obfs4_bridge_is_all_that_is_contacted(self):
        self.use(self.lab.tor.bridge_line("obfs4"))
        self.connect_by(OBFS4)

    def test_a_plain_bridge_needs_no_program(self):
        self.use("Bridge " + self.lab.tor.bridge_line(""))
        self.connect_by(PLAIN)

    def test_the_first_hop_of_a_circuit_is_the_bridge_with_its_address(self):
        self.use(self.lab.tor.bridge_line("obfs4"))
        with self.product.session() as session:
            session.wait(lambda s: s["phase"] == "connected" and not s["isChecking"])
            with self.download(at.WEB_HOSTS[0]):
                for circuit in self.circuits_to(at.WEB_ADDRESS):
                    self.assertEqual((circuit["hops"][0]["ip"], circuit["hops"][0]["country"]), (OBFS4, "no"))
        self.assert_restored()

    def test_a_bad_line_among_good_ones_stops_the_connect(self):
        self.use(self.lab.tor.bridge_line("obfs4"), "obfs4 example.org:443 nonsense")
        with self.product.session() as session:
            self.assertEqual(session.process.wait(20), 1)
        self.assertIn("Some custom bridge lines aren't valid. Fix them under Bridges → Custom….", session.output)
        self.assert_restored()

    def test_built_in_bridges_that_nobody_has_are_explained(self):
        self.set("bridgeChoice", "snowflake")
        with self.product.session() as session:
            self.assertEqual(session.process.wait(20), 1)
        self.assertIn("Built-in Snowflake bridges come from Tor Browser.", session.output)
        self.assert_restored()

    def stand_in(self, script):
        """Puts a program in lyrebird's place, where the downloaded bundle would have it."""
        program = "/root/.local/share/veldmark/TorExpertBundle/tor/pluggable_transports/lyrebird"
        self.lab.host.write(program, script if script.startswith("#!") else f"#!/bin/sh\n{script}\n", mode=0o755)
        self.addCleanup(self.lab.host.run, ["rm", "-rf", "/root/.local/share/veldmark/TorExpertBundle"], check=True)

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
            session.wait(lambda s: s["phase"] == "connected" and not s["isChecking"] and s["exitIP"])
            found, resolver = self.lab.host.read("/var/lib/veldmark/run/data/pt_state/front").split("\n", 1)
            self.assertEqual(found, at.WEB_ADDRESS)
            self.assertIn(f"nameserver {at.DNS_ADDRESS}", resolver)
            seen = len(capture.packets)
            self.assertEqual(session.interrupt(), 0, session.output)
        sent = [p for p in capture.packets[:seen] if p.out and p.family != "arp" and not p.src.startswith("fe80:")]
        self.assertEqual({p.dst for p in sent}, {host, at.DNS_ADDRESS})
        self.assertTrue(all(p.dport == 53 for p in sent if p.dst == at.DNS_ADDRESS))
        self.assert_restored()

    def test_a_transport_that_is_no_use_never_lets_the_connection_look_up(self):
        for name, script in {"dies": "exit 1", "prints garbage": "printf 'GARBAGE\\n\\377\\n'; exec sleep 600",
                             "hangs": "exec sleep 600"}.items():
            with self.subTest(name):
                self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/data"], check=True)
                self.stand_in(script)
                self.use(self.lab.tor.bridge_line("obfs4"))
                with self.lab.capture() as capture, self.product.session() as session:
                    state = session.wait(lambda s: s["phase"] == "connecting" and s["canCancel"]
                                         and s["statusDetail"] != "Starting Tor…")
                    self.assertLess(state["bootstrapProgress"], 1)
                    self.assertNotEqual(state["title"], "Protected")
                    self.assertEqual(session.interrupt(), 0, session.output)
                sent = [p for p in capture.packets if p.out and p.proto in ("tcp", "udp")]
                self.assertEqual([str(p) for p in sent], [])
                self.assert_restored()

    def test_of_ten_bridges_the_three_fastest_are_used(self):
        # Any relay serves as a plain bridge. Nobody listens at the last three addresses.
        delays = dict(zip((*at.EXITS, at.MIDDLES[0]), (320, 40, 500, 120, 400, 0, 240)))
        dead = ["203.0.113.33", "203.0.113.34", "203.0.113.35"]
        self.use(*(f"{address}:{at.OR_PORT}" for address in (*dead[:2], *(node.address for node in delays), dead[2])))
        self.set("optimizeSpeed", "true")
        with contextlib.ExitStack() as shaped:
            for node, delay in delays.items():
                shaped.enter_context(self.lab.netem(to=node.address, delay_ms=delay))
            with self.lab.capture() as capture, self.product.session() as session:
                session.wait(lambda s: s["phase"] == "connected" and not s["isChecking"])
                seen = len(capture.packets)
                self.assertEqual(session.interrupt(), 0, session.output)
        self.assertIn("Testing 10 bridges…", session.output)
        fastest = {node.address for node in sorted(delays, key=delays.get)[:3]}
        # A SYN that is sent again for want of an answer comes from the same port.
        connections = {(p.dst, p.sport) for p in capture.packets[:seen] if p.out and p.proto == "tcp" and p.is_opening}
        opened = [address for address, _ in connections]
        self.assertEqual(set(opened), {node.address for node in delays} | set(dead))  # all were probed, and nobody else
        # The probe opens one connection to each that answers; whoever gets another is used. A dead one may be knocked at twice.
        again = {address for address in opened if opened.count(address) > 1} - set(dead)
        self.assertTrue(again)
        self.assertLessEqual(again, fastest)
        self.assert_restored()


if __name__ == "__main__":
    from veldlab import requirements
    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)

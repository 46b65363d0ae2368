"""Bridges end to end: the shipped program, Debian's obfs4proxy at both ends, and nothing but the bridge on the wire."""

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


if __name__ == "__main__":
    from veldlab import requirements
    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)

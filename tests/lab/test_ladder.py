"""Where the router blocks Tor's relays: a connect climbs to bridges without another run of the helper, and says what it does."""

import contextlib
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import PROGRAMS, RESTORE, SKIPPED, LabCase  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.lab import LabUnavailable  # noqa: E402
from veldlab.product import is_probed  # noqa: E402

OBFS4 = next(node for node in at.BRIDGES if node.transport == "obfs4")
PLAIN = next(node for node in at.BRIDGES if not node.transport)
RELAYS = [node for node in at.NODES if node not in at.BRIDGES]
FILTER = "/usr/libexec/veldmark/veldmark-control"


class Ladder(LabCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.lab.tor.wait_bridges()
        cls.lab.host.write(FILTER, (PROGRAMS / "veldmark-control").read_bytes(), mode=0o755)

    def setUp(self):
        # A cached network would let tor start without asking anybody.
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/tor/data"], check=True)
        super().setUp()

    @contextlib.contextmanager
    def censor(self, verdict, nodes=tuple(RELAYS)):
        """The router does so with what goes to these relays."""
        addresses = ", ".join(node.address for node in nodes)
        rules = (
            f"table inet censor {{ chain out {{ type filter hook forward priority -10; ip daddr {{ {addresses} }} {verdict}; }}; }}"
        )
        self.lab.router.run(["nft", "-f", "-"], input=rules, check=True)
        try:
            yield
        finally:
            self.lab.router.run(["nft", "delete", "table", "inet", "censor"], check=True)

    def use(self, climb, *lines):
        self.set("climb", climb)
        self.set("customBridges", "\n".join(lines))

    def helped(self):
        """Changes with every connect of the helper: the Tor that it started, and what it noted of it."""
        return self.lab.host.run(
            [
                "/bin/sh",
                "-c",
                "pgrep -x -u _veldmark tor; pgrep -x -u _veldmark veldmark-contro; stat -c '%Y %i' /var/lib/veldmark/asked",
            ],
            check=True,
        ).stdout.split()

    def results(self, state):
        return [(step["rung"], step["result"]) for step in state["ladder"]]

    def test_an_offer_that_is_accepted_leads_to_the_bridge(self):
        self.use("ask", self.lab.tor.bridge_line("obfs4"))
        with self.censor("drop"), self.lab.capture() as capture, self.product.session() as session:
            offered = session.wait(lambda state: state["climbOffer"])
            self.assertEqual(offered["climbOffer"], "Tor cannot connect in this network. Veldmark can try bridges: Your bridges.")
            self.assertEqual((offered["phase"], offered["activeBridge"], offered["ladder"]), ("connecting", None, []))
            self.assertNotIn(OBFS4.address, {p.dst for p in capture.packets})
            started = self.helped()
            self.assertEqual(len(started), 4, started)  # Tor and the filter
            self.assertIn("veldmarkctl climb", self.product.run_verb("status", check=True).stdout)
            self.product.run_verb("climb", check=True)
            state = session.wait(is_probed)
            self.assertEqual(state["activeBridge"], "custom")
            self.assertIn(state["exitIP"], self.lab.tor.exits)
            self.assertEqual(self.results(state), [("direct", "No answer."), ("custom", "Tor has connected.")])
            self.assertEqual(self.helped(), started)
            self.assertNotEqual(self.product.run_verb("climb").returncode, 0)  # nothing is offered now
            # With the bridge in use, nobody else is contacted.
            seen = len(capture.packets)
            self.through_tor()
            self.assertEqual({p.dst for p in capture.packets[seen:] if p.out and p.dst in at.RELAY_ADDRESSES}, {OBFS4.address})
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assertIn("Direct: No answer. (", session.output)
        self.assertIn("Your bridges: Tor has connected. (", session.output)
        self.assert_restored()

    def test_a_refusal_is_no_silence_and_one_bridge_of_several_is_enough(self):
        self.use("always", self.lab.tor.bridge_line(""), self.lab.tor.bridge_line("obfs4"))
        with self.censor("reject", [*RELAYS, PLAIN]), self.product.session() as session:
            state = session.wait(is_probed)
            self.assertEqual(state["activeBridge"], "custom")
            self.assertEqual(self.results(state), [("direct", "Refused, or out of reach."), ("custom", "Tor has connected.")])
            self.assertLess(state["ladder"][0]["seconds"], 10)
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_where_nothing_helps_it_says_what_was_tried(self):
        self.use("always", self.lab.tor.bridge_line(""), self.lab.tor.bridge_line("obfs4"))
        with self.censor("drop", at.NODES), self.product.session() as session:
            begin = time.monotonic()
            state = session.wait(lambda state: state["phase"] == "stale", 180)
            self.assertLess(time.monotonic() - begin, 180)
            self.assertEqual(state["errorMessage"], "Tor cannot connect in this network. Tried: Direct, Your bridges." + RESTORE)
            self.assertEqual(self.results(state), [("direct", "No answer."), ("custom", "No answer.")])
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_without_a_censor_nothing_is_offered(self):
        self.use("ask", self.lab.tor.bridge_line("obfs4"))
        with self.lab.capture() as capture, self.product.session() as session:
            state = session.wait(is_probed)
            self.assertEqual((state["activeBridge"], state["ladder"], state["climbOffer"]), (None, [], None))
            self.assertNotIn(OBFS4.address, {p.dst for p in capture.packets})
            self.assertEqual(self.lab.host.run(["pgrep", "-x", "obfs4proxy"]).stdout, "")
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()


if __name__ == "__main__":
    try:
        unittest.main(verbosity=2)
    except LabUnavailable as reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)

"""The program shows real tor's circuits, and a user can close and renew them."""

import contextlib
import json
import re
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import FAST_FORWARD, PROGRAMS, SKIPPED, LabCase  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.product import is_probed  # noqa: E402

COUNTRIES = {node.address: node.country for node in at.NODES}
SLOW_MS = 1501


class Circuits(LabCase):
    SHARED = True

    def connected(self):
        session = self.enterContext(self.product.session())
        session.wait(is_probed)
        return session

    def circuits(self):
        return json.loads(self.product.run_verb("circuits", "--json", check=True).stdout)

    def test_each_circuit_shows_three_relays_with_address_and_country(self):
        self.connected()
        with self.download(at.WEB_HOSTS[0]):
            self.circuits_to(*at.WEB_SITES)
            circuits = self.circuits()
        for circuit in circuits:
            self.assertIn(circuit["purpose"], ("GENERAL", "CONFLUX"))
            self.assertGreaterEqual(len(circuit["hops"]), 2, "a directory fetch is no path for the user's traffic")
            self.assertRegex(circuit["created"], r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z$")
            for hop in circuit["hops"]:
                self.assertEqual(COUNTRIES.get(hop["ip"], "unknown"), hop["country"], hop)
                self.assertRegex(hop["fingerprint"], "^[0-9A-F]{40}$")
                self.assertEqual(at.node_named(hop["nickname"]).address, hop["ip"])
        # Some creation times have a fraction of a second.
        self.assertTrue(any(not circuit["created"].endswith(".000Z") for circuit in circuits))

    def test_a_site_is_shown_on_both_legs_of_a_conflux_set(self):
        self.connected()
        with self.download(at.WEB_HOSTS[0]):
            carrying = self.circuits_to(*at.WEB_SITES)
        legs = [circuit for circuit in carrying if circuit["purpose"] == "CONFLUX"]
        self.assertEqual(len(legs), 2, carrying)
        self.assertEqual(len({leg["hops"][-1]["fingerprint"] for leg in legs}), 1, "the legs have one exit")
        for leg in legs:
            self.assertIn(leg["hops"][-1]["ip"], self.lab.tor.exits)
            self.assertGreater(leg["rtt"], 0)

    def test_a_site_stays_shown_when_its_stream_has_closed(self):
        self.connected()
        with self.download(at.WEB_HOSTS[0]):
            before = {circuit["id"] for circuit in self.circuits_to(*at.WEB_SITES)}
        after = {circuit["id"] for circuit in self.circuits() if not set(circuit["sites"]).isdisjoint(at.WEB_SITES)}
        self.assertTrue(before & after)

    @contextlib.contextmanager
    def arrived_download(self):
        """A download that the web server has begun to answer."""
        seen = len(self.lab.world.web_log(service="web"))
        with self.download(at.WEB_HOSTS[0]):
            deadline = time.monotonic() + 30
            while len(self.lab.world.web_log(service="web")) == seen:
                self.assertLess(time.monotonic(), deadline, "the download did not begin")
                time.sleep(0.05)
            yield

    def circuits_with_site(self):
        return {circuit["id"] for circuit in self.circuits() if not set(circuit["sites"]).isdisjoint(at.WEB_SITES)}

    def test_a_new_identity_takes_new_circuits(self):
        self.connected()
        with self.arrived_download():
            used = self.circuits_with_site()
            self.assertTrue(used)
            # Without a new identity the next request takes the same path, once Tor has made its spare circuits: it may take one
            # that Tor made after the first request.
            for _ in range(10):
                with self.arrived_download():
                    former, used = used, self.circuits_with_site()
                if used == former:
                    break
            else:
                self.fail("each request takes circuits of its own")
            self.product.run_verb("new-identity", check=True)
            with self.arrived_download():
                self.assertTrue(self.circuits_with_site() - used, "the new stream has no circuit of its own")

    def test_a_circuit_can_be_closed(self):
        self.connected()
        with self.download(at.WEB_HOSTS[0]):
            target = self.circuits_to(*at.WEB_SITES)[0]["id"]
            self.product.run_verb("close-circuit", target, check=True)
            self.assertNotIn(target, {circuit["id"] for circuit in self.circuits()})
        for wrong in (target, "99999", "12; SIGNAL HALT", "1\r\nSIGNAL HALT", ""):
            with self.subTest(id=wrong):
                refused = self.product.run_verb("close-circuit", wrong)
                self.assertEqual(refused.returncode, 1)
                self.assertRegex(refused.stderr, r"^veldmarkctl: There is no circuit \".*\"\.\n$")
        self.assertTrue(self.through_tor()["IsTor"])


class OnionServices(LabCase):
    SHARED = True

    def torrc(self, folder):
        """The torrc of a tor in the private network that offers its web server as an onion service."""
        network = self.lab.host.read("/etc/tor/torrc-defaults").splitlines()
        return "\n".join(
            [
                *(line for line in network if not line.startswith("GeoIPFile ")),
                f"DataDirectory {folder}/data",
                f"HiddenServiceDir {folder}/service",
                f"HiddenServicePort 80 {at.WEB_ADDRESS}:80",
                "SocksPort 0",
                f"Log info file {folder}/log",
                "",
            ]
        )

    @contextlib.contextmanager
    def service(self):
        """The onion service's address, once a visitor can find it."""
        folder = f"{at.TOR_FOLDER}/onion"
        place = self.lab.tor.space.path(folder)
        place.mkdir(mode=0o700)
        (place / "torrc").write_text(self.torrc(folder))
        with self.lab.tor.space.popen(
            ["tor", "-f", f"{folder}/torrc", "--defaults-torrc", f"{at.TOR_FOLDER}/empty", "--quiet"]
        ) as tor:
            try:
                deadline = time.monotonic() + 120
                log = place / "log"
                while not log.exists() or log.read_text(errors="replace").count("descriptor: finished with status 200") < 4:
                    self.assertIsNone(tor.poll(), "tor ended")
                    self.assertLess(time.monotonic(), deadline, "the service has not published itself")
                    time.sleep(0.2)
                yield (place / "service/hostname").read_text().strip()
            finally:
                tor.kill()

    def test_the_way_to_an_onion_service_is_shown_and_the_other_circuits_for_it_are_not(self):
        with self.service() as onion, self.product.session() as session:
            session.wait(is_probed)
            with self.download(onion):
                (way,) = self.circuits_to(onion, timeout=90)
                self.assertEqual((way["purpose"], way["sites"]), ("HS_CLIENT_REND", [onion]))
                self.assertGreaterEqual(len(way["hops"]), 3)
                for hop in way["hops"]:
                    self.assertEqual(at.node_named(hop["nickname"]).address, hop["ip"])
                shown = json.loads(self.product.run_verb("circuits", "--json", check=True).stdout)
                for circuit in shown:  # Tor has made others ahead for onion services; they lead to no exit
                    if circuit["id"] != way["id"]:
                        self.assertIn(circuit["purpose"], ("GENERAL", "CONFLUX"))
                        self.assertIn(circuit["hops"][-1]["ip"], self.lab.tor.exits)
                self.assertRegex(self.product.run_verb("circuits", check=True).stdout, rf"(?m)^ *{way['id']}  ONION ")
                self.product.run_verb("close-circuit", way["id"], check=True)
            self.assertEqual(session.interrupt(), 0, session.output)


class Speed(LabCase):
    SHARED = True

    def test_a_slow_path_is_left_for_a_faster_one(self):
        self.set("optimizeSpeed", "true")
        with self.product.session(connect=False) as session:
            session.wait_phase("disconnected")
            with self.lab.netem(delay_ms=500):
                connecting = self.enterContext(self.lab.host.popen([self.product.ctl, "connect"], stdout=-3, stderr=-3))
                state = session.wait(lambda s: (s["optimizeStatus"] or "").startswith("Slow path"), 120)
                self.assertGreaterEqual(
                    int(re.fullmatch(r"Slow path \((\d+) ms\), finding a faster one…", state["optimizeStatus"])[1]), SLOW_MS
                )
                self.assertIsNone(state["latencyMs"])  # that path is left
            state = session.wait(lambda s: not s["isOptimizing"], 60)
            self.assertLess(state["latencyMs"], SLOW_MS)
            self.assertIsNone(state["optimizeStatus"])
            self.assertEqual(connecting.wait(), 0)
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def attempt(self, speed):
        """Connects on a clock that runs `speed` times as fast; the state after that."""
        environment = {"VELDMARK_PROGRAMS": PROGRAMS, "VELDMARK_SPEED": speed}
        return json.loads(self.lab.host.run([FAST_FORWARD, "connect"], check=True, timeout=120, env=environment).stdout)

    def test_a_path_that_stays_slow_is_given_up_after_four_tries(self):
        self.set("optimizeSpeed", "true")
        with self.product.session() as session:  # leaves a cached network for the next session
            session.wait_phase("connected")
        with self.lab.netem(delay_ms=100):  # 20 times as long on the fast clock
            state = self.attempt(20)
        self.assertEqual(state["phase"], "connected")
        self.assertGreaterEqual(state["latencyMs"], SLOW_MS)
        self.assertEqual((state["isOptimizing"], state["optimizeStatus"], state["sought"]), (False, None, True))
        # Tor does not grant three new identities in such a short time at once, and says so.
        self.assertIn("Rate limiting NEWNYM request", self.lab.host.read("/var/lib/veldmark/run/notices.log"))
        self.assert_restored()

    def test_a_fast_path_is_kept(self):
        """On a slow clock, by which no path is slow: a busy computer may take seconds to answer."""
        self.set("optimizeSpeed", "true")
        state = self.attempt(0.1)
        self.assertEqual(state["phase"], "connected")
        self.assertLess(state["latencyMs"], SLOW_MS)
        self.assertEqual((state["isOptimizing"], state["optimizeStatus"], state["sought"]), (False, None, False))
        self.assert_restored()


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)

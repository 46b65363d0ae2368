"""The checks against a service and a resolver that misbehave. A failed check is never shown as protection."""

import os
import subprocess
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import SKIPPED, LabCase  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.lab import PROJECT  # noqa: E402

RESOLVED = Path(os.environ.get("VELDMARK_RESOLVED", PROJECT / "build" / "resolved"))
# The source of the exits' queries at the world's DNS. They share its network, so it is the DNS server's own address.
THROUGH_EXIT = {at.DNS_ADDRESS}
UNUSABLE_ANSWERS = ("status-503", "garbage", "half-body", "huge", "expired", "wrong-host", "untrusted")


class CheckCase(LabCase):
    def setUp(self):
        self.addCleanup(self.lab.world.behave, "check", "ok")
        super().setUp()

    def connected(self, mode):
        """A session after its first checks."""
        self.set("strictMode", "true" if mode == "strict" else "false")
        session = self.enterContext(self.product.session())
        session.wait(lambda s: s["phase"] == "connected" and not s["isChecking"] and s["torVerified"] is not None)
        return session

    def check(self):
        """Runs the checks once; returns the state afterwards and the requests that they made."""
        seen = len(self.lab.world.web_log())
        self.product.run_verb("check", check=True, timeout=120)
        return self.product.status(), self.lab.world.web_log(seen, "check")

    def assert_nothing_claimed(self, state):
        self.assertIsNone(state["exitIP"])
        self.assertIs(state["torVerified"], False)
        self.assertIsNone(state["latencyMs"])
        self.assertEqual(state["leakStatus"], "inconclusive")

    def report(self):
        return self.product.run_verb("status", check=True).stdout


class Mapping(CheckCase):
    def test_an_unusable_answer_is_no_answer_in_strict_mode(self):
        self.connected("strict")
        for behaviour in UNUSABLE_ANSWERS:
            with self.subTest(behaviour=behaviour):
                self.lab.world.behave("check", behaviour)
                state, requests = self.check()
                self.assertTrue(requests, "the service was not asked at all")
                self.assertLessEqual({r["source"] for r in requests}, set(self.lab.tor.exits))
                self.assert_nothing_claimed(state)
                self.assertNotIn("blocked", self.report())
        self.lab.world.behave("check", "ok")
        state, _ = self.check()
        self.assertEqual((state["leakStatus"], state["torVerified"]), ("blocked", True))

    def test_an_unusable_answer_is_no_answer_in_proxy_mode(self):
        self.connected("proxy")
        for behaviour in UNUSABLE_ANSWERS:
            with self.subTest(behaviour=behaviour):
                self.lab.world.behave("check", behaviour)
                state, requests = self.check()
                # Both paths reach the service, so the rest tests its answers.
                sources = {r["source"] for r in requests}
                self.assertTrue(sources & set(self.lab.tor.exits))
                self.assertTrue(sources & {at.HOST_ADDRESS, at.HOST_ADDRESS6})
                self.assert_nothing_claimed(state)
        self.lab.world.behave("check", "ok")
        state, _ = self.check()
        self.assertIn("exposed", state["leakStatus"])

    def test_a_service_that_says_nothing_is_given_up(self):
        self.connected("strict")
        self.lab.world.behave("check", "silent")
        state, requests = self.check()
        self.assertTrue(any(r.get("silent") for r in requests))
        self.assert_nothing_claimed(state)

    def test_a_stopped_tor_proves_nothing(self):
        self.connected("strict")
        self.kill_tor()
        asked = self.product.run_verb("check", timeout=120)
        state = self.product.status()
        if asked.returncode == 0:  # before the monitor noticed
            self.assert_nothing_claimed(state)
        else:
            self.assertEqual(state["phase"], "stale")

    def test_a_direct_path_that_is_merely_lossy_is_not_called_blocked_in_proxy_mode(self):
        self.connected("proxy")
        with self.lab.netem(to=at.CHECK_ADDRESS, loss=1.0), self.lab.netem(to=at.CHECK_ADDRESS6, loss=1.0):
            state, _ = self.check()
            self.assertIs(state["torVerified"], True)
            self.assertNotIn("exposed", state["leakStatus"])  # the direct probe failed
            self.assertRegex(self.report(), r"Direct path +no answer, but proxy mode doesn't block it\n")


class LookUps(CheckCase):
    def ask(self, name):
        """Looks up a name as a program does; returns the sources of its queries at the world's DNS."""
        seen = len(self.lab.world.dns_log())
        self.lab.host.run(["getent", "ahostsv4", name], user="alice")
        return {entry["source"] for entry in self.lab.world.dns_log(seen) if entry.get("name") == name}

    def break_resolver(self):
        """Writes the resolver file again with the former resolver, as a network manager does."""
        self.lab.host.run(["umount", "/etc/resolv.conf"], check=True)
        self.assertIn(at.DNS_ADDRESS, self.lab.host.run(["cat", "/etc/resolv.conf"]).stdout)

    def assert_leak_can_be_fixed(self):
        state = self.product.status()
        self.assertEqual(state["dnsStatus"], {"leak": [at.DNS_ADDRESS]})
        self.assertEqual(state["title"], "DNS Leak")
        self.assertIn(f"can go around Tor via: {at.DNS_ADDRESS}", self.report())
        fixed = self.product.run_verb("fix-dns", check=True)
        self.assertIn("a test lookup went through Tor", fixed.stdout)
        self.assertEqual(self.product.status()["dnsStatus"], "throughTor")
        self.assertNotEqual(self.product.status()["title"], "DNS Leak")

    def test_a_resolver_file_that_came_back_is_a_leak_until_it_is_fixed(self):
        session = self.connected("proxy")
        self.assertEqual(self.product.status()["dnsStatus"], "throughTor")
        self.assertEqual(self.ask("one.example.test"), THROUGH_EXIT)
        self.break_resolver()
        self.lab.host.run(["nft", "flush", "ruleset"], check=True)  # these redirected such lookups to Tor anyway
        self.assertEqual(self.ask("two.example.test"), {at.HOST_ADDRESS})  # it leaks without them
        self.check()
        self.assert_leak_can_be_fixed()
        self.assertEqual(self.ask("three.example.test"), THROUGH_EXIT)
        self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_in_strict_mode_the_same_file_is_shown_too_and_nothing_leaves(self):
        session = self.connected("strict")
        with self.lab.capture() as capture:
            self.break_resolver()
            self.assertNotIn(at.HOST_ADDRESS, self.ask("four.example.test"))
            self.check()
            self.assert_leak_can_be_fixed()
        self.assertEqual({p for p in capture.packets if p.dport == 53}, set())
        self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_the_monitor_finds_the_leak_by_itself(self):
        session = self.connected("proxy")
        self.break_resolver()
        session.wait(lambda s: s["title"] == "DNS Leak", 60)
        self.product.run_verb("fix-dns", check=True)
        self.assertEqual(self.product.status()["dnsStatus"], "throughTor")

    def test_nothing_can_be_fixed_without_a_session(self):
        with self.product.session(connect=False) as session:
            session.wait_phase("disconnected")
            refused = self.product.run_verb("fix-dns")
            self.assertEqual((refused.returncode, refused.stderr), (1, "veldmarkctl: Not connected.\n"))
        self.assertEqual(self.product.run_verb("fix-dns").returncode, 3)
        self.assert_restored()


@unittest.skipUnless((RESOLVED / "lib/systemd/systemd-resolved").exists(), "systemd-resolved is not unpacked")
class RealResolved(CheckCase):
    """The real systemd-resolved answers the host's lookups, as on a desktop."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        run = cls.lab.host.run
        run(["mount", "-t", "overlay", "-o", f"lowerdir={RESOLVED}/usr/bin:/usr/bin", "private", "/usr/bin"], check=True)
        policy = RESOLVED / "usr/share/dbus-1/system.d/org.freedesktop.resolve1.conf"
        run(
            [
                "bash",
                "-ec",
                """
            if ! grep -q ^systemd-resolve: /etc/passwd; then
                echo 'systemd-resolve:x:990:990::/:/usr/sbin/nologin' >>/etc/passwd
                echo 'systemd-resolve:x:990:' >>/etc/group
            fi
            mkdir -p /run/dbus /run/systemd/resolve /etc/dbus-1/system.d
            chown systemd-resolve:systemd-resolve /run/systemd/resolve
            cp "$1" /etc/dbus-1/system.d/
            # First: the daemon would take over another file's servers.
            ln -sf /run/systemd/resolve/stub-resolv.conf /etc/resolv.conf
            dbus-daemon --system --fork
        """,
                "setup",
                str(policy),
            ],
            check=True,
        )
        cls.daemon = cls.lab.host.popen(
            [str(RESOLVED / "lib/systemd/systemd-resolved")], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        )
        cls.addClassCleanup(cls.daemon.wait)
        cls.addClassCleanup(cls.daemon.terminate)
        run(
            [
                "bash",
                "-ec",
                """
            until resolvectl dns >/dev/null 2>&1; do :; done
            until [ -s /etc/resolv.conf ]; do :; done
            resolvectl dns eth0 "$1"
        """,
                "setup",
                at.DNS_ADDRESS,
            ],
            check=True,
        )

    def servers(self):
        return self.lab.host.run(["resolvectl", "dns", "eth0"], check=True).stdout.partition("): ")[2].strip()

    ask = LookUps.ask

    def test_a_link_that_got_its_server_anew_is_a_leak_until_it_is_fixed(self):
        for mode in "proxy", "strict":
            with self.subTest(mode=mode):
                self.assertEqual(self.ask(f"before-{mode}.example.test"), {at.HOST_ADDRESS})
                session = self.connected(mode)
                self.assertEqual(self.product.status()["dnsStatus"], "throughTor")
                self.assertEqual(self.servers(), "127.0.0.1")
                # A renewed lease does this.
                self.lab.host.run(["resolvectl", "dns", "eth0", at.DNS_ADDRESS], check=True)
                self.check()
                state = self.product.status()
                self.assertEqual(state["dnsStatus"], {"leak": [f"{at.DNS_ADDRESS} on eth0"]})
                self.assertEqual(state["title"], "DNS Leak")
                self.product.run_verb("fix-dns", check=True)
                self.assertEqual(self.product.status()["dnsStatus"], "throughTor")
                self.assertEqual(self.ask(f"fixed-{mode}.example.test"), THROUGH_EXIT)
                self.assertEqual(session.interrupt(), 0, session.output)
                self.assertEqual(self.servers(), at.DNS_ADDRESS)
                self.assertEqual(self.ask(f"after-{mode}.example.test"), {at.HOST_ADDRESS})


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)

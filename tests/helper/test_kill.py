"""kill -9 of the helper at steps spread over its whole run: a disconnect afterwards puts everything back, and a strict
session is never open on the way."""

import os

import namespace
from namespace import HASH, TOR, HelperTest

STEPPED = os.path.join(namespace.HERE, "stepped.sh")
TRIALS = int(os.environ.get("VELDMARK_KILL_TRIALS", "15"))   # for each way through the helper


def connect_words(strict):
    return ["connect", "--tor", TOR, "--hash", HASH, "--strict", strict, "--lan", "0"]


class Kill(HelperTest):
    """For a user with KDE, so that the way through the desktop's settings is there as well."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.run("/bin/bash", "-c", "mkdir /home/alice/.config; printf '[Proxy Settings]\nProxyType=4\n' >/home/alice/.config/kioslaverc",
                        uid=namespace.USER_UID)

    def stepped(self, kill_at, words):
        return self.machine.run("env", "-i", f"PKEXEC_UID={namespace.USER_UID}", "/bin/bash", "-p", STEPPED, self.machine.helper, "/run/steps", str(kill_at),
                                *words, check=False)

    def steps_of(self, words):
        done = self.stepped(0, words)
        self.assertEqual(done.returncode, 0, done.stderr)
        return int(self.machine.shell("cat /run/steps; rm /run/steps"))

    def state(self):
        """After a kill: the marker, whether the kill switch stands, whether the resolver is switched."""
        # What the killed shell had started still holds the lock; the next run waits for it as well.
        text = self.machine.shell("flock /run/veldmark.lock true; cat /var/lib/veldmark/state/active 2>/dev/null; echo; "
                                  "nft list ruleset; cat /etc/resolv.conf")
        return text.split("\n")[0], "policy drop" in text, "table inet" in text, "nameserver 127.0.0.1" in text

    def trials(self, prepare, words, check):
        before = self.machine.snapshot()
        prepare()
        steps = self.steps_of(words)
        self.machine.help("disconnect")
        self.assertGreater(steps, 100)
        outcomes = set()
        for trial in range(TRIALS):
            kill_at = 1 + (steps - 1) * trial // max(1, TRIALS - 1)
            with self.subTest(kill_at=kill_at, steps=steps):
                prepare()
                done = self.stepped(kill_at, words)
                outcomes.add(done.returncode)
                state = self.state()
                check(state)
                self.machine.help("disconnect")
                self.assertEqual(self.machine.snapshot(), before)
        self.assertIn(137, {code % 256 for code in outcomes} | {128 - code for code in outcomes if code < 0},
                      "no run was killed")

    def test_connect_strict(self):
        def check(state):
            marker, drop, table, resolver = state
            if not marker:
                self.assertFalse(table or resolver, "a change came before the marker")
            if resolver:
                self.assertTrue(drop, "the resolver was switched before the kill switch stood")
            if self.machine.tor_pids():
                self.assertTrue(drop, "Tor ran before the kill switch stood")
        self.trials(lambda: None, connect_words("1"), check)

    def test_connect_proxy(self):
        def check(state):
            marker, _, table, resolver = state
            if not marker:
                self.assertFalse(table or resolver)
        self.trials(lambda: None, connect_words("0"), check)

    def test_connect_strict_again(self):
        def check(state):
            self.assertEqual(state[:2], ("strict", True))
        self.trials(self.machine.connect, connect_words("1"), check)

    def test_change_from_strict_to_proxy(self):
        def check(state):
            if not state[1]:
                self.assertEqual(state[0], "proxy")
                self.assertTrue(self.machine.tor_pids(), "the kill switch opened before the new Tor ran")
        self.trials(self.machine.connect, connect_words("0"), check)

    def test_fix_dns(self):
        def check(state):
            self.assertEqual(state[:2], ("strict", True))

        def prepare():
            self.machine.connect()
            self.machine.shell("umount /etc/resolv.conf")
        self.trials(prepare, ["fix-dns"], check)

    def test_disconnect(self):
        def check(state):
            marker, drop, _, _ = state
            if self.machine.tor_pids():
                self.assertTrue(drop, "the kill switch opened while Tor ran")
            if not marker:
                self.assertFalse(drop)
        self.trials(self.machine.connect, ["disconnect"], check)


if __name__ == "__main__":
    namespace.main()

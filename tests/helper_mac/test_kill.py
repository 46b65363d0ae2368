"""kill -9 of the Mac's helper at steps spread over its whole run: a disconnect afterwards puts everything back, and a
strict session is never open on the way."""

import os

import mac
from mac import HASH, TOR, MacTest

STEPPED = os.path.join(mac.HERE, "..", "helper", "stepped.sh")
TRIALS = int(os.environ.get("VELDMARK_KILL_TRIALS", "8"))   # for each way through the helper


def connect_words(strict):
    return ["connect", "--tor", TOR, "--hash", HASH, "--strict", strict, "--lan", "0"]


class Kill(MacTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.place(STEPPED, "/mac/stepped.sh")

    def stepped(self, kill_at, words):
        return self.machine.run("env", "-i", "/bin/bash", "-p", "/mac/stepped.sh", self.machine.helper, "/mac/steps", str(kill_at),
                                *words, check=False)

    def state(self):
        """After a kill: the marker, whether the kill switch stands, whether any service is switched, whether Tor runs."""
        # What the killed shell had started still holds the lock; the next run waits for it as well.
        self.machine.shell("/mac/gnu/flock /private/var/db/veldmark.lock true")
        state = self.machine.state
        marker = (self.machine.read("/Library/Application Support/Veldmark/state/active") or "").strip()
        switched = any(key.startswith("service ") and key.endswith(" dns") and value == "127.0.0.1" for key, value in state.items())
        return marker, self.machine.verdict("out") == "block", switched, "job veldmark.tor" in state

    def trials(self, prepare, words, check):
        prepare()
        done = self.stepped(0, words)
        self.assertEqual(done.returncode, 0, done.stderr)
        steps = int(self.machine.read("/mac/steps"))
        self.machine.help("disconnect")
        self.assertRestored()
        self.assertGreater(steps, 100)
        killed = 0
        for trial in range(TRIALS):
            kill_at = 1 + (steps - 1) * trial // max(1, TRIALS - 1)
            with self.subTest(kill_at=kill_at, steps=steps):
                prepare()
                killed += self.stepped(kill_at, words).returncode % 256 in (137, 247)
                check(*self.state())
                self.machine.help("disconnect")
                self.assertRestored()
        self.assertGreater(killed, TRIALS // 2, "hardly a run was killed")

    def test_connect_strict(self):
        def check(marker, closed, switched, tor):
            self.assertTrue(marker or not (closed or switched or tor), "a change came before the marker")
            self.assertTrue(closed or not (switched or tor), "a service was switched or Tor ran before the kill switch stood")
        self.trials(lambda: None, connect_words("1"), check)

    def test_connect_proxy(self):
        def check(marker, _, switched, tor):
            self.assertTrue(marker or not (switched or tor))
        self.trials(lambda: None, connect_words("0"), check)

    def test_connect_strict_again(self):
        def check(marker, closed, *_):
            self.assertEqual((marker, closed), ("strict", True))
        self.trials(self.machine.connect, connect_words("1"), check)

    def test_change_from_strict_to_proxy(self):
        def check(marker, closed, switched, tor):
            self.assertTrue(closed or (marker == "proxy" and switched and tor), "the kill switch opened before the new Tor served")
        self.trials(self.machine.connect, connect_words("0"), check)

    def test_fix_dns(self):
        def prepare():
            self.machine.connect()
            self.machine.change(**{"service_Automatic/Wi-Fi_dns": "192.0.2.1"})

        def check(marker, closed, *_):
            self.assertEqual((marker, closed), ("strict", True))
        self.trials(prepare, ["fix-dns"], check)

    def test_disconnect(self):
        def check(marker, closed, switched, tor):
            self.assertTrue(closed or not (switched or tor), "the kill switch opened before the rest was put back")
            self.assertTrue(marker or not closed)
        self.trials(self.machine.connect, ["disconnect"], check)


if __name__ == "__main__":
    mac.main()

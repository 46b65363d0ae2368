"""kill -9 of the Mac's helper right after changes spread over its whole run (VELDMARK_KILL_TRIALS=0: after every one). A disconnect
afterwards puts everything back, and a strict session never lets traffic out in between."""

import os

import mac
from mac import HASH, TOR, MacTest

STEPPED = os.path.join(mac.HERE, "..", "helper", "stepped.sh")
TRIALS = int(os.environ.get("VELDMARK_KILL_TRIALS", "6"))  # for each path through the helper


def connect_words(strict):
    return ["connect", "--tor", TOR, "--hash", HASH, "--strict", strict, "--lan", "0"]


class Kill(MacTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.place(STEPPED, "/mac/stepped.sh")

    def stepped(self, kill_after, words):
        return self.machine.run(
            "env",
            "-i",
            "/bin/bash",
            "-p",
            "/mac/stepped.sh",
            self.machine.helper,
            "/mac/changes",
            kill_after,
            "",
            "",
            *words,
            check=False,
        )

    def state(self):
        """The state after a kill: the marker, whether the kill switch blocks traffic, whether any service points at Tor, whether
        Tor runs."""
        # The killed shell's children still hold the lock; the next run waits for them as well.
        self.machine.shell("/mac/gnu/flock /private/var/db/veldmark.lock true")
        state = self.machine.state
        marker = (self.machine.read("/Library/Application Support/Veldmark/state/active") or "").strip()
        switched = any(key.startswith("service ") and key.endswith(" dns") and value == "127.0.0.1" for key, value in state.items())
        return marker, self.machine.verdict("out") == "block", switched, "job veldmark.tor" in state

    def trials(self, prepare, words, check, least):
        prepare()
        done = self.stepped("", words)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        changes = self.machine.read("/mac/changes").splitlines()
        self.assertGreater(len(changes), least)
        self.machine.help("disconnect")
        self.assertRestored()
        step = max(1, len(changes) // TRIALS) if TRIALS else 1
        for change in changes[step // 2 :: step]:
            with self.subTest(change=change):
                self.machine.reset()  # also without Tor's account
                prepare()
                done = self.stepped(change, words)
                self.assertIn(done.returncode % 256, (137, 247), done.stderr)
                check(*self.state())
                self.machine.help("disconnect")
                self.assertRestored()

    def test_connect_strict(self):
        def check(marker, closed, switched, tor):
            self.assertTrue(marker or not (closed or switched or tor), "a change came before the marker")
            self.assertTrue(closed or not (switched or tor), "a service was switched or Tor ran before the kill switch stood")

        self.trials(lambda: None, connect_words("1"), check, 30)

    def test_connect_proxy(self):
        def check(marker, _, switched, tor):
            self.assertTrue(marker or not (switched or tor))

        self.trials(lambda: None, connect_words("0"), check, 30)

    def test_connect_strict_again(self):
        def check(marker, closed, *_):
            self.assertEqual((marker, closed), ("strict", True))

        self.trials(self.machine.connect, connect_words("1"), check, 30)

    def test_change_from_strict_to_proxy(self):
        def check(marker, closed, switched, tor):
            self.assertTrue(closed or (marker == "proxy" and switched and tor), "the kill switch opened before the new Tor served")

        self.trials(self.machine.connect, connect_words("0"), check, 30)

    def test_fix_dns(self):
        def prepare():
            self.machine.connect()
            self.machine.change(**{"service_Automatic/Wi-Fi_dns": "192.0.2.1"})

        def check(marker, closed, *_):
            self.assertEqual((marker, closed), ("strict", True))

        self.trials(prepare, ["fix-dns"], check, 3)

    def test_disconnect(self):
        def check(marker, closed, switched, tor):
            self.assertTrue(closed or not (switched or tor), "the kill switch opened before the rest was put back")
            self.assertTrue(marker or not closed)

        self.trials(self.machine.connect, ["disconnect"], check, 20)


if __name__ == "__main__":
    mac.main()

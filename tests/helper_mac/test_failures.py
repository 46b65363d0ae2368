"""Each Mac program that the helper calls fails once. The helper prints one sentence, never lets traffic out of a strict session,
and puts its changes back."""

import os

import mac
from mac import HASH, TOR, MacTest

TRIALS = int(os.environ.get("VELDMARK_FAILURE_TRIALS", "4"))  # for each path through the helper; 0: every call
MODES = "status", "quiet", "late"


class Failures(MacTest):
    def numbers(self, words, offset):
        """The numbers of the calls that fail, spread over all calls of a run."""
        self.machine.write("/mac/calls", "")
        self.machine.help(*words)
        count = len(self.machine.calls())
        self.assertGreater(count, 50)
        step = max(1, count // TRIALS) if TRIALS else 1
        return range(1 + offset % step, count + 1, step)

    def run_failing(self, number, mode, words):
        self.machine.write("/mac/calls", "")
        self.machine.fail_at(number, mode)
        done = self.machine.help(*words, check=False)
        self.machine.fail_never()
        self.call = self.machine.calls()[number - 1] if len(self.machine.calls()) >= number else "none"
        if done.returncode != 0:
            self.assertOneLine(done)
        return done

    def trials(self, prepare, words, check):
        for offset, mode in enumerate(MODES):
            prepare()
            numbers = self.numbers(words, offset * 3)
            self.machine.help("disconnect")
            for number in numbers:
                prepare()
                done = self.run_failing(number, mode, words)
                with self.subTest(number=number, mode=mode, call=self.call, said=done.stderr):
                    check(done)
                    self.machine.help("disconnect")
                    self.assertRestored()
                self.machine.help("disconnect", check=False)
                self.machine.reset()

    @staticmethod
    def connect_words(strict):
        return ["connect", "--tor", TOR, "--hash", HASH, "--strict", strict, "--lan", "0"]

    def switched(self):
        return any(
            key.startswith("service ") and key.endswith(" dns") and value == "127.0.0.1"
            for key, value in self.machine.state.items()
        )

    def test_connect_strict(self):
        def check(done):
            if done.returncode == 0 or self.switched() or self.machine.tor():
                self.assertEqual(self.machine.verdict("out"), "block")
            if done.returncode == 0:
                self.assertTrue(self.switched() and self.machine.tor())

        self.trials(lambda: None, self.connect_words("1"), check)

    def test_connect_proxy(self):
        def check(done):
            if done.returncode != 0:
                self.assertRestored()
            else:
                self.assertTrue(self.switched() and self.machine.tor())

        self.trials(lambda: None, self.connect_words("0"), check)

    def test_connect_strict_again(self):
        def check(_):
            self.assertEqual(self.machine.verdict("out"), "block")

        self.trials(self.machine.connect, self.connect_words("1"), check)

    def test_disconnect(self):
        def check(done):
            if done.returncode == 0:
                now, files = self.machine.settings()
                # A host that could not be cleared has no effect while its proxy is off.
                now = {key: value for key, value in now.items() if value != "No\t127.0.0.1\t9050"}
                self.assertEqual((now, files), self.before)
                self.machine.reset()
            elif self.switched() or self.machine.tor():
                self.assertIsNotNone(
                    self.machine.read("/Library/Application Support/Veldmark/state/active"),
                    "the session's settings stand without its marker",
                )

        self.trials(self.machine.connect, ["disconnect"], check)


if __name__ == "__main__":
    mac.main()

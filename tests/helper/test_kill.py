"""kill -9 of the helper right after each of its changes. A disconnect afterwards puts everything back, and a strict session never
lets traffic out in between. Probes are sent as long as none may get out, and the other end of the machine's only link sees them
whenever nothing blocks them. Each test prints the number of points that it has tried.

    test_kill.py Strict | StrictAgain | Proxy | RandomMoments
"""

import os
import random
import time

import namespace
from killing import AFTER, BEFORE, Kill, connect_words

RANDOM_TRIALS = int(os.environ.get("VELDMARK_KILL_TRIALS", "6"))  # for each path through the helper


class Strict(Kill):
    def test_connect(self):
        """Nothing is blocked before the rules; from the rules on nothing leaves."""

        def check(state):
            marker, drop, table, resolver = state
            if not marker:
                self.assertFalse(table or resolver, "a change came before the marker")
            if resolver:
                self.assertTrue(drop, "the resolver was switched before the kill switch stood")
            if self.machine.tor_pids():
                self.assertTrue(drop, "Tor ran before the kill switch stood")

        self.assertGreater(self.every_point(lambda: None, connect_words("1"), check, "note_listing", AFTER), 30)

    def test_the_very_first_connect(self):
        """None of Veldmark's folders exists yet. The later steps are the same as at any connect."""
        self.every_point(
            lambda: self.machine.shell("rm -rf /var/lib/veldmark"),
            connect_words("1"),
            lambda state: self.assertFalse(any(state)),
            only=lambda point: "ready_folders" in point,
        )

    def test_fix_dns(self):
        def prepare():
            self.connect()
            self.machine.shell("umount /etc/resolv.conf")

        self.assertGreater(
            self.every_point(prepare, ["fix-dns"], lambda state: self.assertEqual(state[:2], ("strict", True)), "", BEFORE), 4
        )

    def test_fix_dns_with_a_dead_watcher(self):
        def prepare():
            self.connect()
            self.machine.end_watcher()

        self.every_point(
            prepare,
            ["fix-dns"],
            lambda state: self.assertEqual(state[:2], ("strict", True)),
            "",
            BEFORE,
            only=lambda point: "watcher" in point,
        )

    def test_disconnect(self):
        def check(state):
            marker, drop, _, _ = state
            if self.machine.tor_pids():
                self.assertTrue(drop, "the kill switch opened while Tor ran")
            if not marker:
                self.assertFalse(drop)

        self.assertGreater(self.every_point(self.connect, ["disconnect"], check, "nft delete table", BEFORE), 15)


class StrictAgain(Kill):
    """A connect while a strict session runs."""

    def test_connect_again(self):
        self.assertGreater(
            self.every_point(
                self.connect, connect_words("1"), lambda state: self.assertEqual(state[:2], ("strict", True)), "", BEFORE
            ),
            30,
        )

    def test_change_to_proxy_mode(self):
        def check(state):
            if not state[1]:
                self.assertEqual(state[0], "proxy")
                self.assertTrue(self.machine.tor_pids(), "the kill switch opened before the new Tor ran")

        self.assertGreater(
            self.every_point(self.connect, ["replace", *connect_words("0")[1:]], check, "switch_firewall proxy", BEFORE), 30
        )


class Proxy(Kill):
    def connect_proxy(self):
        self.connect("0")

    def test_connect(self):
        def check(state):
            marker, drop, table, resolver = state
            self.assertFalse(drop)
            if not marker:
                self.assertFalse(table or resolver)

        self.assertGreater(self.every_point(lambda: None, connect_words("0"), check), 30)

    def test_disconnect(self):
        self.assertGreater(self.every_point(self.connect_proxy, ["disconnect"], lambda state: self.assertFalse(state[1])), 10)

    def test_fix_dns(self):
        def prepare():
            self.connect_proxy()
            self.machine.shell("umount /etc/resolv.conf")

        self.assertGreater(self.every_point(prepare, ["fix-dns"], lambda state: self.assertEqual(state[:2], ("proxy", False))), 4)

    def test_change_to_strict_mode(self):
        def check(state):
            marker, drop, _, _ = state
            if drop:
                self.assertEqual(marker, "strict")

        self.assertGreater(self.every_point(self.connect_proxy, connect_words("1"), check, "note_listing", AFTER), 30)


class RandomMoments(Kill):
    """The helper as it ships, killed at any time of its run."""

    def killed(self, words, seconds):
        return self.machine.run(
            "/bin/bash",
            "-c",
            'env -i PKEXEC_UID="$1" /bin/bash "${@:3}" & pid=$!; sleep "$2"; kill -KILL $pid; wait $pid',
            "killed",
            str(namespace.USER_UID),
            f"{seconds:.4f}",
            self.machine.helper,
            *words,
            check=False,
        )

    def trials(self, prepare, words, check, closed=None):
        seed = int(os.environ.get("VELDMARK_SEED") or time.time_ns() % 1000000)
        moments = random.Random(seed)
        prepare()
        started = time.monotonic()
        self.machine.run("env", "-i", f"PKEXEC_UID={namespace.USER_UID}", "/bin/bash", self.machine.helper, *words)
        whole = time.monotonic() - started
        self.machine.help("disconnect")
        killed = 0
        for trial in range(RANDOM_TRIALS):
            seconds = moments.uniform(0, whole)
            with self.subTest(f"VELDMARK_SEED={seed}", trial=trial, seconds=seconds):
                done = self.trial(prepare, lambda _, s=seconds: self.killed(words, s), check, "", closed)
                killed += done.returncode == 137
        print(
            f"{self.id().split('.', 1)[1]}: killed {killed} of {RANDOM_TRIALS} times within {whole:.2f} s, VELDMARK_SEED={seed}",
            flush=True,
        )

    def test_connect(self):
        for strict in "1", "0":
            self.trials(lambda: None, connect_words(strict), lambda state: None)

    def test_connect_again(self):
        self.trials(self.connect, connect_words("1"), lambda state: self.assertEqual(state[:2], ("strict", True)), BEFORE)

    def test_fix_dns(self):
        self.trials(self.connect, ["fix-dns"], lambda state: self.assertEqual(state[:2], ("strict", True)), BEFORE)

    def test_disconnect(self):
        for strict in "1", "0":
            self.trials(lambda s=strict: self.connect(s), ["disconnect"], lambda state: None)


if __name__ == "__main__":
    namespace.main()

"""The helper also reads its options from standard input, where no other account sees them."""

import os
import time

import namespace
from namespace import HASH, TOR, HelperTest

WORDS = [
    "--tor",
    TOR,
    "--hash",
    HASH,
    "--strict",
    "1",
    "--lan",
    "0",
    "--exit",
    "de",
    "--bridge",
    "192.0.2.1:443 " + "0123456789" * 4,
]


def lines(words, end="end\n"):
    return "".join(word + "\n" for word in words) + end


class Words(HelperTest):
    def tearDown(self):
        self.machine.help("disconnect")

    def test_they_are_read_as_they_stand(self):
        self.machine.help("connect", "-", stdin=lines(WORDS))
        torrc = self.machine.shell("cat /var/lib/veldmark/run/torrc")
        for line in f"HashedControlPassword {HASH}", "ExitNodes {de}", "Bridge 192.0.2.1:443 " + "0123456789" * 4:
            self.assertIn(f"\n{line}\n", torrc)

    def test_nobody_sees_them(self):
        """The helper waits for its lock meanwhile. The same words on a command line show that the search works."""
        holder = self.machine.start("flock", "/run/veldmark.lock", "sleep", "1000")
        import subprocess

        runs = [
            self.machine.start(
                "/bin/bash", self.machine.helper, "connect", *more, stdin=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True
            )
            for more in ((), ("-",))
        ]
        try:
            runs[1].stdin.write(lines(WORDS))
            runs[1].stdin.flush()
            find = "for f in /proc/[0-9]*/cmdline; do tr '\\0' ' ' <$f 2>/dev/null; echo; done | grep -c 'helper.sh connect - *$' || true"
            deadline = time.monotonic() + 20
            while int(self.machine.shell(find, uid=4243)) < 1:
                self.assertLess(time.monotonic(), deadline)
            seen = self.machine.start(
                "/bin/bash", self.machine.helper, "connect", *WORDS, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL
            )
            runs.append(seen)
            count = f"grep -lasF {HASH} /proc/[0-9]*/cmdline /proc/[0-9]*/environ | grep -vc self || true"
            while int(self.machine.shell(count)) < 2:  # grep itself, and that run
                self.assertLess(time.monotonic(), deadline)
            seen.kill()
            seen.wait()
        finally:
            for run in runs:
                run.kill()
                run.communicate()
            holder.kill()
            holder.wait()
            self.machine.shell("pkill -x sleep; pkill -f 'helper[.]sh connect' || true")

    def test_words_that_were_cut_short_are_none(self):
        before = self.machine.snapshot()
        for text in "", "\n", lines(WORDS, ""), lines(WORDS, "end"), lines(WORDS[:-1], "192.0.2.1:44"):
            with self.subTest(text):
                done = self.machine.help("connect", "-", stdin=text, check=False)
                self.assertOneLine(done, "are not complete")
        self.assertEqual(self.machine.snapshot(), before)

    def test_hostile_words_are_refused_as_on_a_command_line(self):
        before = self.machine.snapshot()
        for text, says in (
            (lines(["--verbose", "1"]), "does not know"),
            (lines(["--tor", "a" * 5000]), "too long"),
            (lines(["--hash", "$(touch /run/pwned)", *WORDS[4:8], "--tor", TOR]), "not valid"),
            (lines(["x"] * 400), "too many"),
            (lines(["--tor"]), "needs a value"),
            (lines([*WORDS, "-"]), "does not know"),
            (lines(["--tor", ""]), "needs a value"),
            (lines(["--tor", "/usr/bin/tor\r"]), "control characters"),
        ):
            with self.subTest(says):
                self.assertOneLine(self.machine.help("connect", "-", stdin=text, check=False), says)
        self.assertEqual(self.machine.shell("ls /run/pwned 2>/dev/null || true"), "")
        self.assertEqual(self.machine.snapshot(), before)

    def test_other_verbs_take_them_too(self):
        self.machine.help("connect", "-", stdin=lines(WORDS[:8]))
        self.machine.help("disconnect", "-", stdin="end\n")
        self.assertOneLine(
            self.machine.help("disconnect", "-", stdin="--force\nend\n", check=False), "option that it does not know"
        )


if __name__ == "__main__":
    namespace.main()

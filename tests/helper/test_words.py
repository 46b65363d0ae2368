"""The helper also reads its options from standard input, where no other account sees them."""

import subprocess

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

# Prints how many processes have the text of its input on their command lines or in their environments.
SEARCH = r"""
import os, sys
text, found = sys.stdin.buffer.read(), 0
for pid in filter(str.isdigit, os.listdir('/proc')):
    try: found += any(text in open(f'/proc/{pid}/{kind}', 'rb').read() for kind in ('cmdline', 'environ'))
    except OSError: pass
print(found)
"""


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

    def processes_with(self, text):
        """How many processes have it on their command lines or in their environments."""
        return int(self.machine.run("/usr/bin/python3", "-c", SEARCH, stdin=text).stdout)

    def begin(self, runs, *words, stdin=""):
        """Begins a connect, and waits until it waits for its lock: it has taken its words by then."""
        run = self.machine.start(
            *("/bin/bash", self.machine.helper, "connect", *words),
            **{"stdin": subprocess.PIPE, "stderr": subprocess.DEVNULL, "text": True},
        )
        runs.append(run)
        run.stdin.write(stdin)
        run.stdin.flush()
        self.machine.shell(f"until [ $(pgrep -cxf 'flock -w 20 9') = {len(runs)} ]; do sleep 0.01; done", timeout=20)

    def test_nobody_sees_them(self):
        """The helper waits for its lock meanwhile. The same words on a command line show that the search works."""
        holder = self.machine.hold("/run/veldmark.lock")
        runs = []
        try:
            self.begin(runs, "-", stdin=lines(WORDS))
            self.assertEqual(self.processes_with(HASH), 0)
            self.begin(runs, *WORDS)
            self.assertGreater(self.processes_with(HASH), 0)
        finally:
            self.machine.shell("pkill -KILL -f 'helper[.]sh connect' || true")
            holder.communicate("go on\n")
            for run in runs:
                run.communicate()

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

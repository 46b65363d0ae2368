"""The passwordless rule allows to end a running strict session or to start the same one again, but not to weaken it."""

import os

import namespace
from namespace import HASH, TOR, USER_UID, HelperTest

DIALOG = {"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)}
OTHER_HASH = HASH[:-1] + "F"
BRIDGES = ["--bridge", "192.0.2.1:443", "--bridge", "obfs4 192.0.2.1:444 cert=a iat-mode=0", "--pt-lyrebird", "/usr/bin/obfs4proxy"]
NEEDED = "ERROR: An administrator password is needed to change the running strict session.\n"


def words(verb="connect", strict=1, lan=0, hash=HASH, more=()):
    return [verb, "--tor", TOR, "--hash", hash, "--strict", str(strict), "--lan", str(lan), *more]


LESS = {
    "proxy mode": words(strict=0),
    "the local network": words(lan=1),
    "another password": words(hash=OTHER_HASH),
    "an exit country": words(more=["--exit", "de"]),
    "who shares circuits": words(more=["--separate", "1"]),
    "a bridge": words(more=["--bridge", "192.0.2.1:443"]),
    "a bridge with a program": words(more=BRIDGES),
    "a bridge in reserve": words(more=["--reserve", "192.0.2.1:443"]),
}


class Lessening(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.install_copy()

    def tearDown(self):
        self.machine.help("disconnect")

    def state(self):
        return (
            self.machine.shell(
                "cat /var/lib/veldmark/state/active /var/lib/veldmark/asked; md5sum </var/lib/veldmark/run/torrc;"
                "ls /var/lib/veldmark/run /var/lib/veldmark/journal; nft list ruleset"
            ),
            self.machine.tor_pids(),
        )

    def assertRefused(self, done, before):
        self.assertEqual((done.returncode, done.stderr), (3, NEEDED))
        self.assertEqual(self.state(), before)

    def test_rule_does_not_lessen_what_runs(self):
        self.machine.help_by_rule(*words())
        before = self.state()
        for what, line in LESS.items():
            with self.subTest(what):
                self.assertRefused(self.machine.help_by_rule(*line, check=False), before)
                self.assertRefused(self.machine.help_by_rule("replace", *line[1:], check=False), before)

    def test_each_of_them_is_taken_where_nothing_strict_runs(self):
        """The changes are allowed without a strict session, so it is the running session that refuses them."""
        for what, line in LESS.items():
            with self.subTest(what):
                self.machine.help_by_rule(*line)
                self.machine.help("disconnect")
        self.machine.help_by_rule(*words(strict=0))
        self.machine.help_by_rule(*words(strict=0, lan=1, hash=OTHER_HASH))

    def test_rule_takes_bridges_of_a_session_neither_away_nor_others(self):
        self.machine.help_by_rule(*words(lan=1, more=BRIDGES))
        before = self.state()
        others = [
            ["--bridge", "192.0.2.9:443"],
            BRIDGES[:4] + ["--pt-lyrebird", "/usr/bin/obfs4proxy", "--bridge", "192.0.2.9:1"],
            [],
            BRIDGES[:1] + ["192.0.2.1:443 " + "0123456789" * 4] + BRIDGES[2:],
            BRIDGES + ["--reserve", "192.0.2.9:443"],
            ["--reserve" if word == "--bridge" else word for word in BRIDGES],
        ]
        for more in others:
            with self.subTest(more):
                self.assertRefused(self.machine.help_by_rule(*words(lan=1, more=more), check=False), before)

    def test_the_same_again_needs_nobody(self):
        """The same connect again, as after Tor's end, needs no approval."""
        line = words(lan=1, more=[*BRIDGES, "--exit", "de"])
        self.machine.help_by_rule(*line)
        [tor] = self.machine.shell("pgrep -x tor").split()
        self.machine.shell(f"kill -9 {tor}; while [ -e /proc/{tor} ]; do :; done")
        self.machine.help_by_rule(*line)
        self.assertEqual(len(self.machine.shell("pgrep -x tor").split()), 1)

    def test_closing_the_local_network_needs_nobody(self):
        self.machine.help_by_rule(*words(lan=1))
        self.machine.help_by_rule(*words(lan=0))
        before = self.state()
        self.assertRefused(self.machine.help_by_rule(*words(lan=1), check=False), before)

    def test_user_ends_it_without_a_password(self):
        self.machine.help_by_rule(*words())
        self.machine.help_by_rule("disconnect")
        self.assertEqual(self.machine.shell("ls /var/lib/veldmark/asked 2>/dev/null || true"), "")
        self.machine.help_by_rule(*words(strict=0))

    def test_dialog_of_connect_says_not_enough(self):
        """polkit shows the verb's own message; only the message of replace says that the session protects less."""
        self.machine.help(*words(), env=DIALOG)
        before = self.state()
        for what, line in LESS.items():
            with self.subTest(what):
                self.assertRefused(self.machine.help(*line, env=DIALOG, check=False), before)
        self.machine.help("replace", *LESS["proxy mode"][1:], env=DIALOG)
        self.assertEqual(self.machine.shell("cat /var/lib/veldmark/state/active"), "proxy\n")

    def test_administrator_by_hand_may(self):
        self.machine.help_by_rule(*words())
        self.machine.help(*words(strict=0))
        self.assertEqual(self.machine.shell("cat /var/lib/veldmark/state/active"), "proxy\n")

    def test_what_was_asked_is_roots_alone_to_know(self):
        self.machine.help_by_rule(*words(more=BRIDGES))
        self.assertEqual(self.machine.shell("stat -c '%a %u' /var/lib/veldmark/asked"), "600 0\n")

    def test_without_the_note_nothing_is_taken_for_the_same(self):
        for damage in "rm {0}", "ln -sf /etc/passwd {0}", ": >{0}", "rm {0}; mkdir {0}":
            with self.subTest(damage):
                self.machine.help_by_rule(*words())
                self.machine.shell(damage.format("/var/lib/veldmark/asked"))
                done = self.machine.help_by_rule(*words(), check=False)
                self.assertEqual((done.returncode, done.stderr), (3, NEEDED))
                self.machine.shell("rm -rf /var/lib/veldmark/asked")
                self.machine.help("disconnect")

    def test_what_a_restart_of_the_computer_left_is_no_session(self):
        """The marker exists, the rules do not: a connect can only add protection."""
        self.machine.help_by_rule(*words())
        self.machine.end_watcher()
        self.machine.shell("nft delete table inet veldmark; pkill -9 -x tor; rm -f /run/veldmark*")
        self.machine.help_by_rule(*words(hash=OTHER_HASH, lan=1))


if __name__ == "__main__":
    namespace.main()

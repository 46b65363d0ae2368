"""The watcher of the Mac's firewall puts back rules that another program flushes or replaces, and notes it."""

import os
import time

import mac
from mac import MacTest

NOTE = "/private/var/run/veldmark.watch"  # "WORD COUNT SINCE"; its time is that of the watcher's last look
LIMIT_SECONDS = 30  # on a busy machine; it looks every second


class Watcher(MacTest):
    def wait(self, condition, what):
        deadline = time.monotonic() + LIMIT_SECONDS
        while not condition():
            self.assertLess(time.monotonic(), deadline, what)
            time.sleep(0.05)

    def note(self):
        """The word, and how often rules were missing."""
        text = self.machine.read(NOTE)
        if text is None:
            return None
        word, count, since = text.split(" ")
        self.assertLess(abs(int(since) - time.time()), 120)
        return f"{word} {count}"

    def closed(self):
        return self.machine.verdict("out") == "block"

    def test_every_way_to_open_it_is_closed_again_and_told(self):
        ways = {
            "the main rules loaded anew": {"pf  filter": mac.BEFORE_PF["pf  filter"], "pf  nat": mac.BEFORE_PF["pf  nat"]},
            "another program's rules before ours": {"pf  filter": 'pass out quick all\nanchor "veldmark" all'},
            "our rules emptied": {"pf veldmark filter": "", "pf veldmark nat": ""},
            "one rule less": {"pf veldmark filter": "block return out quick all"},
            "pf switched off": {"pf enabled": "0", "pf tokens": ""},
            "everything at once": {"pf  filter": "", "pf  nat": "", "pf veldmark filter": "", "pf enabled": "0", "pf tokens": ""},
        }
        self.machine.connect()
        wanted = self.machine.state["pf veldmark filter"]
        self.assertTrue(self.closed())
        for count, (name, changes) in enumerate(ways.items(), 1):
            with self.subTest(name):
                self.machine.set_state(changes)
                self.wait(lambda: self.note() == f"restored {count}", "it was not told")
                state = self.machine.state
                self.assertTrue(self.closed())
                self.assertEqual(state["pf veldmark filter"], wanted)
                self.assertEqual(
                    [line for line in state["pf  filter"].splitlines() if "scrub" not in line][0], 'anchor "veldmark" all'
                )
                self.assertIn('rdr-anchor "veldmark" all', state["pf  nat"])

    def test_what_it_has_put_back_is_taken_back_with_the_session(self):
        """Also the program's hold on pf, which another program may hold, too."""
        self.machine.connect()
        self.machine.set_state({"pf veldmark filter": "", "pf veldmark nat": ""})
        self.wait(lambda: self.note() == "restored 1", "it was not told")
        self.assertEqual(len(self.machine.state["pf tokens"].splitlines()), 2)
        self.machine.help("disconnect")
        self.assertRestored()

    def test_rules_that_do_not_read_back_are_no_kill_switch(self):
        self.machine.set_state({"pf lies": "1"})
        done = self.machine.help("connect", "--tor", mac.TOR, "--hash", mac.HASH, "--strict", "1", "--lan", "0", check=False)
        self.assertOneLine(done, "does not hold the rules")
        state = self.machine.state
        del state["pf lies"]
        self.machine.state = state
        self.assertRestored()

    def test_a_device_that_is_left_out_is_told_as_open(self):
        self.machine.connect()
        self.machine.set_state({"pf skip": "en0"})
        self.wait(lambda: self.note() == "open 1", "it was not told")
        self.machine.set_state({"pf skip": ""})
        self.wait(lambda: self.note() == "restored 1", "its end was not told")

    def test_it_ends_with_the_session_and_is_not_there_in_proxy_mode(self):
        self.machine.connect(strict=0)
        self.assertNotIn("job veldmark.watch", self.machine.state)
        self.machine.connect(strict=1)
        self.assertIn("job veldmark.watch", self.machine.state)
        self.machine.connect(strict=0)
        self.assertNotIn("job veldmark.watch", self.machine.state)
        self.machine.connect(strict=1)
        self.machine.help("disconnect")
        self.assertRestored()

    def test_it_changes_nothing_while_all_is_well(self):
        self.machine.connect()
        flushes = self.machine.state["pf flushes"]
        loop = self.machine.shell(f"grep -c . /proc/{self.machine.state['job veldmark.watch']}/cmdline")
        self.assertNotEqual(loop, "0")
        # It has looked when a sleep child of its own has started and ended.
        pid, seen = self.machine.state["job veldmark.watch"], set()
        self.wait(lambda: seen.add(self.machine.shell(f"cat /proc/{pid}/task/{pid}/children")) or len(seen) > 4, "it does not look")
        self.assertEqual(self.machine.state["pf flushes"], flushes)
        self.assertEqual(self.note(), "standing 0")

    def test_what_cannot_be_put_back_is_told_once_and_so_is_its_end(self):
        self.machine.connect()
        self.assertEqual(self.note(), "standing 0")  # also before the first look
        path = self.machine.root + NOTE
        pfctl = self.machine.root + "/usr/bin/pfctl"
        os.rename(pfctl, pfctl + ".away")
        self.wait(lambda: self.note() == "open 1", "it was not told")
        for _ in range(2):
            before = os.stat(path).st_mtime_ns
            self.wait(lambda: os.stat(path).st_mtime_ns != before, "it looks no more")
        self.assertEqual(self.note(), "open 1")
        os.rename(pfctl + ".away", pfctl)
        self.wait(lambda: self.note() == "restored 1", "its end was not told")
        self.machine.help("disconnect")
        self.assertIsNone(self.note())

    def test_no_note_survives_its_session(self):
        self.machine.connect()
        self.machine.restart()
        self.machine.write(NOTE, "restored 9 1\n")
        self.machine.connect(strict=0)
        self.assertIsNone(self.machine.read(NOTE))

    def test_fix_dns_starts_one_that_is_gone(self):
        self.machine.connect()
        self.machine.end_watcher()
        self.machine.help("fix-dns")
        self.assertIn("job veldmark.watch", self.machine.state)

    def test_what_it_runs_is_roots_alone(self):
        self.machine.connect()
        self.assertEqual(
            self.machine.shell(
                "/mac/gnu/stat -c '%a %u' /private/var/db/veldmark/run/watcher.sh " "/private/var/db/veldmark/run/watch.plist"
            ),
            "600 0\n644 0\n",
        )


if __name__ == "__main__":
    mac.main()

"""Hostile archives in the place of the Tor Project's bundle, and programs that interfere while the helper reads one."""

import concurrent.futures
import os
import subprocess
import tarfile
import tempfile
import time

import namespace
from bundlecase import ARCHIVE, LYREBIRD, MEMBER, NEW_BUNDLE, PROGRAMS, READER, BundleCase
from bundles import bundle, member, transport
from namespace import OTHER_UID, USER_UID
from thief import NOBODY, Thief


class Hostile(BundleCase):
    def test_archives_with_odd_members_put_nothing_anywhere(self):
        """These archives are signed, since the helper opens no other."""
        program = transport("one")
        escaped = "/tmp/veldmark-bundle-escaped"
        zeros = tarfile.TarInfo(MEMBER)
        zeros.size = 400_000_000
        with tempfile.TemporaryFile() as file:
            file.truncate(zeros.size)
            bomb = bundle((zeros, file))
        crowd = bundle(*(member(f"tor/{number}\nx", b"") for number in range(20_000)), member("tor/a", b""))
        for name, archive in (
            ("link", bundle(member(MEMBER, kind=tarfile.SYMTYPE, link=LYREBIRD))),
            ("hard link", bundle(member(MEMBER, kind=tarfile.LNKTYPE, link=LYREBIRD))),
            ("device", bundle(member(MEMBER, kind=tarfile.CHRTYPE))),
            ("pipe", bundle(member(MEMBER, kind=tarfile.FIFOTYPE))),
            ("folder", bundle(member(MEMBER, kind=tarfile.DIRTYPE))),
            ("another place", bundle(member("lyrebird", program))),
            ("upwards", bundle(member("../../../../../.." + escaped, program))),
            ("absolute", bundle(member(escaped, program))),
            ("twice", bundle(member(MEMBER, program), member(MEMBER, program))),
            ("crowd", crowd),
            ("bomb", bomb),
            ("cut", bundle(member(MEMBER, program))[:-20]),
            ("no archive", b"no archive"),
        ):
            with self.subTest(name):
                self.bring(program, archive)
                self.assertAsked(self.connect(check=False))
                self.assertEqual(self.copies(), [])
                self.assertFalse(os.path.lexists(escaped))
        self.bring(b"", bundle(member(MEMBER, kind=tarfile.SYMTYPE, link="x")))  # an empty member is no program
        self.assertAsked(self.connect(check=False))

    def test_files_that_are_none(self):
        program = transport("one")
        for name, script in (
            ("ten gigabytes", 'rm "$1"; truncate -s 10G "$1"; chown alice "$1"'),
            ("pipe", 'rm "$1"; mkfifo -m 0666 "$1"'),
            ("endless", 'ln -sf /dev/zero "$1"'),
            ("root's", 'chown root "$1"; chmod 0600 "$1"'),
            ("link to root's", 'install -m 0600 "$1" /run/secret; ln -sf /run/secret "$1"'),
            ("link to nowhere", 'ln -sf /nonexistent "$1"'),
        ):
            for end in "", ".asc", ".key":
                if name == "pipe" and end:
                    continue
                with self.subTest(name + end):
                    self.bring(program)
                    self.machine.shell(script, ARCHIVE + end)
                    began = time.monotonic()
                    self.assertAsked(self.connect(check=False))
                    self.assertLess(time.monotonic() - began, 20)

    def test_full_disk(self):
        program = transport("one")
        noise = os.urandom(400_000)
        self.bring(program, bundle(member(MEMBER, program), member("data", noise)))
        self.machine.shell(f"mkdir -p -m 0755 {PROGRAMS}; mount -t tmpfs -o size=128k,mode=755 full {PROGRAMS}")
        try:
            self.assertAsked(self.connect(check=False))
        finally:
            self.machine.shell(f"umount -l {PROGRAMS}")
        self.connect()

    def test_archive_that_is_swapped_after_it_was_read(self):
        good, evil = transport("good"), transport("evil")
        self.bring(good)
        self.slow_gpgv(3)
        with self.begin() as run:
            self.wait_for_gpgv()
            self.put(LYREBIRD, evil)
            self.put(ARCHIVE, bundle(member(MEMBER, evil)))
            self.assertEqual(run.communicate(timeout=60), (b"", b""))
        self.assertEqual(len(self.copies()), 1)
        self.assertEqual(self.machine.shell(f"cat {PROGRAMS}/*/lyrebird"), good.decode())

    def test_gpgv_has_no_rights_no_network_and_writes_nothing(self):
        self.bring(transport("one"))
        self.slow_gpgv(5)
        with self.begin() as run:
            pid = self.wait_for_gpgv()
            status = dict(line.split(":", 1) for line in self.machine.shell(f"cat /proc/{pid}/status").splitlines())
            self.assertEqual(set(status["Uid"].split() + status["Gid"].split()), {str(READER)})
            self.assertEqual(status["Groups"].split(), [])
            self.assertEqual({status[name].strip() for name in ("CapInh", "CapPrm", "CapEff", "CapBnd", "CapAmb")}, {"0" * 16})
            self.assertEqual(status["NoNewPrivs"].strip(), "1")
            for kind in "net", "ipc", "pid":
                self.assertNotEqual(*self.machine.shell(f"readlink /proc/{pid}/ns/{kind} /proc/self/ns/{kind}").split())
            self.assertRegex(self.machine.shell(f"cat /proc/{pid}/limits"), r"Max file size +0 +0 ")
            self.assertNotIn("veldmark.lock", self.machine.shell(f"ls -l /proc/{pid}/fd"))
            self.assertEqual(run.communicate(timeout=60), (b"", b""))

    def test_killed_while_it_looks(self):
        self.bring(transport("one"))
        self.slow_gpgv(3)
        run = self.begin()
        self.wait_for_gpgv()
        self.machine.shell("kill -9 $(pgrep -o -f 'veldmark-helper[.]sh connect')")
        run.communicate(timeout=60)
        self.assertNotEqual(self.machine.shell(f"ls -d {NEW_BUNDLE}"), "")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell(f"ls -d {NEW_BUNDLE} 2>/dev/null || true"), "")
        self.assertLessEqual(set(self.copies()), {"./new"})  # a program that no run takes for approved
        self.connect()
        self.assertEqual(len(self.copies()), 1)

    def test_several_at_once(self):
        self.bring(transport("one"))
        with concurrent.futures.ThreadPoolExecutor(3) as pool:
            runs = list(pool.map(lambda _: self.connect(check=False), range(3)))
        self.assertEqual([(run.returncode, run.stderr) for run in runs], [(0, "")] * 3)
        self.assertEqual(len(self.copies()), 1)

    def test_nobody_reads_what_root_looks_at(self):
        self.bring(transport("one"))
        self.slow_gpgv(5)
        with self.begin() as run:
            self.wait_for_gpgv()
            for uid, reads in (READER, True), (NOBODY, False), (USER_UID, False), (OTHER_UID, False):
                done = self.machine.run("cat", NEW_BUNDLE + "/key", uid=uid, check=False)
                self.assertEqual(done.returncode == 0, reads, f"as {uid}: {done.stderr}")
            self.assertEqual(run.communicate(timeout=60), (b"", b""))

    def test_what_runs_as_nobody_does_not_say_what_gpgv_says(self):
        """Other services run as nobody, and a process can take over the output of another process of its account."""
        evil = transport("evil")
        archive = bundle(member(MEMBER, evil))
        verdict = f"[GNUPG:] VALIDSIG {self.signer.fingerprint} 2026-01-01 1767225600 0 4 0 22 8 00 {self.signer.fingerprint}"
        self.slow_gpgv(4)
        for uid, gets_in in (NOBODY, False), (READER, True):
            with self.subTest(uid):
                self.bring(evil, archive, signature=self.other.sign(archive))
                thief = Thief(self.machine, uid, "sleep", victim=READER)
                self.addCleanup(thief.close)
                with self.begin() as run:
                    self.assertEqual(thief.says(), "a pipe" if gets_in else "Operation not permitted")
                    thief.write(verdict)
                    output = run.communicate(timeout=60)
                self.assertEqual(output[1] == b"", gets_in, output)
                self.assertEqual(len(self.copies()), 1 if gets_in else 0)
                self.machine.help("disconnect")

    def test_archive_that_the_readers_descriptor_would_change_afterwards(self):
        """The reader runs as the caller, and the caller's other programs can take over its output."""
        good, evil = transport("good"), transport("evil")
        self.bring(good)
        self.put(LYREBIRD, evil)
        self.put("/home/alice/b/good", bundle(member(MEMBER, good)))
        self.put("/home/alice/b/evil", bundle(member(MEMBER, evil)))
        self.machine.shell(f"rm {ARCHIVE}; mkfifo -m 0600 {ARCHIVE}; chown alice {ARCHIVE}")
        thief = Thief(self.machine, USER_UID, "head", pipe=ARCHIVE, file="/home/alice/b/good")
        self.addCleanup(thief.close)
        with self.begin() as run:
            self.assertEqual(thief.says(), "a pipe")
            output = run.communicate(timeout=60)
        self.assertEqual(thief.copy("/home/alice/b/evil"), "Broken pipe")
        self.assertIn(b"An administrator password is needed", output[1])
        self.assertEqual(self.copies(), [])

    def test_nothing_is_left_where_another_program_cannot_be_read(self):
        self.bring(transport("one"))
        other = "/home/alice/b/webtunnel-client"
        self.machine.shell(f"install -m 0711 /usr/bin/true {other}")
        more = ("--bridge", "webtunnel 192.0.2.3:80 url=https://a.example/", "--pt-webtunnel", other, "--bundle", ARCHIVE)
        self.assertOneLine(self.connect(more=more, check=False), f"The program {other} cannot be copied.")
        self.assertEqual(len(self.copies()), 1, "the bundle was verified, and there is no other copy")

    def test_gpgv_that_was_taken_over_leaves_nothing_running(self):
        self.bring(transport("one"))
        self.replace_gpgv("#!/bin/sh\ntrap '' TERM\nsetsid sleep 1111 &\nexec setsid sleep 1111\n")
        run = self.begin()
        self.machine.shell("until pgrep -xf 'sleep 1111'; do sleep 0.01; done", timeout=30)
        self.assertIn(b"An administrator password is needed", run.communicate(timeout=60)[1])
        self.assertEqual(self.machine.shell("pgrep -xf 'sleep 1111' || true"), "")

    def test_where_a_program_is_missing_an_administrator_is_asked(self):
        self.bring(transport("one"))
        for program in "gpgv", "tar", "gzip", "od", "sha1sum":
            with self.subTest(program):
                give_back = self.take_away(program)
                try:
                    self.assertAsked(self.connect(check=False))
                finally:
                    give_back()
        self.connect()


if __name__ == "__main__":
    namespace.main()

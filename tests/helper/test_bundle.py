"""A transport runs unasked where the Tor Project has signed the archive that it came from, as root has seen itself, and in no other case.

The signer is a key of this test's; the helper is a copy with that key's fingerprint in the place of the Tor Browser Developers'."""

import concurrent.futures
import os
import subprocess
import tarfile
import tempfile
import time

import namespace
from bundles import FEBRUARY, JANUARY, Signer, bundle, member, packets, transport
from namespace import HASH, TOR, HelperTest, USER_UID

FINGERPRINT = "EF6E286DDA85EA2A4BA7DE684E2C6E8793298290"
BRIDGE = "obfs4 192.0.2.1:443 0123456789012345678901234567890123456789 cert=a iat-mode=0"
PROMPT = {"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)}
MEMBER = "tor/pluggable_transports/lyrebird"
ARCHIVE = "/home/alice/b/bundle.tar.gz"
LYREBIRD = "/home/alice/b/lyrebird"
PROGRAMS = "/var/lib/veldmark/programs"
NOTE = "/var/lib/veldmark/bundle"
NEW_BUNDLE = PROGRAMS + "/bundle.new"


class BundleCase(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.signer, cls.other = Signer("Signer"), Signer("Other")
        cls.folder = tempfile.TemporaryDirectory(prefix="veldmark-bundle-")
        cls.addClassCleanup(cls.folder.cleanup)
        with open(cls.machine.helper, encoding="utf-8") as file:
            text = file.read()
        assert text.count(FINGERPRINT) == 1
        cls.machine.helper = f"{cls.folder.name}/veldmark-helper.sh"
        with open(cls.machine.helper, "w", encoding="utf-8") as file:
            file.write(text.replace(FINGERPRINT, cls.signer.fingerprint))
        os.chmod(cls.machine.helper, 0o755)
        os.chmod(cls.folder.name, 0o755)
        cls.machine.install_copy()

    def setUp(self):
        self.machine.shell(f"rm -rf /home/alice/* {PROGRAMS} {NOTE}; install -d -o alice -g alice -m 0700 /home/alice/b")

    def tearDown(self):
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell(f"ls -d {NEW_BUNDLE} {PROGRAMS}/new 2>/dev/null || true"), "")

    def put(self, path, content):
        """A file of alice's; None for none."""
        self.machine.shell('rm -rf "$1"', path)
        if content is not None:
            with tempfile.NamedTemporaryFile(dir=self.folder.name) as file:
                file.write(content)
                file.flush()
                self.machine.shell('install -o alice -g alice -m 0700 "$1" "$2"', file.name, path)

    def bring(self, program, archive=None, now=JANUARY, **other):
        """Program and bundle of alice's, as the downloader leaves them. `signature` and `key`: in the place of the signer's."""
        if archive is None:
            archive = bundle(member(MEMBER, program))
        self.put(LYREBIRD, program)
        self.put(ARCHIVE, archive)
        self.put(ARCHIVE + ".asc", other.get("signature", self.signer.sign(archive, now)))
        self.put(ARCHIVE + ".key", other.get("key", self.signer.key))

    WORDS = ("connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0", "--bridge", BRIDGE, "--pt-lyrebird", LYREBIRD)

    def connect(self, more=("--bundle", ARCHIVE), **options):
        """By the password-free rule, which approves nothing."""
        return self.machine.help_by_rule(*self.WORDS, *more, **options)

    def assertAsked(self, done):
        self.assertOneLine(done, f"An administrator password is needed to approve {LYREBIRD}.")
        self.assertEqual(done.returncode, 3)
        self.assertEqual(self.machine.shell(f"ls -d {NEW_BUNDLE} {PROGRAMS}/new 2>/dev/null || true"), "")

    def copies(self):
        return self.machine.shell(f"cd {PROGRAMS} && find . -type f | sort").split()

    def digest(self):
        return self.machine.run("sha256sum", LYREBIRD).stdout.split()[0]

    def note(self):
        return self.machine.shell(f"cat {NOTE}").splitlines()

    def replace_gpgv(self, script):
        """Somebody else's gpgv, until the end of the test."""
        path = f"{self.folder.name}/gpgv"
        with open(path, "w", encoding="ascii") as file:
            file.write(script)
        os.chmod(path, 0o755 if script else 0o644)
        self.machine.shell('cp /usr/bin/gpgv "$1.real"; mount --bind "$1" /usr/bin/gpgv', path)
        self.addCleanup(self.machine.shell, "umount -l /usr/bin/gpgv")


class Signed(BundleCase):
    def test_what_is_signed_runs_without_a_password(self):
        self.bring(transport("one"))
        self.assertAsked(self.connect(more=(), check=False))
        self.connect()
        path = f"{PROGRAMS}/{self.digest()}/lyrebird"
        self.assertIn(f"\nClientTransportPlugin obfs4 exec {path}\n", self.machine.shell("cat /var/lib/veldmark/run/torrc"))
        self.assertEqual(self.machine.shell("stat -c '%a %u %g' " + path), "755 0 0\n")
        self.assertEqual(self.machine.shell("cat " + path), transport("one").decode())
        self.assertEqual(self.note(), ["signed 1767225600", f"program {self.digest()}/lyrebird", "end"])
        self.assertEqual(self.machine.shell(f"stat -c '%a %u' {NOTE}"), "600 0\n")
        self.assertEqual(self.machine.shell(f"ls -d {NEW_BUNDLE} {PROGRAMS}/new 2>/dev/null || true"), "")
        self.machine.help("disconnect")
        self.connect(more=())  # the copy is there

    def test_names_with_a_dot_before_them(self):
        program = transport("dot")
        self.bring(program, bundle(member("./" + MEMBER, program)))
        self.connect()

    def test_only_what_is_in_the_archive(self):
        self.bring(transport("evil"), bundle(member(MEMBER, transport("good"))))
        self.assertAsked(self.connect(check=False))
        self.assertEqual(self.copies(), [])

    def test_only_a_transport_in_its_own_role(self):
        program = transport("one")
        self.bring(program, bundle(member(MEMBER, program), member("tor/tor", program)))
        words = [TOR if word == LYREBIRD else LYREBIRD if word == TOR else word for word in self.WORDS]
        self.assertOneLine(self.machine.help_by_rule(*words, "--bundle", ARCHIVE, check=False), "password")
        self.assertEqual(self.copies(), [])
        self.connect()

    def test_only_what_the_signer_has_signed(self):
        program = transport("evil")
        archive = bundle(member(MEMBER, program))
        right, wrong = self.signer.sign(archive), self.other.sign(archive)
        key, others = self.signer.key, self.other.key
        # A subkey of somebody else's, put behind the signer's key with the binding that its own owner made.
        ours, theirs = packets(key), packets(others)
        at = [kind for kind, _ in theirs].index(14)
        foreign = b"".join(packet for _, packet in theirs[at:])
        ring = b"".join(packet for _, packet in ours)
        self.assertEqual(ring, key)
        with open(f"{self.other.home}/pubring.kbx", "rb") as file:
            keybox = file.read()
        for name, signature, ring in (
            ("somebody else's", wrong, others),
            ("somebody else's, the signer's key", wrong, key),
            ("somebody else's, both keys", wrong, key + others),
            ("somebody else's, both keys the other way", wrong, others + key),
            ("the signer's, both keys", right, key + others),
            ("a subkey of somebody else's", wrong, key + foreign),
            ("the same, not bound", wrong, key + theirs[at][1]),
            ("the same, with the signer's binding", wrong, key + theirs[at][1] + ours[-1][1]),
            ("another form of keyring", wrong, keybox),
            ("of something else", self.signer.sign(b"something else"), key),
            ("signed text", self.signer.sign(b"text", how="--sign"), key),
            ("clear-signed text", self.signer.sign(b"text", how="--clearsign"), key),
            ("no signature", None, key),
            ("an empty one", b"", key),
            ("no key", right, None),
            ("an empty key", right, b""),
            ("a key that was cut", right, key[:-1]),
            ("a key in letters", right, self.signer.gpg("--armor", "--export")),
            ("status lines", f"[GNUPG:] VALIDSIG {self.signer.fingerprint}\n".encode(), key),
            ("a signature too large", right + b"\n" * 300_000, key),
        ):
            with self.subTest(name):
                self.bring(program, archive, signature=signature, key=ring)
                self.assertAsked(self.connect(check=False))
                self.assertEqual(self.copies(), [])
        self.bring(program, archive[:-1] + b"x", signature=right)
        self.assertAsked(self.connect(check=False))
        self.bring(program, archive, signature=right)
        self.connect()  # the control

    def helper_of(self, signer):
        """A helper that takes this signer's bundles."""
        with open(self.machine.helper, encoding="utf-8") as file:
            text = file.read()
        path = f"{self.folder.name}/{signer.fingerprint}.sh"
        with open(path, "w", encoding="utf-8") as file:
            file.write(text.replace(self.signer.fingerprint, signer.fingerprint))
        return path

    def test_a_key_of_the_real_ones_kind(self):
        """RSA, whose packets have a length of two bytes."""
        signer = Signer("Long", "rsa4096")
        self.assertIn(0x99, {packet[0] for kind, packet in packets(signer.key) if kind == 6})
        program = transport("long")
        archive = bundle(member(MEMBER, program))
        self.bring(program, archive, signature=signer.sign(archive), key=signer.key)
        self.machine.run("/bin/bash", self.helper_of(signer), *self.WORDS, "--bundle", ARCHIVE, env=PROMPT)

    def test_a_revoked_key_signs_nothing(self):
        revoked = Signer("Revoked")
        program = transport("revoked")
        archive = bundle(member(MEMBER, program))
        path = self.helper_of(revoked)
        signature = revoked.sign(archive)
        for key, runs in (revoked.key, True), (revoked.revoke(), False):
            self.bring(program, archive, signature=signature, key=key)
            self.machine.shell(f"rm -rf {PROGRAMS} {NOTE}")
            done = self.machine.run("/bin/bash", path, *self.WORDS, "--bundle", ARCHIVE, env=PROMPT, check=False)
            self.assertEqual(done.returncode, 0 if runs else 3, done.stderr)
            self.machine.help("disconnect")

    def test_prompt_of_a_connect_is_enough_too(self):
        """It asks for no more than the connect, and names no program."""
        self.bring(transport("one"))
        self.machine.help(*self.WORDS, "--bundle", ARCHIVE, env=PROMPT)

    def test_without_gpgv_an_administrator_is_asked(self):
        self.bring(transport("one"))
        self.replace_gpgv("")
        self.assertAsked(self.connect(check=False))
        self.machine.approve(LYREBIRD, "lyrebird", env=PROMPT)
        self.connect()

    def test_missing_bundle_changes_nothing(self):
        self.bring(transport("one"))
        self.assertAsked(self.connect(more=("--bundle", "/nonexistent"), check=False))
        self.assertAsked(self.connect(more=("--bundle", "/home/alice/b"), check=False))
        self.machine.approve(LYREBIRD, "lyrebird", env=PROMPT)
        self.connect(more=("--bundle", "/nonexistent"))


class Rollback(BundleCase):
    def test_older_bundle_is_refused_and_its_copy_does_not_run_again(self):
        old, new = transport("old"), transport("new")
        self.bring(old)
        self.connect()
        former = self.digest()
        self.machine.help("disconnect")
        self.bring(new, now=FEBRUARY)
        self.connect()
        self.assertEqual(self.copies(), [f"./{self.digest()}/lyrebird"])
        self.assertEqual(self.note(), ["signed 1769904000", f"program {self.digest()}/lyrebird", "end"])
        self.machine.help("disconnect")
        self.bring(old)
        self.assertEqual(self.digest(), former)
        self.assertAsked(self.connect(check=False))
        self.bring(new, now=FEBRUARY)  # the same again
        self.connect()

    def test_former_copy_is_dropped_once_another_session_runs_and_never_runs_meanwhile(self):
        """The connect that has seen the newer bundle fails afterwards: the session before it keeps its program's file."""
        old, new = transport("old"), transport("new")
        self.bring(old)
        self.connect()
        former = self.digest()
        self.bring(new, now=FEBRUARY)
        self.assertOneLine(self.connect(check=False), "change the strict session")
        self.assertIn(f"former {former}/lyrebird", self.note())
        self.assertIn(f"./{former}/lyrebird", self.copies())
        self.machine.help("disconnect")
        self.bring(old)
        self.assertAsked(self.connect(check=False))
        self.assertAsked(self.connect(more=(), check=False))
        self.machine.connect()
        self.assertNotIn(f"./{former}/lyrebird", self.copies())

    def test_what_an_administrator_approved_stays(self):
        self.bring(transport("approved"))
        self.machine.approve(LYREBIRD, "lyrebird", env=PROMPT)
        approved = f"./{self.digest()}/lyrebird"
        self.bring(transport("signed"))
        self.connect()
        self.machine.approve(LYREBIRD, "lyrebird", env=PROMPT)  # by both
        both = f"./{self.digest()}/lyrebird"
        self.machine.help("disconnect")
        self.bring(transport("newer"), now=FEBRUARY)
        self.connect()
        self.assertLessEqual({approved, both}, set(self.copies()))

    def test_damaged_note_lets_no_bundle_in(self):
        self.bring(transport("one"))
        for text in "signed 1767225600", "", "end", "signed x\nend", "signed 99999999999999\nend":
            with self.subTest(text):
                self.machine.shell(f"mkdir -p -m 0755 /var/lib/veldmark; printf '%s\\n' \"$1\" >{NOTE}", text)
                self.assertAsked(self.connect(check=False))


class Hostile(BundleCase):
    def test_archives_with_odd_members_put_nothing_anywhere(self):
        """Signed, since no other archive is ever opened."""
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
        self.bring(b"", bundle(member(MEMBER, kind=tarfile.SYMTYPE, link="x")))  # no content at all is no program
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

    def wait_for_gpgv(self):
        """The process id of what slow_gpgv() waits with."""
        return self.machine.shell("until pgrep -u 65534 -x sleep; do sleep 0.01; done", timeout=30).split()[0]

    def slow_gpgv(self, seconds):
        """The real one, after a while."""
        path = f"{self.folder.name}/gpgv"
        self.replace_gpgv(f'#!/bin/sh\nsleep {seconds}\nexec {path}.real "$@"\n')

    def begin(self):
        return self.machine.start(
            "/bin/bash",
            namespace.INSTALLED,
            *self.WORDS,
            "--bundle",
            ARCHIVE,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            env={"PATH": os.environ["PATH"], "SUDO_UID": str(USER_UID)},
        )

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
            self.assertEqual(set(status["Uid"].split() + status["Gid"].split()), {"65534"})
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
        self.assertLessEqual(set(self.copies()), {"./new"})  # what no run takes for approved
        self.connect()
        self.assertEqual(len(self.copies()), 1)

    def test_several_at_once(self):
        self.bring(transport("one"))
        with concurrent.futures.ThreadPoolExecutor(3) as pool:
            runs = list(pool.map(lambda _: self.connect(check=False), range(3)))
        self.assertEqual([(run.returncode, run.stderr) for run in runs], [(0, "")] * 3)
        self.assertEqual(len(self.copies()), 1)


if __name__ == "__main__":
    namespace.main()

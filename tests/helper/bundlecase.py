"""The base class of the tests of the Tor Project's signed bundle.

The test makes the signer's key. The helper is a copy that has that key's fingerprint instead of the Tor Browser Developers'."""

import os
import subprocess
import tempfile

import namespace
from bundles import JANUARY, Signer, bundle, member
from namespace import HASH, TOR, HelperTest, USER_UID

FINGERPRINT = "EF6E286DDA85EA2A4BA7DE684E2C6E8793298290"
READER = 65532  # the user that gpgv and tar run as
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
        """Writes a file of alice's, or removes it when the content is None."""
        self.machine.shell('rm -rf "$1"', path)
        if content is not None:
            with tempfile.NamedTemporaryFile(dir=self.folder.name) as file:
                file.write(content)
                file.flush()
                self.machine.shell('install -o alice -g alice -m 0700 "$1" "$2"', file.name, path)

    def bring(self, program, archive=None, now=JANUARY, **other):
        """Installs alice's program and bundle as the downloader leaves them. `signature` and `key` replace the signer's."""
        if archive is None:
            archive = bundle(member(MEMBER, program))
        self.put(LYREBIRD, program)
        self.put(ARCHIVE, archive)
        self.put(ARCHIVE + ".asc", other.get("signature", self.signer.sign(archive, now)))
        self.put(ARCHIVE + ".key", other.get("key", self.signer.key))

    WORDS = ("connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0", "--bridge", BRIDGE, "--pt-lyrebird", LYREBIRD)

    def connect(self, more=("--bundle", ARCHIVE), **options):
        """Connects by the passwordless rule, which approves nothing."""
        return self.machine.help_by_rule(*self.WORDS, *more, **options)

    def assertAsked(self, done):
        self.assertOneLine(done, f"An administrator password is needed to approve {LYREBIRD}.")
        self.assertEqual(done.returncode, 4)
        self.assertEqual(self.machine.shell(f"ls -d {NEW_BUNDLE} {PROGRAMS}/new 2>/dev/null || true"), "")

    def copies(self):
        return self.machine.shell(f"cd {PROGRAMS} && find . -type f | sort").split()

    def digest(self):
        return self.machine.run("sha256sum", LYREBIRD).stdout.split()[0]

    def note(self):
        return self.machine.shell(f"cat {NOTE}").splitlines()

    def replace_gpgv(self, script):
        """Puts another gpgv in its place until the end of the test."""
        path = f"{self.folder.name}/gpgv"
        with open(path, "w", encoding="ascii") as file:
            file.write(script)
        os.chmod(path, 0o755 if script else 0o644)
        self.machine.shell('cp /usr/bin/gpgv "$1.real"; mount --bind "$1" /usr/bin/gpgv', path)
        self.addCleanup(self.machine.shell, "umount -l /usr/bin/gpgv")

    def take_away(self, program):
        """Takes a program away until the returned function is called."""
        path = f"{self.folder.name}/none"
        with open(path, "w", encoding="ascii"):
            pass
        os.chmod(path, 0o644)
        self.machine.shell('mount --bind "$1" "$(readlink -e "$(command -v "$2")")"', path, program)
        return lambda: self.machine.shell('umount -l "$(readlink -e "/usr/bin/$1")"', program)

    def wait_for_gpgv(self):
        """The process id of the program that slow_gpgv() waits with."""
        return self.machine.shell(f"until pgrep -xf '{self.wait}'; do sleep 0.01; done", timeout=30).split()[0]

    def slow_gpgv(self, seconds):
        """Runs the real gpgv after a delay."""
        self.wait = f"sleep {seconds}"
        path = f"{self.folder.name}/gpgv"
        self.replace_gpgv(f'#!/bin/sh\n{self.wait}\nexec {path}.real "$@"\n')

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

    def helper_of(self, signer):
        """A helper that accepts this signer's bundles."""
        with open(self.machine.helper, encoding="utf-8") as file:
            text = file.read()
        path = f"{self.folder.name}/{signer.fingerprint}.sh"
        with open(path, "w", encoding="utf-8") as file:
            file.write(text.replace(self.signer.fingerprint, signer.fingerprint))
        return path

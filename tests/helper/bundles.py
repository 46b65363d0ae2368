"""Bundles of transports and keys that sign them, made for tests."""

import atexit
import io
import shutil
import subprocess
import tarfile
import tempfile

JANUARY, FEBRUARY = "20260101T000000", "20260201T000000"  # the time of the signatures


class Signer:
    """A GnuPG key that only certifies, with a subkey that signs, like the Tor Browser Developers' key."""

    def __init__(self, name, kind="ed25519", made="20250101T000000"):
        self.home = tempfile.mkdtemp(prefix="key-", dir="/tmp")
        atexit.register(self.close)
        self.gpg("--quick-gen-key", f"{name} <key@example.org>", kind, "cert", "never", now=made)
        lines = self.gpg("--with-colons", "--fingerprint").decode().splitlines()
        self.fingerprint = next(line.split(":")[9] for line in lines if line.startswith("fpr:"))
        self.gpg("--quick-add-key", self.fingerprint, kind, "sign", "never", now=made)
        self.key = self.gpg("--export")

    def close(self):
        subprocess.run(["gpgconf", "--homedir", self.home, "--kill", "all"], check=False)
        shutil.rmtree(self.home, ignore_errors=True)

    def gpg(self, *words, stdin=b"", now="20250101T000000"):
        done = subprocess.run(
            [
                "gpg",
                "--homedir",
                self.home,
                "--batch",
                "--quiet",
                "--passphrase",
                "",
                "--pinentry-mode",
                "loopback",
                "--faked-system-time",
                now + "!",
                *words,
            ],
            input=stdin,
            capture_output=True,
            check=False,
        )
        if done.returncode:
            raise AssertionError(done.stderr)
        return done.stdout

    def sign(self, content, now=JANUARY, how="--detach-sign"):
        return self.gpg("--armor", how, stdin=content, now=now)

    def expire(self):
        """Makes the key and its subkeys expire soon after JANUARY, which is in the past."""
        for which in [], ["*"]:
            self.gpg("--quick-set-expire", self.fingerprint, "20260301T000000", *which, now=JANUARY)
        return self.gpg("--export")

    def revoke(self):
        """Revokes the key."""
        with open(f"{self.home}/openpgp-revocs.d/{self.fingerprint}.rev", encoding="ascii") as file:
            text = file.read().replace(":-----BEGIN", "-----BEGIN")
        self.gpg("--import", stdin=text.encode())
        return self.gpg("--export")


def packets(key):
    """The packets of a key, each with its kind."""
    found, at = [], 0
    while at < len(key):
        tag = key[at]
        assert tag & 0xC0 == 0x80 and tag & 3 < 2, tag
        head = 2 + (tag & 3)
        size = int.from_bytes(key[at + 1 : at + head], "big")
        found.append(((tag >> 2) & 15, key[at : at + head + size]))
        at += head + size
    return found


def transport(mark):
    return f'#!/bin/sh\n# {mark}\nexec /usr/bin/obfs4proxy "$@"\n'.encode()


def member(name, content=b"", kind=tarfile.REGTYPE, link=""):
    entry = tarfile.TarInfo(name)
    entry.size, entry.mode, entry.type, entry.linkname = len(content), 0o755, kind, link
    return entry, io.BytesIO(content)


def bundle(*members):
    out = io.BytesIO()
    with tarfile.open(fileobj=out, mode="w:gz") as archive:
        for entry, content in members:
            archive.addfile(entry, content)
    return out.getvalue()

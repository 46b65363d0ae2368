"""Downloading, checking and installing the bundle of transport programs, from servers under the real names.

Index, distribution and key server are the lab's. The archives contain Debian's obfs4proxy. A key that GnuPG makes for the test
signs them.
"""

import io
import itertools
import json
import os
import random
import shutil
import signal
import subprocess
import sys
import tarfile
import tempfile
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import SKIPPED, LabCase  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.lab import PROJECT  # noqa: E402
from veldlab.product import is_probed  # noqa: E402

INSTALL = os.environ.get("VELDMARK_INSTALL_BUNDLE", str(PROJECT / "build" / "dev" / "tests" / "InstallBundle"))
FATAL_STEP = os.environ.get("VELDMARK_FATAL_STEP_LIBRARY", str(PROJECT / "build" / "dev" / "tests" / "FatalStep.so"))
INDEX_HOST, ARCHIVE_HOST, KEY_HOST = "aus1.torproject.org", "dist.torproject.org", "keys.openpgp.org"
INDEX = "torbrowser/update_3/release/downloads.json"
DATA = "/root/.local/share/veldmark"
BUNDLE = f"{DATA}/TorExpertBundle"
LYREBIRD = f"{BUNDLE}/tor/pluggable_transports/lyrebird"
BAD_SIGNATURE = "The download's signature didn't verify, so it was discarded. "


class SigningKey:
    """A GnuPG key pair in a folder of its own."""

    def __init__(self, name):
        self.home = tempfile.mkdtemp(prefix="key-")
        self.gpg("--quick-gen-key", f"{name} <key@example.org>", "ed25519", "sign", "never")
        listing = self.gpg("--with-colons", "--fingerprint").decode()
        self.fingerprint = next(line.split(":")[9] for line in listing.splitlines() if line.startswith("fpr:"))
        self.public = self.gpg("--armor", "--export")

    def gpg(self, *arguments, content=b""):
        return subprocess.run(
            ["gpg", "--homedir", self.home, "--batch", "--quiet", "--passphrase", "", "--pinentry-mode", "loopback", *arguments],
            input=content,
            check=True,
            capture_output=True,
        ).stdout

    def sign(self, content):
        return self.gpg("--armor", "--detach-sign", content=content)

    def close(self):
        subprocess.run(["gpgconf", "--homedir", self.home, "--kill", "all"], check=True)
        subprocess.run(["rm", "-rf", "--", self.home], check=True)  # the agent removes its own sockets meanwhile


def archive(members, padding=0):
    """A .tar.gz; `members`: name -> content (executable), or a TarInfo. `padding`: bytes that do not compress."""
    packed = io.BytesIO()
    with tarfile.open(fileobj=packed, mode="w:gz", compresslevel=1) as tar:
        for name, content in (members | {"data/geoip": random.Random(1).randbytes(padding)}).items():
            info = content if isinstance(content, tarfile.TarInfo) else tarfile.TarInfo(name)
            if isinstance(content, bytes):
                info.size, info.mode = len(content), 0o755
            tar.addfile(info, io.BytesIO(content) if isinstance(content, bytes) else None)
    return packed.getvalue()


def member(name, kind, target="", **more):
    info = tarfile.TarInfo(name)
    info.type, info.linkname = kind, target
    for key, value in more.items():
        setattr(info, key, value)
    return info


def bundle(mark, padding=3_000_000):
    return archive({"tor/pluggable_transports/lyrebird": f"#!/bin/sh\necho {mark}\n".encode(), "mark": mark.encode()}, padding)


class Download(LabCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.key, cls.other = SigningKey("Right"), SigningKey("Other")
        cls.addClassCleanup(cls.key.close)
        cls.addClassCleanup(cls.other.close)
        for host in (INDEX_HOST, ARCHIVE_HOST, KEY_HOST):
            cls.lab.world.add_site(host, {})
        cls.machine = os.uname().machine

    def setUp(self):
        self.lab.host.run(["rm", "-rf", DATA], check=True)
        self.sites = self.lab.world.folder / "sites"
        for host in (INDEX_HOST, ARCHIVE_HOST, KEY_HOST):
            shutil.rmtree(self.sites / host)
            (self.sites / host).mkdir()
        super().setUp()

    def tearDown(self):
        # GnuPG's agent has been told to end and may not have ended yet.
        left = self.lab.host.run(
            [
                "sh",
                "-c",
                "i=0; while pgrep gpg-agent >/dev/null && [ $i -lt 50 ]; do sleep 0.1; i=$((i + 1)); done; "
                "ls -d /tmp/vmk-* 2>/dev/null; pgrep -a gpg-agent",
            ]
        ).stdout
        self.assertEqual(left, "", "left behind")

    def publish(self, host, path, content):
        file = self.sites / host / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)

    def path(self, version):
        return f"torbrowser/{version}/tor-expert-bundle-linux-{self.machine}-{version}.tar.gz"

    def offer(self, version, content, key=None, signature=None):
        """Makes the three servers offer this version, signed by `key`."""
        key = key or self.key
        self.publish(INDEX_HOST, INDEX, json.dumps({"version": version, "downloads": {}}).encode())
        self.publish(ARCHIVE_HOST, self.path(version), content)
        self.publish(ARCHIVE_HOST, self.path(version) + ".asc", key.sign(content) if signature is None else signature)
        for asked in {self.key.fingerprint, "EF6E286DDA85EA2A4BA7DE684E2C6E8793298290"}:
            self.publish(KEY_HOST, f"vks/v1/by-fingerprint/{asked}", key.public)

    def answer(self, host, path, **answer):
        self.publish(host, path + ".answer", json.dumps(answer).encode())

    def command(self, way="direct", *more):
        return [INSTALL, self.key.fingerprint, way, *more]

    def install(self, way="direct", *more):
        """Downloads; returns the last line that was printed, and all lines."""
        result = self.lab.host.run(self.command(way, *more))
        lines = result.stdout.splitlines()
        self.assertTrue(lines, result.stderr)
        return lines[-1], lines

    def installed(self):
        """The mark of the installed bundle; asserts that the bundle is complete."""
        if not self.lab.host.path(BUNDLE).exists():
            return ""
        mark = self.lab.host.run([LYREBIRD], check=True).stdout.strip()
        self.assertEqual(self.lab.host.read(f"{BUNDLE}/mark"), mark)
        self.assertEqual(self.lab.host.read(f"{BUNDLE}/VERSION").strip(), f"{mark}.0")
        self.assertEqual(self.lab.host.read(f"{BUNDLE}/VERIFIED").strip(), "signature")
        self.assertEqual(self.lab.host.path(f"{BUNDLE}/data/geoip").stat().st_size, 3_000_000)
        return mark

    def put_former(self):
        self.offer("13.0", bundle("13"))
        self.assertEqual(self.install()[0], "installed 13.0 signature")
        self.assertEqual(self.installed(), "13")

    def assert_fails(self, beginning, *more):
        last, lines = self.install("direct", *more)
        self.assertTrue(last.startswith("failed: " + beginning), last)
        self.assertEqual(self.installed(), "13")
        entries = sorted(os.listdir(self.lab.host.path(DATA)))
        self.assertEqual(entries, [".TorExpertBundle.lock", "TorExpertBundle"])
        return lines

    def test_directly_the_three_servers_are_asked_and_nobody_else(self):
        self.offer("14.0", bundle("14"))
        with self.lab.capture() as capture:
            last, lines = self.install()
        self.assertEqual(last, "installed 14.0 signature")
        self.assertEqual(self.installed(), "14")
        sent = {p.dst for p in capture.packets if p.out and p.proto in ("tcp", "udp")}
        self.assertTrue(sent & {at.WEB_ADDRESS, at.WEB_ADDRESS6})
        self.assertLessEqual(sent, {at.WEB_ADDRESS, at.WEB_ADDRESS6, at.DNS_ADDRESS, at.DNS_ADDRESS6})
        self.assertEqual(lines[0], "Checking latest version…")
        self.assertIn("Downloading Tor 14.0 bridge programs…", lines)
        self.assertTrue(any(line.endswith(" 3.0 of 3.0 MB (100%)") for line in lines), lines)

    def test_through_tor_no_server_is_met_directly(self):
        self.offer("14.0", bundle("14"))
        with self.product.session() as session:
            session.wait(is_probed)
            since = len(self.lab.world.web_log())
            with self.lab.capture() as capture:
                last, _ = self.install("tor")
            self.assertEqual(last, "installed 14.0 signature")
            asked = self.lab.world.web_log(since, "web")
            self.assertEqual({entry["host"] for entry in asked}, {INDEX_HOST, ARCHIVE_HOST, KEY_HOST})
            self.assertLessEqual({entry["source"] for entry in asked}, at.EXIT_ADDRESSES)
            sent = {p.dst for p in capture.packets if p.out and p.proto in ("tcp", "udp")}
            self.assertTrue(sent)
            self.assertLessEqual(sent, at.RELAY_ADDRESSES)
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assertEqual(self.installed(), "14")
        self.lab.host.run(["rm", "-rf", DATA], check=True)
        self.assert_restored()

    def test_without_tor_its_way_goes_nowhere(self):
        self.offer("14.0", bundle("14"))
        since = len(self.lab.world.web_log())
        self.assertTrue(self.install("tor")[0].startswith("failed: "))
        self.assertEqual(self.lab.world.web_log(since), [])
        self.assertEqual(self.installed(), "")

    def test_only_the_expected_key_counts(self):
        self.put_former()
        content = bundle("14")
        self.offer("14.0", content, self.other)
        self.assert_fails(BAD_SIGNATURE)
        self.offer("14.0", content, signature=self.other.sign(content))
        self.assert_fails(BAD_SIGNATURE)
        self.offer("14.0", content, signature=self.key.sign(content + b"x"))
        self.assert_fails(BAD_SIGNATURE)
        self.offer("14.0", content, signature=b"no signature\n")
        self.assert_fails(BAD_SIGNATURE)
        self.publish(KEY_HOST, f"vks/v1/by-fingerprint/{self.key.fingerprint}", b"no key\n")
        self.assert_fails(BAD_SIGNATURE + "Couldn't load the Tor Browser signing key. ")
        self.offer("14.0", content)  # and the right key works
        self.assertEqual(self.install()[0], "installed 14.0 signature")
        self.assertEqual(self.installed(), "14")

    def test_what_servers_answer_is_told(self):
        self.put_former()
        self.offer("14.0", bundle("14"))
        path = self.path("14.0")
        for status in (404, 503):
            self.answer(ARCHIVE_HOST, path, status=status)
            self.assert_fails(f"Download of the bridge programs failed (HTTP {status}).")
        since = len(self.lab.world.web_log())
        self.answer(ARCHIVE_HOST, path, status=302, headers={"Location": f"http://{KEY_HOST}/plain"})
        self.assert_fails("Download of the bridge programs failed (HTTP 302).")
        self.assertNotIn("/plain", {entry.get("path") for entry in self.lab.world.web_log(since)})
        self.answer(ARCHIVE_HOST, path, bytes=100_000)
        self.assert_fails("")
        self.answer(ARCHIVE_HOST, path, bytes=1_000_000, hang=True)
        lines = self.assert_fails("The request timed out.", "fast")
        self.assertTrue(any("1.0 of 3.0 MB" in line for line in lines), lines)
        self.answer(INDEX_HOST, INDEX, bytes=0, hang=True)
        self.assert_fails("The request timed out.", "fast")
        self.offer("14.0", bundle("14")[:1_000_000])
        for file in (self.sites / INDEX_HOST / (INDEX + ".answer"), self.sites / ARCHIVE_HOST / (path + ".answer")):
            file.unlink()
        self.assert_fails("Couldn't unpack the download. ")
        self.offer("14.0 beta", bundle("14"))
        self.assert_fails("Couldn't read the latest Tor version from torproject.org.")

    def test_hostile_archives_reach_nothing_outside(self):
        self.put_former()
        self.lab.host.write("/root/secret", "secret")
        good = {"tor/lyrebird": b"#!/bin/sh\n"}
        hostile = {
            "absolute": {"/root/escaped": b"x"},
            "upwards": {"../../../../../../root/escaped": b"x"},
            "upwards below": {"tor/../../../../../../../root/escaped": b"x"},
            "link": {"tor/link": member("tor/link", tarfile.SYMTYPE, "/root/secret")},
            "through a link": {"way": member("way", tarfile.SYMTYPE, "/root"), "way/escaped": b"x"},
            "through a link upwards": {"way": member("way", tarfile.SYMTYPE, "../.."), "way/escaped": b"x"},
            "hard link": {"hard": member("hard", tarfile.LNKTYPE, "/root/secret")},
            "hard link within": {"hard": member("hard", tarfile.LNKTYPE, "tor/lyrebird")},
            "device": {"device": member("device", tarfile.CHRTYPE, devmajor=1, devminor=3)},
            "pipe": {"pipe": member("pipe", tarfile.FIFOTYPE)},
        }
        outside = self.lab.host.snapshot()["files"]
        for name, members in hostile.items():
            with self.subTest(name):
                self.offer("14.0", archive(good | members))
                self.assert_fails("Couldn't unpack the download. The archive contains ")
                self.assertFalse(self.lab.host.path("/root/escaped").exists())
        self.assertEqual(self.lab.host.snapshot()["files"], outside)
        self.offer("14.0", archive(good | {"tor/next": member("tor/next", tarfile.SYMTYPE, "lyrebird")}))
        self.assertEqual(self.install()[0], "installed 14.0 signature")  # a link to a file in the same folder is allowed

    def test_a_full_disk_costs_nothing_but_the_update(self):
        host = self.lab.host
        host.run(["mkdir", "-p", DATA], check=True)
        host.run(["mount", "-t", "tmpfs", "-o", "size=5m", "tmpfs", DATA], check=True)
        try:
            self.put_former()
            self.offer("14.0", bundle("14"))
            self.assert_fails("Couldn't unpack the download. ")
        finally:
            host.run(["umount", DATA], check=True)
        self.put_former()
        self.offer("14.0", bundle("14"))
        host.run(["mount", "-o", "remount,size=1m", "/tmp"], check=True)
        try:
            self.assert_fails("Couldn't write /tmp/vmk-")
        finally:
            host.run(["mount", "-o", "remount,size=50%", "/tmp"], check=True)
        self.assertEqual(self.install()[0], "installed 14.0 signature")

    def assert_installs_on(self):
        self.offer("999.0", bundle("999"))
        self.assertEqual(self.install()[0], "installed 999.0 signature")
        self.assertEqual(self.installed(), "999")

    def offer_newer(self):
        """Offers a bundle that is newer than the installed one; an older one is refused. Returns the installed bundle's mark and
        its own."""
        former = self.installed()
        new = str(int(former) + 1)
        self.offer(f"{new}.0", bundle(new))
        return former, new

    def test_killed_before_every_change_of_files_a_whole_bundle_stands_there(self):
        self.put_former()
        found = set()
        for step in itertools.count(1):
            former, new = self.offer_newer()
            result = self.lab.host.run(
                self.command(), env={"LD_PRELOAD": self.lab.host.preload(FATAL_STEP), "VELDMARK_FATAL_STEP": str(step)}
            )
            if result.returncode == 0:
                break
            self.assertEqual(result.returncode, -signal.SIGKILL, f"step {step}: {result.stdout}{result.stderr}")
            installed = self.installed()
            self.assertIn(installed, (former, new), f"step {step}")
            found.add("former" if installed == former else "new")
        self.assertEqual(self.installed(), new)
        self.assertEqual(found, {"former", "new"}, f"{step - 1} steps")
        self.assert_installs_on()

    def test_killed_at_any_moment_a_whole_bundle_stands_there(self):
        self.put_former()
        self.offer_newer()
        started = time.monotonic()
        self.install()
        whole = time.monotonic() - started
        killed = 0
        for attempt in range(16):
            former, new = self.offer_newer()
            # The shell prints its process id on the host and then becomes the downloader.
            process = self.lab.host.popen(
                ["sh", "-c", 'echo $$; exec "$@"', "sh", *self.command()],
                stdout=subprocess.PIPE,
                stdin=subprocess.DEVNULL,
                text=True,
            )
            with process:
                number = process.stdout.readline().strip()
                try:
                    process.wait(whole * attempt / 16)
                except subprocess.TimeoutExpired:
                    killed += self.lab.host.run(["kill", "-KILL", number]).returncode == 0
            self.assertIn(self.installed(), (former, new), f"attempt {attempt}")
        self.assertGreater(killed, 0)  # the machine's speed decides how many of the later ones come too late
        self.assert_installs_on()

    def test_the_shipped_program_takes_no_other_key_than_the_tor_projects(self):
        self.offer("14.0", bundle("14"))
        result = self.product.run_verb("download-transports")
        self.assertEqual(result.returncode, 1)
        self.assertIn("veldmarkctl: Couldn't download bridge programs: " + BAD_SIGNATURE, result.stderr)
        self.assertFalse(self.lab.host.path(BUNDLE).exists())

    def test_a_bundle_installed_over_https_carries_the_connection(self):
        line = self.lab.tor.bridge_line("obfs4")
        content = archive(
            {
                "tor/pluggable_transports/lyrebird": Path("/usr/bin/obfs4proxy").read_bytes(),
                "tor/pluggable_transports/pt_config.json": json.dumps({"bridges": {"obfs4": [line]}}).encode(),
            }
        )
        self.offer("14.5", content)
        host = self.lab.host
        host.run(["mount", "--bind", "/dev/null", "/usr/bin/gpg"], check=True)  # as if it were not installed
        try:
            result = self.product.run_verb("download-transports")
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertEqual(
                result.stdout.splitlines()[-1],
                "Bridge programs 14.5 installed over HTTPS. Install GnuPG (sudo apt install gnupg) and download "
                "again to also verify the Tor Project's signature.",
            )
            found = json.loads(self.product.run_verb("bridges", "--json", check=True).stdout)
            self.assertEqual(found["programs"]["lyrebird"]["path"], LYREBIRD)
            self.assertIn("obfs4", found["programs"]["lyrebird"]["serves"])
            self.assertEqual((found["builtin"], found["source"]), ({"obfs4": 1}, "Tor Expert Bundle 14.5"))
            self.assertEqual(found["bundle"], {"version": "14.5", "verification": "https"})
            self.set("bridgeChoice", "obfs4")
            self.product.approve(LYREBIRD, "lyrebird")
            with self.product.session() as session:
                state = session.wait(is_probed)
                self.assertEqual(state["activeBridge"], "obfs4")
                since = len(self.lab.world.web_log())
                with self.lab.capture() as capture:
                    result = self.product.run_verb("download-transports")  # by the running instance
                self.assertEqual(result.returncode, 0, result.stderr)
                self.assertIn("Bridge programs 14.5 installed over HTTPS.", result.stdout)
                asked = self.lab.world.web_log(since, "web")
                self.assertTrue(asked)
                self.assertLessEqual({entry["source"] for entry in asked}, at.EXIT_ADDRESSES)
                sent = {p.dst for p in capture.packets if p.out and p.proto in ("tcp", "udp")}
                self.assertLessEqual(sent, at.RELAY_ADDRESSES)
                self.assertEqual(session.interrupt(), 0, session.output)
        finally:
            host.run(["umount", "/usr/bin/gpg"], check=True)

    def test_ctrl_c_leaves_nothing_half_done(self):
        self.put_former()
        self.offer("14.0", bundle("14"))
        self.answer(ARCHIVE_HOST, self.path("14.0"), bytes=1_000_000, hang=True)
        process = self.lab.host.popen(
            [self.product.ctl, "download-transports"],
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            text=True,
        )
        with process:
            while "1.0 of 3.0 MB" not in (line := process.stdout.readline()):
                self.assertTrue(line, "it ended early")
            process.send_signal(signal.SIGINT)
            self.assertEqual(process.wait(20), 1)
            self.assertIn("Couldn't download bridge programs: Cancelled.", process.stderr.read())
        self.assertEqual(self.installed(), "13")


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)

"""The lab's test case, and what the tests expect of the programs."""

import contextlib
import json
import os
import time
import unittest
from pathlib import Path

from . import topology as at
from .lab import PROJECT, Lab
from .product import Product, difference

PROGRAMS = Path(os.environ.get("VELDMARK_PROGRAMS", PROJECT / "build" / "bin"))
MARKER = "/var/lib/veldmark/state/active"
SETTINGS = "/root/.config/veldmark/veldmark.conf"
SKIPPED = 77

STRICT_DEATH = (
    "Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. "
    "Reconnect, or Restore Network to go back online."
)
OPEN_DEATH = (
    "Tor stopped running, and the kill switch doesn't block traffic: another program removed its rules. Traffic may leave this "
    "computer directly. Reconnect, or Restore Network."
)
REAL_NFT = "/usr/local/sbin/real-nft"
PROXY_DEATH = "Tor stopped running. Apps using the proxy can't connect until you reconnect or Restore Network."
FAST_FORWARD = os.environ.get("VELDMARK_FAST_FORWARD", str(PROJECT / "build" / "dev" / "tests" / "FastForward"))
RESTORE = " Your network is still pointed at Tor. Click Restore Network to undo."
TIMEOUT = "Tor didn't finish connecting within 5 minutes."


class LabCase(unittest.TestCase):
    """One lab for all tests of a class. Every test begins with default settings and must leave the host as it was. A class that
    leaves its lab unchanged may share it: SHARED."""

    SHARED = False
    _shared: Lab | None = None  # until the program ends

    @classmethod
    def setUpClass(cls):
        cls.lab = LabCase._shared if cls.SHARED and LabCase._shared else Lab()
        if not cls.lab.record:
            cls.lab.up()
            if cls.SHARED:
                LabCase._shared = cls.lab
                unittest.addModuleCleanup(LabCase._end_shared)
            else:
                cls.addClassCleanup(cls.lab.down)
        cls.product = Product(cls.lab, PROGRAMS)
        cls.product.install_filter()

    @staticmethod
    def _end_shared():
        lab, LabCase._shared = LabCase._shared, None
        lab.down()

    def setUp(self):
        self.lab.host.run(["rm", "-rf", "/root/.config/veldmark"], check=True)
        self.before = self.lab.host.snapshot()

    def assert_restored(self):
        self.assertFalse(self.lab.host.path(MARKER).exists(), "the session marker is still there")
        self.assertEqual(difference(self.before, self.lab.host.snapshot()), "")

    def direct(self, *options):
        """Sends a plain request without any proxy; returns its answer, or None when it was refused."""
        result = self.lab.host.run(["curl", "-sS", "--max-time", "5", "--noproxy", "*", *options, at.CHECK_URL])
        return json.loads(result.stdout) if result.returncode == 0 else None

    def through_tor(self):
        result = self.lab.host.run(
            ["curl", "-sS", "--max-time", "30", "--proxy", "socks5h://127.0.0.1:9050", at.CHECK_URL], check=True
        )
        return json.loads(result.stdout)

    @contextlib.contextmanager
    def download(self, host):
        """A slow download through Tor that lasts as long as the context."""
        with self.lab.host.popen(
            [
                "curl",
                "-sS",
                "--limit-rate",
                "5k",
                "-o",
                "/dev/null",
                "--proxy",
                "socks5h://127.0.0.1:9050",
                f"http://{host}/bytes/10000000",
            ]
        ) as process:
            try:
                yield process
            finally:
                process.kill()

    def circuits_to(self, *hosts, timeout=20):
        """Waits for circuits that have one of the hosts among their sites, and returns them."""
        deadline = time.monotonic() + timeout
        while time.monotonic() < deadline:
            circuits = json.loads(self.product.run_verb("circuits", "--json", check=True).stdout)
            if found := [circuit for circuit in circuits if not set(circuit["sites"]).isdisjoint(hosts)]:
                return found
            time.sleep(0.1)
        self.fail(f"no circuit to {hosts} among {circuits}")

    def set(self, key, value):
        self.product.run_verb("set", key, value, check=True)

    @contextlib.contextmanager
    def broken_nft(self):
        """nft fails except under the path REAL_NFT, so no program can put removed rules back."""
        broken = "/usr/local/sbin/broken-nft"
        self.lab.host.run(["cp", "/usr/sbin/nft", REAL_NFT], check=True)
        self.lab.host.write(broken, "#!/bin/sh\nexit 1\n", mode=0o755)
        self.lab.host.run(["mount", "--bind", broken, "/usr/sbin/nft"], check=True)
        try:
            yield
        finally:
            self.lab.host.run(["umount", "/usr/sbin/nft"], check=True)
            self.lab.host.run(["rm", broken, REAL_NFT], check=True)

    def kill_tor(self, number="KILL"):
        """Signals every process of Tor's account. The host has its own process namespace, so no other tor is hit."""
        self.lab.host.run(["pkill", f"-{number}", "-u", "_veldmark"], check=True)

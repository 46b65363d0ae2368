"""A computer that gets another address while a session runs, as it does in another network."""

import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import SKIPPED, LabCase  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.lab import LabUnavailable  # noqa: E402
from veldlab.product import is_probed  # noqa: E402

OTHER_ADDRESS = "192.168.77.23"
# Tor's IPv4 connections come from the address that is removed.
MOVE = f"""
set -e
ip addr flush dev eth0 scope global
ip addr add {OTHER_ADDRESS}/24 brd + dev eth0
ip route add default via {at.ROUTER_LAN_ADDRESS}
"""


class Roaming(LabCase):
    def works(self) -> bool:
        asked = self.lab.host.run(["curl", "-sS", "--max-time", "2", "--proxy", "socks5h://127.0.0.1:9050", at.CHECK_URL])
        return asked.returncode == 0 and "true" in asked.stdout

    def test_traffic_flows_again_within_seconds(self):
        with self.product.session() as session:
            session.wait(lambda s: is_probed(s) and not s["isChecking"])
            self.assertTrue(self.works())
            with self.lab.capture() as capture:
                self.lab.host.run(["/bin/sh", "-c", MOVE], check=True)
                moment = time.monotonic()
                while not self.works():
                    self.assertLess(time.monotonic() - moment, 20, "no traffic through Tor from the other address")
                print(f"through Tor again {time.monotonic() - moment:.1f} s after the change", file=sys.stderr)
                session.wait(lambda s: not s["isChecking"] and s["torVerified"] and s["leakStatus"] == "blocked")
                self.assertIsNone(self.direct("-4"))
            others = {p.dst for p in capture.packets if p.out and p.src == OTHER_ADDRESS} - at.RELAY_ADDRESSES
            self.assertEqual(others, set())
            self.assertEqual(session.interrupt(), 0, session.output)


if __name__ == "__main__":
    try:
        unittest.main(verbosity=2)
    except LabUnavailable as reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)

"""The DHCP server in the lab's router, the tree's dnsmasq. It gives the machine the address that the test chooses."""

import contextlib
import subprocess
from pathlib import Path

from boot import HARDWARE, ROOM
from veldlab import topology as at


class Leases(contextlib.AbstractContextManager):
    def __init__(self, lab, base: Path):
        self.lab, self.base = lab, base
        self._process: subprocess.Popen | None = None
        lab.router.run(["mkdir", "-p", ROOM], check=True)
        self.give(at.HOST_ADDRESS)

    def give(self, address: str, resolver: str = at.DNS_ADDRESS, seconds: int = 120) -> None:
        """Sets the address from the next request on. The server keeps no leases, so it refuses to renew another address."""
        self.__exit__()
        libraries = f"{self.base}/lib/x86_64-linux-gnu:{self.base}/usr/lib/x86_64-linux-gnu"
        self._process = self.lab.router.popen(
            [
                f"{self.base}/lib64/ld-linux-x86-64.so.2",
                "--library-path",
                libraries,
                f"{self.base}/usr/sbin/dnsmasq",
                "--keep-in-foreground",
                "--conf-file=/dev/null",
                "--user=root",
                "--pid-file=",
                "--port=0",
                "--interface=br0",
                "--bind-interfaces",
                "--dhcp-authoritative",
                "--log-dhcp",
                "--log-facility=-",
                f"--dhcp-leasefile={ROOM}/leases-{address}",
                f"--dhcp-range={address},{address},255.255.255.0,{seconds}",
                f"--dhcp-host={HARDWARE},{address},{seconds}",
                f"--dhcp-option=option:router,{at.ROUTER_LAN_ADDRESS}",
                f"--dhcp-option=option:dns-server,{resolver}",
            ],
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.STDOUT,
        )

    def __exit__(self, *_) -> None:
        process, self._process = self._process, None
        if process is not None:
            process.terminate()
            process.wait()

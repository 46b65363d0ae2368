"""A real OpenSSH server in the world or on a neighbour, with one account that only a key opens.

Debian's package need not be installed, only unpacked (dpkg -x): VELDMARK_SSHD names the folder. The server has its own accounts in
its own mount namespace, so it neither uses nor changes the machine's.

    with SshServer(lab.world.space, "203.0.113.37", public_key) as server:
        server.folder            # as the caller reaches it; the account's home is "home" in there
"""

import contextlib
import os
import subprocess
from pathlib import Path

from veldlab import topology as at

PROJECT = Path(__file__).resolve().parents[3]
ROOT = Path(os.environ.get("VELDMARK_SSHD", PROJECT / "build" / "sshd"))
USER, UID = "keeper", 4321
_NAME_FILES = {
    "passwd": f"root:x:0:0::/root:/bin/sh\n{USER}:x:{UID}:{UID}::{{home}}:/bin/bash\n"
    "sshd:x:4322:4322::/run/sshd:/usr/sbin/nologin\n",
    "group": f"root:x:0:\n{USER}:x:{UID}:\nsshd:x:4322:\n",
    "shadow": f"root:*:19000:0:99999:7:::\n{USER}:*:19000:0:99999:7:::\n",
}


def daemon() -> Path | None:
    """The server's program, unpacked or installed; None where there is none."""
    found = [path for path in (ROOT / "usr/sbin/sshd", Path("/usr/sbin/sshd")) if path.exists()]
    return found[0] if found else None


class SshServer(contextlib.AbstractContextManager):
    """`space`: where it runs; `address`: what it listens on, port 22. `public_key`: one line that opens the account."""

    def __init__(self, space, address: str, public_key: str):
        self.address, self.user = address, USER
        self._space = space
        inside = f"{at.LAB_FOLDER}/sshd-{space.name}"
        self.home = f"{inside}/home"
        self.folder = space.path(inside)
        (self.folder / "home").mkdir(parents=True)
        os.chown(self.folder / "home", UID, UID)
        for name, text in _NAME_FILES.items():
            (self.folder / name).write_text(text.format(home=self.home))
        (self.folder / "key.pub").write_text(public_key)
        (self.folder / "config").write_text(
            f"ListenAddress {address}\nHostKey {inside}/host_key\nAuthorizedKeysFile {inside}/key.pub\nPidFile none\n"
            "UsePAM no\nStrictModes no\nPasswordAuthentication no\nKbdInteractiveAuthentication no\nLogLevel VERBOSE\n"
        )
        space.run(["ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", f"{inside}/host_key"], check=True)
        script = (
            "set -e; mkdir -p /run/sshd; chmod 755 /run/sshd; "
            f'for name in {" ".join(_NAME_FILES)}; do mount --bind "$1/$name" "/etc/$name"; done; '
            'exec env LD_LIBRARY_PATH="$3" "$2" -D -e -f "$1/config"'
        )
        libraries = ":".join(str(folder) for folder in ROOT.glob("usr/lib/*-linux-gnu*"))
        self._process = space.popen(
            ["unshare", "--mount", "--propagation", "private", "/bin/sh", "-c", script, "sshd", inside, str(daemon()), libraries],
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.PIPE,
            text=True,
        )
        self._said = []
        for line in self._process.stderr:
            self._said.append(line)
            if "Server listening on" in line:
                break
        else:
            raise RuntimeError("sshd did not start: " + "".join(self._said))
        self._drain = subprocess.Popen(["cat"], stdin=self._process.stderr, stdout=subprocess.DEVNULL)

    def host_key(self) -> str:
        """The server's line for a known_hosts file, for any name."""
        kind, key = (self.folder / "host_key.pub").read_text().split()[:2]
        return f"* {kind} {key}\n"

    def __exit__(self, *_) -> None:
        self._process.terminate()
        self._process.wait()
        self._drain.wait()
        self._process.stderr.close()

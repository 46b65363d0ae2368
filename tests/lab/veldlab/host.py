"""The host: the user's machine, on which the program under test runs.

Its files, processes and mounts are its own (host_init.py says which). This module adds what makes it a client of the
lab: the lab's lines in /etc/tor/torrc-defaults, the lab's GeoIP data, and trust in the lab's certificate authority.
"""

import os
from pathlib import Path

from veldlab import certificates, host_init, snapshot, tor_config
from veldlab.space import Space

_CA_NAME = "veldmark-lab-ca"
# polkitd changes to an account that must read its rules, but Debian's folder of rules is closed to it.
_START_POLKIT = """
set -eu
chmod 755 /etc/polkit-1/rules.d
mkdir -p /run/dbus
dbus-daemon --system --fork
for program in /usr/lib/polkit-1/polkitd /usr/libexec/polkitd /usr/libexec/polkit-1/polkitd; do
    [ -x "$program" ] && setsid "$program" --no-debug >/run/polkitd.log 2>&1 </dev/null & break
done
gdbus wait --system --timeout 20 org.freedesktop.PolicyKit1
"""
_BUNDLES = ("/etc/ssl/certs/ca-certificates.crt", "/etc/pki/tls/certs/ca-bundle.crt")


class Host(Space):
    user = host_init.USER

    def __init__(self, record: dict):
        super().__init__("host", record)

    @property
    def uid(self) -> int:
        """The number of alice's account."""
        for line in self.read("/etc/passwd").splitlines():
            fields = line.split(":")
            if fields[0] == self.user:
                return int(fields[2])
        raise LookupError("the host has no account alice")

    def upper(self, folder: str) -> Path:
        """The path, for the caller, of the host's changes to an overlaid folder."""
        name = folder.strip("/").replace("/", "-")
        return Path(f"/proc/{self._lab_init}/root{host_init.UPPER_FOLDER}/{name}")

    def read(self, path: str) -> str:
        return self.path(path).read_text()

    def write(self, path: str, content: str | bytes, mode: int = 0o644, uid: int = 0) -> None:
        """Writes a whole file and its folders. `uid` is owner and group, also of new folders."""
        target = self.path(path)
        missing = [folder for folder in target.parents if not folder.exists()]
        for folder in reversed(missing):
            folder.mkdir()
            os.chown(folder, uid, uid)
        temporary = target.with_name(f".{target.name}.new")
        temporary.write_bytes(content.encode() if isinstance(content, str) else content)
        os.chown(temporary, uid, uid)
        os.chmod(temporary, mode)
        temporary.rename(target)

    def trust(self, authority: bytes) -> None:
        """Adds a certificate authority in all places that programs read."""
        self.write(f"/usr/local/share/ca-certificates/{_CA_NAME}.crt", authority)
        self.write(f"/etc/ssl/certs/{_CA_NAME}.pem", authority)
        name = certificates.subject_hash(str(self.path(f"/etc/ssl/certs/{_CA_NAME}.pem")))
        os.symlink(f"{_CA_NAME}.pem", self.path(f"/etc/ssl/certs/{name}.0"))
        for bundle in _BUNDLES:
            path = self.path(bundle)
            if path.is_file() and not path.is_symlink():
                self.write(bundle, path.read_bytes() + b"\n" + authority)

    def join_tor_network(self, identities: dict[str, tuple[str, str]]) -> None:
        """Makes every tor that starts on the host a client of the lab."""
        geoip = tor_config.geoip_text()
        self.write(tor_config.GEOIP_FILE, geoip)
        self.write("/etc/tor/torrc-defaults", tor_config.client_lines(identities))
        if self.path("/usr/share/tor/geoip").exists():
            # A torrc that names the system's file itself gets the lab's data as well.
            self.run(["mount", "--bind", tor_config.GEOIP_FILE, "/usr/share/tor/geoip"], check=True)

    def start_polkit(self, rules: str = "") -> None:
        """Starts a system bus and polkitd, with JavaScript `rules` that decide; returns when polkit answers.

        Without a rule that allows the action, pkexec asks on its terminal, or ends with 127 without a terminal.
        """
        self.write("/etc/polkit-1/rules.d/00-veldlab.rules", rules, mode=0o644)
        self.run(["/bin/sh", "-c", _START_POLKIT], check=True)

    def snapshot(self) -> dict[str, str]:
        """The host's state as text, section by section; see snapshot.py."""
        return snapshot.take(self)

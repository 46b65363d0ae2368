"""A row of the leak matrix. A program of the session's user replaces a bridge program of the Tor Project in the user's own folder,
after root has verified the bundle. Passwordless mode is on, so there is no prompt.

The test makes the signer's key. The helper has it in the place of the Tor Browser Developers' key.
"""

import contextlib
import sys
from pathlib import Path

from leaks import probes
from leaks.case import HASH, PROGRAMS
from leaks.hostile import INSTALLED, RULE
from leaks.matrix import ABSENT, CLOSED

sys.path.append(str(Path(__file__).resolve().parents[2] / "helper"))

from bundles import Signer, bundle, member  # noqa: E402

FINGERPRINT = "EF6E286DDA85EA2A4BA7DE684E2C6E8793298290"
MEMBER = "tor/pluggable_transports/lyrebird"
INDEX = 6  # the index of the probes of a program of the session's user
KIND = "HTTP"
BRIDGE = "meek_lite 192.0.2.3:80 url=https://192.0.2.4/"  # over such a bridge Tor's account reaches any address
COPIES = "/var/lib/veldmark/programs"
GOOD = b'#!/bin/sh\nexec /usr/bin/obfs4proxy "$@"\n'
EVIL = (
    "#!/bin/sh\n/usr/bin/python3 -c \"import socket; s = socket.socket(); s.setblocking(False); s.connect_ex(('{}', 80))\"\n"
    'exec /usr/bin/obfs4proxy "$@"\n'
).format(probes.public(INDEX))
# Root's folder exists while root verifies the bundle, and every account can see it. Root has read the program before.
SWAP = 'until [ -e "$0/bundle.new" ]; do :; done; cp "$1/other" "$1/new"; mv "$1/new" "$1/lyrebird"; echo swapped'


class SwappedRow:
    """A part of a LeakCase."""

    def swapped_row(self):
        cell = self.matrix.row("a bridge program, swapped after it was verified", [ABSENT, ABSENT, CLOSED, ABSENT])[2]
        self.folder = f"/home/{self.host.user}/transports"
        self.signer = Signer("Signer")
        with contextlib.ExitStack() as stack:
            self.prepare_swap(stack)
            # Without the defence, the signature: the signer has signed the hostile program.
            self.bring(EVIL.encode())
            cell.control = self.packets_of(self.connect_by_rule)
            self.disconnect()
            self.sh(f"rm -r {COPIES}/* /var/lib/veldmark/bundle")
            self.bring(GOOD)
            cell.session = self.packets_of(self.connect_swapped)
            [copy] = self.sh(f"find {COPIES} -name lyrebird").split()
            self.assertEqual(self.sh(f"cat {copy}"), GOOD.decode())
            self.assertEqual(self.sh(f"cat {self.folder}/lyrebird"), EVIL)
            self.assertIn(f"exec {copy}\n", self.sh("cat /var/lib/veldmark/run/torrc"))
            # From now on the hostile program is there before root reads it.
            for ends in False, True:
                if ends:
                    self.disconnect()
                self.assertEqual(self.by_rule(check=False).returncode, 4)
        self.assert_kept()

    def prepare_swap(self, stack):
        text = (PROGRAMS / "veldmark-helper.sh").read_text(encoding="utf-8")
        self.assertEqual(text.count(FINGERPRINT), 1)
        self.host.write("/run/helper.sh", text.replace(FINGERPRINT, self.signer.fingerprint))
        self.sh(
            f"install -D -m 0755 /run/helper.sh {INSTALLED}; rm /run/helper.sh; grep -q '^@includedir /etc/sudoers.d' /etc/sudoers ||"
            f" echo '@includedir /etc/sudoers.d' >>/etc/sudoers; echo '{self.host.user} ALL=(root) NOPASSWD:NOSETENV: {INSTALLED}' >{RULE};"
            f" chmod 0440 {RULE}; install -d -o {self.host.uid} {self.folder}"
        )
        stack.callback(self.sh, f"rm -rf /usr/local/libexec/veldmark {RULE} {self.folder} {COPIES} /var/lib/veldmark/bundle")
        stack.callback(self.disconnect)

    def bring(self, program):
        """Installs a bundle of the program, and the program, as the downloader leaves them. The other program lies beside it."""
        archive = bundle(member(MEMBER, program))
        for name, content in (
            ("lyrebird", program),
            ("other", EVIL.encode()),
            ("bundle", archive),
            ("bundle.asc", self.signer.sign(archive)),
            ("bundle.key", self.signer.key),
        ):
            self.host.write(f"{self.folder}/{name}", content, mode=0o755, uid=self.host.uid)

    def by_rule(self, **options):
        words = ["--strict", "1", "--lan", "0", "--bridge", BRIDGE, "--pt-lyrebird", f"{self.folder}/lyrebird"]
        return self.host.run(
            [
                "sudo",
                "-n",
                INSTALLED,
                "connect",
                "--tor",
                "/usr/bin/tor",
                "--hash",
                HASH,
                *words,
                "--bundle",
                f"{self.folder}/bundle",
            ],
            user=self.host.user,
            cwd="/",
            **options,
        )

    def connect_by_rule(self):
        self.by_rule(check=True)

    def connect_swapped(self):
        swapper = self.host.popen(["/bin/sh", "-c", SWAP, COPIES, self.folder], user=self.host.user, cwd="/", stdout=-1, text=True)
        try:
            self.connect_by_rule()
            self.assertEqual(swapper.communicate(timeout=10)[0], "swapped\n")
        finally:
            swapper.kill()
            swapper.wait()

    def packets_of(self, connect):
        """The packets until the bridge program serves; the hostile program sends before that."""
        with self.watched() as seen:
            connect()
            self.sh("until pgrep -u _veldmark -x obfs4proxy; do sleep 0.02; done", timeout=30)
        return sum(number for (name, index), number in seen.counts().items() if (name, index) == (KIND, INDEX))

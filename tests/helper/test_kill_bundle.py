"""kill -9 of the helper right after each change that a signed bundle makes. No later run takes an unapproved program for approved,
an older bundle does not come back, and later runs work. The test prints the number of points that it has tried."""

import os
import re

import namespace
from bundlecase import ARCHIVE, NEW_BUNDLE, PROGRAMS, PROMPT, BundleCase
from bundles import FEBRUARY, transport

STEPPED = os.path.join(namespace.HERE, "stepped.sh")
STATE, SAVED = "/var/lib/veldmark", "/run/saved"
OF_BUNDLES = re.compile(r"\b(in_bundle|verify_bundle|clear_bundle|copy_program|keep_copy|drop_replaced)\b")


class Killed(BundleCase):
    def stepped(self, kill_after):
        self.machine.run(
            "env",
            "-i",
            f"PKEXEC_UID={PROMPT['PKEXEC_UID']}",
            "/bin/bash",
            "-p",
            STEPPED,
            self.machine.helper,
            "/run/changes",
            kill_after,
            "",
            "/bin/true",
            *self.WORDS,
            "--bundle",
            ARCHIVE,
            check=False,
        )
        return self.machine.shell("flock /run/veldmark.lock cat /run/changes").splitlines()

    def test_at_each_change(self):
        """A newer bundle replaces an older one."""
        old, new = transport("old"), transport("new")
        self.bring(old)
        self.connect()
        self.machine.help("disconnect")
        self.machine.shell(f"rm -rf {SAVED}; cp -a {STATE} {SAVED}")
        self.bring(new, now=FEBRUARY)
        points = [line for line in self.stepped("") if OF_BUNDLES.search(line)]
        self.assertEqual(len(self.machine.tor_pids()), 1)
        self.assertGreater(len(points), 12)
        for point in points:
            with self.subTest(point):
                self.machine.help("disconnect")
                self.machine.shell(f"rm -rf {STATE}/* && cp -a {SAVED}/. {STATE}")
                self.bring(new, now=FEBRUARY)
                self.assertIn(point, self.stepped(point)[-1:])
                self.assertWhole()
                self.machine.help("disconnect")
                self.assertEqual(self.machine.shell(f"ls -d {NEW_BUNDLE} 2>/dev/null || true"), "")
                self.connect()
                self.assertEqual(self.copies(), [f"./{self.digest()}/lyrebird"])
                self.assertWhole()
                self.machine.help("disconnect")
                self.bring(old)
                self.assertAsked(self.connect(check=False))
        print(f"\n{len(points)} points", flush=True)

    def assertWhole(self):
        """Every program in the folder has the digest that its folder's name says."""
        for line in self.machine.shell(f"cd {PROGRAMS}; find . -path './*/*' -type f -exec sha256sum {{}} + || true").splitlines():
            digest, path = line.split()
            if not path.startswith("./bundle.new/"):
                self.assertEqual(path.split("/")[1], digest)


if __name__ == "__main__":
    namespace.main()

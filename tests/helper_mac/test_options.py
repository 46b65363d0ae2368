"""Hostile or wrong arguments and environments of the Mac's helper: one sentence, and nothing changes."""

import importlib.util
import os
import subprocess

import mac
from mac import HASH, TOR, USER_UID, MacTest

# The same table as on Linux, since the patterns are shared. It is loaded by its path, since that file has this file's name.
_spec = importlib.util.spec_from_file_location("linux_options", os.path.join(mac.HERE, "..", "helper", "test_options.py"))
linux_options = importlib.util.module_from_spec(_spec)
_spec.loader.exec_module(linux_options)

LAUNCH = ["launch", "--uid", str(USER_UID), "--app", "/Applications/Some.app"]
MORE = {
    "launch for somebody else": ["launch", "--uid", "0", "--app", "/Applications/Some.app"],
    "launch of no application": ["launch", "--uid", str(USER_UID), "--app", "/usr/bin/true"],
    "launch of a relative path": ["launch", "--uid", str(USER_UID), "--app", "Some.app"],
    "launch with arithmetic": ["launch", "--uid", "a[$(touch /run/pwned)]", "--app", "/Applications/Some.app"],
    "launch without a session": LAUNCH,
}


class Options(MacTest):
    def test_every_hostile_argument_is_refused(self):
        for name, arguments in {**linux_options.HOSTILE, **MORE}.items():
            with self.subTest(name):
                self.assertOneLine(self.machine.help(*arguments, check=False), linux_options.SAYS.get(name, ""))
                self.assertFalse(os.path.exists(self.machine.root + "/run/pwned"))
        self.assertRestored()
        self.assertEqual(self.machine.calls("networksetup -set"), [])

    def test_odd_callers_are_refused(self):
        for name, variables in linux_options.UIDS.items():
            with self.subTest(name):
                self.assertOneLine(
                    self.machine.help(*linux_options.words(), env={"PATH": "/usr/bin:/bin", **variables}, check=False)
                )
        self.assertRestored()

    def test_a_caller_who_is_not_root_is_refused(self):
        self.assertOneLine(self.machine.help("disconnect", uid=USER_UID, check=False), "must run as root")

    def test_nothing_from_the_environment_counts(self):
        self.machine.shell(
            "mkdir -p /run/bin; for name in pfctl perl stat; do printf '#!/bin/sh\ntouch /run/pwned\n' >/run/bin/$name;"
            "chmod +x /run/bin/$name; done"
        )
        variables = {
            "PATH": "/run/bin:/usr/bin:/bin",
            "PERL5OPT": "-Mpwned",
            "PERL5LIB": "/run/bin",
            "BASH_FUNC_pfctl%%": "() { touch /run/pwned; }",
            "SYSTEM": "linux",
            "CALLER_UID": "0",
            "DYLD_INSERT_LIBRARIES": "/run/bin/x",
            "IFS": "/",
        }
        self.machine.help(*linux_options.words(), env=variables)
        self.assertFalse(os.path.exists(self.machine.root + "/run/pwned"))
        self.machine.help("disconnect", env=variables)
        self.assertRestored()

    def test_another_systems_helper_is_refused(self):
        self.machine.place(mac.namespace.helper_path("linux"), "/mac/linux-helper.sh")
        self.assertOneLine(self.machine.run("/bin/bash", "/mac/linux-helper.sh", "disconnect", check=False), "another system")

    def test_the_check_for_a_real_mac_passes_here(self):
        """All of its checks pass except its own look at the network, which does not exist here."""
        self.machine.place(os.path.join(mac.HERE, "real_mac.sh"), "/mac/real_mac.sh")
        self.machine.shell("cp /usr/bin/tor /usr/local/bin/tor; ln -sf /private/etc/hosts /etc/hosts")
        done = self.machine.run("/bin/bash", "/mac/real_mac.sh", "--change-this-mac", self.machine.helper, check=False, timeout=300)
        run, table = done.stdout.split("---- the table, ")
        lines = run.splitlines()
        failed = [line for line in lines if line.startswith("FAILED")]
        self.assertEqual(failed, ["FAILED  the network is there", "FAILED  the network is there again"], done.stdout + done.stderr)
        self.assertGreater(len([line for line in lines if line.startswith("ok ")]), 20)
        self.assertGreater(len([line for line in lines if line.startswith("answer ")]), 12)
        self.assertEqual([line for line in lines if line.strip()], table.splitlines()[1 : len(lines)])
        self.machine.shell("rm /usr/local/bin/tor")

    def test_the_check_for_a_real_mac_puts_back_what_it_was_stopped_in(self):
        self.machine.place(os.path.join(mac.HERE, "real_mac.sh"), "/mac/real_mac.sh")
        self.machine.shell("cp /usr/bin/tor /usr/local/bin/tor; ln -sf /private/etc/hosts /etc/hosts")
        running = self.machine.start(
            "/bin/bash",
            "/mac/real_mac.sh",
            "--change-this-mac",
            self.machine.helper,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
        )
        for line in running.stdout:
            if line.startswith("ok      every service is switched"):
                break
        self.machine.shell("kill $(pgrep -f '^/bin/bash /mac/real_mac.sh')")
        rest = running.stdout.read()
        running.stdout.close()
        self.assertEqual(running.wait(), 130, rest)
        self.assertIn("---- the table, ", rest)
        self.assertFalse(os.path.exists(self.machine.root + "/usr/local/etc/tor/torrc-defaults"))
        self.machine.shell("rm /usr/local/bin/tor")
        self.assertRestored()

    def test_a_missing_program_is_named(self):
        self.machine.shell("mv /usr/bin/networksetup /mac/gnu/")
        try:
            self.assertOneLine(
                self.machine.help("connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0", check=False),
                "networksetup is missing",
            )
            self.assertEqual(self.machine.verdict("out"), "pass")
        finally:
            self.machine.shell("/mac/gnu/mv /mac/gnu/networksetup /usr/bin/")


if __name__ == "__main__":
    mac.main()

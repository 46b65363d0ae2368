"""Applications without Tor, by the command line: listed, opened, and connected with the user's own address while all other traffic
is blocked."""

import json
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import PROGRAMS, SKIPPED, LabCase  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.product import Product, is_probed  # noqa: E402

ENTRY = "/usr/local/share/applications/org.example.Sample.desktop"
# Asks for its address, writes it down, and stays until it is asked to quit.
PROGRAM = f"""#!/bin/sh
echo $$ >>"$HOME/pids"
trap 'echo asked >>"$HOME/log"; exit 0' TERM
curl -sS4 --max-time 10 --noproxy '*' {at.CHECK_URL} >"$HOME/answer.new" 2>&1
mv "$HOME/answer.new" "$HOME/answer"
while :; do sleep 0.1; done
"""


class Applications(LabCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        host = cls.lab.host
        cls.product = Product(cls.lab, PROGRAMS, user=host.user)
        host.write("/usr/local/bin/sample-program", PROGRAM, mode=0o755)
        host.write(
            ENTRY,
            "[Desktop Entry]\nType=Application\nName=Sample\nName[de]=Muster\n" "Exec=/usr/local/bin/sample-program --start\n",
        )
        host.write(
            "/usr/local/share/applications/unseen.desktop",
            "[Desktop Entry]\nType=Application\nName=Unseen\nNoDisplay=true\nExec=/bin/true\n",
        )
        # An administrator who approves every request.
        host.start_polkit(
            'polkit.addRule(function(action, subject) { if (subject.user == "alice" && '
            'action.id == "org.freedesktop.policykit.exec") return polkit.Result.YES; });'
        )

    def setUp(self):
        self.lab.host.run(["rm", "-rf", "/home/alice/.config/veldmark"], check=True)
        self.remove_traces()
        super().setUp()

    def remove_traces(self):
        """Ends the copies that have reported that they run, and removes their reports."""
        script = 'cd /home/alice; [ ! -e pids ] || for pid in $(cat pids); do kill -KILL "$pid" || :; done; rm -f pids answer log'
        self.lab.host.run(["/bin/sh", "-c", script], check=True)

    def answer(self):
        path = self.lab.host.path("/home/alice/answer")
        deadline = time.monotonic() + 20
        while not path.exists():
            self.assertLess(time.monotonic(), deadline, "the application has written nothing")
            time.sleep(0.05)
        return path.read_text()

    def alice(self, *command, **options):
        return self.lab.host.run([*command], user=self.lab.host.user, **options)

    def refused(self, *verb):
        """The exit status and the one line of a call that fails."""
        result = self.product.run_verb(*verb)
        self.assertEqual((result.stdout, result.stderr.count("\n")), ("", 1), result.stderr)
        return result.returncode, result.stderr

    def test_lists_what_is_installed_and_marks_what_was_chosen(self):
        listed = json.loads(self.product.run_verb("apps", "--json", check=True).stdout)
        self.assertIn({"path": ENTRY, "name": "Sample", "bypassed": False, "installed": True}, listed)
        self.assertNotIn("Unseen", [entry["name"] for entry in listed])
        self.set("bypassApps", json.dumps([ENTRY, "/nowhere/gone.desktop"]))
        listed = json.loads(self.product.run_verb("apps", "--json", check=True).stdout)
        self.assertIn({"path": ENTRY, "name": "Sample", "bypassed": True, "installed": True}, listed)
        self.assertIn({"path": "/nowhere/gone.desktop", "name": "gone", "bypassed": True, "installed": False}, listed)
        german = self.alice(self.product.ctl, "apps", env={"LANGUAGE": "de"}, check=True).stdout
        self.assertRegex(german, rf"(?m)^\* Muster +{ENTRY}$")
        self.lab.host.run(["rm", "-rf", "/home/alice/.config/veldmark"], check=True)
        self.assert_restored()

    def test_refuses_what_cannot_be_opened(self):
        self.assertEqual(self.refused("launch")[0], 2)
        self.assertEqual(self.refused("launch", "nothing of the kind")[0], 2)
        self.assertEqual(self.refused("launch", "/nowhere/a.desktop")[0], 2)
        status, line = self.refused("launch", "Sample")
        self.assertEqual((status, "isn't running" in line), (3, True), line)
        with self.product.session(connect=False) as session:
            session.wait_phase("disconnected")
            self.assertEqual(self.refused("launch", "Sample"), (1, "veldmarkctl: Not connected.\n"))
            self.assertEqual(session.interrupt(), 0, session.output)

    def test_opens_one_application_while_all_else_stays_locked(self):
        with self.product.session() as session:
            session.wait(is_probed)
            # Started in the ordinary way it gets no answer: the kill switch blocks it.
            self.alice("/bin/sh", "-c", f"gio launch {ENTRY} >/dev/null 2>&1", check=True)
            self.assertNotIn('"IP"', self.answer())
            self.remove_traces()
            with self.lab.capture() as capture:
                self.product.run_verb("launch", "sample", check=True)
                self.assertEqual(json.loads(self.answer())["IP"], at.HOST_ADDRESS)
            outside = {p.dst for p in capture.packets if p.out and p.src == at.HOST_ADDRESS} - at.RELAY_ADDRESSES
            self.assertEqual(outside, {at.CHECK_ADDRESS, at.DNS_ADDRESS})
            # At the next launch the running copy is asked to quit first.
            self.lab.host.run(["rm", "/home/alice/answer"], check=True)
            self.assertFalse(self.lab.host.path("/home/alice/log").exists())
            self.product.run_verb("launch", ENTRY, check=True)
            self.assertEqual(self.lab.host.read("/home/alice/log"), "asked\n")
            self.assertEqual(json.loads(self.answer())["IP"], at.HOST_ADDRESS)
            self.assertIsNone(self.direct("-4"))
            self.assertEqual(self.product.status()["title"], "Protected")
            self.remove_traces()
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()

    def test_a_failure_is_one_line(self):
        self.lab.host.write(
            "/usr/local/share/applications/broken.desktop",
            "[Desktop Entry]\nType=Application\nName=Broken\nExec=/usr/local/bin/soon-gone\n",
        )
        self.lab.host.write("/usr/local/bin/soon-gone", "#!/bin/sh\n", mode=0o755)
        self.addCleanup(self.lab.host.run, ["rm", "-f", "/usr/local/share/applications/broken.desktop"])
        with self.product.session() as session:
            session.wait(is_probed)
            self.lab.host.run(["rm", "/usr/local/bin/soon-gone"], check=True)
            status, line = self.refused("launch", "/usr/local/share/applications/broken.desktop")
            self.assertEqual(status, 1)
            self.assertTrue(line.startswith("veldmarkctl: Couldn't open broken without Tor: "), line)
            self.assertEqual(session.interrupt(), 0, session.output)

    def test_nothing_is_opened_in_proxy_mode(self):
        self.set("strictMode", "false")
        with self.product.session() as session:
            session.wait(is_probed)
            self.assertEqual(
                self.refused("launch", "Sample"), (1, "veldmarkctl: Connect in strict mode to open apps without Tor\n")
            )
            self.assertEqual(session.interrupt(), 0, session.output)


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)

"""Self test of lab.py: the verbs that work on a lab which another process keeps up."""

import json
import signal
import subprocess
import tempfile
import unittest
from pathlib import Path

from veldlab import registry
from veldlab import topology as at

SCRIPT = str(Path(__file__).resolve().with_name("lab.py"))


class CommandLineTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(prefix="veldlab-test-")
        cls.addClassCleanup(cls.folder.cleanup)
        cls.up = subprocess.Popen([at.PYTHON, SCRIPT, "up", "--logs", cls.folder.name], stdout=-1, stderr=-1, text=True)
        cls.addClassCleanup(cls.up.communicate)
        cls.addClassCleanup(cls.up.terminate)
        cls.banner = cls.up.stdout.readline()
        cls.id = cls.banner.split()[2]

    def lab(self, verb: str, *arguments: str) -> subprocess.CompletedProcess:
        return subprocess.run([at.PYTHON, SCRIPT, verb, "--lab", self.id, *arguments], capture_output=True, text=True)

    def test_exec_reaches_every_space(self):
        addresses = (
            ("host", at.HOST_ADDRESS),
            ("world", at.DNS_ADDRESS),
            ("router", at.ROUTER_LAN_ADDRESS),
            ("lan", at.LAN_ADDRESS),
        )
        for space, address in addresses:
            with self.subTest(space):
                self.assertIn(address, self.lab("exec", "--in", space, "--", "ip", "address").stdout)
        done = self.lab("exec", "--user", "alice", "--env", "A=1", "--", "sh", "-c", 'id -un; echo "$A"; exit 5')
        self.assertEqual((done.stdout, done.returncode), ("alice\n1\n", 5))

    def test_exec_passes_standard_input_and_death_by_signal(self):
        command = [at.PYTHON, SCRIPT, "exec", "--lab", self.id, "--", "sh", "-c", "cat; kill -TERM $$"]
        done = subprocess.run(command, input="through\n", capture_output=True, text=True)
        self.assertEqual((done.stdout, done.returncode), ("through\n", 128 + signal.SIGTERM))

    def test_exec_gives_a_terminal(self):
        command = f"{at.PYTHON} {SCRIPT} exec --lab {self.id} --user alice -- bash --norc -i"
        done = subprocess.run(
            ["script", "-qefc", command, "/dev/null"], input="tty; stty size; exit 3\n", capture_output=True, text=True, timeout=60
        )
        self.assertEqual(done.returncode, 3, done.stdout)
        self.assertIn("/dev/pts/", done.stdout)
        self.assertNotIn("no job control", done.stdout)

    def test_info_names_what_there_is(self):
        info = json.loads(self.lab("info").stdout)
        self.assertEqual(info["id"], self.id)
        self.assertEqual(info["exits"]["203.0.113.10"], "de")
        self.assertRegex(info["bridges"]["obfs4"], r"^obfs4 203\.0\.113\.30:9030 [0-9A-F]{40} cert=\S+ iat-mode=0$")
        self.assertRegex(info["bridges"]["plain"], r"^203\.0\.113\.31:5000 [0-9A-F]{40}$")

    def test_behave_and_log(self):
        self.addCleanup(self.lab, "behave", "check", "ok")
        self.assertEqual(self.lab("behave", "check", "status-503").returncode, 0)
        ask = ("exec", "--", "curl", "-s4", "-o", "/dev/null", "-w", "%{http_code}", at.CHECK_URL)
        self.assertEqual(self.lab(*ask).stdout, "503")
        self.assertEqual(json.loads(self.lab("log", "web").stdout.splitlines()[-1])["source"], at.HOST_ADDRESS)
        self.assertIn(at.CHECK_HOST, self.lab("log", "dns").stdout)
        wrong = self.lab("behave", "check", "nonsense")
        self.assertEqual((wrong.returncode, wrong.stderr.count("\n")), (1, 1))

    def test_nodes_stop_and_start(self):
        connect = ("exec", "--", "nc", "-z", "203.0.113.11", str(at.OR_PORT))
        self.assertEqual(self.lab(*connect).returncode, 0)
        self.assertEqual(self.lab("node", "stop", "exitus").returncode, 0)
        self.assertEqual(self.lab(*connect).returncode, 1)
        self.assertEqual(self.lab("node", "start", "exitus").returncode, 0)
        self.assertEqual(self.lab(*connect).returncode, 0)
        self.assertIn("Bootstrapped", self.lab("log", "exitus").stdout)
        wrong = self.lab("node", "stop", "nobody")
        self.assertEqual((wrong.returncode, wrong.stderr.count("\n")), (1, 1))

    def test_an_unknown_lab_is_one_line(self):
        command = [at.PYTHON, SCRIPT, "exec", "--lab", "0000", "--", "true"]
        done = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual((done.returncode, done.stderr), (1, "No lab 0000 is running.\n"))

    def test_ctrl_c_ends_it_and_leaves_the_logs(self):
        with tempfile.TemporaryDirectory(prefix="veldlab-test-") as folder:
            up = subprocess.Popen([at.PYTHON, SCRIPT, "up", "--logs", folder], stdout=-1, stderr=-1, text=True)
            lab_id = up.stdout.readline().split()[2]
            self.assertIn(lab_id, [record["id"] for record in registry.running()])
            up.send_signal(signal.SIGINT)
            up.communicate()
            self.assertEqual(up.returncode, 130)
            self.assertNotIn(lab_id, [record["id"] for record in registry.records()])
            self.assertIn("Bootstrapped", Path(folder, "exitde.log").read_text())
            self.assertTrue(Path(folder, "services.log").exists())

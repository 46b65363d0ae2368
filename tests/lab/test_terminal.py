"""Terminal mode with real shells and real programs: bash and zsh at terminals of their own, curl, git and ssh."""

import contextlib
import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import PROGRAMS, SKIPPED, LabCase  # noqa: E402
from veldlab import shell, ssh_server  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.product import Product, is_probed  # noqa: E402

PROXY = "socks5h://127.0.0.1:9050"
NO_PROXY = "localhost,127.0.0.1,::1"
ON = f"{PROXY}|{PROXY}|{PROXY}|{PROXY}|{PROXY}|{PROXY}|{NO_PROXY}|{NO_PROXY}"
SHOW = 'echo "$ALL_PROXY|$all_proxy|$HTTP_PROXY|$http_proxy|$HTTPS_PROXY|$https_proxy|$NO_PROXY|$no_proxy"'
SITE = at.WEB_HOSTS[0]
# The user's own settings. `prompts` counts the runs of the user's prompt command.
OWN = """prompts=0
own_prompt_command() { prompts=$((prompts + 1)); }
if [ -n "${ZSH_VERSION:-}" ]; then precmd_functions+=(own_prompt_command); else PROMPT_COMMAND=own_prompt_command; fi
"""


class TerminalCase(LabCase):
    user = "root"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.home = "/root" if cls.user == "root" else f"/home/{cls.user}"
        cls.marker = f"{cls.home}/.veldmark/active"
        if cls.user != "root":  # the setting of a user who does not want a question each time
            Product(cls.lab, PROGRAMS).run_helper("install-privileged", "--user", cls.user, check=True)
            cls.product = Product(cls.lab, PROGRAMS, user=cls.user)

    def setUp(self):
        for name in (".config/veldmark", ".veldmark", ".ssh", ".bashrc", ".zshrc", "clone"):
            self.lab.host.run(["rm", "-rf", f"{self.home}/{name}"], check=True)
        super().setUp()

    def start(self, extra="", mode="proxy"):
        """Starts the program, not connected, with terminal mode on."""
        shell.prepare(self.lab, self.user, extra)
        self.set("strictMode", "true" if mode == "strict" else "false")
        self.running = self.enterContext(self.product.session(connect=False))
        self.running.wait_phase("disconnected")
        self.set("terminalMode", "true")
        return self.running

    def shells(self, **options):
        return {name: self.enterContext(shell.Shell(self.lab, name, self.user, **options)) for name in ("bash", "zsh")}

    def connect(self):
        """Connects by the command, without waiting for the DNS test at its end."""
        command = self.lab.host.popen([self.product.ctl, "connect"], user=self.user, stdout=-3, stderr=-3)
        self.addCleanup(command.wait)
        self.addCleanup(command.kill)
        self.running.wait(is_probed)

    def disconnect(self):
        self.product.run_verb("disconnect", check=True)

    def is_marked(self):
        return self.lab.host.path(self.marker).exists()

    def web_sources(self, seen):
        return {entry["source"] for entry in self.lab.world.web_log(seen)}


class Shells(TerminalCase):
    def test_an_open_shell_follows_the_session_at_its_next_prompt(self):
        self.start()
        for name, open_shell in self.shells().items():
            with self.subTest(shell=name):
                self.assertEqual(open_shell.run(SHOW), "|||||||")
                self.connect()
                open_shell.run("")
                self.assertEqual(open_shell.run(SHOW), ON)
                self.assertEqual(open_shell.run(f"env | grep -c '={PROXY}$'"), "6")  # also for programs
                self.disconnect()
                open_shell.run("")
                self.assertEqual(open_shell.run(SHOW), "|||||||")

    def test_what_the_user_has_comes_back(self):
        self.start(OWN + "export HTTP_PROXY=http://mine.example:3128 no_proxy='a b'\n")
        mine = "||http://mine.example:3128|||||a b"
        for name, open_shell in self.shells().items():
            with self.subTest(shell=name):
                self.assertEqual(open_shell.run(SHOW), mine)
                self.connect()
                open_shell.run("")
                self.assertEqual(open_shell.run(SHOW), ON)
                before = int(open_shell.run("echo $prompts"))
                self.assertEqual(int(open_shell.run("echo $prompts")), before + 1)
                self.disconnect()
                open_shell.run("")
                self.assertEqual(open_shell.run(SHOW), mine)
                self.assertEqual(int(open_shell.run("echo $prompts")), before + 4)

    def test_a_shell_opened_during_the_session_has_it_at_once(self):
        self.start()
        self.connect()
        for name, open_shell in self.shells().items():
            with self.subTest(shell=name):
                self.assertEqual(open_shell.run(SHOW), ON)

    def test_torip_prints_the_exits_address(self):
        self.start()
        shells = self.shells()
        for name, open_shell in shells.items():  # the file really contains the address
            self.assertIn(json.loads(open_shell.run("torip"))["IP"], (at.HOST_ADDRESS, at.HOST_ADDRESS6), name)
        self.connect()
        for name, open_shell in shells.items():
            with self.subTest(shell=name):
                answer = json.loads(open_shell.run("torip"))  # at once, before the next prompt
                self.assertIs(answer["IsTor"], True)
                self.assertIn(answer["IP"], self.lab.tor.exits)

    def test_dash_reads_the_file_without_harm(self):
        self.start()
        script = 'set -eu; . "$HOME/.veldmark/shell.sh"; echo "${ALL_PROXY-unset}"'
        for expected in ("unset", PROXY):
            read = self.lab.host.run(["dash", "-c", script], user=self.user)
            self.assertEqual((read.returncode, read.stdout, read.stderr), (0, f"{expected}\n", ""))
            if expected == "unset":
                self.connect()

    def test_the_marker_is_there_only_while_it_may_be(self):
        session = self.start()
        self.assertFalse(self.is_marked())
        self.lab.host.run(["rm", "-rf", "/var/lib/veldmark/run/tor/data"], check=True)
        with self.lab.netem(loss=1.0):
            waiting = self.lab.host.popen([self.product.ctl, "connect"], user=self.user, stdout=-3, stderr=-3)
            session.wait(lambda s: s["canCancel"])
            self.assertFalse(self.is_marked(), "connecting is not connected")
            self.disconnect()
            waiting.wait()
        self.connect()
        self.assertTrue(self.is_marked())
        self.set("terminalMode", "false")
        self.assertFalse(self.is_marked())
        self.set("terminalMode", "true")
        self.assertTrue(self.is_marked())
        self.disconnect()
        self.assertFalse(self.is_marked())
        self.connect()
        session.interrupt()
        self.assertFalse(self.is_marked())
        self.lab.host.write(self.marker, "", uid=0 if self.user == "root" else self.lab.host.uid)
        with self.product.session(connect=False) as session:  # a crash leaves it, and the next start removes it
            session.wait_phase("disconnected")
            self.assertFalse(self.is_marked())


class ShellsOfAnOrdinaryUser(Shells):
    user = "alice"

    def test_the_log_of_the_users_own_session_is_open(self):
        self.start()
        self.connect()
        self.assertIn("Bootstrapped 100%", self.product.run_verb("log", check=True).stdout)


class WhenItEnds(TerminalCase):
    """Proxy mode, where only the variables keep a tool from the direct path."""

    def answer(self, open_shell):
        return open_shell.run(f"curl -sS --max-time 20 http://{SITE}/ip 2>&1").splitlines()[-1]

    def test_a_missing_marker_falls_back_to_the_direct_path(self):
        self.start()
        self.connect()
        open_shell = self.shells()["bash"]
        self.assertIn(self.answer(open_shell), self.lab.tor.exits)
        for path in (self.marker, "/var/lib/veldmark/state/active"):
            with self.subTest(marker=path):
                # The program would notice within a second that the session's marker has gone, and end the session.
                self.lab.host.run(["pkill", "-STOP", "veldmarkctl"], check=True)
                self.lab.host.run(["mv", path, f"{path}.away"], check=True)
                open_shell.run("")
                self.assertEqual(open_shell.run(SHOW), "|||||||")
                self.assertIn(self.answer(open_shell), (at.HOST_ADDRESS, at.HOST_ADDRESS6))
                self.lab.host.run(["mv", f"{path}.away", path], check=True)
                self.lab.host.run(["pkill", "-CONT", "veldmarkctl"], check=True)
                open_shell.run("")
                self.assertIn(self.answer(open_shell), self.lab.tor.exits)

    def test_a_dead_tor_lets_nothing_out_until_the_network_is_restored(self):
        session = self.start()
        self.connect()
        open_shell = self.shells()["bash"]
        self.assertIn(self.answer(open_shell), self.lab.tor.exits)
        self.kill_tor()
        session.wait_phase("stale")
        seen = len(self.lab.world.web_log())
        open_shell.run("")
        self.assertTrue(self.answer(open_shell).startswith("curl: (7)"))
        self.assertEqual(self.web_sources(seen), set())
        self.product.run_verb("restore", check=True)
        open_shell.run("")
        self.assertEqual(open_shell.run(SHOW), "|||||||")
        self.assertIn(self.answer(open_shell), (at.HOST_ADDRESS, at.HOST_ADDRESS6))

    def test_a_killed_program_leaves_the_tools_on_tor(self):
        session = self.start()
        self.connect()
        open_shell = self.shells()["bash"]
        self.lab.host.run(["pkill", "-KILL", "veldmarkctl"], check=True)
        session.process.wait()
        open_shell.run("")
        self.assertIn(self.answer(open_shell), self.lab.tor.exits)  # tor still runs, and the tools use it
        self.product.run_verb("restore", check=True)
        open_shell.run("")
        self.assertEqual(open_shell.run(SHOW), "|||||||")


@unittest.skipUnless(ssh_server.daemon(), "no SSH server is unpacked")
class Programs(TerminalCase):
    """curl, git and ssh in proxy mode, where the direct path is open. The test looks at the packets on the wire."""

    user = "alice"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        with tempfile.TemporaryDirectory() as folder:
            key = f"{folder}/key"
            subprocess.run(["ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", key], check=True)
            cls.key, public = Path(key).read_text(), Path(f"{key}.pub").read_text()
            cls.repository = cls.make_repository(folder)
            git_files = {
                f"repo.git/{path.relative_to(cls.repository)}": path.read_bytes()
                for path in cls.repository.rglob("*")
                if path.is_file()
            }
            cls.lab.world.add_site(SITE, git_files)
            cls.public = cls.enterClassContext(ssh_server.SshServer(cls.lab.world.space, at.WEB_ADDRESS, public))
            cls.private = cls.enterClassContext(ssh_server.SshServer(cls.lab.lan, at.LAN_ADDRESS, public))
            target = cls.public.folder / "home" / "repo.git"
            subprocess.run(["cp", "-r", str(cls.repository), str(target)], check=True)
            subprocess.run(["chown", "-R", f"{ssh_server.UID}:{ssh_server.UID}", str(target)], check=True)

    @staticmethod
    def make_repository(folder):
        script = (
            "git init -q work; cd work; git config user.name Lab; git config user.email lab@example.test; "
            "echo content >file; git add file; git commit -q -m First; cd ..; "
            "git clone -q --bare work repo.git; git -C repo.git update-server-info"
        )
        subprocess.run(["bash", "-ec", script], cwd=folder, check=True, env=os.environ | {"HOME": folder})
        return Path(folder) / "repo.git"

    def setUp(self):
        super().setUp()
        uid = self.lab.host.uid
        self.lab.host.write(f"{self.home}/.ssh/id_ed25519", self.key, mode=0o600, uid=uid)
        known = self.public.host_key() + self.private.host_key()
        self.lab.host.write(f"{self.home}/.ssh/known_hosts", known, mode=0o600, uid=uid)
        self.lab.host.run(["chmod", "700", f"{self.home}/.ssh"], check=True)

    @contextlib.contextmanager
    def through_tor_alone(self):
        """Asserts that only Tor's own packets go to the world meanwhile, and at least one does."""
        with self.lab.capture() as capture:
            yield
        sent = {p.dst for p in capture.packets if p.out and p.family != "arp" and not p.src.startswith("fe80:")}
        self.assertTrue(sent & at.RELAY_ADDRESSES)
        self.assertEqual(sent - at.RELAY_ADDRESSES, set())

    def ssh_from(self, open_shell, host):
        """The address that the server at `host` sees."""
        said = open_shell.run(f"ssh -o BatchMode=yes {ssh_server.USER}@{host} 'echo $SSH_CONNECTION' 2>&1").splitlines()
        return said[-1].split()[0], said

    def clone(self, open_shell, address):
        return open_shell.run(f"rm -rf ~/clone; git clone -q {address} ~/clone 2>&1; cat ~/clone/file")

    def test_without_tor_all_of_them_go_direct(self):
        self.start()
        open_shell = self.shells()["bash"]
        self.assertIn(self.ssh_from(open_shell, SITE)[0], (at.HOST_ADDRESS, at.HOST_ADDRESS6))
        self.assertEqual(self.ssh_from(open_shell, at.LAN_ADDRESS)[0], at.HOST_ADDRESS)
        with self.lab.capture() as capture:
            self.assertEqual(self.clone(open_shell, f"http://{SITE}/repo.git"), "content")
        self.assertTrue({p.dst for p in capture.packets} & {at.WEB_ADDRESS, at.WEB_ADDRESS6})

    def test_curl_git_and_ssh_go_through_tor(self):
        self.start()
        shells = self.shells()
        self.connect()
        for name, open_shell in shells.items():
            open_shell.run("")
            with self.subTest(shell=name, program="curl"), self.through_tor_alone():
                self.assertIn(open_shell.run(f"curl -sS http://{SITE}/ip"), self.lab.tor.exits)
                self.assertIn(open_shell.run(f"curl -sS https://{SITE}/ip"), self.lab.tor.exits)
            with self.subTest(shell=name, program="git over http"), self.through_tor_alone():
                self.assertEqual(self.clone(open_shell, f"http://{SITE}/repo.git"), "content")
            with self.subTest(shell=name, program="ssh"), self.through_tor_alone():
                source, said = self.ssh_from(open_shell, SITE)
                self.assertIn(source, self.lab.tor.exits, said)
            with self.subTest(shell=name, program="git over ssh"), self.through_tor_alone():
                self.assertEqual(self.clone(open_shell, f"{ssh_server.USER}@{SITE}:repo.git"), "content")

    def test_ssh_to_a_private_address_goes_direct(self):
        self.start()
        self.connect()
        open_shell = self.shells()["bash"]
        source, said = self.ssh_from(open_shell, at.LAN_ADDRESS)
        self.assertEqual(source, at.HOST_ADDRESS, said)

    def test_ssh_falls_back_when_the_session_is_over(self):
        self.start()
        self.connect()
        open_shell = self.shells()["bash"]
        self.assertIn(self.ssh_from(open_shell, SITE)[0], self.lab.tor.exits)
        self.disconnect()
        self.assertIn(self.ssh_from(open_shell, SITE)[0], (at.HOST_ADDRESS, at.HOST_ADDRESS6))


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(SKIPPED)
    unittest.main(verbosity=2)

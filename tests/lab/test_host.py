"""Self test of the lab's host: its privacy from the machine, its accounts, its commands, its snapshots."""

import json
import os
import shutil
import signal
import subprocess
import tempfile
import threading
import unittest
import unittest.mock
from pathlib import Path

from veldlab import snapshot
from veldlab import topology as at
from veldlab.lab import PROJECT, Lab
from veldlab.space import CommandFailed

SLEEP = ["sleep", "600"]


class HostTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.shared = tempfile.TemporaryDirectory(prefix="veldlab-test-")
        cls.addClassCleanup(cls.shared.cleanup)
        cls.built = tempfile.TemporaryDirectory(prefix="veldlab-test-")  # below /tmp, which the host has of its own
        cls.addClassCleanup(cls.built.cleanup)
        os.chmod(cls.built.name, 0o755)
        Path(cls.built.name, "veldmarkctl").write_text("#!/bin/sh\necho built\n")
        os.chmod(Path(cls.built.name, "veldmarkctl"), 0o755)
        with unittest.mock.patch.dict(
            os.environ, {"VELDMARK_PROGRAMS": cls.built.name, "VELDMARK_SPEED": "20", "VELDMARK_NONE": "/tmp/none"}
        ):
            cls.lab = Lab(share=[cls.shared.name], consensus=False)
        cls.lab.up()
        cls.addClassCleanup(cls.lab.down)
        cls.host = cls.lab.host

    def test_a_library_is_loaded_from_a_folder_with_blanks(self):
        library = Path(self.shared.name, "a b: c", "any library.so")
        library.parent.mkdir()
        shutil.copy(next(Path("/usr/lib").glob("*/libresolv.so.2")), library)
        maps = ["cat", "/proc/self/maps"]
        self.assertNotIn(str(library), self.host.run(maps, env={"LD_PRELOAD": str(library)}).stdout)
        self.assertIn(str(library), self.host.run(maps, env={"LD_PRELOAD": self.host.preload(library)}).stdout)

    def sh(self, script: str, **options):
        return self.host.run(["/bin/bash", "-c", script], **options)

    def test_changes_stay_inside(self):
        for path in (
            "/etc/passwd",
            "/etc/resolv.conf",
            "/usr/local/bin/veldlab-x",
            "/usr/share/veldlab-x",
            "/opt/veldlab-x",
            "/root/veldlab-x",
            "/tmp/veldlab-x",
            "/var/lib/veldmark/veldlab-x",
            "/run/veldlab-x",
            "/home/veldlab-x",
            "/var/tmp/veldlab-x",
        ):
            with self.subTest(path):
                before = Path(path).read_bytes() if os.path.exists(path) else None
                self.sh(f"echo changed >> {path}.new; mv {path}.new {path}.put; mv {path}.put {path}.last", check=True)
                self.assertEqual(self.sh(f"cat {path}.last; rm {path}.last").stdout, "changed\n")
                self.assertFalse(os.path.lexists(f"{path}.last"))
                self.assertEqual(Path(path).read_bytes() if os.path.exists(path) else None, before)

    def test_the_rest_of_the_machine_is_read_only(self):
        for folder in ("/", "/boot", "/media", "/mnt"):
            self.assertIn("Read-only file system", self.sh(f"touch {folder}/veldlab-x").stderr, folder)

    def test_commands_share_one_mount_namespace(self):
        self.sh("echo bound > /run/source; touch /run/target; mount --bind /run/source /run/target", check=True)
        self.assertEqual(self.sh("cat /run/target; umount /run/target").stdout, "bound\n")
        self.assertEqual(self.sh("cat /run/target").stdout, "")

    def test_project_and_shared_folders_are_the_real_ones(self):
        Path(self.shared.name, "out").write_text("from outside")
        done = self.sh(f"cat {self.shared.name}/out; echo back > {self.shared.name}/in")
        self.assertEqual(done.stdout, "from outside")
        self.assertEqual(Path(self.shared.name, "in").read_text(), "back\n")
        self.assertEqual(self.sh(f"test {PROJECT} -ef . && echo same", cwd=PROJECT).stdout, "same\n")
        self.assertTrue(self.host.path(str(PROJECT)).samefile(PROJECT))

    def test_programs_of_a_build_below_tmp_run(self):
        self.assertEqual(self.host.run([f"{self.built.name}/veldmarkctl"], user=self.host.user).stdout, "built\n")

    def test_alice_is_an_ordinary_user_of_the_host_only(self):
        facts = self.sh(
            "id -un; id -u; echo $HOME $USER $XDG_RUNTIME_DIR; pwd; stat -c %a:%U $HOME $XDG_RUNTIME_DIR", user="alice"
        ).stdout.split()
        uid = str(self.host.uid)
        home, run = "/home/alice", f"/run/user/{uid}"
        self.assertEqual(facts, ["alice", uid, home, "alice", run, home, "700:alice", "700:alice"])
        self.assertGreaterEqual(int(uid), 1000)
        self.assertNotIn("alice:", Path("/etc/passwd").read_text())
        self.assertNotIn(f":{uid}:", Path("/etc/passwd").read_text())
        self.assertNotEqual(self.sh("cat /etc/shadow", user="alice").returncode, 0)

    def test_root_runs_in_a_private_home(self):
        facts = self.sh("id -u; echo $HOME $XDG_RUNTIME_DIR; ls -A").stdout.split()
        self.assertEqual(facts, ["0", "/root", "/run/user/0"])

    def test_sudo_asks_for_alices_password_and_obeys_a_rule(self):
        self.assertIn("password is required", self.sh("sudo -n id -u", user="alice").stderr)
        self.host.write("/etc/sudoers.d/test", "alice ALL=(root) NOPASSWD: /usr/bin/id\n", mode=0o440)
        self.addCleanup(self.sh, "rm -f /etc/sudoers.d/test")
        done = self.sh("sudo -n id -u", user="alice")
        self.assertEqual((done.stdout, done.stderr), ("0\n", ""))
        self.host.write("/etc/sudoers.d/test", "alice ALL=(root) /usr/bin/id\n", mode=0o440)
        self.assertEqual(self.sh("echo alice | sudo -S -p '' id -u", user="alice").stdout, "0\n")
        self.assertNotEqual(self.sh("echo wrong | sudo -S -p '' id -u", user="alice").returncode, 0)

    def test_pkexec_obeys_a_rule(self):
        self.host.start_polkit(
            'polkit.addRule(function(action, subject) { if (subject.user == "alice" && '
            'action.lookup("program") == "/usr/bin/id") return polkit.Result.YES; });'
        )
        self.addCleanup(self.sh, "pkill -x polkitd; pkill -x dbus-daemon")
        self.assertEqual(self.host.run(["pkexec", "/usr/bin/id", "-u"], user="alice").stdout, "0\n")
        self.assertEqual(self.host.run(["pkexec", "/bin/true"], user="alice", session=True).returncode, 127)

    def test_resolver_file_is_ordinary(self):
        path = self.host.path("/etc/resolv.conf")
        self.assertFalse(path.is_symlink())
        self.assertEqual(path.read_text(), f"nameserver {at.DNS_ADDRESS}\n")

    def test_processes_are_its_own(self):
        names = self.sh("ps -e -o comm=; true").stdout.split()
        self.assertEqual(sorted(names), ["bash", "ps", "veldlab-enter", "veldlab-host"])

    def test_status_and_signals_pass_through(self):
        self.assertEqual(self.sh("exit 7").returncode, 7)
        self.assertEqual(self.host.run(["/no/such"]).returncode, 127)
        self.assertEqual(self.sh("kill -SEGV $$").returncode, -signal.SIGSEGV)
        with self.assertRaises(CommandFailed):
            self.sh("echo reason >&2; exit 3", check=True)
        with self.host.popen(SLEEP) as process:
            process.terminate()
            self.assertEqual(process.wait(), -signal.SIGTERM)
        script = "trap 'echo told; exit 4' USR1; echo ready; while :; do read -t 1 _ <> <(:); done"
        with self.host.popen(["/bin/bash", "-c", script], stdout=-1, text=True) as process:
            self.assertEqual(process.stdout.readline(), "ready\n")
            process.send_signal(signal.SIGUSR1)
            self.assertEqual(process.stdout.readline(), "told\n")
            self.assertEqual(process.wait(), 4)

    def test_a_time_out_ends_the_command(self):
        self.assertRaises(subprocess.TimeoutExpired, self.host.run, ["sleep", "601"], timeout=1)
        self.wait_until_gone("sleep 601")

    def wait_until_gone(self, command: str) -> None:
        """Waits, with a limit, for the killed process's end: it may outlive its parent by a moment."""
        script = (
            "import os, select, subprocess, sys\n"
            "found = subprocess.run(['pgrep', '-fx', sys.argv[1]], capture_output=True, text=True)\n"
            "for pid in found.stdout.split():\n"
            "    try: assert select.select([os.pidfd_open(int(pid))], [], [], 10)[0]\n"
            "    except ProcessLookupError: pass\n"
        )
        self.host.run([at.PYTHON, "-c", script, command], check=True)

    def test_environment_is_fresh(self):
        os.environ["VELDLAB_SECRET"] = "x"
        self.addCleanup(os.environ.pop, "VELDLAB_SECRET")
        self.assertNotIn("VELDLAB_SECRET", self.sh("env").stdout)
        self.assertIn("A=b c\n", self.host.run(["env"], env={"A": "b c"}, user="alice").stdout)

    def test_control_groups_are_its_own_and_nft_matches_them(self):
        self.assertEqual(self.sh("grep ^0: /proc/self/cgroup").stdout, "0::/\n")
        self.addCleanup(self.sh, "nft delete table inet labtest; rmdir /sys/fs/cgroup/bypass")
        rules = (
            "table inet labtest {\nchain o {\ntype filter hook output priority 0\n"
            'ip daddr 203.0.113.37 socket cgroupv2 level 1 "bypass" counter accept\n'
            "ip daddr 203.0.113.37 reject\n}\n}\n"
        )
        self.sh("mkdir /sys/fs/cgroup/bypass; nft -f -", input=rules, check=True)
        curl = "curl -s4 --max-time 10 http://www.example.test/"
        self.assertEqual(self.sh(f"echo $$ > /sys/fs/cgroup/bypass/cgroup.procs; exec {curl}").returncode, 0)
        self.assertEqual(self.sh(curl).returncode, 7)

    def test_another_lab_beside_it_has_its_own_groups(self):
        self.sh("mkdir /sys/fs/cgroup/mine", check=True)
        self.addCleanup(self.sh, "rmdir /sys/fs/cgroup/mine")
        other = Lab(consensus=False)
        self.addCleanup(other.down)
        other.up()
        self.assertNotIn("mine", other.host.run(["ls", "/sys/fs/cgroup"]).stdout)

    def test_snapshots_of_an_unchanged_host_are_equal(self):
        before = self.host.snapshot()
        self.assertEqual(snapshot.diff(before, self.host.snapshot()), "")
        for section in ("resolv", "links", "routes", "mounts", "cgroups", "proxy", "files"):
            self.assertTrue(before[section], section)

    def test_snapshots_show_every_kind_of_change(self):
        changes = {
            "nft": ("nft add table inet labsnap", "nft delete table inet labsnap"),
            "resolv": (
                "cp -p /etc/resolv.conf /run/r; echo '#' >> /run/r; mount --bind /run/r /etc/resolv.conf",
                "umount /etc/resolv.conf; rm /run/r",
            ),
            "links": ("ip addr add 192.168.77.77/24 dev eth0", "ip addr del 192.168.77.77/24 dev eth0"),
            "routes": ("ip route add 10.0.0.0/8 via 192.168.77.9", "ip route del 10.0.0.0/8"),
            "mounts": ("mount -t tmpfs x /mnt", "umount /mnt"),
            "cgroups": ("mkdir /sys/fs/cgroup/snap", "rmdir /sys/fs/cgroup/snap"),
            "files": ("touch /etc/sudoers.d/snap", "rm /etc/sudoers.d/snap"),
            "proxy": ("mkdir ~alice/.config; echo [Proxy] > ~alice/.config/kioslaverc", "rm -r ~alice/.config"),
        }
        before = self.host.snapshot()
        for section, (change, undo) in changes.items():
            with self.subTest(section):
                self.sh(change, check=True)
                changed = self.host.snapshot()
                self.sh(undo, check=True)
                self.assertNotEqual(changed[section], before[section])
                self.assertEqual(snapshot.diff(before, self.host.snapshot()), "")

    def test_snapshots_show_processes_and_ports(self):
        before = self.host.snapshot()
        listen = (
            "import socket, sys; t = socket.create_server(('127.0.0.1', 4711)); "
            "u = socket.socket(socket.AF_INET6, socket.SOCK_DGRAM); u.bind(('::', 4712)); "
            "print('y', flush=True); sys.stdin.read()"
        )
        with self.host.popen([at.PYTHON, "-c", listen], user="alice", stdin=-1, stdout=-1, text=True) as process:
            process.stdout.readline()
            changed = self.host.snapshot()
            process.stdin.close()
        self.assertIn(f"tcp [127.0.0.1]:4711 uid {self.host.uid}", changed["listening"])
        self.assertIn(f"udp6 [::]:4712 uid {self.host.uid}", changed["listening"])
        self.assertIn("create_server", snapshot.diff(before, changed))
        self.assertEqual(snapshot.diff(before, self.host.snapshot()), "")

    def test_many_commands_at_once(self):
        results: list[str] = []
        threads = [threading.Thread(target=lambda n=n: results.append(self.sh(f"echo {n}").stdout)) for n in range(20)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(sorted(results, key=int), [f"{n}\n" for n in range(20)])

    def test_captures_see_all_that_leaves_the_host(self):
        send = (
            "import socket; s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); "
            "s.setsockopt(socket.IPPROTO_IP, socket.IP_MULTICAST_TTL, 1); s.sendto(b'x', ('224.0.0.251', 5353)); "
            f"s.sendto(b'y', ('{at.DNS_ADDRESS}', 4444)); "
            f"socket.socket(socket.AF_INET6, socket.SOCK_DGRAM).sendto(b'z', ('{at.DNS_ADDRESS6}', 4445))"
        )
        with self.lab.capture("host") as near, self.lab.capture() as far:
            self.host.run([at.PYTHON, "-c", send], check=True)
            far.wait_for(lambda p: p.dport == 4445)
        seen = {(p.dst, p.dport) for p in near.packets if p.out}
        self.assertLessEqual({("224.0.0.251", 5353), (at.DNS_ADDRESS, 4444), (at.DNS_ADDRESS6, 4445)}, seen)
        passed = {(p.dst, p.dport) for p in far.packets if p.out and p.src in (at.HOST_ADDRESS, at.HOST_ADDRESS6)}
        self.assertEqual(
            passed & {("224.0.0.251", 5353), (at.DNS_ADDRESS, 4444), (at.DNS_ADDRESS6, 4445)},
            {(at.DNS_ADDRESS, 4444), (at.DNS_ADDRESS6, 4445)},
        )

    def test_a_busy_capture_loses_nothing(self):
        """The test compares with the router's own counter after the forwarding, where no packet can be dropped any more."""
        rules = "table inet labcount {\nchain p {\ntype filter hook postrouting priority 300\n" "udp dport 4446 counter\n}\n}\n"
        self.lab.router.run(["nft", "-f", "-"], input=rules, check=True)
        self.addCleanup(self.lab.router.run, ["nft", "delete", "table", "inet", "labcount"])
        flood = (
            "import socket; s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)\n"
            f"for n in range(20000): s.sendto(b'%d' % n, ('{at.DNS_ADDRESS}', 4446))"
        )
        with self.lab.capture() as capture:
            self.host.run([at.PYTHON, "-c", flood], check=True)
        counted = self.lab.router.run(["nft", "list", "table", "inet", "labcount"], check=True).stdout
        sent = int(counted.split("counter packets ")[1].split()[0])
        self.assertGreater(sent, 1000)
        self.assertEqual(sum(p.dport == 4446 for p in capture.packets), sent)

    def test_the_neighbour_is_reached_without_the_world(self):
        with self.lab.capture() as capture:
            self.host.run(["ping", "-c", "1", "-W", "5", at.LAN_ADDRESS], check=True)
            self.lab.lan.run(["ping", "-c", "1", "-W", "5", at.HOST_ADDRESS6], check=True)
        self.assertFalse([p for p in capture.packets if at.LAN_ADDRESS in (p.src, p.dst)])

    def test_registry_is_for_root_only(self):
        record = Path("/run/veldlab", f"{self.lab.id}.json")
        self.assertEqual(json.loads(record.read_text())["id"], self.lab.id)
        self.assertEqual(record.parent.stat().st_mode & 0o777, 0o700)

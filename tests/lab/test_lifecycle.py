"""Self test of a lab's start and end: nothing is left, also after a kill.

Other labs and programs run on the machine at the same time, so "nothing" means: no process whose control group or
command line names this lab, no process in any of its namespaces, no mount, no control group, no record, no named
network namespace, no file. Mounts, links and named namespaces are compared in this test's own namespaces, which show nothing else
of the machine: a medium that a user plugs in is no trace of a lab.
"""

import ctypes
import os
import select
import signal
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from veldlab import registry
from veldlab import topology as at
from veldlab.lab import Lab

HERE = Path(__file__).resolve().parent
# A process that owns a lab: prints the lab's id, then does what its argument says.
OWNER = f"""
import os, sys
sys.dont_write_bytecode = True
sys.path.insert(0, {str(HERE)!r})
from veldlab.lab import Lab
lab = Lab(consensus=False)
with lab:
    lab.host.run(["/bin/sh", "-c", "setsid sleep 600 >/dev/null 2>&1 &"], check=True)
    running = lab.host.popen(["sleep", "600"], user="alice")
    print(lab.id, flush=True)
    sys.stdin.readline()
    exec(sys.argv[1])
"""
CLONE_NEWNS, CLONE_NEWNET = 0x00020000, 0x40000000
KINDS = ("mnt", "net", "pid", "ipc", "uts", "cgroup")


def setUpModule() -> None:
    if os.geteuid() == 0 and ctypes.CDLL(None, use_errno=True).unshare(CLONE_NEWNS | CLONE_NEWNET) != 0:
        raise OSError(ctypes.get_errno(), "namespaces for the comparison")
    if os.geteuid() == 0:
        subprocess.run(["mount", "--make-rprivate", "/"], check=True)
        os.makedirs("/run/netns", exist_ok=True)
        subprocess.run(["mount", "-t", "tmpfs", "named", "/run/netns"], check=True)


def cgroup_folder() -> str:
    for line in Path("/proc/self/mountinfo").read_text().splitlines():
        before, _, after = line.partition(" - ")
        if after.startswith("cgroup2 "):
            return before.split()[4]
    raise unittest.SkipTest("cgroup v2 is not mounted on the machine, so its groups are not visible here")


def live_pids() -> list[int]:
    """The live processes, without zombies that the machine's first process has adopted and reaps later."""
    found = []
    for name in filter(str.isdigit, os.listdir("/proc")):
        try:
            state, parent = Path("/proc", name, "stat").read_text().rpartition(")")[2].split()[:2]
        except OSError:
            continue
        if (state, parent) != ("Z", "1"):
            found.append(int(name))
    return found


def processes_of(lab_id: str) -> set[int]:
    found = set()
    for pid in live_pids():
        try:
            text = Path(f"/proc/{pid}/cgroup").read_text() + Path(f"/proc/{pid}/cmdline").read_text(errors="replace")
        except OSError:
            continue
        if lab_id in text and pid != os.getpid():
            found.add(pid)
    return found


def namespaces_of(pids) -> set[str]:
    found = set()
    for pid in pids:
        for kind in KINDS:
            try:
                found.add(os.readlink(f"/proc/{pid}/ns/{kind}"))
            except OSError:
                continue
    return found


def machine_state() -> dict[str, object]:
    """The state that a lab must not change, without what other programs change all the time."""
    return {
        "netns": subprocess.run(["ip", "netns"], capture_output=True, text=True).stdout,
        "mounts": [line.split(maxsplit=4)[4] for line in Path("/proc/self/mountinfo").read_text().splitlines()],
        "links": sorted(os.listdir("/sys/class/net")),
        "files": sorted(
            str(p)
            for folder in ("/tmp", "/run", "/var/tmp", "/home", "/root", "/etc", "/var/lib")
            for p in Path(folder).glob("*veldlab-[!t]*")
        ),
        "accounts": [line for line in Path("/etc/passwd").read_text().splitlines() if line.startswith(("alice:", "_veldmark:"))],
        "resolver": "veldmark" in Path("/etc/resolv.conf").read_text().lower(),
    }


class Traces:
    """Everything that would show a running lab afterwards.

    It holds the lab's namespaces open meanwhile, since the kernel gives the number of an ended namespace to the next one.
    """

    def __init__(self, test: unittest.TestCase, lab_id: str):
        self.test, self.id = test, lab_id
        self.pids = processes_of(lab_id)
        self.record = next(r for r in registry.records() if r["id"] == lab_id)
        self.processes = [fd for fd in map(self.open_process, self.pids) if fd is not None]
        own = namespaces_of([os.getpid()])
        self.namespaces: dict[str, int] = {}
        for pid in self.pids:
            for kind in KINDS:
                try:
                    fd = os.open(f"/proc/{pid}/ns/{kind}", os.O_RDONLY)
                except OSError:
                    continue
                name = os.readlink(f"/proc/self/fd/{fd}")
                if name in own or name in self.namespaces:
                    os.close(fd)
                else:
                    self.namespaces[name] = fd
        test.addCleanup(self.close)

    @staticmethod
    def open_process(pid: int) -> int | None:
        try:
            return os.pidfd_open(pid)
        except ProcessLookupError:
            return None

    def close(self) -> None:
        for fd in [*self.processes, *self.namespaces.values()]:
            os.close(fd)

    def wait_for_processes(self) -> None:
        for fd in self.processes:
            self.test.assertTrue(select.select([fd], [], [], 20)[0], "a process of the lab does not end")

    def check_nothing_left(self, swept: bool = True) -> None:
        self.test.assertEqual(processes_of(self.id), set())
        self.test.assertEqual(namespaces_of(live_pids()) & self.namespaces.keys(), set())
        if swept:
            self.test.assertFalse(os.path.exists(f"{cgroup_folder()}/{self.record['cgroup']}"))
            self.test.assertNotIn(self.id, [record["id"] for record in registry.records()])


class LifecycleTest(unittest.TestCase):
    def setUp(self):
        self.before = machine_state()

    def test_what_others_mount_is_no_trace_and_a_mount_here_is_one(self):
        self.assertNotEqual(os.stat("/proc/self/ns/mnt").st_ino, os.stat(f"/proc/{os.getppid()}/ns/mnt").st_ino)
        self.assertNotEqual(os.stat("/proc/self/ns/net").st_ino, os.stat(f"/proc/{os.getppid()}/ns/net").st_ino)
        with tempfile.TemporaryDirectory(prefix="veldmark-medium-") as place:
            # Mounts in the parent's namespace, like the machine's first process.
            elsewhere = subprocess.run(
                ["nsenter", "--target", str(os.getppid()), "--mount", "mount", "-t", "tmpfs", "medium", place], check=False
            )
            self.assertEqual(elsewhere.returncode, 0)
            self.check_machine()
            subprocess.run(["nsenter", "--target", str(os.getppid()), "--mount", "umount", place], check=True)
            subprocess.run(["mount", "-t", "tmpfs", "left-over", place], check=True)
            self.assertNotEqual(machine_state(), self.before)
            subprocess.run(["umount", place], check=True)
        self.check_machine()

    def owner(self, after: str = "pass") -> tuple[subprocess.Popen, Traces]:
        process = subprocess.Popen(
            [at.PYTHON, "-c", OWNER, after], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True
        )
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        lab_id = process.stdout.readline().strip()
        self.assertTrue(lab_id)
        traces = Traces(self, lab_id)
        self.assertGreater(len(traces.pids), len(at.NODES))
        self.assertGreaterEqual(len(traces.namespaces), 9)  # networks of the world and host, process tables, mounts ...
        self.assertTrue(os.path.isdir(f"{cgroup_folder()}/{traces.record['cgroup']}"))
        return process, traces

    def check_machine(self):
        self.assertEqual(machine_state(), self.before)

    def test_ordinary_end_leaves_nothing_at_once(self):
        process, traces = self.owner()
        process.communicate("go\n")
        self.assertEqual(process.returncode, 0)
        traces.check_nothing_left()
        self.check_machine()

    def test_exception_leaves_nothing_at_once(self):
        process, traces = self.owner("raise ValueError('on purpose')")
        _, errors = process.communicate("go\n")
        self.assertIn("on purpose", errors)
        traces.check_nothing_left()
        self.check_machine()

    def test_interrupt_leaves_nothing_at_once(self):
        process, traces = self.owner()
        process.send_signal(signal.SIGINT)
        process.wait()
        traces.check_nothing_left()
        self.check_machine()

    def test_killed_owner_leaves_nothing(self):
        for number in (signal.SIGKILL, signal.SIGTERM):
            with self.subTest(number):
                process, traces = self.owner()
                process.send_signal(number)
                process.wait()
                traces.wait_for_processes()
                traces.check_nothing_left()
        self.check_machine()

    def test_killed_supervisor_leaves_what_the_next_start_sweeps(self):
        process, traces = self.owner()
        os.kill(traces.record["supervisor"], signal.SIGKILL)
        process.communicate("go\n")
        traces.wait_for_processes()
        traces.check_nothing_left(swept=False)
        with Lab(consensus=False) as lab:
            self.assertNotIn(traces.id, [record["id"] for record in registry.records()])
            self.assertIn(lab.id, [record["id"] for record in registry.records()])
        traces.check_nothing_left()
        self.check_machine()

    def test_killed_with_its_supervisor_at_once(self):
        process, traces = self.owner()
        os.kill(traces.record["supervisor"], signal.SIGSTOP)
        process.kill()
        os.kill(traces.record["supervisor"], signal.SIGKILL)
        process.wait()
        traces.wait_for_processes()
        traces.check_nothing_left(swept=False)
        with Lab(consensus=False):
            pass
        traces.check_nothing_left()
        self.check_machine()

    def test_failed_start_leaves_nothing(self):
        lab = Lab(consensus=False)
        lab._step = self.fail_after_nodes(lab, lab._step)
        self.assertRaisesRegex(RuntimeError, "on purpose", lab.up)
        self.traces.check_nothing_left()
        self.assertRaisesRegex(RuntimeError, "share|No such file", Lab(share=["/no/such/folder"]).up)
        self.check_machine()

    def fail_after_nodes(self, lab, step):
        def failing(name, action):
            result = step(name, action)
            if name == "nodes":
                self.traces = Traces(self, lab.id)
                raise RuntimeError("on purpose")
            return result

        return failing

    def test_two_labs_at_once_do_not_meet(self):
        with Lab(consensus=False) as one, Lab(consensus=False) as two:
            print("two at once:", one.timings["total"], two.timings["total"], file=sys.stderr)
            one.world.behave("check", "status-503")
            ask = ["curl", "-s4", "-o", "/dev/null", "-w", "%{http_code}", at.CHECK_URL]
            self.assertEqual(one.host.run(ask).stdout, "503")
            self.assertEqual(two.host.run(ask).stdout, "200")
            self.assertEqual((len(one.world.web_log()), len(two.world.web_log())), (1, 1))
            first, second = Traces(self, one.id), Traces(self, two.id)
            self.assertFalse(first.pids & second.pids)
            self.assertFalse(first.namespaces.keys() & second.namespaces.keys())
            one.down()
            first.check_nothing_left()
            self.assertEqual(two.host.run(ask).stdout, "200")
        second.check_nothing_left()
        self.check_machine()

    def test_without_root_it_says_what_to_do(self):
        done = subprocess.run(
            ["setpriv", "--reuid", "65534", "--clear-groups", at.PYTHON, str(HERE / "lab.py"), "check"],
            capture_output=True,
            text=True,
            cwd="/",
        )
        self.assertEqual(done.returncode, 77, done.stderr)
        self.assertEqual(done.stdout.count("\n"), 1)
        self.assertIn("run with sudo", done.stdout)

    def test_refused_namespaces_are_a_skip(self):
        done = subprocess.run(
            ["setpriv", "--bounding-set", "-sys_admin", at.PYTHON, str(HERE / "lab.py"), "run", "--", "true"],
            capture_output=True,
            text=True,
        )
        self.assertEqual(done.returncode, 77, done.stderr)
        self.assertEqual(done.stderr.count("\n"), 1)

    def test_command_line_gives_the_commands_status(self):
        done = subprocess.run(
            [
                at.PYTHON,
                str(HERE / "lab.py"),
                "run",
                "--user",
                "alice",
                "--env",
                "A=1",
                "--",
                "sh",
                "-c",
                'test "$A" = 1 && test "$(id -un)" = alice && exit 9',
            ],
            capture_output=True,
            text=True,
        )
        self.assertEqual(done.returncode, 9, done.stderr)
        self.check_machine()

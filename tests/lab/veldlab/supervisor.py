"""The process that runs one lab and ends it, also when the owner is killed.

    owner (a test, or lab.py)
      '- supervisor            own session, own mount namespace; watches the owner through a pidfd
           '- lab init         process 1 of the lab's pid namespace; all of the lab's mounts are private to it
                |- tor, DNS, web server ...   in the network namespaces world, router, lan
                '- host init   process 1 of the host's own pid namespace, private /etc, /run ...: host_init.py

Nothing of a lab is on the machine except its processes, one control group and one registry record. The supervisor
removes these three when the owner asks (SIGTERM), when the owner ends in any way, and when the lab init ends. Should
the supervisor itself be killed, the kernel kills the lab init (parent death signal) and with it every process, mount
and network namespace; the next start then sweeps the empty control group and the record.

Started as `supervisor.py ID OWNER_PID OPTIONS_JSON`. Answers one JSON line on standard output: {"ready": true, ...} or
{"error": TEXT}.
"""

import json
import os
import select
import signal
import socket
import subprocess
import sys
import traceback
from pathlib import Path

if __name__ == "__main__":
    sys.path.insert(0, str(Path(__file__).resolve().parent.parent))

from veldlab import host_init, kernel, namespaces, registry, topology  # noqa: E402

CGROUPS = "/sys/fs/cgroup"


def show_cgroup2() -> None:
    """Puts the cgroup v2 tree at /sys/fs/cgroup of this mount namespace.

    An existing mount is bound there; a second mount from the first cgroup namespace would change the options of all.
    """
    for line in Path("/proc/self/mountinfo").read_text().splitlines():
        before, _, after = line.partition(" - ")
        root, mount_point = before.split()[3:5]
        if after.split()[0] == "cgroup2" and root == "/":
            if mount_point != CGROUPS:
                kernel.mount(mount_point, CGROUPS, flags=kernel.MS_BIND)
            return
    kernel.mount("cgroup2", CGROUPS, "cgroup2")


def reap_for_ever() -> None:
    """Reaps orphans, as process 1 of a pid namespace must. Ends only when it is killed."""
    signal.pthread_sigmask(signal.SIG_BLOCK, [signal.SIGCHLD])
    while True:
        try:
            while os.waitpid(-1, os.WNOHANG)[0]:
                pass
        except ChildProcessError:
            pass
        signal.sigwait([signal.SIGCHLD])


def say_ready(channel: socket.socket, what: str) -> None:
    """Sends a word whose credentials tell the receiver this process's id as the receiver sees it."""
    channel.sendall(what.encode())
    channel.close()


def lab_init(cgroup: str, options: dict, go: int, channel: socket.socket) -> None:
    kernel.die_with_parent(signal.SIGKILL)
    go_given = os.read(go, 1) == b"g"
    watch = select.poll()
    watch.register(go, 0)
    if not go_given or watch.poll(0):
        os._exit(1)  # the supervisor, which keeps the other end open, died before the first line took effect
    os.close(go)
    kernel.set_process_name("veldlab-init")
    kernel.unshare(kernel.CLONE_NEWNS | kernel.CLONE_NEWNET | kernel.CLONE_NEWIPC | kernel.CLONE_NEWUTS)
    kernel.make_mounts_private()
    kernel.mount("proc", "/proc", "proc", kernel.MS_NOSUID | kernel.MS_NODEV | kernel.MS_NOEXEC)
    kernel.mount("veldlab", "/run", "tmpfs", kernel.MS_NOSUID | kernel.MS_NODEV, "mode=755,size=2g")
    for folder in (topology.LAB_FOLDER, topology.TOR_FOLDER, topology.WORLD_FOLDER, "/run/netns"):
        os.makedirs(folder)
    kernel.set_host_name("veldlab-world")
    namespaces.create()
    host_channel = channel.dup()
    if os.fork() == 0:
        start_host_init(cgroup, options, host_channel)
        os._exit(0)
    host_channel.close()
    say_ready(channel, "lab")
    reap_for_ever()


def start_host_init(cgroup: str, options: dict, channel: socket.socket) -> None:
    """Forks the host's process 1, in the host's control group and network."""
    Path(CGROUPS, cgroup, "host", "cgroup.procs").write_text("0")
    namespaces.enter("host")
    kernel.unshare(kernel.CLONE_NEWCGROUP | kernel.CLONE_NEWPID)
    if os.fork() == 0:
        try:
            host_init.prepare(options)
        except BaseException as error:
            channel.sendall(f"error {type(error).__name__}: {error}".encode())
            os._exit(1)
        say_ready(channel, "host")
        reap_for_ever()


def receive_ready(channel: socket.socket) -> tuple[str, int]:
    """Receives one word of `say_ready`, and its sender's process id as this process sees it."""
    data, ancillary, _, _ = channel.recvmsg(4096, socket.CMSG_SPACE(12))
    word = data.decode()
    if not word or word.startswith("error "):
        raise RuntimeError(word.removeprefix("error ") or "the lab's first process ended early")
    for level, kind, payload in ancillary:
        if level == socket.SOL_SOCKET and kind == socket.SCM_CREDENTIALS:
            return word, int.from_bytes(payload[:4], sys.byteorder)
    raise RuntimeError("the kernel gave no credentials")


class Supervisor:
    def __init__(self, lab_id: str, owner: int, options: dict):
        self.owner_fd = os.pidfd_open(owner)
        if os.getppid() != owner:
            raise SystemExit("the owner has ended already")
        self.options = options
        self.record = {
            "id": lab_id,
            "owner": owner,
            "supervisor": os.getpid(),
            "supervisor_started": registry.process_start_time(os.getpid()),
            "cgroup": f"veldlab-{lab_id}",
        }
        self.init = 0
        self.wake_read, wake_write = os.pipe2(os.O_NONBLOCK | os.O_CLOEXEC)
        signal.set_wakeup_fd(wake_write)
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            signal.signal(number, lambda *_: None)

    def start(self) -> None:
        kernel.unshare(kernel.CLONE_NEWNS)
        kernel.make_mounts_private()
        show_cgroup2()
        registry.sweep()
        registry.write(self.record)
        cgroup = self.record["cgroup"]
        for folder in (cgroup, f"{cgroup}/world", f"{cgroup}/host"):
            os.mkdir(f"{CGROUPS}/{folder}")
        ours, theirs = socket.socketpair(socket.AF_UNIX, socket.SOCK_SEQPACKET)
        ours.setsockopt(socket.SOL_SOCKET, socket.SO_PASSCRED, 1)
        go_read, go_write = os.pipe()
        kernel.unshare(kernel.CLONE_NEWPID)
        self.init = os.fork()
        if self.init == 0:
            self.become_lab_init(go_read, go_write, ours, theirs)
        theirs.close()
        os.close(go_read)
        Path(CGROUPS, cgroup, "world", "cgroup.procs").write_text(str(self.init))
        os.write(go_write, b"g")
        pids = dict(self.next_ready(ours) for _ in range(2))
        self.record |= {"init": pids["lab"], "host_init": pids["host"], "ready": True}
        registry.write(self.record)

    def next_ready(self, channel: socket.socket) -> tuple[str, int]:
        poller = select.poll()
        for fd in (channel.fileno(), self.owner_fd, self.wake_read):
            poller.register(fd, select.POLLIN)
        if any(fd != channel.fileno() for fd, _ in poller.poll()):
            raise RuntimeError("stopped by its owner while starting")
        return receive_ready(channel)

    def become_lab_init(self, go_read: int, go_write: int, ours: socket.socket, theirs: socket.socket) -> None:
        try:
            signal.set_wakeup_fd(-1)
            for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
                signal.signal(number, signal.SIG_DFL)
            os.close(go_write)
            os.close(self.owner_fd)
            ours.close()
            output = os.open("/dev/null", os.O_RDWR)
            os.dup2(output, 1)
            lab_init(self.record["cgroup"], self.options, go_read, theirs)
        except BaseException as error:
            text = str(error)
            if isinstance(error, subprocess.CalledProcessError):
                text += f": {error.stderr}"
            theirs.sendall(f"error {type(error).__name__}: {text}"[:4000].encode())
        finally:
            os._exit(1)

    def wait_for_the_end(self) -> None:
        init_fd = os.pidfd_open(self.init)
        poller = select.poll()
        for fd in (self.owner_fd, init_fd, self.wake_read):
            poller.register(fd, select.POLLIN)
        while True:
            if poller.poll():
                return

    def stop(self) -> None:
        if self.init:
            os.kill(self.init, signal.SIGKILL)
            os.waitpid(self.init, 0)  # returns when every process of the pid namespace is gone
        registry.remove_cgroup(f"{CGROUPS}/{self.record['cgroup']}")
        registry.remove(self.record["id"])


def main() -> int:
    lab_id, owner, options = sys.argv[1], int(sys.argv[2]), json.loads(sys.argv[3])
    os.setsid()
    os.chdir("/")
    kernel.set_process_name("veldlab-super")
    supervisor = Supervisor(lab_id, owner, options)
    status = 0
    try:
        supervisor.start()
        print(json.dumps(supervisor.record), flush=True)
        supervisor.wait_for_the_end()
    except Exception as error:
        status = 1
        if os.environ.get("VELDLAB_TRACE"):
            traceback.print_exc()
        try:
            print(json.dumps({"error": f"{type(error).__name__}: {error}"}), flush=True)
        except BrokenPipeError:
            pass
    finally:
        supervisor.stop()
    return status


if __name__ == "__main__":
    sys.exit(main())

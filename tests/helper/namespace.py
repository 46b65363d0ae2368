"""A private machine for tests of the root helper.

Machine is a set of namespaces (network, mounts, processes) in which the helper can make its changes. /etc, /usr/local, /opt and
/media are overlays. /run, /var/lib and /home are empty and in memory. The control groups are its own. Tor has `DisableNetwork 1`
from /etc/tor/torrc-defaults, and no list of countries, whose 25 MB take nine tenths of Tor's start. Without a Peer the loopback
device is the only network device. Nothing of the machine is visible outside, and it goes when the process that made it ends.

Exit status 77 (skipped) with one line when the system does not permit namespaces; 1 with one line in a checkout that a machine would hide.
"""

import atexit
import os
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
PARTS = os.path.join(HERE, "..", "..", "resources", "helper")
HASH = "16:" + "0123456789ABCDEF" * 3 + "0123456789"
TOR = "/usr/bin/tor"
USER_UID = 4242
OTHER_UID = 4243  # bob's
DNS_PORT = 293
TOR_GROUP = "/sys/fs/cgroup/veldmark/tor"  # the rules recognise Tor by this group and Tor's account
# The beginning of a program that stands in for Tor at its DNS port. It is started with group=TOR_GROUP.
AS_TOR = ("setpriv", "--reuid=_veldmark", "--clear-groups", "--inh-caps=+net_bind_service", "--ambient-caps=+net_bind_service")
INSTALLED = "/usr/local/libexec/veldmark/veldmark-helper.sh"

# Reaps the orphans of the process namespace, and ends with the test.
INIT = (
    "import ctypes, os, signal; ctypes.CDLL(None).prctl(1, 9); signal.signal(signal.SIGCHLD, signal.SIG_IGN);"
    "os.write(1, b'ready')\nwhile True: signal.pause()"
)

SETUP = """
set -eu
mount -t proc proc /proc
ip link set lo up
mount -t tmpfs -o mode=755 private /mnt
for place in etc usr/local opt media; do
  [ -d "/$place" ] || continue
  name=$(echo "$place" | tr / -)
  mkdir -p "/mnt/$name/upper" "/mnt/$name/work"
  mount -t overlay -o "lowerdir=/$place,upperdir=/mnt/$name/upper,workdir=/mnt/$name/work" private "/$place"
done
umount --lazy --recursive /sys/fs/cgroup
mkdir -p /sys/fs/cgroup 2>/dev/null || true
mount -t cgroup2 private /sys/fs/cgroup
for place in /run /var/lib /home; do mount -t tmpfs -o mode=755 private "$place"; done
mkdir -p /etc/tor /etc/sudoers.d
printf '%%s\\n' 'DisableNetwork 1' 'GeoIPFile /dev/null' 'GeoIPv6File /dev/null' >/etc/tor/torrc-defaults
echo 'nameserver 192.0.2.53' >/etc/resolv.conf
echo 'alice:x:%(uid)s:%(uid)s::/home/alice:/bin/bash' >>/etc/passwd
echo 'alice:x:%(uid)s:' >>/etc/group
echo 'alice:*:19000:0:99999:7:::' >>/etc/shadow
echo 'bob:x:%(other)s:%(other)s::/home/bob:/bin/bash' >>/etc/passwd
echo 'bob:x:%(other)s:' >>/etc/group
echo 'bob:*:19000:0:99999:7:::' >>/etc/shadow
install -d -o %(other)s -g %(other)s -m 0700 /home/bob
install -d -o %(uid)s -g %(uid)s -m 0700 /home/alice /run/user/%(uid)s
mkdir -p /run/sudo
""" % {
    "uid": USER_UID,
    "other": OTHER_UID,
}


# What a machine hides, and /tmp, from below which the helper runs no program.
HIDDEN = ("/tmp", "/run", "/var/lib", "/home")


def require_open_place():
    """Ends the test program with one line where the files that it needs cannot be seen in a machine."""
    for path in HERE, os.environ.get("VELDMARK_HELPER", HERE):
        for folder in HIDDEN:
            if f"{folder}/" in (os.path.abspath(path)[: len(folder) + 1], os.path.realpath(path)[: len(folder) + 1]):
                print(
                    f"The machines of these tests hide {folder}, and {path} is there: move the checkout to a folder such as /srv."
                )
                sys.exit(1)


def require_namespaces():
    """Ends the test program with status 77 where it cannot run."""
    require_open_place()
    if os.geteuid() == 0:
        probe = subprocess.run(["unshare", "--net", "--mount", "--pid", "--fork", "true"], capture_output=True, check=False)
        if probe.returncode == 0:
            return
    print("Network namespaces need root and a system that permits them: run this test with sudo.")
    sys.exit(77)


def helper_path(system="linux"):
    """The helper under test: VELDMARK_HELPER, or joined from its parts into a folder of this run."""
    given = os.environ.get("VELDMARK_HELPER")
    if given and system == "linux":
        return os.path.abspath(given)
    folder = tempfile.TemporaryDirectory(prefix="veldmark-helper-")
    atexit.register(folder.cleanup)
    os.chmod(folder.name, 0o755)
    path = os.path.join(folder.name, "veldmark-helper.sh")
    subprocess.run([os.path.join(PARTS, "join.sh"), system, path], check=True)
    return path


def make_control_group():
    """Makes a group of this run's own in the machine's cgroup v2 tree, and returns its folder."""
    with open("/proc/self/mountinfo", encoding="ascii") as mounts:
        trees = [line.split()[4] for line in mounts if line.split(" - ")[1].startswith("cgroup2 ") and line.split()[3] == "/"]
    if not trees:
        print("The helper's tests need control groups of version 2.")
        sys.exit(77)
    return tempfile.mkdtemp(prefix=f"veldmark-test-{os.getpid()}-", dir=trees[0])


# Removes the group FOLDER once the process that made it has ended or closed the pipe, and the group's last process has ended. It
# has a session of its own, so it outlives a kill of the whole test.
SWEEPER = """
import os, sys, time
sys.stdin.read()
deadline = time.monotonic() + 20
while os.path.isdir(sys.argv[1]) and time.monotonic() < deadline:
    for folder, _, _ in os.walk(sys.argv[1], topdown=False):
        try:
            os.rmdir(folder)
        except OSError:
            time.sleep(0.01)
sys.exit(os.path.isdir(sys.argv[1]))
"""


class Machine:
    """Use with `with`. run() and start() execute in it as root, or as another user by their `uid`."""

    SYSTEM = "linux"
    SETUP = SETUP  # the script that sets the machine up in the new namespaces

    def __init__(self):
        self.helper = helper_path(self.SYSTEM)
        self.group = make_control_group()
        self.sweeper = subprocess.Popen(
            ["/usr/bin/python3", "-I", "-c", SWEEPER, self.group],
            stdin=subprocess.PIPE,
            start_new_session=True,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        self.init = subprocess.Popen(
            [
                *self.in_group(),
                "setpriv",
                "--pdeathsig",
                "KILL",  # ends with the test, also when the test is killed
                "unshare",
                "--cgroup",
                "--net",
                "--mount",
                "--propagation",
                "private",
                "--pid",
                "--fork",
                "--kill-child",
                "/bin/bash",
                "-c",
                self.SETUP + 'exec /usr/bin/python3 -c "$1"',
                "setup",
                INIT,
            ],
            stdout=subprocess.PIPE,
        )
        if self.init.stdout.read(5) != b"ready":
            raise RuntimeError("the private machine could not be set up")
        self.init.stdout.close()
        with open(f"/proc/{self.init.pid}/task/{self.init.pid}/children", encoding="ascii") as children:
            self.pid = int(children.read().split()[0])
        self.accounts_made = False

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self.init.kill()  # the machine's first process is its child and dies with it
        self.init.wait()
        self.sweeper.communicate()
        if self.sweeper.returncode != 0:
            raise RuntimeError(f"a process is left in {self.group}")

    def in_group(self):
        """The words before a command that make it run in the machine's control group."""
        return ["/bin/sh", "-c", 'echo 0 >"$0/cgroup.procs" && exec "$@"', self.group]

    def command(self, words, uid=0, group=None):
        """With `group` the command enters that control group, if it exists."""
        inside = [*self.in_group(), "nsenter", "--target", str(self.pid), "--cgroup", "--net", "--mount", "--pid", "--wd=/"]
        if group:
            inside += ["/bin/sh", "-c", '[ ! -d "$0" ] || echo 0 >"$0/cgroup.procs"; exec "$@"', group]
        if uid:
            inside += ["setpriv", f"--reuid={uid}", f"--regid={uid}", "--clear-groups"]
        return inside + list(words)

    def run(self, *words, uid=0, group=None, check=True, stdin=None, env=None, timeout=60):
        done = subprocess.run(
            self.command(words, uid, **({"group": group} if group else {})),
            capture_output=True,
            text=True,
            input=stdin,
            check=False,
            timeout=timeout,
            env=env if env is not None else {"PATH": os.environ["PATH"]},
            errors="surrogateescape",
            **({"stdin": subprocess.DEVNULL} if stdin is None else {}),
        )
        if check and done.returncode != 0:
            raise AssertionError(f"{words}: status {done.returncode}: {done.stdout}{done.stderr}")
        return done

    def start(self, *words, uid=0, group=None, **options):
        return subprocess.Popen(self.command(words, uid, **({"group": group} if group else {})), **options)

    def hold(self, lock):
        """Takes a lock of the helper's; the process that has it gives it back when it is told a line."""
        holder = self.start(
            "flock", lock, "/bin/sh", "-c", "echo held; read word", stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        )
        if holder.stdout.readline() != "held\n":
            raise AssertionError(f"{lock} cannot be taken")
        return holder

    def shell(self, script, *arguments, **options):
        return self.run("/bin/bash", "-c", script, "shell", *arguments, **options).stdout

    def shell_run(self, script, *arguments, **options):
        """Runs a script like shell(); the script may fail."""
        return self.run("/bin/bash", "-c", script, "shell", *arguments, check=False, **options)

    def help(self, *arguments, **options):
        """Runs the helper as the administrator prompt does."""
        return self.run("/bin/bash", self.helper, *arguments, **options)

    def install_copy(self):
        """Installs the copy of the helper that the passwordless rule names."""
        self.shell('install -D -m 0755 "$1" "$2"', self.helper, INSTALLED)

    def help_by_rule(self, *arguments, uid=USER_UID, **options):
        """Runs the installed copy as sudo does by the rule."""
        return self.run("/bin/bash", INSTALLED, *arguments, env={"PATH": os.environ["PATH"], "SUDO_UID": str(uid)}, **options)

    def approve(self, path, role="tor", **options):
        """Approves a program, as the prompt that names it does."""
        read = "import hashlib, sys; print(hashlib.sha256(open(sys.argv[1], 'rb').read()).hexdigest())"  # a Mac has no sha256sum
        digest = self.run("/usr/bin/python3", "-c", read, path).stdout.strip()
        return self.help("approve", "--program", path, "--as", role, "--sha256", digest, **options)

    def connect(self, strict=1, lan=0, more=(), **options):
        return self.help("connect", "--tor", TOR, "--hash", HASH, "--strict", str(strict), "--lan", str(lan), *more, **options)

    def ready_account(self):
        """Makes Tor's account, so that a snapshot before the first connect contains it."""
        if not self.accounts_made:
            self.connect()
            self.help("disconnect")
            self.accounts_made = True

    def give_ethtool(self):
        """Installs a stand-in where ethtool is missing."""
        if not self.shell("command -v ethtool || true"):
            self.shell(
                "mkdir -p /mnt/sbin/upper /mnt/sbin/work; mount -t overlay -o lowerdir=/usr/sbin,upperdir=/mnt/sbin/upper,workdir=/mnt/sbin/work private /usr/sbin"
            )
            program, source = f"/proc/{self.pid}/root/usr/sbin/ethtool", os.path.join(HERE, "ethtool.c")
            subprocess.run(["cc", "-O1", "-static", "-Wall", "-Wextra", "-Werror", "-o", program, source], check=True)

    def tor_pids(self):
        """The processes of Tor's account but the filter before Tor's control port, which is there where the helper's folder is root's."""
        lines = self.run("ps", "-o", "pid=,comm=", "-u", "_veldmark", check=False).stdout.splitlines()
        return sorted(pid for pid, name, *_ in map(str.split, lines) if name != "veldmark-contro")

    def await_watcher(self):
        """Waits until the watcher listens. The helper starts it without waiting."""
        self.shell('for kind in tables chains rules; do until pgrep -xf "nft monitor $kind" >/dev/null; do sleep 0.01; done; done')

    def watchers(self):
        """The watchers' process ids. A child that a watcher is starting has the watcher's name as well, and is in its session."""
        lines = [line.split(None, 2) for line in self.shell("ps -eo pid=,sid=,args=").splitlines()]
        return [
            int(pid)
            for pid, session, words in lines
            if pid == session and words.startswith("/bin/bash -p -- ") and words.endswith("/watcher.sh")
        ]

    def end_watcher(self):
        """Ends the watcher, as a restart of the computer does."""
        self.shell("kill -9 $(pgrep -f /watcher[.]sh); while pgrep -f '/watcher[.]sh|nft [m]onitor' || pgrep -x nft; do :; done")

    def processes(self):
        """The sorted command lines of the machine's processes, without zombies and without the watcher's short-lived looks at the
        rules and ports."""

        def words(pid):
            with open(f"/proc/{pid}/cmdline", "rb") as file:
                return file.read().replace(b"\0", b" ").decode(errors="replace")

        def is_look(pid, line):
            """Whether this is a shell that the watcher has started and that has not become another program."""
            with open(f"/proc/{pid}/stat", encoding="utf-8", errors="replace") as file:
                parent = file.read().rsplit(")", 1)[1].split()[1]
            return line.endswith("/watcher.sh ") and words(parent) == line

        own = os.readlink(f"/proc/{self.pid}/ns/net")
        lines = []
        for pid in filter(str.isdigit, os.listdir("/proc")):
            try:
                if os.readlink(f"/proc/{pid}/ns/net") != own:
                    continue
                line = words(pid)
                if (
                    line
                    and not is_look(pid, line)
                    and not line.startswith(
                        (
                            "nft -s -t list table ",
                            "grep -hE : ",
                            "timeout 1 ss -H ",
                            "ss -H ",
                            "unshare --mount --propagation private sh -c mount ",
                            "sh -c mount -t tmpfs none /sys/fs/cgroup ",
                            "setpriv --pdeathsig KILL unshare ",
                            "unshare --mount --propagation private sh -c [ ",
                            'sh -c [ "$PPID" ',
                            "flock -w 10 7 ",
                        )
                    )
                ):
                    lines.append(line.replace("\n", " ") + "\n")
            except OSError:
                pass
        return sorted(lines)

    def snapshot(self):
        """The state that a session may change, as text: rules, resolver, mounts, processes, ports and the user's files. A kill test
        takes one for each point. So what can be read or sorted here starts no program in the machine."""
        with open(f"/proc/{self.pid}/mountinfo", encoding="utf-8", errors="surrogateescape") as file:
            mounts = [line.split(" ", 3)[3] for line in file]
        groups = [folder[len(self.group) :] + "\n" for folder, _, _ in os.walk(self.group)]
        said = self.shell(
            r"""
            part() { printf '\36%s\n' "$1"; }
            part rules;     nft list ruleset
            part resolver;  stat -L -c '%F %a %u %g %s' /etc/resolv.conf; cat /etc/resolv.conf; [ ! -L /etc/resolv.conf ] || readlink /etc/resolv.conf
            part loopback;  ! command -v ethtool >/dev/null || ethtool -k lo
            part ports;     ss -Hltun
            part etc;       find /etc /usr/local -newer /run/user -type f ! -path /etc/resolv.conf -exec md5sum {} + 2>/dev/null
            part home;      find /home -printf '%p %y %m %U %l\n' -type f -exec md5sum {} +
            part session;   find /var/lib/veldmark/state /var/lib/veldmark/journal -mindepth 1 2>/dev/null || true
        """
        )
        parts = dict(part.split("\n", 1) for part in said.split("\36")[1:])
        lines = {name: text.splitlines(True) for name, text in parts.items()}
        lines["loopback"] = [line for line in lines["loopback"] if line.startswith("tx-udp-segmentation")]
        lines["ports"] = [" ".join([*line.split()[:1], *line.split()[4:5]]) + "\n" for line in lines["ports"]]
        lines.update(mounts=mounts, groups=groups)
        return "".join(
            [
                "# processes\n",
                *self.processes(),
                *("# rules\n", parts["rules"], "# resolver\n", parts["resolver"]),
                *(
                    f"# {name}\n" + "".join(sorted(lines[name]))
                    for name in ("mounts", "loopback", "groups", "ports", "etc", "home", "session")
                ),
            ]
        )


class Peer:
    """Another network namespace at the other end of a link to the machine: device `near` in the machine, `far` here."""

    def __init__(self, machine, near="veth0", far="veth1"):
        self.init = subprocess.Popen(["unshare", "--net", "/usr/bin/python3", "-c", INIT], stdout=subprocess.PIPE)
        if self.init.stdout.read(5) != b"ready":
            raise RuntimeError("the peer could not be set up")
        self.init.stdout.close()
        subprocess.run(
            [
                "nsenter",
                "--target",
                str(machine.pid),
                "--net",
                "ip",
                "link",
                "add",
                near,
                "type",
                "veth",
                "peer",
                "name",
                far,
                "netns",
                str(self.init.pid),
            ],
            check=True,
        )

    def command(self, words):
        return ["nsenter", "--target", str(self.init.pid), "--net", *words]

    def run(self, *words):
        return subprocess.run(self.command(words), capture_output=True, text=True, check=True).stdout

    def close(self):
        self.init.kill()
        self.init.wait()


class HelperTest(unittest.TestCase):
    """Tests on one fresh machine per class."""

    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.machine = Machine()
        cls.machine.ready_account()

    @classmethod
    def tearDownClass(cls):
        cls.machine.close()

    def assertOneLine(self, done, words=""):
        """Checks that a failed run prints one sentence and nothing else."""
        self.assertNotEqual(done.returncode, 0)
        self.assertRegex(done.stderr, r"\AERROR: [A-Z][^\n]*\.\n\Z")
        self.assertIn(words, done.stderr)
        self.assertEqual(done.stdout, "")


def main():
    require_namespaces()
    unittest.main()

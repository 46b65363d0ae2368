"""Applications without Tor: their user, group and environment, and which calls the helper refuses."""

import json
import os
import sys

import namespace
from namespace import HelperTest, INSTALLED, USER_UID

BUILT = os.path.join(namespace.HERE, "..", "..", "build", "bin", "veldmark-launch")

# Writes what it runs as; alice can write the folder of its answer.
PROBE = r"""#!/usr/bin/python3
import json, os, subprocess, sys
status = dict(line.split(":\t", 1) for line in open("/proc/self/status").read().splitlines() if ":\t" in line)
child = subprocess.run(["cat", "/proc/self/cgroup"], capture_output=True, text=True).stdout
answer = {"uid": os.getresuid(), "gid": os.getresgid(), "groups": os.getgroups(), "env": dict(os.environ), "child": child,
          "caps": [status[k].strip() for k in ("CapInh", "CapPrm", "CapEff", "CapAmb")], "cwd": os.getcwd(), "words": sys.argv[1:],
          "fds": sorted(os.readlink(f"/proc/self/fd/{f}") for f in os.listdir("/proc/self/fd") if os.path.exists(f"/proc/self/fd/{f}")),
          "resolver": open("/etc/resolv.conf").read()}
path = os.path.expanduser("~/answer")
open(path + ".new", "w").write(json.dumps(answer)); os.rename(path + ".new", path)
"""


def launcher():
    """The launcher under test: the one in the helper's folder, else the one of an ordinary build."""
    given = os.environ.get("VELDMARK_HELPER")
    return os.path.join(os.path.dirname(given), "veldmark-launch") if given else BUILT


class Launch(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        machine = cls.machine
        machine.shell("install -m 0755 /dev/stdin /usr/local/bin/probe; usermod -a -G users alice", stdin=PROBE)
        machine.shell(
            "mkdir -p /usr/local/share/applications; cat >/usr/local/share/applications/probe.desktop <<'END'\n"
            '[Desktop Entry]\nType=Application\nName=Probe\nExec=/usr/local/bin/probe --one %U "two words"\n'
            "DBusActivatable=true\nEND\n"
        )
        machine.shell('cp "$1" "$2" /usr/local/bin/', machine.helper, launcher())
        machine.install_copy()
        machine.shell('cp "$1" "${2%/*}"', launcher(), INSTALLED)

    def setUp(self):
        self.before = self.machine.snapshot()
        self.machine.shell("rm -f /home/alice/answer")

    def tearDown(self):
        self.machine.help("disconnect")
        self.machine.shell("rm -f /home/alice/answer")
        self.assertEqual(self.machine.snapshot(), self.before)

    def connect(self, strict=1):
        return self.machine.run(
            "env",
            f"PKEXEC_UID={USER_UID}",
            "/bin/bash",
            self.machine.helper,
            "connect",
            "--tor",
            namespace.TOR,
            "--hash",
            namespace.HASH,
            "--strict",
            str(strict),
            "--lan",
            "0",
        )

    def launch(
        self,
        app,
        *more,
        uid=USER_UID,
        caller=f"PKEXEC_UID={USER_UID}",
        check=True,
        environment=(),
        helper="/usr/local/bin/veldmark-helper.sh",
    ):
        words = ["env", *environment, caller, "/bin/bash", helper, "launch", "--uid", str(uid), "--app", app, *more]
        return self.machine.run(*words, check=check)

    def answer(self):
        return json.loads(self.machine.shell("until [ -e /home/alice/answer ]; do :; done; cat /home/alice/answer"))

    def test_a_program_runs_as_the_user_in_the_group(self):
        self.connect()
        self.launch("/usr/local/bin/probe")
        answer = self.answer()
        self.assertEqual(answer["uid"], [USER_UID] * 3)
        self.assertEqual(answer["gid"], [USER_UID] * 3)
        self.assertEqual(sorted(answer["groups"]), sorted({USER_UID, 100}))
        self.assertEqual(set(answer["caps"]), {"0000000000000000"})
        self.assertIn("0::/veldmark-bypass\n", answer["child"])
        self.assertEqual(answer["cwd"], "/home/alice")
        self.assertFalse([name for name in answer["fds"] if "veldmark" in name or "pipe" in name], answer["fds"])

    def test_names_are_looked_up_as_before(self):
        self.connect()
        self.launch("/usr/local/bin/probe")
        self.assertEqual(self.answer()["resolver"], "nameserver 192.0.2.53\n")
        self.assertIn("127.0.0.1", self.machine.shell("cat /etc/resolv.conf"))

    def test_an_entry_is_started_here_and_not_by_the_bus(self):
        self.connect()
        self.launch("/usr/local/share/applications/probe.desktop")
        answer = self.answer()
        self.assertEqual(answer["words"], ["--one", "two words"])
        self.assertIn("0::/veldmark-bypass\n", answer["child"])

    def test_nothing_of_roots_environment_is_kept(self):
        self.connect()
        self.launch("/usr/local/bin/probe", environment=["DISPLAY=:root", "LD_PRELOAD=/x", "ALL_PROXY=socks5://x", "BASH_ENV=/x"])
        env = self.answer()["env"]
        for name in "DISPLAY", "LD_PRELOAD", "ALL_PROXY", "BASH_ENV", "PKEXEC_UID", "SUDO_UID":
            self.assertNotIn(name, env)
        self.assertEqual((env["HOME"], env["USER"], env["XDG_RUNTIME_DIR"]), ("/home/alice", "alice", f"/run/user/{USER_UID}"))

    def test_the_session_of_the_program_that_asks_is_kept(self):
        """A real sudo stands between alice's process and root's. The wrapper reports alice as pkexec does."""
        self.connect()
        self.machine.shell(
            "cat >/etc/sudoers.d/test; chmod 0440 /etc/sudoers.d/test",
            stdin="alice ALL=(root) NOPASSWD: /usr/local/bin/as-pkexec\n",
        )
        self.machine.shell(
            "install -m 0755 /dev/stdin /usr/local/bin/as-pkexec",
            stdin=f'#!/bin/sh\nexec env -i PKEXEC_UID={USER_UID} /bin/bash /usr/local/bin/veldmark-helper.sh "$@"\n',
        )
        self.machine.run(
            "env",
            "-i",
            "PATH=/usr/bin:/bin",
            "DISPLAY=:7",
            "WAYLAND_DISPLAY=wayland-7",
            "XDG_SESSION_TYPE=wayland",
            "DBUS_SESSION_BUS_ADDRESS=unix:path=/run/user/bus7",
            "LANG=de_DE.UTF-8",
            "ALL_PROXY=socks5h://127.0.0.1:9050",
            "LD_LIBRARY_PATH=/nowhere",
            "/bin/sh",
            "-c",
            f"sudo -n /usr/local/bin/as-pkexec launch --uid {USER_UID} --app /usr/local/bin/probe; exit $?",
            uid=USER_UID,
        )
        env = self.answer()["env"]
        self.assertEqual(
            (env["DISPLAY"], env["WAYLAND_DISPLAY"], env["XDG_SESSION_TYPE"], env["LANG"]),
            (":7", "wayland-7", "wayland", "de_DE.UTF-8"),
        )
        self.assertEqual(env["DBUS_SESSION_BUS_ADDRESS"], "unix:path=/run/user/bus7")
        self.assertNotIn("ALL_PROXY", env)
        self.assertNotIn("LD_LIBRARY_PATH", env)
        self.machine.shell("rm /etc/sudoers.d/test /usr/local/bin/as-pkexec")

    def test_sudo_by_a_right_of_the_users_own_is_an_approval(self):
        self.connect()
        self.launch("/usr/local/bin/probe", caller=f"SUDO_UID={USER_UID}")
        self.assertEqual(self.answer()["uid"], [USER_UID] * 3)

    def test_launcher_holds_none_of_our_descriptors(self):
        """A program with the lock's descriptor could release the lock, and one that keeps the message's descriptor open would make
        the helper wait."""
        self.machine.shell(
            "mkdir /usr/local/stand-in; cp /usr/local/bin/veldmark-helper.sh /usr/local/stand-in;"
            "cat >/usr/local/stand-in/veldmark-launch; chmod 755 /usr/local/stand-in/*",
            stdin="""#!/usr/bin/python3
import json, os
held = {n: os.readlink(f"/proc/self/fd/{n}") for n in os.listdir("/proc/self/fd") if os.path.exists(f"/proc/self/fd/{n}")}
json.dump(held, open("/home/alice/descriptors", "w"))
""",
        )
        self.connect()
        self.launch("/usr/local/bin/probe", helper="/usr/local/stand-in/veldmark-helper.sh")
        held = json.loads(self.machine.shell("cat /home/alice/descriptors; rm -r /home/alice/descriptors /usr/local/stand-in"))
        self.assertEqual(set(held), {"0", "1", "2"}, held)

    def test_nothing_is_started_as_root(self):
        """The launcher refuses root as well. Here a stand-in replaces it that does not."""
        self.machine.shell(
            "mkdir /usr/local/stand-in; cp /usr/local/bin/veldmark-helper.sh /usr/local/stand-in;"
            "printf '#!/bin/sh\\nid -u >>/run/started\\n' >/usr/local/stand-in/veldmark-launch; chmod 755 /usr/local/stand-in/*;"
            "touch /run/started; chmod 666 /run/started"
        )
        self.connect()
        stand_in = "/usr/local/stand-in/veldmark-helper.sh"
        self.launch("/usr/local/bin/probe", helper=stand_in)
        self.assertOneLine(
            self.launch("/usr/local/bin/probe", uid=0, caller="A=1", helper=stand_in, check=False), "not opened as root"
        )
        self.assertEqual(self.machine.shell("cat /run/started; rm -r /run/started /usr/local/stand-in"), f"{USER_UID}\n")

    def test_refused(self):
        self.connect()
        cases = {
            "another user's uid": dict(app="/usr/local/bin/probe", uid=1, words="only for the user who asks"),
            "root": dict(app="/usr/local/bin/probe", uid=0, caller="A=1", words="not opened as root"),
            "not a number": dict(app="/usr/local/bin/probe", uid="a[$(touch /run/bad)]", words="not a number"),
            "relative": dict(app="probe", words="not absolute"),
            "a new line": dict(app="/usr/local/bin/probe\nx", words="control characters"),
            "nothing there": dict(app="/usr/local/bin/nothing", words="no such application"),
            "a folder": dict(app="/usr", words="no such application"),
            "no entry": dict(app="/usr/local/share/nothing.desktop", words="cannot be read"),
            "a link look-alike": dict(app="/usr/local/bin/-x", words="no such application"),
            "passwordless": dict(
                app="/usr/local/bin/probe", caller=f"SUDO_UID={USER_UID}", helper=INSTALLED, words="password is needed"
            ),
            "passwordless for another user": dict(
                app="/usr/local/bin/probe", caller="SUDO_UID=1", helper=INSTALLED, words="only for the user who asks"
            ),
        }
        for name, case in cases.items():
            words = case.pop("words")
            with self.subTest(name):
                self.assertOneLine(self.launch(**case, check=False), words)
        self.assertEqual(self.machine.shell("cat /sys/fs/cgroup/veldmark-bypass/cgroup.procs; ls /run/bad 2>/dev/null || true"), "")

    def test_what_only_root_can_read_is_not_read_for_the_user(self):
        self.connect()
        self.machine.shell(
            "install -m 0600 /dev/stdin /usr/local/share/secret.desktop",
            stdin="[Desktop Entry]\nName=x\nType=Application\nExec=true\n",
        )
        self.assertOneLine(self.launch("/usr/local/share/secret.desktop", check=False), "cannot be read")
        self.machine.shell("rm /usr/local/share/secret.desktop")

    def test_not_without_the_kill_switch(self):
        self.assertOneLine(self.launch("/usr/local/bin/probe", check=False), "kill switch is not on")
        self.connect(strict=0)
        self.assertOneLine(self.launch("/usr/local/bin/probe", check=False), "kill switch is not on")

    def test_what_still_runs_at_disconnect_goes_on_outside(self):
        self.machine.shell(
            "printf '#!/bin/sh\\nsleep 1000 & sleep 1001\\n' >/usr/local/bin/lasting; chmod 755 /usr/local/bin/lasting"
        )
        self.connect()
        self.launch("/usr/local/bin/lasting")
        self.machine.shell("until [ $(wc -l </sys/fs/cgroup/veldmark-bypass/cgroup.procs) = 3 ]; do :; done")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell("ls /sys/fs/cgroup | grep veldmark || true"), "")
        self.assertEqual(len(self.machine.shell("pgrep -u alice -x sleep").split()), 2)
        self.machine.shell("pkill -u alice; while pgrep -u alice; do :; done; rm /usr/local/bin/lasting")

    def test_the_user_cannot_enter_the_group_alone(self):
        self.connect()
        done = self.machine.run("/bin/sh", "-c", "echo 0 >/sys/fs/cgroup/veldmark-bypass/cgroup.procs", uid=USER_UID, check=False)
        self.assertNotEqual(done.returncode, 0)
        done = self.machine.run("mkdir", "/sys/fs/cgroup/veldmark-bypass/below", uid=USER_UID, check=False)
        self.assertNotEqual(done.returncode, 0)


if __name__ == "__main__":
    if not os.path.exists(launcher()):
        sys.exit(f"{os.path.normpath(launcher())} is missing: build the target veldmark-launch first.")
    namespace.main()

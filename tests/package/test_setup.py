#!/usr/bin/python3
"""./build.sh on a machine that lacks something ends with one line that says what to do, and a second run continues where the first
stopped."""

import re
import shlex
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from lacking_machine import CHECKOUT, PACKAGE, PROJECT, LackingMachine, require  # noqa: E402

QUOTED = f"'{CHECKOUT}'"


class Case(unittest.TestCase):
    def setUp(self):
        self.machine = self.enterContext(LackingMachine())

    def refused(self, words: str, line: str, user: str = "root", variables: str = "") -> None:
        """Asserts that the command fails and ends with this one line."""
        result = self.machine.build(words, user, variables)
        self.assertNotEqual(result.returncode, 0, result.stdout)
        self.assertRegex(result.stderr, rf"^build\.sh: {line}\n\Z", result.stdout)

    def works(self, words: str, user: str = "root", variables: str = "") -> str:
        result = self.machine.build(words, user, variables)
        self.assertEqual((result.stderr, result.returncode), ("", 0), result.stdout)
        return result.stdout

    def compiled(self) -> bool:
        return self.machine.path(f"{CHECKOUT}/build/dev/tool").exists()


class Installing(Case):
    def setUp(self):
        super().setUp()
        self.machine.make_registry()

    def installs(self, user: str = "root") -> None:
        self.assertFalse(self.machine.installed())
        self.works("deps", user)
        self.assertTrue(self.machine.installed())
        self.assertFalse(self.machine.path("/usr/sbin/policy-rc.d").exists())
        self.assertEqual(self.works("deps", user), "")  # now nothing is missing

    def hold(self, lock: str, seconds: int = 600):
        """Another program that holds this lock in the way of apt and dpkg."""
        return self.machine.start(
            f'exec /usr/bin/python3 -uc \'import fcntl, time; held = open("{lock}", "w");'
            f"fcntl.lockf(held, fcntl.LOCK_EX); print(); time.sleep({seconds})'"
        )

    def test_installing_shows_that_it_moves(self):
        self.machine.connect()
        shown = re.findall(r"(?m)^Installing packages, percent: (\d+) of 100$", self.works("deps"))
        self.assertGreater(len(shown), 2)
        self.assertEqual([int(percent) for percent in shown], sorted(map(int, shown)))
        self.assertLessEqual(len(shown), 11)

    def test_a_full_folder_for_temporary_files(self):
        self.machine.connect()
        self.machine.run("mount -t tmpfs -o mode=1777,size=64k small /tmp; head -c 1M /dev/zero >/tmp/filler 2>/dev/null || true")
        self.refused("deps", r"/tmp is full: make room there, or set TMPDIR to a folder with 1 GB, and run this again")
        self.machine.run("umount /tmp")
        self.works("deps")
        self.assertTrue(self.machine.installed())

    def test_without_a_network(self):
        self.refused("deps", "Debian's registry cannot be reached: connect to the network and run this again")
        self.machine.connect()
        self.installs()

    def test_without_sudo(self):
        self.machine.connect()
        self.machine.run("rm -f /usr/bin/sudo /usr/local/bin/sudo")
        self.refused("deps", r"some packages are missing and there is no sudo: run \./build\.sh deps as root once", user="alice")
        self.works("deps")
        self.assertEqual(self.works("deps", "alice"), "")

    def test_a_user_whom_sudo_refuses(self):
        self.machine.connect()
        self.refused("deps", r"sudo refused: run \./build\.sh deps as root once", user="alice")
        self.machine.run("echo 'alice ALL=(ALL) NOPASSWD: ALL' >/etc/sudoers.d/alice")
        self.installs("alice")

    def test_while_another_program_installs_or_asks_the_registry(self):
        self.machine.connect()
        for lock in ("/var/lib/dpkg/lock-frontend", "/var/lib/apt/lists/lock"):
            other = self.hold(lock)
            self.refused(
                "deps", "another program is installing packages: run this again when it has ended", variables="VELDMARK_APT_WAIT=1"
            )
            other.kill()
            other.wait()
        self.installs()

    def test_a_wait_for_another_program_is_shown_and_ends_with_it(self):
        self.machine.connect()
        self.hold("/var/lib/apt/lists/lock", 2)
        self.hold("/var/lib/dpkg/lock-frontend", 7)
        self.assertIn("Waiting for another program that installs packages: 2 s\n", self.works("deps"))
        self.assertTrue(self.machine.installed())

    def test_a_full_disk(self):
        self.machine.connect()
        self.machine.run("mount -o remount,size=$(($(df --output=used -k /mnt/disk | tail -n 1) + 1500))k /mnt/disk")
        self.refused("deps", r"the disk is full: make room \(a full build takes 3 GB\) and run this again")
        self.machine.run("mount -o remount,size=64m /mnt/disk")
        self.installs()

    def test_a_package_whose_own_script_was_interrupted(self):
        self.machine.make_registry("test -e /srv/better || { sleep 0.1; kill -9 $PPID; }")  # dpkg disappears in the middle
        self.machine.connect()
        self.assertNotEqual(self.machine.build("deps").returncode, 0)
        self.assertFalse(self.machine.installed())
        self.assertNotEqual(self.machine.run("dpkg --audit").stdout, "")
        self.machine.run("touch /srv/better")
        self.works("deps")
        self.assertTrue(self.machine.installed())

    def test_a_package_that_the_registry_does_not_have(self):
        self.machine.connect()
        self.machine.run(f"sed -i s/{PACKAGE}/other-tool/ /srv/registry/Packages")
        self.refused(
            "deps",
            rf"a package is unknown to apt \(E: Unable to locate package {PACKAGE}\): "
            "only Debian 12 and its descendants have them all",
        )
        self.machine.make_registry()
        self.installs()


class Compiling(Case):
    def setUp(self):
        super().setUp()
        # Nothing is missing.
        self.machine.run(f"sed -i 's/^compiling_packages=({PACKAGE})/compiling_packages=()/' {QUOTED}/tools/deps.sh")

    def test_a_full_disk(self):
        self.machine.fill_source()
        self.machine.run(f"mkdir {QUOTED}/build && mount -t tmpfs -o size=700k small {QUOTED}/build")
        self.refused("build", r"the disk is full: make room \(a full build takes 3 GB\) and run this again")
        self.machine.run(f"mount -o remount,size=64m {QUOTED}/build")
        self.works("build")
        self.assertTrue(self.compiled())

    def test_compiling_shows_that_it_moves(self):
        self.assertRegex(self.works("build"), r"(?m)\ACompiling: 1 of 2\nCompiling: 2 of 2\n\Z")
        self.machine.run(f"rm -r {QUOTED}/build")
        self.machine.run(f"cd {QUOTED} && script -qec './build.sh build' /srv/shown")
        self.assertIn(b"\rCompiling: 1 of 2 \rCompiling: 2 of 2 ", self.machine.path("/srv/shown").read_bytes())

    def test_run_and_demo_compile_the_programs_alone(self):
        self.machine.run(
            f"cd {QUOTED} && mkdir -p tests/lab build/bin && echo 'print(1)' >tests/lab/demo.py && "
            "printf '#!/bin/sh\\necho ran \"$@\"\\n' >build/bin/veldmarkctl && chmod 755 build/bin/veldmarkctl"
        )
        judge = self.machine.path(f"{CHECKOUT}/build/dev/judge")
        self.assertRegex(self.works("run --connect"), r"\nran --connect\n\Z")
        self.assertTrue(self.compiled())
        self.machine.run(f"rm -r {QUOTED}/build/dev")
        self.assertRegex(self.works("demo"), r"\n1\n\Z")
        self.assertTrue(self.compiled())
        self.assertFalse(judge.exists())
        self.machine.run(f"cmake --build {QUOTED}/build/dev")  # there is more to compile
        self.assertTrue(judge.exists())

    ENTERING = (
        ("machine-test", "a machine is booted"),
        ("package-test", "a clean Debian is entered"),
        ("fresh-test", "a clean Debian is made"),
    )

    def test_what_takes_root_says_so_before_it_compiles(self):
        self.machine.own("alice")
        for verb, what in self.ENTERING:
            self.refused(verb, rf"{what} by root: run sudo \./build\.sh {verb}", user="alice")
        self.assertFalse(self.machine.path(f"{CHECKOUT}/build").exists())

    def test_what_takes_namespaces_says_so_before_it_compiles(self):
        self.machine.run("unshare --mount --net --pid --fork true")
        self.machine.run(
            "printf '#!/bin/sh\\necho unshare: not permitted >&2\\nexit 1\\n' >/usr/local/bin/unshare && chmod 755 /usr/local/bin/unshare"
        )
        for verb, what in self.ENTERING:
            self.refused(verb, f"{what} in namespaces, which this machine does not permit")
        self.assertFalse(self.machine.path(f"{CHECKOUT}/build").exists())

    def test_a_checkout_that_other_users_cannot_enter(self):
        self.machine.run("chmod 700 '/srv/a stranger'")
        for verb in ("test", "test house lab", "test -R x"):
            self.refused(
                verb,
                "other users cannot enter /srv/a stranger, and tests run programs as some: move the checkout to a folder such as /srv",
            )
        self.assertFalse(self.machine.path(f"{CHECKOUT}/build").exists())
        self.works("build")

    def test_a_small_folder_for_temporary_files(self):
        self.machine.fill_source()
        self.machine.run("mount -t tmpfs -o mode=1777,size=200k small /tmp")
        self.refused("build", r"/tmp is full: make room there, or set TMPDIR to a folder with 1 GB, and run this again")
        self.machine.run("mkdir /mnt/cache/roomy")
        self.works("build", variables="TMPDIR=/mnt/cache/roomy")
        self.assertTrue(self.compiled())

    def test_a_checkout_of_another_user(self):
        self.machine.own("alice")
        self.refused(
            "build", "this folder cannot be written: copy the checkout to one of your own, or run this as its owner", user="bob"
        )
        self.works("build", "alice")
        self.refused("build", "build/ belongs to another user: remove it, or run this as that user", user="bob")
        self.machine.run(f"cp -r {QUOTED} /home/bob/mine && rm -rf /home/bob/mine/build && chown -R bob:bob /home/bob/mine")
        self.assertEqual(self.machine.run("cd /home/bob/mine && ./build.sh build", "bob").stderr, "")

    def test_a_build_folder_that_root_has_made(self):
        self.machine.own("alice")
        self.works("build")
        self.refused("build", "build/ belongs to another user: remove it, or run this as that user", user="alice")
        self.machine.run(f"rm -rf {QUOTED}/build")
        self.works("build", "alice")
        self.assertTrue(self.compiled())

    def test_a_demonstration_without_root(self):
        self.machine.own("alice")
        self.refused(
            "demo", r"the demonstration's network is made by root and sudo refused: run sudo \./build\.sh demo", user="alice"
        )
        self.assertFalse(self.compiled())  # the message comes at once
        self.machine.run("rm -f /usr/bin/sudo /usr/local/bin/sudo")
        self.refused(
            "demo", r"the demonstration's network is made by root and there is no sudo: run \./build\.sh demo as root", user="alice"
        )

    def test_a_demonstration_is_root_for_its_network_alone(self):
        self.machine.own("alice")
        self.machine.run("echo 'alice ALL=(ALL) NOPASSWD: ALL' >/etc/sudoers.d/alice")
        self.machine.run(
            f"cd {QUOTED} && mkdir -p tests/lab && echo 'import os, sys; print(os.getuid(), *sys.argv[1:])' >tests/lab/demo.py"
        )
        self.assertRegex(self.works("demo", "alice"), r"\n0 network\n4242 pictures\n\Z")
        self.assertTrue(self.compiled())
        self.assertEqual(self.machine.path(f"{CHECKOUT}/build/dev/tool").stat().st_uid, 4242)

    def test_a_skip_is_told_however_much_its_test_says(self):
        # The files that the tests would fetch exist.
        for place in ("resolved/lib/systemd/systemd-resolved", "sshd/usr/sbin/sshd", "gnustep/usr/include/GNUstep/AppKit/AppKit.h"):
            self.machine.run(f"install -D /dev/null {QUOTED}/build/{place}")
        shutil.copy(PROJECT / "tests/skipped.py", self.machine.path(CHECKOUT) / "tests/skipped.py")
        self.assertIn("skipped house/wordy Wordy::last: no such thing here\n", self.works("test house"))
        self.assertEqual(self.machine.build("test house", variables="VELDMARK_NO_SKIPS=1").returncode, 1)

    def test_a_repository_that_git_finds_dubious(self):
        self.machine.run(
            f"cd {QUOTED} && git init --quiet && git add . && GIT_COMMITTER_DATE='2020-02-02T02:02:02Z' "
            "git -c user.name=x -c user.email=x@example.test commit --quiet -m x"
        )
        self.machine.own("alice")
        self.assertIn("dubious ownership", self.machine.run(f"git -C {QUOTED} log", check=False).stderr)
        self.machine.run("printf '#!/bin/sh\\n' >/usr/local/bin/lintian && chmod 755 /usr/local/bin/lintian")
        self.assertIn("build/veldmark_1.0_", self.works("package"))
        listed = self.machine.run(f"dpkg-deb --contents {QUOTED}/build/veldmark_*.deb").stdout
        self.assertRegex(listed, r"2020-02-02 02:02 \./usr/bin/tool\n")
        # Both the archive's times and those in the programs' resources are the commit's.
        self.assertEqual(self.machine.path(f"{CHECKOUT}/build/release/times").read_text(), "1580608922 1580608922\n")


class Showing(unittest.TestCase):
    """tools/progress.sh by itself."""

    def shown(self, script: str, terminal: bool = False) -> str:
        command = ["/bin/bash", "-c", f"source {shlex.quote(str(PROJECT))}/tools/progress.sh; {script}"]
        if terminal:
            command = ["script", "-qec", shlex.join(command), "/dev/null"]
        told = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, check=True, timeout=60).stdout
        return told.decode().replace("\r\n", "\n")

    STEPS = "for i in {1..50}; do echo \"[$i/50] Building\"; echo 'a warning'; done | progress Compiling"

    def test_a_reader_gets_a_line_each_tenth(self):
        self.assertEqual(
            self.shown(self.STEPS).splitlines(), [f"Compiling: {step} of 50" for step in (1, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50)]
        )

    def test_a_terminal_gets_one_line_that_changes(self):
        told = self.shown(self.STEPS, terminal=True)
        self.assertEqual(told.split("\r")[1:-1], [f"Compiling: {step} of 50 " for step in range(1, 51)])
        self.assertNotIn("\n", told)

    def test_what_cannot_count_its_steps_shows_the_seconds(self):
        self.assertEqual(self.shown("busy Packing /dev/null sleep 2.6"), "Packing: 2 s\n")
        self.assertEqual(self.shown("busy Packing /dev/null sleep 0.3"), "")
        self.assertIn("\rPacking: 2 s ", self.shown("busy Packing /dev/null sleep 2.6", terminal=True))
        self.assertEqual(self.shown("busy Packing /dev/null false || echo $?"), "1\n")


if __name__ == "__main__":
    require()
    unittest.main()

#!/usr/bin/python3
"""./build.sh on a machine that lacks something ends in one line that says what to do, and a second run goes on where it stopped."""

import shutil
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
        """The command fails, and its last word is this one line."""
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
        self.assertEqual(self.works("deps", user), "")  # nothing is missing any more

    def hold(self, lock: str, seconds: int = 600):
        """Another program that has this lock, as apt and dpkg take it."""
        return self.machine.start(
            f'exec /usr/bin/python3 -uc \'import fcntl, time; held = open("{lock}", "w");'
            f"fcntl.lockf(held, fcntl.LOCK_EX); print(); time.sleep({seconds})'"
        )

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
        self.machine.make_registry("test -e /srv/better || { sleep 0.1; kill -9 $PPID; }")  # dpkg is gone in the middle
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
        self.assertFalse(self.compiled())  # it is said at once
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
        # What the tests would fetch is there.
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


if __name__ == "__main__":
    require()
    unittest.main()

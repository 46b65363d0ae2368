"""This machine with something missing: its own files under an overlay, no network but its loopback, and a registry of one package.

    with LackingMachine() as machine:
        machine.start_registry()
        machine.build("deps", user="alice")

The programs are the real ones: apt, dpkg, sudo, the compiler. Their changes are in memory and go with the machine. Its checkout has
the real build.sh and tools, and otherwise a project of one small program, in a folder with blanks.
"""

import contextlib
import os
import shlex
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
CHECKOUT = "/srv/a stranger/veld mark"
PACKAGE = "veldmark-stranger-tool"
ALICE, BOB = 4242, 4243

SETUP = r"""
set -eu
ip link set lo up
mount -t tmpfs -o mode=755,size=64m private /mnt
mkdir /mnt/upper /mnt/work /mnt/root
mount -t overlay -o lowerdir=/,upperdir=/mnt/upper,workdir=/mnt/work machine /mnt/root
root=/mnt/root
mount -t proc proc $root/proc
mount --rbind /sys $root/sys
mount --rbind /dev $root/dev
mount -t tmpfs -o mode=1777,size=256m private $root/tmp
mount -t tmpfs -o mode=755 private $root/run
mkdir -p $root/mnt/disk $root/mnt/cache $root/run/sudo $root/run/lock
mount --bind /mnt $root/mnt/disk
mount -t tmpfs -o mode=1777 private $root/mnt/cache
rm -rf $root/etc/apt/sources.list $root/etc/apt/sources.list.d $root/etc/apt/apt.conf $root/var/lib/apt/lists $root/usr/sbin/policy-rc.d
mkdir -p $root/var/lib/apt/lists/partial $root/etc/apt/sources.list.d
echo 'deb [trusted=yes] http://registry.test:8099/ ./' >$root/etc/apt/sources.list
rm -f $root/etc/resolv.conf
: >$root/etc/resolv.conf
for user in alice:4242 bob:4243; do
    echo "${user%:*}:x:${user#*:}:${user#*:}::/home/${user%:*}:/bin/bash" >>$root/etc/passwd
    echo "${user%:*}:x:${user#*:}:" >>$root/etc/group
    echo "${user%:*}:*:19000:0:99999:7:::" >>$root/etc/shadow
    install -d -o "${user#*:}" -g "${user#*:}" -m 0700 "$root/home/${user%:*}"
done
touch $root/run/lacking-machine
exec chroot $root /bin/sh -c 'echo ready && exec sleep infinity'
"""

CMAKE = """
cmake_minimum_required(VERSION 3.25)
project(Stranger VERSION 1.0 LANGUAGES CXX DESCRIPTION "one small program")
add_executable(tool main.cpp)
add_executable(judge main.cpp)
add_custom_command(TARGET tool POST_BUILD COMMAND sh -c "echo $SOURCE_DATE_EPOCH $QT_RCC_SOURCE_DATE_OVERRIDE >times" VERBATIM)
add_custom_target(programs DEPENDS tool)
add_custom_target(veldmark-pictures)
enable_testing()
add_custom_target(suite-house)
add_test(NAME house/wordy COMMAND sh -c "seq 5000; echo 'SKIP   : Wordy::last() no such thing here'")
install(TARGETS tool RUNTIME DESTINATION bin)
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME veldmark)
set(CPACK_PACKAGE_CONTACT "Nobody <nobody@example.test>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
"""
PRESETS = """{"version": 6, "configurePresets": [
  {"name": "dev", "generator": "Ninja", "binaryDir": "${sourceDir}/build/${presetName}"},
  {"name": "release", "generator": "Ninja", "binaryDir": "${sourceDir}/build/${presetName}"}],
  "testPresets": [{"name": "dev", "configurePreset": "dev"}]}
"""
# Four megabytes that no compiler can shrink.
MAIN = "import random; random.seed(1); print('unsigned char filler[] = {%s};' % ','.join(str(random.randrange(256)) for _ in range(1 << 20)))"


def require() -> None:
    """Ends the test program with status 77 where such a machine cannot be made."""
    trial = "mount -t tmpfs x /mnt && mkdir /mnt/u /mnt/w /mnt/r && mount -t overlay -o lowerdir=/,upperdir=/mnt/u,workdir=/mnt/w x /mnt/r"
    if (
        os.geteuid() != 0
        or subprocess.run(
            ["unshare", "--net", "--mount", "--propagation", "private", "--pid", "--fork", "sh", "-c", trial],
            capture_output=True,
            check=False,
        ).returncode
    ):
        print(
            "skipped: a machine over this one's files needs root and a system that permits namespaces and overlays: run this test with sudo"
        )
        sys.exit(77)


class LackingMachine(contextlib.AbstractContextManager):
    def __init__(self):
        self.unshare = subprocess.Popen(
            [
                "setpriv",
                "--pdeathsig",
                "KILL",
                "unshare",
                "--net",
                "--mount",
                "--propagation",
                "private",
                "--pid",
                "--fork",
                "--kill-child",
                "/bin/sh",
                "-c",
                SETUP,
            ],
            stdout=subprocess.PIPE,
            text=True,
        )
        if self.unshare.stdout.readline() != "ready\n":
            raise RuntimeError("the machine could not be set up")
        children = Path(f"/proc/{self.unshare.pid}/task/{self.unshare.pid}/children")
        self.pid = int(children.read_text().split()[0])
        self.processes: list[subprocess.Popen] = []
        try:
            # Before this its root is this machine's own.
            if not self.path("/run/lacking-machine").exists():
                raise RuntimeError("the machine is not in its own files")
            self._checkout()
        except BaseException:
            self.__exit__()
            raise

    def __exit__(self, *_) -> None:
        self.unshare.kill()
        self.unshare.wait()
        self.unshare.stdout.close()
        for process in self.processes:
            process.wait()
            process.stdout.close()

    def path(self, inside: str) -> Path:
        return Path(f"/proc/{self.pid}/root") / inside.lstrip("/")

    def _command(self, script: str, user: str) -> list[str]:
        who = ["setpriv", f"--reuid={user}", f"--regid={user}", "--init-groups", "--"] if user != "root" else []
        home = f"/home/{user}" if user != "root" else "/root"
        return [
            "nsenter",
            f"--target={self.pid}",
            "--mount",
            "--net",
            "--pid",
            "--root",
            "--wd",
            "setpriv",
            "--pdeathsig",
            "KILL",
            *who,
            "/usr/bin/env",
            "-i",
            f"HOME={home}",
            f"USER={user}",
            f"LOGNAME={user}",
            "LANG=C.UTF-8",
            "CCACHE_DIR=/mnt/cache/" + user,
            "PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin",
            "/bin/bash",
            "-c",
            script,
        ]

    def run(self, script: str, user: str = "root", check: bool = True) -> subprocess.CompletedProcess:
        return subprocess.run(
            self._command(script, user), stdin=subprocess.DEVNULL, capture_output=True, text=True, check=check, timeout=120
        )

    def start(self, script: str) -> subprocess.Popen:
        """Starts a background process; returns once it has printed a line."""
        process = subprocess.Popen(self._command(script, "root"), stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True)
        self.processes.append(process)
        process.stdout.readline()
        return process

    def build(self, words: str, user: str = "root", variables: str = "") -> subprocess.CompletedProcess:
        return self.run(f"cd {shlex.quote(CHECKOUT)} && {variables} ./build.sh {words}", user, check=False)

    def _checkout(self) -> None:
        folder = self.path(CHECKOUT)
        (folder / "tools").mkdir(parents=True)
        (folder / "tests").mkdir()
        shutil.copy(PROJECT / "build.sh", folder)
        for file in (PROJECT / "tools").glob("*.sh"):
            shutil.copy(file, folder / "tools")
        # The test is about the installation of packages, not about their list.
        with open(folder / "tools/deps.sh", "a", encoding="utf-8") as deps:
            deps.write(f"compiling_packages=({PACKAGE}) running_packages=() packaging_packages=() development_packages=()\n")
        (folder / "CMakeLists.txt").write_text(CMAKE)
        (folder / "CMakePresets.json").write_text(PRESETS)
        (folder / ".gitignore").write_text("build/\n")
        (folder / "main.cpp").write_text("int main() {}\n")

    def own(self, user: str, inside: str = CHECKOUT) -> None:
        self.run(f"chown -R {user}:{user} {shlex.quote(inside)}")

    def fill_source(self) -> None:
        """A program whose compilation needs disk space."""
        self.run(
            f"cd {shlex.quote(CHECKOUT)} && {{ /usr/bin/python3 -c {shlex.quote(MAIN)}; echo 'int main() {{ return filler[1]; }}'; }} >main.cpp"
        )

    def make_registry(self, postinst: str = "exit 0") -> None:
        """The registry's one package, of 3 MB, as files that start_registry serves."""
        with tempfile.TemporaryDirectory() as folder:
            tree = Path(folder, "tree")
            (tree / "DEBIAN").mkdir(parents=True)
            (tree / "DEBIAN/control").write_text(
                f"Package: {PACKAGE}\nVersion: 1\nArchitecture: all\nMaintainer: Nobody <nobody@example.test>\n"
                "Description: a tool of the stranger\n"
            )
            (tree / "DEBIAN/postinst").write_text(f"#!/bin/sh\n{postinst}\n")
            (tree / "DEBIAN/postinst").chmod(0o755)
            (tree / "usr/share").mkdir(parents=True)
            (tree / "usr/share" / PACKAGE).write_bytes(os.urandom(3 << 20))
            for part in (tree, tree / "DEBIAN", tree / "usr", tree / "usr/share"):
                part.chmod(0o755)
            registry = self.path("/srv/registry")
            registry.mkdir(exist_ok=True)
            subprocess.run(
                ["dpkg-deb", "-Znone", "--root-owner-group", "--build", tree, registry / "tool.deb"],
                check=True,
                capture_output=True,
            )
        self.run("cd /srv/registry && dpkg-scanpackages --multiversion . >Packages 2>/dev/null")

    def connect(self) -> None:
        """Connects a network in which the registry answers."""
        self.run("grep -q registry.test /etc/hosts || echo '127.0.0.1 registry.test' >>/etc/hosts")
        self.start(
            "cd /srv/registry && exec /usr/bin/python3 -uc 'import functools, http.server as h\n"
            "class Quiet(h.SimpleHTTPRequestHandler):\n    def log_message(self, *_): pass\n"
            # File times have whole seconds, so the server always sends the file.
            '    def send_head(self):\n        del self.headers["If-Modified-Since"]\n        return super().send_head()\n'
            'server = h.ThreadingHTTPServer(("127.0.0.1", 8099), Quiet)\nprint()\nserver.serve_forever()\''
        )

    def installed(self) -> bool:
        return self.run(f"dpkg-query -W -f '${{db:Status-Abbrev}}' {PACKAGE}", check=False).stdout.startswith("ii")

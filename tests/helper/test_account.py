"""What code in Tor's account can reach, with and without bridges, and what the control port's password permits."""

import os
import subprocess

import namespace
import probes
from hostile import HostileTest
from namespace import AS_TOR, OTHER_UID, TOR_GROUP, USER_UID

DATA = "/var/lib/veldmark/run/tor/data"

# As Tor's account: makes sockets and hands them to who connects to its own, which no folder has.
GIVE = (
    "import socket\ns = socket.socket(socket.AF_UNIX); s.bind('\\0handed'); s.listen(); print('up', flush=True); c, _ = s.accept()\n"
    "three = [socket.socket() for _ in range(3)]; socket.send_fds(c, [b'x'], [t.fileno() for t in three])"
)
# As anybody: takes them and uses one for each line that it reads.
TAKE = (
    "import socket, sys\nc = socket.socket(socket.AF_UNIX); c.connect('\\0handed'); fds = socket.recv_fds(c, 9, 3)[1]; print('has', flush=True)\n"
    "for line in sys.stdin:\n s = socket.socket(fileno=fds.pop()); s.setblocking(False); s.connect_ex((sys.argv[1], 1001)); print('used', flush=True)"
)

# Twenty processes of short life in Tor's group, which replace each other there; one that was moved out ends.
STORM = r"""
#include <fcntl.h>
#include <string.h>
#include <sys/mman.h>
#include <unistd.h>
static int *many; /* usleep: others use the processors as well */
static int is_moved(void)
{
    char group[256] = "";
    int file = open("/proc/self/cgroup", O_RDONLY);
    int length = read(file, group, sizeof group - 1);
    close(file);
    return length > 0 && !strstr(group, "/veldmark/tor");
}
static int another(void)
{
    int child = -1;
    if (__sync_add_and_fetch(many, 1) > 20 || (child = fork()) < 0)
        __sync_sub_and_fetch(many, 1);
    return child;
}
int main(void)
{
    many = mmap(0, sizeof *many, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    for (*many = 1; !is_moved(); usleep(500))
        if (another() > 0 && another() != 0)
            break;
    __sync_sub_and_fetch(many, 1);
    return 0;
}
"""


class Account(HostileTest):
    def test_tors_account_alone_passes_nothing(self):
        """A setuid file that Tor's account has left in an earlier session runs outside Tor's control group."""
        self.machine.connect()
        self.assertIn("https", self.wire.arrivals(self.tor_uid, TOR_GROUP))
        self.assertEqual(self.wire.arrivals(self.tor_uid), set())
        self.assertNotEqual(
            self.machine.run("/bin/sh", "-c", f"echo 0 >{TOR_GROUP}/cgroup.procs", uid=self.tor_uid, check=False).returncode, 0
        )
        self.machine.help("disconnect")
        self.assertIn("https", self.wire.arrivals(self.tor_uid))

    def test_a_socket_that_it_hands_over_passes_nothing_in_a_later_session(self):
        """In the same session it does, and after a connect upon that session, too."""
        self.machine.connect()
        options = {"stdin": subprocess.PIPE, "stdout": subprocess.PIPE, "text": True}
        giver = self.machine.start(*AS_TOR, "/usr/bin/python3", "-c", GIVE, group=TOR_GROUP, **options)
        self.assertEqual(giver.stdout.readline(), "up\n")
        taker = self.machine.start("/usr/bin/python3", "-c", TAKE, probes.PUBLIC, uid=OTHER_UID, **options)
        try:
            self.assertEqual(taker.stdout.readline(), "has\n")
            giver.communicate()

            def seen():
                self.wire.mark()
                taker.stdin.write("use\n")
                taker.stdin.flush()
                self.assertEqual(taker.stdout.readline(), "used\n")
                return "tcp" in self.wire.mark()

            self.assertTrue(seen())
            self.machine.connect()
            self.assertTrue(seen(), "after another connect")
            self.assertIn("https", self.wire.arrivals(self.tor_uid, TOR_GROUP))
            left = self.machine.start("sleep", "1000", group=TOR_GROUP)  # what is in the group keeps it past the end of the session
            self.machine.shell(f"until pgrep -x sleep && grep -q . {TOR_GROUP}/cgroup.procs; do sleep 0.01; done")
            self.machine.help("disconnect")
            self.machine.shell(f"test -d {TOR_GROUP}")
            self.machine.connect()
            self.assertFalse(seen(), "in a later session")
            left.kill()
            self.machine.shell("pkill -x sleep || true")
            left.wait()
        finally:
            taker.communicate()

    def test_what_starts_processes_without_end_does_not_stay_in_tors_group(self):
        """It cannot be moved out as fast as it starts others, and would be in the group of the next session's Tor, or keep it from
        being made."""
        self.machine.shell("gcc -O2 -x c -o /usr/local/storm -", stdin=STORM)
        self.machine.connect()
        count = f"wc -l <{TOR_GROUP}/cgroup.procs"
        try:
            self.machine.start("/usr/local/storm", uid=self.tor_uid, group=TOR_GROUP).wait()
            self.machine.shell(f"until [ $({count}) -gt 15 ]; do sleep 0.01; done", timeout=30)
            self.machine.help("disconnect")
            self.assertGreater(int(self.machine.shell(count)), 10)
            self.machine.connect()
            self.assertEqual(self.machine.shell("pgrep -x storm || true"), "")
            self.assertIn("https", self.wire.arrivals(self.tor_uid, TOR_GROUP))
        finally:
            self.machine.shell(f"rm /usr/local/storm; echo 1 >{TOR_GROUP}/cgroup.kill; while pgrep -x storm; do sleep 0.01; done")

    def test_wrong_requests_do_not_fill_the_disk(self):
        """Each is a line of its log. Tor goes on where the log may not grow."""
        log = "/var/lib/veldmark/run/notices.log"
        flood = (
            "import socket\nfor n in range(400):\n with socket.create_connection(('127.0.0.1', 9051)) as s:\n  s.sendall(b'AUTHENTICATE \"no\"\\r\\n')\n"
            "  while s.recv(999): pass"
        )
        self.machine.connect()
        [tor] = self.machine.tor_pids()
        self.assertIn("Max file size             104857600            104857600 ", self.machine.shell(f"cat /proc/{tor}/limits"))
        self.machine.run("/usr/bin/python3", "-c", flood)
        self.assertGreater(int(self.machine.shell(f"stat -c %s {log}")), 20480)
        self.machine.help("disconnect")
        # The same with a smaller limit.
        self.machine.shell(
            f"sed 's/^ulimit -f 102400$/ulimit -f 20/' {self.machine.helper} >/mnt/helper; ! cmp -s {self.machine.helper} /mnt/helper"
        )
        self.machine.run(
            *("/bin/bash", "/mnt/helper", "connect", "--tor", namespace.TOR),
            *("--hash", namespace.HASH, "--strict", "1", "--lan", "0"),
        )
        [tor] = self.machine.tor_pids()
        self.machine.run("/usr/bin/python3", "-c", flood)
        self.assertLessEqual(int(self.machine.shell(f"stat -c %s {log}")), 20480)
        self.assertEqual(self.machine.tor_pids(), [tor])

    def test_without_such_groups_it_is_the_account_alone(self):
        self.machine.shell("umount /sys/fs/cgroup")
        try:
            self.machine.connect()
            self.assertNotIn("cgroupv2", self.machine.run("nft", "list", "ruleset").stdout)
            self.assertIn("https", self.wire.arrivals(self.tor_uid))
            port, end = self.serve(0, uid=self.tor_uid)
            self.assertFalse(self.reach(port, uid=OTHER_UID))
            end()
            self.assertEqual(self.asked(self.ASK, ("tor", "127.0.0.1", self.tor_uid, None))[1], ["tor 30"] * 3)
            self.machine.help("disconnect")
        finally:
            self.machine.shell("mount -t cgroup2 private /sys/fs/cgroup")

    def test_where_the_kernel_does_not_find_groups_it_is_the_account_alone(self):
        """As before Linux 5.13: it refuses such a rule, which the helper tries first (nft -c)."""
        self.machine.connect()
        self.assertIn("cgroupv2", self.machine.run("nft", "list", "ruleset").stdout)
        self.machine.help("disconnect")
        self.machine.shell(
            "cp --remove-destination /usr/sbin/nft /mnt/real; printf '%s\\n' '#!/bin/sh' '[ \"$1\" != -c ] || exit 1' 'exec /mnt/real \"$@\"' >/mnt/older;"
            "chmod +x /mnt/older; mount --bind /mnt/older /usr/sbin/nft"
        )
        try:
            self.machine.connect()
            rules = self.machine.run("nft", "list", "ruleset").stdout
            self.assertNotIn("cgroupv2", rules)
            self.assertIn("policy drop", rules)
            self.assertIn("https", self.wire.arrivals(self.tor_uid))
            self.machine.help("disconnect")
        finally:
            self.machine.shell("umount -l /usr/sbin/nft")

    def test_tor_reaches_the_local_network_for_a_bridge_there_alone(self):
        lan = {"lan-tcp", "lan-dns-tcp", "lan-dns-tls"}
        for option, url, reached in (
            ("", None, set()),
            ("--bridge", "https://203.0.113.7/", set()),
            ("--bridge", "https://192.168.77.30/", lan),
            ("--reserve", "https://203.0.113.7/", set()),
            ("--reserve", "https://192.168.77.30/", lan),
        ):
            self.machine.connect(
                more=[option, f"webtunnel 192.0.2.3:80 url={url}", "--pt-lyrebird", "/usr/bin/obfs4proxy"] if url else []
            )
            self.assertEqual(self.wire.arrivals(self.tor_uid, TOR_GROUP) & lan, reached, url)

    def test_over_bridges_tors_account_reaches_nothing_else(self):
        """A program with the control password can configure proxies, bridges and programs, so the firewall limits the addresses."""
        bridges = [f"{probes.SENTINEL}:{self.wire.marks + number}" for number in range(1, 5)]  # they mark a round's end
        bridges += [f"obfs4 {probes.PUBLIC}:443 cert=a iat-mode=0", f"[{probes.PUBLIC6}]:1002", f"{probes.LAN}:1006"]
        more = [word for bridge in bridges for word in ("--bridge", bridge)] + ["--pt-lyrebird", "/usr/bin/obfs4proxy"]
        self.machine.connect(more=more)
        self.assertEqual(self.wire.arrivals(self.tor_uid, TOR_GROUP), {"https", "tcp6", "lan-tcp"})
        # Bridges in reserve are let through as well, and no others.
        front = "webtunnel 192.0.2.3:80 url=https://a.example/"
        self.machine.connect(more=[*more[:-4], *more[-2:], "--reserve", f"{probes.LAN}:1006"])
        self.assertEqual(self.wire.arrivals(self.tor_uid, TOR_GROUP), {"https", "tcp6", "lan-tcp"})
        self.machine.connect(more=[*more, "--reserve", front])
        self.assertLessEqual({"tcp", "https", "dns-tls"}, self.wire.arrivals(self.tor_uid, TOR_GROUP))
        # Without a bridge in use Tor needs every address.
        self.machine.connect(more=["--reserve", f"obfs4 {probes.PUBLIC}:443 cert=a iat-mode=0", *more[-2:]])
        self.assertLessEqual({"tcp", "https", "dns-tls"}, self.wire.arrivals(self.tor_uid, TOR_GROUP))
        # With a transport that uses a front, or with an administrator's proxy, the address of the bridge is not known beforehand.
        self.machine.connect(more=[*more, "--bridge", "webtunnel 192.0.2.3:80 url=https://a.example/"])
        self.assertLessEqual({"tcp", "https", "dns-tls"}, self.wire.arrivals(self.tor_uid, TOR_GROUP))
        for line in "HTTPSProxy 192.0.2.8:8", "%include /run/more":
            self.machine.shell(
                f"cp /etc/tor/torrc-defaults /run/defaults; echo HTTPSProxy 192.0.2.8:8 >/run/more; echo '{line}' >>/etc/tor/torrc-defaults"
            )
            try:
                self.machine.connect(more=more)
                self.assertLessEqual({"tcp", "https", "dns-tls"}, self.wire.arrivals(self.tor_uid, TOR_GROUP), line)
            finally:
                self.machine.help("disconnect")
                self.machine.shell("cat /run/defaults >/etc/tor/torrc-defaults; rm /run/defaults /run/more")
        self.before = self.machine.snapshot()

    def control(self, *lines, uid=USER_UID):
        """Tor's replies, one for each line. As root at Tor's own socket, where there is a filter before the port."""
        talk = (
            "import os, socket, sys\nif os.path.exists(sys.argv[1]): c = socket.socket(socket.AF_UNIX); c.connect(sys.argv[1])\n"
            "else: c = socket.create_connection(('127.0.0.1', 9051), 10)\nf = c.makefile('rw', newline='\\r\\n')\n"
            "for line in sys.argv[2:]:\n f.write(line + '\\n'); f.flush(); reply = f.readline()\n while reply[3:4] == '-': print(reply.strip()); reply = f.readline()\n print(reply.strip())"
        )
        return self.machine.run("/usr/bin/python3", "-c", talk, f"{DATA}/control", *lines, uid=uid).stdout.splitlines()

    def connect_with_password(self, *more):
        hashed = self.machine.run(namespace.TOR, "--quiet", "--hash-password", "the word").stdout.strip()
        self.machine.help(
            "connect",
            "--tor",
            namespace.TOR,
            "--hash",
            hashed,
            "--strict",
            "1",
            "--lan",
            "0",
            *more,
            env={"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)},
        )

    def test_without_the_password_the_control_port_does_nothing(self):
        self.connect_with_password()
        self.assertIn("250-AUTH METHODS=HASHEDPASSWORD", self.control("PROTOCOLINFO 1", uid=0))
        for words in (
            "AUTHENTICATE",
            'AUTHENTICATE ""',
            'AUTHENTICATE "another"',
            "GETINFO config-text",
            "SETCONF HTTPSProxy=192.0.2.8:8",
        ):
            for uid in USER_UID, 0:
                self.assertRegex(self.control(words, uid=uid)[-1], "^51[45] ")
        self.assertEqual(self.control('AUTHENTICATE "the word"', "SETCONF DisableNetwork=1"), ["250 OK", "250 OK"])
        self.assertEqual(self.control('AUTHENTICATE "the word"', "SETCONF HTTPSProxy=192.0.2.8:8", uid=0), ["250 OK", "250 OK"])
        # The password's hash is not readable either, since passwords could be tried against it.
        for uid in USER_UID, OTHER_UID:
            self.assertNotEqual(self.machine.run("cat", "/var/lib/veldmark/run/torrc", uid=uid, check=False).returncode, 0)

    def test_without_bridges_the_password_runs_no_program(self):
        """Tor accepts the command at its own socket and starts no program. It has network access (which leads nowhere here), since it never starts
        one without."""
        words = (
            'AUTHENTICATE "the word"',
            f'SETCONF ClientTransportPlugin="obfs4 exec /usr/bin/touch {DATA}/ran" UseBridges=1 Bridge="obfs4 192.0.2.1:443"',
            "SETCONF DisableNetwork=0",
        )
        log = "/var/lib/veldmark/run/notices.log"
        for more, runs in ([], False), (
            ["--bridge", "obfs4 192.0.2.1:443 cert=a iat-mode=0", "--pt-lyrebird", "/usr/bin/obfs4proxy"],
            True,
        ):
            self.connect_with_password(*more)
            if not runs:
                self.assertNotEqual(self.control(words[0], "SETCONF NoExec=0", uid=0)[-1][:3], "250")
            self.control(*words, uid=0)
            self.machine.shell(f"until [ -e {DATA}/ran ] || grep -q 'not compatible with NoExec mode' {log}; do sleep 0.01; done")
            self.assertEqual(self.machine.shell(f"ls {DATA}/ran || true").strip() != "", runs)
            self.machine.help("disconnect")
            self.machine.shell(f"rm -f {DATA}/ran")

    def as_tor_within(self, script):
        """Runs a script in Tor's own mounts, like code of Tor's account."""
        [pid] = self.machine.tor_pids()
        return self.machine.run(
            "nsenter",
            "--target",
            pid,
            "--mount",
            "setpriv",
            "--reuid",
            "_veldmark",
            "--regid",
            "_veldmark",
            "--clear-groups",
            "/bin/sh",
            "-c",
            script,
            check=False,
        )

    def test_tors_account_leaves_nothing_that_others_can_run(self):
        self.machine.shell("mkdir -m 1777 /run/everybodys /home/everybodys; cp /usr/bin/id /run/id")
        places = ["/run/everybodys", "/home/everybodys", "/tmp", "/var/tmp", "/dev/shm", DATA]
        self.machine.shell(
            "setpriv --reuid _veldmark --clear-groups /bin/sh -c 'cp /run/id /run/everybodys/control; chmod 4755 /run/everybodys/control'"
        )
        self.assertIn(f"euid={self.tor_uid}", self.machine.run("/run/everybodys/control", uid=OTHER_UID).stdout)
        self.machine.shell("rm /run/everybodys/control")
        self.machine.connect()
        for place in places:
            self.as_tor_within(f"cp /run/id {place}/left; chmod 4755 {place}/left; chmod 755 {DATA}")
            done = self.machine.run("/bin/sh", "-c", f"{place}/left", uid=OTHER_UID, check=False)
            self.assertNotEqual(done.returncode, 0, f"{place}: {done.stdout}")
        self.assertEqual(
            self.machine.shell(f"find {' '.join(places)} -name left -perm -4000"), f"{DATA}/left\n"
        )  # it could write there
        self.assertNotIn("euid", self.as_tor_within(f"{DATA}/left").stdout)
        self.machine.help("disconnect")
        self.assertNotEqual(self.machine.run("/bin/sh", "-c", f"{DATA}/left", uid=OTHER_UID, check=False).returncode, 0)
        self.machine.shell(f"rm -r /run/everybodys /home/everybodys /run/id {DATA}/left; chmod 700 {DATA}")

    def test_what_is_unmounted_is_not_kept_by_tor(self):
        self.machine.shell("mkdir /opt/stick; mount -t tmpfs earlier /opt/stick; mount --make-rshared /")
        try:
            self.machine.connect()
            [pid] = self.machine.tor_pids()

            def mounted():
                return self.machine.shell(f"grep -c ' /opt/stick ' /proc/{pid}/mountinfo || true").strip()

            self.assertEqual(mounted(), "1")
            self.machine.shell("umount /opt/stick")
            self.assertEqual(mounted(), "0")
        finally:
            self.machine.shell("mountpoint -q /opt/stick && umount /opt/stick; rmdir /opt/stick; mount --make-rprivate /")

    def test_file_systems_of_users_are_hidden_without_a_complaint(self):
        place = "/home/card"
        self.machine.shell(f"mkdir {place}; mount -t tmpfs session {place}; echo known >{place}/seen; chmod 755 {place}")
        try:
            self.assertEqual(self.machine.run("cat", f"{place}/seen", uid=OTHER_UID).stdout, "known\n")
            self.machine.connect()
            self.assertEqual(
                self.as_tor_within(f"cat {place}/seen 2>/dev/null; touch {place}/left 2>/dev/null || echo none").stdout, "none\n"
            )
            self.assertEqual(self.machine.shell("cat /var/lib/veldmark/run/launcher.out"), "")
        finally:
            self.machine.shell(f"umount {place}; rmdir {place}")

    def test_the_data_folder_of_an_earlier_version_is_taken_over(self):
        self.machine.shell(
            f"mv {DATA} /var/lib/veldmark/run/data; rmdir {os.path.dirname(DATA)}; touch /var/lib/veldmark/run/data/guards"
        )
        self.machine.connect()
        self.machine.shell(f"test -e {DATA}/guards; rm {DATA}/guards; test ! -e /var/lib/veldmark/run/data")


if __name__ == "__main__":
    namespace.main()

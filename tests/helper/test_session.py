"""Connecting and disconnecting: what changes, what is restored, and what happens when Tor ends."""

import os
import subprocess

import namespace
from namespace import HASH, TOR, HelperTest

MARKER = "/var/lib/veldmark/state/active"


class Session(HelperTest):
    def setUp(self):
        self.before = self.machine.snapshot()

    def tearDown(self):
        self.machine.help("disconnect")
        self.assertEqual(self.machine.snapshot(), self.before)

    def marker(self):
        return self.machine.shell(f"cat {MARKER} 2>/dev/null || true")

    def test_strict_session_stands_and_goes(self):
        self.machine.connect(strict=1)
        self.assertEqual(self.marker(), "strict\n")
        rules = self.machine.run("nft", "list", "ruleset").stdout
        self.assertIn("policy drop", rules)
        self.assertEqual(len(self.machine.tor_pids()), 1)
        self.assertIn("nameserver 127.0.0.1\n", self.machine.shell("cat /etc/resolv.conf"))
        self.assertIn("127.0.0.1:9051", self.machine.shell("ss -Hltn"))
        self.assertNotEqual(self.machine.snapshot(), self.before)

    def test_proxy_session_stands_and_goes(self):
        self.machine.connect(strict=0)
        self.assertEqual(self.marker(), "proxy\n")
        rules = self.machine.run("nft", "list", "ruleset").stdout
        self.assertIn("redirect to :293", rules)
        self.assertNotIn("policy drop", rules)

    def test_marker_is_readable_by_everybody(self):
        self.machine.connect()
        self.assertEqual(self.machine.run("cat", MARKER, uid=namespace.USER_UID).stdout, "strict\n")

    def test_logs_are_readable_by_the_sessions_user_alone(self):
        self.machine.connect(env={"PATH": os.environ["PATH"], "PKEXEC_UID": str(namespace.USER_UID)})
        for name in "notices.log", "start.out", "launcher.out":
            path = "/var/lib/veldmark/run/" + name
            self.machine.run("cat", path, uid=namespace.USER_UID)
            self.assertNotEqual(self.machine.run("cat", path, uid=4243, check=False).returncode, 0)
            # Members of the user's primary group may not either; on some systems that is every user.
            self.machine.run("setpriv", "--reuid=4243", f"--regid={namespace.USER_UID}", "--clear-groups", "true")
            self.assertNotEqual(
                self.machine.run(
                    "setpriv", "--reuid=4243", f"--regid={namespace.USER_UID}", "--clear-groups", "cat", path, check=False
                ).returncode,
                0,
            )
        self.assertIn("opening new log file", self.machine.shell("cat /var/lib/veldmark/run/notices.log"))

    def test_tor_has_no_rights_and_no_descriptor_of_ours(self):
        self.machine.connect()
        [pid] = self.machine.tor_pids()
        status = self.machine.shell(f"cat /proc/{pid}/status")
        for field in "CapInh", "CapPrm", "CapEff", "CapBnd", "CapAmb":
            self.assertRegex(status, rf"{field}:\s+0+400\n")  # CAP_NET_BIND_SERVICE, for the DNS port
        self.assertRegex(status, r"NoNewPrivs:\s+1\n")
        self.assertRegex(status, r"Groups:\s*\n")
        for kind in "mnt", "pid":
            self.assertEqual(len(set(self.machine.shell(f"readlink /proc/{pid}/ns/{kind} /proc/1/ns/{kind}").split())), 2, kind)
        self.assertNotIn("veldmark.lock", self.machine.shell(f"ls -l /proc/{pid}/fd"))
        launcher = self.machine.shell(f"ps -o ppid= -p {pid}").strip()
        self.assertNotIn("veldmark.lock", self.machine.shell(f"ls -l /proc/{launcher}/fd"))
        self.assertNotEqual(self.machine.shell(f"ps -o sid= -p {pid}"), self.machine.shell("ps -o sid= -p $$"))
        self.assertIn("flock ok", self.machine.shell("flock -n /run/veldmark.lock echo flock ok"))

    def test_tor_keeps_the_former_resolvers(self):
        for _ in range(2):  # also a second connect, when the resolver points at Tor already
            self.machine.connect()
            [pid] = self.machine.tor_pids()
            self.assertEqual(self.machine.shell(f"cat /proc/{pid}/root/etc/resolv.conf"), "nameserver 192.0.2.53\n")

    def test_tor_cannot_load_code_from_users_folders(self):
        self.machine.connect()
        [pid] = self.machine.tor_pids()
        options = {line.split()[4]: line.split()[5] for line in self.machine.shell(f"cat /proc/{pid}/mountinfo").splitlines()}
        for place in "/home", "/tmp", "/var/tmp", "/dev/shm":
            self.assertIn("noexec", options[place])

    def test_inherited_descriptors_do_not_reach_tor(self):
        self.machine.shell(
            'exec 3</etc/passwd 12</etc/group 37</etc/hosts; exec /bin/bash "$@"',
            self.machine.helper,
            "connect",
            "--tor",
            TOR,
            "--hash",
            HASH,
            "--strict",
            "1",
            "--lan",
            "0",
        )
        [pid] = self.machine.tor_pids()
        listing = self.machine.shell(f"ls -l /proc/{pid}/fd")
        for name in "/etc/passwd", "/etc/group", "/etc/hosts":
            self.assertNotIn(name, listing)

    def test_connecting_twice_keeps_what_was_before(self):
        self.machine.connect()
        [first] = self.machine.tor_pids()
        self.machine.connect(lan=1)
        [second] = self.machine.tor_pids()
        self.assertNotEqual(first, second)
        self.assertEqual(len(self.machine.shell("grep veldmark-resolv /proc/self/mountinfo").splitlines()), 1)

    def test_strict_then_proxy_then_strict(self):
        traces = "ls /sys/fs/cgroup /var/lib/veldmark/journal | grep -e bypass -e watcher || true; pgrep -f /watcher[.]sh || true"
        self.machine.connect(strict=1)
        self.assertIn("veldmark-bypass", self.machine.shell(traces))
        self.machine.connect(strict=0)
        self.assertEqual(self.marker(), "proxy\n")
        self.assertNotIn("policy drop", self.machine.run("nft", "list", "ruleset").stdout)
        self.assertEqual(self.machine.shell(traces), "")  # a strict session's own parts are removed
        self.machine.connect(strict=1)
        self.assertEqual(self.marker(), "strict\n")
        self.assertIn("policy drop", self.machine.run("nft", "list", "ruleset").stdout)

    def test_configuration_that_tor_refuses_changes_nothing(self):
        done = self.machine.connect(more=["--bridge", "1.2.3.4:443 nonsense"], check=False)
        self.assertOneLine(done, "Tor does not accept its configuration: ")
        self.assertIn("Bridge", done.stderr)
        self.assertEqual(self.machine.snapshot(), self.before)

    def test_refused_configuration_leaves_the_session_in_force(self):
        self.machine.connect()
        self.machine.await_watcher()
        during = self.machine.snapshot()
        self.assertOneLine(self.machine.connect(more=["--bridge", "1.2.3.4:443 nonsense"], check=False))
        self.assertEqual(self.machine.snapshot(), during)

    def take_port(self, port):
        """Takes a port without listening there. No list of the kernel's has such a socket, so only Tor finds out."""
        holder = self.machine.start(
            "/usr/bin/python3",
            "-c",
            f"import socket, sys; s = socket.socket(); s.bind(('127.0.0.1', {port})); print('up', flush=True); sys.stdin.read()",
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
        )
        self.assertEqual(holder.stdout.readline(), b"up\n")
        self.addCleanup(holder.wait)
        self.addCleanup(holder.communicate)
        return holder

    def test_tor_that_dies_at_start_leaves_strict_closed(self):
        holder = self.take_port(9051)
        done = self.machine.connect(strict=1, check=False)
        self.assertOneLine(done, "Tor did not start: ")
        self.assertIn("The network stays blocked until you disconnect.", done.stderr)
        self.assertIn("policy drop", self.machine.run("nft", "list", "ruleset").stdout)
        self.assertEqual(self.marker(), "strict\n")
        self.assertEqual(self.machine.tor_pids(), [])
        holder.communicate()

    def test_tor_that_dies_at_start_undoes_proxy_mode(self):
        holder = self.take_port(9051)
        done = self.machine.connect(strict=0, check=False)
        self.assertOneLine(done, "Tor did not start: ")
        self.assertNotIn("stays blocked", done.stderr)
        holder.communicate()
        self.assertEqual(self.machine.snapshot(), self.before)

    def test_failed_change_to_proxy_leaves_strict_closed(self):
        self.machine.connect(strict=1)
        self.machine.shell("kill -9 $(pgrep -u _veldmark); while pgrep -u _veldmark; do sleep 0.01; done")
        holder = self.take_port(9051)
        self.assertOneLine(self.machine.connect(strict=0, check=False), "stays blocked")
        self.assertIn("policy drop", self.machine.run("nft", "list", "ruleset").stdout)
        self.assertEqual(self.marker(), "strict\n")
        holder.communicate()

    def test_killed_tor_leaves_strict_closed(self):
        self.machine.connect(strict=1)
        self.machine.shell("kill -9 $(pgrep -u _veldmark)")
        self.assertIn("policy drop", self.machine.run("nft", "list", "ruleset").stdout)

    def test_tor_dies_with_its_launcher(self):
        self.machine.connect(strict=1)
        [pid] = self.machine.tor_pids()
        self.machine.shell("kill -9 $(ps -o ppid= -p $1); while [ -e /proc/$1 ] && pgrep -u _veldmark >/dev/null; do :; done", pid)
        self.assertEqual(self.machine.tor_pids(), [])

    def test_marker_from_before_a_restart_promises_nothing(self):
        """The kill switch is gone, so a failed connect must not say that the network is blocked."""
        self.machine.connect(strict=1)
        self.machine.end_watcher()
        self.machine.shell("kill -9 $(pgrep -u _veldmark); umount /etc/resolv.conf; nft delete table inet veldmark")
        holder = self.take_port(9051)
        done = self.machine.connect(strict=0, check=False)
        self.assertOneLine(done, "Tor did not start")
        self.assertNotIn("blocked", done.stderr)
        holder.communicate()
        self.assertEqual(self.machine.snapshot(), self.before)

    def test_firewall_that_cannot_be_opened_keeps_the_marker(self):
        self.machine.connect(strict=1)
        self.machine.shell(
            "printf '#!/bin/sh\necho no >&2; exit 1\n' >/mnt/nft; chmod +x /mnt/nft; mount --bind /mnt/nft /usr/sbin/nft"
        )
        try:
            self.assertOneLine(self.machine.help("disconnect", check=False), "kill switch could not be switched off")
            self.assertEqual(self.marker(), "strict\n")
        finally:
            self.machine.shell("umount /usr/sbin/nft; rm /mnt/nft")

    def test_tor_that_does_not_hear_is_killed(self):
        self.machine.connect()
        self.machine.shell("kill -STOP $(pgrep -u _veldmark)")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.tor_pids(), [])

    def test_reused_process_id_is_left_alone(self):
        self.machine.connect()
        bystander = self.machine.start("sleep", "1000")
        self.addCleanup(bystander.wait)
        pid = self.machine.shell("until pgrep -x sleep; do :; done").strip()
        self.machine.shell('kill -9 $(pgrep -u _veldmark); sed -i "s/^pid .*/pid $1/" /var/lib/veldmark/journal/20-tor', pid)
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell("pgrep -x sleep").strip(), pid)
        self.machine.run("kill", pid)
        bystander.wait()

    def test_process_of_before_a_restart_is_left_alone(self):
        """After a restart another process may have the same number, and by chance the same start time."""
        self.machine.connect()
        [tor] = self.machine.tor_pids()
        entry = "/var/lib/veldmark/journal/20-tor"
        boot = self.machine.shell(f"sed -n 's/^boot //p' {entry}").strip()
        self.machine.shell(f"sed -i 's/^boot .*/boot other/' {entry}")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.tor_pids(), [tor])
        self.machine.shell(
            f"printf 'pid %s\nstart %s\nboot %s\nend\n' $(ps -o ppid= -p $1) $(cut -d' ' -f22 /proc/$(ps -o ppid= -p $1 | tr -d ' ')/stat) $2 >{entry};"
            f"chmod 600 {entry}",
            tor,
            boot,
        )
        self.machine.help("disconnect")  # with this boot's id the same note ends the process
        self.assertEqual(self.machine.tor_pids(), [])

    def test_folders_that_cannot_be_looked_at_stop_everything(self):
        """The helper cannot know then whether there is anything to undo."""
        self.machine.connect(strict=1)
        self.machine.await_watcher()
        during = self.machine.snapshot()
        self.machine.shell("printf '#!/bin/sh\nexit 1\n' >/mnt/stat; chmod +x /mnt/stat; mount --bind /mnt/stat /usr/bin/stat")
        try:
            for verb in "disconnect", "fix-dns":
                self.assertOneLine(self.machine.help(verb, check=False), "cannot be read, so nothing was done.")
        finally:
            self.machine.shell("umount /usr/bin/stat; rm /mnt/stat")
        self.assertEqual(self.machine.snapshot(), during)

    def test_disconnect_after_a_restart_of_the_computer(self):
        self.machine.connect()
        self.machine.end_watcher()
        self.machine.shell(
            "kill -9 $(pgrep -u _veldmark); umount /etc/resolv.conf; nft delete table inet veldmark;"
            "sed -i 's/^boot .*/boot other/' /var/lib/veldmark/journal/20-tor; rm /run/veldmark.lock"
        )
        self.machine.help("disconnect")
        self.assertEqual(self.marker(), "")

    def test_disconnect_without_a_session(self):
        done = self.machine.help("disconnect")
        self.assertEqual((done.stdout, done.stderr), ("", ""))

    def test_torn_journal_still_opens_the_network(self):
        for entry in "10-firewall", "12-bypass", "15-watcher", "20-tor", "30-resolver":
            with self.subTest(entry):
                self.machine.connect()
                self.machine.shell(f"printf 'pid 1' >/var/lib/veldmark/journal/{entry}")
                self.assertOneLine(self.machine.help("disconnect", check=False), "was damaged")
                self.assertEqual(self.machine.snapshot(), self.before)
                self.machine.help("disconnect")

    def test_journal_that_others_could_write_is_not_believed(self):
        self.machine.connect()
        self.machine.shell(
            "chmod 0777 /var/lib/veldmark/journal; printf 'target /etc/hosts\ncreated 1\nend\n'"
            ">/var/lib/veldmark/journal/30-resolver"
        )
        self.machine.help("disconnect")
        self.machine.shell("test -e /etc/hosts; chmod 0700 /var/lib/veldmark/journal")
        self.machine.help("disconnect")

    def test_links_are_replaced_and_never_followed(self):
        """The helper replaces a link in a file's place, and refuses a folder or a lock file that is a link."""
        self.machine.shell(
            "echo mine >/run/mine; cd /var/lib/veldmark; for name in state/active state/active.new journal/10-firewall journal/20-tor.new"
            " run/torrc run/torrc.checked run/firewall.nft run/firewall.nft.new run/notices.log run/launcher.out run/tor-resolv.conf;"
            " do ln -sf /run/mine $name; done"
        )
        before = self.machine.shell("stat -c '%i %a %u %Y' /run/mine")
        self.machine.connect()
        self.assertEqual(self.marker(), "strict\n")
        self.assertEqual(self.machine.shell("find /var/lib/veldmark -type l"), "")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell("cat /run/mine; stat -c '%i %a %u %Y' /run/mine"), "mine\n" + before)
        for path, refusal in ("/var/lib/veldmark/run", "is not safe"), ("/run/veldmark.lock", "is a link"):
            self.machine.shell('mv "$1" "$1.away" && ln -s "$1.away" "$1"', path)
            self.assertOneLine(self.machine.connect(check=False), refusal)
            self.machine.shell('rm "$1"; mv "$1.away" "$1"', path)

    def test_half_written_notes_go_with_the_session(self):
        self.machine.connect()
        notes = "/run/veldmark.others.new /var/lib/veldmark/journal/20-tor.new"
        self.machine.shell(f"touch {notes}; ls {notes}")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell(f"ls {notes} 2>/dev/null || true"), "")

    def test_file_that_is_no_resolver_file_is_not_shown_to_everybody(self):
        """A link in another user's folder may lead to any file by the time that it is read."""
        self.machine.shell(
            "cp -a /etc/resolv.conf /run/former; printf 'root:secret:\\nnameserver 192.0.2.7\\noptions edns0' >/run/private;"
            "ln -sfn /run/private /etc/resolv.conf"
        )
        try:
            self.machine.connect()
            self.assertEqual(
                self.machine.shell("cat /var/lib/veldmark/run/tor-resolv.conf"), "nameserver 192.0.2.7\noptions edns0\n"
            )
            self.machine.help("disconnect")
        finally:
            self.machine.shell("rm /etc/resolv.conf; mv /run/former /etc/resolv.conf")

    def test_limits_of_the_callers_shell_end_nothing(self):
        """The limits end neither the run nor the watcher and Tor, which outlive it."""
        run = f'exec /bin/bash "{self.machine.helper}" "$@"'
        words = ["connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0"]
        self.assertNotEqual(self.machine.run("/bin/bash", "-c", "ulimit -Sf 0; echo x >/run/x", check=False).returncode, 0)
        for limit in "-Sf 0", "-Sn 9", "-St 1", "-Sv 20000", "-Ss 64", "-Su 1":
            with self.subTest(limit):
                self.machine.run("/bin/bash", "-c", f"ulimit {limit}; {run}", "limited", *words)
                self.machine.await_watcher()
                [tor] = self.machine.tor_pids()
                watcher = self.machine.shell("pgrep -xf '/bin/bash -p -- /var/lib/veldmark/run/watcher.sh'").strip()
                for pid, file_size in (tor, "104857600"), (
                    watcher,
                    "unlimited",
                ):  # the helper's own limit for Tor's files, in bytes
                    limits = self.machine.shell(f"cat /proc/{pid}/limits")
                    self.assertRegex(limits, rf"Max file size +{file_size}")
                    for name in "cpu time", "address space":
                        self.assertRegex(limits, rf"Max {name} +unlimited")
                    self.assertRegex(limits, r"Max processes +(\d{3,}|unlimited)")
                    self.assertRegex(limits, r"Max open files +\d{4}")
                    self.assertRegex(limits, r"Max stack size +(\d{7}|unlimited)")
                self.machine.run("/bin/bash", "-c", f"ulimit {limit}; {run}", "limited", "disconnect")
                self.assertEqual(self.machine.snapshot(), self.before)

    def test_folder_that_others_can_write_is_refused(self):
        for folder in "/var/lib/veldmark", "/var/lib/veldmark/state", "/var/lib/veldmark/run":
            self.machine.shell(f"chmod 0777 {folder}")
            self.assertOneLine(self.machine.connect(check=False), "is not safe")
            self.machine.shell(f"chmod 0755 {folder}")

    def test_full_disk_changes_nothing(self):
        self.machine.shell(
            "mount -t tmpfs -o size=64k,mode=755 small /var/lib/veldmark;"
            "head -c 65536 /dev/zero >/var/lib/veldmark/filler || true"
        )
        done = self.machine.connect(check=False)
        rules = self.machine.run("nft", "list", "ruleset").stdout
        self.machine.shell("umount /var/lib/veldmark")
        self.assertOneLine(done, "cannot be")
        self.assertEqual(rules, "")

    def test_journal_that_cannot_be_written_changes_nothing(self):
        self.machine.shell(
            "rm -rf /var/lib/veldmark/journal; mkdir /mnt/j; mkdir -m 0700 /var/lib/veldmark/journal;"
            "mount -t tmpfs -o ro,mode=700 j /var/lib/veldmark/journal"
        )
        done = self.machine.connect(check=False)
        self.machine.shell("umount /var/lib/veldmark/journal; rmdir /mnt/j")
        self.assertOneLine(done, "The record of the former network settings cannot be written.")
        self.assertEqual(self.machine.snapshot(), self.before)

    def test_fix_dns_puts_back_the_mount_and_flushed_rules(self):
        self.machine.connect()
        self.machine.await_watcher()
        during = self.machine.snapshot()
        self.machine.end_watcher()
        self.machine.shell("umount /etc/resolv.conf; nft flush ruleset")
        self.assertNotEqual(self.machine.snapshot(), during)
        self.machine.help("fix-dns")
        self.machine.await_watcher()
        self.assertEqual(self.machine.snapshot(), during)

    def test_fix_dns_without_a_session_is_refused(self):
        self.assertOneLine(self.machine.help("fix-dns", check=False), "not connected")

    def test_entry_guards_survive(self):
        self.machine.connect()
        self.machine.help("disconnect")
        first = self.machine.shell("stat -c %i /var/lib/veldmark/run/tor/data")
        self.machine.connect()
        self.assertEqual(self.machine.shell("stat -c %i /var/lib/veldmark/run/tor/data"), first)

    def test_ctrl_c_does_not_stop_it_half_way(self):
        run = self.machine.start(
            "setsid",
            "/bin/bash",
            self.machine.helper,
            "connect",
            "--tor",
            TOR,
            "--hash",
            HASH,
            "--strict",
            "1",
            "--lan",
            "0",
            stdin=subprocess.DEVNULL,
        )
        marker = f"/proc/{self.machine.pid}/root{MARKER}"
        while run.poll() is None and not os.path.exists(marker):
            pass
        with open(f"/proc/{run.pid}/task/{run.pid}/children", encoding="ascii") as children:
            helper = int(children.read())
        signals = 0
        while run.poll() is None:
            try:
                os.kill(helper, (2, 15, 1, 3, 13)[signals % 5])
            except ProcessLookupError:
                break
            signals += 1
        run.wait()
        self.assertGreater(signals, 5)
        self.assertEqual(run.returncode, 0)
        self.assertEqual(len(self.machine.tor_pids()), 1)


class ResolverFile(HelperTest):
    def tearDown(self):
        self.machine.help("disconnect")

    def cycle(self, setup):
        self.machine.shell(setup)
        before = self.machine.snapshot()
        self.machine.connect()
        self.assertIn("127.0.0.1", self.machine.shell("cat /etc/resolv.conf"))
        self.machine.help("disconnect")
        self.assertEqual(self.machine.snapshot(), before)

    def test_link(self):
        self.cycle(
            "mkdir -p /run/resolver; echo 'nameserver 192.0.2.7' >'/run/resolver/a b'; ln -sf '/run/resolver/a b' /etc/resolv.conf"
        )

    def test_dangling_link(self):
        self.cycle("mkdir -p /run/none; ln -sf /run/none/file /etc/resolv.conf")

    def test_missing(self):
        self.cycle("rm -f /etc/resolv.conf")

    def test_resolver_that_cannot_be_noted_is_not_touched(self):
        for setup in "rm -f /etc/resolv.conf", "echo 'nameserver 192.0.2.7' >/etc/resolv.conf":
            with self.subTest(setup):
                self.machine.shell(f"{setup}; mkdir -p /var/lib/veldmark/journal/30-resolver.new/x")
                before = self.machine.snapshot()
                try:
                    self.assertOneLine(
                        self.machine.connect(strict=0, check=False), "The record of the former network settings cannot be written."
                    )
                    self.assertEqual(self.machine.snapshot(), before)
                finally:
                    self.machine.shell("rm -r /var/lib/veldmark/journal/30-resolver.new")

    def test_missing_folder_is_left_alone(self):
        self.machine.shell("ln -sf /run/nowhere/at/all /etc/resolv.conf")
        self.machine.connect()
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell("ls -d /run/nowhere || true"), "")

    def test_a_foreign_mount_below_ours_stays(self):
        self.cycle(
            "rm -f /etc/resolv.conf; echo >/etc/resolv.conf; echo 'nameserver 192.0.2.8' >/run/theirs;"
            "mount --bind /run/theirs /etc/resolv.conf"
        )
        self.machine.shell("umount /etc/resolv.conf")

    def test_local_resolver_is_passed_over_for_the_servers_that_it_asks(self):
        self.machine.shell(
            "rm -f /etc/resolv.conf; echo 'nameserver 127.0.0.53' >/etc/resolv.conf;"
            "mkdir -p /run/systemd/resolve; echo 'nameserver 192.0.2.9' >/run/systemd/resolve/resolv.conf"
        )
        self.machine.connect(
            more=["--bridge", "meek_lite 192.0.2.1:80 url=https://a.example/", "--pt-lyrebird", "/usr/bin/obfs4proxy"]
        )
        [tor] = [pid for pid in self.machine.tor_pids() if "tor" in self.machine.shell(f"cat /proc/{pid}/comm")][:1]
        self.assertEqual(self.machine.shell(f"cat /proc/{tor}/root/etc/resolv.conf"), "nameserver 192.0.2.9\n")
        self.assertRegex(self.machine.run("nft", "list", "ruleset").stdout, r"ip daddr 192\.0\.2\.9 udp dport 53 accept")
        self.machine.help("disconnect")
        self.machine.shell("rm -r /run/systemd")


if __name__ == "__main__":
    namespace.main()

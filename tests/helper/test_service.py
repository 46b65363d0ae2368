"""The system's own Tor service holds the ports that Veldmark's Tor needs. A connect stops the service, and a disconnect starts it
again. systemctl and the service are stand-ins with real processes and ports."""

import subprocess
import time

import namespace
import services
from namespace import HelperTest
from services import TOR_UNIT

STATE = "/var/lib/veldmark/state/active"
ENTRY = "/var/lib/veldmark/journal/18-service"


class Service(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        services.add_systemctl(cls.machine)

    def setUp(self):
        services.start_tor_service(self.machine)
        self.before = self.machine.snapshot()
        self.assertTrue(self.runs())

    def tearDown(self):
        self.machine.shell("rm -f /run/units/*.stuck")
        self.machine.help("disconnect", check=False)
        self.machine.shell(
            "for unit in tor@default tor@other tor; do systemctl stop $unit.service; done; rm -f /run/units/tor* /run/units/said; ! pgrep -xa tor"
        )

    def runs(self):
        return services.tor_service_runs(self.machine)

    def connect_again(self, strict=1):
        self.machine.connect(strict=strict)
        self.assertFalse(self.runs())

    def assertGivenBack(self):
        self.assertTrue(self.runs())
        self.assertEqual(self.machine.snapshot(), self.before)

    def test_it_is_stopped_for_the_session_and_started_again(self):
        for strict in 0, 1:
            for times in 1, 2:
                for _ in range(times):
                    self.connect_again(strict)
                self.assertEqual(len(self.machine.tor_pids()), 1)
                self.machine.help("disconnect")
                self.assertGivenBack()

    def test_the_other_name_of_such_a_service(self):
        self.machine.shell("systemctl stop tor@default.service")
        services.start_tor_service(self.machine, "tor.service", (9051,))
        self.machine.connect()
        self.assertFalse(services.tor_service_runs(self.machine, "tor.service"))
        self.machine.help("disconnect")
        self.assertTrue(services.tor_service_runs(self.machine, "tor.service"))
        self.assertFalse(self.runs(), "what did not run was started")

    def test_it_is_told_nothing_where_it_holds_no_port(self):
        self.machine.shell("systemctl stop tor@default.service")
        services.start_tor_service(self.machine, ports=(9150,))
        self.machine.connect()
        self.assertTrue(self.runs())
        self.machine.help("disconnect")
        self.assertTrue(self.runs())

    def test_a_change_of_mode(self):
        self.connect_again(1)
        self.connect_again(0)
        self.connect_again(1)
        self.machine.help("disconnect")
        self.assertGivenBack()

    def test_another_program_is_named_and_nothing_is_changed(self):
        self.machine.shell("systemctl stop tor@default.service")
        services.start_tor_service(self.machine, "tor@other.service")
        before = self.machine.snapshot()
        pid = self.machine.shell("cat /run/units/tor@other.service.pid").strip()
        for strict in 0, 1:
            self.assertOneLine(
                self.machine.connect(strict=strict, check=False),
                f"The port 9050, which Tor needs, is held by tor (process {pid}). End that program, then connect again.",
            )
            self.assertEqual(self.machine.snapshot(), before)

    def test_a_refused_connect_leaves_no_control_group(self):
        """The programs that it has looked with may end late."""
        self.machine.shell("systemctl stop tor@default.service")
        services.start_tor_service(self.machine, "tor@other.service")
        pid = self.machine.shell("cat /run/units/tor@other.service.pid").strip()
        for name, late in ("find", f'*"/proc/{pid}/fd"*'), ("sort", "*"):
            with self.subTest(name):
                path = f"/run/slow/{name}"
                self.machine.shell(
                    'mkdir -p /run/slow; cp -L "/usr/bin/$1" "$2.real";'
                    """printf '#!/bin/bash\\n%s.real "$@"; status=$?\\ncase "$*" in %s) exec >&-; sleep 0.5 ;; esac\\nexit $status\\n' "$2" "$3" >"$2";"""
                    'chmod 755 "$2"; mount --bind "$2" "/usr/bin/$1"',
                    name,
                    path,
                    late,
                )
                try:
                    began = time.monotonic()
                    self.assertOneLine(self.machine.connect(check=False), "The port 9050, which Tor needs, is held by")
                    self.assertGreater(time.monotonic() - began, 0.5, "nothing was late")
                    self.assertEqual(self.machine.shell("find /sys/fs/cgroup -name 'veldmark*'"), "")
                finally:
                    self.machine.shell("umount /usr/bin/$1", name)
        self.machine.shell("rm -r /run/slow")

    def test_a_service_that_holds_no_port_is_not_stopped_for_another_program(self):
        self.machine.shell("systemctl stop tor@default.service")
        services.start_tor_service(self.machine, ports=(9150,))
        services.start_tor_service(self.machine, "tor@other.service")
        self.assertOneLine(self.machine.connect(check=False), "is held by tor (process ")
        self.assertTrue(self.runs())

    def test_what_was_stopped_before_stays_noted(self):
        """A second service holds a port at the next connect of the same session."""
        self.machine.shell("systemctl stop tor@default.service")
        services.start_tor_service(self.machine, ports=(9050,))
        self.connect_again()
        self.machine.shell("kill -9 $(pgrep -u _veldmark); while pgrep -u _veldmark; do sleep 0.01; done")
        services.start_tor_service(self.machine, "tor.service", (9051,))
        self.connect_again()
        self.assertFalse(services.tor_service_runs(self.machine, "tor.service"))
        self.machine.help("disconnect")
        self.assertTrue(self.runs() and services.tor_service_runs(self.machine, "tor.service"))

    def test_a_session_stays_where_the_next_connect_cannot_begin(self):
        self.connect_again(1)
        self.machine.shell("kill -9 $(pgrep -u _veldmark); while pgrep -u _veldmark; do sleep 0.01; done")
        services.start_tor_service(self.machine, "tor@other.service", (9051,))
        self.assertOneLine(self.machine.connect(check=False), "The port 9051")
        self.assertIn("policy drop", self.machine.shell("nft list ruleset"))
        self.assertEqual(self.machine.shell(f"cat {STATE}"), "strict\n")

    def test_what_a_program_calls_itself_is_made_printable(self):
        self.machine.shell(
            'systemctl stop tor@default.service; sed -i \'s/b"tor"/b"\\\\x1b[2J\\\\xffx\\\\n"/\' /run/units/tor@default.service;'
            "cd /run/units; mv tor@default.service tor@other.service; systemctl start tor@other.service"
        )
        self.assertOneLine(self.machine.connect(check=False), "is held by ?[2J?x (process ")

    def test_the_holder_is_looked_for_among_many_processes_at_once(self):
        """Counted by the machine's process numbers: with many processes a refused connect starts no more programs than with few. The
        holder is outside the machine, so all are looked through."""
        self.machine.shell("systemctl stop tor@default.service")
        listen = "import socket, sys; s = socket.create_server(('127.0.0.1', 9050)); print('listens', flush=True); sys.stdin.read()"
        holder = subprocess.Popen(
            ["nsenter", "--target", str(self.machine.pid), "--net", "/usr/bin/python3", "-c", listen],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
        )
        self.addCleanup(holder.communicate)
        self.assertEqual(holder.stdout.readline(), b"listens\n")

        def started():
            numbers = "cat /proc/sys/kernel/ns_last_pid"
            before = int(self.machine.shell(numbers))
            self.assertOneLine(self.machine.connect(check=False), "is held by a program of the account with the id 0. End that")
            return int(self.machine.shell(numbers)) - before

        few = started()
        self.machine.shell("for ((i = 0; i < 300; i++)); do sleep 1000 >/dev/null 2>&1 & done")
        self.addCleanup(self.machine.shell, "pkill -x sleep; while pgrep -x sleep; do :; done")
        self.assertLess(started(), few + 100)

    def test_a_listener_on_all_addresses_of_the_other_family_is_named(self):
        """A common default of servers. Tor cannot listen beside it, unless it takes IPv6 alone."""
        self.machine.shell("systemctl stop tor@default.service")
        listen = (
            "import socket, sys\ns = socket.socket(socket.AF_INET6); s.setsockopt(socket.IPPROTO_IPV6, socket.IPV6_V6ONLY, int(sys.argv[3]))\n"
            "s.bind((sys.argv[1], int(sys.argv[2]))); s.listen()\n"
            "print(socket.socket().connect_ex(('127.0.0.1', int(sys.argv[2]))) == 0, flush=True); sys.stdin.read()"
        )
        for address, port, alone in (
            ("::", 9050, False),
            ("::", 9051, False),
            ("::ffff:127.0.0.1", 9050, False),
            ("::", 9050, True),
            ("::1", 9051, True),
        ):
            with self.subTest(address=address, port=port, alone=alone):
                holder = self.machine.start(
                    "/usr/bin/python3",
                    "-c",
                    listen,
                    address,
                    str(port),
                    str(int(alone)),
                    uid=namespace.OTHER_UID,
                    stdin=subprocess.PIPE,
                    stdout=subprocess.PIPE,
                    text=True,
                )
                try:
                    self.assertEqual(holder.stdout.readline(), f"{not alone}\n")
                    before = self.machine.snapshot()
                    pid = self.machine.shell("pgrep -u bob").strip()
                    for strict in 0, 1:
                        done = self.machine.connect(strict=strict, check=alone)
                        if alone:
                            self.machine.help("disconnect")
                        else:
                            self.assertOneLine(
                                done, f"The port {port}, which Tor needs, is held by python3 (process {pid}). End that program"
                            )
                            self.assertEqual(self.machine.snapshot(), before)
                finally:
                    holder.communicate()

    def test_a_listener_on_another_address_is_in_nobodys_way(self):
        self.machine.shell("systemctl stop tor@default.service")
        other = self.machine.start(
            "/usr/bin/python3",
            "-c",
            "import socket, sys\ns = socket.socket(); s.bind(('127.0.0.2', 9050)); s.listen()\n"
            "open('/run/units/up', 'w').close(); sys.stdin.read()",
            stdin=subprocess.PIPE,
        )
        self.machine.shell("until [ -e /run/units/up ]; do sleep 0.01; done")
        try:
            self.machine.connect()
            self.machine.help("disconnect")
        finally:
            other.communicate()

    def test_one_that_cannot_be_stopped(self):
        self.machine.shell(f"touch /run/units/{TOR_UNIT}.stuck")
        self.assertOneLine(self.machine.connect(strict=0, check=False), f"({TOR_UNIT}) cannot be stopped")
        self.assertGivenBack()
        self.assertOneLine(
            self.machine.connect(strict=1, check=False), "cannot be stopped. The network stays blocked until you disconnect."
        )
        self.machine.shell(f"rm /run/units/{TOR_UNIT}.stuck")
        self.machine.help("disconnect")
        self.assertGivenBack()

    def test_one_that_cannot_be_started_again_is_tried_again(self):
        self.connect_again()
        self.machine.shell(f"touch /run/units/{TOR_UNIT}.stuck")
        self.assertOneLine(
            self.machine.help("disconnect", check=False), "could not be started again. Try: systemctl start tor@default.service."
        )
        self.assertNotIn("table inet", self.machine.shell("nft list ruleset"))
        self.assertEqual(self.machine.shell(f"ls {STATE} 2>/dev/null || true"), "")
        self.machine.shell(f"rm /run/units/{TOR_UNIT}.stuck")
        self.machine.help("disconnect")
        self.assertGivenBack()

    def test_one_that_was_removed_meanwhile(self):
        self.connect_again()
        self.machine.shell(f"rm /run/units/{TOR_UNIT}")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.shell(f"ls {ENTRY} 2>/dev/null || true"), "")

    def test_after_a_restart_of_the_computer_it_is_the_systems_to_start(self):
        self.connect_again()
        self.machine.shell(f"sed -i 's/^boot .*/boot other/' {ENTRY}")
        self.machine.help("disconnect")
        self.assertFalse(self.runs())

    def test_no_other_service_is_started(self):
        self.connect_again()
        self.machine.shell(
            "cp /run/units/tor@default.service /run/units/tor@other.service;"
            f"sed -i 's/^unit .*/unit tor@other.service/' {ENTRY}; rm /run/units/said"
        )
        self.machine.help("disconnect")
        self.assertNotIn("start", self.machine.shell("cat /run/units/said 2>/dev/null || true"))

    def test_without_systemd_the_holder_is_named(self):
        self.machine.shell("mount --bind /dev/null /usr/bin/systemctl")
        try:
            self.assertOneLine(self.machine.connect(check=False), "The port 9050, which Tor needs, is held by tor (process ")
        finally:
            self.machine.shell("umount /usr/bin/systemctl")


if __name__ == "__main__":
    namespace.require_namespaces()
    namespace.main()

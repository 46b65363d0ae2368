"""The filter before Tor's control port: with the password, too, only what Veldmark uses reaches Tor; the program by itself, before a
stand-in of Tor."""

import os
import subprocess
import time

import namespace
from namespace import INSTALLED, OTHER_UID, TOR, USER_UID, HelperTest

BUILT = os.path.join(namespace.HERE, "..", "..", "build", "bin", "veldmark-control")
PLACE = "/usr/local/libexec/veldmark"
FILTER = f"{PLACE}/veldmark-control"
SOCKET = "/var/lib/veldmark/run/tor/data/control"
NOTE = "/run/veldmark.watch"
# Where the package has them.
PACKAGED_HELPER = "/usr/share/veldmark/veldmark-helper.sh"
PACKAGED_FILTER = "/usr/libexec/veldmark/veldmark-control"
UNUSABLE = "The filter before Tor's control port cannot be used."
WORD = 'AUTHENTICATE "the word"'

# Says each line at the given place (a port or a socket) and prints the last line of each answer, or "closed".
TALK = r"""
import socket, sys
place = sys.argv[1]
c = socket.create_connection(('127.0.0.1', int(place)), 10) if place.isdigit() else socket.socket(socket.AF_UNIX)
if not place.isdigit(): c.connect(place)
f = c.makefile('rb')
for line in sys.argv[2:]:
    try:
        c.sendall(line.encode('utf-8', 'surrogateescape').decode('unicode_escape').encode('latin-1') + b'\r\n')
        answer, block = f.readline(), False
        while answer and (block or answer[3:4] != b' '):
            block = answer != b'.\r\n' if block else answer[3:4] == b'+'
            answer = f.readline()
    except ConnectionError:
        answer = b''
    print(answer.decode().strip() or 'closed')
"""

# A stand-in of Tor: SOCKET SECONDS. It opens its socket after that time and repeats each command. It speaks without end when it is asked
# for circuits. Asked for streams, it tells its signals.
FAKE = r"""
import os, signal, socket, sys, threading, time
signal.signal(signal.SIGINT, lambda *_: os._exit(5))
time.sleep(float(sys.argv[2]))
s = socket.socket(socket.AF_UNIX); s.bind(sys.argv[1]); s.listen(1000)
def talk(c):
    for line in c.makefile('rb'):
        if line == b'GETINFO circuit-status\r\n':
            while True: c.sendall(b'x' * 65536)
        c.sendall(b'250 OK\r\n' if line.startswith(b'AUTH') else b'510 ' + line)
        if line == b'QUIT\r\n': break
    c.shutdown(socket.SHUT_RDWR)
def serve(c):
    try: talk(c)
    except OSError: pass
    c.close()
while True: threading.Thread(target=serve, args=(s.accept()[0],), daemon=True).start()
"""

# The beginning of programs that are clients of the stand-in.
CLIENT = r"""
import os, socket, sys, time
def to(): return socket.create_connection(('127.0.0.1', 19051), 10)
def ask(c, words):
    c.sendall(words + b'\r\n')
    text = b''
    while not text.endswith(b'\n'):
        some = c.recv(1)
        if not some: return 'closed'
        text += some
    return text.decode().strip()
def known():
    c = to()
    assert ask(c, b'AUTHENTICATE "x"') == '250 OK'
    return c
"""


def program():
    given = os.environ.get("VELDMARK_HELPER")
    return os.path.join(os.path.dirname(given), "veldmark-control") if given else BUILT


class Session(HelperTest):
    """Before the real Tor."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.install_copy()
        cls.machine.shell('install -m 0755 "$1" "$2"', os.path.abspath(program()), FILTER)
        cls.hash = cls.machine.run(TOR, "--quiet", "--hash-password", "the word").stdout.strip()

    def setUp(self):
        self.before = self.machine.snapshot()

    def tearDown(self):
        self.machine.help("disconnect")
        self.assertEqual(self.machine.snapshot(), self.before)

    def connect(self, strict="1", helper=INSTALLED, more=(), **options):
        words = ("connect", "--tor", TOR, "--hash", self.hash, "--strict", strict, "--lan", "0", *more)
        return self.machine.run(
            "/bin/bash", helper, *words, env={"PATH": os.environ["PATH"], "PKEXEC_UID": str(USER_UID)}, **options
        )

    def say(self, *lines, place="9051", uid=USER_UID, **options):
        return self.machine.run("/usr/bin/python3", "-c", TALK, place, *lines, uid=uid, **options).stdout.splitlines()

    def say_to_tor(self, *lines):
        """At Tor's own socket, as root."""
        return self.say(WORD, *lines, place=SOCKET, uid=0)[1:]

    def config(self):
        talk = TALK.replace(
            "answer = f.readline()\n    except", "print(answer.decode().strip()); answer = f.readline()\n    except"
        )
        return self.machine.run("/usr/bin/python3", "-c", talk, SOCKET, WORD, "GETINFO config-text").stdout

    def filters(self):
        return self.machine.shell("pgrep -u _veldmark -x veldmark-contro || true").split()

    REFUSED = (
        "SETCONF HTTPSProxy=192.0.2.8:8",
        "SETCONF SocksPort=127.0.0.1:9060",
        "SETCONF UseBridges=1 Bridge=192.0.2.1:443",
        "SETCONF ControlPort=127.0.0.1:9061",
        'SETCONF Log="debug file /var/lib/veldmark/run/tor/data/log"',
        "SETCONF DisableNetwork=0 HTTPSProxy=192.0.2.8:8",
        "RESETCONF NoExec",
        "MAPADDRESS 192.0.2.77=192.0.2.78",
        "GETINFO config-text",
        "GETCONF HashedControlPassword",
        "SAVECONF",
        "SIGNAL RELOAD",
        "SIGNAL DEBUG",
        "EXTENDCIRCUIT 0",
        "ADD_ONION NEW:BEST Port=80",
        "TAKEOWNERSHIP",
        "PROTOCOLINFO 1",
    )
    ENDING = (
        r"+LOADCONF\r\nSocksPort 127.0.0.1:9060\r\n.",
        r"SIGNAL NEWNYM\0",
        r"SIGNAL NEWNYM\rSETCONF SocksPort=127.0.0.1:9060",
        r"SIGNAL NEWNYM\x0bX",
        "GETINFO " + "x" * 600,
    )
    USED = (
        "GETINFO status/bootstrap-phase",
        "GETINFO traffic/read traffic/written status/circuit-established",
        "GETINFO circuit-status",
        "GETINFO stream-status",
        "SETEVENTS STREAM",
        "SETCONF DisableNetwork=1",
    )

    def test_with_the_password_only_what_veldmark_uses_reaches_tor(self):
        self.connect()
        config = self.config()
        self.assertIn("ControlSocket ", config)
        self.assertEqual(self.say(WORD, *self.USED), ["250 OK"] * (1 + len(self.USED)))
        answers = self.say(WORD, *self.REFUSED)[1:]
        self.assertEqual(answers, ['510 Unrecognized command "FILTERED"'] * len(self.REFUSED))
        for line in self.ENDING:
            answers = self.say(WORD, line, "SETEVENTS STREAM", "SETEVENTS STREAM")
            self.assertEqual(answers[1][:4], "510 ", line)
            self.assertEqual(answers[-1], "closed", line)
        self.assertEqual(self.config(), config)
        # At Tor's own socket they are taken.
        for line in self.REFUSED[:5]:
            self.assertEqual(self.say_to_tor(line), ["250 OK"], line)
        self.assertNotEqual(self.config(), config)

    RESERVE = ("192.0.2.9:443", "obfs4 192.0.2.8:443 cert=a iat-mode=0")
    IN_RESERVE = ("--reserve", RESERVE[0], "--reserve", RESERVE[1], "--pt-lyrebird", "/usr/bin/obfs4proxy")

    def test_tor_can_be_told_to_use_the_bridges_in_reserve_and_no_others(self):
        self.connect(more=self.IN_RESERVE)
        config = self.config()
        self.assertNotIn("Bridge", config)
        climb = "SETCONF UseBridges=1"
        for line in (
            *self.REFUSED,
            "SETCONF UseBridges=0",
            climb,
            climb + ' Bridge="192.0.2.9:444"',
            climb + ' Bridge="192.0.2.9:443" HTTPSProxy=192.0.2.8:8',
            climb + ' Bridge="192.0.2.9:443" ClientTransportPlugin="obfs4 exec /usr/bin/touch /tmp/x"',
        ):
            self.assertEqual(self.say(WORD, line)[1], '510 Unrecognized command "FILTERED"', line)
        self.assertEqual(self.config(), config)
        for lines in self.RESERVE[:1], self.RESERVE, self.RESERVE[1:]:
            self.assertEqual(self.say(WORD, climb + "".join(f' Bridge="{line}"' for line in lines)), ["250 OK"] * 2)
            config = self.config().splitlines()
            self.assertEqual([line for line in config if "Bridge" in line], [*(f"Bridge {line}" for line in lines), "UseBridges 1"])
        # The lines are for root and the filter alone, and are gone with the next session.
        place = "/var/lib/veldmark/run/reserve"
        self.assertEqual(self.machine.shell(f"stat -c '%U %G %a' {place}"), "root root 600\n")
        for uid in USER_UID, OTHER_UID, self.machine.shell("id -u _veldmark").strip():
            self.assertNotEqual(self.machine.run("cat", place, uid=uid, check=False).returncode, 0)
        self.machine.help("disconnect")
        self.connect()
        self.machine.shell(f"! test -e {place}")
        self.assertEqual(self.say(WORD, climb + f' Bridge="{self.RESERVE[0]}"')[1][:4], "510 ")

    def test_a_session_with_bridges_never_goes_without(self):
        self.connect(more=("--bridge", "192.0.2.7:443", *self.IN_RESERVE))
        climb = "SETCONF UseBridges="
        self.assertEqual(self.say(WORD, climb + "0")[1][:4], "510 ")
        self.assertEqual(self.say(WORD, climb + '1 Bridge="192.0.2.9:443"'), ["250 OK"] * 2)
        self.assertEqual(self.say(WORD, climb + "0")[1][:4], "510 ")
        self.assertIn("\nUseBridges 1\n", self.config())

    def test_programs_of_bridges_in_reserve_start_with_their_bridges(self):
        """Tor has a network, which leads nowhere here, since it starts no program without one."""
        self.machine.shell("sed -i 's/^DisableNetwork 1$/DisableNetwork 0/' /etc/tor/torrc-defaults")
        try:
            self.connect(more=self.IN_RESERVE)
            self.machine.shell("until ss -Hltn | grep -q :9050; do sleep 0.02; done", timeout=20)
            self.assertEqual(self.machine.shell("pgrep -u _veldmark -x obfs4proxy || true"), "")
            self.assertEqual(self.say(WORD, f'SETCONF UseBridges=1 Bridge="{self.RESERVE[1]}"'), ["250 OK"] * 2)
            self.machine.shell("until pgrep -u _veldmark -x obfs4proxy; do sleep 0.02; done", timeout=20)
            # With the change to a bridge that needs none it ends.
            self.assertEqual(self.say(WORD, f'SETCONF UseBridges=1 Bridge="{self.RESERVE[0]}"'), ["250 OK"] * 2)
            self.machine.shell("while pgrep -u _veldmark -x obfs4proxy; do sleep 0.02; done", timeout=20)
        finally:
            self.machine.help("disconnect")
            self.machine.shell("sed -i 's/^DisableNetwork 0$/DisableNetwork 1/' /etc/tor/torrc-defaults")
        self.before = self.machine.snapshot()

    def test_a_program_of_a_bridge_in_reserve_needs_the_same_approval(self):
        self.machine.shell("install -m 0755 -o alice /usr/bin/obfs4proxy /home/alice/lyrebird")
        try:
            done = self.connect(more=(*self.IN_RESERVE[:-1], "/home/alice/lyrebird"), check=False)
            says = "ERROR: An administrator password is needed to approve /home/alice/lyrebird.\n"
            self.assertEqual((done.returncode, done.stderr, self.filters()), (4, says, []))
            self.connect(more=self.IN_RESERVE)
        finally:
            self.machine.shell("rm /home/alice/lyrebird")

    def test_a_program_that_is_not_to_be_had_does_not_count_against_a_connect_without_the_reserve(self):
        """With the status of a missing approval the caller asks again without the reserve. Bridges in use need their program."""
        self.machine.shell("install -m 0111 -o root /usr/bin/obfs4proxy /home/alice/lyrebird")
        try:
            for path, says in (
                ("/home/alice/lyrebird", "The program /home/alice/lyrebird cannot be copied."),
                ("/home/alice/none", "The program given with --pt-lyrebird is not an executable file."),
            ):
                for lines, status in (self.IN_RESERVE[:-2], 4), (("--bridge", self.RESERVE[1]), 1):
                    done = self.connect(more=(*lines, "--pt-lyrebird", path), check=False)
                    self.assertEqual((done.returncode, done.stderr, self.filters()), (status, f"ERROR: {says}\n", []))
        finally:
            self.machine.shell("rm -f /home/alice/lyrebird")

    def test_without_the_filter_the_same_is_taken(self):
        """As in a build folder of a user's, whose copy does not run: Tor has the port itself."""
        self.machine.shell(f"mv {FILTER} {FILTER}.away")
        try:
            self.connect()
            self.assertEqual(self.filters(), [])
            self.assertEqual(self.say(WORD, self.REFUSED[0]), ["250 OK"] * 2)
            self.machine.help("disconnect")
        finally:
            self.machine.shell(f"mv {FILTER}.away {FILTER}")
        self.connect()
        self.assertEqual(len(self.filters()), 1)
        self.assertEqual(self.say(WORD, self.REFUSED[0])[1][:4], "510 ")

    @staticmethod
    def spoilt(path):
        return (
            (f"chown {USER_UID} {path}", f"chown 0 {path}"),
            (f"chmod 0775 {path}; chgrp {USER_UID} {path}", f"chmod 0755 {path}; chgrp 0 {path}"),
            (f"chmod 0750 {path}", f"chmod 0755 {path}"),
        )

    def assert_refused(self, helper, spoil, restore, before):
        self.machine.shell(spoil)
        try:
            self.assertOneLine(self.connect(helper=helper, check=False), UNUSABLE)
            self.assertEqual(self.machine.snapshot(), before)
        finally:
            self.machine.shell(restore)

    def assert_filtered(self, helper, program):
        self.connect(helper=helper)
        [pid] = self.filters()
        self.assertEqual(self.machine.shell(f"readlink /proc/{pid}/exe").strip(), program)
        self.assertEqual(self.say(WORD, self.REFUSED[0])[1][:4], "510 ")
        self.machine.help("disconnect")

    def test_an_installed_filter_that_cannot_be_used_ends_the_connect(self):
        for spoil, restore in self.spoilt(FILTER):
            self.assert_refused(INSTALLED, spoil, restore, self.before)

    def test_the_packages_filter_is_not_beside_its_helper(self):
        """Where the package lacks it, or it cannot be used, there is no session without a filter."""
        self.machine.shell(
            "for place in share libexec; do mkdir -p /mnt/$place/upper /mnt/$place/work; mount -t overlay -o"
            " lowerdir=/usr/$place,upperdir=/mnt/$place/upper,workdir=/mnt/$place/work private /usr/$place; done;"
            f'install -D -m 0755 "$1" {PACKAGED_HELPER}; install -D -m 0755 {FILTER} {PACKAGED_FILTER}; mv {FILTER} {FILTER}.away',
            self.machine.helper,
        )
        before = self.machine.snapshot()
        try:
            missing = (f"mv {PACKAGED_FILTER} {PACKAGED_FILTER}.away", f"mv {PACKAGED_FILTER}.away {PACKAGED_FILTER}")
            for helper, ways in (PACKAGED_HELPER, (missing, *self.spoilt(PACKAGED_FILTER))), (INSTALLED, (missing,)):
                self.assert_filtered(helper, PACKAGED_FILTER)
                for spoil, restore in ways:
                    self.assert_refused(helper, spoil, restore, before)
            # A good one beside the helper serves as well.
            self.machine.shell(f"mv {FILTER}.away {FILTER}; {self.spoilt(PACKAGED_FILTER)[0][0]}")
            self.assert_filtered(INSTALLED, FILTER)
        finally:
            self.machine.help("disconnect")
            self.machine.shell(f"test -e {FILTER} || mv {FILTER}.away {FILTER}; umount -l /usr/share /usr/libexec")

    def test_where_tors_account_can_run_nothing_tor_has_the_port(self):
        """As with the helper of a build folder of root's. The same files in another place are used."""
        for place in "/home/built", "/run/built", "/opt/built":
            self.machine.shell(f"mkdir {place}; cp {INSTALLED} {FILTER} {place}")
            try:
                if place == "/opt/built":
                    self.assert_filtered(f"{place}/veldmark-helper.sh", f"{place}/veldmark-control")
                    continue
                self.connect(helper=f"{place}/veldmark-helper.sh")
                self.assertEqual(self.filters(), [], place)
                self.assertEqual(self.say(WORD, self.USED[-1]), ["250 OK"] * 2, place)
                self.machine.help("disconnect")
            finally:
                self.machine.help("disconnect")
                self.machine.shell(f"rm -r {place}")

    def test_another_process_of_tors_account_gets_no_password_by_taking_the_place_of_tors_socket(self):
        """As a bridge program that has been taken over could try. At Tor's own socket, it would get the words."""
        self.connect()
        self.assertEqual(self.say(WORD), ["250 OK"])  # over the connection that was made at the start
        listen = (
            "import os, socket, sys\n"
            f"os.rename('{SOCKET}', '{SOCKET}2'); s = socket.socket(socket.AF_UNIX); s.bind('{SOCKET}'); s.listen(9)\n"
            "print('up', flush=True); s.settimeout(15)\n"
            "while True:\n"
            "    c = s.accept()[0]; words = c.recv(99)\n"
            "    if words: print(words.decode().strip(), flush=True); break\n"
        )
        tor = self.machine.shell("pgrep -u _veldmark -x tor").split()[0]
        thief = self.machine.start(
            *("nsenter", "-t", tor, "-m", "-p", "/usr/bin/setpriv", "--reuid=_veldmark", "--regid=_veldmark", "--clear-groups"),
            *("/usr/bin/python3", "-c", listen),
            **{"stdout": subprocess.PIPE, "text": True},
        )
        try:
            self.assertEqual(thief.stdout.readline(), "up\n")
            self.assertEqual(self.say(WORD), ["closed"])
            # The positive: it is there, and takes what others say to it.
            self.say(WORD, place=SOCKET, uid=0)
            self.assertEqual(thief.stdout.readline(), WORD + "\n")
        finally:
            thief.kill()
            thief.communicate()

    def test_what_a_former_tor_left_at_its_sockets_place_is_removed(self):
        self.connect()
        self.machine.help("disconnect")
        for left in (f"ln -sfT /tmp/elsewhere {SOCKET}", f"rm -f {SOCKET}; mkdir -p {SOCKET}/full/of"):
            self.machine.shell(left)
            self.connect()
            self.assertEqual(self.say(WORD, "GETINFO circuit-status"), ["250 OK"] * 2, left)
            self.machine.help("disconnect")

    def test_without_the_password_tor_says_no(self):
        self.connect()
        for line in (
            "AUTHENTICATE",
            'AUTHENTICATE "another"',
            "GETINFO circuit-status",
            "SETCONF DisableNetwork=0",
            "PROTOCOLINFO 1",
        ):
            self.assertEqual(
                [answer[:3] for answer in self.say(line, "SETEVENTS STREAM")], ["514" if line[-1] != '"' else "515", "clo"], line
            )

    def test_there_is_no_other_way_to_tors_control_port(self):
        self.machine.shell("cp /etc/tor/torrc-defaults /run/defaults; echo 'ControlPort 127.0.0.1:9151' >>/etc/tor/torrc-defaults")
        try:
            # With another configuration the administrator's port opens.
            self.machine.shell(
                f'sed \'/"ControlPort 0"/s/"ControlPort 0" //\' {INSTALLED} >{PLACE}/other; ! cmp -s {INSTALLED} {PLACE}/other'
            )
            for helper, opens in (f"{PLACE}/other", True), (INSTALLED, False):
                self.connect(helper=helper)
                self.assertEqual(":9151" in self.machine.shell("ss -Hltn"), opens)
                self.machine.help("disconnect")
            self.connect()
            for uid in USER_UID, OTHER_UID:
                self.assertNotEqual(self.say(WORD, place=SOCKET, uid=uid, check=False), ["250 OK"])
            self.assertEqual(self.say(WORD, place=SOCKET, uid=0), ["250 OK"])
        finally:
            self.machine.help("disconnect")
            self.machine.shell(f"cat /run/defaults >/etc/tor/torrc-defaults; rm /run/defaults {PLACE}/other")
        self.before = self.machine.snapshot()

    def test_it_has_no_rights_and_tor_has_one(self):
        self.connect()
        [own] = self.filters()
        [tor] = self.machine.tor_pids()
        self.assertEqual(self.machine.shell(f"ps -o ppid= -p {tor}").strip(), own)
        for pid, rights in (own, "0"), (tor, "400"):
            status = self.machine.shell(f"cat /proc/{pid}/status")
            for field in "CapInh", "CapPrm", "CapEff", "CapAmb":
                self.assertRegex(status, rf"{field}:\s+0*{rights}\n")
            self.assertRegex(status, r"NoNewPrivs:\s+1\n")
            self.assertRegex(status, r"NSpid:\s+\d+\s+" + ("1" if pid == own else r"\d+") + "\n")
        for pid in own, tor:  # another process of the account reads neither's memory
            self.assertNotEqual(self.read_memory(pid).returncode, 0)
        other = self.machine.start("sleep", "1000", uid=int(self.machine.shell("id -u _veldmark")))
        try:
            pid = self.machine.shell("until pgrep -x sleep; do sleep 0.01; done").strip()
            self.assertEqual(self.read_memory(pid).returncode, 0)
        finally:
            other.kill()
            self.machine.shell("pkill -x sleep; while pgrep -x sleep; do sleep 0.01; done")
            other.wait()
        self.assertNotIn("veldmark.lock", self.machine.shell(f"ls -l /proc/{own}/fd"))

    def read_memory(self, pid):
        return self.machine.run("cat", f"/proc/{pid}/maps", uid=int(self.machine.shell("id -u _veldmark")), check=False)

    def test_each_ends_with_the_other(self):
        for victim in "veldmark-contro", "tor":
            self.connect()
            self.machine.shell(f"pkill -KILL -u _veldmark -x {victim}; while pgrep -u _veldmark; do sleep 0.01; done", timeout=20)
            self.assertNotIn(":9051", self.machine.shell("ss -Hltn"))
            self.assertIn("policy drop", self.machine.run("nft", "list", "ruleset").stdout)
            self.machine.help("disconnect")

    def test_tor_ends_by_itself_at_disconnect(self):
        """The filter passes the signal on, so that Tor keeps its state."""
        state = "/var/lib/veldmark/run/tor/data/state"
        self.connect()
        self.machine.shell(f"rm -f {state}")
        start = time.monotonic()
        self.machine.help("disconnect")
        self.assertLess(time.monotonic() - start, 4)
        self.machine.shell(f"test -f {state}; ! test -e {SOCKET}")

    def test_a_taken_port_is_told_as_without_the_filter(self):
        """Taken without listening there, so that only Tor finds out."""
        take = "import socket, sys; s = socket.socket(); s.bind(('127.0.0.1', 9051)); print('up', flush=True); sys.stdin.read()"
        holder = self.machine.start("/usr/bin/python3", "-c", take, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        try:
            self.assertEqual(holder.stdout.readline(), b"up\n")
            told = []
            for place in FILTER, FILTER + ".away":
                self.machine.shell(f"test -e {place} || mv {FILTER} {place}")
                for strict in "1", "0":
                    done = self.connect(strict=strict, check=False)
                    self.assertOneLine(done, "Tor did not start: Could not bind to 127.0.0.1:9051: Address already in use.")
                    told.append(done.stderr)
                    self.machine.help("disconnect")
            self.assertEqual(told[:2], told[2:])
        finally:
            self.machine.shell(f"test -e {FILTER} || mv {FILTER}.away {FILTER}")
            holder.communicate()

    def test_the_other_ports_are_told_as_well(self):
        """Tor ends because of them after it has opened its control port."""
        take = "import socket, sys; s = socket.socket(); s.bind(('127.0.0.1', 9050)); print('up', flush=True); sys.stdin.read()"
        holder = self.machine.start("/usr/bin/python3", "-c", take, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.machine.shell("sed -i 's/^DisableNetwork 1$/DisableNetwork 0/' /etc/tor/torrc-defaults")
        try:
            self.assertEqual(holder.stdout.readline(), b"up\n")
            for place in FILTER, FILTER + ".away":
                self.machine.shell(f"test -e {place} || mv {FILTER} {place}")
                self.assertOneLine(
                    self.connect(check=False), "Tor did not start: Could not bind to 127.0.0.1:9050: Address already in use."
                )
                self.machine.help("disconnect")
        finally:
            self.machine.shell(
                f"test -e {FILTER} || mv {FILTER}.away {FILTER}; sed -i 's/^DisableNetwork 0$/DisableNetwork 1/' /etc/tor/torrc-defaults"
            )
            holder.communicate()
        self.before = self.machine.snapshot()

    def test_the_watcher_takes_both_for_tor(self):
        """The filter has the control port, and Tor the others, which it opens only with a network (which leads nowhere here)."""
        self.machine.shell("sed -i 's/^DisableNetwork 1$/DisableNetwork 0/' /etc/tor/torrc-defaults")
        try:
            self.connect()
            self.machine.await_watcher()
            self.assertEqual(len(self.machine.shell("ss -Hltn 'sport = :9050 or sport = :9051'").splitlines()), 2)
            self.machine.shell(f"rm -f {NOTE}; until grep -q standing {NOTE}; do sleep 0.05; done", timeout=20)
        finally:
            self.machine.help("disconnect")
            self.machine.shell("sed -i 's/^DisableNetwork 0$/DisableNetwork 1/' /etc/tor/torrc-defaults")
        self.before = self.machine.snapshot()

    def test_tors_socket_of_a_former_session_is_replaced(self):
        self.connect()
        self.machine.shell("pkill -KILL -u _veldmark; while pgrep -u _veldmark; do sleep 0.01; done")
        self.machine.shell(f"test -S {SOCKET}")
        self.connect()
        self.assertEqual(self.say(WORD, "GETINFO circuit-status"), ["250 OK"] * 2)


class Program(HelperTest):
    """Before a stand-in of Tor, without the helper."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.shell('install -D -m 0755 "$1" "$2"', os.path.abspath(program()), FILTER)

    def begin(self, *words, before=()):
        process = self.machine.start(
            *(*before, FILTER, "127.0.0.1", "19051", "/home/bob/control", "--", *words),
            uid=OTHER_UID,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            text=True,
        )

        def end():
            self.machine.shell("pkill -KILL -x veldmark-contro; while pgrep -u bob; do sleep 0.01; done; rm -f /home/bob/control")
            process.communicate()

        self.addCleanup(end)
        return process

    def begin_fake(self, seconds="0", **options):
        process = self.begin("/usr/bin/python3", "-c", FAKE, "/home/bob/control", seconds, **options)
        if seconds == "0":
            self.machine.shell("until ss -Hltn | grep -q :19051; do sleep 0.01; done", timeout=20)
        return process

    def as_client(self, script):
        return self.machine.run("/usr/bin/python3", "-c", CLIENT + script, uid=OTHER_UID).stdout.splitlines()

    def usage(self):
        """The filter's memory in kB, and its processor time in ticks."""
        pid = self.machine.shell("pgrep -x veldmark-contro").strip()
        status = self.machine.shell(f"cat /proc/{pid}/status /proc/{pid}/stat")
        times = status.splitlines()[-1].rsplit(")", 1)[1].split()
        return int(status.split("VmRSS:")[1].split()[0]), int(times[11]) + int(times[12])

    def test_it_ends_with_tors_status(self):
        for script, status in ("exit 0", 0), ("exit 7", 7), ("kill -9 $$", 137), ("sleep 0.01 & exit 3", 3):
            process = self.begin("/bin/sh", "-c", script)
            process.communicate(timeout=20)
            self.assertEqual(process.returncode, status, script)
        process = self.begin("/no/such/tor")
        self.assertIn("[err] /no/such/tor cannot be run: No such file or directory.\n", process.communicate(timeout=20)[0])
        self.assertEqual(process.returncode, 127)

    def test_it_passes_signals_on(self):
        for name, status in ("TERM", 143), ("INT", 5):
            process = self.begin_fake()
            self.machine.shell(f"pkill -{name} -x veldmark-contro")
            process.communicate(timeout=20)
            self.assertEqual(process.returncode, status)
            self.machine.shell("rm -f /home/bob/control")

    def test_tor_dies_with_it(self):
        self.begin_fake()
        self.machine.shell("pkill -KILL -x veldmark-contro; while pgrep -u bob; do sleep 0.01; done", timeout=20)

    def test_the_port_opens_when_tors_socket_does(self):
        self.begin_fake(seconds="1")
        self.machine.shell("until pgrep -u bob -x python3; do sleep 0.01; done")
        self.assertEqual(self.as_client("try: to()\nexcept ConnectionRefusedError: print('refused')"), ["refused"])
        self.machine.shell("until ss -Hltn | grep -q :19051; do sleep 0.01; done", timeout=20)
        self.assertEqual(self.as_client("print(ask(known(), b'SIGNAL NEWNYM'))"), ["510 SIGNAL NEWNYM"])

    def test_commands_in_pieces_and_together(self):
        self.begin_fake()
        pieces = "c = known()\nfor b in b'SIGNAL NEWN': c.sendall(bytes([b])); time.sleep(0.002)\nprint(ask(c, b'YM'))"
        self.assertEqual(self.as_client(pieces), ["510 SIGNAL NEWNYM"])
        together = "c = known(); c.sendall(b'QUIT X\\nCLOSECIRCUIT 1\\nSIGNAL NEWNYM\\nQUIT\\n')\nprint(c.makefile().read())"
        self.assertEqual(
            [line for line in self.as_client(together) if line],
            ["510 FILTERED", "510 CLOSECIRCUIT 1", "510 SIGNAL NEWNYM", "510 QUIT"],
        )
        ended = "c = known(); c.sendall(b'CLOSECIRCUIT 1\\r\\n'); c.shutdown(socket.SHUT_WR); print(c.makefile().read())"
        self.assertEqual([line for line in self.as_client(ended) if line], ["510 CLOSECIRCUIT 1"])

    def test_a_client_that_reads_nothing_stops_nobody(self):
        self.begin_fake()
        before, _ = self.usage()
        clients = self.machine.start(
            *("/usr/bin/python3", "-c"),
            CLIENT
            + "all = [known() for _ in range(20)]\nfor c in all: c.sendall(b'GETINFO circuit-status\\r\\n')\nprint('up', flush=True); sys.stdin.read()",
            **{"uid": OTHER_UID, "stdin": subprocess.PIPE, "stdout": subprocess.PIPE, "text": True},
        )
        try:
            self.assertEqual(clients.stdout.readline(), "up\n")
            self.assertEqual(self.as_client("print(ask(known(), b'SIGNAL NEWNYM'))"), ["510 SIGNAL NEWNYM"])
            time.sleep(0.5)
            memory, ticks = self.usage()
            self.assertLess(memory, before + 4096)
            time.sleep(1)
            self.assertLess(self.usage()[1] - ticks, 10)  # it does not wake without need
        finally:
            clients.communicate()
        self.assertEqual(self.as_client("print(ask(known(), b'SIGNAL NEWNYM'))"), ["510 SIGNAL NEWNYM"])

    def test_who_has_not_said_the_password_makes_room(self):
        self.begin_fake()
        self.assertEqual(
            self.as_client(
                "first = known(); all = [to() for _ in range(600)]\nprint(ask(known(), b'CLOSECIRCUIT 1'), ask(first, b'CLOSECIRCUIT 2'))"
            ),
            ["510 CLOSECIRCUIT 1 510 CLOSECIRCUIT 2"],
        )

    def test_who_has_said_it_keeps_the_place(self):
        """The next waits until a place is free."""
        self.begin_fake()
        self.assertEqual(
            self.as_client(
                "all = [known() for _ in range(256)]\nlate = to(); late.sendall(b'AUTHENTICATE \"x\"\\r\\n'); late.settimeout(0.5)\n"
                "try: print(late.recv(99))\nexcept TimeoutError: print('waits')\n"
                "print(len({ask(c, b'CLOSECIRCUIT 1') for c in all})); all.pop().close(); late.settimeout(10); print(late.recv(99).decode().strip())"
            ),
            ["waits", "1", "250 OK"],
        )

    def test_without_descriptors_it_goes_on_afterwards(self):
        self.begin_fake(before=("prlimit", "--nofile=20"))
        clients = self.machine.start(
            *("/usr/bin/python3", "-c", CLIENT + "all = [to() for _ in range(40)]; print('up', flush=True); sys.stdin.read()"),
            **{"uid": OTHER_UID, "stdin": subprocess.PIPE, "stdout": subprocess.PIPE, "text": True},
        )
        try:
            self.assertEqual(clients.stdout.readline(), "up\n")
            _, ticks = self.usage()
            time.sleep(1)
            self.assertLess(self.usage()[1] - ticks, 10)
        finally:
            clients.communicate()
        self.assertEqual(self.as_client("print(ask(known(), b'SIGNAL NEWNYM'))"), ["510 SIGNAL NEWNYM"])

    def test_wrong_words_start_nothing(self):
        for words in (), ("127.0.0.1", "9051", "/x", "/bin/true"), ("127.0.0.1", "9051", "/x", "--"):
            self.assertEqual(self.machine.run(FILTER, *words, check=False).returncode, 2)
        for words in (
            ("x", "19051", "/x"),
            ("127.0.0.1", "x", "/x"),
            ("127.0.0.1", "99999", "/x"),
            ("127.0.0.1", "19051", "/" + "x" * 108),
        ):
            done = self.machine.run(FILTER, *words, "--", "/bin/touch", "/run/started", check=False)
            self.assertEqual((done.returncode, done.stdout.split(": ")[-1]), (1, "Invalid argument.\n"))
        self.machine.shell("! test -e /run/started")

    def test_without_the_bridges_in_reserve_it_starts_nothing(self):
        self.machine.shell("printf 'a\\nb\"\\n' >/run/reserve")
        start = f"{FILTER} 127.0.0.1 19051 /x - -- /bin/sh -c 'cat >/run/started'"
        for place, reason in (">&-", "Bad file descriptor"), ("</run", "Is a directory"), ("</run/reserve", "Invalid argument"):
            done = self.machine.run("sh", "-c", f"{start} 0{place}", check=False)
            self.assertEqual((done.returncode, done.stdout), (1, f"[err] The bridges in reserve cannot be read: {reason}.\n"))
        self.machine.shell("! test -e /run/started")
        # Tor, which is started after that, cannot read them: its input is empty, also from the beginning of the file.
        self.machine.shell("printf 'a\\n' >/run/reserve")
        self.machine.shell(f"{start} </run/reserve")
        self.assertEqual(self.machine.shell("cat /run/started; rm /run/started"), "")


if __name__ == "__main__":
    if not os.path.exists(program()):
        raise SystemExit(f"{os.path.normpath(program())} is missing: build the target veldmark-control first.")
    namespace.main()

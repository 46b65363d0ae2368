"""kill -9 of the helper as in test_kill.py, on machines where a service of the system or the desktop keeps settings of its own. A
disconnect afterwards puts those back as well, and a strict session never lets traffic out in between.

The helper is killed after each change to those settings, and after a sample of the other changes, all of which test_kill.py tries.
VELDMARK_KILL_ALL=1 tries all of them here, too.

    test_kill_services.py Gnome | Resolved | Global | TorService
"""

import os
import subprocess
import sys
import time

import namespace
import services
from namespace import USER_UID
from killing import AFTER, BEFORE, Kill, connect_words
from wire import LINK

SAMPLE = 1 if os.environ.get("VELDMARK_KILL_ALL") else 20  # one in this many of the other changes
HELD = "/run/held"  # folder of a machine; see hold_call()

# A wrapper of a program. It notes the calls that have one of the words. The call whose number is in the file "hold" waits, before
# it does anything, until that file is removed.
HOLDER = """#!/bin/bash
cd %s
for word; do
  case " %s " in *" $word "*)
    { exec 3>>calls; } && flock 3; echo "$*" >&3; number=$(wc -l <calls); exec 3>&-
    if [ -e hold ] && [ "$number" = "$(cat hold)" ]; then : >reached; while [ -e hold ]; do sleep 0.01; done; fi
    break ;;
  esac
done
exec ./program "$@"
"""


class Services(Kill):
    OWN = ()  # functions whose changes are all tried
    HOLDS = ()  # (program, words of the calls that change something)

    @classmethod
    def sample(cls, points):
        own = [point for point in points if any(name in point for name in cls.OWN)]
        others = [point for point in points if point not in own]
        return [*own, *others[::SAMPLE]]

    @classmethod
    def set_up_holder(cls):
        path, words = cls.HOLDS
        cls.machine.shell(
            f'mkdir -m 777 {HELD}; cp {path} {HELD}/program; printf %s "$1" >{HELD}/holder; chmod 755 {HELD}/holder;'
            f"mount --bind {HELD}/holder {path}",
            HOLDER % (HELD, words),
        )

    def hold_call(self, number):
        self.machine.shell(f"cd {HELD}; rm -f calls reached; (umask 0; : >calls); echo {number} >hold")

    def let_go(self):
        self.machine.shell(f"rm -f {HELD}/hold")

    def wait_for_file(self, path):
        self.machine.shell(f"until [ -e {path} ]; do sleep 0.01; done", timeout=30)

    def wait_until_it_waits(self, run):
        """Returns when the run waits for the helper's lock or has ended."""
        while run.poll() is None and "flock -w 20 9 \n" not in self.machine.processes():
            time.sleep(0.01)

    def killed_in_the_midst(self, prepare, words, least):
        """Kills the helper while a program that it has started runs, behind the kill switch. That program goes on only when the
        next disconnect is waiting or has ended."""
        prepare()
        self.hold_call(0)
        self.machine.run("env", "-i", f"PKEXEC_UID={USER_UID}", "/bin/bash", self.machine.helper, *words)
        calls = int(self.machine.shell(f"wc -l <{HELD}/calls"))
        self.let_go()
        self.machine.help("disconnect")
        self.assertGreaterEqual(calls, least)
        started = time.monotonic()
        for call in range(1, calls + 1):
            with self.subTest(words[0], call=call):
                self.flood.go()
                self.is_open()
                prepare()
                self.hold_call(call)
                try:
                    self.machine.shell(
                        'env -i PKEXEC_UID="$1" /bin/bash "${@:2}" >/dev/null 2>&1 & echo $! >/run/killed',
                        str(USER_UID),
                        self.machine.helper,
                        *words,
                    )
                    self.wait_for_file(f"{HELD}/reached")
                    self.machine.shell("kill -KILL $(cat /run/killed)")
                    self.wire.mark()
                    self.flood.round()
                    self.assertEqual(set(self.wire.mark()) - LINK, set())
                    again = self.machine.start(
                        "/bin/bash", self.machine.helper, "disconnect", stdin=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True
                    )
                    self.wait_until_it_waits(again)
                finally:
                    self.let_go()
                self.assertEqual((again.communicate()[1], again.returncode), ("", 0))
                self.is_open()
                self.flood.stop()
                self.assertEqual(self.snapshot(), self.before)
        print(
            f"{self.id().split('.', 1)[1]}: killed in {calls} calls of {words[0]}, {time.monotonic() - started:.0f} s", flush=True
        )

    def drops(self, state):
        self.assertEqual(state[:2], ("strict", True))

    def connect_strict(self):
        self.connect()

    def connect_proxy(self):
        self.connect("0")

    def test_connect(self):
        self.assertGreater(self.every_point(lambda: None, connect_words("1"), lambda state: None, "note_listing", AFTER), 30)

    def test_connect_in_proxy_mode(self):
        self.assertGreater(self.every_point(lambda: None, connect_words("0"), lambda state: self.assertFalse(state[1])), 30)

    def test_connect_again(self):
        self.assertGreater(self.every_point(self.connect_strict, connect_words("1"), self.drops, "", BEFORE), 30)

    def test_disconnect(self):
        self.assertGreater(
            self.every_point(self.connect_strict, ["disconnect"], lambda state: None, "nft delete table", BEFORE), 15
        )

    CALLS = 3  # at least this many in a connect, and in a disconnect

    def test_in_the_midst_of_connect(self):
        self.killed_in_the_midst(lambda: None, connect_words("1"), self.CALLS)

    def test_in_the_midst_of_disconnect(self):
        self.killed_in_the_midst(self.connect_strict, ["disconnect"], self.CALLS)


class Gnome(Services):
    OWN = "gnome", "as_session", "put_proxy"
    HOLDS = "/usr/bin/gsettings", "set reset"

    @classmethod
    def set_up_services(cls):
        cls.set_up_holder()
        services.start_session_bus(cls.machine)
        services.as_user(
            cls.machine,
            """gsettings set org.gnome.system.proxy mode auto
            gsettings set org.gnome.system.proxy autoconfig-url "http://a/'b' c"
            gsettings set org.gnome.system.proxy ignore-hosts "['a b', 'it\\'s', '*.corp']"
            gsettings set org.gnome.system.proxy.http host proxy.corp; gsettings set org.gnome.system.proxy.socks port 1""",
        )

    @classmethod
    def snapshot(cls):
        """dconf rewrites its file at each change, so the snapshot compares the settings in it."""
        return "".join(
            line for line in super().snapshot().splitlines(True) if not line.endswith(" /home/alice/.config/dconf/user\n")
        ) + "".join(services.gnome_settings(cls.machine))


class TorService(Services):
    """The system's own Tor service."""

    OWN = ("service",)
    HOLDS = "/usr/bin/systemctl", "stop start"
    CALLS = 1

    @classmethod
    def set_up_services(cls):
        services.add_systemctl(cls.machine)
        cls.set_up_holder()
        services.start_tor_service(cls.machine)

    @classmethod
    def snapshot(cls):
        return super().snapshot() + str(services.tor_service_runs(cls.machine))


class Resolved(Services):
    OWN = ("resolved",)
    HOLDS = "/usr/bin/resolvectl", "dns dnsovertls dnssec"

    @classmethod
    def set_up_services(cls):
        cls.daemon = services.start_resolved(cls.machine)
        cls.set_up_holder()
        cls.give_links_servers()

    @classmethod
    def give_links_servers(cls):
        services.give_links_servers(cls.machine)
        cls.machine.shell("resolvectl dns w1 192.0.2.55; resolvectl dnssec w1 yes")

    @classmethod
    def tearDownClass(cls):
        super().tearDownClass()
        cls.daemon.wait()

    @classmethod
    def snapshot(cls):
        return super().snapshot() + services.resolved_settings(cls.machine)

    def test_fix_dns(self):
        """Another program has given the links other servers, and removed Veldmark's file. A disconnect restores those servers, not
        the earlier ones."""

        def give_others():
            self.machine.shell("resolvectl dns w0 192.0.2.99; resolvectl dns w1 192.0.2.98")

        def prepare():
            self.give_links_servers()
            self.connect_strict()
            self.machine.shell("umount /etc/resolv.conf")
            give_others()

        former = self.before
        give_others()
        type(self).before = self.snapshot()
        self.assertNotEqual(self.before, former)
        try:
            self.assertGreater(self.every_point(prepare, ["fix-dns"], self.drops, "", BEFORE), 4)
        finally:
            type(self).before = former
            self.give_links_servers()
        self.assertEqual(self.snapshot(), former)


class Global(Services):
    """systemd-resolved with servers of the whole system."""

    OWN = ("global",)
    HOLDS = "/usr/bin/systemctl", "restart"
    CALLS = 1

    @classmethod
    def set_up_services(cls):
        cls.daemon = services.start_resolved(cls.machine)
        services.add_systemctl(cls.machine)
        services.add_global_servers(cls.machine, "192.0.2.60")
        services.give_links_servers(cls.machine)
        cls.set_up_holder()

    @classmethod
    def tearDownClass(cls):
        super().tearDownClass()
        cls.daemon.wait()

    @classmethod
    def snapshot(cls):
        return super().snapshot() + services.resolved_settings(cls.machine) + cls.machine.shell("ls /run/systemd")


if __name__ == "__main__":
    namespace.require_namespaces()
    if not any(word.startswith(("Gnome", "TorService")) for word in sys.argv[1:]):
        services.require_resolved()
    namespace.main()

"""Separate applications: the exits that the check service sees, and the kill switch for programs in any control group."""

import json
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab.case import SKIPPED, LabCase  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.product import is_probed  # noqa: E402

GROUPS = "/sys/fs/cgroup"
STATE = "/run/veldmark.identities"


class Separate(LabCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        host = cls.lab.host
        cls.product.install_identifier()
        cls.slice = f"{GROUPS}/user.slice/user-{host.uid}.slice"
        cls.apps = f"{cls.slice}/user@{host.uid}.service/app.slice"
        # An application would move from its circuit to a pair of circuits that is linked later.
        host.write("/etc/tor/torrc-defaults", host.read("/etc/tor/torrc-defaults") + "ConfluxEnabled 0\n", mode=0o644)
        # systemd's layout: the groups below the user's manager belong to the user.
        host.run(
            [
                "/bin/sh",
                "-c",
                f"chmod 755 {GROUPS}; mkdir -p {cls.slice}/session-2.scope {cls.apps}; chown -R alice {cls.slice}/user@*",
            ],
            check=True,
        )

    def groups(self, *names):
        """Makes the applications' groups as alice; they are removed at the end."""
        self.addCleanup(self.remove_groups)
        self.lab.host.run(["/bin/sh", "-c", 'cd "$0" && mkdir -- "$@"', self.apps, *names], user="alice", check=True)

    def remove_groups(self):
        self.lab.host.run(
            ["/bin/sh", "-c", f"cd {self.apps}; while ! find . -mindepth 1 -depth -type d -exec rmdir {{}} +; do sleep 0.1; done"],
            check=True,
        )

    def inside(self, group, *command, **options):
        return self.lab.host.run(
            [
                "/bin/sh",
                "-c",
                'echo 0 >"$0/cgroup.procs" && exec setpriv --reuid alice --regid alice --clear-groups "$@"',
                group,
                *command,
            ],
            **options,
        )

    def exits(self, name, times=3):
        """The exits that the check service sees for one request after the other, once Tor keeps to one circuit."""
        script = f"for i in 1 2 3 4; do curl -sS --max-time 30 --proxy socks5h://127.0.0.1:9050 {at.CHECK_URL} >/dev/null || exit 1; done; for i in $(seq {times}); do curl -sS --max-time 30 --proxy socks5h://127.0.0.1:9050 {at.CHECK_URL} || exit 1; echo; done"
        answers = self.inside(f"{self.apps}/{name}", "/bin/sh", "-c", script, check=True).stdout.splitlines()
        return {json.loads(answer)["IP"] for answer in answers if answer}

    def known(self, count):
        """Waits until this many identities of alice's are listed."""
        script = (
            f'until [ "$(grep -c "^{self.lab.host.uid} " {STATE})" = {count} ] && grep -qx standing {STATE}; do sleep 0.05; done'
        )
        self.lab.host.run(["timeout", "20", "/bin/sh", "-c", script], check=True)
        return self.lab.host.read(STATE)

    def test_each_application_has_its_own_exit(self):
        """Two windows of a program share an exit over 50 requests; eight programs have several exits. Without the setting all share
        one."""
        names = [f"app-gnome-org.example.Program{n}-1.scope" for n in range(8)]
        for separate in "false", "true":
            self.set("separateApps", separate)
            with self.product.session() as session:
                session.wait(is_probed)
                self.groups(*names, "app-gnome-org.example.Program0-2.scope")
                if separate == "true":
                    self.known(8 + 1)
                seen = [self.exits(name) for name in names]
                self.assertEqual([len(exits) for exits in seen], [1] * 8)
                many = len(set.union(*seen))
                self.assertEqual(many == 1, separate == "false", seen)
                self.assertEqual(self.exits("app-gnome-org.example.Program0-2.scope", 50), seen[0])
                self.assertLessEqual(set.union(*seen), set(self.lab.tor.exits))
                self.remove_groups()
                self.assertEqual(session.interrupt(), 0, session.output)
            self.assert_restored()

    def test_circuits_name_the_application_that_asked(self):
        """Each site has the application that asked for it, also after a short connection, and no circuit has sites of two."""
        places = {
            at.WEB_HOSTS[0]: (f"{self.apps}/app-gnome-org.example.One-1.scope", "org.example.One"),
            at.WEB_HOSTS[1]: (f"{self.apps}/app-gnome-org.example.Two-1.scope", "org.example.Two"),
            at.WEB_HOSTS[2]: (f"{self.slice}/session-2.scope", "session-2"),
        }
        for separate in "true", "false":
            self.set("separateApps", separate)
            with self.product.session() as session:
                session.wait(is_probed)
                self.groups("app-gnome-org.example.One-1.scope", "app-gnome-org.example.Two-1.scope")
                if separate == "true":
                    self.known(3)
                for host, (group, _) in places.items():
                    self.inside(
                        group,
                        *("curl", "-sS", "--max-time", "30", "-o", "/dev/null"),
                        *("--proxy", "socks5h://127.0.0.1:9050", f"http://{host}/ip"),
                        check=True,
                    )
                circuits = json.loads(self.product.run_verb("circuits", "--json", check=True).stdout)
                if separate == "false":
                    self.assertTrue(circuits)
                    self.assertEqual([circuit for circuit in circuits if "askedBy" in circuit], [])
                else:
                    asked = [circuit["askedBy"] for circuit in circuits if "askedBy" in circuit]
                    self.assertEqual(
                        sorted(asked, key=str), sorted(({host: [name]} for host, (_, name) in places.items()), key=str), circuits
                    )
                    text = self.product.run_verb("circuits", check=True).stdout
                    for host, (_, name) in places.items():
                        self.assertIn(f"→ {name}: {host}\n", text + "\n")
                self.remove_groups()
                self.assertEqual(session.interrupt(), 0, session.output)
            self.assert_restored()

    def test_the_kill_switch_holds_whatever_the_group(self):
        """It also blocks a process that moves between groups, with a socket that it has made in another group."""
        self.groups("app-one-1.scope", "app-two-1.scope")
        first, second = f"{self.apps}/app-one-1.scope", f"{self.apps}/app-two-1.scope"
        direct = ["curl", "-sS4", "--max-time", "5", "--noproxy", "*", at.CHECK_URL]
        self.assertIn("IP", json.loads(self.inside(first, *direct, check=True).stdout))  # the packet leaves when nothing blocks it
        move = (
            "import os, socket, sys, time\n"
            "places = sys.argv[1:]; sockets = []\n"
            "for round in range(40):\n"
            "    open(places[round % len(places)] + '/cgroup.procs', 'w').write('0')\n"
            "    for kind in socket.SOCK_STREAM, socket.SOCK_DGRAM:\n"
            "        for source in '', '127.65.0.1':\n"
            "            s = socket.socket(socket.AF_INET, kind); s.setblocking(False); sockets.append(s)\n"
            "            try:\n"
            "                if source: s.bind((source, 0))\n"
            f"                s.connect(('{at.CHECK_ADDRESS}', 443)); s.send(b'x')\n"
            "            except OSError: pass\n"
            "    for s in sockets[-12:]:\n"
            "        try: s.send(b'x')\n"
            "        except OSError: pass\n"
        )
        with self.product.session() as session:
            session.wait(is_probed)
            self.known(3)
            with self.lab.capture() as capture:
                for group in first, second, f"{self.slice}/session-2.scope":
                    self.assertNotEqual(self.inside(group, *direct).returncode, 0)
                # Root may move a process where a user may not.
                self.lab.host.run(["python3", "-c", move, first, second, f"{self.slice}/session-2.scope", GROUPS], check=True)
            sent = [
                p
                for p in capture.packets
                if p.out and p.family != "arp" and not p.src.startswith("fe80:") and p.dst not in at.RELAY_ADDRESSES
            ]
            self.assertEqual([(p.src, p.dst) for p in sent], [])
            self.assertEqual(self.product.status()["title"], "Protected")
            self.remove_groups()
            self.assertEqual(session.interrupt(), 0, session.output)
        self.assert_restored()


if __name__ == "__main__":
    from veldlab import requirements

    reason = requirements.missing()
    if reason:
        print(reason)
        sys.exit(SKIPPED)
    unittest.main()

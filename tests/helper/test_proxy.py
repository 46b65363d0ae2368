"""The desktop's proxy settings: real GNOME settings on a real session bus, and KDE's file, as an unprivileged user."""

import os

import namespace
import services
from namespace import HelperTest, USER_UID
from services import SESSION

KIOSLAVE = "/home/alice/.config/kioslaverc"


class Desktop(HelperTest):
    def as_user(self, script, **options):
        return services.as_user(self.machine, script, **options)

    def connect(self, strict=0, **options):
        return self.machine.connect(strict=strict, env=SESSION, **options)

    def disconnect(self, env=None):
        return self.machine.help("disconnect", env=env)


class Gnome(Desktop):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        services.start_session_bus(cls.machine)

    def setUp(self):
        self.as_user("dconf reset -f /system/proxy/")

    def settings(self):
        return services.gnome_settings(self.machine)

    def test_is_set_and_goes_back_to_not_set(self):
        before = self.settings()
        self.assertEqual(before[1], "")
        for strict in 0, 1:
            self.connect(strict)
            listed = self.settings()[0]
            for line in ("proxy mode 'manual'", "socks host '127.0.0.1'", "socks port 9050", "http host ''"):
                self.assertIn(line, listed)
            self.disconnect()
            self.assertEqual(self.settings(), before)

    def test_former_values_come_back(self):
        self.as_user(
            """gsettings set org.gnome.system.proxy mode auto; gsettings set org.gnome.system.proxy autoconfig-url "http://a/'b' c"
            gsettings set org.gnome.system.proxy ignore-hosts "['a b', 'it\\'s', '*.corp']"
            gsettings set org.gnome.system.proxy.ftp host 'a\\\\b '
            gsettings set org.gnome.system.proxy.http host 'proxy.corp'; gsettings set org.gnome.system.proxy.socks port 1"""
        )
        before = self.settings()
        self.connect()
        self.assertNotIn("proxy.corp", self.settings()[0])
        self.assertNotIn("corp", self.as_user("gsettings get org.gnome.system.proxy ignore-hosts"))
        self.connect(strict=1, lan=1)  # a second connect must not note Veldmark's values as the user's
        self.assertIn("'192.168.0.0/16'", self.as_user("gsettings get org.gnome.system.proxy ignore-hosts"))
        self.disconnect()
        self.assertEqual(self.settings(), before)

    def test_another_user_can_restore(self):
        self.as_user("gsettings set org.gnome.system.proxy.socks host before")
        before = self.settings()
        self.connect()
        self.disconnect(env={"PATH": os.environ["PATH"]})
        self.assertEqual(self.settings(), before)

    def test_root_has_no_desktop(self):
        before = self.settings()
        self.machine.connect(strict=0)
        self.assertEqual(self.settings(), before)
        self.disconnect()

    def stand_in(self, script):
        """Replaces gsettings by `script`, and returns a function that undoes it."""
        self.machine.shell(
            "mkdir -p /mnt/stand-in; printf '#!/bin/sh\\n%s\\n' \"$1\" >/mnt/stand-in/gsettings; chmod +x /mnt/stand-in/gsettings;"
            "mount --bind /mnt/stand-in/gsettings /usr/bin/gsettings",
            script,
        )
        return lambda: self.machine.shell("umount /usr/bin/gsettings; rm -r /mnt/stand-in")

    def test_settings_that_could_not_be_handed_back_are_left_alone(self):
        """The settings are longer than a program's argument may be."""
        hosts = ", ".join(f"'h{number}.example'" for number in range(10000))
        self.machine.run(
            "dconf", "load", "/system/proxy/", uid=USER_UID, env=services.DESKTOP, stdin=f"[/]\nignore-hosts=[{hosts}]\n"
        )
        before = self.settings()
        self.assertGreater(len(before[1]), 150000)
        self.connect(strict=1)
        self.assertEqual(self.settings(), before)
        self.disconnect()
        self.assertOneLine(self.connect(check=False), "proxy settings")
        self.assertEqual(self.settings(), before)

    def test_program_that_prints_without_end_fills_no_disk(self):
        before = self.machine.snapshot()
        restore = self.stand_in("case $1 in writable) echo true ;; *) exec yes ;; esac")
        try:
            self.assertOneLine(self.connect(check=False), "proxy settings")
        finally:
            restore()
        self.assertEqual(self.machine.shell("stat -c %s /var/lib/veldmark/run/answer"), "262144\n")
        self.assertEqual(self.machine.snapshot(), before)

    def test_process_that_keeps_the_answer_open_is_not_waited_for(self):
        before = self.machine.snapshot()
        restore = self.stand_in(
            "case $1 in writable) setsid sleep 1000 & echo $! >>/run/user/4242/left; echo true ;; *) echo none ;; esac"
        )
        try:
            self.assertOneLine(self.connect(check=False, timeout=50), "proxy settings")
        finally:
            # The helper may have started more than one, and a killed process does not end at once.
            self.machine.shell(
                "for left in $(cat /run/user/4242/left); do kill $left; while kill -0 $left 2>/dev/null; do sleep 0.01; done; done; "
                "rm /run/user/4242/left"
            )
            restore()
        self.assertEqual(self.machine.snapshot(), before)

    def test_program_that_hangs_is_given_up(self):
        """In proxy mode a connect fails when the proxy cannot be set, and everything is put back."""
        before = self.machine.snapshot()
        self.machine.shell(
            "mkdir /mnt/slow; printf '#!/bin/sh\\nexec sleep 1000\\n' >/mnt/slow/gsettings; chmod +x /mnt/slow/gsettings;"
            "mount --bind /mnt/slow/gsettings /usr/bin/gsettings"
        )
        try:
            self.assertOneLine(self.connect(check=False), "proxy settings")
        finally:
            self.machine.shell("umount /usr/bin/gsettings; rm -r /mnt/slow")
        self.assertEqual(self.machine.snapshot(), before)

    def test_slow_program_is_waited_for(self):
        """On a busy computer each call takes long. All calls together may take longer than the limit of one."""
        self.as_user(
            "gsettings set org.gnome.system.proxy mode auto; gsettings set org.gnome.system.proxy.http host proxy.corp;"
            "gsettings set org.gnome.system.proxy.socks host before; gsettings set org.gnome.system.proxy.socks port 1"
        )
        before = self.settings()
        self.machine.shell("cp /usr/bin/gsettings /run/gsettings")
        restore = self.stand_in('sleep 0.5; exec /run/gsettings "$@"')
        try:
            self.connect(strict=1)
            self.assertIn("'manual'", self.as_user("/run/gsettings get org.gnome.system.proxy mode"))
            self.disconnect()
        finally:
            restore()
            self.machine.shell("rm /run/gsettings")
        self.assertEqual(self.settings(), before)


class GnomeWithoutSession(Desktop):
    def test_restores_after_the_user_has_logged_out(self):
        services.start_session_bus(self.machine)
        self.as_user("gsettings set org.gnome.system.proxy.socks host before")
        before = self.as_user("dconf dump /system/proxy/")
        self.connect()
        self.assertNotEqual(self.as_user("dconf dump /system/proxy/"), before)
        self.machine.shell("pkill -u alice; while pgrep -u alice >/dev/null; do :; done; rm -rf /run/user/4242")
        self.disconnect()
        self.assertEqual(self.as_user("dconf dump /system/proxy/"), before)


class Kde(Desktop):
    FILES = {
        "proxies of the user's": "[Proxy Settings]\nNoProxyFor=corp\nProxyType=2\nProxyType[$e]=2\nhttpProxy=http://proxy.corp 80\nother=kept\n\n[Other]\nProxyType=7\n",
        "no such group": "[Other]\na=b",
        "empty": "",
        "no line end": "[Proxy Settings]\nProxyType=0",
    }

    def setUp(self):
        self.as_user("rm -rf ~/.config; mkdir -p ~/.config")

    def write(self, text):
        self.machine.run("tee", KIOSLAVE, uid=USER_UID, stdin=text)

    def test_set_and_restored_to_the_byte(self):
        for name, text in self.FILES.items():
            with self.subTest(name):
                self.write(text)
                self.as_user("chmod 0640 ~/.config/kioslaverc")
                before = self.machine.snapshot()
                self.connect()
                now = self.machine.shell(f"cat {KIOSLAVE}")
                self.assertIn("ProxyType=1\n", now)
                self.assertIn("socksProxy=socks://127.0.0.1 9050\n", now)
                self.assertNotIn("proxy.corp", now)
                self.assertEqual("other=kept" in now, "other=kept" in text)
                self.connect(strict=1, lan=1)
                self.assertIn("192.168.0.0/16", self.machine.shell(f"cat {KIOSLAVE}"))
                self.disconnect()
                self.assertEqual(self.machine.snapshot(), before)

    def test_every_other_line_stays_as_it_is(self):
        other = "  indented=C:\\new \\\nnext=\\\\x  \n[Other]\nProxyType=\\7\n"
        self.write("[Proxy Settings]\nProxyType=2\n" + other)
        self.connect()
        now = self.machine.shell(f"cat {KIOSLAVE}")
        self.assertTrue(now.endswith(other), now)
        self.assertEqual(now.count("[Proxy Settings]\n"), 1)
        self.machine.shell(f"printf 'changed=\\\\y\\n' >>{KIOSLAVE}")
        self.disconnect()
        self.assertEqual(self.machine.shell(f"cat {KIOSLAVE}"), "[Proxy Settings]\nProxyType=2\n" + other + "changed=\\y\n")

    def test_file_that_is_too_long_for_the_journal_is_left_alone(self):
        for size in 131072, 131073:
            text = "[Other]\n" + "x" * (size - 9) + "\n"
            self.write(text)
            self.connect()
            self.assertEqual(self.machine.shell(f"cat {KIOSLAVE}") == text, size == 131073)
            self.disconnect()
            self.assertEqual(self.machine.shell(f"cat {KIOSLAVE}"), text)

    def test_file_that_did_not_exist_goes(self):
        self.as_user("touch ~/.config/kdeglobals")
        before = self.machine.snapshot()
        self.connect()
        self.assertIn("ProxyType=1\n", self.machine.shell(f"cat {KIOSLAVE}"))
        self.disconnect()
        self.assertEqual(self.machine.snapshot(), before)

    def test_former_users_settings_go_back_when_another_user_connects(self):
        """They go back at once, not at the new user's disconnect. bob has a desktop of his own."""
        bobs = "/home/bob/.config/kioslaverc"
        self.write(self.FILES["proxies of the user's"])
        self.machine.shell("mkdir -p /home/bob/.config", uid=namespace.OTHER_UID)
        self.machine.run("tee", bobs, uid=namespace.OTHER_UID, stdin=self.FILES["no such group"])
        before = self.machine.snapshot()
        self.connect()
        self.assertIn("ProxyType=1\n", self.machine.shell(f"cat {KIOSLAVE}"))
        self.machine.connect(strict=0, env={"PATH": os.environ["PATH"], "PKEXEC_UID": str(namespace.OTHER_UID)})
        self.assertEqual(self.machine.shell(f"cat {KIOSLAVE}"), self.FILES["proxies of the user's"])
        self.assertIn("ProxyType=1\n", self.machine.shell(f"cat {bobs}"))
        self.disconnect()
        self.assertEqual(self.machine.snapshot(), before)
        self.machine.shell("rm -r /home/bob/.config")

    def test_user_without_kde_gets_no_file(self):
        self.connect()
        self.assertEqual(self.machine.shell("ls -A /home/alice/.config"), "")
        self.disconnect()

    def test_what_the_user_changed_meanwhile_stays(self):
        self.write(self.FILES["proxies of the user's"])
        self.connect()
        self.machine.shell(f"printf '[New]\\nc=d\\n' >>{KIOSLAVE}")
        self.disconnect()
        now = self.machine.shell(f"cat {KIOSLAVE}")
        self.assertIn("[New]\nc=d\n", now)
        for line in "NoProxyFor=corp", "ProxyType=2", "ProxyType[$e]=2", "httpProxy=http://proxy.corp 80", "other=kept":
            self.assertIn(line + "\n", now)
        self.assertNotIn("9050", now)

    def test_link_of_the_users_is_not_followed_as_root(self):
        self.machine.shell("mkdir -p /run/rootonly; echo '[Proxy Settings]' >/run/rootonly/file; chmod -R 0755 /run/rootonly")
        self.as_user("ln -s /run/rootonly/file ~/.config/kioslaverc")
        self.assertOneLine(self.connect(check=False), "proxy settings")
        self.assertEqual(self.machine.shell("cat /run/rootonly/file; ls /run/rootonly"), "[Proxy Settings]\nfile\n")


if __name__ == "__main__":
    namespace.main()

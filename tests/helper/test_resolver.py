"""NetworkManager writes the resolver file, and cannot while ours is mounted over it. nmcli is a stand-in that writes it as the real one
has it written."""

import namespace
from namespace import HelperTest

COPY = "/run/NetworkManager/resolv.conf"
FIRST, SECOND = "nameserver 192.0.2.53\n", "nameserver 192.0.2.54\n"
NMCLI = f"""#!/bin/bash
echo "$*" >>/run/NetworkManager/asked
text=$(<{COPY})
[[ $* != "general reload dns-rc" ]] || printf '%s\\n' "$text" >/etc/resolv.conf
"""


class Resolver(HelperTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.machine.shell("mkdir -p /mnt/sbin/upper /mnt/sbin/work /run/NetworkManager\n"
                          "mount -t overlay -o lowerdir=/usr/sbin,upperdir=/mnt/sbin/upper,workdir=/mnt/sbin/work private /usr/sbin\n"
                          "printf %s \"$1\" >/usr/sbin/nmcli; chmod 755 /usr/sbin/nmcli", NMCLI)

    def setUp(self):
        self.machine.shell(f"rm -f /run/NetworkManager/*; printf %s '{FIRST}' | tee {COPY} >/etc/resolv.conf")

    def tearDown(self):
        self.machine.help("disconnect")
        self.machine.shell(f"rm -f /etc/resolv.conf; printf %s '{FIRST}' >/etc/resolv.conf")

    def session(self, during):
        """A session with a second connect in it, as after a change of a setting."""
        self.machine.connect()
        self.machine.shell(during)
        self.machine.connect()
        self.machine.help("disconnect")
        return self.machine.shell("cat /etc/resolv.conf"), self.machine.shell("cat /run/NetworkManager/asked 2>/dev/null || true")

    def test_another_server_that_the_network_gave_meanwhile_is_there_afterwards(self):
        self.assertEqual(self.session(f"printf %s '{SECOND}' >{COPY}"), (SECOND, "general reload dns-rc\n"))

    def test_where_nothing_has_changed_nobody_is_asked(self):
        self.assertEqual(self.session("true"), (FIRST, ""))

    def test_a_file_that_its_user_wrote_stays_as_it_is(self):
        self.machine.shell("echo nameserver 192.0.2.99 >/etc/resolv.conf")
        self.assertEqual(self.session(f"printf %s '{SECOND}' >{COPY}"), ("nameserver 192.0.2.99\n", ""))

    def test_a_link_to_the_managers_own_file(self):
        """Its own file is the one that ours was mounted over: what it would have there is not told, so it is asked."""
        self.machine.shell(f"ln -sf {COPY} /etc/resolv.conf")
        self.assertEqual(self.session("true"), (FIRST, "general reload dns-rc\n"))

    def test_without_the_manager_the_network_is_open_all_the_same(self):
        self.assertEqual(self.session("rm /run/NetworkManager/resolv.conf"), (FIRST, ""))


if __name__ == "__main__":
    namespace.require_namespaces()
    namespace.main()

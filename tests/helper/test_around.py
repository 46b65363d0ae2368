"""Ways around the rules: other tables, applications without Tor, and packets that only the system's accounts may send."""

import subprocess

import namespace
import probes
from hostile import HostileTest
from namespace import OTHER_UID, TOR_GROUP, USER_UID
from wire import LINK


class Around(HostileTest):
    def mapped(self, address, port):
        """The packets on the wire of a connection to this computer's own address that another table redirects to `address`."""
        self.machine.shell(
            f"nft -f - <<<'table ip other {{ chain o {{ type nat hook output priority -100; ip daddr 192.168.77.2 tcp dport 8080 dnat to {address}:{port}; }}; }}'"
        )
        try:
            self.wire.mark()
            self.machine.run(
                "/usr/bin/python3",
                "-c",
                "import socket; s = socket.socket(); s.setblocking(False); s.connect_ex(('192.168.77.2', 8080))",
                uid=USER_UID,
            )
            return set(self.wire.mark()) & set(probes.PROBES)
        finally:
            self.machine.shell("nft delete table ip other")

    def test_a_port_mapping_of_others_is_no_way_out(self):
        self.assertEqual(self.mapped(probes.PUBLIC, 1001), {"tcp"})
        self.machine.connect()
        self.assertEqual(self.mapped(probes.PUBLIC, 1001), set())
        self.assertEqual(self.mapped(probes.LAN, 1006), set())
        self.machine.connect(lan=1)
        self.assertEqual(self.mapped(probes.PUBLIC, 1001), set())
        self.assertEqual(self.mapped(probes.LAN, 53), set())
        self.assertEqual(self.mapped(probes.LAN, 1006), {"lan-tcp"})

    def test_an_application_without_tor_answers_nobody_elsewhere(self):
        """A program on this computer can forge the sender of a packet. The answer would then go to that sender from the real
        address."""
        server = (
            "import os, socket, sys, threading\nthreading.Thread(target=lambda: (sys.stdin.read(), os._exit(0)), daemon=True).start()\n"
            "s = socket.socket(socket.AF_INET6, socket.SOCK_DGRAM); s.bind(('::', 6881)); print('up', flush=True)\n"
            f"s.sendto(b'hello', ('{probes.PUBLIC6}', 40405))\n"
            "while True:\n data, where = s.recvfrom(999)\n try: s.sendto(b'answer', where); print('sent', flush=True)\n except OSError: print('refused', flush=True)"
        )
        ask = (
            f"import socket\ns = socket.socket(socket.AF_INET6, socket.SOCK_DGRAM); s.setsockopt(socket.IPPROTO_IPV6, 78, 1); s.bind(('{probes.PUBLIC6}', 40404))\n"
            "s.sendto(b'?', ('fd00:77::2', 6881))"
        )  # 78: IPV6_FREEBIND
        self.machine.connect()
        for said in "refused\n", "sent\n":
            if said == "sent\n":
                self.machine.end_watcher()
                self.machine.shell("nft insert rule inet veldmark refused socket cgroupv2 level 1 '\"veldmark-bypass\"' accept")
            self.wire.mark()
            process = self.machine.start(
                "/usr/bin/python3",
                "-c",
                server,
                uid=USER_UID,
                group="/sys/fs/cgroup/veldmark-bypass",
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
                text=True,
            )
            self.assertEqual(process.stdout.readline(), "up\n")
            self.machine.run("/usr/bin/python3", "-c", ask, uid=OTHER_UID)
            self.assertEqual(process.stdout.readline(), said)
            process.communicate()
            seen = self.wire.mark()
            self.assertIn(f"other udp {probes.PUBLIC6} 40405", seen, "its own packets leave")
            self.assertEqual(f"other udp {probes.PUBLIC6} 40404" in seen, said == "sent\n")

    def test_only_the_systems_own_ask_for_an_address(self):
        """The administrator may have opened the ports below 1024 to every account."""
        ask = (
            "import socket\nfor a, own, port in ('192.168.77.1', 68, 67), ('255.255.255.255', 68, 67), ('fe80::1%veth0', 546, 547), ('ff02::1:2%veth0', 546, 547), ('203.0.113.9', 68, 67),"
            " ('2001:db8:9::9', 546, 547):\n"
            " family, kind, _, _, to = socket.getaddrinfo(a, port, type=socket.SOCK_DGRAM)[0]\n"
            " with socket.socket(family, kind) as s:\n  s.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1); s.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)\n"
            "  s.bind(('', own))\n  try: s.sendto(b'?', to)\n  except PermissionError: pass"
        )

        def seen(uid, group=None):
            self.wire.mark()
            self.machine.run("/usr/bin/python3", "-c", ask, uid=uid, group=group)
            return sorted(line.split()[2] for line in self.wire.mark() if line.endswith((" 67", " 547")))

        self.machine.shell(
            "sysctl -qw net.ipv4.ip_unprivileged_port_start=0; ip neigh replace fe80::1 lladdr 02:00:00:00:00:01 dev veth0"
        )
        try:
            everywhere = ["192.168.77.1", "255.255.255.255", "fe80::1", "ff02::1:2"]
            self.assertEqual(seen(OTHER_UID), sorted([*everywhere, probes.PUBLIC, probes.PUBLIC6]))
            self.machine.connect()
            self.assertEqual(seen(OTHER_UID), [])
            for uid in 0, 998:
                self.assertEqual(seen(uid), everywhere)
            self.assertLess(self.tor_uid, 1000)
            self.assertEqual(seen(self.tor_uid, TOR_GROUP), [], "Tor's account is one of the system's, and asks for none")
        finally:
            self.machine.shell("sysctl -qw net.ipv4.ip_unprivileged_port_start=1024; ip neigh del fe80::1 dev veth0")

    def test_a_vpns_own_packets_go_to_the_local_network_alone(self):
        """A program's packets and the kernel's; and the local network has to be allowed."""
        carry = "import socket, sys; s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); s.connect((sys.argv[1], 4789))\ntry: s.send(b'?')\nexcept OSError: pass"

        def carried():
            """To which of the two servers the packets of a program of root's and of the kernel's own tunnel go."""
            self.wire.mark()
            for server in probes.PUBLIC, probes.LAN:
                self.machine.run("/usr/bin/python3", "-c", carry, server)
                self.machine.shell(
                    f"ip link add vpn type vxlan id 5 remote {server} local 192.168.77.2 dstport 4790; ip addr add 10.99.0.1/24 dev vpn; ip link set vpn up;"
                    "ip neigh replace 10.99.0.2 lladdr 02:00:00:00:00:09 dev vpn"
                )
                # What goes into the tunnel is let out as Tor's, or as the local network's.
                self.machine.run(
                    "/usr/bin/python3",
                    "-c",
                    "import socket; s = socket.socket(); s.setblocking(False); s.connect_ex(('10.99.0.2', 443))",
                    uid=self.tor_uid,
                    group=TOR_GROUP,
                )
                self.machine.shell("ip link del vpn")
            return sorted({tuple(line.split()[2:]) for line in self.wire.mark() if line.endswith((" 4789", " 4790"))})

        both = [(address, port) for address in (probes.LAN, probes.PUBLIC) for port in ("4789", "4790")]
        self.assertEqual(carried(), sorted(both))
        self.machine.connect()
        self.assertEqual(carried(), [])
        self.machine.connect(lan=1)
        self.assertEqual(carried(), sorted(both[:2]))

    def test_what_a_program_makes_up_is_no_neighbour_discovery(self):
        solicit = (
            "import socket, struct; s = socket.socket(socket.AF_INET6, socket.SOCK_RAW, socket.IPPROTO_ICMPV6);"
            "s.setsockopt(socket.IPPROTO_IPV6, socket.IPV6_UNICAST_HOPS, 255);"
            f"s.sendto(struct.pack('!BBHI', 135, 0, 0, 0) + socket.inet_pton(socket.AF_INET6, '{probes.PUBLIC6}'), ('{probes.PUBLIC6}', 0))"
        )

        def seen():
            self.wire.mark()
            self.machine.run("/usr/bin/python3", "-c", solicit, check=False)
            return set(self.wire.mark()) - LINK

        self.assertEqual(seen(), {"icmp6 135 far away"})
        self.machine.connect()
        self.assertEqual(seen(), set())
        # The kernel's own neighbour discovery keeps working.
        self.machine.shell(f"ip neigh flush dev veth0; ping -6 -c 1 -W 0.1 {probes.LAN6} || true")


if __name__ == "__main__":
    namespace.main()

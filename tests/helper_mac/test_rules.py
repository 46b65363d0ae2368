"""The packets that may leave a Mac, by evaluating the loaded rules according to pf's manual, and the generated texts."""

import re

import mac
from mac import USER_UID, MacTest

LAN = "192.168.1.9"
PUBLIC = "203.0.113.5"


class Leaks(MacTest):
    def connected(self, strict, lan=0, more=()):
        self.machine.connect(strict=strict, lan=lan, more=more)
        self.tor = self.machine.state["record /Users/_veldmark UniqueID"]
        self.bypass = self.machine.state.get("record /Groups/_veldmark_bypass PrimaryGroupID", "none")

    def check(self, table):
        for wanted, direction, packet in table:
            with self.subTest(direction=direction, **packet):
                self.assertEqual(self.machine.verdict(direction, **packet), wanted)

    def probes(self):
        """Packets that must never leave in strict mode, from any account."""
        for user in USER_UID, 0, 65534:
            for af, source, to in ("inet", "198.51.100.7", PUBLIC), ("inet6", "2001:db8:1::7", "2001:db8::5"):
                for proto, port in (
                    ("tcp", 443),
                    ("tcp", 53),
                    ("udp", 443),
                    ("udp", 53),
                    ("udp", 123),
                    ("udp", 5353),
                    ("icmp", 0),
                    ("sctp", 9),
                ):
                    yield {"proto": proto, "af": af, "source": source, "to": to, "port": port, "user": user}

    def test_strict(self):
        probes = list(self.probes())
        for probe in probes:  # they leave when nothing blocks them
            self.assertEqual(self.machine.verdict("out", **probe), "pass")
        self.connected(strict=1)
        self.check([("block", "out", probe) for probe in probes])
        self.check(
            [
                ("pass", "out", {"user": self.tor}),
                ("pass", "out", {"user": self.tor, "af": "inet6", "source": "2001:db8:1::7", "to": "2001:db8::5"}),
                ("block", "out", {"user": self.tor, "proto": "udp", "port": 53}),
                ("block", "out", {"user": self.tor, "proto": "udp", "port": 443}),
                ("block", "out", {"user": self.tor, "proto": "icmp"}),
                ("block", "out", {"to": LAN}),
                ("block", "out", {"to": LAN, "proto": "udp", "port": 5353}),
                ("pass", "out", {"group": self.bypass}),
                ("pass", "out", {"group": self.bypass, "proto": "udp"}),
                ("block", "out", {"group": "20"}),
                ("pass", "out", {"proto": "udp", "sport": 68, "port": 67, "to": "255.255.255.255"}),
                ("pass", "out", {"proto": "udp", "sport": 68, "port": 67, "to": "192.168.1.1"}),
                ("block", "out", {"proto": "udp", "sport": 68, "port": 67, "to": PUBLIC}),
                ("block", "out", {"proto": "udp", "sport": 68, "port": 53, "to": "192.168.1.1"}),
                (
                    "pass",
                    "out",
                    {"proto": "icmp6", "af": "inet6", "source": "fe80::7", "to": "ff02::1:ff00:1", "kind": "neighbrsol"},
                ),
                ("block", "out", {"proto": "icmp6", "af": "inet6", "source": "fe80::7", "to": "2001:db8::5", "kind": "neighbrsol"}),
                # A host without a report gets no solicitations from a switch with MLD snooping. The kernel puts the device's number
                # into addresses.
                *[
                    ("pass", "out", {"proto": "icmp6", "af": "inet6", "source": "fe80::7", "to": "ff02::16", "kind": kind})
                    for kind in ("listenrep", "143")
                ],
                ("block", "out", {"proto": "icmp6", "af": "inet6", "source": "fe80::7", "to": "ff05::16", "kind": "143"}),
                *[
                    ("pass", "out", {"proto": "udp", "af": "inet6", "source": "fe80::7", "to": to, "sport": 546, "port": 547})
                    for to in ("ff02::1:2", "ff02:4::1:2")
                ],
                (
                    "block",
                    "out",
                    {"proto": "udp", "af": "inet6", "source": "fe80::7", "to": "2001:db8::5", "sport": 546, "port": 547},
                ),
                ("block", "out", {"proto": "icmp6", "af": "inet6", "source": "fe80::7", "to": "ff02::1", "kind": "echoreq"}),
                ("pass", "out", {"device": "lo0", "to": "127.0.0.1", "port": 9050}),
                ("pass", "in", {"device": "lo0", "to": "127.0.0.1", "port": 9050}),
                ("block", "in", {"source": PUBLIC, "to": "198.51.100.7", "port": 22}),
                ("block", "in", {"source": LAN, "to": "192.168.1.7", "port": 22}),
                ("block", "in", {"source": "192.168.64.2", "to": PUBLIC, "device": "bridge100"}),  # of a virtual machine
                ("pass", "in", {"proto": "udp", "sport": 67, "port": 68, "source": "192.168.1.1", "to": "255.255.255.255"}),
            ]
        )

    def test_strict_with_the_local_network(self):
        self.connected(strict=1, lan=1)
        self.check([("block", "out", probe) for probe in self.probes()])
        self.check(
            [
                ("pass", "out", {"to": LAN}),
                ("pass", "in", {"source": LAN, "to": "192.168.1.7", "port": 22}),
                ("pass", "out", {"to": "fd00::9", "af": "inet6", "source": "fd00::7"}),
                ("block", "in", {"source": PUBLIC, "to": "192.168.1.7", "port": 22}),
                ("block", "out", {"to": "224.0.0.251", "proto": "udp", "port": 5353}),
                *[
                    ("block", "out", {"to": LAN, "proto": proto, "port": port})
                    for proto in ("tcp", "udp")
                    for port in (53, 137, 138, 139, 853, 5353, 5355)
                ],
                *[
                    ("block", "in", {"source": LAN, "to": PUBLIC, "proto": "udp", "port": port, "device": "bridge100"})
                    for port in (53, 853)
                ],
            ]
        )

    def test_snowflake_may_send_datagrams(self):
        self.connected(
            strict=1,
            more=[
                "--bridge",
                "snowflake 192.0.2.3:80 0123456789012345678901234567890123456789",
                "--pt-snowflake",
                "/usr/bin/snowflake-client",
            ],
        )
        self.check([("pass", "out", {"user": self.tor, "proto": "udp"}), ("block", "out", {"proto": "udp"})])

    def test_proxy(self):
        self.connected(strict=0)
        self.check(
            [
                ("pass", "out", {}),
                ("pass", "out", {"proto": "udp"}),
                ("pass", "in", {"source": LAN, "to": "192.168.1.7"}),
                ("block", "out", {"proto": "udp", "port": 53}),
                ("block", "out", {"proto": "tcp", "port": 53}),
                ("pass", "out", {"proto": "udp", "port": 53, "user": self.tor}),
                ("pass", "out", {"device": "lo0", "to": "127.0.0.1", "proto": "udp", "port": 53}),
            ]
        )

    def test_the_control_port_is_the_users_in_both_modes(self):
        for strict in 0, 1:
            self.connected(strict=strict)
            at = {"device": "lo0", "to": "127.0.0.1", "port": 9051}
            self.check(
                [
                    *[("pass", "out", {**at, "user": user}) for user in (0, USER_UID, self.tor)],
                    ("block", "out", {**at, "user": 65534}),
                    ("block", "out", {**at, "user": 65534, "af": "inet6", "source": "::1", "to": "::1"}),
                ]
            )

    def test_connections_from_before_do_not_go_on(self):
        """Rules of the user's own had let them begin, and their states pass them by every rule."""
        self.machine.set_state({"pf  filter": mac.BEFORE_PF["pf  filter"] + "\npass out quick all flags S/SA keep state"})
        others = {"sport": 50001}
        for strict in 1, 0:
            with self.subTest(strict=strict):
                port = {"port": 443 if strict else 53}
                self.assertEqual(self.machine.begin_flow("out", **port), "pass")
                self.assertEqual(self.machine.verdict("out", flags="A", **port), "pass")
                self.assertEqual(self.machine.verdict("out", flags="A", **port, **others), "pass")
                self.connected(strict=strict)
                self.assertEqual(self.machine.verdict("out", flags="A", **port), "block")
                self.assertEqual(self.machine.verdict("out", flags="A", **port, **others), "block")
                self.machine.help("disconnect")

    def test_connections_that_a_session_let_out_end_with_it(self):
        self.connected(strict=1, lan=1)
        self.assertEqual(self.machine.begin_flow("out", to=LAN), "pass")
        self.assertEqual(self.machine.verdict("out", to=LAN, flags="A"), "pass")
        self.assertEqual(self.machine.verdict("out", to=LAN, flags="A", sport=50001), "block")  # it belongs to no state
        self.connected(strict=1, lan=0)
        self.assertEqual(self.machine.verdict("out", to=LAN, flags="A"), "block")

    def test_lookups_for_this_computer_go_to_tors_port(self):
        self.assertEqual(self.machine.redirected(), "127.0.0.1 53")
        for strict in 1, 0:
            self.connected(strict=strict)
            self.assertEqual(self.machine.redirected(), "127.0.0.1 9053")
            self.assertEqual(self.machine.redirected(to="192.0.2.53"), "192.0.2.53 53")
        self.machine.change(pf_skip="lo0")
        self.assertEqual(self.machine.redirected(), "127.0.0.1 53")
        self.machine.change(pf_skip="")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.redirected(), "127.0.0.1 53")

    def test_tables_of_other_rules_outlive_a_session(self):
        self.machine.set_state(
            {
                "pf  filter": mac.BEFORE_PF["pf  filter"] + "\nblock drop out quick from any to <blocked>",
                "pf table blocked": "203.0.113.66",
                "pf table kept": "203.0.113.67 persist",
            }
        )
        before = self.machine.settings()
        self.assertEqual(self.machine.verdict("out", to="203.0.113.66"), "block")
        self.connected(strict=0)
        self.assertEqual(self.machine.verdict("out", to="203.0.113.66"), "block")
        self.assertEqual(self.machine.verdict("out"), "pass")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.settings(), before)
        self.machine.shell("pfctl -q -R -f - <<<'anchor \"com.apple/*\" all'")  # what nothing names goes
        self.assertEqual(self.machine.shell("pfctl -s Tables"), "kept\n")

    def test_lists_of_addresses_are_too_short_for_tables_of_the_optimiser(self):
        """pfctl puts six addresses or more of one rule into a table with a new name at each loading, so that the rules would not
        read back as they were loaded."""
        for words in "print_proxy_rules 99 501", "print_strict_rules 99 501 1 1 400":
            rules = self.machine.run("/bin/bash", "-p", "-c", f". '{self.machine.helper}'; {words}").stdout
            lists = [text.split(", ") for text in re.findall(r"(?:from|to) \{ ([^}]*) \}", rules)]
            self.assertEqual([entries for entries in lists if len(entries) > 5], [])
        self.assertGreater(len(lists), 3)

    def test_a_change_of_modes_is_never_open(self):
        """Each rule set is loaded as a whole. No intermediate rule set lets out more than both."""
        self.connected(strict=1)
        self.machine.write("/mac/calls", "")
        self.connected(strict=1, lan=1)
        loads = [call for call in self.machine.calls("pfctl") if "-f" in call or "-F" in call]
        self.assertEqual(loads, ["pfctl -q -a veldmark -f -", "pfctl -q -F states"])


if __name__ == "__main__":
    mac.main()

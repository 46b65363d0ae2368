"""The helper names other firewalls that block Tor in a note that every user can read."""

import time

import namespace
from namespace import HelperTest

NOTE = "/run/veldmark.others"
IPTABLES = "table ip filter { chain OUTPUT { type filter hook output priority 0; policy %s; %s }\n%s }"


class Others(HelperTest):
    def tearDown(self):
        self.machine.help("disconnect")
        self.machine.shell("nft flush ruleset")

    def named(self, rules, strict=1):
        """What a connect notes under these rules. `rules` must not block the loopback device, so that Tor can be reached."""
        self.machine.run("nft", "-f", "-", stdin=rules.replace("};", "}").replace("{", "{\n").replace("}", "\n}\n"))
        kept = self.machine.shell("nft -s list ruleset")
        self.machine.connect(strict=strict)
        self.assertIn(kept, self.machine.shell("nft -s list ruleset"))
        return self.machine.shell(f"cat {NOTE} 2>/dev/null || true", uid=namespace.USER_UID).splitlines()

    def test_no_rules_and_rules_that_let_out(self):
        for rules in (
            "",
            IPTABLES % ("accept", "", ""),
            IPTABLES % ("accept", 'tcp dport 25 drop; oifname "x" reject', ""),
            IPTABLES % ("drop", "jump own", "chain own { counter accept; }"),
            IPTABLES % ("accept", "jump own; accept; drop", "chain own { return; drop; }"),
            "table ip filter { chain INPUT { type filter hook input priority 0; policy drop; } chain own { drop; } }",
            "table ip6 filter { chain OUTPUT { type filter hook output priority 0; policy drop; } }",
        ):
            self.assertEqual(self.named(rules), [], rules)
            self.machine.help("disconnect")
            self.machine.shell("nft flush ruleset")

    def test_a_policy_that_denies(self):
        for strict in 1, 0:
            self.assertEqual(self.named(IPTABLES % ("drop", "oifname lo accept", ""), strict), ["table ip filter"])
            self.machine.help("disconnect")
            self.assertEqual(self.machine.shell(f"ls {NOTE} 2>/dev/null || true"), "", "the note outlives the session")
            self.machine.shell("nft flush ruleset")

    def test_a_last_rule_that_denies_in_a_chain_of_a_chain(self):
        for verdict in (
            "drop",
            "counter drop",
            "reject",
            "counter packets 3 bytes 180 reject with icmp type admin-prohibited",
            'oifname != "lo" ct state new drop',
            'log prefix "denied " level info ip protocol tcp counter reject with tcp reset',
        ):
            chains = "chain own { oifname lo accept; tcp dport 22 accept; goto last; }\nchain last { %s; }" % verdict
            self.assertEqual(
                self.named(
                    "table ip filter { chain own { }; chain last { }; }\n"
                    + IPTABLES % ("accept", "ct state established accept; jump own", chains)
                ),
                ["table ip filter"],
                verdict,
            )
            self.machine.help("disconnect")
            self.machine.shell("nft flush ruleset")

    def test_ufw_and_firewalld_by_their_names(self):
        ufw = IPTABLES % ("drop", "jump ufw-before-output", "")
        firewalld = (
            "table inet firewalld { chain filter_OUTPUT { type filter hook output priority filter + 10; policy accept; "
            "oifname lo accept; jump filter_OUTPUT_POLICIES_pre; }; chain filter_OUTPUT_POLICIES_pre { "
            "jump filter_OUT_policy_deny; }; chain filter_OUT_policy_deny { reject with icmpx admin-prohibited; } }"
        )
        before = "table ip filter { chain ufw-before-output { oifname lo accept; } }\n"
        also = "table inet firewalld { chain filter_OUTPUT_POLICIES_pre { }; chain filter_OUT_policy_deny { } }\n"
        self.assertEqual(sorted(self.named(before + ufw + "\n" + also + firewalld)), ["firewalld", "ufw"])

    def wait_note(self, names):
        read = f"cat {NOTE} 2>/dev/null || true"
        deadline = time.monotonic() + 20  # the watcher looks at other rules at least every five seconds
        while (found := self.machine.shell(read, uid=namespace.USER_UID).splitlines()) != names:
            self.assertLess(time.monotonic(), deadline, (names, found))
            time.sleep(0.1)

    def test_what_begins_to_deny_during_a_session_is_noted_until_it_stops(self):
        self.machine.connect()
        self.machine.await_watcher()
        self.assertEqual(self.machine.shell(f"cat {NOTE} 2>/dev/null || true"), "")
        self.machine.shell(
            "nft add table ip filter; nft add chain ip filter OUTPUT '{ type filter hook output priority 0; policy drop; }'"
        )
        self.machine.shell("nft add rule ip filter OUTPUT oifname lo accept")
        self.wait_note(["table ip filter"])
        self.machine.shell(
            "nft add table inet second; nft add chain inet second out '{ type filter hook output priority 1; policy drop; }'"
        )
        self.wait_note(["table ip filter", "table inet second"])
        self.machine.shell("nft add table ip filter '{ flags dormant; }'")
        self.wait_note(["table inet second"])
        self.machine.shell("nft delete table inet second")
        self.wait_note([])

    def test_our_own_are_none_of_others(self):
        self.machine.connect()
        self.machine.connect()  # now Veldmark's own rules are loaded as well, and block
        self.assertIn("policy drop", self.machine.shell("nft list chain inet veldmark output"))
        self.assertEqual(self.machine.shell(f"cat {NOTE} 2>/dev/null || true"), "")

    def test_chains_without_an_end(self):
        """The kernel accepts no chain that leads back to itself. The search follows nested chains as far as the kernel does."""
        chains = "".join("chain c%d { }\n" % i for i in range(15))
        links = "".join("chain c%d { jump c%d; }\n" % (i, i + 1) for i in range(14)) + "chain c14 { oifname lo accept; drop; }\n"
        self.assertEqual(
            self.named("table ip filter { %s }\n" % chains + IPTABLES % ("accept", "jump c0", links)), ["table ip filter"]
        )


if __name__ == "__main__":
    namespace.require_namespaces()
    namespace.main()

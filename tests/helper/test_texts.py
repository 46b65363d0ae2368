"""The generated texts: functions of the helper that print and touch nothing."""

import os
import re
import subprocess
import unittest

import namespace
from namespace import HASH

HELPER = namespace.helper_path()


def call(script):
    """Runs shell code with the helper's functions; needs no rights."""
    done = subprocess.run(["/bin/bash", "-p", "-c", f". {HELPER}; {script}"], capture_output=True, text=True, check=True)
    return done.stdout


class Torrc(unittest.TestCase):
    maxDiff = None
    HEAD = f"""# Written by Veldmark at each connect; changes here are lost.
DataDirectory /var/lib/veldmark/run/tor/data
Log notice file /var/lib/veldmark/run/notices.log
SocksPort 127.0.0.1:9050
ControlPort 127.0.0.1:9051
HashedControlPassword {HASH}
CookieAuthentication 0
DNSPort 127.0.0.1:293
"""

    def test_plain(self):
        self.assertEqual(call(f"OPT_HASH={HASH}; print_torrc 0"), self.HEAD + "ClientOnly 1\nAvoidDiskWrites 1\nNoExec 1\n")

    def test_bridges_in_reserve_are_not_in_it_and_their_programs_are(self):
        self.assertEqual(
            call(
                f"OPT_HASH={HASH} OPT_LYREBIRD=/usr/bin/lyrebird; OPT_RESERVES=('192.0.2.1:1' 'obfs4 192.0.2.2:2 cert=a');"
                "choose_transports; print_torrc 0"
            ),
            self.HEAD + "ClientOnly 1\nAvoidDiskWrites 1\nClientTransportPlugin obfs4 exec /usr/bin/lyrebird\n",
        )
        # Bridges without a program need none, in reserve as well.
        self.assertEqual(
            call(f"OPT_HASH={HASH}; OPT_RESERVES=('192.0.2.1:1'); choose_transports; print_torrc 0"),
            self.HEAD + "ClientOnly 1\nAvoidDiskWrites 1\nNoExec 1\n",
        )

    def test_behind_the_filter(self):
        head = self.HEAD.replace(
            "ControlPort 127.0.0.1:9051\n", "ControlPort 0\nControlSocket /var/lib/veldmark/run/tor/data/control\n"
        )
        self.assertEqual(
            call(f"OPT_HASH={HASH} CONTROL_SOCKET=$DATA/control; print_torrc 0"),
            head + "ClientOnly 1\nAvoidDiskWrites 1\nNoExec 1\n",
        )

    def test_everything(self):
        self.assertEqual(
            call(
                f"OPT_HASH={HASH} OPT_EXIT=de OPT_LYREBIRD=/usr/bin/lyrebird OPT_SNOWFLAKE=/usr/bin/snowflake-client;"
                "OPT_BRIDGES=('192.0.2.1:1' 'obfs4 192.0.2.2:2 cert=a' 'webtunnel 192.0.2.3:3' 'snowflake [2001:db8::4]:4'"
                " 'obfs4 192.0.2.5:5'); choose_transports; print_torrc 1"
            ),
            self.HEAD
            + """DNSPort [::1]:293
ClientOnly 1
AvoidDiskWrites 1
ExitNodes {de}
StrictNodes 1
UseBridges 1
Bridge 192.0.2.1:1
Bridge obfs4 192.0.2.2:2 cert=a
Bridge webtunnel 192.0.2.3:3
Bridge snowflake [2001:db8::4]:4
Bridge obfs4 192.0.2.5:5
ClientTransportPlugin obfs4,webtunnel exec /usr/bin/lyrebird
ClientTransportPlugin snowflake exec /usr/bin/snowflake-client
""",
        )

    def test_webtunnel_client_serves_webtunnel_when_given(self):
        text = call("OPT_LYREBIRD=/l OPT_WEBTUNNEL=/w; OPT_BRIDGES=('webtunnel 192.0.2.3:3'); choose_transports; print_torrc 0")
        self.assertIn("\nClientTransportPlugin webtunnel exec /w\n", text)
        self.assertNotIn("/l\n", text)


class Rules(unittest.TestCase):
    def test_strict_options_add_exactly_their_lines(self):
        def lines(arguments):
            text = call(f"print_strict_rules 99 1000 {arguments}")
            self.assertEqual(re.findall(r"(.*) jump tors_account", text), ["\t\tmeta skuid 99"])
            account = re.search(r"chain tors_account {\n(.*?)\t}", text, re.DOTALL).group(1)
            return set(text.splitlines()), account.splitlines()

        plain, account = lines("0 0 '' ''")
        self.assertEqual(
            account[:2] + account[-2:],
            [
                "\t\tct direction reply goto refused",
                "\t\ttcp flags & syn == 0 accept",
                "\t\tmeta l4proto tcp accept",
                "\t\tgoto refused",
            ],
        )
        for arguments, added in (
            ("0 1 '' ''", ["\t\tmeta l4proto udp accept"]),
            (
                "0 0 192.0.2.1 2001:db8::1",
                ["\t\tip daddr { 192.0.2.1 } udp dport 53 accept", "\t\tip6 daddr { 2001:db8::1 } udp dport 53 accept"],
            ),
        ):
            more, account_more = lines(arguments)
            self.assertEqual(sorted(account_more), sorted(account + added))
            self.assertEqual(more - plain, set(added))
        self.assertEqual(lines("0 0 '' '' '' 1")[1], [account[0], *account[-2:]])
        self.assertEqual(
            lines("0 0 '' '' '' '' '192.0.2.1 . 443' '2001:db8::1 . 9'")[1],
            [
                account[0],
                "\t\tip daddr . tcp dport { 192.0.2.1 . 443 } accept",
                "\t\tip6 daddr . tcp dport { 2001:db8::1 . 9 } accept",
                account[-1],
            ],
        )
        opened = lines("1 0 '' ''")[0] - plain
        self.assertIn("\t\tip daddr 192.168.0.0/16 goto local_network", opened)
        self.assertIn("\t\tip6 daddr fc00::/7 goto local_network", opened)

    def test_the_local_network_is_the_private_ranges_alone(self):
        text = call("print_strict_rules 99 1000 1 0 '' ''")
        self.assertEqual(
            re.findall(r"daddr (\S+) goto local_network", text),
            ["192.168.0.0/16", "10.0.0.0/8", "172.16.0.0/12", "169.254.0.0/16", "fe80::/10", "fc00::/7"],
        )

    def test_refusals_come_before_the_local_network(self):
        text = call("print_strict_rules 99 1000 1 0 '' ''")
        for chain, refused in ("local_network", "tcp dport { 53,"), ("local_udp", "th dport { 53,"):
            body = re.search(rf"chain {chain} {{(.*?)\n\t}}", text, re.DOTALL).group(1)
            self.assertLess(body.index(refused), body.index("\t\taccept"))

    BRIDGES = {  # the lines, and the addresses that Tor may send to; None: any
        ("192.0.2.1:443",): "192.0.2.1 . 443|",
        (
            "obfs4 192.0.2.1:444 ABC cert=a iat-mode=0",
            "[2001:db8::1]:9 ABC",
            "scramblesuit 192.0.2.2:1",
            "obfs3 192.0.2.3:65535",
        ): "192.0.2.1 . 444, 192.0.2.2 . 1, 192.0.2.3 . 65535|2001:db8::1 . 9",
        ("192.0.2.1:443 " + "A" * 40 + " url=https://192.0.2.9:8/",): "192.0.2.1 . 443|",
        (): None,
        ("192.0.2.1:443", "webtunnel 192.0.2.3:80 url=https://a.example/"): None,
        ("snowflake 192.0.2.3:80",): None,
        ("meek_lite 192.0.2.3:80 url=https://a.example/",): None,
        ("192.0.2.1:443", "010.2.3.4:443"): None,
        ("256.1.1.1:443",): None,
        ("2001:db8::1:443",): None,
        ("[::ffff:1.2.3.4]:443",): None,
        ("192.0.2.1:65536",): None,
        ("192.0.2.1:0",): None,
        ("192.0.2.1:0443",): None,
        ("obfs4x 192.0.2.1:443",): None,
    }

    def test_bridges_that_are_all_that_tor_needs(self):
        for lines, wanted in self.BRIDGES.items():
            words = " ".join(f"'{line}'" for line in lines)
            self.assertEqual(
                call(f'OPT_BRIDGES=({words}); list_bridges; printf \'%s|%s\' "$BRIDGES4" "$BRIDGES6"'), wanted or "|", lines
            )

    def test_one_transaction_replaces_the_table(self):
        for rules in call("print_strict_rules 99 0 0 0 '' ''"), call("print_proxy_rules 99 0"):
            self.assertTrue(rules.startswith("table inet veldmark\ndelete table inet veldmark\ntable inet veldmark {\n"))
            self.assertNotIn("flush", rules)
            self.assertNotIn("skuid !=", rules)
            self.assertNotIn("{ 0, 99, 0 }", rules)


class Resolver(unittest.TestCase):
    SERVERS4 = {
        "192.0.2.1": "192.0.2.1",
        "127.0.0.53": "",
        "256.0.0.1": "",
        "1.2.3": "",
        "1.2.3.4.5": "",
        "a.b.c.d": "",
        "010.2.3.4": "010.2.3.4",
        "1.2.3.4}": "",
        "0.0.0.0": "",
    }
    SERVERS6 = {
        "2001:db8::1": "2001:db8::1",
        "::1": "",
        "fe80::1%eth0": "fe80::1",
        "1:2:3:4:5:6:7:8": "1:2:3:4:5:6:7:8",
        "1:2:3:4:5:6:7": "",
        "1::2::3": "",
        ":::1": "",
        "12345::1": "",
        "g::1": "",
        "1:2:3:4:5:6:7:8:9": "",
        ":1::2": "",
        "::": "",
        "::ffff:1.2.3.4": "",
        "1::": "1::",
    }

    def test_servers_that_the_rules_can_hold(self):
        for family, table in ("4", self.SERVERS4), ("6", self.SERVERS6):
            for server, wanted in table.items():
                with self.subTest(server):
                    self.assertEqual(call(f"list_servers {family} 'nameserver {server}'"), wanted)

    def test_other_lines_are_passed_over(self):
        text = (
            "# nameserver 192.0.2.1\nsearch x\nnameserver 192.0.2.2 more\n\tnameserver 192.0.2.3\nnameserver 192.0.2.2\nnameserver"
        )
        self.assertEqual(call(f"list_servers 4 '{text}'"), "192.0.2.2, 192.0.2.3")

    def test_ipv6_only_where_tor_listens(self):
        self.assertNotIn("::1", call("print_resolver 0"))
        self.assertIn("nameserver ::1\n", call("print_resolver 1"))


class Reasons(unittest.TestCase):
    CASES = {
        "Nov 20 00:00:00.000 [warn] Failed to parse/validate config: Bad port\nNov 20 00:00:00.000 [err] Reading config failed--see warnings above.": "Failed to parse/validate config: Bad port",
        "Nov 20 00:00:00.000 [warn] first\nNov 20 00:00:00.000 [err] second\nNov 20 00:00:00.000 [notice] third": "second",
        "Nov 20 00:00:00.000 [warn] Could not bind to 127.0.0.1:9050: Address already in use. Is Tor already running?\n"
        "Nov 20 00:00:00.000 [warn] Failed to parse/validate config: Failed to bind one of the listener ports.\n"
        "Nov 20 00:00:00.000 [err] Reading config failed--see warnings above.": "Could not bind to 127.0.0.1:9050: Address already in use.",
        "Nov 20 00:00:00.000 [warn] Failed to parse/validate config: Failed to bind one of the listener ports.": "Failed to parse/validate config: Failed to bind one of the listener ports.",
        "cannot execute binary file": "cannot execute binary file",
        "": "",
    }

    def test_tors_own_reason(self):
        for text, wanted in self.CASES.items():
            self.assertEqual(call(f"tor_reason '{text}'"), wanted)

    def test_is_short_and_without_controls(self):
        self.assertEqual(call("tor_reason \"[warn] $(printf 'a%.0s' {1..999})\""), "a" * 300)
        self.assertEqual(call("tor_reason $'[warn] a\\x1b[2Jb'"), "a[2Jb")


class Joined(unittest.TestCase):
    def test_same_parts_same_bytes(self):
        self.assertEqual(open(HELPER, "rb").read(), open(namespace.helper_path(), "rb").read())

    def test_starts_privileged_and_is_executable(self):
        with open(HELPER, encoding="utf-8") as file:
            self.assertEqual(file.readline(), "#!/bin/bash -p\n")
        self.assertEqual(namespace.os.stat(HELPER).st_mode & 0o777, 0o755)

    def test_shellcheck(self):
        for system in "linux", "darwin":
            helper = namespace.helper_path(system)
            done = subprocess.run(["shellcheck", "-s", "bash", helper], capture_output=True, text=True, check=False)
            self.assertEqual(done.stdout, "", system)

    def test_the_contents_name_each_part(self):
        with open(HELPER, encoding="utf-8") as file:
            contents = [line[4:].split("  ")[0] for line in file if line.startswith("#   ")]
        named = {word for line in contents for word in line.split(", ")}
        parts = {
            name[:-3].removeprefix("linux-").removeprefix("darwin-")
            for name in os.listdir(namespace.PARTS)
            if name.endswith(".sh") and name != "join.sh"
        }
        self.assertIn("firewall", parts)
        self.assertEqual(parts - named, set())

    def test_each_entry_of_the_journal_is_put_and_undone(self):
        for system, entries in ("linux", 13), ("darwin", 5):
            with open(namespace.helper_path(system), encoding="utf-8") as file:
                helper = file.read()
            kinds = re.findall(r"(?m)^readonly [A-Z]+_ENTRY=[0-9]{2}-([a-z]+)(?: |$)", helper)
            self.assertEqual(len(kinds), entries, system)
            for kind in kinds:
                for verb in "put", "undo":
                    self.assertTrue(re.search(rf"(?m)^{verb}_{kind}s?\(\) ", helper), f"{system}: {verb}_{kind}")


if __name__ == "__main__":
    unittest.main()

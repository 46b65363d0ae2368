"""Connect, disconnect and fix-dns on a Mac of stand-ins: the settings of a session, and their exact restoration."""

import os
import subprocess

import mac
from mac import HASH, TOR, USER_UID, MacTest

JOURNAL = "/Library/Application Support/Veldmark/journal/"
MARKER = "/Library/Application Support/Veldmark/state/active"
NOTE = "/private/var/run/veldmark.watch"
BUREAU = "Büro: USB 10/100 “LAN”"
# Asks the name server for a kind of record (TXT) that Tor answers without a network, "not implemented" (4), and greets the proxy.
ASK = """
import socket, sys
def ask(kind, port, data, part):
    with socket.socket(socket.AF_INET, kind) as there:
        there.settimeout(10)
        try:
            there.connect(("127.0.0.1", int(port)))
            there.send(data)
            return there.recv(512)[part].hex()
        except ConnectionRefusedError:
            return "refused"
query = bytes.fromhex("beef01000001000000000000") + b"\\7example\\3net\\0" + bytes.fromhex("00100001")
answer = ask(socket.SOCK_DGRAM, sys.argv[1], query, slice(2, 4))
print(answer if answer == "refused" else "%02x%02x" % (int(answer[:2], 16) & 0x80, int(answer[2:], 16) & 0xf),
      ask(socket.SOCK_STREAM, sys.argv[2], b"\\5\\1\\0", slice(0, 2)))
"""


class Session(MacTest):
    def assertSwitched(self, name):
        state = self.machine.state
        at = f"service {state['location']}/{name} "
        self.assertEqual(state[at + "dns"], "127.0.0.1")
        self.assertEqual(state[at + "socksfirewall"], "Yes\t127.0.0.1\t9050")
        for other in "web", "secureweb", "auto":
            self.assertTrue(state.get(at + other, "No").startswith("No"), other)
        self.assertEqual(state.get(at + "discovery", "Off"), "Off")

    def test_strict_and_proxy_switch_and_go_back(self):
        for strict, word in (1, "strict"), (0, "proxy"):
            with self.subTest(word):
                self.machine.connect(strict=strict)
                self.assertEqual(self.machine.read(MARKER), word + "\n")
                for name in "Wi-Fi", BUREAU, "Thunderbolt Bridge":
                    self.assertSwitched(name)
                state = self.machine.state
                self.assertEqual(
                    state["service Automatic/iPhone USB dns"], "192.0.2.99", "a service that is switched off was changed"
                )
                self.assertEqual(state["pf  filter"].splitlines()[1], 'anchor "veldmark" all')
                self.assertEqual(len(state["pf tokens"].splitlines()), 2)
                self.machine.shell(f"kill -0 {self.machine.tor()}")
                self.machine.help("disconnect")
                self.assertRestored()

    def test_tor_runs_in_its_own_account_with_a_clean_environment(self):
        self.machine.connect()
        pid = self.machine.tor()
        uid = self.machine.state["record /Users/_veldmark UniqueID"]
        status = self.machine.shell(f"grep -E '^(Uid|Gid|Groups):' /proc/{pid}/status")
        self.assertEqual(status.split()[1:5], [uid] * 4)
        self.assertNotIn("\t0\t", status)
        names = {line.split("=")[0] for line in self.machine.shell(f"tr '\\0' '\\n' </proc/{pid}/environ").split()}
        self.assertEqual(names, {"HOME", "PATH", "LC_ALL"})
        opened = [
            os.readlink(f"{self.machine.root}/proc/{pid}/fd/{name}") for name in os.listdir(f"{self.machine.root}/proc/{pid}/fd")
        ]
        self.assertNotIn("veldmark.lock", " ".join(opened))

    def test_the_account_is_made_once_hidden_and_with_a_free_number(self):
        self.machine.connect()
        first = {key: value for key, value in self.machine.state.items() if key.startswith("record ")}
        self.assertEqual(first["record /Users/_veldmark IsHidden"], "1")
        self.assertEqual(first["record /Users/_veldmark Password"], "*")
        self.assertEqual(first["record /Users/_veldmark UserShell"], "/usr/bin/false")
        self.assertNotIn(first["record /Users/_veldmark UniqueID"], ("350", "351"))
        self.machine.connect()
        again = {key: value for key, value in self.machine.state.items() if key.startswith("record ")}
        self.assertEqual(first, again)

    def test_a_directory_that_refuses_an_account_ends_the_connect(self):
        words = ["connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0"]
        for record in "/Users/_veldmark", "/Groups/_veldmark", "/":
            with self.subTest(record):
                self.machine.reset()
                self.machine.change(dscl_refuses=record)
                before = self.machine.settings()
                self.assertOneLine(self.machine.help(*words, check=False), "The account _veldmark cannot be created.")
                self.assertEqual(self.machine.settings(), before)
                self.machine.change(dscl_refuses="")  # what the first run has made does not stand in the second one's way
                self.machine.connect()
                self.machine.help("disconnect")
        self.machine.reset()

    def test_a_directory_that_refuses_the_group_of_applications_without_tor(self):
        self.machine.change(dscl_refuses="/Groups/_veldmark_bypass")
        self.machine.connect()
        self.assertEqual(self.machine.verdict("out"), "block")
        self.assertNotIn(" group ", self.machine.state["pf veldmark filter"])
        words = ["launch", "--uid", str(USER_UID), "--app", "/Applications/Some.app"]
        self.assertOneLine(self.machine.help(*words, check=False))

    def test_the_user_at_the_screen_may_reach_the_control_port(self):
        self.machine.connect()
        self.assertEqual(self.machine.verdict("out", device="lo0", to="127.0.0.1", port=9051, user=USER_UID), "pass")
        self.assertEqual(self.machine.verdict("out", device="lo0", to="127.0.0.1", port=9051, user=1234), "block")

    def test_for_root_where_nobody_sits_at_the_screen(self):
        state = self.machine.state
        del state["console"]
        self.machine.state = state
        self.machine.connect()
        self.assertEqual(self.machine.verdict("out", device="lo0", to="127.0.0.1", port=9051, user=USER_UID), "block")
        self.machine.help("disconnect")

    def test_connecting_again_keeps_the_first_journal_and_one_token(self):
        for strict in 1, 1, 0, 1, 0, 0:
            self.machine.connect(strict=strict)
        self.assertEqual(len(self.machine.state["pf tokens"].splitlines()), 2)
        self.machine.help("disconnect")
        self.assertRestored()

    def test_disconnect_without_a_session_changes_nothing(self):
        self.machine.help("disconnect")
        self.machine.help("disconnect")
        self.assertRestored()
        self.assertEqual(self.machine.calls("networksetup -set"), [])

    def test_a_service_that_came_meanwhile_is_switched_by_fix_dns_and_put_back(self):
        self.machine.connect()
        self.machine.change(services_Automatic=self.machine.state["services Automatic"] + "\nNew: Net")
        self.machine.help("fix-dns")
        self.assertSwitched("New: Net")
        self.machine.help("disconnect")
        self.machine.change(services_Automatic=self.before[0]["services Automatic"])
        self.assertRestored()

    def test_a_service_that_went_meanwhile_is_no_error(self):
        self.machine.connect()
        self.machine.change(services_Automatic="Wi-Fi\nThunderbolt Bridge\n*iPhone USB")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.state["service Automatic/Wi-Fi dns"], "192.0.2.53\n2001:db8::53")
        self.assertIsNone(self.machine.read(MARKER))

    def test_a_service_that_was_switched_off_meanwhile_is_put_back(self):
        self.machine.connect()
        self.machine.change(services_Automatic=self.machine.state["services Automatic"].replace("Wi-Fi", "*Wi-Fi"))
        self.machine.help("disconnect")
        self.machine.change(services_Automatic=self.before[0]["services Automatic"])
        self.assertRestored()

    def test_a_renamed_service_does_not_keep_our_settings(self):
        self.machine.connect()
        state = self.machine.state
        for key in [key for key in state if key.startswith("service Automatic/Wi-Fi ")]:
            state[key.replace("Wi-Fi", "Home")] = state.pop(key)
        state["services Automatic"] = state["services Automatic"].replace("Wi-Fi", "Home")
        self.machine.state = state
        self.machine.help("disconnect")
        self.assertEqual(self.machine.state["service Automatic/Home dns"], "")
        self.assertTrue(self.machine.state["service Automatic/Home socksfirewall"].startswith("No\t"))

    def test_another_location_keeps_its_note_until_it_is_chosen_again(self):
        self.machine.connect()
        self.machine.change(location="Office", services_Office="Wi-Fi", **{"service_Office/Wi-Fi_dns": "198.51.100.53"})
        done = self.machine.help("disconnect", check=False)
        self.assertOneLine(done, "The network location Automatic still has Veldmark's settings.")
        self.assertIsNone(self.machine.read(MARKER))
        self.assertEqual(self.machine.state["service Office/Wi-Fi dns"], "198.51.100.53")
        self.machine.change(location="Automatic")
        self.machine.help("disconnect")
        state = self.machine.state
        del state["services Office"], state["service Office/Wi-Fi dns"]
        self.machine.state = state
        self.assertRestored()

    def test_fix_dns_puts_back_what_others_changed(self):
        self.machine.connect()
        wanted = self.machine.settings()
        self.machine.end_watcher()  # this would be faster
        state = self.machine.state
        state["service Automatic/Wi-Fi dns"] = "192.0.2.1"
        state[f"service Automatic/{BUREAU} web"] = "Yes\tproxy.example\t3128"
        state["pf  filter"] = state["pf  nat"] = state["pf veldmark filter"] = ""
        state["pf enabled"], state["pf tokens"] = "0", ""
        self.machine.state = state
        self.assertEqual(self.machine.verdict("out"), "pass")
        self.machine.help("fix-dns")
        self.assertEqual(self.machine.verdict("out"), "block")
        self.assertSwitched("Wi-Fi")
        self.assertSwitched(BUREAU)
        now = self.machine.settings()
        for key in wanted[0]:
            if not key.startswith(("pf ", "job veldmark.watch")):
                self.assertEqual(now[0].get(key), wanted[0][key], key)

    def test_fix_dns_without_a_session_is_refused(self):
        self.assertOneLine(self.machine.help("fix-dns", check=False), "not connected")
        self.assertRestored()

    def test_foreign_rules_before_ours_are_put_behind(self):
        self.machine.connect()
        self.machine.end_watcher()
        state = self.machine.state
        state["pf  filter"] = 'pass out quick all\nanchor "veldmark" all'
        self.machine.state = state
        self.machine.help("fix-dns")
        self.assertEqual(self.machine.state["pf  filter"], 'anchor "veldmark" all\npass out quick all')

    def test_rules_of_others_that_came_meanwhile_stay(self):
        self.machine.connect()
        self.machine.set_state({"pf  filter": self.machine.state["pf  filter"] + '\nanchor "other" all'})
        self.machine.help("disconnect")
        self.assertEqual(self.machine.state["pf  filter"], self.before[0]["pf  filter"] + '\nanchor "other" all')

    def test_pf_goes_off_again_where_nobody_else_holds_it(self):
        self.machine.change(pf_tokens="", pf_enabled="0")
        self.machine.connect()
        self.assertEqual(self.machine.state["pf enabled"], "1")
        self.machine.help("disconnect")
        self.assertEqual((self.machine.state["pf enabled"], self.machine.state["pf tokens"]), ("0", ""))

    def test_connections_from_before_end_at_every_change(self):
        for words in ["connect"], ["fix-dns"], ["disconnect"]:
            before = int(self.machine.state.get("pf flushes", 0))
            if words == ["connect"]:
                self.machine.connect()
            else:
                self.machine.help(*words)
            self.assertGreater(int(self.machine.state.get("pf flushes", 0)), before, words)

    def test_after_a_restart_of_the_computer_disconnect_puts_everything_back(self):
        for strict in 0, 1:
            self.machine.connect(strict=strict)
            self.machine.restart()
            self.assertEqual(self.machine.state["service Automatic/Wi-Fi dns"], "127.0.0.1")
            self.machine.help("disconnect")
            state = self.machine.state
            state["boot"] = self.before[0]["boot"]
            self.machine.state = state
            self.assertRestored()

    def test_after_a_restart_connect_keeps_the_users_own_settings(self):
        self.machine.connect()
        self.machine.restart()
        self.machine.connect()
        self.assertEqual(self.machine.verdict("out"), "block")
        self.machine.help("disconnect")
        self.machine.change(boot=self.before[0]["boot"])
        self.assertRestored()

    def test_old_networksetup_that_never_fails(self):
        self.machine.change(old_networksetup="1")
        self.before = self.machine.settings()
        self.machine.connect()
        self.machine.help("disconnect")
        self.assertRestored()

    def test_a_torn_entry_is_told_and_does_not_leave_our_settings(self):
        self.machine.connect()
        self.machine.write(JOURNAL + "30-service-0", "service Wi-Fi\ndns 192.0.2.53\n")
        self.assertOneLine(self.machine.help("disconnect", check=False), "damaged")
        self.assertIsNone(self.machine.read(MARKER))
        self.assertEqual(self.machine.state["service Automatic/Wi-Fi dns"], "")
        self.machine.help("disconnect")

    def test_a_journal_that_others_could_write_is_not_believed(self):
        self.machine.connect()
        self.machine.shell('chmod 777 "/Library/Application Support/Veldmark/journal"')
        self.machine.write(
            JOURNAL + "30-service-0",
            "service Wi-Fi\nlocation Automatic\nsocks No\nhost \nport 0\nweb No\nsecure No\n"
            "auto No\ndiscovery Off\ndns 198.51.100.66\nend\n",
        )
        self.machine.help("disconnect", check=False)
        self.assertNotIn("198.51.100.66", str(self.machine.state))
        self.assertEqual(self.machine.state["service Automatic/Wi-Fi dns"], "")
        self.machine.shell('chmod 700 "/Library/Application Support/Veldmark/journal"')

    def test_an_access_list_that_lets_others_in_is_refused(self):
        self.machine.connect()
        self.machine.help("disconnect")
        state = self.machine.state
        state["acl /Library/Application Support/Veldmark"] = "user:alice allow add_file,delete_child"
        self.machine.state = state
        self.assertOneLine(
            self.machine.help("connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0", check=False), "not safe"
        )

    def test_a_job_that_launchd_is_not_done_with_is_begun_again(self):
        """Right after the end of a job, bootstrap fails for a while, first with 37 and then with 5."""
        self.machine.connect()
        self.machine.write("/mac/calls", "")
        self.machine.connect()
        tries = self.machine.calls("launchctl bootstrap system /var/db/veldmark/run/tor.plist")
        self.assertEqual(len(tries), 3)
        self.machine.shell(f"kill -0 {self.machine.tor()}")

    def test_tors_process_number_that_is_not_there_at_once_is_waited_for(self):
        self.machine.connect()
        self.machine.help("disconnect")
        self.machine.write("/mac/calls", "")
        self.machine.connect()
        self.assertGreaterEqual(len(self.machine.calls("launchctl list veldmark.tor")), 4)  # the first one is before the job starts

    def test_a_service_that_cannot_be_set_does_not_end_the_connect(self):
        """It stays as it is, also when only a part of it can be set."""
        of_bureau = lambda settings: {key: value for key, value in settings[0].items() if f"/{BUREAU} " in key}  # noqa: E731
        for what in "get", "set", "getset", "-setsocksfirewallproxy", "-setproxybypassdomains", "-setwebproxystate":
            with self.subTest(what):
                self.machine.set_state({f"service Automatic/{BUREAU} refuses": what})
                before = self.machine.settings()
                for words in ["connect"], ["connect"], ["fix-dns"]:
                    if words == ["connect"]:
                        self.machine.connect()
                    else:
                        self.machine.help(*words)
                    self.assertSwitched("Wi-Fi")
                    self.assertSwitched("Thunderbolt Bridge")
                    self.assertEqual(of_bureau(self.machine.settings()), of_bureau(before), words)
                self.machine.help("disconnect")
                self.assertEqual(self.machine.settings(), before)
        self.machine.reset()

    def test_a_service_of_the_session_that_cannot_be_set_again_keeps_what_it_has(self):
        self.machine.connect()
        at = f"service Automatic/{BUREAU} "
        self.machine.set_state({at + "refuses": "-setwebproxystate", at + "web": "Yes\tproxy.example\t3128"})
        self.machine.help("fix-dns")
        self.assertEqual(self.machine.state[at + "dns"], "127.0.0.1")
        self.assertEqual(self.machine.state[at + "socksfirewall"], "Yes\t127.0.0.1\t9050")
        self.machine.set_state({at + "refuses": ""})
        self.machine.help("disconnect")
        self.assertRestored()

    def test_a_proxy_of_this_computer_gets_its_port_back(self):
        for values in {"socksfirewall": "Yes\t127.0.0.1\t1080"}, {"socksfirewall": "Yes\t127.0.0.1\t1080", "dns": "127.0.0.1"}:
            with self.subTest(**values):
                self.machine.reset()
                self.machine.set_state({f"service Automatic/Wi-Fi {key}": value for key, value in values.items()})
                before = self.machine.settings()
                self.machine.connect()
                self.assertSwitched("Wi-Fi")
                self.machine.help("disconnect")
                self.assertEqual(self.machine.settings(), before)
        self.machine.reset()

    def test_a_vpn_that_cannot_be_set_stays_as_it_is(self):
        self.machine.connect()
        self.assertSwitched("Wi-Fi")
        self.assertEqual(self.machine.state["service Automatic/Firma (IKEv2) discovery"], "On")
        self.machine.help("disconnect")
        self.assertRestored()

    def test_sentences_in_the_users_language(self):
        self.machine.change(language="sentences")
        before = self.machine.settings()
        self.machine.connect()
        for name in "Wi-Fi", BUREAU, "Thunderbolt Bridge":
            self.assertSwitched(name)
        self.machine.help("fix-dns")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.settings(), before)

    def test_words_before_values_that_are_not_understood_end_the_connect(self):
        self.machine.change(language="all")
        before = self.machine.settings()
        words = ["connect", "--tor", TOR, "--hash", HASH, "--strict", "0", "--lan", "0"]
        self.assertOneLine(self.machine.help(*words, check=False), "The settings of the network service Wi-Fi cannot be read.")
        self.assertEqual(self.machine.settings(), before)

    def test_a_proxy_that_needs_a_password_comes_back_without_the_password(self):
        """networksetup tells neither name nor password, so the proxy cannot be set as it was (docs/known-issues.md)."""
        self.machine.set_state({"service Automatic/Wi-Fi socksfirewall": "Yes\tproxy.example\t1080\t1"})
        self.machine.connect()
        self.assertSwitched("Wi-Fi")
        self.machine.help("disconnect")
        self.assertEqual(self.machine.state["service Automatic/Wi-Fi socksfirewall"], "Yes\tproxy.example\t1080")

    def test_the_service_that_traffic_goes_through_has_to_be_set(self):
        words = ["connect", "--tor", TOR, "--hash", HASH, "--strict", "0", "--lan", "0"]
        ipv6_alone = {"primary": "", "primary of IPv6": BUREAU}
        for changes in {"primary": BUREAU}, ipv6_alone, {"primary": "", "services Automatic": BUREAU}:
            for what, says in ("get", "cannot be read"), ("set", "cannot be changed"):
                with self.subTest(what, **changes):
                    self.machine.reset()
                    self.machine.set_state({f"service Automatic/{BUREAU} refuses": what, **changes})
                    before = self.machine.settings()
                    self.assertOneLine(self.machine.help(*words, check=False), f"{BUREAU} {says}")
                    self.assertEqual(self.machine.settings(), before)
        self.machine.reset()

    def test_disconnect_asks_networksetup_no_more_than_it_must(self):
        """A networksetup process takes some 50 ms on a Mac, and the program waits at most 25 s at its end."""
        self.machine.connect()
        self.machine.write("/mac/calls", "")
        self.machine.help("disconnect")
        # Each of the three services is read, set and read again in what was set: 7 + 4 + 3 calls, and one of them that had
        # everything switched on, 7 + 8 + 7. The VPN, which kept its settings, is read.
        self.assertLessEqual(len(self.machine.calls("networksetup")), 3 + 2 * 14 + 22 + 7 + len(mac.SERVICES))

    def test_what_is_written_is_on_the_disk(self):
        """fsync on a Mac leaves data in the drive's memory. The helper syncs the file before its rename, and the folder
        afterwards."""
        self.machine.write("/mac/synced", "")
        self.machine.connect()
        watchers = os.path.dirname(NOTE) + " "
        synced = [line for line in self.machine.read("/mac/synced").splitlines() if not line.startswith((NOTE, watchers))]
        for name in "/state/active", "/journal/10-firewall", "/journal/20-tor":
            path = "/Library/Application Support/Veldmark" + name
            self.assertIn(f"{path}.new before", synced)
            self.assertEqual(synced[synced.index(f"{path}.new before") + 1], f"{os.path.dirname(path)} after")
        self.assertEqual(self.machine.calls("sync"), [])

    def test_without_perl_disconnect_puts_everything_back(self):
        self.machine.connect()
        self.machine.shell("/mac/gnu/mv /usr/bin/perl /mac/perl.away")
        try:
            self.machine.help("disconnect")
        finally:
            self.machine.shell("/mac/gnu/mv /mac/perl.away /usr/bin/perl")
        self.assertRestored()

    def test_a_device_that_the_firewall_leaves_out_is_no_kill_switch(self):
        words = ["connect", "--tor", TOR, "--hash", HASH, "--lan", "0", "--strict"]
        for device in "en0", "lo0":
            self.machine.set_state({"pf skip": device})
            self.assertEqual(self.machine.verdict("out", device=device, to="203.0.113.5", port=443), "pass")
            before = self.machine.settings()
            for strict in "1", "0":
                self.assertOneLine(self.machine.help(*words, strict, check=False), f"leaves out the network device {device} ")
                self.assertEqual(self.machine.settings(), before)
        self.machine.change(pf_skip="")
        self.machine.connect()
        self.machine.end_watcher()
        self.machine.change(pf_skip="en0")
        self.assertOneLine(self.machine.help("fix-dns", check=False), "leaves out the network device en0 ")
        self.machine.change(pf_skip="")
        self.machine.help("disconnect")

    def test_a_device_that_is_left_out_meanwhile_does_not_open_the_others(self):
        """Connecting again fails, and what still blocks stays."""
        self.machine.change(pf_skip="")
        self.before = self.machine.settings()
        self.machine.connect()
        self.machine.end_watcher()
        self.machine.change(pf_skip="utun0")
        self.assertEqual(self.machine.verdict("out", device="utun0"), "pass")
        before = self.machine.settings()
        for strict in 1, 0:
            with self.subTest(strict=strict):
                self.assertOneLine(self.machine.connect(strict=strict, check=False), "leaves out the network device utun0 ")
                self.assertEqual(self.machine.verdict("out"), "block")
                self.assertEqual(self.machine.settings(), before)
        self.machine.change(pf_skip="")
        self.machine.connect()
        self.assertEqual(self.machine.verdict("out", device="utun0"), "block")
        self.machine.help("disconnect")
        self.assertRestored()

    def test_rules_of_dummynet_outlive_a_session(self):
        self.machine.connect()
        state = self.machine.state
        self.assertEqual(state["pf  dummynet"], self.before[0]["pf  dummynet"])
        order = state["pf  filter"].splitlines()
        self.assertEqual(order[:2], ['scrub-anchor "com.apple/*" all fragment reassemble', 'anchor "veldmark" all'])
        self.machine.help("disconnect")
        self.assertRestored()

    def test_a_tor_that_cannot_start_says_why_and_proxy_mode_goes_back(self):
        busy = self.machine.start(
            "/usr/bin/perl",
            "-e",
            "use Socket; socket(S, 2, 1, 0); bind(S, sockaddr_in(9051, inet_aton('127.0.0.1')));"
            "listen(S, 1); syswrite(STDOUT, 'x'); <STDIN>",
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
        )
        try:
            self.assertEqual(busy.stdout.read(1), b"x")
            self.before = self.machine.settings()
            self.assertOneLine(
                self.machine.help("connect", "--tor", TOR, "--hash", HASH, "--strict", "0", "--lan", "0", check=False),
                "Could not bind to 127.0.0.1:9051",
            )
            self.assertRestored()
            done = self.machine.help("connect", "--tor", TOR, "--hash", HASH, "--strict", "1", "--lan", "0", check=False)
            self.assertOneLine(done, "The network stays blocked until you disconnect.")
            self.assertEqual(self.machine.verdict("out"), "block")
        finally:
            busy.stdin.close()  # it ends by itself
            busy.wait()
            busy.stdout.close()

    def test_two_runs_at_once_wait_for_each_other(self):
        runs = [
            self.machine.start(
                "/bin/bash",
                self.machine.helper,
                "connect",
                "--tor",
                TOR,
                "--hash",
                HASH,
                "--strict",
                "1",
                "--lan",
                "0",
                stdout=subprocess.DEVNULL,
            )
            for _ in range(2)
        ]
        self.assertEqual([run.wait(60) for run in runs], [0, 0])
        self.machine.help("disconnect")
        self.assertRestored()

    def test_lookups_and_the_proxy_reach_a_tor_that_listens(self):
        """This machine's only network device is the loopback device, so Tor may have a network. pf's redirect is nftables' here."""
        defaults = self.machine.read("/etc/tor/torrc-defaults")
        self.machine.write("/etc/tor/torrc-defaults", defaults.replace("DisableNetwork 1\n", ""))
        try:
            self.assertEqual(self.machine.run("/usr/bin/python3", "-c", ASK, "53", "9050").stdout, "refused refused\n")
            for strict in 1, 0:
                self.machine.connect(strict=strict)
                address, port = self.machine.redirected().split()
                self.assertEqual(address, "127.0.0.1")
                self.machine.shell(
                    "/mac/gnu/nft add table ip rdr; /mac/gnu/nft 'add chain ip rdr out { type nat hook output priority -100; }';"
                    f"/mac/gnu/nft add rule ip rdr out oifname lo ip daddr 127.0.0.1 udp dport 53 redirect to :{port}"
                )
                on, host, socks = self.machine.state["service Automatic/Wi-Fi socksfirewall"].split("\t")
                self.assertEqual((on, host), ("Yes", "127.0.0.1"))
                answers = self.machine.run("/usr/bin/python3", "-c", ASK, "53", socks).stdout
                self.machine.shell("/mac/gnu/nft delete table ip rdr")
                self.assertEqual(answers, "8004 0500\n")
        finally:
            self.machine.write("/etc/tor/torrc-defaults", defaults)

    def test_names_of_transports_stand_in_the_hosts_while_the_session_lasts(self):
        self.machine.change(
            **{
                "host_front.example".replace(
                    "_", " "
                ): "name: front.example\nip_address: 192.0.2.80 192.0.2.83\n\nname: front.example\nipv6_address: 2001:db8::80\n",
                "host_b.example".replace("_", " "): "name: b.example\nip_address: 192.0.2.81\nip_address: $(x)\n",
            }
        )
        bridge = "meek_lite 192.0.2.20:80 0123456789012345678901234567890123456789 url=https://b.example/x front=front.example"
        before = self.machine.read("/private/etc/hosts")
        self.machine.connect(more=["--reserve", bridge, "--pt-lyrebird", "/usr/bin/obfs4proxy"])
        self.assertEqual(
            self.machine.read("/private/etc/hosts"),
            before + "\n# >>> veldmark >>>\n192.0.2.81 b.example\n192.0.2.80 front.example\n192.0.2.83 front.example\n"
            "2001:db8::80 front.example\n# <<< veldmark <<<\n",
        )
        self.machine.connect(more=["--bridge", bridge, "--pt-lyrebird", "/usr/bin/obfs4proxy"])
        self.machine.help("disconnect")
        state = self.machine.state
        for key in [key for key in state if key.startswith("host ")]:
            del state[key]
        self.machine.state = state
        self.assertRestored()


if __name__ == "__main__":
    os.environ.pop("VELDMARK_HELPER", None)
    mac.main()

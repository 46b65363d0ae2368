#!/usr/bin/python3
"""Self test of the lab: real tor, real packets. Run by `lab.py selftest`, or directly; takes root.

This file tests the network. The other self tests in this folder run as well.
"""

import json
import os
import shutil
import sys
import tempfile
import unittest
import unittest.mock
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab import requirements  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.client import TorClient  # noqa: E402
from veldlab.lab import Lab  # noqa: E402

HOST_ADDRESSES = {at.HOST_ADDRESS, at.HOST_ADDRESS6}


def curl(lab, url: str, *options: str):
    return lab.host.run(["curl", "-sS", "--max-time", "20", *options, url], user="alice")


def direct_check(lab, *options: str) -> dict:
    done = curl(lab, at.CHECK_URL, *options)
    if done.returncode:
        raise AssertionError(done.stderr)
    return json.loads(done.stdout)


class NetworkTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        # As in a checkout whose path has blanks.
        if given := os.environ.get("VELDMARK_KEPT_LINK_KEYS"):
            folder = Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="veldlab-test-")), "a b")
            folder.mkdir()
            shutil.copy(given, folder)
            cls.enterClassContext(unittest.mock.patch.dict(os.environ, {"VELDMARK_KEPT_LINK_KEYS": str(folder / Path(given).name)}))
        cls.lab = Lab()
        cls.lab.up()
        cls.addClassCleanup(cls.lab.down)
        print("started:", {name: round(value, 1) for name, value in cls.lab.timings.items()}, file=sys.stderr)

    def test_client_leaves_by_an_exit_and_contacts_only_relays(self):
        with self.lab.capture() as capture:
            with TorClient(self.lab) as client:
                print(f"client bootstrapped in {client.seconds:.1f} s", file=sys.stderr)
                answer = client.check()
            through_tor = [p for p in capture.packets if p.src in HOST_ADDRESSES]
            direct_check(self.lab)
            direct = [p for p in capture.packets if p.src in HOST_ADDRESSES][len(through_tor) :]
        self.assertIs(answer["IsTor"], True)
        self.assertIn(answer["IP"], at.EXIT_ADDRESSES)
        self.assertTrue(through_tor)
        for packet in through_tor:
            to_relay = packet.dst in at.RELAY_ADDRESSES
            self.assertEqual((packet.proto, to_relay, packet.out), ("tcp", True, True), packet)
        self.assertTrue([p for p in direct if p.proto == "udp" and p.dport == 53])
        self.assertTrue([p for p in direct if p.dst in (at.CHECK_ADDRESS, at.CHECK_ADDRESS6) and p.dport == 443])

    def test_direct_request_is_no_tor_and_shows_the_hosts_address(self):
        self.assertEqual(direct_check(self.lab, "-4"), {"IsTor": False, "IP": at.HOST_ADDRESS})
        self.assertEqual(direct_check(self.lab, "-6"), {"IsTor": False, "IP": at.HOST_ADDRESS6})

    def test_exit_country_is_obeyed(self):
        for country in ("de", "fr"):
            with self.subTest(country), TorClient(self.lab, f"ExitNodes {{{country}}}\nStrictNodes 1") as client:
                wanted = next(node.address for node in at.EXITS if node.country == country)
                self.assertEqual({self.isolated(client, number) for number in range(8)}, {wanted})

    def test_without_a_wish_more_than_one_exit_serves(self):
        # The test above proves nothing without this one.
        seen = set()
        with TorClient(self.lab) as client:
            for number in range(40):
                seen.add(self.isolated(client, number))
                if len(seen) > 1:
                    return
        self.fail(f"40 isolated streams all left by {seen}")

    @staticmethod
    def isolated(client, number: int) -> str:
        """The exit's address for a stream that shares no circuit with streams of other numbers."""
        done = client.curl(at.CHECK_URL, "--proxy-user", f"user{number}:x")
        return json.loads(done.stdout)["IP"]

    def test_bridges_carry_everything(self):
        self.lab.tor.wait_bridges()
        plugin = "ClientTransportPlugin obfs4 exec /usr/bin/obfs4proxy\n"
        for transport, port, head in (("obfs4", at.OBFS4_PORT, plugin), ("", at.OR_PORT, "")):
            line = self.lab.tor.bridge_line(transport)
            with self.subTest(line), self.lab.capture() as capture:
                with TorClient(self.lab, f"{head}UseBridges 1\nBridge {line}") as client:
                    self.assertIs(client.check()["IsTor"], True)
                sent = {(p.proto, p.dst, p.dport) for p in capture.packets if p.src in HOST_ADDRESSES and p.is_opening}
                self.assertEqual(sent, {("tcp", line.removeprefix("obfs4 ").split(":")[0], port)})

    def test_names_are_answered_and_logged_with_their_source(self):
        resolve = "import socket,sys; print(sorted({a[4][0] for a in socket.getaddrinfo(sys.argv[1], 80)}))"
        mark = len(self.lab.world.dns_log())
        done = self.lab.host.run([at.PYTHON, "-c", resolve, "www.example.test"])
        self.assertEqual(done.stdout.strip(), str(sorted([at.WEB_ADDRESS, at.WEB_ADDRESS6])), done.stderr)
        unknown = self.lab.host.run([at.PYTHON, "-c", resolve, "unknown.example.test"])
        self.assertIn("Name or service not known", unknown.stderr)
        logged = {(q["source"], q["transport"], q["name"], q["type"]) for q in self.lab.world.dns_log(mark)}
        self.assertIn((at.HOST_ADDRESS, "udp", "www.example.test", "A"), logged)
        self.assertIn((at.HOST_ADDRESS, "udp", "unknown.example.test", "AAAA"), logged)

    def test_names_are_answered_over_tcp(self):
        ask = (
            "import socket, struct; "
            "q = b'\\1\\2\\1\\0\\0\\1\\0\\0\\0\\0\\0\\0\\3www\\7example\\4test\\0\\0\\1\\0\\1'; "
            f"s = socket.create_connection(('{at.DNS_ADDRESS}', 53), 10); s.sendall(struct.pack('!H', len(q)) + q); "
            "n = struct.unpack('!H', s.recv(2, socket.MSG_WAITALL))[0]; a = s.recv(n, socket.MSG_WAITALL); "
            "print(socket.inet_ntoa(a[-4:]))"
        )
        done = self.lab.host.run([at.PYTHON, "-c", ask])
        self.assertEqual(done.stdout.strip(), at.WEB_ADDRESS, done.stderr)
        self.assertEqual(self.lab.world.dns_log()[-1]["transport"], "tcp")

    def test_dns_misbehaves_on_request(self):
        self.addCleanup(self.lab.world.behave, "dns", "ok")
        self.lab.world.behave("dns", "servfail")
        self.assertEqual(curl(self.lab, "http://www.example.test/").returncode, 6)
        self.lab.world.behave("dns", "ok")
        self.assertEqual(curl(self.lab, "http://www.example.test/").returncode, 0)

    def test_web_pages_of_any_size(self):
        for scheme in ("http", "https"):
            url = f"{scheme}://www.example.test/bytes/1000000"
            done = curl(self.lab, url, "-o", "/dev/null", "-w", "%{size_download}")
            self.assertEqual((done.returncode, done.stdout), (0, "1000000"), done.stderr)
        entry = self.lab.world.web_log(service="web")[-1]
        self.assertEqual((entry["path"], entry["host"]), ("/bytes/1000000", "www.example.test"))
        self.assertIn(entry["source"], HOST_ADDRESSES)

    def test_a_site_of_the_tests_own(self):
        self.assertEqual(curl(self.lab, "https://dist.example.org/a/b.txt").returncode, 6)
        self.lab.world.add_site("dist.example.org", {"/a/b.txt": b"hello\n"})
        done = curl(self.lab, "https://dist.example.org/a/b.txt")
        self.assertEqual((done.returncode, done.stdout), (0, "hello\n"), done.stderr)
        self.assertEqual(curl(self.lab, "https://dist.example.org/../check.pem", "--path-as-is", "-f").returncode, 22)

    def test_exit_check_misbehaves_on_request(self):
        self.addCleanup(self.lab.world.behave, "check", "ok")
        cases = {  # curl's exit status and, where it matters, part of its message
            "status-503": (22, "503"),
            "garbage": (0, ""),
            "half-body": (18, ""),
            "huge": (0, "100000000"),
            "silent": (28, ""),
            "expired": (60, "expired"),
            "wrong-host": (60, "no alternative certificate subject name"),
            "untrusted": (60, "unable to get local issuer"),
            "ok": (0, "38"),
        }
        for behaviour, (status, text) in cases.items():
            with self.subTest(behaviour):
                self.lab.world.behave("check", behaviour)
                limit = "3" if behaviour == "silent" else "30"
                options = ("-4f", "-o", "/dev/null", "-w", "%{size_download}", "--max-time", limit)
                done = curl(self.lab, at.CHECK_URL, *options)
                self.assertEqual(done.returncode, status, done.stderr)
                self.assertIn(text, done.stdout + done.stderr)
        self.assertRaises(ValueError, self.lab.world.behave, "check", "nonsense")

    def test_a_stopped_node_is_gone_until_started(self):
        script = f"import socket; socket.create_connection(('203.0.113.22', {at.OR_PORT}), 5)"
        connect = [at.PYTHON, "-c", script]
        self.assertEqual(self.lab.host.run(connect).returncode, 0)
        for _ in range(2):
            self.lab.tor.stop("middleat")
            self.lab.tor.stop("middleat")
            self.assertIn("refused", self.lab.host.run(connect).stderr)
            self.lab.tor.start("middleat")
            self.assertEqual(self.lab.host.run(connect).returncode, 0)

    def test_nodes_take_the_key_of_their_connections_that_is_kept(self):
        address = next(node.address for node in at.EXITS if node.name == "exitde")
        told = (
            self.lab.spaces["world"]
            .run(
                [
                    "/bin/sh",
                    "-c",
                    r"""
            openssl rsa -in "$1/exitde/keys/link-2048-1" -pubout 2>/dev/null
            openssl s_client -connect "$2" </dev/null 2>/dev/null | openssl x509 -noout -pubkey
        """,
                    "sh",
                    at.TOR_FOLDER,
                    f"{address}:{at.OR_PORT}",
                ],
                check=True,
            )
            .stdout
        )
        kept, used = told.split("-----END PUBLIC KEY-----\n")[:2]
        self.assertIn("BEGIN PUBLIC KEY", used)
        # Without the library each node makes its own, at each start.
        self.assertEqual(used == kept, bool(os.environ.get("VELDMARK_KEPT_LINK_KEYS")))

    def test_a_bridge_can_be_started_again(self):
        self.lab.tor.wait_bridges()
        line = self.lab.tor.bridge_line("obfs4")
        self.lab.tor.stop("bridgeobfs4")
        self.assertNotIn("obfs4proxy", self.lab.spaces["world"].run(["ps", "-e"]).stdout)
        self.lab.tor.start("bridgeobfs4")
        self.lab.tor.wait_bridges()
        self.assertEqual(self.lab.tor.bridge_line("obfs4"), line)
        plugin = "ClientTransportPlugin obfs4 exec /usr/bin/obfs4proxy\n"
        with TorClient(self.lab, f"{plugin}UseBridges 1\nBridge {line}") as client:
            self.assertIs(client.check()["IsTor"], True)

    def test_no_namespace_has_a_way_out(self):
        for name, space in self.lab.spaces.items():
            for address in ("192.0.2.1", "2001:db8:ffff::1"):
                if name == "router":
                    self.assertIn("unreachable", space.run(["ip", "route", "get", address]).stderr)
                else:
                    done = space.run(["ping", "-c", "1", "-W", "5", address])
                    self.assertIn("unreachable", (done.stdout + done.stderr).lower(), name)

    def test_delay_and_loss_hold_for_the_chosen_path_only(self):
        def milliseconds(address: str) -> float:
            done = self.lab.host.run(["ping", "-c", "5", "-i", "0.2", "-W", "5", address], check=True)
            return float(done.stdout.split("min/avg/max")[1].split(" = ")[1].split("/")[0])  # a busy computer delays some

        with self.lab.netem("host", to=at.WEB_ADDRESS, delay_ms=700):
            self.assertGreaterEqual(milliseconds(at.WEB_ADDRESS), 1400)
            self.assertLess(milliseconds(at.DNS_ADDRESS), 700)
        with self.lab.netem("host", to=at.WEB_ADDRESS6, delay_ms=100):
            self.assertGreaterEqual(milliseconds(at.WEB_ADDRESS6), 200)
            done = curl(self.lab, "http://www.example.test/bytes/300000", "-6", "-o", "/dev/null")
            self.assertEqual(done.returncode, 0, done.stderr)
        with self.lab.netem("host", to="exitde", loss=1.0):
            self.assertNotEqual(self.lab.host.run(["ping", "-c", "1", "-W", "2", "203.0.113.10"]).returncode, 0)
            self.assertLess(milliseconds("203.0.113.11"), 700)
        self.assertLess(milliseconds(at.WEB_ADDRESS), 700)
        self.assertLess(milliseconds("203.0.113.10"), 700)
        self.assertNotIn("tun", self.lab.router.run(["ip", "link"]).stdout)


def everything() -> unittest.TestSuite:
    names = ("test_packets", "test_keys", "test_host", "test_command_line", "test_lifecycle", "test_lab")
    return unittest.TestSuite(unittest.defaultTestLoader.loadTestsFromName(name) for name in names)


if __name__ == "__main__":
    reason = requirements.missing()
    if reason:
        print(reason)
        sys.exit(77)
    if len(sys.argv) > 1:
        unittest.main(module=None, verbosity=2)
    sys.exit(not unittest.TextTestRunner(verbosity=2).run(everything()).wasSuccessful())

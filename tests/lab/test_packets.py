"""The capture's decoder and the texts that the lab generates: pure functions, no lab needed."""

import socket
import struct
import unittest

from veldlab import dns_server, snapshot, tor_config
from veldlab import topology as at
from veldlab.capture import decode

MACS = bytes(12)


def ipv4(proto: int, payload: bytes, fragment: int = 0, options: bytes = b"") -> bytes:
    first = 0x40 | (20 + len(options)) // 4
    length = 20 + len(options) + len(payload)
    head = struct.pack("!BBHHHBBH", first, 0, length, 1, fragment, 64, proto, 0)
    addresses = socket.inet_aton("192.168.77.2") + socket.inet_aton("203.0.113.39")
    return MACS + b"\x08\0" + head + addresses + options + payload


def ipv6(proto: int, payload: bytes) -> bytes:
    head = struct.pack("!IHBB", 6 << 28, len(payload), proto, 64)
    addresses = socket.inet_pton(socket.AF_INET6, "2001:db8::1") + socket.inet_pton(socket.AF_INET6, "2001:db8::2")
    return MACS + b"\x86\xdd" + head + addresses + payload


UDP = struct.pack("!HHHH", 4000, 53, 8, 0)
TCP = struct.pack("!HHIIBBHHH", 4001, 443, 0, 0, 0x50, 0x02, 0, 0, 0)


class DecoderTest(unittest.TestCase):
    CASES = {
        "udp": (ipv4(17, UDP), ("ipv4", "udp", 4000, 53)),
        "tcp": (ipv4(6, TCP), ("ipv4", "tcp", 4001, 443)),
        "icmp": (ipv4(1, b"\x08\0\0\0"), ("ipv4", "icmp", 0, 0)),
        "options before the ports": (ipv4(17, UDP, options=b"\1" * 8), ("ipv4", "udp", 4000, 53)),
        "later fragment": (ipv4(17, UDP, fragment=185), ("ipv4", "udp", 0, 0)),
        "unknown protocol": (ipv4(99, b"x"), ("ipv4", "99", 0, 0)),
        "udp over IPv6": (ipv6(17, UDP), ("ipv6", "udp", 4000, 53)),
        "behind a hop-by-hop header": (ipv6(0, b"\x06\0" + bytes(6) + TCP), ("ipv6", "tcp", 4001, 443)),
        "first IPv6 fragment": (ipv6(44, b"\x11\0\0\1" + bytes(4) + UDP), ("ipv6", "udp", 4000, 53)),
        "later IPv6 fragment": (ipv6(44, b"\x11\0\0\x09" + bytes(4) + UDP), ("ipv6", "udp", 0, 0)),
        "neighbour discovery": (ipv6(58, b"\x87\0"), ("ipv6", "icmp6", 0, 0)),
        "ports cut off": (ipv4(17, b"\x0f"), ("ipv4", "udp", 0, 0)),
        "header cut off": (ipv4(17, UDP)[:20], ("0x0800", "other", 0, 0)),
        "other ethernet type": (MACS + b"\x88\xcc" + b"lldp", ("0x88cc", "other", 0, 0)),
        "nothing": (b"", ("0x0000", "other", 0, 0)),
    }

    def test_reads_each_frame(self):
        for name, (frame, expected) in self.CASES.items():
            with self.subTest(name):
                packet = decode(frame, len(frame), True, 0.0)
                self.assertEqual((packet.family, packet.proto, packet.sport, packet.dport), expected)
                self.assertEqual(packet.length, max(len(frame) - 14, 0))

    def test_reads_addresses_and_flags(self):
        packet = decode(ipv4(6, TCP), 2000, False, 1.5)
        self.assertEqual((packet.src, packet.dst, packet.tcp_flags), ("192.168.77.2", "203.0.113.39", 2))
        self.assertEqual((packet.length, packet.out, packet.time), (1986, False, 1.5))
        self.assertEqual(decode(ipv6(17, UDP), 62, True, 0).dst, "2001:db8::2")

    def test_never_fails_on_a_cut_frame(self):
        for frame, _ in self.CASES.values():
            for length in range(len(frame)):
                decode(frame[:length], length, True, 0.0)


class NameServerTest(unittest.TestCase):
    HEADER = b"\1\2\1\0\0\1\0\0\0\0\0\0"

    def test_reads_a_question(self):
        self.assertEqual(dns_server.parse_question(self.HEADER + b"\3WwW\4test\0\0\x1c\0\1"), ("www.test", 28, 26))

    def test_rejects_odd_questions(self):
        for tail in (b"", b"\3ww", b"\xc0\x0c\0\1\0\1", b"\3www", b"\3www\0\0\1"):
            with self.subTest(tail):
                self.assertRaises(ValueError, dns_server.parse_question, self.HEADER + tail)
        self.assertRaises(ValueError, dns_server.parse_question, b"short")

    def test_knows_its_names_only(self):
        self.assertEqual(dns_server.addresses_of(at.CHECK_HOST, "/nowhere"), (at.CHECK_ADDRESS, at.CHECK_ADDRESS6))
        for name in ("torproject.org", "..", "", "/etc"):
            self.assertIsNone(dns_server.addresses_of(name, "/nowhere"), name)


class TextTest(unittest.TestCase):
    IDENTITIES = {node.name: ("A" * 40, "B" * 40) for node in at.AUTHORITIES}

    def test_country_data_is_in_order_and_names_every_exit(self):
        rows = [line.split(",") for line in tor_config.geoip_text().splitlines()]
        self.assertEqual([row[0] for row in rows], sorted((row[0] for row in rows), key=int))
        exits = {str(node.address_number): node.country.upper() for node in at.EXITS}
        self.assertLessEqual(exits.items(), {row[0]: row[2] for row in rows}.items())
        self.assertLessEqual({"DE", "US", "NL", "FR"}, set(exits.values()))

    def test_clients_know_every_authority_and_get_no_server_lines(self):
        lines = tor_config.client_lines(self.IDENTITIES).splitlines()
        self.assertEqual(sum(line.startswith("DirAuthority ") for line in lines), len(at.AUTHORITIES))
        self.assertFalse([line for line in lines if line.startswith(("ORPort", "SocksPort", "DataDirectory", "Log"))])

    def test_addresses_are_used_once(self):
        addresses = [n.address for n in at.NODES] + [at.WEB_ADDRESS, at.CHECK_ADDRESS, at.DNS_ADDRESS]
        self.assertEqual(len(addresses), len(set(addresses)))

    def test_difference_names_the_section_and_is_empty_for_equals(self):
        before, after = {"routes": "a\nb", "nft": "x"}, {"routes": "a\nc", "nft": "x"}
        self.assertEqual(snapshot.diff(before, dict(before)), "")
        self.assertEqual(snapshot.diff(before, after).splitlines()[:2], ["--- before: routes", "+++ after: routes"])
        self.assertIn("+c", snapshot.diff(before, after))
        self.assertIn("-x", snapshot.diff(before, {"routes": "a\nb"}))


if __name__ == "__main__":
    unittest.main()

"""Tor on the host, as it is, against Tor in a network namespace of its own behind a link: what each costs a packet.

Three private machines stand side by side: one without rules, one with the helper's strict session, and one whose Tor would be in a
namespace. Programs stand in for Tor and for an application, and each is measured in turn: the processor time that a byte or a datagram takes, and what arrives. All of it is IPv4.

The namespace needs route_localnet on its link: applications use 127.0.0.1, and the kernel sends no packet with that address over a
device without it. It also needs forwarding, and addresses translated twice. A proxy on 127.0.0.1 in place of the translation would copy
every byte once more; that is not measured.
"""

import subprocess
import sys

from figures import PROJECT, Figures, Rounds, middle, spread

sys.path.insert(0, str(PROJECT / "tests" / "helper"))

from namespace import AS_TOR, HASH, TOR, TOR_GROUP, USER_UID, Machine, Peer, require_namespaces  # noqa: E402

OUTSIDE = "203.0.113.9"
HOST_END, TOR_END = "10.64.0.1", "10.64.0.2"
SOCKS_PORT, DNS_PORT, OUTSIDE_PORT = 9050, 293, 7070

# KIND ADDRESS PORT: receives until the sender ends; prints what has arrived and its own processor time.
SINK = """
import resource, socket, sys
kind, address, port = sys.argv[1], sys.argv[2], int(sys.argv[3])
total = 0
if kind == "stream":
    s = socket.create_server((address, port)); print("up", flush=True); c = s.accept()[0]
    while (n := len(c.recv(1 << 18))): total += n
else:
    s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); s.bind((address, port)); print("up", flush=True)
    while not s.recv(100).startswith(b"end"): total += 1
print(total, sum(resource.getrusage(resource.RUSAGE_SELF)[:2]), flush=True)
"""
# KIND ADDRESS PORT SECONDS: sends; prints what it has sent, its own processor time, and the time.
SOURCE = """
import resource, socket, sys, time
kind, address, port, seconds = sys.argv[1], sys.argv[2], int(sys.argv[3]), float(sys.argv[4])
s = socket.socket(socket.AF_INET, socket.SOCK_STREAM if kind == "stream" else socket.SOCK_DGRAM)
s.connect((address, port)); block = bytes((1 << 17) if kind == "stream" else 64); sent = 0
cpu = lambda: sum(resource.getrusage(resource.RUSAGE_SELF)[:2])
start, began = cpu(), time.monotonic(); end = began + seconds
while time.monotonic() < end:
    for _ in range(1 if kind == "stream" else 50): s.send(block) if kind != "stream" else s.sendall(block)
    sent += len(block) if kind == "stream" else 50
print(sent, cpu() - start, time.monotonic() - began, flush=True)
if kind == "stream":
    s.shutdown(socket.SHUT_WR); s.recv(1)   # what a closed socket still has to send is nobody's, and stopped
else:
    try:
        for _ in range(500): s.send(b"end" + bytes(61)); time.sleep(0.01)
    except ConnectionRefusedError: pass   # it has heard, and gone
"""

# What the kill switch would be with Tor in the namespace: the link is the key, and not Tor's account. As today the control port is for
# some accounts only, Tor does not reach the local network, and what was mapped elsewhere does not leave.
RULES = f"""
table inet veldmark {{
	chain to_tor {{
		type nat hook output priority -100; policy accept;
		ip daddr 127.0.0.1 tcp dport {{ 9050, 9051 }} dnat ip to {TOR_END}
		udp dport 53 dnat ip to {TOR_END}:{DNS_PORT}
	}}
	chain translate {{
		type nat hook postrouting priority 100; policy accept;
		oif "tor0" snat ip to {HOST_END}
		iif "tor0" masquerade
	}}
	chain off_loopback {{
		oif {{ "lo", "tor0" }} accept
		drop
	}}
	chain stay {{
		type filter hook postrouting priority 200; policy accept;
		ct status dnat goto off_loopback
	}}
	chain refused {{
		meta l4proto tcp reject with tcp reset
		reject with icmpx type admin-prohibited
	}}
	chain opening {{
		tcp dport 9051 meta skuid != {{ 0, {USER_UID} }} reject with tcp reset
		accept
	}}
	chain loopback {{
		tcp flags & (syn | ack) == syn goto opening
		accept
	}}
	chain output {{
		type filter hook output priority 0; policy drop;
		oif "lo" goto loopback
		udp sport 68 udp dport 67 meta skuid 0-999 accept
		icmpv6 type {{ nd-neighbor-solicit, nd-neighbor-advert }} ip6 hoplimit 255 accept
		goto refused
	}}
	chain tors {{
		ct direction reply accept
		tcp flags & syn == 0 accept
		ip daddr {{ 192.168.0.0/16, 10.0.0.0/8, 172.16.0.0/12, 169.254.0.0/16 }} goto refused
		meta l4proto {{ tcp, udp }} accept
		goto refused
	}}
	chain forward {{
		type filter hook forward priority 0; policy drop;
		iif "tor0" goto tors
		oif "tor0" ct state established ct direction reply accept
	}}
	chain input {{
		type filter hook input priority 0; policy drop;
		iif "lo" accept
		ct state established ct direction reply accept
		ip daddr 127.0.0.0/8 drop
		ct state related accept
	}}
}}
"""
NAMESPACE = f"""
ip netns add tor
ip link add tor0 type veth peer name tor1 netns tor
ip addr add {HOST_END}/30 dev tor0; ip link set tor0 up
ip -n tor link set lo up; ip -n tor link set tor1 up; ip -n tor addr add {TOR_END}/30 dev tor1; ip -n tor route add default via {HOST_END}
echo 1 >/proc/sys/net/ipv4/ip_forward
echo 1 >/proc/sys/net/ipv4/conf/tor0/route_localnet
ip netns exec tor sh -c 'echo reno >/proc/sys/net/ipv4/tcp_congestion_control'
nft -f -
"""


class Place:
    """A private machine with its only link, and where its Tor is."""

    def __init__(self, name: str):
        self.name = name
        self.machine = Machine()
        self.machine.ready_account()
        self.peer = Peer(self.machine)
        # A congestion control that every kernel permits. The machine's own may pace a stream, which would change the figure.
        reno = "echo reno >/proc/sys/net/ipv4/tcp_congestion_control"
        self.peer.run(
            "sh",
            "-c",
            f"ip link set lo up; ip link set veth1 up; ip addr add 192.168.77.1/24 dev veth1; ip addr add {OUTSIDE}/32 dev lo; {reno}",
        )
        self.machine.shell(
            f"ip link set veth0 up; ip addr add 192.168.77.2/24 dev veth0; ip route add default via 192.168.77.1; {reno}"
        )
        self.as_tor, self.options, self.near_tor = list(AS_TOR), {"group": TOR_GROUP}, "127.0.0.1"
        if name == "on the host":
            # A transport that sends datagrams, so that Tor's account may send them.
            more = ["--bridge", "snowflake 192.0.2.3:1", "--pt-snowflake", "/usr/bin/snowflake-client"]
            self.machine.connect(more=more)
            self.machine.end_watcher()  # the programs measured stand in Tor's place, which it would look into
            self.machine.shell("pkill -KILL -u _veldmark; while pgrep -u _veldmark; do sleep 0.01; done")
        elif name == "in a namespace":
            self.machine.shell(NAMESPACE, stdin=RULES)
            self.as_tor, self.options, self.near_tor = ["ip", "netns", "exec", "tor", *AS_TOR], {}, TOR_END

    def close(self) -> None:
        self.peer.close()
        self.machine.close()

    def _measure(self, sink: subprocess.Popen, source: subprocess.Popen) -> dict[str, float]:
        sent, cpu, seconds = map(float, source.communicate(timeout=60)[0].split())
        arrived, sinks = map(float, sink.communicate(timeout=60)[0].split())
        return {"cost": (cpu + sinks) / sent, "sender": cpu / sent, "rate": arrived / seconds}

    def measure(self, kind: str, outward: bool, seconds: float) -> dict[str, float]:
        """Processor time of both ends and of the sender for a byte or a datagram that was sent, and what arrives each second."""
        python, pipe = ["/usr/bin/python3", "-c"], {"stdout": subprocess.PIPE, "text": True}
        if outward:
            sink = subprocess.Popen(self.peer.command([*python, SINK, kind, OUTSIDE, str(OUTSIDE_PORT)]), **pipe)
            sink.stdout.readline()
            words = [*self.as_tor, *python, SOURCE, kind, OUTSIDE, str(OUTSIDE_PORT), str(seconds)]
            return self._measure(sink, self.machine.start(*words, **self.options, **pipe))
        port = SOCKS_PORT if kind == "stream" else DNS_PORT
        sink = self.machine.start(*self.as_tor, *python, SINK, kind, self.near_tor, str(port), **self.options, **pipe)
        sink.stdout.readline()
        asked = 53 if kind != "stream" and self.name != "without rules" else port  # programs ask the usual port
        words = [*python, SOURCE, kind, "127.0.0.1", str(asked), str(seconds)]
        return self._measure(sink, self.machine.start(*words, uid=USER_UID, **pipe))


PATHS = {
    ("stream", False): "an application's stream to Tor",
    ("datagrams", False): "an application's lookups of 64 bytes",
    ("stream", True): "Tor's stream to the network",
    ("datagrams", True): "Tor's datagrams of 64 bytes",
}


def run(figures: Figures, rounds: Rounds) -> None:
    require_namespaces()
    places = [Place(name) for name in ("without rules", "on the host", "in a namespace")]
    try:
        seen: dict[tuple, dict[str, list]] = {path: {place.name: [] for place in places} for path in PATHS}
        for turn in range(rounds.of(24)):
            for path in PATHS:
                for place in places if turn % 2 == 0 else reversed(places):
                    seen[path][place.name].append(place.measure(*path, 0.25))
    finally:
        for place in places:
            place.close()
    for path, name in PATHS.items():
        none, host, behind = (seen[path][place.name] for place in places)
        # A datagram that the other end has no room for costs its reader nothing, so there the sender's time counts.
        by = "cost" if path[0] == "stream" else "sender"

        def ratio(over: list, under: list, what: str) -> list[float]:
            return [one[what] / other[what] for one, other in zip(over, under, strict=True)]

        for title, value in (
            (f"{name}: time, namespace / host", ratio(behind, host, by)),
            ("… namespace / without rules", ratio(behind, none, by)),
            ("… host / without rules", ratio(host, none, by)),
            ("… what arrives, namespace / host", ratio(behind, host, "rate")),
        ):
            figures.add(title, middle(value), "", spread(value))

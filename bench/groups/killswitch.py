"""The kill switch: the time to load its rules, and their cost for packets."""

import subprocess

from figures import RUN_FOLDER, Figures, Rounds, fixed_time, hashed_password, middle, spread

# Sends for a second and prints what the other side received: bytes over one TCP stream, at memory speed or at the rate of a fast
# network card, or datagrams of 64 bytes.
SINK = """
import socket, sys
if sys.argv[1] != "udp":
    s = socket.create_server(("192.168.77.9", 7070)); print("up", flush=True); c = s.accept()[0]; total = 0
    while (n := len(c.recv(1 << 20))): total += n
else:
    s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); s.setsockopt(1, 33, 1 << 26); s.bind(("192.168.77.9", 7070)); print("up", flush=True); total = 0
    while s.recv(100) != b"end": total += 1
print(total, flush=True)
"""
# Prints the sender's CPU time, in seconds for each byte or datagram. In namespaces of one machine the sender's time includes a
# packet's whole path. Unlike the throughput, it does not depend on the machine's other work.
SOURCE = """
import resource, socket, struct, sys, time
cpu = lambda: sum(resource.getrusage(resource.RUSAGE_SELF)[:2])
sent = 0; start = cpu()
if sys.argv[1] != "udp":
    s = socket.create_connection(("192.168.77.9", 7070)); block = bytes(1 << 17)
    if sys.argv[1] == "paced": s.setsockopt(socket.SOL_SOCKET, 47, struct.pack("Q", 1_250_000_000))   # SO_MAX_PACING_RATE, bytes a second
    end = time.monotonic() + 1
    while time.monotonic() < end: s.sendall(block); sent += len(block)
    print((cpu() - start) / sent)
    s.shutdown(socket.SHUT_WR); s.recv(1)   # what a closed socket still has to send is nobody's, and stopped
else:
    s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM); s.connect(("192.168.77.9", 7070)); block = bytes(64); end = time.monotonic() + 1
    while time.monotonic() < end: s.send(block); sent += 1
    print((cpu() - start) / sent)
    try:
        while True: s.send(b"end"); time.sleep(0.01)
    except ConnectionRefusedError: pass   # it has heard, and gone
"""
# Tor's own traffic, and the traffic that passes the most rules: to a neighbour on the local network. Each with its minimum share; from memory to memory
# there is none, since Tor is never so fast.
PATHS = {
    ("tcp", "_veldmark"): ("one TCP stream of Tor's, from memory to memory", None),
    ("paced", "_veldmark"): ("… at the pace of 10 Gbit/s", 0.97),
    ("tcp", "root"): ("one TCP stream to a neighbour, from memory to memory", None),
    ("udp", "_veldmark"): ("64-byte datagrams of Tor's", 0.85),
    ("udp", "root"): ("64-byte datagrams to a neighbour", 0.85),
}
# An ordinary firewall: it tracks connections and accepts everything.
TRACKING = "table inet tracking { chain input { type filter hook input priority 0; policy accept; ct state established accept; }; }"


def throughput(lab, kind: str, user: str) -> tuple[int, float]:
    """What the other side received in about a second, and the sender's CPU time for one byte or datagram."""
    sink = lab.lan.popen(["/usr/bin/python3", "-c", SINK, kind], stdout=subprocess.PIPE, text=True)
    sink.stdout.readline()
    enter = '[ "$1" = root ] || [ ! -d "$0" ] || echo 0 >"$0/cgroup.procs"; user=$1; shift; exec setpriv --reuid "$user" --clear-groups "$@"'
    cost = lab.host.run(
        ["/bin/sh", "-c", enter, "/sys/fs/cgroup/veldmark/tor", user, "/usr/bin/python3", "-c", SOURCE, kind], cwd="/", check=True
    ).stdout
    return int(sink.communicate(timeout=20)[0]), float(cost)


def run_in_lab(figures: Figures, rounds: Rounds, lab, product) -> None:
    # A congestion control that every kernel permits. The machine's own may pace a stream, which would change the figure.
    lab.host.run(["sh", "-c", "echo reno >/proc/sys/net/ipv4/tcp_congestion_control"], check=True)
    # A transport that sends datagrams, so that Tor's account may send them.
    words = [
        "connect",
        "--tor",
        "/usr/bin/tor",
        "--hash",
        hashed_password(lab),
        "--strict",
        "1",
        "--lan",
        "1",
        "--bridge",
        "snowflake 192.0.2.3:1",
        "--pt-snowflake",
        "/usr/bin/snowflake-client",
    ]
    product.run_helper(*words, check=True)  # Tor's account exists from here on
    script = f"for i in $(seq {rounds.of(20)}); do start=${{EPOCHREALTIME/./}}; nft -f {RUN_FOLDER}/firewall.nft; echo $((${{EPOCHREALTIME/./}} - start)); done"
    loads = [int(line) / 1000 for line in lab.host.run(["bash", "-c", script], check=True).stdout.split()]
    fixed = fixed_time(rounds)
    product.run_helper("disconnect", check=True)
    taken: dict[tuple, list[float]] = {path: [] for path in PATHS}
    costs: dict[tuple, list[float]] = {path: [] for path in PATHS}
    of_tracked: dict[tuple, list[float]] = {path: [] for path in PATHS}
    for _ in range(rounds.of(8)):
        without = {path: throughput(lab, *path) for path in PATHS}
        lab.host.run(["nft", TRACKING], check=True)
        tracked = {path: throughput(lab, *path) for path in PATHS}
        lab.host.run(["nft", "delete table inet tracking"], check=True)
        product.run_helper(*words, check=True)
        for path in PATHS:
            number, cost = throughput(lab, *path)
            taken[path].append(number / without[path][0])
            costs[path].append(without[path][1] / cost)
            of_tracked[path].append(number / tracked[path][0])
        product.run_helper("disconnect", check=True)
    figures.add("kill switch: rules loaded", middle(loads), "ms", spread(loads))
    figures.add("  in fixed computations", middle(loads) / fixed, "", f"of {fixed:.2f} ms", most=12)
    for path, (name, least) in PATHS.items():
        figures.add(
            f"{name}, share of without rules",
            middle(taken[path]),
            "",
            f"{spread(taken[path])}; by CPU time {middle(costs[path]):.2f}",
            least=least,
        )
        figures.add("  where connections were tracked already", middle(of_tracked[path]), "", spread(of_tracked[path]))

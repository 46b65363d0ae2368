"""The cost of separate applications: a connection to Tor's SOCKS port with the table and without, by turns, among 200 identities;
and the program that watches groups, with 50 new and 50 removed groups a second, and idle."""

import os
import subprocess

from figures import hashed_password

USER = "/sys/fs/cgroup/user.slice/user-1001.slice"
APPS = f"{USER}/user@1001.service/app.slice"
TABLE = "veldmark-identities"

# Opens and closes this many connections; prints the seconds for one.
CONNECTIONS = (
    "import socket, sys, time\nstart = time.perf_counter()\nfor _ in range(int(sys.argv[1])):\n"
    "    s = socket.create_connection(('127.0.0.1', 9050)); s.close()\nprint((time.perf_counter() - start) / int(sys.argv[1]))"
)
COMING = """if True:
    import os, sys, time
    start = time.monotonic()
    for n in range(int(sys.argv[2]) * 50):
        os.mkdir(f'{sys.argv[1]}/app-coming{n % 70}-{n}.scope')
        if n >= 20: os.rmdir(f'{sys.argv[1]}/app-coming{(n - 20) % 70}-{n - 20}.scope')
        time.sleep(max(0, start + (n + 1) / 50 - time.monotonic()))
    for n in range(n - 19, n + 1): os.rmdir(f'{sys.argv[1]}/app-coming{n % 70}-{n}.scope')"""


def connection_seconds(host, group, many=200):
    words = ["/bin/sh", "-c", 'echo 0 >"$0/cgroup.procs"; exec "$@"', group, "/usr/bin/python3", "-c", CONNECTIONS, str(many)]
    return float(host.run(words, check=True).stdout)


def connections(host, pairs):
    """Pairs of seconds for one connection, with the table and without it."""
    host.run(["/bin/sh", "-c", f"pkill -STOP -x veldmark-identi; nft list table inet {TABLE} >/run/table.nft"], check=True)
    found = []
    for _ in range(pairs):
        with_table = connection_seconds(host, f"{APPS}/app-bench0-1.scope")
        host.run(["nft", "delete", "table", "inet", TABLE], check=True)
        without = connection_seconds(host, f"{APPS}/app-bench0-1.scope")
        host.run(["nft", "-f", "/run/table.nft"], check=True)
        found.append((with_table, without))
    host.run(["/bin/sh", "-c", "rm /run/table.nft; pkill -CONT -x veldmark-identi"], check=True)
    return found


def watching(host):
    """The program's process and the listeners to the rules. The short runs of nft beside them are gone before they can be read."""
    host.run(["timeout", "20", "/bin/sh", "-c", "until [ $(pgrep -fc '^nft monitor ') = 3 ]; do sleep 0.1; done"], check=True)
    found = host.run(["/bin/sh", "-c", "pgrep -x veldmark-identi && pgrep -f '^nft monitor '"], check=True)
    return found.stdout.split()


def spent(host, processes):
    """The seconds of processor time of the processes."""
    script = "for pid; do cut -d' ' -f14,15 /proc/$pid/stat || exit; done"
    ticks = sum(int(word) for word in host.run(["/bin/sh", "-c", script, "spent", *processes], check=True).stdout.split())
    return ticks / os.sysconf("SC_CLK_TCK")


def coming_and_going(host, seconds):
    """The shares of one core while groups come and go, and while idle."""
    processes = watching(host)
    before = spent(host, processes)
    host.run(["/usr/bin/python3", "-c", COMING, APPS, str(seconds)], check=True, timeout=seconds * 3)
    busy = spent(host, processes)
    subprocess.run(["sleep", "3"], check=True)
    settled = spent(host, processes)
    subprocess.run(["sleep", str(seconds)], check=True)
    return (busy - before) / seconds, (spent(host, processes) - settled) / seconds


def measure(lab, product, rounds):
    host = lab.host
    host.run(
        ["/bin/sh", "-c", f"mkdir -p {APPS}; cd {APPS}; for n in $(seq 0 199); do mkdir app-bench$n-1.scope; done"], check=True
    )
    product.run_helper(
        "connect",
        "--tor",
        "/usr/bin/tor",
        "--hash",
        hashed_password(lab),
        "--strict",
        "1",
        "--lan",
        "0",
        "--separate",
        "1",
        check=True,
    )
    host.run(
        ["timeout", "20", "/bin/sh", "-c", "until [ $(grep -c bench /run/veldmark.identities) = 200 ]; do sleep 0.1; done"],
        check=True,
    )
    try:
        return connections(host, rounds.of(12)), coming_and_going(host, 2 if rounds.quick else 20)
    finally:
        product.run_helper("disconnect", check=True)
        host.run(
            [
                "/bin/sh",
                "-c",
                "cd /sys/fs/cgroup/user.slice && find . -mindepth 1 -depth -type d -exec rmdir {} +; rmdir /sys/fs/cgroup/user.slice",
            ]
        )

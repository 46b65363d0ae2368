#!/usr/bin/python3
"""Prints the benchmarks as a table, or with --json as one JSON object. `--only WORD` runs the groups whose name holds WORD.

    parsing   framing and reading circuit-status lines against python3-stem, the log against a short Python program, interleaved
    discovery the search for transport programs in a folder of 12,000 files against find, interleaved
    service   memory, processor time and wake-ups of veldmarkctl run, connected, beside nyx
    helper    the helper's connect and disconnect in strict mode, in the private Tor network
    killswitch  how long the rules take to load, and what they cost, against none, interleaved
    download  SOCKS downloads through Tor with the kill switch and without, interleaved
    identities  what separate applications cost a connection, with and without, interleaved; the program that watches groups
    prompt    what terminal mode's hook adds to a shell's prompt, in the private Tor network
    desktop   redrawing the windows; first frame, memory and processor time of the application beside a bare tray program
    connect   from the call of connect() to connected, and disconnect, against a bare tor with the same torrc, interleaved

Everything runs on this machine and in its own network namespaces. Exit status 77 where namespaces are not permitted.
"""

import argparse
import json
import statistics
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

sys.dont_write_bytecode = True
PROJECT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(PROJECT / "tests" / "lab"))

from veldlab import topology as at  # noqa: E402
from veldlab.lab import Lab, LabUnavailable  # noqa: E402
from veldlab.product import Product  # noqa: E402

PROGRAMS = PROJECT / "build" / "bin"
BENCHES = PROJECT / "build" / "dev" / "bench"
RUN_FOLDER = "/var/lib/veldmark/run"

rows: list[dict] = []
idle_seconds = 300.0  # how long the idle application is watched


def report(name: str, value: float, unit: str, goal: str, yardstick: str = "") -> None:
    rows.append({"name": name, "value": round(value, 3), "unit": unit, "goal": goal, "yardstick": yardstick})
    print(f"  {name:<54}{value:>9.2f} {unit:<4} goal {goal:<28}{yardstick}", flush=True)


def middle(values: list[float]) -> float:
    return statistics.median(values)


def spread(values: list[float]) -> str:
    return f"of {len(values)} runs, {min(values):.2f} to {max(values):.2f}"


def measured(program: str, *arguments: str) -> dict:
    return json.loads(subprocess.run([BENCHES / program, *arguments], capture_output=True, text=True, check=True).stdout)


def parsing(pairs: int = 8) -> None:
    from log_yardstick import log_file, read_with_python  # noqa: PLC0415
    from stem_yardstick import read_with_stem  # noqa: PLC0415

    framed, parsed, stem, ours, slowest, python = [], [], [], [], [], []
    with tempfile.TemporaryDirectory() as folder:
        paths = [f"{folder}/{name}" for name in ("start.out", "notices.log", "launcher.out")]
        for path in paths:
            Path(path).write_bytes(log_file())
        for _ in range(pairs):
            framed.append(measured("FramingBench")["median_ms"])
            circuits = measured("CircuitBench")
            parsed.append(circuits["parseMedianMs"])
            stem.append(read_with_stem() * 1000)
            log = measured("LogBench", "5")
            ours.append(log["torLinesMedianMs"])
            slowest.append(max(value for key, value in log.items() if key.endswith("MedianMs")))
            python.append(read_with_python(paths))
    together = [one + other for one, other in zip(framed, parsed)]
    report("10,000 circuit-status lines: framed", middle(framed), "ms", "", spread(framed))
    report("10,000 circuit-status lines: parsed", middle(parsed), "ms", "", spread(parsed))
    report("10,000 circuit-status lines: framed and read", middle(together), "ms", "at most 20", spread(together))
    report("the same with python3-stem", middle(stem), "ms", "yardstick", spread(stem))
    report("graph of 1,000 circuits: build and layout", circuits["graphMedianMs"], "ms", "at most 5")
    report("Tor's log, 3 x 1 MB: read, merged and parsed", middle(ours), "ms", "at most 25", spread(ours))
    report("  the slowest kind of content", middle(slowest), "ms", "at most 25", spread(slowest))
    report("the same log with a short Python program", middle(python), "ms", "yardstick", spread(python))
    report("Tor's log: one look when nothing has changed", log["pollMedianUs"] / 1000, "ms", "three stat calls")


def discovery(pairs: int = 8) -> None:
    """A folder like Tor Browser's: 12,000 files, the transports deep in it, an archive of 60 MB."""
    files, folders = 12_000, 600
    with tempfile.TemporaryDirectory() as place:
        browser = Path(place, "home/user/tor-browser")
        for number in range(files):
            folder = browser / f"Browser/{number % 30}/{number % folders}"
            folder.mkdir(parents=True, exist_ok=True)
            (folder / f"file{number}").touch()
        transports = browser / "Browser/TorBrowser/Tor/PluggableTransports"
        transports.mkdir(parents=True)
        (transports / "lyrebird").write_text("#!/bin/sh\nexit 1\n")
        (transports / "lyrebird").chmod(0o755)
        (transports / "pt_config.json").write_text(json.dumps({
            "pluggableTransports": {"lyrebird": "ClientTransportPlugin obfs4,snowflake exec ${pt_path}lyrebird"},
            "bridges": {"obfs4": ["obfs4 192.0.2.1:443 " + "0" * 40 + " cert=a iat-mode=0"]}}))
        with (browser / "Browser/omni.ja").open("wb") as archive:
            archive.truncate(60_000_000)
        names = ["lyrebird", "snowflake-client", "webtunnel-client", "pt_config.json", "omni.ja"]
        wanted = " -o ".join(f"-name {name}" for name in names).split()
        ours, theirs = [], []
        for number in range(pairs + 1):
            started = time.perf_counter()
            found = subprocess.run(["find", browser, *wanted], capture_output=True, text=True, check=True).stdout
            took = (time.perf_counter() - started) * 1000
            located = measured("DiscoveryBench", place)
            if len(found.splitlines()) != 3 or located["kinds"] != 1:
                raise RuntimeError("the two have not found the same")
            if number:   # the first round warms the cache
                theirs.append(took)
                ours.append(located["milliseconds"])
    report("transports found among 12,000 files", middle(ours), "ms", "1.5 x find", spread(ours))
    report("find with the same names", middle(theirs), "ms", "yardstick", spread(theirs))
    report("  in finds", middle(ours) / middle(theirs), "", "at most 1.5")


def service(lab: Lab, product: Product) -> None:
    probe = str(PROJECT / "bench" / "service_probe.py")
    output = lab.host.run(["/usr/bin/python3", "-B", probe, str(PROGRAMS), str(idle_seconds)], check=True, timeout=idle_seconds + 300).stdout
    figures = json.loads(output)
    for name, what, goal in (("nyx", "nyx, on a terminal", "yardstick"), ("run", "veldmarkctl run, connected", "less than nyx")):
        one = figures[name]
        report(f"{what}: resident memory", one["rssMB"], "MB", goal, f"{one['pssMB']:.1f} proportional, {one['ownMB']:.1f} its own")
        report("  processor, share of one core", one["cpuPercent"], "%", goal, f"over {idle_seconds:.0f} s")
        report("  wake-ups each second", one["wakesPerSecond"], "", goal)


def clean_start(lab: Lab) -> None:
    """Both sides begin without a cached consensus or guards."""
    lab.host.run(["rm", "-rf", f"{RUN_FOLDER}/tor/data"], check=True)


def helper(lab: Lab, product: Product) -> None:
    hashed = lab.host.run(["tor", "--quiet", "--hash-password", "bench"], check=True).stdout.split()[-1]
    arguments = ["connect", "--tor", "/usr/bin/tor", "--hash", hashed, "--strict", "1", "--lan", "1"]
    # One process of the host runs them all, so that no start of a process is measured that is not theirs.
    script = 'for i in 1 2 3 4 5 6 7 8 9 10; do for verb in connect disconnect; do\n' \
             'start=${EPOCHREALTIME/./}; if [ $verb = connect ]; then /bin/bash "$@" || exit 1; else /bin/bash "$1" disconnect || exit 1; fi\n' \
             'echo "$verb $((${EPOCHREALTIME/./} - start))"; done; done'
    output = lab.host.run(["bash", "-c", script, "bench", product.helper, *arguments], check=True, timeout=120).stdout
    times: dict[str, list[float]] = {"connect": [], "disconnect": []}
    for line in output.splitlines():
        verb, microseconds = line.split()
        times[verb].append(int(microseconds) / 1e6)
    for verb, values in times.items():
        report(f"helper {verb}, strict mode", middle(values), "s", "at most 0.5", spread(values))


def time_session(lab: Lab, product: Product) -> tuple[float, float]:
    """Seconds from the call of connect() to connected, and those that disconnect takes."""
    clean_start(lab)
    moments: dict[str, float] = {}  # when each phase was first seen by somebody who watches the instance
    with product.session(connect=False) as session:
        session.wait_phase("disconnected")
        watch = lab.host.popen([product.ctl, "status", "--watch", "--json"], stdout=subprocess.PIPE, text=True)
        reader = threading.Thread(target=lambda: note_phases(watch.stdout, moments))
        reader.start()
        product.run_verb("connect", check=True)
        watch.terminate()
        watch.wait()
        reader.join()
        started = time.monotonic()
        product.run_verb("disconnect", check=True)
        ended = time.monotonic()
        session.interrupt()
    return moments["connected"] - moments["connecting"], ended - started


def note_phases(lines, moments: dict[str, float]) -> None:
    for line in lines:
        moments.setdefault(json.loads(line)["phase"], time.monotonic())


def time_bare_tor(lab: Lab, torrc: str) -> tuple[float, float]:
    """Seconds from its start to 100 %, and from SIGTERM to its end."""
    clean_start(lab)
    script = (f"install -d -m 700 -o _veldmark {RUN_FOLDER}/tor/data && exec setpriv --reuid _veldmark --regid _veldmark --clear-groups "
              f"--inh-caps=+net_bind_service --ambient-caps=+net_bind_service tor -f {torrc}")
    started = time.monotonic()
    process = lab.host.popen(["bash", "-c", script], stdout=subprocess.PIPE, text=True)
    try:
        for line in process.stdout:
            if "Bootstrapped 100%" in line:
                up = time.monotonic() - started
                break
        else:
            raise RuntimeError("bare tor did not bootstrap")
    finally:
        stopped = time.monotonic()
        process.terminate()
        process.wait()
    return up, time.monotonic() - stopped


def connect(lab: Lab, product: Product, pairs: int = 8) -> None:
    with product.session() as session:
        session.wait_phase("connected")
        torrc = lab.host.read(f"{RUN_FOLDER}/torrc")
    bare = "\n".join(line for line in torrc.splitlines() if not line.startswith("Log ")) + "\nLog notice stdout\n"
    lab.host.write("/root/bare-torrc", bare, mode=0o644)
    lab.host.run(["chmod", "755", "/root"], check=True)
    ours, theirs, ours_down, theirs_down = [], [], [], []
    for _ in range(pairs):
        for times, downs, (up, down) in ((theirs, theirs_down, time_bare_tor(lab, "/root/bare-torrc")), (ours, ours_down, time_session(lab, product))):
            times.append(up)
            downs.append(down)
    report("connect() to connected, strict mode", middle(ours), "s", "bare tor + 1.3", spread(ours))
    report("bare tor with the same torrc, to 100%", middle(theirs), "s", "yardstick", spread(theirs))
    report("difference", middle(ours) - middle(theirs), "s", "at most 1.3")
    report("veldmarkctl disconnect, strict mode", middle(ours_down), "s", "bare tor + 0.5", spread(ours_down))
    report("bare tor, from SIGTERM to its end", middle(theirs_down), "s", "yardstick", spread(theirs_down))


# Sends for a second and prints what the other side took: bytes over one TCP stream, as fast as memory goes or at the pace of a
# fast network card, or datagrams of 64 bytes.
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
# Prints the CPU time that the sending took, in seconds for each byte or datagram. In namespaces of one machine a packet's whole
# way is walked on the sender's time, and unlike the throughput it does not depend on what else the machine does.
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


def throughput(lab: Lab, kind: str, user: str) -> tuple[int, float]:
    """What the other side took in about a second, and the sender's CPU time for one byte or datagram."""
    sink = lab.lan.popen(["/usr/bin/python3", "-c", SINK, kind], stdout=subprocess.PIPE, text=True)
    sink.stdout.readline()
    enter = '[ "$1" = root ] || [ ! -d "$0" ] || echo 0 >"$0/cgroup.procs"; user=$1; shift; exec setpriv --reuid "$user" --clear-groups "$@"'
    cost = lab.host.run(["/bin/sh", "-c", enter, "/sys/fs/cgroup/veldmark/tor", user, "/usr/bin/python3", "-c", SOURCE, kind], cwd="/", check=True).stdout
    return int(sink.communicate(timeout=20)[0]), float(cost)


# Tor's own traffic, and what passes the most rules: to a neighbour on the local network.
PATHS = {("tcp", "_veldmark"): ("one TCP stream of Tor's, from memory to memory", "yardstick"), ("paced", "_veldmark"): ("… at the pace of 10 Gbit/s", "at least 0.97"),
         ("tcp", "root"): ("one TCP stream to a neighbour", "at least 0.97"),
         ("udp", "_veldmark"): ("64-byte datagrams of Tor's", "at least 0.85"),
         ("udp", "root"): ("64-byte datagrams to a neighbour", "at least 0.85")}


# Somebody's ordinary firewall: it tracks connections, and lets everything pass.
TRACKING = "table inet tracking { chain input { type filter hook input priority 0; policy accept; ct state established accept; }; }"


def killswitch(lab: Lab, product: Product, pairs: int = 8) -> None:
    # The one that every kernel permits. The machine's own may pace a stream by its estimates, which would be measured then.
    lab.host.run(["sh", "-c", "echo reno >/proc/sys/net/ipv4/tcp_congestion_control"], check=True)
    hashed = lab.host.run(["tor", "--quiet", "--hash-password", "bench"], check=True).stdout.split()[-1]
    # With a transport that sends datagrams, so that Tor's account may.
    words = ["connect", "--tor", "/usr/bin/tor", "--hash", hashed, "--strict", "1", "--lan", "1", "--bridge", "snowflake 192.0.2.3:1",
             "--pt-snowflake", "/usr/bin/snowflake-client"]
    product.run_helper(*words, check=True)   # the account exists from here on
    script = f"for i in $(seq 20); do start=${{EPOCHREALTIME/./}}; nft -f {RUN_FOLDER}/firewall.nft; echo $((${{EPOCHREALTIME/./}} - start)); done"
    loads = [int(line) / 1000 for line in lab.host.run(["bash", "-c", script], check=True).stdout.split()]
    product.run_helper("disconnect", check=True)
    taken: dict[tuple, list[float]] = {path: [] for path in PATHS}
    costs: dict[tuple, list[float]] = {path: [] for path in PATHS}
    of_tracked: dict[tuple, list[float]] = {path: [] for path in PATHS}
    for _ in range(pairs):
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
    report("kill switch: rules loaded", middle(loads), "ms", "at most 50", spread(loads))
    for path, (name, goal) in PATHS.items():
        report(f"{name}, share of without rules", middle(taken[path]), "", goal, f"{spread(taken[path])}; by CPU time {middle(costs[path]):.2f}")
        report("  where connections were tracked already", middle(of_tracked[path]), "", "", spread(of_tracked[path]))


DOWNLOAD_BYTES = 20_000_000
# As root, who may open the control port.
CONTROL = "import socket, sys; s = socket.create_connection(('127.0.0.1', 9051)); s.sendall(sys.argv[1].encode()); r = s.makefile().read(); sys.exit(r.count('250') < 3)"


def download(lab: Lab, size: int, *options: str) -> str:
    return lab.host.run(["curl", "-sS", "--fail", "--max-time", "120", "-o", "/dev/null", *options, "--proxy", "socks5h://127.0.0.1:9050",
                         f"http://{at.WEB_HOSTS[0]}/bytes/{size}"], check=True, timeout=300).stdout


def downloads(lab: Lab, product: Product, pairs: int = 12) -> None:
    """What an application has of it: bytes a second through Tor, with the rules and without, by turns. Tor makes its connections anew
    each time, since the rules let nothing go on that they have not seen begin."""
    hashed = lab.host.run(["tor", "--quiet", "--hash-password", "bench"], check=True).stdout.split()[-1]
    product.run_helper("connect", "--tor", "/usr/bin/tor", "--hash", hashed, "--strict", "1", "--lan", "0", check=True)
    lab.host.run(["pkill", "-KILL", "-f", "watcher[.]sh"], check=True)
    rules = {"with": f"nft -f {RUN_FOLDER}/firewall.nft", "without": "nft add table inet veldmark; nft delete table inet veldmark"}
    speeds: dict[str, list[float]] = {"with": [], "without": []}
    for pair in range(pairs):
        for which, change in sorted(rules.items(), reverse=pair % 2 == 1):
            lab.host.run(["sh", "-c", change], check=True)
            for off in 1, 0:
                lab.host.run(["/usr/bin/python3", "-c", CONTROL, f'AUTHENTICATE "bench"\r\nSETCONF DisableNetwork={off}\r\nQUIT\r\n'], check=True)
            download(lab, 1)
            speeds[which].append(float(download(lab, DOWNLOAD_BYTES, "-w", "%{speed_download}")))
    product.run_helper("disconnect", check=True)
    shares = [one / other for one, other in zip(speeds["with"], speeds["without"])]
    report("SOCKS download without the kill switch", middle(speeds["without"]) / 1e6, "MB/s", "yardstick", spread([v / 1e6 for v in speeds["without"]]))
    report("SOCKS download with it, share of that", middle(shares), "", "at least 0.99", spread(shares))


def identities(lab: Lab, product: Product) -> None:
    from identities_probe import measure  # noqa: PLC0415

    pairs, (busy, idle) = measure(lab, product)
    more = [(one - other) * 1000 for one, other in pairs]
    report("a connection to Tor's SOCKS port", middle([other * 1000 for _, other in pairs]), "ms", "yardstick")
    report("… with 200 identities: more", middle(more), "ms", "at most 0.3", spread(more))
    report("50 groups come and go each second: processor", busy * 100, "%", "at most 2")
    report("… at rest", idle * 100, "%", "none")


PROMPTS = 1000
PLAIN_HOME = "/root/plain"
# Read by an interactive shell line by line, so with a prompt and its hooks before each; prints when it began and
# ended, the prompts counted, and whether the hook is there.
PROMPT_SCRIPT = ('[ -z "${ZSH_VERSION:-}" ] || zmodload zsh/datetime\n'
                 'count=0; start=$EPOCHREALTIME\n' + ":\n" * PROMPTS +
                 'end=$EPOCHREALTIME; counted=$count\n'
                 'type _veldmark_sync >/dev/null 2>&1 && hook=hook || hook=none\necho "=$start $end $counted $hook"\n')
PROMPT_FILES = {"bash": (".bashrc", "PROMPT_COMMAND='count=$((count + 1))'\n"), "zsh": (".zshrc", "precmd() { count=$((count + 1)) }\n")}


def time_prompts(lab: Lab, shell: str, home: str) -> float:
    """Milliseconds for one prompt of a shell with this home's start-up files."""
    words = {"bash": ["bash", "-i"], "zsh": ["zsh", "-d", "-i"]}[shell]
    output = lab.host.run(words, env={"HOME": home, "TERM": "dumb"}, input=PROMPT_SCRIPT, check=True).stdout
    (line,) = [line for line in output.splitlines() if line.startswith("=")]
    start, end, counted, hook = line[1:].split()
    if int(counted) < PROMPTS or hook != ("none" if home == PLAIN_HOME else "hook"):
        raise RuntimeError(f"{shell} showed {counted} prompts of {PROMPTS}, hook: {hook}")
    return (float(end) - float(start)) * 1000 / PROMPTS


def prompt(lab: Lab, product: Product, pairs: int = 8) -> None:
    for name, text in PROMPT_FILES.values():
        for home in ("/root", PLAIN_HOME):
            lab.host.write(f"{home}/{name}", text)
    with product.session(connect=False) as session:
        session.wait_phase("disconnected")
        product.run_verb("set", "terminalMode", "true", check=True)
        for state in ("disconnected", "connected"):
            if state == "connected":
                product.run_verb("connect", check=True)
            for shell in PROMPT_FILES:
                with_hook, without = [], []
                for _ in range(pairs):
                    without.append(time_prompts(lab, shell, PLAIN_HOME))
                    with_hook.append(time_prompts(lab, shell, "/root"))
                report(f"{shell} prompt without the hook, {state}", middle(without), "ms", "yardstick", spread(without))
                report(f"{shell} prompt with the hook, {state}", middle(with_hook), "ms", "", spread(with_hook))
                report("  the hook adds", middle(with_hook) - middle(without), "ms", "at most 1")
        session.interrupt()


def windows() -> None:
    graph, log = measured("GraphBench"), measured("LogWindowBench")
    for count, goal in (("30", "below 8"), ("300", "below 30")):
        report(f"graph of {count} circuits redrawn (processor time)", graph[f"{count}lightGraphMs"], "ms", goal,
               f"of {graph['repetitions']} runs; dark {graph[f'{count}darkGraphMs']:.2f}")
        report("  the whole window, after news from Tor", graph[f"{count}lightWindowMs"], "ms", "", f"dark {graph[f'{count}darkWindowMs']:.2f}")
    for name, words in (("added", "a line added"), ("replaced", "every line replaced"), ("scrolled", "scrolled")):
        report(f"log of 3,000 lines drawn, {words}", log[f"{name}Ms"], "ms", "at most 16", f"of {log['repetitions']} runs, at most {log[f'{name}MostMs']:.2f}")


def desktop(lab: Lab, product: Product, pairs: int = 8) -> None:
    probe = str(PROJECT / "bench" / "desktop_probe.py")
    output = lab.host.run(["/usr/bin/python3", "-B", probe, str(PROGRAMS), str(BENCHES), str(pairs), str(idle_seconds)],
                          env={"LANG": "C.UTF-8"}, check=True, timeout=idle_seconds + 600).stdout
    figures = json.loads(output)
    frames, idle = figures["firstFrameMs"], figures["idle"]
    report("first frame of the bare tray program", middle(frames["bare"]), "ms", "yardstick", spread(frames["bare"]))
    report("first frame of veldmark", middle(frames["veldmark"]), "ms", "", spread(frames["veldmark"]))
    report("  in bare programs", middle(frames["veldmark"]) / middle(frames["bare"]), "", "at most 2.5")
    for name, goal in (("bare", "yardstick"), ("veldmark", "at most 80")):
        what, one = {"bare": "bare tray program, hidden", "veldmark": "veldmark, hidden and connected"}[name], idle[name]
        report(f"{what}: resident memory", one["rssMB"], "MB", goal, f"{one['pssMB']:.1f} proportional, {one['ownMB']:.1f} its own")
        report("  processor, share of one core", one["cpuPercent"], "%", "at most 0.3" if name == "veldmark" else "yardstick", f"over {idle_seconds:.0f} s")
        report("  wake-ups each second", one["wakesPerSecond"], "", "")


def main() -> int:
    global idle_seconds
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--json", metavar="FILE", help="also write the figures there")
    parser.add_argument("--only", default="", metavar="WORD")
    parser.add_argument("--idle", type=float, default=300, metavar="SECONDS", help="how long the idle application is watched")
    arguments = parser.parse_args()
    idle_seconds = arguments.idle
    groups = [name for name in ("parsing", "helper", "killswitch", "download", "identities", "prompt", "desktop", "connect", "discovery", "service") if arguments.only in name]
    in_lab = {"helper", "killswitch", "download", "identities", "prompt", "desktop", "connect", "service"}
    try:
        if "parsing" in groups:
            print("parsing")
            parsing()
        if "discovery" in groups:
            print("discovery")
            discovery()
        if "desktop" in groups:
            print("desktop")
            windows()
        if in_lab & set(groups):
            with Lab() as lab:
                product = Product(lab, PROGRAMS)
                for name, group in (("helper", helper), ("killswitch", killswitch), ("download", downloads), ("identities", identities), ("prompt", prompt), ("desktop", desktop), ("connect", connect), ("service", service)):
                    if name in groups:
                        print(f"{name}, in the private Tor network" if name == "desktop" else name)
                        group(lab, product)
    except LabUnavailable as error:
        print(error, file=sys.stderr)
        return 77
    if arguments.json:
        Path(arguments.json).write_text(json.dumps(rows, indent=2) + "\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())

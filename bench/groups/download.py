"""What an application has of Tor with the kill switch and without.

Over circuits of any relays two downloads differ by half of their time. So all go over one entry, one middle relay and one exit, and are short,
many and taken by turns. The share of each pair is of two downloads that follow each other; the middle of the shares has an uncertainty, which
is printed: the two values between which the true middle is with a certainty of 95 %, by the order of the shares alone. Other work on the
machine changes the elapsed time of a download; the processor time of Tor, which sends and receives the packets, changes less.
"""

import math
import re

from figures import RUN_FOLDER, Figures, Rounds, hashed_password, middle, spread
from veldlab import topology as at

DOWNLOAD_BYTES = 8_000_000
WARM_UP_BYTES = 2_000_000  # fills the windows of the new connections
PAIRS = 40
# Says each word to Tor and prints the replies. As root, who may open Tor's own socket: the filter before the control port lets nobody choose
# relays. Where there is no filter, Tor has the port itself.
CONTROL = (
    f"import os, socket, sys\nown = '{RUN_FOLDER}/tor/data/control'\n"
    "s = socket.socket(socket.AF_UNIX) if os.path.exists(own) else socket.socket(); s.connect(own if os.path.exists(own) else ('127.0.0.1', 9051))\n"
    "s.sendall(''.join(w + '\\r\\n' for w in ['AUTHENTICATE \"bench\"', *sys.argv[1:], 'QUIT']).encode())\n"
    "text = s.makefile().read(); print(text); sys.exit(any(line[:1] == '5' and line[:3].isdigit() for line in text.splitlines()))"
)


def download(lab, size: int, *options: str) -> str:
    return lab.host.run(
        [
            "curl",
            "-sS",
            "--fail",
            "--max-time",
            "120",
            "-o",
            "/dev/null",
            *options,
            "--proxy",
            "socks5h://127.0.0.1:9050",
            f"http://{at.WEB_HOSTS[0]}/bytes/{size}",
        ],
        check=True,
        timeout=300,
    ).stdout


def control(lab, *words: str) -> str:
    return lab.host.run(["/usr/bin/python3", "-c", CONTROL, *words], check=True).stdout


def pin_relays(lab) -> None:
    """From now on each circuit has the relays of one that was built."""
    download(lab, 1)
    built = re.search(
        r"^\d+ BUILT (?!.*IS_INTERNAL)((?:\$[0-9A-F]{40}\S*?,){2}\$[0-9A-F]{40})\S* .*PURPOSE=GENERAL",
        status := control(lab, "GETINFO circuit-status"),
        re.M,
    )
    assert built, status
    entry, inner, last = re.findall(r"\$[0-9A-F]{40}", built.group(1))
    control(lab, f"SETCONF EntryNodes={entry} MiddleNodes={inner} ExitNodes={last} StrictNodes=1 ConfluxEnabled=0")


def tor_seconds(lab) -> float:
    """Processor time of Tor, all of its threads."""
    text = lab.host.run(["sh", "-c", "cat /proc/$(pgrep -u _veldmark -x tor)/task/*/schedstat"], check=True).stdout
    return sum(int(line.split()[0]) for line in text.splitlines()) / 1e9


def certain(values: list[float]) -> str:
    """Between which two of the values the middle of all is, with a certainty of 95 %: the binomial distribution's."""
    ordered, many = sorted(values), len(values)
    below = 0
    while below < many // 2 and sum(math.comb(many, k) for k in range(below + 1)) / 2**many <= 0.025:
        below += 1
    low = max(below - 1, 0)
    return f"{ordered[low]:.3f} to {ordered[many - 1 - low]:.3f} with a certainty of 95 %; {spread(values)}"


def run_in_lab(figures: Figures, rounds: Rounds, lab, product) -> None:
    """By turns with the rules and without. Tor makes its connections anew each time, since the rules let nothing go on that they have not
    seen begin."""
    product.run_helper(
        "connect", "--tor", "/usr/bin/tor", "--hash", hashed_password(lab), "--strict", "1", "--lan", "0", check=True
    )
    lab.host.run(["pkill", "-KILL", "-f", "watcher[.]sh"], check=True)
    pin_relays(lab)
    rules = {"with": f"nft -f {RUN_FOLDER}/firewall.nft", "without": "nft add table inet veldmark; nft delete table inet veldmark"}
    speeds: dict[str, list[float]] = {"with": [], "without": []}
    spent: dict[str, list[float]] = {"with": [], "without": []}
    for pair in range(rounds.of(PAIRS)):
        for which, change in sorted(rules.items(), reverse=pair % 2 == 1):
            lab.host.run(["sh", "-c", change], check=True)
            for off in 1, 0:
                control(lab, f"SETCONF DisableNetwork={off}")
            download(lab, WARM_UP_BYTES)
            before = tor_seconds(lab)
            speeds[which].append(float(download(lab, DOWNLOAD_BYTES, "-w", "%{speed_download}")))
            spent[which].append(tor_seconds(lab) - before)
    product.run_helper("disconnect", check=True)
    shares = [one / other for one, other in zip(speeds["with"], speeds["without"])]
    by_time = [other / one for one, other in zip(spent["with"], spent["without"])]
    speeds_mb = [speed / 1e6 for speed in speeds["without"]]
    figures.add("SOCKS download without the kill switch", middle(speeds_mb), "MB/s", spread(speeds_mb))
    figures.add("  with it, share of that", middle(shares), "", certain(shares), least=0.99)
    figures.add("  … by Tor's processor time", middle(by_time), "", certain(by_time))

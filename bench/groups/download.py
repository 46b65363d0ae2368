"""What an application has of Tor with the kill switch and without."""

from figures import RUN_FOLDER, Figures, Rounds, hashed_password, middle, spread
from veldlab import topology as at

DOWNLOAD_BYTES = 20_000_000
# As root, who may open the control port.
CONTROL = "import socket, sys; s = socket.create_connection(('127.0.0.1', 9051)); s.sendall(sys.argv[1].encode()); r = s.makefile().read(); sys.exit(r.count('250') < 3)"


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


def run_in_lab(figures: Figures, rounds: Rounds, lab, product) -> None:
    """What an application has of it: bytes a second through Tor, with the rules and without, by turns. Tor makes its connections anew
    each time, since the rules let nothing go on that they have not seen begin."""
    product.run_helper(
        "connect", "--tor", "/usr/bin/tor", "--hash", hashed_password(lab), "--strict", "1", "--lan", "0", check=True
    )
    lab.host.run(["pkill", "-KILL", "-f", "watcher[.]sh"], check=True)
    rules = {"with": f"nft -f {RUN_FOLDER}/firewall.nft", "without": "nft add table inet veldmark; nft delete table inet veldmark"}
    speeds: dict[str, list[float]] = {"with": [], "without": []}
    for pair in range(rounds.of(12)):
        for which, change in sorted(rules.items(), reverse=pair % 2 == 1):
            lab.host.run(["sh", "-c", change], check=True)
            for off in 1, 0:
                lab.host.run(
                    ["/usr/bin/python3", "-c", CONTROL, f'AUTHENTICATE "bench"\r\nSETCONF DisableNetwork={off}\r\nQUIT\r\n'],
                    check=True,
                )
            download(lab, 1)
            speeds[which].append(float(download(lab, DOWNLOAD_BYTES, "-w", "%{speed_download}")))
    product.run_helper("disconnect", check=True)
    shares = [one / other for one, other in zip(speeds["with"], speeds["without"])]
    speeds_mb = [speed / 1e6 for speed in speeds["without"]]
    figures.add("SOCKS download without the kill switch", middle(speeds_mb), "MB/s", spread(speeds_mb))
    figures.add("  with it, share of that", middle(shares), "", spread(shares), least=0.99)

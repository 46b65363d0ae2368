"""The search for bridge programs."""

import json
import subprocess
import tempfile
import time
from pathlib import Path

from figures import Figures, Rounds, measured, middle, spread


def run(figures: Figures, rounds: Rounds) -> None:
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
        (transports / "pt_config.json").write_text(
            json.dumps(
                {
                    "pluggableTransports": {"lyrebird": "ClientTransportPlugin obfs4,snowflake exec ${pt_path}lyrebird"},
                    "bridges": {"obfs4": ["obfs4 192.0.2.1:443 " + "0" * 40 + " cert=a iat-mode=0"]},
                }
            )
        )
        with (browser / "Browser/omni.ja").open("wb") as archive:
            archive.truncate(60_000_000)
        names = ["lyrebird", "snowflake-client", "webtunnel-client", "pt_config.json", "omni.ja"]
        wanted = " -o ".join(f"-name {name}" for name in names).split()
        ours, theirs = [], []
        for number in range(rounds.of(8) + 1):
            started = time.perf_counter()
            found = subprocess.run(["find", browser, *wanted], capture_output=True, text=True, check=True).stdout
            took = (time.perf_counter() - started) * 1000
            located = measured("DiscoveryBench", place)
            if len(found.splitlines()) != 3 or located["kinds"] != 1:
                raise RuntimeError("the two have not found the same")
            if number:  # the first round warms the cache
                theirs.append(took)
                ours.append(located["milliseconds"])
    figures.add("transports found among 12,000 files", middle(ours), "ms", spread(ours))
    figures.add("find with the same names", middle(theirs), "ms", spread(theirs))
    figures.add("  in finds", middle(ours) / middle(theirs), "", most=1.5)

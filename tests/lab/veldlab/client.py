"""A plain tor client on the lab's host, for tests that need one without the product.

    with TorClient(lab, "ExitNodes {de}") as client:
        print(client.check())
"""

import json
import queue
import threading
import time

from veldlab import topology as at


class TorClient:
    """Runs tor as alice with its SOCKS port at 127.0.0.1:`port`. `lines`: further torrc text.

    Entering returns when tor has bootstrapped; raises TimeoutError with tor's log when it does not. `seconds` then says
    how long it took.
    """

    def __init__(self, lab, lines: str = "", port: int = 9050, timeout: float = 90):
        self._lab, self._lines, self._port, self._timeout = lab, lines, port, timeout
        self._log: list[str] = []
        self._seen: queue.SimpleQueue[str | None] = queue.SimpleQueue()
        self.seconds = 0.0

    @property
    def log(self) -> str:
        return "".join(self._log)

    def __enter__(self) -> "TorClient":
        host = self._lab.host
        folder = f"/home/{host.user}/tor-{self._port}"
        torrc = f"DataDirectory {folder}/data\nSocksPort {self._port}\nLog notice stdout\n{self._lines}\n"
        host.write(f"{folder}/torrc", torrc, uid=host.uid)
        self._process = host.popen(["tor", "-f", f"{folder}/torrc"], user=host.user, stdout=-1, stderr=-2, text=True)
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()
        try:
            self._wait_for_bootstrap()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_) -> None:
        self.close()

    def close(self) -> None:
        """Returns when tor has ended."""
        self._process.kill()
        self._process.wait()
        self._reader.join()
        self._process.stdout.close()

    def _read(self) -> None:
        for line in self._process.stdout:
            self._log.append(line)
            self._seen.put(line)
        self._seen.put(None)

    def _wait_for_bootstrap(self) -> None:
        started = time.monotonic()
        while True:
            try:
                line = self._seen.get(timeout=max(0, started + self._timeout - time.monotonic()))
            except queue.Empty:
                raise TimeoutError(f"tor did not bootstrap within {self._timeout:.0f} s:\n{self.log}") from None
            if line is None:
                raise RuntimeError(f"tor ended:\n{self.log}")
            if "Bootstrapped 100%" in line:
                self.seconds = time.monotonic() - started
                return

    def curl(self, url: str, *options: str):
        """curl over the SOCKS port, names resolved by Tor; the completed process."""
        proxy = f"127.0.0.1:{self._port}"
        return self._lab.host.run(
            ["curl", "-sS", "--max-time", "60", "--socks5-hostname", proxy, *options, url], user="alice", timeout=90
        )

    def check(self) -> dict:
        """The exit check's answer, over Tor. Raises ValueError when there is none."""
        done = self.curl(at.CHECK_URL)
        if done.returncode != 0:
            raise ValueError(f"curl gave {done.returncode}: {done.stderr}\n{self.log}")
        return json.loads(done.stdout)

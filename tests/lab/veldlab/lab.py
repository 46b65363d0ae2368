"""`Lab`: the whole private Tor network as one object.

    with Lab() as lab:
        lab.host.run(["curl", "-s", "https://check.torproject.org/api/ip"], user="alice")

The constructor does nothing; entering the context (or `up`) starts the lab and returns when a client could bootstrap.
Leaving it (or `down`) returns when every process, mount, namespace, control group and file of the lab is gone.
"""

import json
import os
import shutil
import subprocess
import time
from collections.abc import Callable, Iterable
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from veldlab import capture, registry, requirements, shaping
from veldlab import topology as at
from veldlab.host import Host
from veldlab.registry import LabUnavailable
from veldlab.space import Space
from veldlab.tor_network import TorNetwork
from veldlab.world_services import World

PROJECT = Path(__file__).resolve().parents[3]
_SUPERVISOR = Path(__file__).resolve().with_name("supervisor.py")


def _given_folders() -> list[str]:
    """The folders of the programs and files that the caller's environment names (VELDMARK_PROGRAMS and similar). A build may be
    anywhere, also below /tmp, where the host would see an empty folder."""
    given = (value for name, value in os.environ.items() if name.startswith("VELDMARK_") and os.path.isabs(value))
    folders = {path if os.path.isdir(path) else os.path.dirname(path) for path in given if os.path.exists(path)}
    return sorted(folders - {"/", "/tmp", "/run", "/etc", "/usr", "/var", "/home", "/opt", "/srv", "/root"})


class Lab:
    """`share`: further folders that the host sees unchanged, besides the project's tree and the programs under test.

    `consensus=False`: nothing will go through Tor, so that entering and `up` need not wait until it could.
    `logs`: a folder that `down` copies the nodes' and services' logs to. `timings`: seconds of each step of `up`. `on_step`
    is told the name of each step as it begins, on any thread.
    """

    def __init__(
        self,
        share: Iterable[str | Path] = (),
        logs: str | Path = "",
        on_step: Callable[[str], None] | None = None,
        consensus: bool = True,
    ):
        self.share = [str(PROJECT), *_given_folders(), *map(str, share)]
        self.logs = logs
        self.on_step = on_step
        self.consensus = consensus
        self.timings: dict[str, float] = {}
        self.record: dict = {}
        self._supervisor: subprocess.Popen | None = None

    @classmethod
    def attach(cls, record: dict) -> "Lab":
        """A lab that another process started; `registry.find` gives the record. The other process calls `down`."""
        lab = cls()
        lab._use(record)
        return lab

    def __enter__(self) -> "Lab":
        self.up()
        return self

    def __exit__(self, *_) -> None:
        self.down()

    @property
    def id(self) -> str:
        return self.record["id"]

    def up(self) -> None:
        """Raises LabUnavailable when this machine or user cannot run one."""
        reason = requirements.missing()
        if reason:
            raise LabUnavailable(reason)
        started = time.monotonic()
        try:
            self._step("namespaces", self._start_supervisor)
            with ThreadPoolExecutor(2) as pool:
                services = pool.submit(self._step, "services", self.world.start)
                identities = self._step("keys", self.tor.make_keys)
                services.result()
            self._step("nodes", lambda: self.tor.start_all(identities))
            self.host.trust(self.world.certificate_authority())
            self.host.join_tor_network(identities)
            if self.consensus:
                self.wait_consensus()
        except BaseException:
            self.down()
            raise
        self.timings["total"] = time.monotonic() - started

    def wait_consensus(self, timeout: float = 60) -> None:
        """Returns when there is a usable consensus with all exits."""
        self._step("consensus", lambda: self.tor.wait_consensus(timeout))

    def down(self) -> None:
        """Ends the lab and returns when nothing of it is left. Safe to repeat."""
        supervisor, self._supervisor = self._supervisor, None
        if supervisor is None:
            return
        try:
            if self.logs and self.record:
                self.save_logs(Path(self.logs))
        finally:
            supervisor.terminate()
            supervisor.wait()
            supervisor.stdout.close()

    def save_logs(self, folder: Path) -> None:
        """Copies the log of every node and service to the folder, which is made if need be."""
        folder.mkdir(parents=True, exist_ok=True)
        for node in at.NODES:
            (folder / f"{node.name}.log").write_text(self.tor.log(node.name))
        for path in self.world.folder.glob("*.log"):
            shutil.copy(path, folder)

    def _step(self, name: str, action):
        if self.on_step:
            self.on_step(name)
        started = time.monotonic()
        result = action()
        self.timings[name] = time.monotonic() - started
        return result

    def _start_supervisor(self) -> None:
        arguments = [registry.new_id(), str(os.getpid()), json.dumps({"share": self.share})]
        self._supervisor = subprocess.Popen(
            [at.PYTHON, "-B", str(_SUPERVISOR), *arguments], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True
        )
        line = self._supervisor.stdout.readline()
        answer = json.loads(line) if line else {"error": "its first process ended early"}
        if "error" in answer:
            raise RuntimeError(f"The lab did not start: {answer['error']}")
        self._use(answer)

    def _use(self, record: dict) -> None:
        self.record = record
        self.host = Host(record)
        self.spaces = {name: Space(name, record) for name in at.SPACES} | {"host": self.host}
        self.router, self.lan = self.spaces["router"], self.spaces["lan"]
        self.world = World(self.spaces["world"])
        self.tor = TorNetwork(self.spaces["world"])

    def capture(self, link: str = "world") -> capture.Capture:
        """Records every packet on the router's link to the world (or to "host" or "lan"); a context manager."""
        return capture.Capture(self.router, link)

    def netem(self, source: str = "host", to: str = "", delay_ms: float = 0, loss: float = 0) -> shaping.Shaping:
        """Delays and loses packets between `source` (host or lan) and `to` (an address, network or node; all when "").

        Holds for each way, until the returned object (a context manager) is closed. `loss` is a share from 0 to 1.
        """
        return shaping.Shaping(self.router, source, to, delay_ms, loss)

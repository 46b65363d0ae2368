"""The process that serves DNS, web pages and the exit check in the world, and `World`, by which tests use it.

The two sides talk through files in the world's folder: `behaviour-NAME` contains a service's behaviour,
`dns.log` and `web.log` hold one JSON object per line, `sites/NAME/` are the files of a web site, and
`certificates/NAME.pem` is its certificate. So a test, a command line and a second process can all use a running lab.
"""

import json
import os
import sys
import threading
import time
from pathlib import Path

if __name__ == "__main__":
    sys.dont_write_bytecode = True
    sys.path.insert(0, str(Path(__file__).resolve().parent.parent))

from veldlab import certificates, dns_server, web_server  # noqa: E402
from veldlab import topology as at  # noqa: E402

DNS_BEHAVIOURS = {"ok": "answers", "servfail": "answers every query with SERVFAIL", "silent": "never answers"}
BEHAVIOURS = {"check": web_server.CHECK_BEHAVIOURS, "dns": DNS_BEHAVIOURS}


_READY_FD = 3  # takes one byte when all services listen; its end without one means that they failed


class World:
    """The services for tests. Times in the logs are seconds of the machine's wall clock."""

    def __init__(self, space):
        self.space = space
        self.folder = space.path(at.WORLD_FOLDER)

    def start(self) -> None:
        """Starts the services and returns when all of them listen."""
        for folder in ("sites", "certificates"):
            (self.folder / folder).mkdir()
        web = list(at.WEB_HOSTS)
        certificates.issue(
            self.space,
            f"{at.WORLD_FOLDER}/certificates",
            [
                (at.CHECK_HOST, "ca", 20, [at.CHECK_HOST]),
                ("expired", "ca", -1, [at.CHECK_HOST]),
                ("wrong-host", "ca", 20, ["elsewhere.example.test"]),
                ("untrusted", "foreign-ca", 20, [at.CHECK_HOST]),
                ("web", "ca", 20, web),
            ],
        )
        script = 'cd "$1"; (setsid "$2" -B "$3" 3>&1 >services.log 2>&1 </dev/null &) | head -c 1'
        started = self.space.run(
            ["/bin/sh", "-c", script, "sh", at.WORLD_FOLDER, at.PYTHON, os.path.realpath(__file__)], timeout=30
        )
        if started.stdout != "y":
            raise RuntimeError("the world's services did not start: " + (self.folder / "services.log").read_text())

    def certificate_authority(self) -> bytes:
        return (self.folder / "certificates/ca.pem").read_bytes()

    def behave(self, service: str, behaviour: str) -> None:
        """Sets the behaviour of `service` ("check" or "dns"); see BEHAVIOURS. Raises ValueError."""
        if behaviour not in BEHAVIOURS.get(service, {}):
            known = ", ".join(f"{s} {b}" for s, choices in BEHAVIOURS.items() for b in choices)
            raise ValueError(f"no behaviour {service} {behaviour}; there are: {known}")
        new = self.folder / f".behaviour-{service}"
        new.write_text(behaviour)
        new.rename(self.folder / f"behaviour-{service}")

    def add_site(self, name: str, files: dict[str, bytes]) -> None:
        """A host name with a trusted certificate and files, at the web server's addresses, over HTTP and HTTPS."""
        if not all(part.replace("-", "").isalnum() for part in name.split(".")):
            raise ValueError(f"not a host name: {name}")
        certificates.issue(self.space, f"{at.WORLD_FOLDER}/certificates", [(name, "ca", 20, [name])])
        folder = self.folder / "sites" / name
        for path, content in files.items():
            target = folder / path.lstrip("/")
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(content)
        folder.mkdir(parents=True, exist_ok=True)

    def dns_log(self, since: int = 0) -> list[dict]:
        """Queries from number `since` on: time, source, transport, name, type."""
        return self._read("dns.log")[since:]

    def web_log(self, since: int = 0, service: str = "") -> list[dict]:
        """Requests from number `since` on: time, service ("check" or "web"), source, method, path, host, agent."""
        return [entry for entry in self._read("web.log")[since:] if service in ("", entry["service"])]

    def _read(self, name: str) -> list[dict]:
        try:
            text = (self.folder / name).read_text()
        except FileNotFoundError:
            return []
        whole = text[: text.rfind("\n") + 1]
        return [json.loads(line) for line in whole.splitlines()]


class _Log:
    def __init__(self, name: str):
        self.file = os.open(f"{at.WORLD_FOLDER}/{name}", os.O_WRONLY | os.O_CREAT | os.O_APPEND, 0o644)

    def __call__(self, entry: dict) -> None:
        os.write(self.file, (json.dumps({"time": round(time.time(), 3)} | entry) + "\n").encode())


def _behaviour(service: str) -> str:
    try:
        return Path(at.WORLD_FOLDER, f"behaviour-{service}").read_text()
    except FileNotFoundError:
        return "ok"


def serve() -> None:
    folder = at.WORLD_FOLDER
    dns_log, web_log = _Log("dns.log"), _Log("web.log")
    web_server.PageHandler.sites_folder = f"{folder}/sites"
    servers = dns_server.NameService(f"{folder}/sites", dns_log, lambda: _behaviour("dns")).servers()
    for address in (at.CHECK_ADDRESS, at.CHECK_ADDRESS6):
        chain = web_server.Certificates(f"{folder}/certificates", at.CHECK_HOST)
        servers.append(
            web_server.WebServer(address, 443, web_server.CheckHandler, "check", web_log, lambda: _behaviour("check"), chain)
        )
    for address in (at.WEB_ADDRESS, at.WEB_ADDRESS6):
        chain = web_server.Certificates(f"{folder}/certificates", "web")
        servers.append(web_server.WebServer(address, 80, web_server.PageHandler, "web", web_log))
        servers.append(web_server.WebServer(address, 443, web_server.PageHandler, "web", web_log, certificates=chain))
    threads = [threading.Thread(target=server.serve_forever) for server in servers]
    for thread in threads:
        thread.start()
    os.write(_READY_FD, b"y")
    os.close(_READY_FD)
    for thread in threads:
        thread.join()


if __name__ == "__main__":
    serve()

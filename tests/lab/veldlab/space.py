"""A place in a lab where commands run: one of the network namespaces with its mounts, processes and control group.

`run` and `popen` mirror the subprocess module, so pipes, timeouts and exit statuses work as there. The environment is
not the caller's but a fresh one for the account, plus `env`. A process that the command leaves behind lives on until
the lab ends. Threads: any.
"""

import json
import os
import re
import subprocess
from pathlib import Path

from veldlab import topology as at

_ENTER = str(Path(__file__).resolve().with_name("enter.py"))
_ROOT_PATH = "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin"
_USER_PATH = "/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games"


class Space:
    """`record` is the lab's registry record; the space named "host" has its own mounts and processes."""

    def __init__(self, name: str, record: dict):
        self.name = name
        self._is_host = name == "host"
        self._init = record["host_init"] if self._is_host else record["init"]
        self._lab_init = record["init"]
        self._cgroup = f"/sys/fs/cgroup/{record['cgroup']}/{'host' if self._is_host else 'world'}"

    @property
    def root(self) -> Path:
        """The root of this space's file system as the caller's processes can reach it."""
        return Path(f"/proc/{self._init}/root")

    def path(self, inside: str) -> Path:
        """Where the caller finds an absolute path of this space. Absolute links in it lead to the machine's files."""
        return self.root / inside.lstrip("/")

    def preload(self, *libraries: str | Path) -> str:
        """LD_PRELOAD for these files in any folder: the dynamic loader splits a path at blanks and knows no quotes."""
        links = []
        for library in map(str, libraries):
            links.append("/run/preload-" + re.sub(r"[\s:]", "-", os.path.basename(library)))
            self.run(["ln", "-sfn", library, links[-1]], check=True)
        return " ".join(links)

    def command(self, argv, *, user="root", env=None, cwd="", session=False) -> list[str]:
        """The argument list that runs `argv` here, for callers that start processes themselves."""
        if isinstance(argv, (str, bytes)):
            raise TypeError("a command is a list of arguments, not a string")
        spec = {
            "init": self._init,
            "net": "" if self._is_host else self.name,
            "cgroup_init": self._lab_init,
            "cgroup": self._cgroup,
            "user": user,
            "cwd": str(cwd),
            "env": {key: str(value) for key, value in (env or {}).items()},
            "session": session,
        }
        return [at.PYTHON, "-I", "-S", _ENTER, json.dumps(spec), *map(str, argv)]

    def popen(self, argv, *, user="root", env=None, cwd="", session=False, **options) -> subprocess.Popen:
        """`session=True` puts the command in a session of its own, without the caller's terminal."""
        base = {"PATH": _ROOT_PATH if user == "root" else _USER_PATH, "LANG": "C.UTF-8"}
        if "TERM" in os.environ:
            base["TERM"] = os.environ["TERM"]
        return subprocess.Popen(self.command(argv, user=user, env=env, cwd=cwd, session=session), env=base, **options)

    def run(self, argv, *, input=None, timeout=60, check=False, text=True, capture_output=True, **options):
        """Like subprocess.run, with the output captured as text unless asked otherwise; `timeout` in seconds."""
        if capture_output:
            options |= {"stdout": subprocess.PIPE, "stderr": options.get("stderr", subprocess.PIPE)}
        if input is not None:
            options["stdin"] = subprocess.PIPE
        else:
            options.setdefault("stdin", subprocess.DEVNULL)
        with self.popen(argv, text=text, **options) as process:
            try:
                output, errors = process.communicate(input, timeout=timeout)
            except BaseException:
                process.kill()
                raise
        result = subprocess.CompletedProcess(list(argv), process.returncode, output, errors)
        if check and result.returncode != 0:
            raise CommandFailed(self.name, result)
        return result


class CommandFailed(Exception):
    def __init__(self, space: str, result: subprocess.CompletedProcess):
        self.result = result
        output = "\n".join(filter(None, (str(result.stdout or ""), str(result.stderr or ""))))
        super().__init__(f"in {space}: {' '.join(map(str, result.args))} gave {result.returncode}\n{output}".rstrip())

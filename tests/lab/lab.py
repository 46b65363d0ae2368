#!/usr/bin/python3
"""The private Tor network from the command line; see veldlab/topology.py for a picture of it.

    lab.py check                                      can a lab run here? status 0, or 77 and one line that says what to do
    lab.py up                                         start one and keep it until Ctrl-C
    lab.py run [--user alice] -- CMD...               start one, run CMD on its host, end it; the status is CMD's
    lab.py exec [--in SPACE] [--user alice] -- CMD    run CMD in a lab that is up
    lab.py info                                       what a running lab contains, as JSON
    lab.py behave SERVICE BEHAVIOUR                   change how the exit check or DNS behaves
    lab.py node stop|start NAME...                    stop or start nodes
    lab.py log dns|web|NODE                           print a log
    lab.py selftest                                   the lab's own tests

Several labs can be up at once; --lab ID then chooses one.
"""

import argparse
import json
import os
import signal
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from veldlab import registry, requirements  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.lab import Lab, LabUnavailable  # noqa: E402
from veldlab.space import CommandFailed  # noqa: E402
from veldlab.world_services import BEHAVIOURS  # noqa: E402

SKIPPED = 77


def parser() -> argparse.ArgumentParser:
    top = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    verbs = top.add_subparsers(dest="verb", required=True)
    made = {name: verbs.add_parser(name) for name in ("check", "up", "run", "exec", "info", "behave", "node", "log", "selftest")}
    for name in ("up", "run"):
        made[name].add_argument("--share", action="append", default=[], help="a folder that the host sees as it is")
        made[name].add_argument("--logs", default="", metavar="FOLDER", help="copy all logs there at the end")
    for name in ("exec", "info", "behave", "node", "log"):
        made[name].add_argument("--lab", default="", metavar="ID")
    for name in ("run", "exec"):
        made[name].add_argument("--user", default="root")
        made[name].add_argument("--cwd", default="", help="working folder; the account's home if not given")
        made[name].add_argument(
            "--env",
            action="append",
            default=[],
            metavar="NAME[=VALUE]",
            help="set a variable, or pass on the caller's; nothing else is passed on",
        )
        made[name].add_argument("command", nargs="+")
    made["exec"].add_argument("--in", dest="space", default="host", choices=at.SPACES)
    made["behave"].add_argument("service", choices=list(BEHAVIOURS))
    made["behave"].add_argument("behaviour")
    made["node"].add_argument("action", choices=("stop", "start"))
    made["node"].add_argument("names", nargs="+")
    made["log"].add_argument("name")
    return top


def run_in(space, arguments) -> int:
    env = {}
    for item in arguments.env:
        name, given, value = item.partition("=")
        if given or name in os.environ:
            env[name] = value if given else os.environ[name]
    process = space.popen(arguments.command, user=arguments.user, env=env, cwd=arguments.cwd)
    signal.signal(signal.SIGINT, signal.SIG_IGN)  # a terminal's Ctrl-C goes to the command
    try:
        status = process.wait()
    finally:
        signal.signal(signal.SIGINT, signal.default_int_handler)
    return 128 - status if status < 0 else status


def print_timings(lab: Lab) -> None:
    steps = ", ".join(f"{name} {seconds:.1f} s" for name, seconds in lab.timings.items())
    print(f"lab {lab.id}: {steps}", file=sys.stderr, flush=True)


def up(arguments) -> int:
    with Lab(share=arguments.share, logs=arguments.logs) as lab:
        print_timings(lab)
        this = f"sudo {sys.executable} {Path(__file__)}"
        print(
            f"The lab {lab.id} is up. In another terminal:\n"
            f"  {this} exec --user alice -- bash\n"
            f"  {this} exec --user alice -- curl -s {at.CHECK_URL}\n"
            f"  {this} info\nCtrl-C ends it.",
            flush=True,
        )
        signal.pause()
    return 0


def info(lab: Lab) -> dict:
    return {
        "id": lab.id,
        "host": {"addresses": [at.HOST_ADDRESS, at.HOST_ADDRESS6], "user": lab.host.user, "uid": lab.host.uid},
        "exits": lab.tor.exits,
        "nodes": {node.name: node.address for node in at.NODES},
        "bridges": {name or "plain": lab.tor.bridge_line(name) for name in ("obfs4", "")},
        "check": at.CHECK_URL,
        "dns": at.DNS_ADDRESS,
        "web": {"addresses": [at.WEB_ADDRESS, at.WEB_ADDRESS6], "names": at.WEB_HOSTS},
        "behaviours": BEHAVIOURS,
    }


def log(lab: Lab, name: str) -> None:
    if name in ("dns", "web"):
        for entry in lab.world.dns_log() if name == "dns" else lab.world.web_log():
            print(json.dumps(entry))
    else:
        print(lab.tor.log(name), end="")


def act(arguments) -> int:
    if arguments.verb == "check":
        reason = requirements.missing()
        print(reason or "A lab can run here.")
        return SKIPPED if reason else 0
    if arguments.verb == "selftest":
        return subprocess.call([sys.executable, "-B", str(Path(__file__).with_name("test_lab.py"))])
    if arguments.verb == "up":
        return up(arguments)
    if arguments.verb == "run":
        with Lab(share=arguments.share, logs=arguments.logs) as lab:
            print_timings(lab)
            return run_in(lab.host, arguments)
    if os.geteuid() != 0:
        raise LabUnavailable(requirements.missing())
    lab = Lab.attach(registry.find(arguments.lab))
    if arguments.verb == "exec":
        return run_in(lab.spaces[arguments.space], arguments)
    if arguments.verb == "info":
        print(json.dumps(info(lab), indent=2))
    elif arguments.verb == "behave":
        lab.world.behave(arguments.service, arguments.behaviour)
    elif arguments.verb == "node":
        (lab.tor.stop if arguments.action == "stop" else lab.tor.start)(*arguments.names)
    elif arguments.verb == "log":
        log(lab, arguments.name)
    return 0


def main() -> int:
    arguments = parser().parse_args()
    try:
        return act(arguments)
    except LabUnavailable as error:
        print(error, file=sys.stderr)
        return SKIPPED
    except (LookupError, ValueError, CommandFailed, RuntimeError, TimeoutError) as error:
        print(error.args[0] if error.args else error, file=sys.stderr)
        return 1
    except KeyboardInterrupt:
        return 130


def end_on_signal(number: int, _) -> None:
    raise SystemExit(128 + number)


if __name__ == "__main__":
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, end_on_signal)
    sys.exit(main())

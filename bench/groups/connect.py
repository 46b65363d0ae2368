"""The time of connect() and disconnect, compared with a bare tor."""

import json
import subprocess
import threading
import time

from figures import RUN_FOLDER, Figures, Rounds, middle, spread


def clean_start(lab) -> None:
    """Removes the cached consensus and guards of both sides."""
    lab.host.run(["rm", "-rf", f"{RUN_FOLDER}/tor/data"], check=True)


def time_session(lab, product) -> tuple[float, float]:
    """The seconds from the call of connect() to connected, and the seconds of the disconnect."""
    clean_start(lab)
    moments: dict[str, float] = {}  # when an observer of the instance first saw each phase
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


def time_bare_tor(lab, torrc: str) -> tuple[float, float]:
    """The seconds from its start to 100 %, and from SIGTERM to its end."""
    clean_start(lab)
    script = (
        f"install -d -m 700 -o _veldmark {RUN_FOLDER}/tor/data && exec setpriv --reuid _veldmark --regid _veldmark --clear-groups "
        f"--inh-caps=+net_bind_service --ambient-caps=+net_bind_service tor -f {torrc}"
    )
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


def run_in_lab(figures: Figures, rounds: Rounds, lab, product) -> None:
    with product.session() as session:
        session.wait_phase("connected")
        torrc = lab.host.read(f"{RUN_FOLDER}/torrc")
    bare = "\n".join(line for line in torrc.splitlines() if not line.startswith("Log ")) + "\nLog notice stdout\n"
    lab.host.write("/root/bare-torrc", bare, mode=0o644)
    lab.host.run(["chmod", "755", "/root"], check=True)
    ours, theirs, ours_down, theirs_down = [], [], [], []
    for _ in range(rounds.of(8)):
        for times, downs, (up, down) in (
            (theirs, theirs_down, time_bare_tor(lab, "/root/bare-torrc")),
            (ours, ours_down, time_session(lab, product)),
        ):
            times.append(up)
            downs.append(down)
    figures.add("bare tor with the same torrc, to 100%", middle(theirs), "s", spread(theirs))
    figures.add("connect() to connected, strict mode", middle(ours), "s", spread(ours))
    figures.add("  longer than bare tor", middle(ours) - middle(theirs), "s", most=1.3)
    figures.add("bare tor, from SIGTERM to its end", middle(theirs_down), "s", spread(theirs_down))
    figures.add("veldmarkctl disconnect, strict mode", middle(ours_down), "s", spread(ours_down))
    figures.add("  longer than bare tor", middle(ours_down) - middle(theirs_down), "s", most=0.5)

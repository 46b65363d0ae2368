#!/usr/bin/python3
"""Shows the main job on a private Tor network: from unprotected to routed through Tor and back, in both modes. Then pictures.

usage: demo.py [network] [pictures]    without arguments: both; only the network needs root

Needs no internet and changes nothing outside its own network namespaces. Exit status 0 when every check passed, 1 when one failed,
77 when this machine does not permit namespaces.
"""

import contextlib
import json
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

sys.dont_write_bytecode = True
sys.path[:0] = [str(Path(__file__).resolve().parent), str(Path(__file__).resolve().parents[2] / "tools")]

from moving import Moving  # noqa: E402
from veldlab import topology as at  # noqa: E402
from veldlab.lab import PROJECT, Lab, LabUnavailable  # noqa: E402
from veldlab.product import Product, difference  # noqa: E402

SKIPPED = 77
BOLD, DIM, GREEN, RED, PLAIN = ("\033[1m", "\033[2m", "\033[32m", "\033[31m", "\033[0m") if sys.stdout.isatty() else ("",) * 5

PAGE = """<!doctype html><meta charset="utf-8"><title>Veldmark's windows</title>
<style>body {{ background: #888; font: 14px sans-serif }} figure {{ display: inline-block; margin: 8px; vertical-align: top }}
img {{ max-width: 480px; max-height: 480px; display: block }}</style>
{figures}
"""

failures: list[str] = []


def heading(text: str) -> None:
    print(f"\n{BOLD}{text}{PLAIN}", flush=True)


def say(name: str, text: str) -> None:
    print(f"  {name:<26}{text}", flush=True)


def judge(name: str, text: str, good: bool) -> None:
    """Prints one observation, and whether it is as expected."""
    say(name, f"{GREEN}✓{PLAIN} {text}" if good else f"{RED}✗ {text}{PLAIN}")
    if not good:
        failures.append(f"{name}: {text}")


def ask_check_service(lab: Lab, *options: str) -> str:
    """The exit-check service's answer to a plain curl on the host, or the error."""
    result = lab.host.run(["curl", "-sS", "--max-time", "8", *options, at.CHECK_URL], user=lab.host.user)
    return result.stdout.strip() if result.returncode == 0 else f"refused: {result.stderr.strip().splitlines()[-1]}"


def show_mode(lab: Lab, product: Product, mode: str, before: dict[str, str]) -> None:
    heading(f"{mode.capitalize()} mode: connecting")
    product.run_verb("set", "strictMode", "true" if mode == "strict" else "false", check=True)
    started = time.monotonic()
    with product.session(echo=lambda line: print(f"  {DIM}{line}{PLAIN}", flush=True)) as session:
        state = session.wait_phase("connected")
        say("connected after", f"{time.monotonic() - started:.1f} s")
        state = session.wait(lambda s: not s["isChecking"] and s["torVerified"] is not None)

        heading(f"{mode.capitalize()} mode: what the world sees")
        exits = lab.tor.exits
        exit_ip = state["exitIP"] or "no answer"
        judge(
            "exit through Tor",
            f"{exit_ip} ({exits.get(exit_ip, '?').upper()}), verified by the check service: {state['torVerified']}",
            state["torVerified"] is True and exit_ip in exits,
        )
        direct = ask_check_service(lab, "--noproxy", "*", "-4")
        if mode == "strict":
            judge("a direct connection", direct, direct.startswith("refused"))
            judge("leak test", json.dumps(state["leakStatus"]), state["leakStatus"] == "blocked")
        else:
            judge("a direct connection", f"{direct} (proxy mode does not cover it, and says so)", at.HOST_ADDRESS in direct)
            judge(
                "leak test",
                json.dumps(state["leakStatus"]),
                isinstance(state["leakStatus"], dict) and "exposed" in state["leakStatus"],
            )
        through = ask_check_service(lab, "--proxy", "socks5h://127.0.0.1:9050")
        judge("a proxied connection", through, '"IsTor": true' in through)
        judge("names are looked up", json.dumps(state["dnsStatus"]), state["dnsStatus"] == "throughTor")

        heading(f"{mode.capitalize()} mode: Tor's circuits")
        print(product.run_verb("circuits", check=True).stdout.rstrip())

        heading(f"{mode.capitalize()} mode: restoring")
        started = time.monotonic()
        status = session.interrupt()
        judge("Ctrl-C restored after", f"{time.monotonic() - started:.1f} s, exit status {status}", status == 0)
    changed = difference(before, lab.host.snapshot())
    judge(
        "before and after",
        "they differ:" if changed else "equal: firewall, DNS, routes, mounts, listening ports, processes, files",
        not changed,
    )
    if changed:
        print(changed)


def draw_windows() -> None:
    """Draws every state of every window, as pictures and as one page that shows them."""
    heading("Pictures of every window and state")
    folder = PROJECT / "build" / "demo"
    shutil.rmtree(folder, ignore_errors=True)
    with Moving(lambda: f"  {len(list(folder.glob('*.png')))} pictures drawn"):
        drawn = subprocess.run([PROJECT / "build/dev/tests/ui/veldmark-pictures", folder], capture_output=True, text=True)
    pictures = sorted(folder.glob("*.png"))
    judge(
        "drawn",
        f"{len(pictures)} pictures; open {folder.relative_to(PROJECT)}/index.html",
        drawn.returncode == 0 and len(pictures) > 0,
    )
    figures = "\n".join(
        f'<figure><img src="{one.name}" loading="lazy"><figcaption>{one.stem}</figcaption></figure>' for one in pictures
    )
    (folder / "index.html").write_text(PAGE.format(figures=figures))


def show_network() -> None:
    """Raises LabUnavailable when no lab can run."""
    steps: list[str] = []
    heading("A private Tor network of real tor processes")
    lab = Lab(on_step=lambda name: steps.append(name))
    with contextlib.ExitStack() as held:
        with Moving(lambda: f"  {steps[-1] if steps else 'beginning'}"):
            held.enter_context(lab)
        say(
            "up after",
            f"{lab.timings['total']:.1f} s: {len(at.AUTHORITIES)} authorities, {len(at.EXITS)} exits, "
            f"{len(at.MIDDLES)} middle nodes, {len(at.BRIDGES)} bridges",
        )
        product = Product(lab, PROJECT / "build" / "bin")
        before = lab.host.snapshot()
        direct = ask_check_service(lab, "-4")
        judge("without Veldmark", direct, at.HOST_ADDRESS in direct)
        for mode in ("strict", "proxy"):
            show_mode(lab, product, mode, before)


def main() -> int:
    parts = sys.argv[1:] or ["network", "pictures"]
    try:
        if "network" in parts:
            show_network()
    except LabUnavailable as error:
        print(error, file=sys.stderr)
        return SKIPPED
    if "pictures" in parts:
        draw_windows()
    heading("Everything went as it should." if not failures else f"{len(failures)} things did not go as they should:")
    for failure in failures:
        print(f"  {failure}")
    return 1 if failures else 0


def end_on_signal(number: int, _) -> None:
    raise SystemExit(128 + number)


if __name__ == "__main__":
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, end_on_signal)
    sys.exit(main())

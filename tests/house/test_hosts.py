#!/usr/bin/python3
"""No script names a public host: packages come from the machine's own apt sources, and tests use reserved names.

usage: test_hosts.py PROJECT

It checks build.sh, tools, .ci, CMake's files and the scripts of tests, bench, fuzz and packaging.
"""

import ipaddress
import re
import sys
from pathlib import Path

URL = re.compile(r"\b(?:https?|ftp|rsync|git|ssh)://(?:[^/\s\"'@]*@)?([A-Za-z0-9.-]+)")
# A registry, also without a scheme.
REGISTRY = re.compile(
    r"\b(?:[\w-]+\.)*(?:debian\.(?:org|net)|ubuntu\.com|pypi\.org|pythonhosted\.org|npmjs\.(?:org|com)|crates\.io|rubygems\.org|"
    r"golang\.org|github\.com|githubusercontent\.com|gitlab\.com|docker\.io|quay\.io|ghcr\.io|dl\.google\.com)\b"
)
RESERVED = re.compile(r"(?:^|\.)(?:test|example|invalid|localhost|example\.(?:org|com|net))$")
# Hosts that a script may name, by the end of the script's path: the private network answers for them, or they get no request.
KNOWN = {
    "tests/lab/veldlab/lab.py": {"check.torproject.org"},
    "tests/helper/test_proxy.py": {"proxy.corp"},
    "tests/helper/test_account.py": {"192.168.77.30"},
    "tests/helper_mac/real_mac.sh": {"1.1.1.1"},  # on a Mac, by hand: the request must be refused
    "tests/package/test_files.py": {"www.w3.org"},  # a name space of XML
}
SUFFIXES = (".py", ".sh", ".cmake", ".txt", "")
FOLDERS = ("tools", ".ci", "cmake", "tests", "bench", "fuzz", "packaging")


def is_reserved(host: str) -> bool:
    try:
        address = ipaddress.ip_address(host)
        return address.is_loopback or any(
            address in ipaddress.ip_network(block) for block in ("192.0.2.0/24", "198.51.100.0/24", "203.0.113.0/24")
        )
    except ValueError:
        return bool(RESERVED.search(host.lower())) or "." not in host.strip(".")


def offences(text: str, known: set[str] = frozenset()) -> list[str]:
    found = [host for host in URL.findall(text) if not is_reserved(host)] + [match[0] for match in REGISTRY.finditer(text)]
    return sorted({host for host in found if host not in known})


def scripts(project: Path) -> list[Path]:
    listed = [project / "build.sh", *project.glob("**/CMakeLists.txt")]
    for folder in FOLDERS:
        listed += (path for path in (project / folder).rglob("*") if path.suffix in SUFFIXES)
    own = Path(__file__).resolve()
    return sorted(
        path
        for path in set(listed)
        if path.is_file()
        and path.resolve() != own
        and "build" not in path.relative_to(project).parts[:-1]
        and "golden" not in path.parts
    )


def main() -> int:
    for line, wanted in (
        ("deb http://deb.debian.org/debian bookworm main", ["deb.debian.org"]),
        ("MIRROR=ftp.de.debian.org", ["ftp.de.debian.org"]),
        ("curl https://user@files.example.io/x", ["files.example.io"]),
        ("ping http://8.8.8.8/", ["8.8.8.8"]),
        ("http://mirror.example.test/ http://registry.test:8099/ http://127.0.0.1/ https://203.0.113.7/ http://a", []),
    ):
        assert offences(line) == wanted, (line, offences(line))
    problems, looked = [], scripts(project := Path(sys.argv[1]).resolve())
    for path in looked:
        name = str(path.relative_to(project))
        try:
            text = path.read_text(encoding="utf-8")
        except UnicodeDecodeError:  # no script
            continue
        if name.startswith("packaging/debian/copyright"):  # its first line names the format by an address
            text = text.partition("\n")[2]
        problems += (f"{name} names the public host {host}" for host in offences(text, KNOWN.get(name, frozenset())))
    print(*problems, sep="\n")
    if len(looked) < 100:
        print(f"only {len(looked)} scripts were found")
    return 1 if problems or len(looked) < 100 else 0


if __name__ == "__main__":
    sys.exit(main())

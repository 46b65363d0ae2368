"""Makes a later version of a Debian package, for an upgrade."""

import re
import subprocess
from pathlib import Path

HELPER = "/usr/share/veldmark/veldmark-helper.sh"


def newer(package: Path, folder: Path) -> Path:
    """The same package as a later version with a different helper."""
    tree = folder / "newer"
    subprocess.run(["dpkg-deb", "--raw-extract", package, tree], check=True)
    control = tree / "DEBIAN/control"
    control.write_text(re.sub(r"(?m)^Version: (.*)$", r"Version: \1+later", control.read_text()))
    helper = tree / HELPER.lstrip("/")
    helper.write_text(helper.read_text() + "# A later version.\n")
    made = folder / "newer.deb"
    subprocess.run(["dpkg-deb", "--build", "--root-owner-group", tree, made], check=True, capture_output=True)
    return made

"""What scripts build before they run it; with the packages for that."""

import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent


def program(given, *groups):
    """The given one or a new release build; with further groups of packages for its desktop."""
    subprocess.run([ROOT / "scripts/packages", "run", "desktop", *groups, *([] if given else ["build"])],
                   check=True)
    if given:
        return pathlib.Path(given).resolve()
    subprocess.run([ROOT / "scripts/build", "release", "ravelo"], check=True)
    return ROOT / "build/release/ravelo"


def hand():
    """What presses keys and buttons on Wayland."""
    subprocess.run([ROOT / "scripts/build", "dev", "virtual_hand"], check=True)
    return ROOT / "build/dev/tools/virtual_hand/virtual_hand"

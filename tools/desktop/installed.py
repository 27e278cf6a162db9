"""GLib, installed if it is missing: scripts import it before they can do that themselves."""

import pathlib
import subprocess

try:
    from gi.repository import Gio, GLib
except ImportError:
    packages = pathlib.Path(__file__).resolve().parents[2] / "scripts/packages"
    subprocess.run([packages, "desktop"], check=True)
    from gi.repository import Gio, GLib  # noqa: F401

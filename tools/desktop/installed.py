"""GLib, installed if it is missing: scripts import it before they can do that themselves."""

import pathlib
import subprocess

subprocess.run([pathlib.Path(__file__).resolve().parents[2] / "scripts/packages", "desktop"], check=True)

from gi.repository import Gio, GLib  # noqa: E402, F401

"""What tests of the whole program on a private desktop share. Makes tools/desktop importable.

The build passes RAVELO (the program), QT_PEER (a Qt program to copy from) and SELECTION_OWNER (a
clipboard owner that can misbehave).
"""

import json
import os
import pathlib
import signal
import subprocess
import sys
import time
import unittest

from gi.repository import Gio, GLib

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools/desktop"))
from desktop import Desktop, Ravelo, wait_for  # noqa: E402

SEARCH, FIRST_ROW, ROW = 220, 300, 40  # Centres from the top; the row height.

SLOWER = int(os.environ.get("RAVELO_SLOWER", 1))  # Time factor for builds with sanitizers.
STALL_LIMIT = 0.05 * SLOWER  # Max. seconds without an answer from the main thread.


def too_long(*_):
    raise TimeoutError("the test waits for something that does not come")


class ProgramCase(unittest.TestCase):
    def setUp(self):
        signal.signal(signal.SIGALRM, too_long)
        signal.alarm(120)
        self.addCleanup(signal.alarm, 0)
        self.desktop = self.enterContext(Desktop())
        self.ravelo = Ravelo(self.desktop, os.environ["RAVELO"])

    def tearDown(self):
        self.assertEqual(self.ravelo.complaints(), [], "warnings by the program")

    def qt(self, *arguments):
        return self.desktop.peer(os.environ["QT_PEER"], *arguments)

    def drag_out(self, start, to):
        """Drags something out of the panel and lets go once the target has accepted it."""
        self.desktop.drag(start, to)
        wait_for(lambda: len(self.desktop.run("xdotool", "search", "--onlyvisible", "--pid",
                                              self.ravelo.process.pid).split()) > 1,
                 "the picture at the pointer")
        self.desktop.move(to[0] + 1, to[1])  # Targets learn of a drag by the next motion.
        time.sleep(0.5)
        self.desktop.release()

    def copy_and_wait(self, *texts):
        for text in texts:
            self.desktop.copy_text(text)
            self.wait_for_texts(text)

    def max_stall(self, seconds):
        """Calls the program's main thread repeatedly; returns the maximum response time."""
        bus = self.desktop.bus()
        longest, end = 0, time.monotonic() + seconds
        while time.monotonic() < end:
            begin = time.monotonic()
            bus.call_sync("org.ravelo.Ravelo", "/org/ravelo/Ravelo", "org.freedesktop.Application",
                          "Activate", GLib.Variant("(a{sv})", ({},)), None,
                          Gio.DBusCallFlags.NONE, 5000, None)
            longest = max(longest, time.monotonic() - begin)
        bus.close_sync(None)
        return longest

    def wait_for_texts(self, *texts):
        """Until these are the newest clips on disk."""
        wait_for(lambda: self.ravelo.texts()[:len(texts)] == list(texts),
                 f"{texts} as the newest clips in store.json")

    def toggle(self):
        self.assertEqual(self.ravelo.call("--toggle"), (0, ""))
        panel = wait_for(self.ravelo.is_open, "the open panel")
        wait_for(lambda: self.desktop.focused_window() == str(panel.window), "the keyboard in it")

    def press(self, *keys):
        for key in keys:
            self.desktop.key(key)

    def stop(self):
        self.ravelo.process.terminate()
        self.wait_for_end()

    def wait_for_end(self):
        wait_for(self.ravelo.has_ended, "the end of the program")


class AssistiveCase:
    """For a desktop with `provide_assistance`."""

    def accessible_nodes(self):
        """The visible ones."""
        peer = pathlib.Path(__file__).with_name("atspi_peer.py")
        lines = self.desktop.run("/usr/bin/python3", peer, "Ravelo").splitlines()
        return [node for node in map(json.loads, lines) if node["showing"]]

    def act(self, name):
        """Presses the visible control with this name."""
        peer = pathlib.Path(__file__).with_name("atspi_peer.py")
        wait_for(lambda: subprocess.run(
            ["/usr/bin/python3", peer, "Ravelo", name], env=self.desktop.env, check=False,
            stderr=subprocess.DEVNULL).returncode == 0, f"the control {name!r}")

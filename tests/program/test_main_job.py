"""Tests of the whole program on a private desktop.

The build passes RAVELO (the program), QT_PEER (a Qt program to copy from) and SELECTION_OWNER (a
clipboard owner that can misbehave).
"""

import json
import os
import pathlib
import resource
import signal
import statistics
import subprocess
import sys
import time
import unittest
import urllib.parse

from gi.repository import Gio, GLib

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools/desktop"))
from desktop import WIDTH, Desktop, Ravelo, wait_for  # noqa: E402
from tray_host import TrayHost  # noqa: E402

CAPTURE_LIMIT = 0.9  # Seconds from the copy to store.json: max. one poll and one debounce.
SAVE_DELAY = 0.4
TOP_BAR, SEARCH, FIRST_ROW, ROW = 44, 220, 300, 40  # Centres from the top; the row height.
NIGHT_SHIFT_RIGHT, GEAR_RIGHT = 130, 50  # Centres from the right.

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


class Capture(ProgramCase):
    def test_what_other_programs_copy_is_on_disk_in_time(self):
        xclip, gtk = self.desktop.copy_text, self.desktop.gtk
        link = "https://www.debian.org/"
        copies = [
            ("text by xclip", lambda: xclip("from xclip, ✓"), "text", "from xclip, ✓"),
            ("link by xclip", lambda: xclip(link), "url", link),
            ("text by GTK", lambda: gtk("text", "from GTK"), "text", "from GTK"),
            ("link by GTK", lambda: gtk("text", link + "gtk"), "url", link + "gtk"),
            ("image by GTK", lambda: gtk("image", "c04020ff"), "image", "Image"),
            ("text by Qt", lambda: self.qt("--text", "from Qt"), "text", "from Qt"),
            ("link by Qt", lambda: self.qt("--text", link + "qt"), "url", link + "qt"),
            ("image by Qt", lambda: self.qt("--image", "#2040c0"), "image", "Image"),
            ("long text", lambda: xclip("long " * 60_000), "text", ("long " * 60_000).strip()),
            ("text and image", lambda: self.qt("--text", "both", "--image", "#2040c0"), "text",
             "both"),
        ]
        self.ravelo.start()
        seconds = []
        for number, (name, copy, kind, text) in enumerate(copies, 1):
            with self.subTest(name):
                copy()
                copied = time.monotonic()
                wait_for(lambda n=number: len(self.ravelo.clips()) == n, "one clip more")
                seconds.append(time.monotonic() - copied)
                self.assertEqual(self.ravelo.clips()[0], (kind, text))
        self.assertLess(statistics.median(seconds), CAPTURE_LIMIT, "seconds to store.json")

    def test_images_are_kept_as_png_files(self):
        self.ravelo.start()
        self.desktop.gtk("image", "c04020ff")
        self.wait_for_texts("Image")
        name = self.ravelo.store()["clips"][0]["imageFileName"]
        image = self.ravelo.folder / "clips" / name
        self.assertEqual(self.desktop.run("identify", "-format", "%m %w %h %[pixel:p{9,9}]", image),
                         "PNG 64 48 srgb(192,64,32)")

    def test_what_is_not_to_be_captured(self):
        """Each is followed by a text that must directly follow the previous one."""
        nothing = [
            ("the same text again", lambda: self.desktop.copy_text("before 0")),
            ("blanks", lambda: self.desktop.copy_text(" \t\n \n")),
            ("a marked password", lambda: self.qt("--text", "tr0ub4dor&3", "--secret")),
            ("a marked image", lambda: self.qt("--image", "#ffffff", "--secret")),
        ]
        self.desktop.copy_text("on the clipboard before the start")
        self.ravelo.start()
        self.copy_and_wait("before 0")
        self.assertEqual(self.ravelo.texts(), ["before 0"])
        for number, (name, copy) in enumerate(nothing, 1):
            with self.subTest(name):
                copy()
                self.copy_and_wait(f"before {number}")
                self.assertEqual(self.ravelo.texts()[1], f"before {number - 1}")
        self.stop()
        for path in filter(os.path.isfile, self.desktop.home.rglob("*")):
            content = path.read_bytes()
            for encoding in ("utf-8", "utf-16-le"):
                self.assertNotIn("tr0ub4dor".encode(encoding), content, f"password in {path}")

    def start_and_settle(self):
        """Right after the start the program is busy building its panel."""
        self.ravelo.start()
        self.copy_and_wait("the first")

    def test_a_quick_series_is_kept_whole_and_in_order_up_to_the_limit(self):
        self.start_and_settle()
        for count, kept, interval in ((20, 20, 25), (61, 60, 60)):
            with self.subTest(count=count):
                self.qt("--series", count, "--interval", SLOWER * interval)
                self.wait_for_texts(f"text {count}")
                self.assertLessEqual(len(self.ravelo.texts()), 60, "the limit")
                self.assertEqual(self.ravelo.texts()[:kept],
                                 [f"text {n}" for n in range(count, count - kept, -1)])

    def test_twenty_owners_one_after_the_other(self):
        self.start_and_settle()
        for number in range(20):
            self.desktop.copy_text(f"owner {number}")
            time.sleep(0.025 * SLOWER)  # This pace is the test.
        self.wait_for_texts("owner 19")
        self.assertEqual(self.ravelo.texts()[:20], [f"owner {n}" for n in range(19, -1, -1)])


class Survival(ProgramCase):
    def test_a_crash_one_second_after_a_copy_loses_nothing(self):
        self.ravelo.start()
        self.copy_and_wait("first")
        self.desktop.copy_text("second")
        time.sleep(1)  # Within this second it must be saved.
        self.ravelo.process.kill()
        self.wait_for_end()
        self.assertEqual(self.ravelo.texts(), ["second", "first"])
        self.ravelo.start()
        self.copy_and_wait("third")
        self.assertEqual(self.ravelo.texts(), ["third", "second", "first"])

    def test_a_crash_leaves_no_memory_behind_unless_asked_to(self):
        limits = resource.getrlimit(resource.RLIMIT_CORE)
        self.addCleanup(resource.setrlimit, resource.RLIMIT_CORE, limits)
        resource.setrlimit(resource.RLIMIT_CORE, (limits[1], limits[1]))
        pattern = pathlib.Path("/proc/sys/kernel/core_pattern").read_text()
        can = SLOWER == 1 and limits[1] != 0 and not pattern.startswith("|")  # Not piped to a program.
        asked = {"RAVELO_CORE_DUMPS": "1"} if can else {}
        for environment, expected in ({}, os.CLD_KILLED), (asked, os.CLD_DUMPED):
            if environment or expected == os.CLD_KILLED:
                self.desktop.env |= environment
                self.ravelo.start()
                self.ravelo.process.send_signal(signal.SIGQUIT)
                end = os.waitid(os.P_PID, self.ravelo.process.pid, os.WEXITED | os.WNOWAIT)
                self.assertEqual(end.si_code, expected, f"the kind of end with {environment}")
                self.wait_for_end()

    def test_corrupt_preferences_are_moved_aside_and_are_no_first_start(self):
        torn = '{"onboarded": true, "did'
        self.desktop.preferences.write_text(torn)
        self.ravelo.start()
        aside = self.desktop.preferences.with_name("preferences.json.unreadable")
        wait_for(lambda: aside.exists() and aside.read_text() == torn, f"{torn} in {aside}")
        self.copy_and_wait("after")
        self.assertFalse((self.desktop.home / "config/autostart/ravelo.desktop").exists())
        self.assertTrue(self.ravelo.preferences()["onboarded"])
        titles = [snippet["title"] for snippet in self.ravelo.store()["snippets"]]
        self.assertEqual(len(titles), 8, "the links of a first start are not added again")

    def test_a_ravelo_that_was_taken_over_saves_nothing_more(self):
        self.ravelo.start()
        self.copy_and_wait("before")
        lock = self.ravelo.folder / "lock"
        self.assertEqual(lock.stat().st_mode & 0o777, 0o600)
        lock.unlink()
        lock.write_text("7\nravelo\nfar.example\nanother machine\nboot\n")
        self.desktop.copy_text("not ours to save")
        time.sleep(SAVE_DELAY + 1)
        self.stop()
        self.assertEqual(self.ravelo.texts(), ["before"])
        self.assertTrue(lock.exists(), "the lock of the one that took over")
        code, output = self.ravelo.call()
        self.assertEqual((code, "far.example (process 7)" in output), (1, True), output)
        self.ravelo.start("--take-over")
        self.copy_and_wait("after")
        self.assertNotIn("far.example", lock.read_text())

    def test_every_way_to_end_keeps_what_was_just_copied(self):
        ends = {
            "SIGTERM": lambda: self.ravelo.process.send_signal(signal.SIGTERM),
            "SIGINT": lambda: self.ravelo.process.send_signal(signal.SIGINT),
            "SIGHUP": lambda: self.ravelo.process.send_signal(signal.SIGHUP),
            "--quit": lambda: self.assertEqual(self.ravelo.call("--quit")[0], 0),
            "X server exits": lambda: self.desktop.server.kill(),  # Must be last.
        }
        for name, end in ends.items():
            with self.subTest(name):
                self.ravelo.start()
                self.copy_and_wait(f"before {name}")
                self.desktop.copy_text(name)
                time.sleep(SAVE_DELAY / 2)  # Seen, but not due to be saved.
                self.assertNotIn(name, self.ravelo.texts(), "saved too early for this test")
                end()
                self.wait_for_end()
                self.assertEqual(self.ravelo.texts()[:1], [name])


class Panel(ProgramCase):
    def setUp(self):
        super().setUp()
        self.ravelo.start()

    def test_the_pointer_at_the_top_opens_and_a_row_gives_its_text_back(self):
        self.copy_and_wait("older", "newer")
        panel = self.ravelo.open()
        middle = panel.x + panel.width // 2
        self.desktop.click(middle, FIRST_ROW + ROW)
        wait_for(lambda: self.desktop.paste_text() == "older", "the second row's text to paste")
        self.copy_and_wait("next")
        self.assertEqual(self.ravelo.texts(), ["next", "newer", "older"], "no clip of its own copy")

    def test_what_closes_it(self):
        ways = {
            "a click beside it": lambda panel: self.desktop.click(panel.x - 20, 300),
            "a click far away": lambda panel: self.desktop.click(panel.x - 200, 800),
            "Escape": self.click_into_the_search_and_escape,
        }
        for name, close in ways.items():
            with self.subTest(name):
                close(self.ravelo.open())
                wait_for(self.ravelo.is_collapsed, "the handle, 200 x 12, at the top, centred")

    def click_into_the_search_and_escape(self, panel):
        self.desktop.click(panel.x + 300, SEARCH)
        wait_for(lambda: self.desktop.focused_window() == str(panel.window),
                 "the keyboard in the panel")
        self.desktop.key("Escape")

    def test_the_keyboard_is_not_lost_with_a_question(self):
        self.copy_and_wait("older", "newer")
        panel = self.ravelo.open()
        self.desktop.click(panel.x + panel.width - 48, SEARCH)  # The trash.
        wait_for(lambda: self.desktop.focused_window() == str(panel.window),
                 "the keyboard in the panel")
        self.desktop.key("Escape")
        self.desktop.type("older")
        self.desktop.key("Return")
        wait_for(self.ravelo.is_collapsed, "the panel to close at Return")
        self.assertEqual(self.desktop.paste_text(), "older")

        panel = self.ravelo.open()
        self.desktop.click(panel.x + panel.width - 48, SEARCH)
        self.desktop.click(panel.x - 200, 800)  # It closes with the question.
        wait_for(self.ravelo.is_collapsed, "the panel to close at a click elsewhere")
        self.ravelo.call("--toggle")
        wait_for(lambda: self.desktop.focused_window() == str(panel.window),
                 "the keyboard in the panel")
        self.desktop.type("newer")
        self.desktop.key("Return")
        wait_for(self.ravelo.is_collapsed, "the panel to close at Return")
        self.assertEqual(self.desktop.paste_text(), "newer")

    def test_opening_leaves_the_focus_where_the_user_types(self):
        window = self.desktop.gtk("window")
        focus = self.desktop.focused_window()
        panel = self.ravelo.open()
        self.desktop.move(panel.x + 200, 400)
        self.desktop.type("a")
        self.assertEqual(window.stdout.readline().strip(), "a", "typed into the other window")
        self.assertEqual(self.desktop.focused_window(), focus)

    def test_the_night_shift_runs_in_the_environment_of_the_session(self):
        script = self.desktop.home / ".qvx/bin/turno-noite"
        script.parent.mkdir(parents=True)
        script.write_text("#!/bin/sh\nenv -0 >part && mv part environment\n")
        script.chmod(0o700)
        panel = self.ravelo.open()
        self.desktop.click(panel.x + panel.width - NIGHT_SHIFT_RIGHT, TOP_BAR)
        environment = self.desktop.home / "environment"
        wait_for(environment.exists, "what the script leaves")
        of_qt = {item for item in environment.read_text().split("\0") if item.startswith("QT_")}
        self.assertEqual(of_qt, {f"{name}={value}" for name, value in self.desktop.env.items()
                                 if name.startswith("QT_")}, "what the program sets for itself")


class Keyboard(ProgramCase):
    def setUp(self):
        super().setUp()
        # A stand-in for the browser.
        browser = self.desktop.home / "bin" / "xdg-open"
        browser.parent.mkdir()
        browser.write_text(f'#!/bin/sh\necho "$1" >> {self.desktop.home}/opened\n')
        browser.chmod(0o700)
        self.desktop.env["PATH"] = f"{browser.parent}:{self.desktop.env['PATH']}"
        self.window = self.desktop.gtk("window")
        self.focus = self.desktop.focused_window()
        self.ravelo.start()
        self.copy_and_wait("fourth", "https://example.org/x", "second", "first")

    def closed_with(self, text):
        wait_for(self.ravelo.is_collapsed, "the panel to close")
        wait_for(lambda: self.desktop.focused_window() == self.focus, "the keyboard back")
        self.assertEqual(self.desktop.paste_text(), text)

    def test_clips_links_and_snippets_by_key(self):
        self.toggle()
        self.press("Down", "Return")
        self.closed_with("second")
        self.toggle()
        self.press("Down", "Down", "ctrl+p")
        wait_for(lambda: self.ravelo.texts()[0] == "https://example.org/x", "the link pinned")
        self.press("Up", "Up", "Up", "ctrl+Return")
        opened = self.desktop.home / "opened"
        wait_for(lambda: opened.exists() and opened.read_text() == "https://example.org/x\n",
                 "the link in the browser")
        wait_for(self.ravelo.is_collapsed, "the panel to close")

        self.toggle()
        self.press("Tab", "Tab", "Tab", "Right", "Right", "Delete", "Right", "Return")
        wait_for(lambda: "Booking confirmed" not in
                 [one["title"] for one in self.ravelo.store()["snippets"]], "the snippet removed")
        self.press("F2", "ctrl+a")
        self.desktop.type("edited")
        self.press("ctrl+Return")
        wait_for(lambda: self.ravelo.store()["snippets"][2]["body"] == "edited", "the snippet edited")
        self.press("Escape")
        self.closed_with("second")


class Pasting(ProgramCase):
    def setUp(self):
        super().setUp()
        self.ravelo.start()
        wait_for(self.ravelo.is_collapsed, "the handle")
        self.field = self.desktop.gtk("window")
        self.copy_and_wait("to paste, ✓")

    def paste(self, key="shift+Return"):
        self.toggle()
        self.desktop.key(key)
        wait_for(self.ravelo.is_collapsed, "the closed panel")

    def field_text(self):
        """Of the window's title."""
        return self.desktop.title(self.desktop.window_of(self.field).window)

    def test_into_a_text_field(self):
        self.paste()
        wait_for(lambda: self.field_text() == "to paste, ✓", "the text in the field")
        self.paste("ctrl+shift+1")
        wait_for(lambda: self.field_text() == "to paste, ✓" * 2, "the text once more")
        self.paste("Return")
        self.desktop.key("x")
        wait_for(lambda: self.field_text() == "to paste, ✓" * 2 + "x", "no more text")

    def test_into_a_terminal_after_a_question_if_there_are_several_lines(self):
        file = self.desktop.home / "lines"
        self.desktop.spawn("xterm", "-u8", "-e", "sh", "-c", f"stty -icanon; cat > {file}")
        field = self.desktop.focused_window()
        wait_for(lambda: file.exists() and self.desktop.focused_window() != field, "the terminal")
        terminal = self.desktop.focused_window()
        self.paste()
        wait_for(lambda: file.read_text() == "to paste, ✓", "the text in the terminal")
        self.copy_and_wait("ls\nrm")
        self.toggle()
        self.desktop.key("shift+Return")
        self.desktop.key("Return")  # No.
        self.desktop.key("Escape")
        wait_for(self.ravelo.is_collapsed, "the closed panel")
        wait_for(lambda: self.desktop.focused_window() == terminal, "the focus back")
        self.desktop.key("x")
        wait_for(lambda: file.read_text() == "to paste, ✓x", "nothing pasted without a yes")
        self.toggle()
        self.desktop.key("shift+Return")
        self.desktop.key("Tab")
        self.desktop.key("Return")
        wait_for(lambda: file.read_text() == "to paste, ✓xls\nrm", "the lines after a yes")

    def test_a_shortcut_opens_and_closes(self):
        self.ravelo.call("--quit")
        wait_for(self.ravelo.has_ended, "the end")
        preferences = self.ravelo.preferences()
        path = self.desktop.preferences
        path.write_text(json.dumps(preferences | {"shortcut": "Super+V"}))
        self.ravelo.start()
        wait_for(self.ravelo.is_collapsed, "the handle")
        for state in (self.ravelo.is_open, self.ravelo.is_collapsed, self.ravelo.is_open):
            self.desktop.key("super+v")
            wait_for(state, "the panel opened or closed by the key")


class AssistiveCase:
    """With the accessibility bus."""

    def provide_assistance(self):
        del self.desktop.env["NO_AT_BRIDGE"]
        self.desktop.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        launcher = self.desktop.spawn("/usr/libexec/at-spi-bus-launcher", "--launch-immediately",
                                      stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                      start_new_session=True)
        self.addCleanup(os.killpg, launcher.pid, signal.SIGKILL)  # It has a bus of its own.
        wait_for(lambda: "org.a11y.Bus" in self.desktop.run(
            "gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path", "/",
            "--method", "org.freedesktop.DBus.ListNames"), "the launcher on the bus")

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


class Assistive(AssistiveCase, ProgramCase):
    def test_what_a_screen_reader_gets(self):
        self.provide_assistance()
        self.ravelo.start()
        self.copy_and_wait("a clip")
        self.ravelo.call("--toggle")
        wait_for(self.ravelo.is_open, "the open panel")
        nodes = wait_for(lambda: [n for n in self.accessible_nodes() if n["focused"]] and self.accessible_nodes(),
                         "what has the focus")
        unnamed = [node for node in nodes if not node["name"] and node["role"] != "page tab list"]
        self.assertEqual(unnamed, [], "nodes without a name")
        self.assertEqual([node["name"] for node in nodes if node["focused"]], ["Search clipboard…"])
        seen = {(node["role"], node["name"], "Press" in node["actions"]) for node in nodes}
        for wanted in (("page tab", "Notes", True), ("push button", "Clear history", True),
                       ("push button", "First reply to lead", True),
                       ("push button", "New snippet", True), ("list item", "a clip", True),
                       ("list", "Clipboard history", False)):
            self.assertIn(wanted, seen)


    def named(self, *wanted):
        """The visible nodes, once these roles and names are among them; all of them have names."""
        def there():
            nodes = self.accessible_nodes()
            return nodes if set(wanted) <= {(node["role"], node["name"]) for node in nodes} else None

        nodes = wait_for(there, lambda: f"{wanted}, not "
                         f"{[(node['role'], node['name']) for node in self.accessible_nodes()]}")
        self.assertEqual([node for node in nodes if not node["name"] and node["role"] != "page tab list"], [],
                         "nodes without a name")
        return nodes

    def focused(self):
        return [(node["role"], node["name"]) for node in self.accessible_nodes() if node["focused"]]

    def walk(self, *names):
        """Tab reaches these one after the other."""
        for name in names:
            self.press("Tab")
            wait_for(lambda n=name: [one for _, one in self.focused()][-1:] == [n],
                     lambda n=name: f"the focus on {n!r}, not {self.focused()}")

    def open_with_clips(self):
        self.provide_assistance()
        self.ravelo.start()
        self.copy_and_wait("older", "a clip")
        self.toggle()

    def test_preview_and_editor_have_names_and_are_reached_by_key(self):
        self.open_with_clips()
        self.press("shift+space")
        self.named(("dialog", "Preview"), ("text", "Text"))
        self.press("Escape", "F2")
        self.named(("dialog", "Edit clip"), ("push button", "Cancel"), ("push button", "Copy"))
        self.walk("Cancel", "Copy", "Text")

    def test_chosen_clips_notes_and_sketch_have_names(self):
        self.open_with_clips()
        self.press("shift+Down")
        self.named(("tool bar", "2 clips selected"), ("push button", "Clear selection"),
                   ("push button", "Delete"), ("push button", "Copy 2"))
        self.press("Escape", "ctrl+Tab")
        self.named(("push button", "Second note"), ("push button", "Sketch pad"))
        self.act("Sketch pad")
        tools = ("Pen", "Eraser", "Undo", "Clear", "Copy, or drag it out")
        self.named(("canvas", "Sketch"), *(("push button", tool) for tool in tools[2:]))


class Windows(AssistiveCase, ProgramCase):
    SETUP, SETTINGS = "Ravelo Setup", "Ravelo Settings"

    def expect_window(self, title):
        window = wait_for(lambda: self.ravelo.window(title), f"the window {title}")
        wait_for(lambda: self.desktop.focused_window() == str(window.window), "the keyboard in it")
        self.assertEqual(self.desktop.managed_windows(), [title], "what the taskbar lists")
        return window

    def close_by_window_manager(self):
        """Its key may get lost while it is still busy with the new window."""
        def closed():
            self.press("alt+F4")
            return self.desktop.managed_windows() == []

        wait_for(closed, "the window manager to close the window")

    def expect_none(self):
        wait_for(lambda: self.desktop.managed_windows() == [], "no window in the taskbar")
        self.assertEqual(self.ravelo.call("timer", "status"), (0, "no timer\n"), "it runs on")

    def test_the_first_start_asks_and_the_second_does_not(self):
        self.provide_assistance()
        self.desktop.preferences.unlink()
        self.ravelo.start()
        setup = self.expect_window(self.SETUP)
        self.assertEqual(setup[3:], (520, 520))
        self.close_by_window_manager()
        self.expect_none()
        self.stop()

        self.ravelo.start()
        setup = self.expect_window(self.SETUP)
        self.desktop.drag((setup.x + 100, setup.y + 20), (setup.x + 160, setup.y + 50))
        self.desktop.run("xdotool", "mouseup", 1)
        # The motion before the window manager grabbed the pointer is not part of the move.
        wait_for(lambda: (now := self.ravelo.window(self.SETUP)) and
                 40 < now.x - setup.x <= 60 and 15 < now.y - setup.y <= 30,
                 lambda: f"the window moved by its strip: {self.ravelo.window(self.SETUP)}")
        self.press("Return", "Tab")
        options = wait_for(lambda: [
            (node["name"], node["description"], node["checked"]) for node in self.accessible_nodes()
            if node["role"] == "radio button"], "the three options")
        self.assertEqual(options, [
            ("Detect automatically", "We found no notch on this display", True),
            ("MacBook with a notch", "", False),
            ("No notch", "iMac, Mac mini, older MacBooks, external display", False)])
        self.press("Down", "Down", "Tab", "Return", "Return")  # The last step offers encryption.
        self.expect_none()
        wait_for(lambda: self.ravelo.preferences().get("onboarded"), "setup done, on disk")
        self.assertEqual(self.ravelo.preferences()["macType"], "none")
        self.stop()

        self.ravelo.start()
        self.expect_none()
        self.assertEqual(self.ravelo.call("--setup"), (0, ""))
        self.expect_window(self.SETUP)

    def test_windows_of_its_own_are_not_elsewhere_and_not_under_the_panel(self):
        self.ravelo.start()
        self.ravelo.open()
        self.assertEqual(self.ravelo.call("--settings"), (0, ""))
        window = self.expect_window(self.SETTINGS)
        self.assertTrue(self.ravelo.is_collapsed(), "it would cover the window")
        beside = window.x + 60, window.y + window.height - 30  # Below the open panel.
        self.desktop.move(*beside)  # Hovering opens once the pointer has been elsewhere,
        self.ravelo.call("status")  # for longer than a jump there and back.
        self.ravelo.open()
        self.desktop.click(*beside)
        self.ravelo.call("status")  # Answered after the press was heard of.
        self.assertTrue(self.ravelo.is_open(), "a press into the settings is none elsewhere")
        self.press("Escape")
        self.expect_none()
        self.assertTrue(self.ravelo.is_open())
        self.desktop.click(*beside)
        wait_for(self.ravelo.is_collapsed, "a press elsewhere to close the panel")

        self.ravelo.open()
        self.assertEqual(self.ravelo.call("--updates"), (0, ""))
        self.expect_window("Ravelo Updates")
        self.assertTrue(self.ravelo.is_collapsed(), "it would cover the window")
        self.press("Return")
        self.expect_none()

    def test_the_settings_come_by_option_and_gear_and_end_nothing(self):
        self.ravelo.process = self.desktop.spawn(self.ravelo.program, "--settings")
        self.assertEqual(self.expect_window(self.SETTINGS)[3:], (460, 600))
        self.close_by_window_manager()
        self.expect_none()
        panel = self.ravelo.open()
        self.desktop.click(panel.x + panel.width - GEAR_RIGHT, TOP_BAR)
        window = self.expect_window(self.SETTINGS)
        self.assertTrue(self.ravelo.is_collapsed(), "the panel makes room")
        self.press(*["Tab"] * 5, "End")
        wait_for(lambda: self.ravelo.preferences().get("panelWidth") == 1100, "1100 on disk")
        self.desktop.click(window.x + window.width - 22, window.y + 20)
        self.expect_none()
        self.assertEqual(self.ravelo.call("--toggle"), (0, ""))
        wait_for(lambda: self.desktop.focused_window() == str(self.ravelo.panel().window),
                 "the keyboard in the panel")
        self.press("ctrl+comma")  # As the menu of the status item says.
        window = self.expect_window(self.SETTINGS)
        self.desktop.click(window.x + window.width - 60, window.y + window.height - 32)
        self.wait_for_end()
        self.assertEqual(self.ravelo.process.returncode, 0)


class Shelf(ProgramCase):
    FILES = ["one a.txt", "zwei ü.txt"]
    FIRST_TILE = (88, 306)  # Its middle, from the panel's corner.

    def setUp(self):
        super().setUp()
        folder = self.desktop.home / "files"
        folder.mkdir()
        self.files = [str(folder / name) for name in self.FILES]
        for file in self.files:
            pathlib.Path(file).write_text("kept")
        self.ravelo.folder.mkdir(parents=True)
        (self.ravelo.folder / "store.json").write_text(json.dumps(
            {"clips": [], "snippets": [], "note": "", "note2": "", "drawing": [],
             "shelfStacks": [self.files]}))
        self.desktop.preferences.write_text('{"lastTab": "Shelf", "onboarded": true}')
        self.ravelo.start()

    def open(self):
        self.desktop.move(WIDTH // 2, 2)
        return wait_for(self.ravelo.is_open_for_files, "the panel with room for files")

    def drop(self, start, to):
        self.desktop.drag(start, to)
        self.desktop.run("xdotool", "mouseup", 1)

    def test_files_are_dragged_out_as_copies_and_stay(self):
        target = self.desktop.gtk("target")
        panel = self.open()
        tile = (panel.x + self.FIRST_TILE[0], self.FIRST_TILE[1])
        addresses = [pathlib.Path(file).as_uri() + "\r\n" for file in self.files]
        for dragged in (addresses[:1], addresses):
            self.desktop.click(*tile)  # Selects the first, and then nothing.
            self.drop(tile, (panel.x + 600, 400))  # Onto the panel itself, which does not care.
            self.drop(tile, (120, 450))
            self.assertEqual(json.loads(target.stdout.readline()), "".join(dragged))
        self.assertEqual(self.ravelo.is_open_for_files(), panel, "a drag is no click elsewhere")
        self.assertEqual(self.ravelo.store()["shelfStacks"], [self.files])
        for file in self.files:
            self.assertEqual(pathlib.Path(file).read_text(), "kept")
        self.desktop.click(120, 450)
        wait_for(self.ravelo.is_collapsed, "the panel to close at a click elsewhere")


class SketchPad(ProgramCase):
    ICON, COPY = 14, 84  # Their middles, from the right edge of the content.

    def setUp(self):
        super().setUp()
        self.desktop.preferences.write_text('{"lastTab": "Notes", "onboarded": true}')
        self.ravelo.start()

    def strokes(self):
        return [stroke["points"] for stroke in self.ravelo.store().get("drawing", [])]

    def test_it_is_drawn_and_dragged_out_as_a_file(self):
        target = self.desktop.gtk("target")
        panel = self.ravelo.open()
        right = panel.x + panel.width - 34
        self.desktop.click(right - self.ICON, 220)
        self.desktop.drag((panel.x + 200, 300), (panel.x + 400, 420))
        self.desktop.run("xdotool", "mouseup", 1)
        wait_for(self.strokes, "the stroke on disk")
        self.assertGreaterEqual(len(self.strokes()[0]), 20, "every place where the pointer was")
        self.desktop.drag((right - self.COPY, 220), (120, 450))
        self.desktop.run("xdotool", "mouseup", 1)
        address = json.loads(target.stdout.readline()).strip()
        self.assertTrue(address.endswith("/Sketch.png"), address)
        file = pathlib.Path(urllib.parse.unquote(urllib.parse.urlparse(address).path))
        self.assertTrue(file.read_bytes().startswith(b"\x89PNG"))
        self.assertEqual(file.parent.stat().st_mode & 0o777, 0o700)


class Pictures(ProgramCase):
    """Only ravelo-decode reads pictures; the program must not load any image library."""

    def decoders(self):
        tasks = pathlib.Path(f"/proc/{self.ravelo.process.pid}/task").iterdir()
        children = " ".join((task / "children").read_text() for task in tasks).split()
        return [child for child in children
                if pathlib.Path(f"/proc/{child}/comm").read_text() == "ravelo-decode\n"]

    def mapped(self):
        lines = pathlib.Path(f"/proc/{self.ravelo.process.pid}/maps").read_text().splitlines()
        return {line.split()[5] for line in lines if len(line.split()) > 5}

    def test_the_program_maps_no_image_library(self):
        self.desktop.env["RAVELO_CORE_DUMPS"] = "1"  # Or only root can read the maps.
        picture = self.desktop.home / "parked.jpg"
        self.desktop.run("convert", "-size", "640x400", "plasma:", picture)
        self.ravelo.start()
        self.desktop.gtk("image", "c04020ff")
        self.wait_for_texts("Image")
        self.assertEqual(self.decoders(), [], "nothing has been shown yet")
        self.toggle()
        wait_for(self.decoders, "ravelo-decode for the clip's picture")
        self.press("Escape")
        wait_for(self.ravelo.is_collapsed, "the panel to close")
        self.assertEqual(self.ravelo.call(picture)[0], 0)
        wait_for(self.ravelo.is_open_for_files, "the panel with the shelf")
        self.assertEqual(self.ravelo.call("--settings")[0], 0)
        wait_for(lambda: self.ravelo.window("Ravelo Settings"), "the settings")
        readers = [path for path in self.mapped() if "/imageformats/" in path or "heif" in path]
        self.assertEqual(readers, [])


class Traces(ProgramCase):
    """docs/privacy.md: files are only where it says, private, and can be erased."""
    KEPT = {"data/Ravelo/store.json", "data/Ravelo/clips/IMAGE.png",
            "config/ravelo/preferences.json", "config/autostart/ravelo.desktop"}

    def files(self):
        """Below the home, without those of the desktop itself."""
        paths = (path.relative_to(self.desktop.home) for path in self.desktop.home.rglob("*")
                 if path.is_file())
        return {str(path) for path in paths if path.parts[0] not in ("runtime", "tmp")}

    def test_nothing_is_left_elsewhere_and_all_can_be_erased(self):
        before = self.files() - self.KEPT
        parked = self.desktop.home / "parked.txt"
        parked.write_text("in the parked file")
        self.ravelo.start()
        self.copy_and_wait("an ordinary text")
        self.desktop.gtk("image", "c04020ff")
        self.wait_for_texts("Image")
        self.assertEqual(self.ravelo.call(parked)[0], 0)
        wait_for(lambda: not self.ravelo.is_collapsed(), "the panel with the shelf")
        self.assertEqual(self.ravelo.call("timer", "start", "25", "a label of the timer")[0], 0)
        self.stop()
        image = self.ravelo.store()["clips"][0]["imageFileName"]
        kept = {name.replace("IMAGE.png", image) for name in self.KEPT}
        self.assertEqual(self.files() - before - {"parked.txt", "ravelo.log"}, kept)
        for name in kept:
            path = self.desktop.home / name
            if not name.endswith(".desktop"):  # Contains only the command.
                self.assertEqual(path.stat().st_mode & 0o077, 0, f"rights of others on {path}")
            for text, where in {"an ordinary text": "store.json", "in the parked file": "",
                                "a label of the timer": ""}.items():
                if text.encode() in path.read_bytes():
                    self.assertEqual(path.name, where, f"{text!r} was kept")


MARKER = "Marker-of-a-secret-text"


class SearchingCase:
    def files_with(self, marker, among=None):
        """All files of the home that contain the text, in any of its usual forms."""
        forms = [marker.encode(), marker.encode("utf-16-le"), marker.encode("utf-16-be")]
        among = among or self.desktop.home
        return [str(path.relative_to(self.desktop.home)) for path in among.rglob("*")
                if path.is_file() and any(form in path.read_bytes() for form in forms)]

    def images(self):
        return list((self.ravelo.folder / "clips").glob("*"))


class Erasing(SearchingCase, ProgramCase):
    """Deletion that is one."""

    def fill(self):
        self.ravelo.start()
        self.copy_and_wait(MARKER)
        self.desktop.gtk("image", "c04020ff")
        self.wait_for_texts("Image", MARKER)
        for name in ("store.json.unreadable", "store.json.AbCdEf", "clips/"
                     "0F8FAD5B-D9CB-469F-A165-70867728950E.png"):
            (self.ravelo.folder / name).write_text(MARKER)
        self.assertEqual(len(self.files_with(MARKER)), 4)

    def expect_nothing(self):
        self.assertEqual(self.files_with(MARKER), [])
        left = [path.name for path in self.ravelo.folder.rglob("*")]
        self.assertEqual([name for name in left if name != "lock"], [])
        self.assertFalse(self.desktop.preferences.exists())

    def test_everything_is_erased_when_the_command_returns(self):
        self.fill()
        self.assertEqual(self.ravelo.call("erase")[0], 2, "only with --yes")
        self.assertEqual(len(self.files_with(MARKER)), 4)
        self.assertEqual(self.ravelo.call("erase", "--yes"), (0, ""))
        self.expect_nothing()
        self.wait_for_end()
        self.expect_nothing()

    def test_also_if_none_runs(self):
        self.fill()
        self.stop()
        self.assertEqual(self.ravelo.call("erase", "--yes"), (0, ""))
        self.expect_nothing()

    def test_nothing_is_found_in_the_raw_image_of_a_file_system_that_discards(self):
        if os.geteuid() != 0:
            self.skipTest("only root can mount an image")
        image = self.desktop.home / "disk"
        with image.open("wb") as file:
            file.truncate(32 << 20)
        for command in (["mkfs.ext4", "-q", "-O", "^has_journal", image],
                        ["mkdir", "-p", self.ravelo.folder],
                        ["mount", "-o", "loop,discard,sync", image, self.ravelo.folder]):
            done = subprocess.run(command, check=False, stderr=subprocess.PIPE, text=True)
            if done.returncode:
                self.skipTest(f"no loop mount here: {done.stderr.strip()}")
        self.addCleanup(subprocess.run, ["umount", "-l", self.ravelo.folder], check=False,
                        stderr=subprocess.DEVNULL)
        self.ravelo.start()
        self.copy_and_wait(MARKER)
        os.sync()
        self.assertIn(MARKER.encode(), image.read_bytes(), "the search itself is at fault")
        self.assertEqual(self.ravelo.call("erase", "--yes"), (0, ""))
        self.wait_for_end()
        os.sync()
        subprocess.run(["fstrim", self.ravelo.folder], check=False)
        self.assertNotIn(MARKER.encode(), image.read_bytes())


class Encrypted(SearchingCase, AssistiveCase, ProgramCase):
    """Encryption with a real keyring."""

    def setUp(self):
        super().setUp()
        self.provide_assistance()
        self.keyring = None
        self.start_keyring()

    def start_keyring(self):
        """Unlocked."""
        if self.keyring:
            self.keyring.terminate()
            self.keyring.wait()
        self.keyring = self.desktop.spawn(
            "gnome-keyring-daemon", "--foreground", "--components=secrets", "--unlock",
            stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.keyring.stdin.write(b"password")
        self.keyring.stdin.close()
        wait_for(lambda: "default" in self.secrets("ReadAlias", "default") or
                 "login" in self.secrets("ReadAlias", "default"), "the keyring")

    def secrets(self, method, *arguments):
        return self.desktop.run("gdbus", "call", "--session", "--dest", "org.freedesktop.secrets",
                                "--object-path", "/org/freedesktop/secrets", "--method",
                                f"org.freedesktop.Secret.Service.{method}", *arguments)

    def is_encrypted(self):
        store = self.ravelo.folder / "store.json"
        return store.exists() and store.read_bytes().startswith(b"Ravelo\x1a")

    def open_storage(self):
        self.assertEqual(self.ravelo.call("--settings"), (0, ""))
        wait_for(lambda: self.ravelo.window("Ravelo Settings"), "the settings")
        self.press("ctrl+3")

    def exported(self):
        """The texts of an export, which needs the key."""
        archive = self.desktop.home / "export.tar"
        archive.unlink(missing_ok=True)
        code, output = self.ravelo.call("export", archive)
        if code:
            return output
        store = self.desktop.run("tar", "-xOf", archive, "store.json")
        archive.unlink()
        return [clip["text"] for clip in json.loads(store)["clips"]]

    def encrypt(self):
        self.ravelo.start()
        self.copy_and_wait(MARKER)
        self.desktop.gtk("image", "c04020ff")
        self.wait_for_texts("Image", MARKER)
        (self.ravelo.folder / "store.json.unreadable").write_text(MARKER)
        self.open_storage()
        self.act("Encrypt what is stored")
        wait_for(lambda: self.is_encrypted() and not self.files_with(MARKER), "no plain copy")
        wait_for(lambda: all(image.read_bytes().startswith(b"Ravelo\x1a")
                             for image in self.images()), "encrypted images")
        self.press("Escape")

    def test_everything_is_encrypted_and_opens_with_the_keyring(self):
        self.encrypt()
        self.desktop.copy_text("Marker-two")
        wait_for(lambda: self.exported() == ["Marker-two", "Image", MARKER], self.exported)
        self.stop()
        self.assertEqual(self.files_with("Marker-two"), [])
        self.ravelo.start()
        wait_for(lambda: self.exported() == ["Marker-two", "Image", MARKER], self.exported)
        self.open_storage()
        self.act("Encrypt what is stored")
        wait_for(lambda: not self.is_encrypted(), "plain files")
        self.wait_for_texts("Marker-two", "Image", MARKER)
        wait_for(lambda: not (self.ravelo.folder / "key").exists(), "no key file")
        self.assertTrue(self.images()[0].read_bytes().startswith(b"\x89PNG"))

    def test_a_locked_keyring_loses_and_shows_nothing(self):
        self.encrypt()
        self.stop()
        stored = (self.ravelo.folder / "store.json").read_bytes()
        self.secrets("Lock", "[objectpath '/org/freedesktop/secrets/aliases/default']")
        self.ravelo.start()
        wait_for(lambda: "unlock" in self.exported(), "the refusal to export")
        self.toggle()
        wait_for(lambda: "Waiting for the keyring\u2026" in
                 [node["name"] for node in self.accessible_nodes()], "what it waits for")
        self.press("Escape")
        self.desktop.copy_text("Marker-while-locked")
        wait_for(lambda: list((self.ravelo.folder / "waiting").glob("*")), "a sealed copy")
        self.stop()
        self.assertEqual(self.files_with("Marker-while-locked"), [])
        self.assertEqual((self.ravelo.folder / "store.json").read_bytes(), stored)
        self.ravelo.start()
        self.start_keyring()
        wait_for(lambda: self.exported() == ["Marker-while-locked", "Image", MARKER],
                 self.exported)
        self.assertEqual(list((self.ravelo.folder / "waiting").glob("*")), [])


class OwnersEnd(ProgramCase):
    def setUp(self):
        super().setUp()
        self.ravelo.start()

    def test_what_was_copied_outlives_its_program(self):
        window = self.desktop.gtk("window")
        ends = {
            "from GTK": lambda: self.desktop.gtk("text", "from GTK"),
            "https://example.org/": lambda: self.qt("--text", "https://example.org/"),
        }
        for text, copy in ends.items():
            with self.subTest(text):
                owner = copy()
                self.wait_for_texts(text)
                owner.kill()
                wait_for(lambda t=text: self.desktop.paste_text() == t, "the text to paste")
                self.desktop.key("ctrl+a")
                self.desktop.key("ctrl+v")
                wait_for(lambda t=text: window.stdout.readline().strip() == t, "it in a window")
        owner = self.desktop.gtk("image", "c04020ff")
        self.wait_for_texts("Image")
        owner.kill()
        wait_for(lambda: self.desktop.run("sh", "-c", "xclip -o -selection clipboard -t image/png |"
                                          " identify -format '%w %h %[pixel:p{9,9}]' -")
                 == "64 48 srgb(192,64,32)", "the image to paste")
        self.copy_and_wait("next")
        self.assertEqual(self.ravelo.texts(), ["next", "Image", *reversed(ends)])

    def test_what_a_program_copies_as_it_ends_is_kept(self):
        copies = (("text", "GTK's last", lambda: self.desktop.gtk("leave", "text", "GTK's last")),
                  ("image", "Image", lambda: self.desktop.gtk("leave", "image", "c04020ff")),
                  ("text", "Qt's last", lambda: self.qt("--text", "Qt's last", "--leave")))
        kept = []
        for kind, text, copy in copies:
            with self.subTest(text):
                self.ravelo.process.send_signal(signal.SIGSTOP)  # Like a busy machine.
                owner = copy()
                with self.assertRaises(subprocess.TimeoutExpired, msg="it waits to be saved"):
                    owner.wait(0.5)
                self.ravelo.process.send_signal(signal.SIGCONT)
                self.assertEqual(owner.wait(5), 0)
                kept.insert(0, text)
                self.wait_for_texts(*kept)
                targets = "UTF8_STRING" if kind == "text" else "image/png"
                wait_for(lambda t=targets: t in self.desktop.run(
                    "xclip", "-o", "-selection", "clipboard", "-t", "TARGETS"), "it to paste")
        self.assertEqual(self.ravelo.texts(), kept, "no more than what was copied")

    def test_a_program_that_ends_with_a_password_is_not_kept_waiting(self):
        self.assertEqual(self.qt("--text", "tr0ub4dor&3", "--secret", "--leave").wait(3), 0)
        self.copy_and_wait("next")
        self.assertEqual(self.ravelo.texts(), ["next"])

    def test_a_password_goes_with_its_program_and_nothing_comes_back(self):
        self.copy_and_wait("before")
        self.qt("--text", "tr0ub4dor&3", "--secret").kill()
        self.ravelo.open()  # By then it knows that the owner is gone.
        self.assertEqual(self.desktop.paste_text(), "")


class Forms(ProgramCase):
    RICH = {"text/html": b"<b>bold</b>\0\xff", "text/rtf": b"{\\rtf1 \\b bold}",
            "application/vnd.oasis.opendocument.text": b"PK\3\4"}

    def setUp(self):
        super().setUp()
        self.ravelo.start()

    def copy(self, text, forms):
        marks = [word for kind, value in forms.items()
                 for word in ("--mark", f"{kind}={urllib.parse.quote(value)}")]
        peer = self.qt("--text", text, *marks)
        self.wait_for_texts(text)
        wait_for(lambda: len(list((self.ravelo.folder / "clips").glob("*.forms"))) == 1,
                 "its other forms on the disk")
        return peer

    def pasted(self, kind):
        return subprocess.run(["timeout", "3", "xclip", "-selection", "clipboard", "-o", "-t", kind],
                              env=self.desktop.env, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, check=False).stdout

    def click_second_row(self):
        panel = self.ravelo.open()
        self.desktop.click(panel.x + panel.width // 2, FIRST_ROW + ROW)
        self.desktop.click(120, 700)
        wait_for(self.ravelo.is_collapsed, "the panel to close")

    def test_formatted_text_comes_back_as_it_was_or_plain(self):
        self.copy("bold", self.RICH).kill()
        self.copy_and_wait("next")
        self.click_second_row()
        wait_for(lambda: self.pasted("text/html") == self.RICH["text/html"], "the HTML")
        for kind, value in self.RICH.items():
            self.assertEqual(self.pasted(kind), value, kind)
        self.assertEqual(self.desktop.paste_text(), "bold")
        self.assertEqual(self.ravelo.texts(), ["next", "bold"], "no clip of its own copy")
        self.toggle()
        self.press("Down", "alt+Return")
        wait_for(lambda: self.pasted("text/html") == b"", "the plain text alone")
        self.assertEqual(self.desktop.paste_text(), "bold")

    def test_files_come_back_as_files_but_only_by_a_click(self):
        uris = b"file:///tmp/a%20b\r\nfile:///tmp/c\r\n"
        owner = self.copy("/tmp/a b\n/tmp/c", {
            "text/uri-list": uris,
            "x-special/gnome-copied-files": b"cut\nfile:///tmp/a%20b\nfile:///tmp/c"})
        owner.kill()
        wait_for(lambda: self.desktop.paste_text() == "/tmp/a b\n/tmp/c", "the paths")
        self.assertEqual(self.pasted("text/uri-list"), b"")
        self.copy_and_wait("next")
        self.click_second_row()
        wait_for(lambda: self.pasted("text/uri-list") == uris, "the list of files")
        self.assertEqual(self.pasted("x-special/gnome-copied-files"),
                         b"copy\nfile:///tmp/a%20b\nfile:///tmp/c")

    def test_a_row_is_dragged_into_another_window(self):
        window = self.desktop.gtk("window")
        self.copy_and_wait("older", "newer")
        panel = self.ravelo.open()
        field = self.desktop.window_of(window)
        self.desktop.drag((panel.x + 300, FIRST_ROW + ROW),
                          (field.x + 60, field.y + field.height - 16))
        self.desktop.run("xdotool", "mouseup", 1)
        said = iter(lambda: window.stdout.readline().strip(), "")
        self.assertEqual(next(line for line in said if line != "ready"), "older")
        self.assertEqual(self.desktop.paste_text(), "newer", "a drag is no click")


class HungOwner(ProgramCase):
    """Clipboard owners that never finish an answer, while a text field has the focus."""

    BEHAVIOURS = ("silent", "targetsOnly", "stallsInPieces", "dieAfterTargets")

    def own(self, behaviour):
        owner = self.desktop.spawn(os.environ["SELECTION_OWNER"], "CLIPBOARD", behaviour,
                                   "UTF8_STRING=fill:300000", stdin=subprocess.PIPE,
                                   stdout=subprocess.PIPE, text=True)
        self.assertTrue(owner.stdout.readline(), "the owner took the clipboard")

    def test_it_stalls_nothing_and_the_next_copy_is_kept(self):
        self.ravelo.start()
        for behaviour in self.BEHAVIOURS:
            with self.subTest(behaviour):
                panel = self.ravelo.open()
                self.desktop.click(panel.x + 300, SEARCH)
                self.own(behaviour)
                self.desktop.key("ctrl+v")
                self.assertLess(self.max_stall(2), STALL_LIMIT)
                self.desktop.type("typed")
                self.copy_and_wait("after " + behaviour)
                self.desktop.click(panel.x - 20, 300)
                wait_for(self.ravelo.is_collapsed, "the closed panel")
                self.own(behaviour)
                self.ravelo.open()
                self.desktop.click(panel.x - 20, 300)
                wait_for(self.ravelo.is_collapsed, "the closed panel")
                self.desktop.move(100, 800)


class Focus(ProgramCase):
    BACK_TO_THE_NOTE = ["shift+Tab"] * 13  # From the search: tabs, buttons, reminders, menus.

    def setUp(self):
        super().setUp()
        self.sound = self.desktop.home / "played"
        (self.desktop.home / ".asoundrc").write_text(
            f'pcm.!default {{ type file file "{self.sound}" format raw slave.pcm null }}')
        self.ravelo.start()

    def has_played(self):
        return self.sound.exists() and self.sound.stat().st_size > 0

    def test_a_timer_from_the_keyboard_to_its_stop_and_one_to_its_end(self):
        self.toggle()
        self.press(*self.BACK_TO_THE_NOTE)
        self.desktop.type("  Estimates ")
        self.press("Return")
        status = wait_for(lambda: (text := self.ravelo.call("timer", "status")[1])
                          and "no timer" not in text and text, "a timer that runs")
        self.assertRegex(status, r"^(1:00:00|59:5\d) Estimates\n$")
        self.press("Escape")
        wait_for(lambda: (bar := self.ravelo.panel()) and bar[2:] == (0, 520, 24), "the bar, 520 x 24")
        self.assertFalse(self.ravelo.call("timer", "start", "0")[0] == 0, "a timer of no length")
        self.ravelo.call("--toggle")
        wait_for(self.ravelo.is_open, "the open panel")
        self.press("Escape")
        self.assertEqual(self.ravelo.call("timer", "stop"), (0, ""))
        wait_for(self.ravelo.is_collapsed, "the handle again")

        self.assertEqual(self.ravelo.call("timer", "start", "0.02"), (0, ""))
        wait_for(self.has_played, "the sound at the end")
        self.assertEqual(self.ravelo.call("timer", "status"), (0, "no timer\n"))
        wait_for(self.ravelo.is_collapsed, "the handle again")


class Drops(ProgramCase):
    """Files dropped by other programs, onto the handle."""

    NAMES = [b"a b.txt", b"100%.txt", b"x#y?z", b"two\nlines", "ä".encode(), b"no utf-8 \xe4", b"folder"]

    def drop(self, behaviour, addresses, after="onto"):
        """Returns the actions reported to the source, before the drop and at the end."""
        offer = "text/uri-list=hex:" + b"".join(line + b"\r\n" for line in addresses).hex()
        source = self.desktop.spawn(os.environ["SELECTION_OWNER"], "XdndSelection", behaviour, offer,
                                    f"{after}:{self.ravelo.panel().window}", stdin=subprocess.PIPE,
                                    stdout=subprocess.PIPE, text=True)
        return [source.stdout.readline().strip() for _ in range(3)][1:]

    def stacks(self):
        return self.ravelo.store().get("shelfStacks", [])

    def test_files_of_every_name_are_parked_for_good(self):
        folder = os.fsencode(self.desktop.home)
        paths = [folder + b"/" + name for name in self.NAMES]
        for path in paths[:-1]:
            pathlib.Path(os.fsdecode(path)).write_text("contents")
        os.mkdir(paths[-1])
        local = [b"file://" + urllib.parse.quote_from_bytes(path).encode() for path in paths]
        local[1] = local[1].replace(b"file://", b"file://" + os.uname().nodename.encode())
        elsewhere = [b"# a comment", b"http://a.example/x", b"sftp://h/y", b"smb://h/z",
                     b"file://elsewhere.example/etc/hosts"]
        self.ravelo.start()
        self.assertEqual(self.drop("answer", elsewhere + local), ["XdndActionCopy"] * 2)
        kept = [path.decode(errors="replace") for path in paths]
        kept[5] = local[5].decode()  # Not UTF-8, so it stays a URL.
        wait_for(lambda: self.stacks() == [kept], lambda: f"{kept} on the shelf: {self.stacks()}")
        self.stop()
        self.ravelo.start()
        self.drop("answer", [b"file:///etc/"])
        wait_for(lambda: self.stacks() == [kept, ["/etc"]], "all found again, and one more")

    def test_a_web_link_changes_nothing_and_is_refused(self):
        self.ravelo.start()
        self.assertEqual(self.drop("answer", [b"https://a.example/x"], "refusal"), ["none"] * 2)
        self.assertTrue(self.ravelo.is_collapsed())
        self.assertEqual(self.stacks(), [])

    def test_a_source_that_hangs_at_the_drop_stalls_nothing(self):
        self.ravelo.start()
        self.desktop.run("touch", "a")
        self.assertEqual(self.drop("silent", []), ["XdndActionCopy"] * 2)
        self.assertLess(self.max_stall(2), STALL_LIMIT)
        self.drop("answer", [f"file://{self.desktop.home}/a".encode()])
        wait_for(lambda: self.stacks() == [[f"{self.desktop.home}/a"]], "the next drop")


class Tray(ProgramCase):
    ROWS = [("Open Ravelo", []), ("Settings…", [["Control", ","]]), ("Set Up Ravelo Again…", []),
            ("Check for Updates…", []), (None, []), ("Quit Ravelo", [["Control", "Q"]]), (None, []),
            ("Pause Capture", [])]

    def host(self):
        host = TrayHost(self.desktop.bus())
        wait_for(lambda: host.serve().items, "the item at a host started later")
        return host

    def transcript(self, used):
        folder = self.desktop.home / ".claude" / "projects" / "work"
        folder.mkdir(parents=True, exist_ok=True)
        usage = {"input_tokens": used, "cache_read_input_tokens": 0, "output_tokens": 7}
        with (folder / "session.jsonl").open("a") as file:
            print(json.dumps({"type": "assistant", "message": {"model": "claude-opus-4-6",
                                                               "usage": usage}}), file=file)

    def test_waits_for_a_host(self):
        host = TrayHost(self.desktop.bus(), shows=False)
        self.ravelo.start()
        wait_for(lambda: host.serve().asked, "the question whether there is a host")
        self.assertEqual(host.items, [])
        host.shows = True
        wait_for(lambda: host.serve().items, "the item")
        self.assertEqual(host.read("Title"), "Ravelo")

    def test_follows_the_session_and_does_what_its_menu_says(self):
        self.ravelo.start()
        host = self.host()
        self.assertEqual([(title, keys) for _, title, keys in host.rows()], self.ROWS)
        self.assertRegex(host.tooltip(), "^(OFF-)?PEAK · ")
        sizes = {(width, height): len(pixels) for width, height, pixels in host.read("IconPixmap")}
        self.assertEqual(sizes[22, 22], 22 * 22 * 4)
        for used, text in ((12345, "12k"), (124000, "124k")):
            self.transcript(used)
            wait_for(lambda: host.tooltip().startswith(f"Opus 4.6 · {text} / "),
                     f"{text} in the tooltip", timeout=5.5 * SLOWER)
        host.close()
        host = self.host()  # A restarted panel.
        host.click("Open Ravelo")
        wait_for(self.ravelo.is_open, "the panel")
        self.desktop.click(40, 700)
        wait_for(self.ravelo.is_collapsed, "the handle")
        host.activate()
        wait_for(self.ravelo.is_open, "the panel")
        host.click("Quit Ravelo")
        self.assertEqual(self.ravelo.process.wait(20), 0)


class CommandLine(ProgramCase):
    def test_what_needs_no_display(self):
        del self.desktop.env["DISPLAY"]
        self.assertEqual(self.ravelo.call("--version"), (0, "Ravelo 0.2\n"))
        code, text = self.ravelo.call("--help")
        self.assertEqual(code, 0)
        for option in ("--version", "--toggle", "--settings", "--setup", "--quit"):
            self.assertIn(option, text)

    def test_without_a_display_it_says_so(self):
        self.desktop.env.pop("QT_QPA_PLATFORM", None)
        for display in ("", ":4711"):
            self.desktop.env["DISPLAY"] = display
            code, text = self.ravelo.call()
            self.assertEqual((code, text.count("\n")), (1, 1), text)
            self.assertTrue(text.startswith("ravelo: no display: "), text)

    def test_a_session_manager_restores_it(self):
        self.ravelo.start("-session", "10ab_123")
        self.assertTrue(self.ravelo.is_collapsed())
        self.assertEqual(self.ravelo.call("-session", "10ab_123"), (0, ""))
        self.assertTrue(self.ravelo.is_collapsed(), "the running one was disturbed")

    def test_a_terminal_is_shown_no_control_characters(self):
        self.ravelo.start()
        odd = self.desktop.home / "a\nb\x1b[31m"
        odd.touch()
        self.assertEqual(self.ravelo.call(str(odd)), (0, ""))
        self.assertEqual(self.ravelo.call("shelf", "list"), (0, f"{odd}\n"))
        ours, theirs = os.openpty()
        self.assertEqual(subprocess.call([self.ravelo.program, "shelf", "list"], env=self.desktop.env,
                                         stdout=theirs, timeout=20), 0)
        os.close(theirs)
        shown = os.read(ours, 4096)
        os.close(ours)
        self.assertEqual(shown, f"{self.desktop.home}/a\\nb\\x1b[31m\r\n".encode())

    def test_it_reaches_the_running_one(self):
        calls = [
            ([], self.ravelo.is_open),
            (["--toggle"], self.ravelo.is_collapsed),
            (["--toggle"], self.ravelo.is_open),
            (["--quit"], self.ravelo.has_ended),
        ]
        self.desktop.move(WIDTH // 2, 300)  # In the open panel, but not in the hot zone.
        for session in ("with a session bus", "without one"):
            if session == "without one":
                self.desktop.env["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nowhere"
            self.ravelo.start()
            for arguments, result in calls:
                with self.subTest(session, arguments=arguments):
                    self.assertEqual(self.ravelo.call(*arguments), (0, ""))
                    wait_for(result, f"{result.__name__} after {arguments}")
            self.assertEqual(self.ravelo.process.returncode, 0)

    def test_a_script_drives_the_timer_and_the_shelf(self):
        call, home = self.ravelo.call, self.desktop.home
        for command in (["timer", "status"], ["timer", "start", "5"], ["shelf", "list"]):
            self.assertEqual(call(*command), (1, "ravelo: not running\n"), command)
        self.assertEqual(call("timer", "start", "soon")[0], 2)
        odd = [home / "files" / name for name in ("-platform", "two\nlines ü🍅", "third")]
        odd[0].parent.mkdir()
        for path in odd:
            path.touch()
        with self.ravelo.log.open("a") as log:  # The files start it.
            self.ravelo.process = self.desktop.spawn(
                self.ravelo.program, "--", "-platform", odd[1].as_uri(), stderr=log,
                cwd=odd[0].parent)
        wait_for(lambda: (panel := self.ravelo.panel()) and panel.height > 560,
                 "the panel, open, and higher by the shelf")
        self.assertEqual(call("timer", "start", "25", "Deep work"), (0, ""))
        code, text = call("timer", "status")
        self.assertEqual(code, 0)
        self.assertRegex(text, r"^2[45]:\d\d Deep work\n$")
        timer = json.loads(call("timer", "status", "--json")[1])
        self.assertEqual((timer["running"], timer["duration"]), (True, 1500))
        self.assertEqual(call("timer", "stop"), (0, ""))
        # Some launchers pass on an ignored SIGCHLD.
        self.assertEqual(self.desktop.run("sh", "-c", 'trap "" CHLD; exec "$0" timer status',
                                          self.ravelo.program), "no timer\n")

        code, text = call(home / "missing", odd[2], f"{home}/files/../files/third")
        self.assertEqual((code, text), (1, f"ravelo: no such file: {home}/missing\n"))
        self.assertEqual(call("shelf", "list", "-0"), (0, "".join(f"{path}\0" for path in odd)))
        wait_for(lambda: self.ravelo.store().get("shelfStacks") ==
                 [[str(odd[0]), str(odd[1])], [str(odd[2])]], "both stacks in store.json")

        self.ravelo.process.send_signal(signal.SIGSTOP)
        try:
            self.assertEqual(call("timer", "status"),
                             (1, "ravelo: another Ravelo runs but does not answer\n"))
        finally:
            self.ravelo.process.send_signal(signal.SIGCONT)


if __name__ == "__main__":
    unittest.main()

"""The panel by pointer and keyboard."""

import json
import pathlib
import unittest
import urllib.parse

from program_case import FIRST_ROW, ROW, SEARCH, AssistiveCase, ProgramCase
from desktop import wait_for

TOP_BAR = 44  # Its centre from the top.
NIGHT_SHIFT_RIGHT = 130  # Its centre from the right.


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

    def toggle_twice(self):
        self.assertEqual(self.ravelo.call("--toggle"), (0, ""))
        wait_for(self.ravelo.is_collapsed, "the panel to close")
        wait_for(lambda: self.desktop.focused_window() == self.focus, "the keyboard back")
        self.toggle()

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
        self.press("F2", "ctrl+a")
        self.desktop.type("kept")
        self.toggle_twice()
        self.desktop.type(" open")
        self.press("ctrl+Return")
        wait_for(lambda: self.ravelo.store()["snippets"][2]["body"] == "kept open",
                 lambda: f"what was typed before and after, not {self.ravelo.store()['snippets'][2]}")
        self.press("Escape")
        self.closed_with("second")

    def test_an_edited_clip_waits_while_the_panel_is_closed(self):
        self.toggle()
        self.press("F2")
        self.desktop.type(" and more")
        self.toggle_twice()
        self.desktop.type(" at last")
        self.press("ctrl+Return")
        self.closed_with("first and more at last")


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
        self.assertNotEqual(self.ravelo.call("timer", "start", "0")[0], 0, "a timer of no length")
        self.toggle()
        self.press("Escape")
        self.assertEqual(self.ravelo.call("timer", "stop"), (0, ""))
        wait_for(self.ravelo.is_collapsed, "the handle again")

        self.assertEqual(self.ravelo.call("timer", "start", "0.02"), (0, ""))
        wait_for(self.has_played, "the sound at the end")
        self.assertEqual(self.ravelo.call("timer", "status"), (0, "no timer\n"))
        wait_for(self.ravelo.is_collapsed, "the handle again")


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
        self.drag_out((right - self.COPY, 220), (120, 450))
        address = json.loads(target.stdout.readline()).strip()
        self.assertTrue(address.endswith("/Sketch.png"), address)
        file = pathlib.Path(urllib.parse.unquote(urllib.parse.urlparse(address).path))
        self.assertTrue(file.read_bytes().startswith(b"\x89PNG"))
        self.assertEqual(file.parent.stat().st_mode & 0o777, 0o700)


class Assistive(AssistiveCase, ProgramCase):
    def test_what_a_screen_reader_gets(self):
        self.desktop.provide_assistance()
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
        self.desktop.provide_assistance()
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


if __name__ == "__main__":
    unittest.main()

"""Tests of the whole program on a private Wayland desktop.

The build passes RAVELO (the program) and VIRTUAL_HAND (its pointer and keyboard).
"""

import json
import os
import pathlib
import signal
import sys
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools/desktop"))
from desktop import HERE, wait_for  # noqa: E402
from wayland import BACKGROUND, WIDTH, SwayDesktop, WaylandRavelo  # noqa: E402

FIRST_ROW, ROW = (WIDTH // 2 - 200, 300), 40


class WaylandCase(unittest.TestCase):
    def setUp(self):
        self.desktop = self.enterContext(SwayDesktop(os.environ["VIRTUAL_HAND"]))
        self.window = self.desktop.show_background()
        self.desktop.move(640, 700)
        self.ravelo = WaylandRavelo(self.desktop, os.environ["RAVELO"]).start()

    def tearDown(self):
        self.assertEqual(self.ravelo.complaints(), [], "warnings by the program")

    def wait_for_texts(self, *texts):
        wait_for(lambda: self.ravelo.texts()[:len(texts)] == list(texts),
                 lambda: f"{texts} as the newest clips, not {self.ravelo.texts()}")


class WaylandClipboard(WaylandCase):
    def test_copies_of_native_programs_are_kept_and_copied_back(self):
        self.desktop.copy_text("from wl-copy, ✓")
        self.wait_for_texts("from wl-copy, ✓")
        self.desktop.copy_text("https://www.debian.org/")
        self.wait_for_texts("https://www.debian.org/")
        self.desktop.copy_text("secret", "x-kde-passwordManagerHint")
        for key in ("a", "b", "ctrl+a", "ctrl+c"):  # In GTK's text field.
            self.desktop.key(key)
        self.wait_for_texts("ab", "https://www.debian.org/")
        self.desktop.copy_text("the last one")
        self.wait_for_texts("the last one", "ab", "https://www.debian.org/")
        self.ravelo.open()
        self.desktop.click(FIRST_ROW[0], FIRST_ROW[1] + 2 * ROW)
        wait_for(lambda: self.desktop.paste_text() == "https://www.debian.org/",
                 "the third clip on the clipboard")
        self.assertEqual(self.ravelo.texts().count("https://www.debian.org/"), 1)

    def test_contents_outlive_their_owner(self):
        copier = self.desktop.spawn("wl-copy", "--foreground", "two words")
        self.wait_for_texts("two words")
        copier.kill()
        wait_for(lambda: self.desktop.paste_text() == "two words", "the text offered again")

    def test_copies_in_windows_of_an_ignored_program_are_not_kept(self):
        self.ravelo.process.terminate()
        wait_for(self.ravelo.has_ended, "the end of the program")
        self.desktop.preferences.write_text(json.dumps(
            {"onboarded": True, "ignoredPrograms": ["gtk_peer.py"]}))
        self.ravelo.start()
        for key in ("a", "b", "ctrl+a", "ctrl+c"):  # In GTK's text field.
            self.desktop.key(key)
        wait_for(lambda: self.desktop.paste_text() == "ab", "the copied text")
        self.window.kill()
        wait_for(lambda: "gtk_peer.py" not in self.desktop.sway("-t", "get_tree"), "no window")
        self.desktop.copy_text("of another program")
        wait_for(lambda: self.ravelo.texts(), "the next copy")
        self.assertEqual(self.ravelo.texts(), ["of another program"])

    def test_nothing_is_lost_when_the_compositor_dies(self):
        self.desktop.copy_text("before")
        self.wait_for_texts("before")
        self.desktop.copy_text("at the last moment")
        self.ravelo.call("timer", "status")  # It has seen the copy, but not saved it yet.
        self.desktop.server.send_signal(signal.SIGKILL)
        wait_for(self.ravelo.has_ended, "the end of the program")
        self.assertEqual(self.ravelo.process.returncode, 1)
        self.wait_for_texts("at the last moment", "before")


class WaylandPanel(WaylandCase):
    def test_opens_under_the_pointer_and_closes_when_it_leaves(self):
        for _ in range(3):
            self.ravelo.open()
            self.desktop.move(640, 400)
            self.assertTrue(self.ravelo.is_open())
            self.desktop.move(640, 750)
            wait_for(self.ravelo.is_collapsed, "the handle")

    def test_has_the_keyboard_when_opened_by_key_and_gives_it_back(self):
        self.assertEqual(self.ravelo.call("--toggle"), (0, ""))
        wait_for(self.ravelo.is_open, "the open panel")
        empty = self.desktop.still_picture()
        self.desktop.key("ctrl+v")
        for key in "abc":
            self.desktop.key(key)
        wait_for(lambda: self.desktop.still_picture() != empty, "something typed")
        self.desktop.click(640, 750)
        wait_for(self.ravelo.is_collapsed, "closed by a click elsewhere")
        self.desktop.key("z")
        lines = iter(self.window.stdout.readline, "")
        self.assertEqual(next(line for line in lines if line != "ready\n"), "z\n")

    def test_closes_by_a_click_elsewhere_when_opened_by_another_start(self):
        self.assertEqual(self.ravelo.call(), (0, ""))
        wait_for(self.ravelo.is_open, "the open panel")
        self.desktop.click(640, 750)
        wait_for(self.ravelo.is_collapsed, "closed by a click elsewhere")

    def paste_at_once(self):
        before = self.desktop.still_picture()
        self.assertEqual(self.ravelo.call("--toggle"), (0, ""))
        wait_for(lambda: self.desktop.picture() != before, "the open panel")
        self.desktop.still_picture()
        self.desktop.key("shift+Return")

    def test_pastes_at_once_into_a_text_field_and_a_terminal(self):
        self.desktop.copy_text("to paste, ✓")
        wait_for(lambda: self.ravelo.texts()[:1] == ["to paste, ✓"], "the clip")
        self.paste_at_once()
        lines = iter(self.window.stdout.readline, "")
        self.assertEqual(next(line for line in lines if line != "ready\n"), "to paste, ✓\n")

        self.window.kill()  # Sway would not give the focus to a window below it.
        file = self.desktop.home / "line"
        self.desktop.spawn("foot", "--log-level=none", "sh", "-c", f"stty -icanon; cat > {file}")
        wait_for(file.exists, "the terminal")
        wait_for(lambda: '"foot"' in self.desktop.sway("-t", "get_tree"), "its window")
        self.paste_at_once()
        wait_for(lambda: file.read_text() == "to paste, ✓", "the text in the terminal")

    def test_a_clip_is_dragged_out_although_the_panel_has_the_keyboard(self):
        self.desktop.copy_text("dragged out")
        self.wait_for_texts("dragged out")
        self.desktop.add_output()
        self.assertEqual(self.ravelo.call("--toggle"), (0, ""))
        wait_for(self.ravelo.is_open, "the open panel")
        self.desktop.still_picture()
        self.desktop.drag(FIRST_ROW, (FIRST_ROW[0] + 60, FIRST_ROW[1]))
        self.desktop.release()
        time.sleep(0.5)  # For the keyboard to come back.
        before = self.desktop.still_picture()
        self.desktop.key("d")
        wait_for(lambda: self.desktop.still_picture() != before, "a search: the drag has ended here")
        self.desktop.drag(FIRST_ROW, (WIDTH * 3 // 2, 3))  # Over the strip of the other monitor.
        self.desktop.move(WIDTH * 3 // 2, 2)
        field = (100, 780)
        self.desktop.move(*field)
        time.sleep(0.5)  # For the field to accept it.
        self.desktop.move(field[0] + 1, field[1])
        time.sleep(0.5)
        self.desktop.release()
        lines = iter(self.window.stdout.readline, "")
        self.assertEqual(next(line for line in lines if line != "ready\n"), "dragged out\n")
        wait_for(self.ravelo.is_collapsed, "closed, as the pointer has left it")

    def test_a_dropped_file_is_parked(self):
        file = self.desktop.home / "a file.txt"
        file.write_text("x")
        self.window.kill()
        source = self.desktop.peer("/usr/bin/python3", HERE / "file_source.py", "--color",
                                   "#%02x%02x%02x" % BACKGROUND, file)
        self.desktop.still_picture()
        self.desktop.drag_from(source, (640, 400), (640, 6))
        self.desktop.move(640, 6)
        wait_for(self.ravelo.is_open, "the open panel")
        self.desktop.still_picture()
        self.desktop.move(640, 200)
        self.desktop.release()
        self.assertEqual(source.stdout.readline(), "end\n")
        wait_for(lambda: self.ravelo.call("shelf", "list") == (0, f"{file}\n"), "the parked file")
        wait_for(self.ravelo.is_open, "still open after the drop")
        self.desktop.move(640, 250)
        self.desktop.move(640, 750)
        wait_for(self.ravelo.is_collapsed,
                 "closed when the pointer leaves, as a drop brings no keyboard")

    def test_nothing_is_shown_over_a_locker(self):
        self.desktop.spawn("swaylock", "--color", "204060", "--no-unlock-indicator")
        color = (0x20, 0x40, 0x60)
        # Sway 1.7 draws the locker below what was there before.
        handle = (range(WIDTH // 2 - 100, WIDTH // 2 + 100), range(12))

        def strange():
            """The places at the top that do not have the locker's colour."""
            picture = self.desktop.picture()
            return [(x, y) for y in range(0, 600, 3) for x in range(0, WIDTH, 3)
                    if picture.at(x, y) != color and not (x in handle[0] and y in handle[1])]

        wait_for(lambda: not strange(), lambda: f"the locker all over, not {strange()[:3]}")
        file = self.desktop.home / "parked.txt"
        file.write_text("x")
        for deed in (lambda: self.desktop.move(WIDTH // 2, 5),
                     lambda: self.ravelo.call("--toggle"), lambda: self.ravelo.call(file),
                     lambda: self.ravelo.call("timer", "start", "25")):
            deed()
            end = time.monotonic() + 1
            while time.monotonic() < end:
                self.assertEqual(strange()[:3], [], "something shows above the locker")

    def test_keeps_its_place_at_any_scale(self):
        for scale in (1.25, 1.5, 2):
            self.desktop.sway("output", "HEADLESS-1", "scale", scale)
            width, height = round(200 * scale), round(12 * scale)
            left = (WIDTH - width) // 2
            places = {(left + 12, 1): False, (left + width - 13, 1): False, (left - 2, 1): True,
                      (left + width + 1, 1): True, (WIDTH // 2, height - 2): False,
                      (WIDTH // 2, height + 1): True}

            def seen():
                picture = self.desktop.picture()
                return {at: picture.at(*at) == BACKGROUND for at in places}

            wait_for(lambda: seen() == places,
                     lambda: f"the handle, {width} x {height}, at scale {scale}: {places}, not {seen()}")

    def test_ends_in_order(self):
        self.assertEqual(self.ravelo.call("--toggle"), (0, ""))
        wait_for(self.ravelo.is_open, "the open panel")
        self.assertEqual(self.ravelo.call("--quit")[0], 0)
        wait_for(self.ravelo.has_ended, "the end")
        self.assertEqual(self.ravelo.process.returncode, 0)


if __name__ == "__main__":
    unittest.main()

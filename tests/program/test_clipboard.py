"""What other programs copy, and get back."""

import os
import signal
import statistics
import subprocess
import time
import unittest
import urllib.parse

from program_case import FIRST_ROW, ROW, SEARCH, SLOWER, STALL_LIMIT, ProgramCase
from desktop import wait_for

CAPTURE_LIMIT = 0.9  # Seconds from the copy to store.json: max. one poll and one debounce.


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
        self.drag_out((panel.x + 300, FIRST_ROW + ROW),
                      (field.x + 60, field.y + field.height - 16))
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


if __name__ == "__main__":
    unittest.main()

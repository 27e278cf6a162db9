"""Files dropped on the panel and dragged out of it."""

import json
import os
import pathlib
import subprocess
import time
import unittest
import urllib.parse

from program_case import STALL_LIMIT, ProgramCase
from desktop import WIDTH, wait_for


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
        time.sleep(0.3)  # The one below has to answer; nothing tells us when.
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
        time.sleep(3)  # For the panel's contents, which are created in one piece.
        self.desktop.run("touch", "a")
        self.assertEqual(self.drop("silent", []), ["XdndActionCopy"] * 2)
        self.assertLess(self.max_stall(2), STALL_LIMIT)
        self.drop("answer", [f"file://{self.desktop.home}/a".encode()])
        wait_for(lambda: self.stacks() == [[f"{self.desktop.home}/a"]], "the next drop")


if __name__ == "__main__":
    unittest.main()

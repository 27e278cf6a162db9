"""Ravelo on a real GNOME Shell with its extension. Run by scripts/gnome, which says where the program is."""

import json
import os
import pathlib
import signal
import statistics
import subprocess
import time
import unittest

import shell
from shell import until
from test_extension import ExtensionCase

# Places in the panel, which is 927 pixels wide.
ROW_BELOW = 340
SEARCH_X, SEARCH_Y = 300, 220

PROGRAM = os.environ.get("RAVELO_PROGRAM", shell.ROOT / "build/dev/ravelo")

# The time from the pointer at the edge to the first frame of the panel, in milliseconds.
OPENING_TIME = """
    const began = GLib.get_monotonic_time();
    const shown = new Promise(done => {
        const id = global.window_manager.connect('map', (_, actor) => {
            if (actor.meta_window.title !== 'Ravelo panel')
                return;
            global.window_manager.disconnect(id);
            actor.connect('first-frame', () => done((GLib.get_monotonic_time() - began) / 1000));
        });
    });
    move(640, 0);
    return await shown;
"""

# A key to hold.
CONTROL = """const control = down => keyboard.notify_keyval(GLib.get_monotonic_time(), Clutter.KEY_Control_L, down);"""


class ProgramCase(ExtensionCase):
    x11 = False

    @classmethod
    def setUpClass(cls):
        pass  # A shell for each test.

    def setUp(self):
        self.session = self.enterContext(shell.Shell(monitors=self.monitors, x11=self.x11))
        config = self.session.home / ".config/ravelo"
        config.mkdir(parents=True)
        (config / "preferences.json").write_text(
            json.dumps({"onboarded": True, "didSetupLogin": True, "seededSiteLinksV1": True}))
        self.ravelo = self.session.start(PROGRAM, log="ravelo.log")
        until(lambda: self.strips() > 0 or self.failed(), "the extension is connected", 20)

    def failed(self):
        if self.ravelo.poll() is not None:
            raise AssertionError((self.session.folder / "ravelo.log").read_text())

    def strips(self):
        return self.session.run("return Main.layoutManager.uiGroup.get_children()"
                                ".filter(one => one.name === 'ravelo-edge').length")

    def panel(self):
        return self.window("Ravelo panel")

    def open(self):
        self.session.run("move(640, 300); await sleep(50); move(640, 0);")
        return until(self.panel, "the panel opens at the edge")

    def tearDown(self):
        pass

    def close(self):
        self.session.run("await click(100, 700)")
        until(lambda: not self.panel(), "the panel closes")

    def close_to_bar(self):
        self.session.run("await click(100, 700)")
        until(lambda: self.panel()["frame"][3] < 60, "it closes to the bar")

    def store(self):
        file = self.session.home / ".local/share/Ravelo/store.json"
        return file.read_text() if file.exists() else ""

    def command(self, *words):
        return subprocess.run([PROGRAM, *words], env=self.session.environment, capture_output=True, text=True,
                              timeout=20, check=False).stdout


class ProgramTest(ProgramCase):
    def test_captures_copies_but_no_passwords(self):
        text = self.client("text", "--copy", "from GTK")
        until(lambda: "from GTK" in self.store(), "a text is stored")
        before = json.loads(self.store())["clips"]
        text.end()
        until(lambda: self.session.run("return global.display.get_selection().get_mimetypes(1)"),
              "the shell keeps the text of a program that has ended")
        self.session.run("await sleep(1000)")
        self.assertEqual(json.loads(self.store())["clips"], before, "which is no new copy")
        self.client("secret", "--secret", "hunter2")
        self.client("picture", "--image", next(shell.ROOT.glob("docs/screenshots/dark-1x/*.png")))
        clips = self.session.home / ".local/share/Ravelo/clips"
        until(lambda: list(clips.glob("*.png")), "an image is stored")
        self.assertNotIn("hunter2", self.store())

    def test_opens_quickly(self):
        self.open()
        self.session.run("move(640, 200); await sleep(300);")
        self.close()
        times = []
        for _ in range(9):
            self.session.run("move(640, 700); await sleep(500);")
            times.append(self.session.run(OPENING_TIME))
            self.session.run("move(640, 200); await sleep(300);")
            self.close()
        print(f"edge to first frame: {min(times):.0f}/{statistics.median(times):.0f}/{max(times):.0f} ms")

    def test_opens_above_all_and_takes_no_focus(self):
        self.client("full", "--fullscreen")
        panel = self.open()
        x, y, width, _ = panel["frame"]
        self.assertLess(abs(x + width / 2 - 640), 1)
        self.assertEqual(y, 0)
        self.assertTrue(panel["top"], "above the bar")
        self.assertTrue(until(lambda: self.window("full")["focus"], "the client keeps the focus"))
        self.session.run("move(640, 200); await sleep(700);")
        self.assertTrue(self.panel(), "it stays open under the pointer")
        self.close()

    def test_shows_the_timers_bar_at_the_very_top(self):
        self.command("timer", "start", "5", "work")
        x, y, width, height = until(self.panel, "the bar is shown")["frame"]
        self.assertEqual((y, x + width // 2), (0, 640))
        self.assertLess(height, 60)
        self.assertFalse(self.panel()["focus"])
        self.session.run("move(640, 300); await sleep(100); move(640, 20);")
        until(lambda: self.panel()["frame"][3] > 300, "it opens under the pointer")
        self.session.run("move(640, 300)")
        self.close_to_bar()

    def test_copies_back_and_types(self):
        target = self.client("target", "--copy", "first copy")
        until(lambda: "first copy" in self.store(), "it is stored")
        self.client("other", "--copy", "second copy")
        until(lambda: "second copy" in self.store(), "it is stored")
        x, y, width, height = self.open()["frame"]
        self.session.run(f"await sleep(300); await shot('{self.session.folder}/open.png');"
                         f"await click({x + width // 4}, {y + ROW_BELOW});")
        until(lambda: any("x-ravelo" in one for one in self.session.run(
            "return global.display.get_selection().get_mimetypes(1)")), "the older copy is put back")
        self.close()
        until(lambda: self.window("other")["focus"], "the focus is given back")
        self.session.run("(await windows()); const [one] = global.get_window_actors().map(actor => actor.meta_window)"
                         ".filter(window => window.title === 'target'); one.activate(0); await sleep(300);"
                         "const control = down => keyboard.notify_keyval(GLib.get_monotonic_time(),"
                         "Clutter.KEY_Control_L, down); control(1); await key(Clutter.KEY_v); control(0);")
        until(lambda: "key first copy\n" in target.lines, "the older copy is pasted")

        self.open()
        self.session.run(f"await click({x + SEARCH_X}, {y + SEARCH_Y}); await type('second');")
        until(lambda: self.panel()["focus"], "the field has the keyboard")
        self.session.run(f"await sleep(200); await shot('{self.session.folder}/typed.png');"
                         "await key(Clutter.KEY_Escape); await key(Clutter.KEY_Escape);")
        until(lambda: not self.panel(), "Escape closes it")
        until(lambda: self.window("target")["focus"], "the focus is given back")

    def test_takes_dropped_files(self):
        self.client("source", "--drag", "/etc/hostname")
        x, y, width, height = self.window("source")["frame"]
        start = f"{x + width // 2}, {y + height * 2 // 3}"
        self.session.run(f"move({start}); await sleep(200); button(true); await sleep(100);"
                         f"await glide({start}, 640, 0);")
        until(self.panel, "the panel opens for the drag")
        self.session.run("await sleep(200); await glide(640, 0, 640, 150); await sleep(300); button(false);")
        until(lambda: "/etc/hostname" in self.command("shelf", "list"), "the file is on the shelf")

    def test_is_gone_while_the_screen_is_locked(self):
        self.open()
        self.session.run("Main.sessionMode.pushMode('unlock-dialog')")
        until(lambda: not self.panel(), "the panel is hidden")
        self.assertEqual(self.strips(), 0)
        self.command("--toggle")
        self.session.run("await sleep(300)")
        self.assertFalse(self.panel(), "it opens over the locker")
        self.session.run("Main.sessionMode.popMode('unlock-dialog')")
        until(lambda: self.strips() == 1, "the extension is back")
        self.session.run("move(640, 400)")
        self.open()

    def test_ends_cleanly_and_leaves_the_shell_at_rest(self):
        self.client("text", "--copy", "kept")
        until(lambda: "kept" in self.store(), "it is stored")
        self.ravelo.send_signal(signal.SIGKILL)
        until(lambda: self.strips() == 0, "the extension is quiet", 1)
        self.ravelo = self.session.start(PROGRAM, log="ravelo.log")
        until(lambda: self.strips() == 1, "it is back with Ravelo", 20)
        self.session.shell.kill()
        self.assertEqual(until(lambda: self.ravelo.poll() is not None, "it ends with the shell"), True)
        self.assertGreaterEqual(self.ravelo.returncode, 0, "it crashed")
        self.assertIn("kept", self.store())

    def test_works_with_the_desktops_own_programs(self):
        folder = self.session.home / "parked"
        folder.mkdir()
        (folder / "a file.txt").write_text("contents")
        self.session.start("nautilus", folder, log="nautilus.log")
        x, y, _, _ = until(lambda: self.window("parked"), "the file manager is shown", 40)["frame"]
        self.session.run("await sleep(1500)")
        file = f"{x + 333}, {y + 118}"
        self.session.run(f"await click({file}); await sleep(500);"
                         f"{CONTROL} control(1); await sleep(50); await key(Clutter.KEY_c); control(0);")
        until(lambda: "a file.txt" in self.store(), "a copied file is stored by its path")
        self.session.run(f"move({file}); await sleep(200); button(true); await sleep(100);"
                         f"await glide({file}, 640, 0);")
        until(self.panel, "the panel opens for the drag")
        self.session.run("await sleep(200); await glide(640, 0, 640, 150); await sleep(300); button(false);")
        until(lambda: str(folder / "a file.txt") in self.command("shelf", "list"), "the file is parked")
        self.session.run("await sleep(300)")
        self.close()

        self.client("client", "--copy", "pasted again")
        until(lambda: "pasted again" in self.store(), "a text is stored")
        self.session.start("gnome-text-editor", "--standalone", log="editor.log")
        editor = until(lambda: next((one for one in self.session.run("return windows()") if one["focus"]
                                     and one["title"] not in ("client", "parked")), None), "an editor", 40)
        self.open()
        self.session.run(f"await sleep(300); await shot('{self.session.folder}/shelf.png');")
        self.close()
        self.session.run(f"{CONTROL} control(1); await key(Clutter.KEY_v); control(0); await sleep(1000);"
                         f"await shot('{self.session.folder}/editor.png');")
        until(lambda: any("pasted again" in one["title"] for one in self.session.run("return windows()")),
              f"the editor has the text; before: {editor['title']}")


class OwnersTest(ProgramCase):
    x11 = True

    def test_captures_from_x11_and_is_not_held_up_by_an_owner_that_hangs(self):
        names = ("DISPLAY", "XAUTHORITY")
        values = self.session.run("return [GLib.getenv('DISPLAY'), GLib.getenv('XAUTHORITY')]")
        copying = subprocess.Popen(["xclip", "-selection", "clipboard"], stdin=subprocess.PIPE,
                                   env={**self.session.environment, **dict(zip(names, values))})
        self.session.processes.append(copying)
        copying.communicate(b"from X11")
        until(lambda: "from X11" in self.store(), "a copy of an X11 program is stored")

        hanging = self.client("hanging", "--copy", "hung")
        until(lambda: "hung" in self.store(), "it is stored")
        self.session.run("await key(Clutter.KEY_F5)")
        hanging.process.send_signal(signal.SIGSTOP)
        began = time.monotonic()
        self.command("--status")
        self.assertLess(time.monotonic() - began, 1, "it waits for the owner")
        self.client("next", "--copy", "next copy")
        until(lambda: "next copy" in self.store(), "the next copy is stored")


if __name__ == "__main__":
    unittest.main(verbosity=2)

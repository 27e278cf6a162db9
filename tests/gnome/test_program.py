"""Ravelo on a real GNOME Shell with its extension. Run by scripts/gnome, which says where the program is."""

import contextlib
import json
import os
import pathlib
import signal
import statistics
import subprocess
import time
import unittest

from gi.repository import GLib

import shell
from shell import until
from test_extension import ExtensionCase

# Places in the panel, which is 927 pixels wide.
ROW_BELOW = 340
SEARCH_X, SEARCH_Y = 300, 220
COPY_LAST_X, COPY_LAST_Y = 717, 44

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

# Locks the screen as GNOME does, which has a locker only with its display manager.
LOCK = """
    const {ScreenShield} = %d < 45 ? imports.ui.screenShield
        : await import('resource:///org/gnome/shell/ui/screenShield.js');
    kept.shield ??= new ScreenShield();
    kept.shield.lock(false);
    await sleep(1500);
""" % shell.release()

# A key to hold.
CONTROL = """const control = async (letter, modifier = Clutter.KEY_Control_L) => {
    keyboard.notify_keyval(GLib.get_monotonic_time(), modifier, 1);
    await sleep(50);
    await key(letter);
    keyboard.notify_keyval(GLib.get_monotonic_time(), modifier, 0);
};"""

PASTED = """
    return new Promise(done => St.Clipboard.get_default().get_text(St.ClipboardType.CLIPBOARD,
        (_, text) => done(text)));
"""

PICTURES = pathlib.Path(os.environ.get("RAVELO_PICTURES", shell.ROOT / "build/desktops"))
FOLDER, FILE = "parked", "a file.txt"
ICON_LEFT, ICON_TOP = 333, 118  # Of the one file in Nautilus.


class ProgramCase(ExtensionCase):
    x11 = False
    extensions = (shell.COMPANION,)
    settings = ""
    environment = {}

    @classmethod
    def setUpClass(cls):
        pass  # A shell for each test.

    def setUp(self):
        self.session = self.enterContext(shell.Shell(self.extensions, self.monitors, self.x11, self.settings))
        config = self.session.home / ".config/ravelo"
        config.mkdir(parents=True)
        (config / "preferences.json").write_text(
            json.dumps({"onboarded": True, "didSetupLogin": True, "seededSiteLinksV1": True}))
        self.ravelo = self.session.start(PROGRAM, log="ravelo.log", **self.environment, **self.x11_names())
        if self.extensions:
            until(lambda: self.strips() > 0 or self.failed(), "the extension is connected", 60)

    def x11_names(self):
        names = ("DISPLAY", "XAUTHORITY")
        return dict(zip(names, self.session.run("return [GLib.getenv('DISPLAY'), GLib.getenv('XAUTHORITY')]"))) \
            if self.x11 else {}

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

    def keep(self, name):
        """A picture, to be looked at or compared."""
        PICTURES.mkdir(parents=True, exist_ok=True)
        path = PICTURES / f"gnome-{name}.png"
        self.session.run(f"await sleep(600); await shot('{path}');")
        return path

    def nautilus_file(self, name=FOLDER):
        """Shows a folder with one file, and returns where to click or drag that."""
        folder = self.session.home / name
        folder.mkdir(exist_ok=True)
        (folder / FILE).write_text("contents")
        self.session.start("nautilus", folder, log="nautilus.log")
        x, y, _, _ = until(lambda: self.window(name), "the file manager is shown", 40)["frame"]
        self.session.run("await sleep(1500)")
        return f"{x + ICON_LEFT}, {y + ICON_TOP}"

    def close(self):
        self.session.run("await click(100, 700)")
        until(lambda: not self.panel(), "the panel closes")

    def store(self):
        file = self.session.home / ".local/share/Ravelo/store.json"
        return file.read_text() if file.exists() else ""

    def preferences(self):
        return (self.session.home / ".config/ravelo/preferences.json").read_text()

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
        secret = self.client("secret", "--secret", "hunter2")
        self.session.run("await sleep(1000)")
        secret.end()
        until(lambda: self.session.run("return global.display.get_selection().get_mimetypes(1)"),
              "the shell keeps the password, too")
        self.session.run("await sleep(1000)")
        self.client("picture", "--image", next(shell.ROOT.glob("docs/screenshots/dark/*.png")))
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

    def test_copies_back(self):
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
        self.session.run("global.get_window_actors().map(actor => actor.meta_window)"
                         ".find(window => window.title === 'target').activate(0); await sleep(300);"
                         f"{CONTROL} await control(Clutter.KEY_v);")
        until(lambda: "key first copy\n" in target.lines, "the older copy is pasted")

    def test_copies_an_image_back_by_key(self):
        self.client("picture", "--image", next(shell.ROOT.glob("docs/screenshots/dark/*.png")))
        clips = self.session.home / ".local/share/Ravelo/clips"
        until(lambda: list(clips.glob("*.png")), "an image is stored")
        self.client("later", "--copy", "another")
        until(lambda: "another" in self.store(), "a text is stored")
        self.command("--toggle")
        until(lambda: (self.panel() or {}).get("focus"), "the panel has the keyboard")
        self.session.run("await sleep(300); await key(Clutter.KEY_Down); await key(Clutter.KEY_Return);")
        until(lambda: not self.panel(), "the panel closes")
        types = "return global.display.get_selection().get_mimetypes(Meta.SelectionType.SELECTION_CLIPBOARD)"
        until(lambda: "image/png" in self.session.run(types), "the image is on the clipboard")

    def test_is_gone_while_the_screen_is_locked(self):
        self.open()
        self.session.run(LOCK)
        until(lambda: not self.panel(), "the panel is hidden")
        self.assertEqual(self.strips(), 0)
        self.command("--toggle")
        self.session.run("move(640, 300); await sleep(100); move(640, 0); await sleep(500);")
        self.assertEqual(self.session.run("return Main.sessionMode.currentMode"), "unlock-dialog")
        self.keep("locked")
        self.assertFalse(self.panel(), "it opens over the locker")
        self.session.run("kept.shield.deactivate(false)")
        until(lambda: self.strips() == 1, "the extension is back")
        self.session.run("move(640, 400)")
        self.open()

    def test_ends_cleanly_and_leaves_the_shell_at_rest(self):
        self.ravelo.send_signal(signal.SIGKILL)
        until(lambda: self.strips() == 0, "the extension is quiet", 1)
        self.session.shell.send_signal(signal.SIGSTOP)  # As busy as at a login.
        self.ravelo = self.session.start(PROGRAM, log="ravelo.log")
        time.sleep(2)
        self.session.shell.send_signal(signal.SIGCONT)
        until(lambda: self.strips() == 1 or self.failed(), "it is back with Ravelo", 20)
        (self.session.folder / "a parked file").touch()
        self.command(str(self.session.folder / "a parked file"))
        self.session.shell.kill()  # Before that is saved.
        self.assertEqual(until(lambda: self.ravelo.poll() is not None, "it ends with the shell"), True)
        self.assertGreaterEqual(self.ravelo.returncode, 0, "it crashed")
        self.assertIn("a parked file", self.store(), "what was not saved yet is lost")

    def test_copies_files_of_nautilus_and_back(self):
        file = self.nautilus_file()
        self.session.run(f"await click({file}); await sleep(500); {CONTROL} await control(Clutter.KEY_c);")
        until(lambda: FILE in self.store(), "a copied file is stored by its path")
        target = self.session.home / "target"
        target.mkdir()
        self.session.start("nautilus", target, log="nautilus.log")
        until(lambda: (self.window("target") or {}).get("focus"), "the other folder is shown", 40)
        self.command(str(self.session.home / FOLDER / FILE))
        x, y, _, _ = until(self.panel, "it shows the parked file")["frame"]
        self.session.run(f"move({x + COPY_LAST_X}, {y + COPY_LAST_Y}); await sleep(600);"
                         f"await click({x + COPY_LAST_X}, {y + COPY_LAST_Y});")
        self.keep("copied-file")
        until(lambda: "x-special/gnome-copied-files" in self.session.run(
            "return global.display.get_selection().get_mimetypes(Meta.SelectionType.SELECTION_CLIPBOARD)"),
              "the file is on the clipboard")
        self.close()
        until(lambda: self.window("target")["focus"], "the focus is given back")
        self.session.run(f"{CONTROL} await control(Clutter.KEY_v);")
        until((target / FILE).exists, "the copied file is pasted")

    def test_pastes_into_the_text_editor(self):
        self.client("client", "--copy", "pasted again")
        until(lambda: "pasted again" in self.store(), "a text is stored")
        self.client("later", "--copy", "another")
        until(lambda: "another" in self.store(), "a text is stored")
        self.session.start("gnome-text-editor", "--standalone", log="editor.log")
        until(lambda: next((one for one in self.session.run("return windows()") if one["focus"]
                            and one["title"] not in ("client", "later")), None), "an editor", 40)
        x, y, width, _ = self.open()["frame"]
        self.session.run(f"await sleep(300); await click({x + width // 4}, {y + ROW_BELOW});")
        self.close()
        self.session.run(f"{CONTROL} await control(Clutter.KEY_v);")
        until(lambda: any("pasted again" in one["title"] for one in self.session.run("return windows()")),
              "the editor has the text")
        self.keep("editor")

    def test_leaves_the_resting_shell_alone(self):
        def at_rest():
            """Of five seconds: how often the shell's main thread went to sleep, and its memory."""
            self.session.run("move(600, 500); await sleep(8000); imports.system.gc();")
            process = pathlib.Path(f"/proc/{self.session.shell.pid}")
            switches = lambda: sum(int(line.split()[1]) for line in (process / "status").read_text().splitlines()
                                   if line.startswith("voluntary_ctxt_switches"))
            before = switches()
            time.sleep(5)
            memory = next(int(line.split()[1]) for line in (process / "smaps_rollup").read_text().splitlines()
                          if line.startswith("Pss_Anon:"))
            return switches() - before, memory / 1024

        enabled = f"Main.extensionManager.lookup('{shell.COMPANION}').stateObj"
        with_it = at_rest()
        self.session.run(f"{enabled}.disable()")
        without = at_rest()
        self.session.run(f"{enabled}.enable()")
        print(f"the shell at rest with Ravelo: {with_it[0]} switches in 5 s, {with_it[1]:.1f} MB; "
              f"extension off: {without[0]} switches, {without[1]:.1f} MB")
        self.assertLess(with_it[0], without[0] + 10)


class DriverTest(ProgramCase):
    environment = {"RAVELO_CORE_DUMPS": "1"}  # Or only root can read the maps.

    def test_loads_no_graphics_driver(self):
        self.open()
        self.assertEqual([word for word in ("libLLVM", "_dri.so", "libgallium")
                          if word in pathlib.Path(f"/proc/{self.ravelo.pid}/maps").read_text()], [])


class ScaledTest(ProgramCase):
    monitors = ("2560x1600",)

    def test_is_in_place_at_scales(self):
        self.open_at(2)

    def open_at(self, scale):
        self.session.set_scale(scale)
        self.session.run("await sleep(1000)")
        stage, monitor = self.session.run("return [St.ThemeContext.get_for_stage(global.stage).scale_factor,"
                                          "Main.layoutManager.primaryMonitor.width]")
        middle = monitor // 2
        self.session.run(f"move({middle}, 600); await sleep(100); move({middle}, 0);")
        x, y, width, _ = until(self.panel, f"the panel at a scale of {scale}")["frame"]
        self.assertEqual(width, 927 * stage)
        self.assertLess(abs(x + width / 2 - middle), 1.5)
        self.assertEqual(y, 0)
        self.session.run(f"move({middle}, 400)")
        self.keep(f"scale-{scale}")


class FractionallyScaledTest(ScaledTest):
    settings = "[org/gnome/mutter]\nexperimental-features=['scale-monitor-framebuffer']\n"

    def test_is_in_place_at_scales(self):
        self.open_at(1.25)


class OwnersTest(ProgramCase):
    x11 = True

    def test_captures_from_x11_and_is_not_held_up_by_an_owner_that_hangs(self):
        copying = subprocess.Popen(["xclip", "-selection", "clipboard"], stdin=subprocess.PIPE,
                                   env={**self.session.environment, **self.x11_names()})
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


class WithoutExtension:
    x11 = True
    extensions = ()

    def height(self):
        return next((one["frame"][3] for one in self.session.run("return windows()") if one["title"] == "Ravelo"), 0)


class WithoutExtensionTest(WithoutExtension, ProgramCase):
    def open(self):
        until(lambda: 0 < self.height() < 50, "the handle")
        self.session.run("move(640, 3)")
        until(lambda: self.height() > 500, "the open panel")

    def test_gets_clicks_and_closes_when_the_pointer_leaves(self):
        self.open()
        self.session.run("await sleep(500); await click(927, 180)")
        until(lambda: '"lastTab": "Shelf"' in self.preferences(), "the tab that was clicked")
        self.assertFalse(self.session.run("return global.display.get_monitor_in_fullscreen(0)"), "the bar stays")
        for way in ("for (let y = 190; y < 790; y += 10) { move(640, y); await sleep(10); }",
                    "move(640, 300); await sleep(100); move(50, 300);"):
            self.session.run(way)
            until(lambda: self.height() < 50, f"it closes: {way}")
            own = [one["frame"] for one in self.session.run("return windows()") if one["pid"] == self.ravelo.pid]
            self.assertEqual(own, [[540, 0, 200, 12]], "nothing else of it takes clicks")
            self.open()


class PasswordTest(ProgramCase):
    x11 = True

    def keepassxc(self, *command, text):
        subprocess.run(["keepassxc-cli", *command], input=text, text=True, env=self.session.environment, check=True,
                       capture_output=True, timeout=60)

    def test_does_not_even_fetch_a_password(self):
        database = self.session.home / "secrets.kdbx"
        self.keepassxc("db-create", "--set-password", "--decryption-time", "100", database, text="master\nmaster\n")
        self.keepassxc("add", "--password-prompt", database, "entry", text="master\nhunter2\n")
        self.session.run(f"""
            const clipboard = Main.extensionManager.lookup('{shell.COMPANION}').stateObj._clipboard;
            const give = clipboard.give;
            kept.wanted = [];
            clipboard.give = want => {{ kept.wanted.push(want.type); give.call(clipboard, want); }};
        """)
        configuration = self.session.home / "keepassxc.ini"
        configuration.write_text("[General]\nUpdateCheckMessageShown=true\n[GUI]\nCheckForUpdates=false\n")
        # The password is typed: with --pw-stdin, KeePassXC 2.7.10 crashes while it shows its window.
        manager = subprocess.Popen(["keepassxc", "--config", configuration, database], stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, preexec_fn=shell.end_with_us,
                                   env={**self.session.environment, **self.x11_names(), "QT_QPA_PLATFORM": "xcb"})
        self.session.processes.append(manager)

        def shown(locked):
            return next((one for one in self.session.run("return windows()") if "KeePassXC" in (one["title"] or "")
                         and "secrets" in one["title"] and ("Locked" in one["title"]) == locked and one["focus"]), None)
        until(lambda: shown(True), "the password manager asks for its password", 40)
        self.session.run("await sleep(1000); await type('master'); await key(Clutter.KEY_Return);")
        x, y, width, height = until(lambda: shown(False), "the password manager is unlocked", 40)["frame"]
        self.session.run(f"await sleep(1500); await click({x + width * 6 // 10}, {y + 130}); await sleep(300);")
        self.keep("keepassxc")
        self.session.run(f"{CONTROL} await control(Clutter.KEY_c);")
        until(lambda: "x-kde-passwordManagerHint" in self.session.run(
            "return global.display.get_selection().get_mimetypes(Meta.SelectionType.SELECTION_CLIPBOARD)"),
              "the password is copied")
        self.assertEqual(self.session.run(PASTED), "hunter2")
        self.session.run("await sleep(1000)")
        self.assertEqual(self.session.run("return kept.wanted"), ["x-kde-passwordManagerHint"])
        self.assertNotIn("hunter2", self.store())


class PasteAtOnceTest(ProgramCase):
    """With the desktop's own portal, whose dialog asks the user."""

    # Its title, and where it has its switch, its button that allows and the one that does not.
    dialog, switch, share = ("Remote desktop", (430, 74), (453, 23)) if shell.release() < 45 \
        else ("Remote Desktop", (575, 157), (612, 23))
    cancel = (50, 23)
    remembers = shell.release() >= 46

    def setUp(self):
        super().setUp()
        for name in ("xdg-permission-store", "xdg-desktop-portal-gnome", "xdg-desktop-portal"):
            self.session.start(f"/usr/libexec/{name}", log=f"{name}.log")
        until(self.has_portal, "the portal is up")
        self.target = self.client("target", "--copy", "a clip")
        until(lambda: "a clip" in self.store(), "it is stored")

    def has_portal(self):
        try:
            return self.session.call("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                                     "org.freedesktop.DBus.Properties", "Get",
                                     GLib.Variant("(ss)", ("org.freedesktop.portal.RemoteDesktop", "version")))
        except GLib.Error:
            return None

    def paste(self):
        self.command("--toggle")
        until(lambda: (self.panel() or {}).get("focus"), "the panel has the keyboard")
        self.session.run(f"{CONTROL} await control(Clutter.KEY_Return, Clutter.KEY_Shift_L);")

    def answer(self, *clicks):
        """Clicks at these places of the dialog."""
        x, y, _, _ = until(lambda: self.window(self.dialog), "the desktop asks")["frame"]
        self.session.run("await sleep(600);")
        for dx, dy in clicks:
            self.session.run(f"await click({x + dx}, {y + dy}); await sleep(300);")
        until(lambda: not self.window(self.dialog), "the question is answered")

    def pasted(self):
        return [line for line in self.target.lines if line.startswith("key")]

    def test_pastes_once_the_user_allows_it(self):
        self.session.run("await sleep(500)")
        self.assertFalse(self.window(self.dialog), "it asks before anybody wants to paste")
        self.paste()
        until(lambda: self.window(self.dialog), "the desktop asks")
        self.keep("paste-dialog")
        self.assertEqual(self.pasted(), [])
        self.answer(self.switch, self.share)
        until(self.pasted, "it pastes after the answer")
        self.assertEqual(self.pasted(), ["key a clip\n"])
        self.paste()
        until(lambda: len(self.pasted()) == 2, "it pastes again, without a question")
        self.assertEqual(self.pasted()[1], "key a clipa clip\n")
        self.session.run("""
            new Gio.Settings({schema_id: 'org.gnome.desktop.input-sources'}).set_value('sources',
                new GLib.Variant('a(ss)', [['xkb', 'ru']]));
            Gio.Settings.sync();
            await sleep(1500);
        """)
        self.paste()
        until(lambda: len(self.pasted()) == 3, "it pastes with a layout without a V")
        self.session.run("await sleep(500)")
        self.assertEqual(self.has_session(), not self.remembers, "it is open for no longer than it has to be")
        self.ravelo.terminate()
        until(lambda: not self.has_session(), "it ends with Ravelo")

    def has_session(self):
        """Ravelo's child lives on this session's bus."""
        def is_it(process):
            with contextlib.suppress(OSError):  # It may have ended.
                return b"ravelo-portal\0keyboard" in (process / "cmdline").read_bytes() \
                    and bytes(self.session.runtime) in (process / "environ").read_bytes()
            return False

        return any(map(is_it, pathlib.Path("/proc").glob("[0-9]*")))

    def test_only_copies_after_a_refusal(self):
        self.paste()
        self.answer(self.cancel)
        until(lambda: "typingRefused" in self.preferences(), "the refusal is kept")
        self.paste()
        until(lambda: self.window("target")["focus"], "the focus is given back")
        self.session.run("await sleep(1500)")
        self.assertFalse(self.window(self.dialog), "it asks again")
        self.assertEqual(self.pasted(), [])


@unittest.skipIf(shell.release() < 48, "its portal has no shortcuts")
class ShortcutTest(ProgramCase):
    """Keys by the desktop's own portal, whose dialog asks the user."""

    dialog, add = "Add Keyboard Shortcuts", (440, 22)

    def setUp(self):
        super().setUp()
        self.ravelo.terminate()
        self.ravelo.wait()
        applications = self.session.home / ".local/share/applications"
        applications.mkdir(parents=True, exist_ok=True)
        (applications / "org.ravelo.Ravelo.desktop").write_text(
            "[Desktop Entry]\nType=Application\nName=Ravelo\nExec=/bin/true\n")
        for name in ("xdg-permission-store", "gsd-media-keys", "gnome-control-center-global-shortcuts-provider",
                     "xdg-desktop-portal-gnome", "xdg-desktop-portal"):
            self.session.start(f"/usr/libexec/{name}", log=f"{name}.log")
            self.session.run("await sleep(1000)")

    def start(self, shortcut):
        preferences = self.session.home / ".config/ravelo/preferences.json"
        preferences.write_text(json.dumps({**json.loads(preferences.read_text()), "shortcut": shortcut}))
        self.ravelo = self.session.start(PROGRAM, log="ravelo.log", **self.x11_names())
        until(lambda: self.ready() or self.failed(), "Ravelo is ready", 60)

    def ready(self):
        return self.strips() > 0

    def stop(self):
        self.ravelo.terminate()
        self.ravelo.wait()

    def allow(self):
        x, y, _, _ = until(lambda: self.window(self.dialog), "the desktop asks")["frame"]
        self.session.run(f"await sleep(600); await click({x + self.add[0]}, {y + self.add[1]});")
        until(lambda: not self.window(self.dialog), "the question is answered")

    def press(self, letter):
        self.session.run(f"{CONTROL} await control(Clutter.KEY_{letter}, Clutter.KEY_Super_L);")

    def opens(self, letter):
        """And closes."""
        def pressed():
            self.press(letter)
            self.session.run("await sleep(500)")
            return self.panel()

        until(pressed, f"Super+{letter} opens the panel")
        self.press(letter)
        until(lambda: not self.panel(), f"Super+{letter} closes it")

    def test_keys_are_asked_for_once_and_change(self):
        self.start("Super+J")
        self.allow()
        self.opens("j")
        self.stop()
        self.start("Super+J")
        self.opens("j")
        self.assertFalse(self.window(self.dialog), "it asks again for the same keys")
        self.stop()
        self.start("Super+K")
        self.allow()
        self.opens("k")
        self.press("j")
        self.session.run("await sleep(1000)")
        self.assertFalse(self.panel(), "the old keys still work")


class ShortcutWithoutExtensionTest(WithoutExtension, ShortcutTest):
    def ready(self):
        return 0 < self.height() < 50

    def panel(self):
        return self.height() > 500

    def test_keys_are_asked_for_once_and_change(self):
        """Also while a Wayland window has the keyboard."""
        self.client("target")
        self.start("Super+J")
        self.allow()
        self.opens("j")


class TurnOnTest(ProgramCase):
    x11 = True
    extensions = ()

    def test_settings_turn_it_on(self):
        self.assertNotEqual(self.state(), 1, "it is on before anybody asked")
        until(lambda: "no timer" in self.command("timer", "status"), "Ravelo has started", 60)
        self.command("--settings")
        x, y, width, _ = until(lambda: next((one for one in self.session.run("return windows()")
                               if "ettings" in (one["title"] or "") and one["visible"]), None), "the settings")["frame"]
        self.keep("turn-on")
        self.session.run(f"await click({x + width - 60}, {y + 120})")
        until(lambda: self.state() == 1, "the extension is on")
        self.keep("turned-on")

    def state(self):
        return self.session.call("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell.Extensions",
                                 "GetExtensionInfo", GLib.Variant("(s)", (shell.COMPANION,)))[0]["state"]


if __name__ == "__main__":
    unittest.main(verbosity=2)

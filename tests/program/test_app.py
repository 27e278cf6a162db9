"""The command line, windows, status item and processes."""

import json
import os
import pathlib
import signal
import subprocess
import unittest

from program_case import SLOWER, AssistiveCase, ProgramCase
from desktop import WIDTH, wait_for
from tray_host import TrayHost

TOP_BAR = 44  # Its centre from the top.
GEAR_RIGHT = 50  # Its centre from the right.


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
        self.desktop.provide_assistance()
        self.desktop.preferences.unlink()
        self.ravelo.start()
        setup = self.expect_window(self.SETUP)
        self.assertEqual(setup[3:], (520, 520))
        self.close_by_window_manager()
        self.expect_none()
        self.stop()

        self.ravelo.start()
        setup = self.expect_window(self.SETUP)

        def moved():
            # A press before the window is ready is lost.
            before = self.ravelo.window(self.SETUP)
            self.desktop.drag((before.x + 100, before.y + 20), (before.x + 160, before.y + 50))
            self.desktop.run("xdotool", "mouseup", 1)
            now = self.ravelo.window(self.SETUP)
            # The motion before the window manager grabbed the pointer is not part of the move.
            return now and 0 < now.x - before.x <= 60 and 0 < now.y - before.y <= 30

        wait_for(moved, lambda: f"the window moved by its strip: {self.ravelo.window(self.SETUP)}")
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
        self.ravelo.call("--status")  # for longer than a jump there and back.
        self.ravelo.open()
        self.desktop.click(*beside)
        self.ravelo.call("--status")  # Answered after the press was heard of.
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


if __name__ == "__main__":
    unittest.main()

"""A private Wayland desktop: a compositor without devices, a session bus and a home directory."""

import contextlib
import json
import math
import os
import pathlib
import pwd
import re
import shutil
import subprocess
import tempfile

import page
from desktop import HERE, Desktop, Monitor, Picture, Ravelo, _die_with_parent, wait_for
from installed import Gio, GLib

WIDTH, HEIGHT = 1280, 800
LEFT, RIGHT = (Monitor(None, x, 0, WIDTH, HEIGHT) for x in (0, WIDTH))
SWAY_CONFIGURATION = f"""
output HEADLESS-1 resolution {WIDTH}x{HEIGHT} position 0 0
default_border none
xwayland {{xwayland}}
exec {{prepare}} echo "$WAYLAND_DISPLAY $SWAYSOCK $DISPLAY" >&{{report}}
"""
LABWC_CONFIGURATION = """<labwc_config>
  <desktops number="2"/>
  <keyboard>
    <keybind key="C-1"><action name="GoToDesktop" to="1"/></keybind>
    <keybind key="C-2"><action name="GoToDesktop" to="2"/></keybind>
  </keyboard>
</labwc_config>
"""
KEYS = {"Escape": 1, "Tab": 15, "Return": 28, " ": 57, "F2": 60, "End": 107, "Down": 108} | {
    key: first + place for row, first in (("1234567890", 2), ("qwertyuiop", 16), ("asdfghjkl", 30),
                                          ("zxcvbnm", 44)) for place, key in enumerate(row)}
MODIFIERS = {"shift": 1, "ctrl": 4, "super": 64}
BACKGROUND = (64, 160, 96)


class WaylandDesktop(Desktop):
    """Its programs speak Wayland only, unless `xwayland`. `hand` is tools/virtual_hand.

    Subclasses start the compositor, as nobody if it would be root: sway refuses that.
    """

    outputs_at_start = 1

    def __init__(self, hand, xwayland=False):
        super().__init__(window_manager=None)
        self.xwayland = xwayland
        self.hand = None
        self.outputs = 1  # Of the same size, side by side.
        self._hand_program = hand
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="ravelo-wayland-"))
        self._cleanup.callback(shutil.rmtree, self._folder, ignore_errors=True)
        del self.env["QT_QPA_PLATFORM"]

    def _start_server(self):
        self._start_compositor()
        self.env["GDK_BACKEND"] = "wayland"
        self.hand = self.peer(self._hand_program, stdin=subprocess.PIPE)

    def _start_compositor(self):
        raise NotImplementedError

    def _spawn_wlroots(self, *command, **options):
        nobody = pwd.getpwnam("nobody") if os.geteuid() == 0 else None
        if nobody:
            for path in (self._folder, *self._folder.rglob("*")):
                os.chown(path, nobody.pw_uid, nobody.pw_gid)
        env = {**self.env, "HOME": str(self._folder), "XDG_RUNTIME_DIR": str(self._folder),
               "XDG_CONFIG_HOME": str(self._folder), "WLR_BACKENDS": "headless",
               "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman",
               "WLR_HEADLESS_OUTPUTS": str(self.outputs_at_start)}

        def become():
            if nobody:
                os.setgroups([])
                os.setgid(nobody.pw_gid)
                os.setuid(nobody.pw_uid)
            _die_with_parent()

        self.server = self.spawn(*command, env=env, cwd=self._folder, preexec_fn=become,
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)

    def _take_sockets(self, line):
        sockets = line.split()
        assert sockets, f"{type(self).__name__}: the compositor did not start"
        self.env["WAYLAND_DISPLAY"] = str(self._folder / sockets[0])
        if self.xwayland:
            self.env["DISPLAY"] = sockets[-1]

    def show_background(self):
        """A full-screen GTK window with a text field, which prints its text at each change."""
        color = "#%02x%02x%02x" % BACKGROUND
        window = self.gtk("fullscreen", color, 0, WIDTH, HEIGHT)
        wait_for(lambda: self.picture().at(WIDTH // 2, HEIGHT // 2) == BACKGROUND, "a background")
        return window

    def layer(self, layer, color, height, output=0):
        """A bar or a wallpaper."""
        return self.peer("/usr/bin/python3", HERE / "layer_peer.py", layer, color, height, output)

    # Outputs and workspaces.

    def add_output(self):
        """A second one, right of the first."""
        raise NotImplementedError

    def remove_output(self):
        raise NotImplementedError

    def _wait_for_outputs(self, count):
        self.outputs = count
        wait_for(lambda: self.picture().width == count * WIDTH, f"{count} outputs")

    def set_scale(self, scale):
        """Of the first output, which keeps its number of pixels."""
        raise NotImplementedError

    def show_workspace(self, number):
        """0 or 1."""
        raise NotImplementedError

    # Clipboard.

    def copy_text(self, text, target=None):
        as_target = ["--type", target] if target else []
        self.run("wl-copy", *as_target, "--", text)

    def paste_text(self):
        return self.run("timeout", "3", "wl-paste", "--no-newline")

    # Screen, pointer and keyboard.

    def picture(self):
        return self._grim()

    def _grim(self, *part, display=None):
        env = {**self.env, "WAYLAND_DISPLAY": display or self.env["WAYLAND_DISPLAY"]}
        done = subprocess.run(["grim", "-t", "ppm", *part, "-"], env=env, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, timeout=20, check=False)
        return Picture(done.stdout)

    def _tell(self, *words):
        self.hand.stdin.write(" ".join(map(str, words)) + "\n")
        self.hand.stdin.flush()
        assert self.hand.stdout.readline() == "ready\n", "the compositor is gone"

    def point(self, x, y):
        """One motion."""
        self._tell("move", x, y, WIDTH * self.outputs, HEIGHT)

    def move(self, x, y):
        self.point(x - 1, y)
        self.point(x, y)

    def click(self, x, y):
        self.move(x, y)
        self.press()
        self.release()

    def press(self):
        self._tell("press")

    def release(self):
        self._tell("release")

    def drag(self, start, to):
        """Presses at `start`, moves, and does not release."""
        self.move(*start)
        self.press()
        for step in range(1, 21):
            self.point(start[0] + (to[0] - start[0]) * step // 20,
                       start[1] + (to[1] - start[1]) * step // 20)

    def key(self, name):
        *modifiers, key = name.split("+")
        self._tell("key", KEYS[key], sum(MODIFIERS[modifier] for modifier in modifiers))

    def type(self, text):
        for letter in text:
            self.key(letter)


class SwayDesktop(WaylandDesktop):
    def _start_compositor(self):
        self._start_sway(self.xwayland)

    def _start_sway(self, xwayland):
        reading, writing = os.pipe()
        configuration = self._folder / "config"
        configuration.write_text(SWAY_CONFIGURATION.format(
            report=writing, xwayland="force" if xwayland else "disable",
            prepare="xhost +local: >/dev/null &&" if xwayland else ""))  # For other users.
        self._spawn_wlroots("sway", "-c", configuration, pass_fds=(writing,))
        os.close(writing)
        with os.fdopen(reading) as answer:
            line = answer.readline()
        self._take_sockets(line)
        self.env["SWAYSOCK"] = line.split()[1]

    def sway(self, *command):
        return self.run("swaymsg", "--raw", *command)

    def add_output(self):
        self.sway("create_output")
        self.sway("output", self._newest(), "resolution", f"{WIDTH}x{HEIGHT}", "position", WIDTH, 0)
        self._wait_for_outputs(2)

    def remove_output(self):
        """Sway 1.7 cannot, nor can it disable one of its headless backend."""
        if not json.loads(self.sway("output", self._newest(), "unplug"))[0]["success"]:
            raise NotImplementedError
        self._wait_for_outputs(1)

    def _newest(self):
        """The name of the newest output: sway counts on."""
        return max(re.findall(r"HEADLESS-\d+", self.sway("-t", "get_outputs")),
                   key=lambda name: int(name.split("-")[1]))

    def set_scale(self, scale):
        self.sway("output", "HEADLESS-1", "scale", scale)

    def show_workspace(self, number):
        self.sway("workspace", f"test-{number}" if number else "1")


class LabwcDesktop(WaylandDesktop):
    """Its second output exists from the start and is off."""

    outputs_at_start = 2

    def _start_compositor(self):
        folder = self._folder / "labwc"
        folder.mkdir()
        (folder / "rc.xml").write_text(LABWC_CONFIGURATION)
        report = self._folder / "report"
        self._spawn_wlroots("labwc", "-C", folder, "-s",
                            f"sh -c 'echo $WAYLAND_DISPLAY $DISPLAY >{report}.new; mv {report}.new {report}'")
        wait_for(report.exists, "labwc")
        self._take_sockets(report.read_text())
        self.run("wlr-randr", "--output", "HEADLESS-2", "--off")
        self.run("wlr-randr", "--output", "HEADLESS-1", "--custom-mode", f"{WIDTH}x{HEIGHT}", "--pos", "0,0")

    def add_output(self):
        self.run("wlr-randr", "--output", "HEADLESS-2", "--on", "--custom-mode",
                 f"{WIDTH}x{HEIGHT}", "--pos", f"{WIDTH},0")
        self._wait_for_outputs(2)

    def remove_output(self):
        self.run("wlr-randr", "--output", "HEADLESS-2", "--off")
        self._wait_for_outputs(1)

    def set_scale(self, scale):
        self.run("wlr-randr", "--output", "HEADLESS-1", "--scale", scale)

    def show_workspace(self, number):
        self.key(f"ctrl+{number + 1}")


class KWinDesktop(WaylandDesktop):
    """Its second output exists from the start and is off."""

    def __init__(self, hand, xwayland=False):
        super().__init__(hand, xwayland)
        self._bus = None
        self._scale = 1

    def _start_compositor(self):
        super()._start_bus()  # It is called on it.
        applications = self.home / "data/applications"
        applications.mkdir(parents=True)
        (applications / "pictures.desktop").write_text(
            "[Desktop Entry]\nType=Application\nName=Pictures\n"
            f"Exec={os.path.realpath('/proc/self/exe')}\n"
            "X-KDE-DBUS-Restricted-Interfaces=org.kde.KWin.ScreenShot2\n")
        self._start_kwin("O2", "--virtual")
        self._bus = self.bus()
        wait_for(lambda: "CaptureWorkspace" in self.run(
            "gdbus", "introspect", "--session", "--dest", "org.kde.KWin", "--object-path",
            "/org/kde/KWin/ScreenShot2"), "KWin")
        self._prepare()

    def _start_kwin(self, renderer, *backend):
        # Its file capabilities can fail in a container, and a copy has none.
        program = shutil.copy(shutil.which("kwin_wayland"), self._folder)
        report, script = self._folder / "report", self._folder / "report.sh"
        script.write_text(f"echo $WAYLAND_DISPLAY $DISPLAY >{report}.new; mv {report}.new {report}")
        # The pointer jumps here, and would be held at the edge of an output.
        (self.home / "config/kwinrc").write_text("[EdgeBarrier]\nEdgeBarrier=0\nCornerBarrier=false\n")
        env = {**self.env, "XDG_RUNTIME_DIR": str(self._folder), "KWIN_COMPOSE": renderer,
               "LIBGL_ALWAYS_SOFTWARE": "1", "KWIN_WAYLAND_NO_PERMISSION_CHECKS": "1",
               "KWIN_SCREENSHOT_NO_PERMISSION_CHECKS": "1"}
        self.server = self.spawn(
            program, *backend, "--width", WIDTH, "--height", HEIGHT, "--output-count", 2, "--no-lockscreen",
            "--no-global-shortcuts", "--socket", "wayland-k", *(["--xwayland"] if self.xwayland else []),
            f"sh {script}", env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(report.exists, "KWin")
        self._take_sockets(report.read_text())
        self.env["XDG_CURRENT_DESKTOP"] = "KDE"

    def _prepare(self):
        self._call("/VirtualDesktopManager", "org.kde.KWin.VirtualDesktopManager.createDesktop", 1, "two")
        self._doctor(2, "disable")
        self._wait_for_outputs(1)

    def _call(self, path, method, *arguments):
        return self.run("gdbus", "call", "--session", "--dest", "org.kde.KWin", "--object-path", path,
                        "--method", method, *arguments)

    def _start_bus(self):
        pass

    def _doctor(self, output, change):
        self.run("env", "QT_QPA_PLATFORM=wayland", "kscreen-doctor", f"output.{output}.{change}")

    def add_output(self):
        self._doctor(2, "enable")
        self._wait_for_outputs(2)

    def remove_output(self):
        self._doctor(2, "disable")
        self._wait_for_outputs(1)

    def set_scale(self, scale):
        self._scale = scale
        self._doctor(1, f"scale.{scale}")

    def point(self, x, y):
        """Its places are not in pixels."""
        super().point(round(x / self._scale), round(y / self._scale))

    def show_workspace(self, number):
        self._call("/KWin", "org.kde.KWin.setCurrentDesktop", number + 1)

    def picture(self):
        """Not always at once: the effect that takes pictures is loaded anew when outputs change."""
        def attempt():
            with contextlib.suppress(GLib.Error):
                return kwin_picture(self._bus)

        return wait_for(attempt, "a picture by KWin")


def kwin_picture(bus):
    """Of all outputs, without the pointer."""
    reading, writing = os.pipe()
    descriptors = Gio.UnixFDList.new()
    descriptors.append(writing)
    os.close(writing)
    answer, _ = bus.call_with_unix_fd_list_sync(
        "org.kde.KWin", "/org/kde/KWin/ScreenShot2", "org.kde.KWin.ScreenShot2", "CaptureWorkspace",
        GLib.Variant("(a{sv}h)", ({"native-resolution": GLib.Variant("b", True)}, 0)), None, Gio.DBusCallFlags.NONE, 20000, descriptors, None)
    del descriptors  # Closes it.
    with os.fdopen(reading, "rb") as file:
        data = file.read()
    about = answer.unpack()[0]
    assert about["format"] in (4, 5, 6), f"an unknown format of pixels, {about['format']}"
    pixels = bytearray(about["width"] * about["height"] * 3)
    for to, source in enumerate((2, 1, 0)):  # Blue is first.
        pixels[to::3] = data[source::4]
    return Picture(b"P6\n%d %d\n255\n" % (about["width"], about["height"]) + bytes(pixels))


class NestedKWinDesktop(KWinDesktop, SwayDesktop):
    """With its outputs in windows of a sway, which takes the pictures: without a graphics device KWin 6
    draws by the processor only, and then takes none itself.
    """

    outputs_at_start = 2

    def _start_compositor(self):
        WaylandDesktop._start_bus(self)
        self._start_sway(xwayland=False)
        self._outer = self.env["WAYLAND_DISPLAY"]
        self.sway("output", "HEADLESS-2", "resolution", f"{WIDTH}x{HEIGHT}", "position", WIDTH, 0)
        for output in range(2):  # KWin waits for sway's next picture, even if it has changed nothing.
            self.layer("pulse", "transparent", 1, output)
        self._start_kwin("Q", "--wayland-display", self._outer)
        for number in (1, 2):  # Each fills one of sway's.
            wait_for(lambda n=number: '"success": true' in self.sway(
                f'[title="WL-{n - 1}"] move container to output HEADLESS-{n}'), f"KWin's output {number}")
        self._prepare()

    def set_scale(self, scale):
        """Sway gives the window a size that makes as many pixels as before."""
        super().set_scale(scale)
        width, height = (int(length / scale) * self._outer_scale() for length in (WIDTH, HEIGHT))
        self.sway("output", "HEADLESS-1", "resolution", f"{width}x{height}", "scale", self._outer_scale())
        # The pulse there draws no more.
        self.peer("/usr/bin/python3", HERE / "layer_peer.py", "pulse", "transparent", 1, 0,
                  env={**self.env, "WAYLAND_DISPLAY": self._outer})

    def _outer_scale(self):
        """KWin tells sway whole scales only."""
        return math.ceil(self._scale)

    def picture(self):
        width, height = (length // self._outer_scale() for length in (WIDTH * self.outputs, HEIGHT))
        return self._grim("-g", f"0,0 {width}x{height}", display=self._outer)


def kwin_desktop(hand, xwayland=False):
    major = int(page.version("kwin_wayland").split(".")[0])
    return (NestedKWinDesktop if major >= 6 else KWinDesktop)(hand, xwayland)


class WaylandRavelo(Ravelo):
    """The program over a background of one colour: its windows cannot be listed, only seen."""

    def complaints(self):
        return [line for line in super().complaints() if "Wayland connection broke" not in line]

    def _covers(self, monitor, *places):
        picture, x = self.desktop.picture(), monitor.x + WIDTH // 2
        return [picture.at(x + at[0], at[1]) != BACKGROUND for at in places]

    def is_covered(self, x, y):
        return self.desktop.picture().at(x, y) != BACKGROUND

    def is_collapsed(self, monitor=LEFT):
        return self._covers(monitor, (0, 3), (0, 200)) == [True, False]

    def is_open(self, monitor=LEFT):
        return all(self._covers(monitor, (0, 3), (-400, 400), (400, 400)))

    def open(self, monitor=LEFT):
        self.desktop.move(monitor.x + WIDTH // 2 - 140, 5)  # Beside the handle, on the strip.
        wait_for(lambda: self.is_open(monitor), "the open panel")

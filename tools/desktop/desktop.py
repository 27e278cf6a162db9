"""A private desktop to run a program on: X server, window manager, session bus and home directory,
all removed at the end. The user's desktop and files are not touched.

Instead of sleeping, `wait_for` polls a condition with a long timeout.
"""

import collections
import contextlib
import ctypes
import json
import os
import pathlib
import re
import select
import shutil
import signal
import subprocess
import tempfile
import time

from installed import Gio

HERE = pathlib.Path(__file__).resolve().parent
WIDTH, HEIGHT = 1440, 900
GTK_PEER = ("/usr/bin/python3", HERE / "gtk_peer.py")
OPENBOX = ("openbox", "--sm-disable")

# Xorg with this driver supports several outputs, which Xvfb does not.
DUMMY_CONFIGURATION = f"""
Section "Monitor"
    Identifier "monitor"
    HorizSync 5-1000
    VertRefresh 5-200
    Modeline "{WIDTH}x{HEIGHT}" 106.50 {WIDTH} 1528 1672 1904 {HEIGHT} 903 909 934
EndSection
Section "Device"
    Identifier "device"
    Driver "dummy"
    VideoRam 65536
EndSection
Section "Screen"
    Identifier "screen"
    Device "device"
    Monitor "monitor"
    DefaultDepth 24
    SubSection "Display"
        Modes "{WIDTH}x{HEIGHT}" "1280x1024" "1920x1080"
    EndSubSection
EndSection
Section "ServerFlags"
    Option "AutoAddDevices" "false"
EndSection
"""

BUS_CONFIGURATION = """<busconfig>
  <type>session</type>
  <listen>unix:path={socket}</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

Geometry = collections.namedtuple("Geometry", "window x y width height")
Monitor = collections.namedtuple("Monitor", "output x y width height")
MAX_TRAY_ICON = 64
MAIN = Monitor("DUMMY0", 0, 0, WIDTH, HEIGHT)
RIGHT = Monitor("DUMMY1", WIDTH, 0, 1280, 1024)


def wait_for(condition, expected, timeout=20):
    """Returns the first true value of `condition()`; on timeout fails with `expected`.

    `expected` may be a function that is called on failure.
    """
    end = time.monotonic() + timeout
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            text = expected() if callable(expected) else expected
            raise AssertionError(f"not within {timeout} s: {text}")
        time.sleep(0.01)


def _die_with_parent():
    ctypes.CDLL(None).prctl(1, signal.SIGKILL)  # PR_SET_PDEATHSIG


def xvfb(_home, descriptor):
    return ("Xvfb", "-displayfd", descriptor, "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-dpi", "96",
            "-nolisten", "tcp", "-noreset")


def xorg_with_outputs(home, descriptor):
    configuration = home / "xorg.conf"
    configuration.write_text(DUMMY_CONFIGURATION)
    # A seat other than "seat0" needs no console.
    return ("/usr/lib/xorg/Xorg", "-displayfd", descriptor, "-config", configuration, "-logfile",
            "/dev/null", "-seat", "none", "-dpi", "96", "-nolisten", "tcp", "-noreset", "-quiet")


class Picture:
    """A screenshot."""

    def __init__(self, ppm):
        self._ppm = ppm
        header, self._pixels = ppm.split(b"\n255\n", 1)
        self.width = int(header.split()[1])

    def __eq__(self, other):
        return self._ppm == other._ppm

    def at(self, x, y):
        """The red, green and blue of a pixel."""
        start = 3 * (y * self.width + x)
        return tuple(self._pixels[start:start + 3])

    def box(self, other, bottom):
        """Left, top, right and bottom of the part above `bottom` that differs from a picture of the
        same size; None if nothing does."""
        line, found = 3 * self.width, []
        for y in range(bottom):
            here, there = (picture._pixels[y * line:(y + 1) * line] for picture in (self, other))
            if here != there:  # As numbers: a loop over the pixels would take seconds.
                bits = int.from_bytes(here, "big") ^ int.from_bytes(there, "big")
                first = (8 * line - bits.bit_length()) // 24
                last = (8 * line - (bits & -bits).bit_length()) // 24
                found.append((first, y, last))
        if not found:
            return None
        return (min(row[0] for row in found), found[0][1], max(row[2] for row in found) + 1,
                found[-1][1] + 1)

    def save(self, path):
        subprocess.run(["convert", "ppm:-", path], input=self._ppm, check=True)


class Desktop(contextlib.AbstractContextManager):
    """A context manager. Everything the program writes must be below `home`.

    The first-run setup is marked as done. `window_manager` is its command or None; `server` returns
    the X server's command.
    """

    def __init__(self, window_manager=OPENBOX, server=xvfb):
        self.window_manager = window_manager
        self._server_command = server
        self._cleanup = contextlib.ExitStack()
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="ravelo-desktop-"))
        self._cleanup.callback(shutil.rmtree, self.home, ignore_errors=True)
        runtime, temporary = self.home / "runtime", self.home / "tmp"
        runtime.mkdir(mode=0o700)
        temporary.mkdir()
        self.preferences = self.home / "config/ravelo/preferences.json"
        self.preferences.parent.mkdir(parents=True)
        self.preferences.write_text('{"onboarded": true}')
        self.env = {
            "PATH": os.environ["PATH"],
            "LC_ALL": "C.UTF-8",
            "HOME": str(self.home),
            "XDG_DATA_HOME": str(self.home / "data"),
            "XDG_CONFIG_HOME": str(self.home / "config"),
            "XDG_CACHE_HOME": str(self.home / "cache"),
            "XDG_RUNTIME_DIR": str(runtime),
            "TMPDIR": str(temporary),
            "QT_QPA_PLATFORM": "xcb",
            "NO_AT_BRIDGE": "1",
            "BSPWM_SOCKET": str(runtime / "bspwm"),  # Else it leaves one in /tmp.
            # Qt calls exit() when the X server ends, without freeing anything.
            "ASAN_OPTIONS": "detect_leaks=0",
        }

    def __enter__(self):
        try:
            self._start_server()
            self._start_bus()
            if self.window_manager:
                self.start_window_manager(*self.window_manager)
        except BaseException:
            self._cleanup.close()
            raise
        return self

    def __exit__(self, *_):
        self._cleanup.close()

    # Processes.

    def spawn(self, *command, **options):
        """Starts a program that ends with the desktop."""
        options = {"stdin": subprocess.DEVNULL, "env": self.env, "cwd": self.home,
                   "preexec_fn": _die_with_parent, **options}
        process = subprocess.Popen([str(word) for word in command], **options)
        self._cleanup.callback(self._end, process)
        return process

    @staticmethod
    def _end(process):
        process.kill()
        process.wait()
        for stream in (process.stdin, process.stdout):
            if stream:
                stream.close()

    def run(self, *command, **options):
        """Runs a program to its end and returns its output, whatever the exit code."""
        return subprocess.run([str(word) for word in command], env=self.env, cwd=self.home,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                              timeout=60, check=False, **options).stdout

    def _start_server(self):
        reading, writing = os.pipe()
        self.server = self.spawn(*self._server_command(self.home, writing), pass_fds=(writing,),
                                 stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        assert number, "the X server did not start"
        self.env["DISPLAY"] = f":{number}"

    def _start_bus(self):
        socket = self.home / "runtime" / "bus"
        configuration = self.home / "runtime" / "bus.conf"
        configuration.write_text(BUS_CONFIGURATION.format(socket=socket))
        self.spawn("dbus-daemon", "--nofork", f"--config-file={configuration}",
                   stderr=subprocess.DEVNULL)
        wait_for(socket.exists, "a session bus")
        self.env["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={socket}"
        # Not the machine's own: one of the buttons shuts it down.
        self.env["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={socket}"

    def provide_assistance(self):
        """Starts the accessibility bus, for programs started later."""
        del self.env["NO_AT_BRIDGE"]
        self.env["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        launcher = self.spawn("/usr/libexec/at-spi-bus-launcher", "--launch-immediately",
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              start_new_session=True)
        self._cleanup.callback(os.killpg, launcher.pid, signal.SIGKILL)  # It has a bus of its own.
        wait_for(lambda: "org.a11y.Bus" in self.run(
            "gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path", "/",
            "--method", "org.freedesktop.DBus.ListNames"), "the launcher on the bus")

    def bus(self):
        """A new connection to the session bus."""
        return Gio.DBusConnection.new_for_address_sync(
            self.env["DBUS_SESSION_BUS_ADDRESS"],
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)

    def start_window_manager(self, *command):
        """Returns once it is ready, also if it replaces another one or restarts itself."""
        def answers():
            return log.read_text().count("_NET_SUPPORTING_WM_CHECK(WINDOW): window id")

        def listens():  # The first mark can be part of the initial listing, the second cannot.
            self.run("xsetroot", "-name", "mark")
            return log.read_text().count('"mark"') > 1

        log = self.home / "tmp" / "root-properties"
        with log.open("w") as file:
            spy = self.spawn("xprop", "-root", "-spy", stdout=file, stderr=subprocess.DEVNULL)
        wait_for(listens, "xprop to report changes of the root window")
        before = answers()
        self.spawn(*command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(lambda: answers() > before, "a window manager")
        spy.kill()

    # Clipboard.

    def copy_text(self, text, target=None):
        """Copies with xclip, which stays alive as the owner."""
        as_target = ["-target", target] if target else []
        subprocess.run(["xclip", "-selection", "clipboard", *as_target, "-i"], input=text.encode(),
                       check=True, env=self.env, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=20)

    def paste_text(self):
        """Empty if the owner does not answer: xclip alone would wait forever."""
        return self.run("timeout", "3", "xclip", "-selection", "clipboard", "-o")

    def peer(self, *command, **options):
        """Starts a helper program and returns once it prints "ready"."""
        process = self.spawn(*command, stdout=subprocess.PIPE, text=True, **options)
        line = process.stdout.readline().strip()
        assert line == "ready", f"{command[0]} said {line!r}"
        return process

    def gtk(self, *arguments):
        return self.peer(*GTK_PEER, *arguments)

    # Screen.

    def picture(self):
        # Not xwd, which composes windows instead of showing the real screen.
        path = self.home / "tmp" / "picture.ppm"
        self.run("import", "-silent", "-window", "root", "-depth", "8", path)
        return Picture(path.read_bytes())

    def still_picture(self):
        """A picture once nothing moves."""
        pictures = [self.picture()]

        def still():
            pictures.append(self.picture())
            return pictures[-1] == pictures[-2]

        wait_for(still, "a still picture")
        return pictures[-1]

    def window_of(self, process, title=""):
        """The only visible window of a program (with this title), or None. Its icon in a bar is
        a window, too, but does not count."""
        windows = [self.geometry(window) for window in
                   self.run("xdotool", "search", "--onlyvisible", "--pid", process.pid).split()
                   if title in ("", self.title(window))]
        # One is listed twice while the window manager wraps it.
        found = list(dict.fromkeys(window for window in windows
                                   if window and window.width > MAX_TRAY_ICON))
        assert len(found) <= 1, f"more than one visible window: {found}"
        return found[0] if found else None

    def geometry(self, window):
        """None if there is no such window."""
        output = self.run("xwininfo", "-id", window)
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        values = [re.search(rf"{name}: +(-?\d+)", output) for name in names]
        return Geometry(int(window), *(int(value[1]) for value in values)) if all(values) else None

    def managed_windows(self):
        """The titles that a taskbar lists."""
        output = self.run("xprop", "-root", "_NET_CLIENT_LIST")
        return [self.title(window) for window in re.findall(r"0x[0-9a-f]+", output)]

    def title(self, window):
        return self.run("xdotool", "getwindowname", window).strip()

    def monitor(self, output):
        """The monitor on an output, or None if it is off."""
        found = re.search(rf"^{output} connected .*?(\d+)x(\d+)\+(\d+)\+(\d+)",
                          self.run("xrandr"), re.M)
        if not found:
            return None
        width, height, x, y = map(int, found.groups())
        return Monitor(output, x, y, width, height)

    def show(self, monitor):
        """Adds a monitor right of the first and returns its final geometry."""
        mode = f"{monitor.width}x{monitor.height}"
        self.run("xrandr", "--addmode", monitor.output, mode)
        self.run("xrandr", "--output", monitor.output, "--mode", mode, "--right-of", MAIN.output)
        seen = [(time.monotonic(), None)]

        def settled():  # A window manager may choose another mode, as mutter does.
            now = time.monotonic(), self.monitor(monitor.output)
            if now[1] != seen[-1][1]:
                seen.append(now)
            return now[1] if now[0] - seen[-1][0] > 0.5 else None

        return wait_for(settled, f"{monitor.output} on")

    def hide(self, monitor):
        self.run("xrandr", "--output", monitor.output, "--off")
        wait_for(lambda: not self.monitor(monitor.output), f"{monitor.output} off")

    # Pointer and keyboard.

    def move(self, x, y, *then):
        """Ends with a real motion: a hand cannot just warp the pointer."""
        self.run("xdotool", "mousemove", x - 1, y, "mousemove_relative", 1, 0, *then)

    def click(self, x, y):
        self.move(x, y, "click", 1)

    def glide(self, to):
        """Moves the pointer like a hand, through the points in between."""
        shell = self.run("xdotool", "getmouselocation", "--shell")
        here = dict(line.split("=") for line in shell.split())
        x, y = int(here["X"]), int(here["Y"])
        for step in range(1, 21):
            self.run("xdotool", "mousemove", x + (to[0] - x) * step // 20,
                     y + (to[1] - y) * step // 20)

    def drag(self, start, to):
        """Presses at `start`, moves, and does not release."""
        self.move(*start, "mousedown", 1)
        self.glide(to)

    def drag_from(self, source, start, to):
        """Drags from the window of a file_source.py. A press before that is ready is lost."""
        for _ in range(5):
            self.drag(start, to)
            if select.select([source.stdout], [], [], 3)[0]:
                assert source.stdout.readline() == "begin\n"
                return
            self.release()
            self.move(20, HEIGHT - 120)
            time.sleep(1)  # For a panel that the pointer has opened to close.
            while select.select([source.stdout], [], [], 0)[0]:
                source.stdout.readline()  # It was only late.
        raise AssertionError("the source begins no drag")

    def release(self):
        self.run("xdotool", "mouseup", 1)

    def type(self, text):
        self.run("xdotool", "type", "--delay", 20, text)

    def key(self, name):
        self.run("xdotool", "key", name)

    def focused_window(self):
        return self.run("xdotool", "getwindowfocus").strip()


class Ravelo:
    """The program on a desktop. `process` is the running instance."""

    def __init__(self, desktop, program):
        self.desktop = desktop
        self.program = pathlib.Path(program).resolve()
        self.folder = desktop.home / "data" / "Ravelo"
        self.process = None
        self.log = desktop.home / "ravelo.log"

    def start(self, *arguments, is_there=None, expected=None):
        """Starts it and waits for its handle at the top of the screen."""
        with self.log.open("a") as log:
            self.process = self.desktop.spawn(self.program, *arguments, stderr=log)
        is_there = is_there or self.is_collapsed
        wait_for(lambda: self.has_ended() or is_there(), expected or "the handle, 200 x 12, centred")
        assert not self.has_ended(), f"ravelo ended at once with {self.process.returncode}"
        return self

    def call(self, *arguments):
        """Runs a second instance; returns its exit code and output."""
        done = subprocess.run([self.program, *arguments], env=self.desktop.env, timeout=20,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, check=False)
        return done.returncode, done.stdout

    def has_ended(self):
        return self.process.poll() is not None

    def complaints(self):
        """Its standard error, without the message about the end of the X server."""
        lines = self.log.read_text().splitlines() if self.log.exists() else []
        return [line for line in lines if "X11 connection broke" not in line]

    # Stored data.

    def store(self):
        """The contents of store.json; empty before it is first written."""
        try:
            return json.loads((self.folder / "store.json").read_bytes())
        except FileNotFoundError:
            return {}

    def clips(self):
        """Kind and text of each clip on disk, in order."""
        return [(clip["kind"], clip["text"]) for clip in self.store().get("clips", [])]

    def texts(self):
        return [text for _, text in self.clips()]

    def preferences(self):
        return json.loads(self.desktop.preferences.read_bytes())

    # Windows.

    def panel(self):
        return self.desktop.window_of(self.process, "Ravelo")

    def window(self, title):
        return self.desktop.window_of(self.process, title)

    def hangs_at_the_top(self, width, height, monitor):
        panel = self.panel()
        there = panel and panel[2:] == (monitor.y, width, height) \
            and abs(panel.x + width / 2 - monitor.x - monitor.width / 2) <= 1
        return panel if there else None

    def is_collapsed(self, monitor=MAIN):
        return self.hangs_at_the_top(200, 12, monitor)

    def is_open(self, monitor=MAIN):
        return self.hangs_at_the_top(927, 560, monitor)

    def is_open_for_files(self, monitor=MAIN):
        return self.hangs_at_the_top(927, 700, monitor)

    def open(self, monitor=MAIN):
        """Opens it with the pointer and returns its geometry."""
        self.desktop.move(monitor.x + monitor.width // 2, monitor.y + 2)
        return wait_for(lambda: self.is_open(monitor),
                        lambda: f"the open panel, 927 x 560, at the top, centred on {monitor}; "
                        f"it is {self.panel()}")

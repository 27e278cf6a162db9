"""A private desktop to run a program on: an X server, a window manager, a session bus and a home of
its own, all gone at the end. Nothing of the user's desktop or files is seen or touched.

Nobody sleeps and hopes: `wait_for` polls for a condition with a long time-out.
"""

import collections
import contextlib
import ctypes
import json
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
WIDTH, HEIGHT = 1440, 900

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


def wait_for(condition, expected, timeout=20):
    """The first true value of `condition()`; fails, saying what was expected, if none comes."""
    end = time.monotonic() + timeout
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"not within {timeout} s: {expected}")
        time.sleep(0.01)


def _die_with_parent():
    ctypes.CDLL(None).prctl(1, signal.SIGKILL)  # PR_SET_PDEATHSIG


class Desktop(contextlib.AbstractContextManager):
    """Use as a context manager. `home` is where everything the program writes must be found."""

    def __init__(self):
        self._cleanup = contextlib.ExitStack()
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="ravelo-desktop-"))
        self._cleanup.callback(shutil.rmtree, self.home, ignore_errors=True)
        runtime, temporary = self.home / "runtime", self.home / "tmp"
        runtime.mkdir(mode=0o700)
        temporary.mkdir()
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
            # Where the program is built with it: Qt ends it by exit() when the X server goes, with
            # everything still allocated.
            "ASAN_OPTIONS": "detect_leaks=0",
        }

    def __enter__(self):
        try:
            self._start_server()
            self._start_bus()
            self.spawn("openbox", "--sm-disable", stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
            wait_for(lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
                     "a window manager")
        except BaseException:
            self._cleanup.close()
            raise
        return self

    def __exit__(self, *_):
        self._cleanup.close()

    # Processes.

    def spawn(self, *command, **options):
        """Starts a program that is ended with the desktop."""
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
        """Runs a program to its end; what it printed, whatever its exit code."""
        return subprocess.run([str(word) for word in command], env=self.env, cwd=self.home,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                              timeout=60, check=False, **options).stdout

    def _start_server(self):
        reading, writing = os.pipe()
        self.server = self.spawn("Xvfb", "-displayfd", writing, "-screen", "0",
                                 f"{WIDTH}x{HEIGHT}x24", "-dpi", "96", "-nolisten", "tcp",
                                 "-noreset", pass_fds=(writing,), stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        assert number, "Xvfb did not start"
        self.env["DISPLAY"] = f":{number}"

    def _start_bus(self):
        socket = self.home / "runtime" / "bus"
        configuration = self.home / "runtime" / "bus.conf"
        configuration.write_text(BUS_CONFIGURATION.format(socket=socket))
        self.spawn("dbus-daemon", "--nofork", f"--config-file={configuration}",
                   stderr=subprocess.DEVNULL)
        wait_for(socket.exists, "a session bus")
        self.env["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={socket}"

    # The clipboard, as other programs use it.

    def copy_text(self, text):
        """Copies with xclip, which stays behind as the owner."""
        subprocess.run(["xclip", "-selection", "clipboard", "-i"], input=text.encode(), check=True,
                       env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=20)

    def paste_text(self):
        return self.run("xclip", "-selection", "clipboard", "-o")

    def peer(self, *command):
        """Starts a helper program and returns once it says that it has done what it was told."""
        process = self.spawn(*command, stdout=subprocess.PIPE, text=True)
        line = process.stdout.readline().strip()
        assert line == "ready", f"{command[0]} said {line!r}"
        return process

    def gtk(self, *arguments):
        return self.peer("/usr/bin/python3", HERE / "gtk_peer.py", *arguments)

    # Pointer and keyboard.

    def move(self, x, y, *then):
        """Ends with a motion of the device: a warp alone is nothing that a hand can do."""
        self.run("xdotool", "mousemove", x - 1, y, "mousemove_relative", 1, 0, *then)

    def click(self, x, y):
        self.move(x, y, "click", 1)

    def type(self, text):
        self.run("xdotool", "type", "--delay", 20, text)

    def key(self, name):
        self.run("xdotool", "key", name)

    def focused_window(self):
        return self.run("xdotool", "getwindowfocus").strip()


class Ravelo:
    """The program, on a desktop. `process` is the running one."""

    def __init__(self, desktop, program):
        self.desktop = desktop
        self.program = pathlib.Path(program).resolve()
        self.folder = desktop.home / "data" / "Ravelo"
        self.process = None
        self.log = desktop.home / "ravelo.log"

    def start(self):
        """Starts it and waits for its handle at the top of the screen."""
        with self.log.open("a") as log:
            self.process = self.desktop.spawn(self.program, stderr=log)
        wait_for(lambda: self.has_ended() or self.is_collapsed(), "the handle, 200 x 12, centred")
        assert not self.has_ended(), f"ravelo ended at once with {self.process.returncode}"
        return self

    def call(self, *arguments):
        """Runs a further one to its end: exit code and what it printed."""
        done = subprocess.run([self.program, *arguments], env=self.desktop.env, timeout=20,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, check=False)
        return done.returncode, done.stdout

    def has_ended(self):
        return self.process.poll() is not None

    def complaints(self):
        """What it wrote to standard error, but for the end of the X server."""
        lines = self.log.read_text().splitlines() if self.log.exists() else []
        return [line for line in lines if "X11 connection broke" not in line]

    # What it keeps.

    def store(self):
        """The contents of store.json; nothing before it is first written."""
        try:
            return json.loads((self.folder / "store.json").read_bytes())
        except FileNotFoundError:
            return {}

    def clips(self):
        """Kind and text of each clip on disk, in order."""
        return [(clip["kind"], clip["text"]) for clip in self.store().get("clips", [])]

    def texts(self):
        return [text for _, text in self.clips()]

    # What it shows.

    def panel(self):
        """Its one visible window, or nothing."""
        found = self.desktop.run("xdotool", "search", "--onlyvisible", "--pid", self.process.pid)
        assert len(found.split()) <= 1, f"more than one visible window: {found.split()}"
        shell = self.desktop.run("xdotool", "getwindowgeometry", "--shell", *found.split())
        values = dict(line.split("=") for line in shell.split())
        names = ("WINDOW", "X", "Y", "WIDTH", "HEIGHT")
        return Geometry(*(int(values[name]) for name in names)) if found and values else None

    def _hangs_at_the_top(self, width, height):
        panel = self.panel()
        return panel if panel and (panel.width, panel.height, panel.y) == (width, height, 0) \
            and abs(panel.x + width / 2 - WIDTH / 2) <= 1 else None

    def is_collapsed(self):
        return self._hangs_at_the_top(200, 12)

    def is_open(self):
        return self._hangs_at_the_top(927, 560)

    def open(self):
        """Opens it as a user does, with the pointer, and returns where it is."""
        self.desktop.move(WIDTH // 2, 2)
        return wait_for(self.is_open, "the open panel, 927 x 560, at the top, centred")

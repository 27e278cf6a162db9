"""A private Wayland desktop: sway without devices, a session bus and a home directory."""

import os
import pathlib
import pwd
import shutil
import subprocess
import tempfile

from desktop import HERE, Desktop, Picture, Ravelo, _die_with_parent, wait_for

WIDTH, HEIGHT = 1280, 800
SWAY_CONFIGURATION = f"""
output HEADLESS-1 resolution {WIDTH}x{HEIGHT} position 0 0
default_border none
xwayland disable
exec echo "$WAYLAND_DISPLAY $SWAYSOCK" >&{{report}}
"""
KEYS = {"Escape": 1, "Return": 28, "a": 30, "b": 48, "c": 46, "v": 47, "z": 44}
CONTROL = 4
BACKGROUND = (64, 160, 96)


class SwayDesktop(Desktop):
    """Its programs speak Wayland only. As sway refuses to run as root, it runs as nobody then."""

    def __init__(self, hand):
        super().__init__(window_manager=None)
        self._hand_program = hand
        self.hand = None
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="ravelo-sway-"))
        self._cleanup.callback(shutil.rmtree, self._folder, ignore_errors=True)
        del self.env["QT_QPA_PLATFORM"]

    def _start_server(self):
        nobody = pwd.getpwnam("nobody") if os.geteuid() == 0 else None
        reading, writing = os.pipe()
        configuration = self._folder / "config"
        configuration.write_text(SWAY_CONFIGURATION.format(report=writing))
        if nobody:
            os.chown(self._folder, nobody.pw_uid, nobody.pw_gid)
        env = {**self.env, "HOME": str(self._folder), "XDG_RUNTIME_DIR": str(self._folder),
               "WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1",
               "WLR_RENDERER": "pixman"}

        def become():
            if nobody:
                os.setgroups([])
                os.setgid(nobody.pw_gid)
                os.setuid(nobody.pw_uid)
            _die_with_parent()

        self.server = self.spawn("sway", "-c", configuration, env=env, cwd=self._folder,
                                 preexec_fn=become, pass_fds=(writing,),
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            sockets = answer.readline().split()
        assert sockets, "sway did not start"
        self.env["WAYLAND_DISPLAY"] = str(self._folder / sockets[0])
        self.env["SWAYSOCK"] = sockets[1]
        self.env["GDK_BACKEND"] = "wayland"
        self.hand = self.peer(self._hand_program, stdin=subprocess.PIPE)

    def peer(self, *command, **options):
        process = self.spawn(*command, stdout=subprocess.PIPE, text=True, **options)
        line = process.stdout.readline().strip()
        assert line == "ready", f"{command[0]} said {line!r}"
        return process

    def show_background(self):
        """A full-screen GTK window with a text field, which prints its text at each change."""
        color = "#%02x%02x%02x" % BACKGROUND
        window = self.gtk("fullscreen", color, 0, WIDTH, HEIGHT)
        wait_for(lambda: self.picture().at(WIDTH // 2, HEIGHT // 2) == BACKGROUND, "a background")
        return window

    # Clipboard.

    def copy_text(self, text, target=None):
        as_target = ["--type", target] if target else []
        self.run("wl-copy", *as_target, "--", text)

    def paste_text(self):
        return self.run("timeout", "3", "wl-paste", "--no-newline")

    # Screen, pointer and keyboard.

    def picture(self):
        done = subprocess.run(["grim", "-t", "ppm", "-"], env=self.env, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, timeout=20, check=False)
        return Picture(done.stdout)

    def _tell(self, *words):
        self.hand.stdin.write(" ".join(map(str, words)) + "\n")
        self.hand.stdin.flush()
        assert self.hand.stdout.readline() == "ready\n", "the compositor is gone"

    def move(self, x, y):
        self._tell("move", x - 1, y, WIDTH, HEIGHT)
        self._tell("move", x, y, WIDTH, HEIGHT)

    def click(self, x, y):
        self.move(x, y)
        self._tell("press")
        self._tell("release")

    def drag(self, start, to):
        """Presses at `start`, moves, and does not release."""
        self.move(*start)
        self._tell("press")
        for step in range(1, 21):
            self._tell("move", start[0] + (to[0] - start[0]) * step // 20,
                       start[1] + (to[1] - start[1]) * step // 20, WIDTH, HEIGHT)

    def release(self):
        self._tell("release")

    def key(self, name):
        modifier = CONTROL if name.startswith("ctrl+") else 0
        self._tell("key", KEYS[name.removeprefix("ctrl+")], modifier)


class WaylandRavelo(Ravelo):
    """The program over a background of one colour: its windows cannot be listed, only seen."""

    def complaints(self):
        return [line for line in super().complaints() if "Wayland connection broke" not in line]

    def _covers(self, *places):
        picture = self.desktop.picture()
        return [picture.at(*place) != BACKGROUND for place in places]

    def is_collapsed(self, monitor=None):
        return self._covers((WIDTH // 2, 3), (WIDTH // 2, 200)) == [True, False]

    def is_open(self, monitor=None):
        return all(self._covers((WIDTH // 2, 3), (WIDTH // 2 - 400, 400), (WIDTH // 2 + 400, 400)))

    def open(self, monitor=None):
        self.desktop.move(WIDTH // 2 - 140, 5)  # Beside the handle, on the strip.
        wait_for(self.is_open, "the open panel")

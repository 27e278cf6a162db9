"""The checks of surroundings.py on Wayland, where a program sees no windows: all is judged by pictures
and by what programs get typed.
"""

import contextlib
import functools
import json
import subprocess
import threading
import time

from desktop import HERE
from surroundings import BAR, BAR_HEIGHT, FILE, SCREENFUL, WALLPAPER, css, until
from wayland import HEIGHT, LEFT, RIGHT, WIDTH, WaylandRavelo

MIDDLE = WIDTH // 2
AWAY = (40, 700)
HANDLE, TIMER, PANEL = (200, 12), (520, 40), (927, 560)
FIELD = (200, 220)  # The search, from the panel's corner.
RED, BLUE = (200, 40, 40), (40, 40, 200)
HALF_A_SECOND = 0.5


class Peer:
    """A program with a text field."""

    def __init__(self, process, color):
        self.process, self.color, self.text = process, color, ""
        threading.Thread(target=self._read, daemon=True).start()

    def _read(self):
        for line in self.process.stdout:
            if line != "ready\n":
                self.text = line.rstrip("\n")


class WaylandSurroundings(contextlib.ExitStack):
    """A desktop with a wallpaper and a bar at the top, and Ravelo on it. Pictures go to `pictures`."""

    def __init__(self, name, desktop, program, pictures):
        super().__init__()
        self.name, self.desktop, self.pictures = name, desktop, pictures
        self.ravelo = WaylandRavelo(desktop, program)
        self.bare = None  # A picture without Ravelo.
        self.scale = 1  # Of the outputs.

    def __enter__(self):
        self.enter_context(self.desktop)
        self.layers(0)
        self.desktop.move(*AWAY)
        self.start()
        return self

    def start(self):
        until(lambda: self.desktop.picture().at(300, 5) == BAR, "the bar")
        self.bare = self.desktop.still_picture()
        with self.ravelo.log.open("a") as log:
            self.ravelo.process = self.desktop.spawn(self.ravelo.program, stderr=log)
        self.expect_at(HANDLE, "at the start")

    def layers(self, output):
        return [self.desktop.layer("wallpaper", css(WALLPAPER), 0, output),
                self.desktop.layer("bar", css(BAR), BAR_HEIGHT, output)]

    def rest(self):
        """Closes the panel and moves the pointer away, whatever the last check left behind."""
        self.desktop.release()
        self.desktop.show_workspace(0)
        try:
            self.close()
        except AssertionError:
            self.restart()

    def restart(self):
        self.ravelo.process.kill()
        self.ravelo.process.wait()
        self.start()

    @contextlib.contextmanager
    def window(self, kind, color):
        """A program with a focused window that has a text field."""
        process = self.desktop.gtk(*((kind, css(color), 0, WIDTH, HEIGHT) if kind == "fullscreen"
                                     else (kind, css(color))))
        try:
            until(lambda: self.find(color), f"a window of colour {color}")
            yield Peer(process, color)
        except AssertionError:
            self.keep("FAILED")  # Before the window closes.
            raise
        finally:
            process.kill()
            process.wait()
            until(lambda: not self.find(color), "the end of a window")

    def screenful(self):
        return self.window("fullscreen", SCREENFUL)

    def find(self, color):
        """A place with that colour and all around it, or None."""
        picture = self.desktop.picture()
        return next(((x, y) for y in range(HEIGHT - 40, 60, -20) for x in range(20, WIDTH - 20, 20)
                     if all(picture.at(x + i, y + j) == color for i in (-8, 8) for j in (-8, 8))), None)

    def keep(self, name):
        """Saves a picture; its name starts with the desktop's."""
        self.desktop.picture().save(self.pictures / f"{self.name}-{name}.png")

    def open(self, monitor=LEFT):
        """Opens it with the pointer, and returns the left edge of the panel."""
        self.desktop.move(monitor.x + MIDDLE, 2)
        self.expect_at(PANEL, "under the pointer", monitor)
        return monitor.x + (WIDTH - PANEL[0]) // 2

    def open_panel(self):
        """Opens it above any window, and returns its left edge."""
        self.desktop.move(MIDDLE, 2)
        self.expect_panel_seen([BAR, RED, WALLPAPER], "the panel")
        return MIDDLE - PANEL[0] // 2

    def focus_middle(self):
        self.desktop.click(MIDDLE, AWAY[1])
        time.sleep(1)  # Nobody reports who has the keyboard.

    @contextlib.contextmanager
    def field(self):
        """A text field: what expects a text in it, and where it is."""
        with self.window("window", RED) as peer:
            x, y = self.find(RED)
            yield functools.partial(self.expect_typed, peer), self.field_of(x, y)

    def field_of(self, x, y):
        """The field is at the window's lower left corner."""
        picture, y = self.desktop.picture(), y - 60
        while x > 0 and picture.at(x - 1, y) == RED:
            x -= 1
        while picture.at(x + 40, y) == RED:
            y += 1
        return x + 40, y + 12

    def close(self, monitor=LEFT):
        """It leaves, and clicks if it has the keyboard."""
        self.desktop.click(monitor.x + AWAY[0], AWAY[1])
        self.expect_at(HANDLE, "after the pointer left", monitor)

    def open_search(self, hidden):
        """Opens it above windows of those colours, with the keyboard in the search field."""
        self.desktop.move(MIDDLE, 2)
        self.expect_panel_seen(hidden, "the panel")
        self.desktop.click(MIDDLE - PANEL[0] // 2 + FIELD[0], FIELD[1])
        time.sleep(1)  # Nobody reports who has the keyboard.

    # Expectations.

    def box(self):
        return self.bare.box(self.desktop.picture(), AWAY[1] - 40)  # Without the pointer.

    def expect_at(self, size, when, monitor=LEFT):
        """Nothing else of Ravelo is on the screen."""
        width, height = (round(self.scale * length) for length in size)
        left = monitor.x + (WIDTH - width) // 2
        expected = left, 0, left + width, height

        def fits():
            box = self.box()
            return box and all(abs(a - b) <= 1 for a, b in zip(box, expected))

        until(fits, lambda: f"Ravelo at {expected} {when}; it is at {self.box()}")

    def expect_seen(self, area, hidden, what):
        """Less than 2 % of `area` (left, top, width, height) has one of the `hidden` colours."""
        left, top, width, height = area
        points = [(x, y) for x in range(left, left + width, 9)
                  for y in range(top, top + height, 4)]

        def covered():
            picture = self.desktop.picture()
            return sum(picture.at(*point) in hidden for point in points) / len(points)

        until(lambda: covered() < 0.02,
              lambda: f"{what} on the screen; {covered():.0%} of it lies below")

    def expect_handle_seen(self, hidden, what, monitor=LEFT):
        self.expect_seen((monitor.x + MIDDLE - 85, 1, 170, 9), hidden, what)

    def expect_panel_seen(self, hidden, what, monitor=LEFT):
        left = monitor.x + (WIDTH - PANEL[0]) // 2 + 30  # Within the outline.
        self.expect_seen((left, 1, PANEL[0] - 60, PANEL[1] - 50), hidden, what)

    def expect_color(self, point, color, what):
        until(lambda: self.desktop.picture().at(*point) == color,
              lambda: f"{what}: {color} at {point}; it is {self.desktop.picture().at(*point)}")

    def expect_typed(self, peer, text, when):
        until(lambda: peer.text == text, lambda: f"{text!r} in the window {when}; not {peer.text!r}")


def place(on):
    """Handle and panel are at the centre of the top edge, above the bar, and nowhere else."""
    on.expect_at(HANDLE, "at the start")
    on.open()
    on.keep("above-bar")
    on.close()


def handle_above(on):
    on.expect_color((300, 5), BAR, "the bar")
    on.expect_handle_seen([BAR], "the handle above the bar")
    with on.screenful():
        on.expect_color((300, 500), SCREENFUL, "the full-screen window")
        on.expect_handle_seen([SCREENFUL, BAR], "the handle above the full-screen window")


def panel_above(on):
    on.open()
    on.expect_panel_seen([BAR, WALLPAPER], "the panel above the bar")
    on.close()
    with on.screenful():
        on.desktop.move(MIDDLE, 2)
        on.expect_panel_seen([SCREENFUL, BAR], "the panel above the full-screen window")
        on.keep("above-fullscreen")


def hot_zone(on):
    """Beside the handle, on the bar, but not below it."""
    for x, y in ((MIDDLE - 150, 100), (MIDDLE - 170, 6), (MIDDLE - 150, 16)):
        on.desktop.move(x, y)
        still_closed(on, f"with the pointer at {x}, {y}")
    on.desktop.move(MIDDLE - 150, 6)
    on.expect_at(PANEL, "with the pointer in the hot zone")


def stays_closed(on):
    """A window that is moved to the hot zone does not open it. What is dragged there does, whatever it is:
    there is no larger zone for files.
    """
    movable = on.desktop.gtk("movable", css(RED))
    try:
        on.desktop.drag(until(lambda: on.find(RED), "a window to move"), (MIDDLE - 150, 4))
        time.sleep(HALF_A_SECOND)
        assert on.desktop.picture().at(MIDDLE + 300, 300) in (RED, WALLPAPER), "it opened"
        on.desktop.move(*AWAY)
    finally:
        on.desktop.release()
        movable.kill()
        movable.wait()


def still_closed(on, when):
    time.sleep(HALF_A_SECOND)
    box = on.box()
    assert not box or box[0] >= MIDDLE - 200, f"open {when}: {box}"


def timer_bar(on):
    """A running timer replaces the handle, above everything, and opens the panel anywhere on it."""
    assert on.ravelo.call("timer", "start", "25", "Estimates") == (0, ""), "no timer runs"
    try:
        until(lambda: (box := on.box()) and (box[0], box[2]) == (MIDDLE - 260, MIDDLE + 260),
              lambda: f"the bar, 520 wide; it is at {on.box()}")
        with on.screenful():
            on.expect_seen((MIDDLE - 120, 2, 240, 20), [SCREENFUL, BAR], "the bar")
            on.keep("timer")
            on.desktop.move(MIDDLE - 240, 20)  # Below the hot zone.
            on.expect_panel_seen([SCREENFUL, BAR], "the panel, opened by the pointer on the bar")
            on.desktop.move(*AWAY)
            on.expect_color((300, 300), SCREENFUL, "closed")
    finally:
        on.ravelo.call("timer", "stop")
    on.expect_at(HANDLE, "after the timer")


def focus(on):
    """Opening and closing leave the focus where the user types."""
    with on.screenful() as window:
        on.desktop.move(MIDDLE, 2)
        on.expect_panel_seen([SCREENFUL], "the panel")
        on.desktop.move(MIDDLE - 200, 400)
        on.desktop.type("a")
        on.expect_typed(window, "a", "while the panel is open")
        on.desktop.move(*AWAY)
        on.expect_color((300, 300), SCREENFUL, "closed")
        on.desktop.type("b")
        on.expect_typed(window, "ab", "after it closed")


def typing(on):
    """A word typed into the search and Return copy the clip with that word."""
    for text in ("a needle in it", "hay"):
        on.desktop.copy_text(text)
        until(lambda t=text: on.ravelo.texts()[:1] == [t], f"{text!r} in store.json")
    with on.window("window", RED) as window:
        on.desktop.click(*on.find(RED))
        on.open_search([BAR, RED, WALLPAPER])
        on.desktop.type("needle")
        on.desktop.key("Return")
        until(lambda: on.desktop.paste_text() == "a needle in it",
              lambda: f"the clip to paste; there is {on.desktop.paste_text()!r}")
        assert window.text == "", f"{window.text!r} went to the window"
        on.desktop.click(*AWAY)


def gives_back(on):
    """Escape, a click elsewhere, and its key before it has the keyboard close it and give the keyboard back."""
    def toggle_twice():
        toggles = []
        for _ in range(2):
            toggles.append(on.desktop.spawn(on.ravelo.program, "--toggle"))
            time.sleep(0.014)
        for toggle in toggles:
            toggle.wait()

    with on.window("window", RED) as window:
        ways = {"a": lambda: on.desktop.key("Escape"),
                "ab": lambda: on.desktop.click(*on.find(RED)),
                "abc": toggle_twice, "abcd": toggle_twice, "abcde": toggle_twice}
        for text, leave in ways.items():
            if leave is not toggle_twice:
                on.open_search([BAR, RED, WALLPAPER])
            leave()
            on.desktop.move(*AWAY)
            until(lambda: on.desktop.picture().at(MIDDLE + 300, 100) in (RED, WALLPAPER),
                  f"closed, then {text} typed")
            time.sleep(1)  # Nobody reports who has the keyboard.
            on.desktop.type(text[-1])
            on.expect_typed(window, text, "after it closed")


def workspaces(on):
    """It is visible on every workspace."""
    with on.window("window", RED):
        for workspace in (1, 0):
            on.desktop.show_workspace(workspace)
            until(lambda w=workspace: bool(on.find(RED)) != bool(w), f"workspace {workspace}")
            on.expect_handle_seen([BAR], f"the handle on workspace {workspace}")
            on.desktop.move(MIDDLE, 2)
            on.expect_panel_seen([BAR, RED, WALLPAPER], f"the panel on workspace {workspace}")
            on.desktop.move(*AWAY)


@contextlib.contextmanager
def dragged_file(on):
    """Drags a file to the strip."""
    file = on.desktop.home / FILE
    file.write_text("dragged")
    source = on.desktop.peer("/usr/bin/python3", HERE / "file_source.py", "--color", css(BLUE), file)
    try:
        start = until(lambda: on.find(BLUE), "a window to drag from")
        on.desktop.drag_from(source, start, (MIDDLE, 6))
        time.sleep(1)  # For its request to the compositor, which notices motion after that.
        on.desktop.move(MIDDLE, 6)
        on.expect_panel_seen([BAR, BLUE, WALLPAPER], "the panel, opened by a dragged file")
        yield source
    finally:
        on.desktop.release()  # Sway 1.7 crashes if the source of a drag ends.
        source.kill()
        source.wait()


def file_drag(on):
    """A file dragged to the strip opens it; when it leaves, the panel closes."""
    with dragged_file(on):
        on.keep("file-drag")
        on.desktop.move(*AWAY)
        until(lambda: on.desktop.picture().at(MIDDLE + 300, 300) in (BLUE, WALLPAPER), "closed")


def drop(on):
    """A file dropped on the open panel is on the shelf."""
    with dragged_file(on) as source:
        on.desktop.move(MIDDLE, 300)
        time.sleep(0.5)  # As a hand rests before it lets go: the program has accepted the file then.
        on.desktop.release()
        assert source.stdout.readline() == "end\n"
        until(lambda: FILE in json.dumps(on.ravelo.store().get("shelfStacks", [])),
              lambda: f"{FILE} on the shelf; there is {on.ravelo.store().get('shelfStacks')}")


def two_monitors(on):
    """It opens on the monitor with the pointer, and its handle stays there."""
    on.desktop.add_output()
    layers = on.layers(1)
    until(lambda: on.desktop.picture().at(WIDTH + 300, 5) == BAR, "the bar on the second monitor")
    for monitor in (RIGHT, LEFT, RIGHT):
        where = "right" if monitor is RIGHT else "left"
        on.desktop.move(monitor.x + MIDDLE, 2)
        on.expect_panel_seen([BAR, WALLPAPER], f"the panel on the {where}", monitor)
        on.keep(where)
        on.desktop.move(monitor.x + AWAY[0], AWAY[1])
        on.expect_color((monitor.x + 300, 300), WALLPAPER, f"closed on the {where}")
        on.expect_handle_seen([BAR], f"the handle on the {where}", monitor)
    on.desktop.move(WIDTH + MIDDLE, 2)
    on.expect_panel_seen([BAR, WALLPAPER], "the panel on the right", RIGHT)
    try:
        on.desktop.remove_output()
    except NotImplementedError:
        on.desktop.move(*AWAY)
        on.restart()
        return
    for layer in layers:
        layer.kill()
    on.desktop.move(*AWAY)
    on.expect_at(HANDLE, "after the second monitor went")


def scaled(on):
    """At a scale of 1.5 the handle is that much larger and in place, and the panel fits the screen."""
    on.scale = 1.5
    on.desktop.set_scale(on.scale)
    try:
        on.restart()
        on.desktop.move(MIDDLE, 2)
        until(lambda: (box := on.box()) and abs(box[0] + box[2] - WIDTH) < 5 and box[2] - box[0] > 0.9 * WIDTH,
              lambda: f"the panel across the screen; it is at {on.box()}")
        on.keep("scaled")
    finally:
        on.scale = 1
        on.desktop.set_scale(on.scale)
        on.desktop.move(*AWAY)
        on.restart()


# Those that change the desktop for good are last.
CHECKS = (place, handle_above, panel_above, hot_zone, timer_bar, focus, typing, gives_back, workspaces,
          stays_closed, file_drag, scaled, two_monitors, drop)

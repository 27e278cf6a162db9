"""Checks that Ravelo must pass on every desktop, one function each.

A check returns None, or a note about what this desktop cannot show; if it fails it raises an
AssertionError that says what it saw.
"""

import contextlib
import functools
import json
import subprocess
import time

from desktop import GTK_PEER, HERE, MAIN, RIGHT, WIDTH, Desktop, Ravelo, wait_for, xorg_with_outputs

MIDDLE = WIDTH // 2
BAR_HEIGHT = 28
BAR, SCREENFUL, WALLPAPER = (255, 0, 255), (0, 255, 0), (255, 160, 0)
AWAY = (40, 400)  # A click there closes.
SEARCH_LEFT, SEARCH_TOP = 200, 220
FILE = "dragged.txt"
FILE_SOURCE = ("/usr/bin/python3", HERE / "file_source.py")
PAPER = (255, 255, 255)
ICON_LEFT, ICON_TOP = 207, 98  # Of the one file in the file manager's window.
TIMEOUT = 20
NOBODY_REPORTS = "no window manager, nothing reports that a full-screen window covers it"

# How to have two workspaces and to show one, if not as in EWMH. I3 makes them as they are shown.
MAKE_WORKSPACES = {"bspwm": lambda: ("bspc", "monitor", "--reset-desktops", "1", "2"),
                   "i3": lambda: ("true",)}
SHOW_WORKSPACE = {"i3": lambda number: ("i3-msg", "workspace", "number", number + 1)}


def css(color):
    return "#%02x%02x%02x" % color


def until(condition, expected):
    return wait_for(condition, expected, TIMEOUT)


class Surroundings(contextlib.ExitStack):
    """A desktop with a bar at the top, and Ravelo on it. Pictures go to `pictures`."""

    def __init__(self, name, window_manager, program, pictures):
        super().__init__()
        self.name = name
        self.pictures = pictures
        self.desktop = Desktop(window_manager, xorg_with_outputs)
        self.ravelo = Ravelo(self.desktop, program)
        self.bar = None

    def __enter__(self):
        self.enter_context(self.desktop)
        self.desktop.run("hsetroot", "-solid", css(WALLPAPER))
        self.bar = self.desktop.gtk("bar", css(BAR), WIDTH, BAR_HEIGHT)
        self.desktop.move(*AWAY)
        self.ravelo.start()
        return self

    def rest(self):
        """Closes the panel and moves the pointer away, whatever the last check left behind."""
        self.desktop.release()
        try:
            self.close()
        except AssertionError:
            self.restart()

    def restart(self, is_there=None, expected=None):
        self.ravelo.process.kill()
        self.ravelo.process.wait()  # Or the next one would ask it to come to the front.
        self.ravelo.start(is_there=is_there, expected=expected)

    @contextlib.contextmanager
    def running(self, *command):
        """Runs a program with one focused window during a check."""
        process = self.desktop.spawn(*command, stdout=subprocess.DEVNULL,
                                     stderr=subprocess.DEVNULL)
        try:
            found = until(lambda: self.desktop.window_of(process), f"a window of {command}")
            window = str(found.window)
            if not self.desktop.window_manager:
                self.desktop.run("xdotool", "windowfocus", window)
            self.expect_focus(window, f"{command} once it is started")
            yield window
        except AssertionError:
            self.keep("FAILED")  # Before the window closes.
            raise
        finally:
            process.kill()
            process.wait()

    def gtk(self, *arguments):
        return self.running(*GTK_PEER, *arguments)

    def screenful(self, monitor=MAIN):
        return self.gtk("fullscreen", css(SCREENFUL), monitor.x, monitor.width, monitor.height)

    def keep(self, name):
        """Saves a picture; its name starts with the desktop's."""
        self.desktop.still_picture().save(self.pictures / f"{self.name}-{name}.png")

    def open_search(self):
        panel = self.ravelo.open()
        self.desktop.click(panel.x + SEARCH_LEFT, SEARCH_TOP)
        self.expect_focus(str(panel.window), "the panel after a click into the search field")
        return panel

    def open_panel(self):
        """Returns its left edge."""
        return self.ravelo.open().x

    def focus_middle(self):
        self.desktop.click(MIDDLE, 700)

    @contextlib.contextmanager
    def field(self):
        """A text field: what expects a text in it, and where it is."""
        with self.gtk("window") as window:
            corner = self.desktop.geometry(window)
            yield (functools.partial(self.expect_typed, window),
                   (corner.x + 100, corner.y + corner.height - 12))

    def close(self, monitor=MAIN):
        self.desktop.click(monitor.x + AWAY[0], monitor.y + AWAY[1])
        self.expect_closed("after a click elsewhere", monitor)

    # Expectations.

    def expect_closed(self, when, monitor=MAIN):
        until(lambda: self.ravelo.is_collapsed(monitor),
              lambda: f"the handle on {monitor.output} {when}; there is {self.ravelo.panel()}")

    def expect_focus(self, window, what):
        desktop = self.desktop
        until(lambda: desktop.focused_window() == window,
              lambda: f"the focus in {what}; it is in {desktop.focused_window()}, a "
              f"{desktop.title(desktop.focused_window())!r}, not in {window}")

    def expect_typed(self, window, text, when):
        until(lambda: self.desktop.title(window) == text,
              lambda: f"{text!r} in the window {when}; there is {self.desktop.title(window)!r}")

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

    def expect_handle_seen(self, hidden, what, monitor=MAIN):
        self.expect_seen((monitor.x + monitor.width // 2 - 85, monitor.y + 1, 170, 9), hidden, what)

    def expect_panel_seen(self, panel, hidden, what):
        left = panel.x + 30  # Within the outline, which is narrower than the window.
        self.expect_seen((left, panel.y + 1, panel.width - 60, panel.height - 50), hidden, what)

    def expect_color(self, point, color, what):
        until(lambda: self.desktop.picture().at(*point) == color,
              lambda: f"{what}: {color} at {point}; it is {self.desktop.picture().at(*point)}")


def place(on):
    """Handle and panel are at the centre of the top edge, above the bar."""
    on.expect_closed("at the start")
    on.ravelo.open()
    on.close()


def handle_above(on):
    """The handle is above the bar and above a focused full-screen window."""
    on.expect_color((300, 5), BAR, "the bar")
    on.expect_handle_seen([BAR], "the handle above the bar")
    if not on.desktop.window_manager:
        return NOBODY_REPORTS
    with on.screenful():
        on.expect_color((300, 500), SCREENFUL, "the full-screen window")
        on.expect_handle_seen([SCREENFUL, BAR], "the handle above the full-screen window")
    return None


def panel_above(on):
    """The open panel, too."""
    on.expect_color((200, 5), BAR, "the bar")
    on.expect_panel_seen(on.ravelo.open(), [BAR, WALLPAPER], "the panel above the bar")
    on.keep("above-bar")
    on.close()
    with on.screenful():
        on.expect_color((200, 500), SCREENFUL, "the full-screen window")
        on.expect_panel_seen(on.ravelo.open(), [SCREENFUL, BAR],
                             "the panel above the full-screen window")
        on.keep("above-fullscreen")


def hot_zone(on):
    """The pointer also opens it beside the handle, on the bar."""
    on.desktop.move(MIDDLE - 150, 100)
    on.expect_closed("below the hot zone")
    on.desktop.move(MIDDLE - 150, 6)
    until(on.ravelo.is_open, "the panel, opened by the pointer in the hot zone")


def stays_closed(on):
    """A dragged link, and a window that is moved to the hot zone, do not open it."""
    source = on.desktop.peer(*FILE_SOURCE, "https://www.debian.org/")
    try:
        corner = until(lambda: on.desktop.window_of(source), "a window with a link")
        on.desktop.drag_from(source, (corner.x + 100, corner.y + 60), (MIDDLE - 200, 100))
        expect_still_closed(on, "a dragged link")
    finally:
        on.desktop.release()
        source.kill()
        source.wait()
    with on.gtk("movable") as window:
        corner = on.desktop.geometry(window)
        on.desktop.drag((corner.x + 100, corner.y + 60), (MIDDLE, 3))
        expect_still_closed(on, "a window that was moved to the top")
        on.desktop.release()


def expect_still_closed(on, what):
    """A file would have opened it within a second."""
    end = time.monotonic() + 1
    while time.monotonic() < end:
        on.desktop.run("xdotool", "mousemove_relative", "--", 1, 0)
        assert on.ravelo.is_collapsed(), f"{what} opened it: {on.ravelo.panel()}"


def timer_bar(on):
    """A running timer replaces the handle, above everything, and opens the panel anywhere on it."""
    def shows():
        return (panel := on.ravelo.panel()) and (panel.y, panel.width) == (0, 520)

    assert on.ravelo.call("timer", "start", "25", "Estimates") == (0, ""), "no timer runs"
    try:
        until(shows, lambda: f"the bar, 520 wide; there is {on.ravelo.panel()}")
        if not on.desktop.window_manager:
            return NOBODY_REPORTS
        with on.screenful():
            on.expect_seen((MIDDLE - 120, 2, 240, 20), [SCREENFUL, BAR], "the bar")
            on.keep("timer")
            on.desktop.move(MIDDLE - 240, 20)  # Below the hot zone.
            until(on.ravelo.is_open, "the panel, opened by the pointer on the bar")
            on.desktop.click(*AWAY)
            until(shows, "the bar again")
    finally:
        on.ravelo.call("timer", "stop")
    on.expect_closed("after the timer")
    return None


def focus(on):
    """Opening and closing leave the focus where the user types."""
    with on.screenful() as window:
        panel = on.ravelo.open()
        on.desktop.move(panel.x + 200, 400)
        on.desktop.type("a")
        on.expect_typed(window, "a", "while the panel is open")
        on.expect_focus(window, "the window while the panel is open")
        on.close()
        on.desktop.type("b")
        on.expect_typed(window, "ab", "after it closed")
        on.expect_focus(window, "the window after it closed")


def typing(on):
    """A word typed into the search and Return copy the clip with that word."""
    for text in ("a needle in it", "hay"):
        on.desktop.copy_text(text)
        until(lambda t=text: on.ravelo.texts()[:1] == [t], f"{text!r} in store.json")
    with on.gtk("window"):
        on.open_search()
        on.desktop.type("needle")
        on.desktop.key("Return")
        until(lambda: on.desktop.paste_text() == "a needle in it",
              lambda: f"the clip to paste; there is {on.desktop.paste_text()!r}")


def gives_back(on):
    """Escape gives the keyboard back; a click elsewhere gives it to what was clicked."""
    with on.gtk("window") as window, on.screenful() as screenful:
        on.open_search()
        on.desktop.key("Escape")
        on.expect_closed("after Escape")
        on.expect_focus(screenful, "the full-screen window after Escape")
        on.desktop.type("a")
        on.expect_typed(screenful, "a", "after Escape")
        on.close()
        on.desktop.run("xdotool", "windowraise", window)
    with on.gtk("window") as first, on.gtk("window") as second:
        on.desktop.run("xdotool", "windowmove", second, 700, 650)
        clicked = first if on.desktop.window_manager else second
        on.open_search()
        corner = on.desktop.geometry(first)
        on.desktop.click(corner.x + 100, corner.y + corner.height - 12)
        on.expect_closed("after a click elsewhere")
        on.expect_focus(clicked, "the window that was clicked")
        on.desktop.type("b")
        on.expect_typed(clicked, "b", "after a click elsewhere")
    return None if on.desktop.window_manager else "no window manager, no focus by a click"


def workspaces(on):
    """It is visible on every workspace."""
    if not on.desktop.window_manager:
        return "no window manager, no workspaces"
    make = MAKE_WORKSPACES.get(on.name, lambda: ("xdotool", "set_num_desktops", 2))
    show = SHOW_WORKSPACE.get(on.name, lambda number: ("xdotool", "set_desktop", number))
    on.desktop.run(*make())
    with on.gtk("window"):  # I3 drops a workspace without windows.
        for workspace in (1, 0):
            on.desktop.run(*show(workspace))
            until(lambda w=workspace: on.desktop.run("xdotool", "get_desktop").strip() == str(w),
                  f"workspace {workspace}")
            on.expect_handle_seen([BAR], f"the handle on workspace {workspace}")
            panel = on.ravelo.open()
            on.expect_panel_seen(panel, [BAR, WALLPAPER], f"the panel on workspace {workspace}")
            on.close()
    return None


@contextlib.contextmanager
def dragged_file(on):
    """Drags a file from a file manager to near the top centre."""
    folder = on.desktop.home / "files"
    folder.mkdir(exist_ok=True)
    (folder / FILE).write_text("dragged")
    with on.running("pcmanfm", "--no-desktop", folder) as window:
        on.desktop.run("xdotool", "windowsize", window, 400, 300, "windowmove", window, 60, 450)

        def icon():
            corner, picture = on.desktop.geometry(window), on.desktop.picture()
            places.append(corner)
            left, top = corner.x + ICON_LEFT, corner.y + ICON_TOP
            settled = corner.width == 400 or places[-20:] == [corner] * 20
            drawn = picture.at(left, top) != PAPER and picture.at(left, top + 60) == PAPER
            return (left, top) if settled and drawn else None

        places = []  # A tiling window manager leaves it where it is.
        start_drag(on, until(icon, "the icon of a file"), (MIDDLE - 200, 100))
        yield


def start_drag(on, start, to):
    """Again if the other program did not start one, as it happens on a busy machine."""
    def follows():  # The icon at the pointer, or already the panel.
        picture = on.desktop.picture()
        return any(picture.at(to[0] + x, to[1] + y) != WALLPAPER
                   for x in range(-40, 40, 8) for y in range(-40, 40, 8))

    for _ in range(5):
        on.desktop.drag(start, to)
        with contextlib.suppress(AssertionError):
            return wait_for(follows, "a drag", 3)
        on.desktop.release()
    raise AssertionError("five attempts started no drag")


def file_drag(on):
    """A file dragged near the top centre opens it, a text does not."""
    with dragged_file(on):
        until(on.ravelo.is_open, "the panel, opened by a dragged file")
        on.keep("file-drag")
    on.rest()
    with on.gtk("source", "a text to drag") as window:
        corner, attempts = None, 0
        while on.desktop.title(window) != "dragged":  # Mutter frames it after a while.
            assert (attempts := attempts + 1) < 5, f"the start of a text's drag, from {corner}"
            on.desktop.release()
            corner = on.desktop.geometry(window)
            on.desktop.drag((corner.x + 30, corner.y + 10), (MIDDLE - 200, 100))
            time.sleep(1)
        expect_still_closed(on, "a dragged text")


def drop(on):
    """A file dropped on the open panel is on the shelf."""
    with dragged_file(on):
        panel = until(on.ravelo.is_open, "the panel, opened by a dragged file")
        on.desktop.glide((panel.x + 400, 300))
        on.desktop.release()
        until(lambda: FILE in json.dumps(on.ravelo.store().get("shelfStacks", [])),
              lambda: f"{FILE} on the shelf; there is {on.ravelo.store().get('shelfStacks')}")


def two_monitors(on):
    """It opens on the monitor with the pointer, and its handle stays there."""
    right = on.desktop.show(RIGHT)
    hidden = {MAIN: BAR, right: SCREENFUL}
    try:
        with on.screenful(right):
            for monitor in (right, MAIN, right):
                where = f"on {monitor.output}"
                on.expect_panel_seen(on.ravelo.open(monitor), [hidden[monitor]], f"panel {where}")
                on.keep(where.replace(" ", "-"))
                on.close(monitor)
                on.expect_handle_seen([hidden[monitor]], f"handle {where}", monitor)
    finally:
        on.desktop.hide(right)


def scaled(on):
    """At a scale of 1.5 handle and panel are that much larger, and still in place."""
    on.desktop.run("xrdb", "-merge", input="Xft.dpi: 144\n")
    on.restart(lambda: on.ravelo.hangs_at_the_top(300, 18, MAIN), "the handle, 300 x 18")
    try:
        on.desktop.move(MIDDLE, 3)
        until(lambda: on.ravelo.hangs_at_the_top(1391, 840, MAIN),
              lambda: f"the open panel, 1391 x 840; it is {on.ravelo.panel()}")
        on.keep("scaled")
        on.desktop.click(*AWAY)
    finally:
        on.desktop.run("xrdb", "-merge", input="Xft.dpi: 96\n")
        on.restart()


# A file on the shelf makes the panel taller; IceWM gives no window the focus after one that was moved.
CHECKS = (place, handle_above, panel_above, hot_zone, timer_bar, focus, typing, gives_back, workspaces,
          file_drag, two_monitors, scaled, drop, stays_closed)

"""Changes of the desktop while the panel is open, one function each, like surroundings.py."""

from desktop import MAIN, RIGHT, WIDTH
from surroundings import BAR, BAR_HEIGHT, SCREENFUL, WALLPAPER, css, until


def window_manager(on, *command):
    """Another window manager, or a restart: the panel stays on top and works as before."""
    panel = on.ravelo.open()
    on.desktop.start_window_manager(*command)
    on.expect_panel_seen(panel, [BAR, WALLPAPER], "the panel right afterwards")
    on.keep("afterwards")
    on.close()
    on.expect_handle_seen([BAR], "the handle afterwards")
    with on.gtk("window") as window:
        on.open_search()
        on.desktop.key("Escape")
        on.expect_closed("after Escape")
        on.expect_focus(window, "the window after Escape")


def bar_comes(on):
    """A bar started later does not cover the handle."""
    new_bar = (0, 255, 255)
    on.bar.kill()
    until(lambda: on.desktop.picture().at(300, 5) != BAR, "the end of the old bar")
    on.desktop.gtk("bar", css(new_bar), WIDTH, BAR_HEIGHT)
    on.expect_color((300, 5), new_bar, "the new bar")
    on.expect_handle_seen([BAR, new_bar], "the handle above the new bar")
    on.keep("afterwards")
    on.expect_panel_seen(on.ravelo.open(), [BAR, new_bar], "the panel above the new bar")


def compositor_replaced(on):
    """Restart of xfwm4 with its compositor; not required.

    xfwm4 4.18 then paints no override-redirect window that existed before, not even a plain GTK
    popup that moves or is mapped again.
    """
    window_manager(on, "xfwm4", "--replace")


def backdrop(on, panel):
    """Whether the wallpaper shows through the panel; beside its outline it must."""
    inside = []
    for color in (SCREENFUL, WALLPAPER):
        on.desktop.run("hsetroot", "-solid", css(color))
        for corner in ((20, panel.height - 3), (4, 300), (panel.width - 21, panel.height - 3)):
            on.expect_color((panel.x + corner[0], corner[1]), color, "wallpaper beside the outline")
        picture = on.desktop.picture()
        inside.append([picture.at(panel.x + 26, y) for y in range(100, 500, 20)])
    return "opaque" if inside[0] == inside[1] else "translucent"


def compositor(on):
    """Opaque and shaped without a compositor, translucent with one, also when that changes."""
    panel = on.ravelo.open()

    def expect(wanted, name):
        until(lambda: backdrop(on, panel) == wanted, f"a panel that is {wanted} {name}")
        on.keep(name)

    expect("opaque", "before")
    picom = on.desktop.spawn("picom", "--config", "/dev/null", "--backend", "xrender")
    expect("translucent", "with-compositor")
    picom.terminate()
    expect("opaque", "afterwards")


def monitor_goes(on):
    """The open panel and the handle move to the remaining monitor."""
    right = on.desktop.show(RIGHT)
    on.ravelo.open(right)
    on.keep("before")
    on.desktop.hide(right)
    panel = until(on.ravelo.is_open,
                  lambda: f"the panel on {MAIN.output}; there is {on.ravelo.panel()}")
    on.expect_panel_seen(panel, [BAR, WALLPAPER], "the panel on the remaining monitor")
    on.keep("afterwards")
    on.close()

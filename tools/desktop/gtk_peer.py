"""A GTK program for tests with Ravelo. Prints "ready" when done and stays until it is killed.

gtk_peer.py text TEXT      owns the clipboard with a text
gtk_peer.py image COLOR    owns the clipboard with an image of one colour, 64 x 48
gtk_peer.py leave text TEXT  copies and exits at once, like gnome-screenshot; also with image
gtk_peer.py window [COLOR] a focused window with a text field; prints its text at each change
gtk_peer.py fullscreen COLOR LEFT WIDTH HEIGHT  the same, full-screen on a monitor
gtk_peer.py movable [COLOR]  a focused window that the window manager moves when it is dragged
gtk_peer.py bar COLOR WIDTH HEIGHT  a dock at the top left that reserves its height
gtk_peer.py source TEXT    a window with a selected text to drag; its title becomes "dragged"
gtk_peer.py target         a drop target for files, left of the panel; prints the raw list

The title of a window with a text field is its text.
"""

import json
import subprocess
import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("GdkX11", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GdkPixbuf, GdkX11, GLib, Gtk  # noqa: E402, F401


def say(text):
    print(text, flush=True)


def own(what, value):
    clipboard = Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD)
    if what == "text":
        clipboard.set_text(value, -1)
    else:
        image = GdkPixbuf.Pixbuf.new(GdkPixbuf.Colorspace.RGB, False, 8, 64, 48)
        image.fill(int(value, 16))
        clipboard.set_image(image)
    Gdk.Display.get_default().sync()
    say("ready")
    return clipboard


def paint(window, color):
    style = Gtk.CssProvider()
    style.load_from_data(f"window {{ background: {color}; }}".encode())
    window.get_style_context().add_provider(style, Gtk.STYLE_PROVIDER_PRIORITY_USER)


def make_window(x, y, width, height, **properties):
    window = Gtk.Window(title="Peer", default_width=width, default_height=height, **properties)
    window.move(x, y)
    return window


def ready_when_focused(widget):
    widget.connect("focus-in-event", lambda *_: GLib.idle_add(say, "ready") and False)


def show_field(window):
    entry = Gtk.Entry(halign=Gtk.Align.START, valign=Gtk.Align.END, width_chars=40)
    entry.connect("changed", lambda entry: window.set_title(entry.get_text()))
    entry.connect("changed", lambda entry: say(entry.get_text()))
    ready_when_focused(entry)
    window.add(entry)
    window.show_all()


def show_window(color=None):
    window = make_window(80, 640, 400, 700 if color else 200)  # Wayland: visible below the panel.
    if color:
        paint(window, color)
    show_field(window)


def show_fullscreen(color, left, width, height):
    window = make_window(int(left), 0, int(width), int(height), decorated=False)
    paint(window, color)
    window.fullscreen()
    show_field(window)


def show_movable(color="#204060"):
    window = make_window(80, 640, 400, 200)
    paint(window, color)
    window.add_events(Gdk.EventMask.BUTTON_PRESS_MASK)
    window.connect("button-press-event", lambda _, event: window.begin_move_drag(
        event.button, int(event.x_root), int(event.y_root), event.time))
    ready_when_focused(window)
    window.show()


def show_bar(color, width, height):
    window = make_window(0, 0, int(width), int(height), decorated=False, accept_focus=False,
                         type_hint=Gdk.WindowTypeHint.DOCK)
    paint(window, color)
    window.realize()
    strut = ["0", "0", height, "0"] + ["0"] * 4 + ["0", str(int(width) - 1), "0", "0"]
    subprocess.run(["xprop", "-id", str(window.get_window().get_xid()), "-f",
                    "_NET_WM_STRUT_PARTIAL", "32c", "-set", "_NET_WM_STRUT_PARTIAL",
                    ",".join(strut)], check=True)
    window.connect("map-event", lambda *_: say("ready"))
    window.show()


def show_source(text):
    window = make_window(80, 640, 400, 200)
    view = Gtk.TextView()
    view.get_buffer().set_text(text)
    view.get_buffer().select_range(*view.get_buffer().get_bounds())
    view.connect("drag-begin", lambda *_: window.set_title("dragged"))
    ready_when_focused(view)
    window.add(view)
    window.show_all()


def show_target():
    def received(_widget, _context, _x, _y, data, *_):
        say(json.dumps(data.get_data().decode()))

    window = make_window(20, 300, 200, 200)
    targets = [Gtk.TargetEntry.new("text/uri-list", 0, 0)]
    window.drag_dest_set(Gtk.DestDefaults.ALL, targets, Gdk.DragAction.COPY)
    window.connect("drag-data-received", received)
    window.connect("map-event", lambda *_: GLib.idle_add(say, "ready") and False)
    window.show()


SHOWN = {"window": show_window, "fullscreen": show_fullscreen, "movable": show_movable, "bar": show_bar,
         "source": show_source, "target": show_target}


def main(what, *arguments):
    if what in SHOWN:
        SHOWN[what](*arguments)
    elif what == "leave":
        own(*arguments).store()
        return
    else:
        clipboard = own(what, *arguments)  # noqa: F841: it must live on.
    Gtk.main()


if __name__ == "__main__":
    main(*sys.argv[1:])

"""A GTK program for Ravelo to live beside. Says "ready" when done and stays until it is ended.

gtk_peer.py text TEXT    owns the clipboard with a text
gtk_peer.py image COLOR  owns the clipboard with an image of one colour, 64 x 48
gtk_peer.py window       a focused window with a text field; prints its text at each change
"""

import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GdkPixbuf, GLib, Gtk  # noqa: E402


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


def show_window():
    window = Gtk.Window(title="Peer", default_width=400, default_height=200)
    window.move(80, 640)
    entry = Gtk.Entry()
    entry.connect("changed", lambda entry: say(entry.get_text()))
    entry.connect("focus-in-event", lambda *_: GLib.idle_add(say, "ready") and False)
    window.add(entry)
    window.show_all()


if sys.argv[1] == "window":
    show_window()
else:
    own(*sys.argv[1:])
Gtk.main()

"""A GTK program that copies series of texts and reports when each was on the clipboard.

Standard input: one line "NAME COUNT MILLISECONDS" per series. The answer is one line of JSON: a list of
[after, before, text] with the monotonic clock around the copy. A text is left out if another program's
copy at the same time won.
"""

import json
import sys
import time

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("GdkX11", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GdkX11, GLib, Gtk  # noqa: E402, F401

from hand import Hand  # noqa: E402

CLIENT = 21  # The bits above identify the client (Xlib, Xorg).

clipboard = Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD)
display = Gdk.Display.get_default()
own = display.get_default_group().get_xid() >> CLIENT
server = Hand(display.get_name())  # GTK only knows about its own requests.


def copy(name, number, count, log):
    before = time.monotonic()
    text = f"{name} {number}"
    clipboard.set_text(text, -1)
    display.sync()
    if server.selection_owner("CLIPBOARD") >> CLIENT == own:
        log.append((time.monotonic(), before, text))
    if number == count:
        print(json.dumps(log), flush=True)


def read(channel, _condition):
    line = channel.readline()
    if not line:
        Gtk.main_quit()
        return False
    name, count, spacing = line.split()
    log = []
    for number in range(1, int(count) + 1):
        GLib.timeout_add(int(spacing) * number, copy, name, number, int(count), log)
    return True


GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP, read)
print("ready", flush=True)
Gtk.main()

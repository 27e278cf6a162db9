"""A GTK program that copies text after text, as fast as it is told, and tells what stood when.

Standard input: a line "NAME COUNT MILLISECONDS" a series. It answers with a line of JSON a series: a
list of [after, before, text], where the two are the monotonic clock around the copy. A text is left out
of which the X server would not have it: of two programs at once the one that asked first comes too late.
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

CLIENT = 21  # What is above these bits is the same in all windows of one client (Xlib, Xorg).

clipboard = Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD)
display = Gdk.Display.get_default()
own = display.get_default_group().get_xid() >> CLIENT
server = Hand(display.get_name())  # GTK says only what it has asked for itself.


def copy(name, number, count, log):
    before = time.monotonic()
    text = f"{name} {number}"
    clipboard.set_text(text, -1)
    display.sync()
    if server.selection_owner("CLIPBOARD") >> CLIENT == own:
        log.append((time.monotonic(), before, text))
    if number == count:
        print(json.dumps(log), flush=True)


def told(channel, _condition):
    line = channel.readline()
    if not line:
        Gtk.main_quit()
        return False
    name, count, spacing = line.split()
    log = []
    for number in range(1, int(count) + 1):
        GLib.timeout_add(int(spacing) * number, copy, name, number, int(count), log)
    return True


GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP, told)
print("ready", flush=True)
Gtk.main()

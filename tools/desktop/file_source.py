"""A borderless GTK window at the left, 200 x 200, that is a drag source for the given files or links.

file_source.py [--color COLOR] FILE|LINK ...

Prints "ready" when mapped, and "begin" and "end" for each drag. Each drag offers the next one.
"""

import itertools
import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk  # noqa: E402

from gtk_peer import paint  # noqa: E402

arguments = sys.argv[1:]
color = arguments[1] if arguments[0] == "--color" else None
uris = itertools.cycle(name if "://" in name else f"file://{name}"
                       for name in (arguments[2:] if color else arguments))
window = Gtk.Window(title="Files", default_width=200, default_height=200, decorated=False)
window.move(20, 640)
if color:
    paint(window, color)
window.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [Gtk.TargetEntry.new("text/uri-list", 0, 0)],
                       Gdk.DragAction.COPY)
window.connect("drag-data-get", lambda _w, _c, data, *_: data.set_uris([next(uris)]))
window.connect("drag-begin", lambda *_: print("begin", flush=True))
window.connect("drag-end", lambda *_: print("end", flush=True))
window.connect("map-event", lambda *_: print("ready", flush=True))
window.show()
Gtk.main()

"""A bar or a wallpaper on a Wayland desktop. Prints "ready" when mapped.

layer_peer.py bar|wallpaper COLOR HEIGHT OUTPUT   the number of the output, from the left
"""

import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
gi.require_version("GtkLayerShell", "0.1")
from gi.repository import Gdk, Gtk, GtkLayerShell  # noqa: E402

from gtk_peer import paint, say  # noqa: E402

kind, color, height, output = sys.argv[1:]
window = Gtk.Window()
window.set_size_request(1, max(int(height), 1))
paint(window, color)
GtkLayerShell.init_for_window(window)
GtkLayerShell.set_monitor(window, Gdk.Display.get_default().get_monitor(int(output)))
bar = kind == "bar"
GtkLayerShell.set_layer(window, GtkLayerShell.Layer.TOP if bar else GtkLayerShell.Layer.BACKGROUND)
for edge in (GtkLayerShell.Edge.TOP, GtkLayerShell.Edge.LEFT, GtkLayerShell.Edge.RIGHT):
    GtkLayerShell.set_anchor(window, edge, True)
GtkLayerShell.set_anchor(window, GtkLayerShell.Edge.BOTTOM, not bar)
GtkLayerShell.set_exclusive_zone(window, int(height) if bar else -1)
window.connect("map-event", lambda *_: say("ready"))
window.show()
Gtk.main()

"""A bar, a wallpaper or a pulse on a Wayland desktop: an invisible line that is drawn all the time.
Prints "ready" when mapped.

layer_peer.py bar|wallpaper|pulse COLOR HEIGHT OUTPUT   the number of the output, from the left
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
LAYERS, EDGES = GtkLayerShell.Layer, GtkLayerShell.Edge
layer, free_edge, zone = {"bar": (LAYERS.TOP, EDGES.BOTTOM, int(height)),
                            "wallpaper": (LAYERS.BACKGROUND, None, -1),
                            "pulse": (LAYERS.OVERLAY, EDGES.TOP, -1)}[kind]
GtkLayerShell.set_layer(window, layer)
for edge in (EDGES.TOP, EDGES.LEFT, EDGES.RIGHT, EDGES.BOTTOM):
    GtkLayerShell.set_anchor(window, edge, edge != free_edge)
GtkLayerShell.set_exclusive_zone(window, zone)
if kind == "pulse":
    window.set_visual(window.get_screen().get_rgba_visual())
    window.add_tick_callback(lambda *_: window.queue_draw() or True)
window.connect("map-event", lambda *_: say("ready"))
window.show()
Gtk.main()

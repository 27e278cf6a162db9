"""A GTK 4 program: a window with a text field that copies, and a label to drag a file from.

    client.py TITLE [--copy TEXT | --image FILE | --secret TEXT | --types COUNT] [--fullscreen] [--drag FILE]

Copies when F5 is pressed: Mutter ignores who has seen no input. Prints "key TEXT" when its text field changes.
"""

import argparse

import gi

gi.require_version("Gdk", "4.0")
gi.require_version("Gtk", "4.0")
from gi.repository import Gdk, GLib, Gtk

parser = argparse.ArgumentParser()
parser.add_argument("title")
parser.add_argument("--copy")
parser.add_argument("--image")
parser.add_argument("--secret")
parser.add_argument("--types", type=int)
parser.add_argument("--drag")
parser.add_argument("--fullscreen", action="store_true")
options = parser.parse_args()


def content():
    def of(mime, data):
        return Gdk.ContentProvider.new_for_bytes(mime, GLib.Bytes(data))
    if options.copy is not None:
        return of("text/plain;charset=utf-8", options.copy.encode())
    if options.types:
        return Gdk.ContentProvider.new_union([of(f"application/x-{i}", b"") for i in range(options.types)])
    if options.image:
        return of("image/png", open(options.image, "rb").read())
    if options.secret:
        return Gdk.ContentProvider.new_union([of("text/plain;charset=utf-8", options.secret.encode()),
                                              of("x-kde-passwordManagerHint", b"secret")])
    return None


def activate(application):
    window = Gtk.ApplicationWindow(application=application, title=options.title, default_width=400,
                                   default_height=300)
    box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL)
    entry = Gtk.Entry()
    entry.connect("changed", lambda _: print("key", entry.get_text(), flush=True))
    box.append(entry)
    if options.drag:
        label = Gtk.Label(label="drag me", vexpand=True)
        source = Gtk.DragSource()
        uri = GLib.filename_to_uri(options.drag) + "\r\n"
        source.connect("prepare", lambda *_: Gdk.ContentProvider.new_for_bytes("text/uri-list",
                                                                               GLib.Bytes(uri.encode())))
        label.add_controller(source)
        box.append(label)
    window.set_child(box)
    if options.fullscreen:
        window.fullscreen()

    def pressed(_, key, *__):
        if key == Gdk.KEY_F5:
            window.get_clipboard().set_content(content())
            print("copied", flush=True)

    keys = Gtk.EventControllerKey(propagation_phase=Gtk.PropagationPhase.CAPTURE)
    keys.connect("key-pressed", pressed)
    window.add_controller(keys)
    window.present()
    entry.grab_focus()


app = Gtk.Application(application_id=None)
app.connect("activate", activate)
app.run([])

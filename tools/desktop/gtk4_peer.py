"""A full-screen GTK 4 window of one colour that copies and pastes as told on standard input, one line
of JSON each: {"copy": {TYPE: BASE64}} or {"paste": TYPE}. The answer is a line of JSON: true or Base64.

gtk4_peer.py COLOR
"""

import base64
import json
import sys
import tempfile
import threading

import gi

gi.require_version("Gdk", "4.0")
gi.require_version("Gtk", "4.0")
from gi.repository import Gdk, Gio, GLib, Gtk  # noqa: E402


def answer(value):
    print(json.dumps(value), flush=True)


def copy(clipboard, forms):
    providers = [Gdk.ContentProvider.new_for_bytes(kind, GLib.Bytes.new(base64.b64decode(data)))
                 for kind, data in forms.items()]
    answer(clipboard.set_content(Gdk.ContentProvider.new_union(providers)))


def paste(clipboard, kind):
    def opened(_, result):
        try:
            stream, _ = clipboard.read_finish(result)
        except GLib.Error as error:
            return answer(error.message)
        output = Gio.MemoryOutputStream.new_resizable()
        output.splice_async(stream, Gio.OutputStreamSpliceFlags.CLOSE_TARGET, 0, None, read, output)

    def read(_, result, output):
        output.splice_finish(result)
        answer(base64.b64encode(output.steal_as_bytes().get_data()).decode())

    clipboard.read_async([kind], 0, None, opened)


def paint_file():
    """Its methods for texts differ between releases."""
    with tempfile.NamedTemporaryFile("w", suffix=".css", delete=False) as file:
        file.write(f"window {{ background: {sys.argv[1]}; }}")
    return Gio.File.new_for_path(file.name)


def activate(application):
    window = Gtk.ApplicationWindow(application=application)
    style = Gtk.CssProvider()
    style.load_from_file(paint_file())
    Gtk.StyleContext.add_provider_for_display(window.get_display(), style, 800)
    window.fullscreen()
    window.present()
    clipboard = window.get_clipboard()
    deeds = {"copy": copy, "paste": paste}

    def listen():
        for line in sys.stdin:
            for verb, value in json.loads(line).items():
                GLib.idle_add(lambda v=verb, w=value: deeds[v](clipboard, w) and False)

    print("ready", flush=True)
    threading.Thread(target=listen, daemon=True).start()


application = Gtk.Application(flags=Gio.ApplicationFlags.NON_UNIQUE)
application.connect("activate", activate)
application.run()

"""Stands in for Ravelo: owns its name and listens on its socket. For tests of the extension alone.

    ravelo_peer.py [--version N] [--no-name | --no-socket]

Prints each message as a line, with the contents read from the descriptor or the connection that came with it;
sends the lines of its standard input. With --no-name or --no-socket another process has the other half.
"""

import json
import os
import pathlib
import selectors
import socket
import sys

from gi.repository import Gio, GLib

VERSION = int(sys.argv[sys.argv.index("--version") + 1]) if "--version" in sys.argv else 2
HELLO = {"is": "hello", "version": VERSION, "title": "Ravelo panel", "stripWidth": 200, "stripHeight": 2}


def say(message):
    print(json.dumps(message), flush=True)


def read_all(read):
    parts = []
    while part := read(65536):
        parts.append(part)
    return b"".join(parts)


class Peer:
    def __init__(self, listening):
        self.selector = selectors.DefaultSelector()
        self.selector.register(listening, selectors.EVENT_READ, self.accept)
        self.selector.register(sys.stdin.buffer, selectors.EVENT_READ, self.pass_on)
        self.link, self.bytes, self.descriptors = None, b"", []

    def accept(self, listening):
        connection = listening.accept()[0]
        first = b""
        while not first.endswith(b"\n"):
            byte = connection.recv(1)
            if not byte:
                return
            first += byte
        message = json.loads(first)
        if message["is"] == "pour":
            data = read_all(connection.recv)
            say({**message, "bytes": data.decode(errors="replace"), "size": len(data)})
            return
        say(message)
        self.link, self.bytes, self.descriptors = connection, b"", []
        try:
            connection.sendall(json.dumps(HELLO).encode() + b"\n")
        except BrokenPipeError:
            return
        self.selector.register(connection, selectors.EVENT_READ, self.hear)

    def hear(self, connection):
        try:
            data, descriptors, _, _ = socket.recv_fds(connection, 65536, 16)
        except ConnectionResetError:
            data = b""
        if not data:
            say({"is": "end"})
            self.selector.unregister(connection)
            return
        self.bytes += data
        self.descriptors += descriptors
        *lines, self.bytes = self.bytes.split(b"\n")
        for line in lines:
            message = json.loads(line.removeprefix(b"\0"))
            if line.startswith(b"\0"):
                descriptor = self.descriptors.pop(0)
                os.set_blocking(descriptor, True)
                data = read_all(lambda size: os.read(descriptor, size))
                os.close(descriptor)
                message |= {"bytes": data.decode(errors="replace"), "size": len(data)}
            say(message)

    def pass_on(self, source):
        lines = os.read(source.fileno(), 65536)  # Unbuffered: a second line would wait for a third.
        if not lines:
            sys.exit()
        self.link.sendall(lines)


def main():
    path = pathlib.Path(os.environ["XDG_RUNTIME_DIR"]) / "ravelo-shell/socket"
    path.parent.mkdir(mode=0o700, exist_ok=True)
    if "--no-socket" not in sys.argv:
        path.unlink(missing_ok=True)
        listening = socket.socket(socket.AF_UNIX)
        listening.bind(str(path))
        listening.listen()
    if "--no-name" not in sys.argv:
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                      GLib.Variant("(su)", ("org.ravelo.Ravelo", 4)), None, 0, -1, None)
    if "--no-socket" in sys.argv:
        sys.stdin.read()
        return
    peer = Peer(listening)
    while True:
        for key, _ in peer.selector.select():
            key.data(key.fileobj)


main()

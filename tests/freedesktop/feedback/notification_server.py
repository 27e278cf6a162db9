"""A notification service for tests: prints each call as JSON, and signals what it reads.

usage: notification_server.py ADDRESS; each line of standard input is "act ID ACTION", "close ID"
or "plain" (no actions and no markup from now on).
"""

import json
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NAME = "org.freedesktop.Notifications"
PATH = "/org/freedesktop/Notifications"
INTERFACE = Gio.DBusNodeInfo.new_for_xml("""
<node><interface name='org.freedesktop.Notifications'>
  <method name='GetCapabilities'><arg direction='out' type='as'/></method>
  <method name='Notify'>
    <arg direction='in' type='s'/><arg direction='in' type='u'/><arg direction='in' type='s'/>
    <arg direction='in' type='s'/><arg direction='in' type='s'/><arg direction='in' type='as'/>
    <arg direction='in' type='a{sv}'/><arg direction='in' type='i'/>
    <arg direction='out' type='u'/>
  </method>
</interface></node>""").interfaces[0]


class Server:
    def __init__(self, address):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
                 | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        self.bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        self.capabilities = ["actions", "body-markup"]
        self.last = 0
        self.bus.register_object(PATH, INTERFACE, self.called, None, None)
        Gio.bus_own_name_on_connection(self.bus, NAME, 0, lambda *_: say("ready"), None)

    def called(self, _bus, _sender, _path, _interface, method, arguments, invocation):
        if method == "GetCapabilities":
            invocation.return_value(GLib.Variant("(as)", (self.capabilities,)))
            return
        _name, replaces, _icon, title, text, actions, hints, time = arguments.unpack()
        self.last += 0 if replaces else 1
        number = replaces or self.last
        invocation.return_value(GLib.Variant("(u)", (number,)))
        say(json.dumps([number, replaces, title, text, actions, hints["desktop-entry"], time]))

    def command(self, line):
        word, *rest = line.split()
        if word == "plain":
            self.capabilities = []
        elif word == "act":
            self.signal("ActionInvoked", GLib.Variant("(us)", (int(rest[0]), rest[1])))
        elif word == "close":
            self.signal("NotificationClosed", GLib.Variant("(uu)", (int(rest[0]), 2)))

    def signal(self, name, arguments):
        self.bus.emit_signal(None, PATH, NAME, name, arguments)
        self.bus.flush_sync(None)
        say(name)


def say(text):
    print(text, flush=True)


def main():
    server = Server(sys.argv[1])
    loop = GLib.MainLoop()

    def read(channel, _condition):
        line = channel.readline()
        if not line:
            loop.quit()
            return False
        server.command(line)
        return True

    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, read)
    loop.run()


main()

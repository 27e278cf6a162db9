"""A minimal tray: the watcher that status items register with, and a client that reads them and
clicks on their menus (StatusNotifierItem, com.canonical.dbusmenu)."""

from gi.repository import Gio, GLib

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
WATCHER_INTERFACE = Gio.DBusNodeInfo.new_for_xml(f"""<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierHostRegistered"/>
</interface></node>""").interfaces[0]


class TrayHost:
    """Lives as long as its connection. Call `serve` to let it answer."""

    def __init__(self, bus, shows=True):
        """`bus` is closed with the host. `shows` reports a host as registered; it may change."""
        self.shows, self.asked = shows, False
        self._bus = bus
        self.items = []
        self._bus.register_object("/StatusNotifierWatcher", WATCHER_INTERFACE, self._called,
                                  self._read, None)
        Gio.bus_own_name_on_connection(self._bus, WATCHER, Gio.BusNameOwnerFlags.NONE, None, None)

    def close(self):
        self._bus.close_sync(None)

    def serve(self):
        while GLib.MainContext.default().iteration(False):
            pass
        return self

    def _called(self, _bus, sender, _path, _interface, method, parameters, invocation):
        if method == "RegisterStatusNotifierItem":
            name = parameters.unpack()[0]
            self.items.append(name if not name.startswith("/") else sender)
        invocation.return_value(None)

    def _read(self, _bus, _sender, _path, _interface, name):
        self.asked = self.asked or name == "IsStatusNotifierHostRegistered"
        return {"IsStatusNotifierHostRegistered": GLib.Variant("b", self.shows),
                "RegisteredStatusNotifierItems": GLib.Variant("as", self.items),
                "ProtocolVersion": GLib.Variant("i", 0)}[name]

    def _call(self, path, interface, method, arguments):
        return self._bus.call_sync(self.items[-1], path, interface, method, arguments, None,
                                   Gio.DBusCallFlags.NONE, 5000, None).unpack()

    def read(self, name):
        """A property of the item."""
        return self._call("/StatusNotifierItem", "org.freedesktop.DBus.Properties", "Get",
                          GLib.Variant("(ss)", (ITEM, name)))[0]

    def tooltip(self):
        return self.read("ToolTip")[2]

    def rows(self):
        """Number, title (or None) and shortcut of each menu row."""
        _, (_, _, rows) = self._call(self.read("Menu"), MENU, "GetLayout",
                                     GLib.Variant("(iias)", (0, -1, [])))
        return [(number, row.get("label"), row.get("shortcut", [])) for number, row, _ in rows]

    def click(self, title):
        number = next(number for number, label, _ in self.rows() if label == title)
        self._call(self.read("Menu"), MENU, "Event",
                   GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("s", ""), 0)))

    def activate(self):
        """Like a click on the icon."""
        self._call("/StatusNotifierItem", ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))

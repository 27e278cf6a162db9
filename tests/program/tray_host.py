"""A panel, as far as a status item needs one: the watcher that items register with, and somebody who
reads them and clicks on their menu (StatusNotifierItem, com.canonical.dbusmenu)."""

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
    """Lives as long as its connection. Its calls run the main context, so that it can answer."""

    def __init__(self, address, shows=True):
        """`shows` may change: whether a host has registered that shows what the watcher lists."""
        self.shows, self.asked = shows, False
        self._bus = Gio.DBusConnection.new_for_address_sync(
            address, Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        self.items = []
        self._bus.register_object("/StatusNotifierWatcher", WATCHER_INTERFACE, self._called,
                                  self._told, None)
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

    def _told(self, _bus, _sender, _path, _interface, name):
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
        """The menu: the number, the title or nothing, and the keys of each row."""
        _, (_, _, rows) = self._call(self.read("Menu"), MENU, "GetLayout",
                                     GLib.Variant("(iias)", (0, -1, [])))
        return [(number, row.get("label"), row.get("shortcut", [])) for number, row, _ in rows]

    def click(self, title):
        number = next(number for number, label, _ in self.rows() if label == title)
        self._call(self.read("Menu"), MENU, "Event",
                   GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("s", ""), 0)))

    def activate(self):
        """As a click on the icon does."""
        self._call("/StatusNotifierItem", ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))

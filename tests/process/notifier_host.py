"""A desktop's panel, as far as a status notifier sees it: prints each item that registers itself, one a
line, until it is ended."""

from gi.repository import Gio, GLib

NAME = "org.kde.StatusNotifierWatcher"
INTERFACE = """
<node><interface name='org.kde.StatusNotifierWatcher'>
  <method name='RegisterStatusNotifierItem'><arg name='service' type='s' direction='in'/></method>
  <method name='RegisterStatusNotifierHost'><arg name='service' type='s' direction='in'/></method>
  <property name='RegisteredStatusNotifierItems' type='as' access='read'/>
  <property name='IsStatusNotifierHostRegistered' type='b' access='read'/>
  <property name='ProtocolVersion' type='i' access='read'/>
  <signal name='StatusNotifierHostRegistered'/>
</interface></node>
"""
PROPERTIES = {
    "RegisteredStatusNotifierItems": GLib.Variant("as", []),
    "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
    "ProtocolVersion": GLib.Variant("i", 0),
}


def answer(_bus, sender, _path, _interface, _method, _arguments, invocation):
    print(sender, flush=True)
    invocation.return_value(None)


def read(_bus, _sender, _path, _interface, name):
    return PROPERTIES[name]


def serve(bus, _name):
    description = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
    bus.register_object("/StatusNotifierWatcher", description, answer, read, None)


if __name__ == "__main__":
    Gio.bus_own_name(Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.NONE, serve, None, None)
    GLib.MainLoop().run()

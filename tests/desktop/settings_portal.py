"""A desktop's settings portal that knows one setting: whether the desktop is light (0) or dark (1)."""

import threading

from gi.repository import Gio, GLib

APPEARANCE = ("org.freedesktop.appearance", "color-scheme")
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = """\
<node>
  <interface name="org.freedesktop.portal.Settings">
    <method name="Read">
      <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
    </method>
    <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
  </interface>
</node>"""


class Portal:
    """Answers on the session bus, on a thread of its own, until `end`."""

    def __init__(self, scheme):
        self._scheme = scheme
        self._interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self._context = GLib.MainContext()
        self._loop = GLib.MainLoop(self._context)
        ready = threading.Event()
        self._thread = threading.Thread(target=self._serve, args=[ready], daemon=True)
        self._thread.start()
        ready.wait()

    def change(self, scheme):
        self._scheme = scheme
        change = GLib.Variant("(ssv)", (*APPEARANCE, GLib.Variant("u", scheme)))
        self._bus.emit_signal(None, PATH, self._interface.name, "SettingChanged", change)

    def end(self):
        Gio.bus_unown_name(self._name)
        self._loop.quit()
        self._thread.join()

    def _serve(self, ready):
        self._context.push_thread_default()
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self._bus.register_object(PATH, self._interface, self._called, None, None)
        self._name = Gio.bus_own_name_on_connection(
            self._bus, "org.freedesktop.portal.Desktop", Gio.BusNameOwnerFlags.NONE, lambda *_: ready.set(), None
        )
        self._loop.run()

    def _called(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        if arguments.unpack() == APPEARANCE:
            # Portals wrap the answer once more than the interface says.
            setting = GLib.Variant("v", GLib.Variant("v", GLib.Variant("u", self._scheme)))
            invocation.return_value(GLib.Variant.new_tuple(setting))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "there is no such setting")

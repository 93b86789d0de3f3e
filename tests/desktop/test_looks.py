"""The colours follow the desktop's."""

from gi.repository import Gio, GLib

from case import ProgramTestCase

# Whether the desktop is light or dark.
LIGHT, DARK = 0, 1
APPEARANCE = ("org.freedesktop.appearance", "color-scheme")
PATH = "/org/freedesktop/portal/desktop"
INTERFACE = """\
<node>
  <interface name="org.freedesktop.portal.Settings">
    <method name="Read">
      <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
    </method>
  </interface>
</node>"""


class Portal:
    """A desktop's settings portal that knows one setting, and answers while this process waits for something."""

    def __init__(self, scheme):
        self._scheme = scheme
        self._interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self._bus.register_object(PATH, self._interface, self._called, None, None)
        name = "org.freedesktop.portal.Desktop"
        self._name = Gio.bus_own_name_on_connection(self._bus, name, Gio.BusNameOwnerFlags.NONE, None, None)

    def change(self, scheme):
        self._scheme = scheme
        change = GLib.Variant("(ssv)", (*APPEARANCE, GLib.Variant("u", scheme)))
        self._bus.emit_signal(None, PATH, self._interface.name, "SettingChanged", change)

    def end(self):
        Gio.bus_unown_name(self._name)

    def _called(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        if arguments.unpack() == APPEARANCE:
            # Portals wrap the answer once more than the interface says.
            setting = GLib.Variant("v", GLib.Variant("v", GLib.Variant("u", self._scheme)))
            invocation.return_value(GLib.Variant.new_tuple(setting))
        else:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "there is no such setting")


class DesktopThatTellsByItsPortal(ProgramTestCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.portal = Portal(DARK)
        cls.addClassCleanup(cls.portal.end)

    def wait_until_window_is(self, scheme):
        left, top, _, _ = self.bounds

        def follows():
            GLib.MainContext.default().iteration(False)
            return (self.screen.measure("%[fx:mean]", left + 4, top + 100, 1, 1) < 0.5) == (scheme == DARK)

        self.wait_for(follows, "the window to change its colours")

    def test_the_window_is_dark_where_the_desktop_is_and_turns_with_it(self):
        self.wait_until_window_is(DARK)
        for scheme in (LIGHT, DARK):
            self.portal.change(scheme)
            self.wait_until_window_is(scheme)

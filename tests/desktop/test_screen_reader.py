"""What a screen reader gets to speak: roles, names and states, and the events in their order."""

from contextlib import suppress

from gi.repository import GLib

from accessibility import Atspi
from case import ProgramTestCase

# The events that a screen reader speaks upon.
KINDS = ("state-changed:focused", "state-changed:showing", "text-caret-moved", "text-selection-changed")


class English(ProgramTestCase):
    ENVIRONMENT = {"LANGUAGE": "en"}

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.events = []
        cls.listener = Atspi.EventListener.new(cls.note)
        for kind in KINDS:
            cls.listener.register(f"object:{kind}")
            cls.addClassCleanup(cls.listener.deregister, f"object:{kind}")

    @classmethod
    def note(cls, event):
        """Keeps the event with the role and name of its source and what is in it."""
        source = event.source
        with suppress(GLib.Error):  # it may be gone by now
            text = " ".join(source.get_child_at_index(i).get_name() for i in range(source.get_child_count()))
            cls.events.append((event.type.split(":")[-1], event.detail1, source.get_role_name(), source.get_name(), text))

    def take_events(self):
        while GLib.MainContext.default().iteration(False):
            pass

    def hear(self, act, wanted):
        """What comes until an event like `wanted` (kind, role, name or text) does, that one last."""
        self.take_events()
        self.events.clear()
        act()

        def found():
            self.take_events()
            return next((i for i, e in enumerate(self.events) if (e[0], e[2]) == wanted[:2] and wanted[2] in e[3:]), None)

        self.wait_for(lambda: found() is not None, lambda: f"{wanted} among {self.events}")
        return self.events[: found() + 1]

    def windows(self):
        root = self.accessible
        return [(w.get_role_name(), w.get_name()) for w in map(root.get_child_at_index, range(root.get_child_count()))]

    def test_all_that_is_seen_is_told(self):
        self.assertEqual(self.windows(), [("frame", "Tessarolyne")])
        amount = "two hundred and fifty five euros zero cent"
        spoken = self.hear(lambda: self.screen.type("255"), ("showing", "notification", amount))
        self.assertEqual([e for e in spoken if e[0] == "focused"], [])
        field = self.find("text", "Number in base 10")
        self.assertEqual(field.run_of_attributes(1), (0, 3))  # a reader speaks run by run
        self.assertFalse(field.labelled)  # a reader prefers a label to the name
        before = self.hear(lambda: self.screen.press("Tab"), ("focused", "text", "Number in the source base"))[:-1]
        self.assertEqual([e for e in before if e[0].startswith("text-") and e[3] == "Number in the source base"], [])
        before = self.hear(lambda: self.screen.press("shift+Tab"), ("focused", "text", "Number in base 10"))[:-1]
        self.assertEqual([e for e in before if e[0].startswith("text-") and e[3] == "Number in base 10"], [])
        self.hear(lambda: self.screen.press("ctrl+1"), ("showing", "notification", "Copied: FF"))
        self.hear(lambda: self.screen.press("ctrl+question"), ("focused", "push button", "Read “About”"))
        role, name = self.windows()[-1]
        self.assertEqual((role, name.split("\n")[0]), ("dialog", "Help is not available for Tessarolyne."))
        self.screen.press("Escape")
        self.wait_until_gone("dialog", "Help is not available for Tessarolyne.")
        self.click("check box", "Prime List")
        self.wait_for(lambda: ("frame", "Prime List") in self.windows(), "the list's window")
        self.screen.type("1000")
        self.hear(lambda: self.screen.press("Return"), ("showing", "notification", "Calculation finished: 168 primes"))
        for rank in ("Rank of the first prime shown", "Rank of the last prime shown"):
            before = self.hear(lambda: self.screen.press("Tab"), ("focused", "text", rank))[:-1]
            self.assertEqual([e for e in before if e[0].startswith("text-") and e[3] == rank], [])
        names = [c.name for c in self.controls() if c.showing and c.name.strip() and c.role not in ("frame", "label")]
        self.assertEqual(sorted(names), sorted(set(names)))
        self.assertEqual([c for c in self.controls() if c.focused and not c.showing], [])
        self.assertEqual([c for c in self.controls() if " :" in c.name and c.role != "push button"], [])

"""The program as assistive technology sees it: a tree of controls with names, roles, states and texts.

Call it only when the screen is up: the library binds itself to the bus it finds at its first call.
"""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def _children(accessible):
    found = (accessible.get_child_at_index(index) for index in range(accessible.get_child_count()))
    return (child for child in found if child is not None)


def find_application(pid):
    """The tree's root of the process, or None as long as it has not registered."""
    return next((child for child in _children(Atspi.get_desktop(0)) if child.get_process_id() == pid), None)


def descendants(accessible):
    """All that is below, parents before their children."""
    for child in _children(accessible):
        yield child
        yield from descendants(child)


class Control:
    """One control of the running program. Every property is read afresh from the program."""

    def __init__(self, accessible):
        self._accessible = accessible

    def __repr__(self):
        return f"{self.role} “{self.name}”"

    def __getattr__(self, state):
        """Whether it is `focused`, `focusable`, `enabled`, `checked`, `expanded`, `showing`: any state by its name."""
        return self._accessible.get_state_set().contains(getattr(Atspi.StateType, state.upper()))

    @property
    def name(self):
        return self._accessible.get_name()

    @property
    def role(self):
        return self._accessible.get_role_name()

    @property
    def text(self):
        """The text of a field or area; of a combo box, the row that is chosen."""
        if self._accessible.get_role() == Atspi.Role.COMBO_BOX:
            return self.description
        return Atspi.Text.get_text(self._accessible, 0, Atspi.Text.get_character_count(self._accessible))

    def run_of_attributes(self, offset):
        """Where the run of text with the same attributes begins and ends."""
        _, start, end = Atspi.Text.get_attribute_run(self._accessible, offset, False)
        return start, end

    def set_text(self, text):
        """Replaces the text without a key, as dictation does."""
        Atspi.EditableText.set_text_contents(self._accessible, text)

    @property
    def description(self):
        """What a screen reader adds to the name."""
        return self._accessible.get_description()

    @property
    def labelled(self):
        return any(r.get_relation_type() == Atspi.RelationType.LABELLED_BY for r in self._accessible.get_relation_set())

    @property
    def window_has_keyboard(self):
        """Whether the keys go to the window that it is in."""
        window = self._accessible
        while window.get_parent().get_role() != Atspi.Role.APPLICATION:
            window = window.get_parent()
        return any(Control(inside).focused for inside in descendants(window))

    def press(self):
        """Does what a screen reader offers to do with it first."""
        self._accessible.do_action(0)

    @property
    def bounds(self):
        """Left, top, width and height on the screen, in pixels."""
        box = Atspi.Component.get_extents(self._accessible, Atspi.CoordType.SCREEN)
        return box.x, box.y, box.width, box.height

    @property
    def centre(self):
        left, top, width, height = self.bounds
        return left + width // 2, top + height // 2

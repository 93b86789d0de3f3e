"""Each choice of the main window acts at once, and every output can be read from outside."""

from case import ProgramTestCase
from controls import TAB_ORDER


class Outputs(ProgramTestCase):
    def enter(self, number):
        self.clear("EditFieldNbre")
        self.screen.type(number)

    def test_bases_that_make_another_number_leave_the_factors_dimmed(self):
        factors = self.control("TxtAreaDecomp1er")
        left, top, _, _ = factors.bounds

        def darkest():
            crop = f"100x20+{left + 4}+{top + 4}"
            return float(
                self.screen.run("import", "-silent", "-window", "root", "-crop", crop, "-format", "%[fx:minima]", "info:-")
            )

        self.press_button("RadioButton09AZ 0")
        self.choose("PopupMenuBaseOrg", 1)
        self.clear("EditFieldBaseOrg")
        self.screen.type("22")
        self.wait_for_text("TxtAreaDecomp1er", "2 x 2 x 2")
        self.program.wait_for(lambda: darkest() < 0.2, "black factors")
        self.choose("PopupMenuBaseOrg", 2)
        self.wait_for_text("EditFieldNbre", "10")
        self.program.wait_for(lambda: darkest() > 0.3, "dimmed factors")
        self.assertEqual((factors.text, factors.description), ("2 x 2 x 2", "Correspond au nombre précédent."))
        self.focus("EditFieldBaseOrg")
        self.screen.press("End", "BackSpace")
        self.wait_for_text("TxtAreaDecomp1er", "2")
        self.program.wait_for(lambda: darkest() < 0.2 and factors.description == "Le nombre comme produit de nombres premiers.", "black factors again")

    def test_factors_dragged_into_a_field_count_as_typed_there(self):
        self.enter("97")
        self.wait_for_text("TxtAreaDecomp1er", "97")
        self.focus("TxtAreaDecomp1er")
        self.screen.press("ctrl+a")
        left, top, _, _ = self.control("TxtAreaDecomp1er").bounds
        self.screen.drag((left + 12, top + 12), self.control("EditFieldNbre").centre)
        self.wait_for_text("TxtAreaDecomp1er", "97 x 101")
        for name in TAB_ORDER[1:]:  # for a while: Qt began a drag anew some moments later
            self.screen.press("Tab")
            self.wait_for_focus(name)

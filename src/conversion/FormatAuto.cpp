// The switch between grouped and bare numbers: brings what is on the screen into line at once.

#include "app/Program.h"
#include "conversion/WinMain.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"
#include "ui/NumberFormat.h"

#include <array>

namespace tessarolyne {

void WinMain::CheckBoxFormatAuto_Action(CheckBox& bouton) {
    if (!app.initProg) {
        return;
    }
    app.initProg = false; // the changes of text below are no input
    const bool grouped = bouton.Value;
    if (IsNumeric(EditFieldNbre.Text())) {
        if (!FocusNbre) {
            EditFieldNbre.Text = FormatNbre(EditFieldNbre.Text(), grouped);
        }
        if (!FocusBase && !IsErrorText(EditFieldBaseOrg.Text())) {
            EditFieldBaseOrg.Text = FormatType(SourceDigits(), PopupMenuBaseOrg.ListIndex + 2, grouped);
        }
        if (!IsErrorText(EditFieldBaseDest.Text())) {
            EditFieldBaseDest.Text =
                FormatType(EditFieldBaseDest.Text(), PopupMenuBaseDest.ListIndex + 2, grouped);
        }
    }
    decomposition.Regroup(grouped);
    if (BevelButtonListe.Value) {
        WinNbresPremiers& list = program.winNbresPremiers();
        const std::string mask(grouped ? groupedMask : plainMask);
        const std::array fields = {&list.EditFieldFin, &list.EditFieldAffDu, &list.EditFieldAffAu};
        for (TextField* field : fields) {
            field->Format = mask;
        }
        for (TextField* field : fields) {
            const std::string bare = WithoutBlanks(field->Text());
            if (IsNumeric(bare)) { // a message keeps its blanks
                field->Text = bare;
            }
        }
    }
    app.initProg = true;
}

} // namespace tessarolyne

// The slice of the prime table that the list window shows, and the run that extends the table from there.

#include "platform/CheckBox.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/Calculation.h"
#include "primes/WinNbresPremiers.h"
#include "primes/engine/PrimeTable.h"
#include "ui/Localisation.h"
#include "ui/NumberFormat.h"

#include <algorithm>

namespace tessarolyne {

namespace {

// What the user entered as a rank, counted from 0; -1 for nothing or 0. Beyond the last rank that a table can
// have all are alike.
std::int64_t EnteredRank(std::string_view text) {
    return std::int64_t{ToInt32(Round(Val(WithoutBlanks(text))))} - 1;
}

struct Slice {
    std::int64_t first;
    std::int64_t last;
};

// The range that is shown of a table that ends at rank `last`.
Slice CutToTable(Slice entered, std::int64_t last, bool garderDebut, std::int64_t largest) {
    Slice shown{std::max<std::int64_t>(entered.first, 0), entered.last};
    if (shown.first > last) {
        shown.first = std::max<std::int64_t>(last - (largest - 1), 0);
    }
    if (shown.last < 0 || shown.last > last) {
        shown.last = last;
    }
    if (shown.last < shown.first || shown.first + largest - 1 <= shown.last) {
        if (garderDebut) {
            shown.last = std::min(shown.first + largest - 1, last);
        } else {
            shown.first = std::max<std::int64_t>(shown.last - (largest - 1), 0);
        }
    }
    return shown;
}

} // namespace

void WinNbresPremiers::FaireListe(bool forcer, bool garderDebut) {
    const std::int32_t last = table_.UpperBound();
    if (Ind_DerPrem >= last && !forcer) {
        return;
    }
    TxtAreaListeNbres1ers.Text = Localisation::Txt_Attente();
    StaticTextNbNbre1ers.Text = Localisation::Txt_Attente();
    Ind_DerPrem = last;
    const Slice slice = CutToTable({EnteredRank(EditFieldAffDu.Text()), EnteredRank(EditFieldAffAu.Text())},
        last, garderDebut, largestSlice);
    debut_ = static_cast<std::int32_t>(slice.first);
    fin_ = static_cast<std::int32_t>(slice.last);
    EditFieldAffDu.Text = Str(slice.first + 1);
    EditFieldAffAu.Text = Str(slice.last + 1);
    const std::string text = ListText(debut_, fin_);
    ShowBinding();
    StaticTextNbNbre1ers.Text = FormatWhole(static_cast<std::uint64_t>(Ind_DerPrem) + 1, grouped_.Value) +
                                Localisation::Txt_NombresPremiers();
    EditFieldFin.Text = FormatWhole(table_.Back(), false);
    TxtAreaListeNbres1ers.Text = Localisation::Txt_Attente() + "   " + Localisation::Txt_Attente();
    TxtAreaListeNbres1ers.Text = text;
}

std::string WinNbresPremiers::ListText(std::int32_t debut, std::int32_t fin) const {
    if (fin < debut) {
        return {}; // of an empty table
    }
    PrimeTable::Cursor cursor(table_, debut);
    std::string text = "\t";
    text += FormatWhole(cursor.Value(), false);
    for (std::int32_t i = debut + 1; i <= fin; ++i) {
        cursor.Next();
        text += '\t';
        text += FormatWhole(cursor.Value(), false);
        if ((i - debut) % columns == columns - 1) {
            text += endOfLine;
        }
    }
    return text;
}

void WinNbresPremiers::PushButtonCalcPrems_Action() {
    const std::uint64_t limit = ToUInt64(Round(Val(WithoutBlanks(EditFieldFin.Text()))));
    if (calculation_.CalculEnCours()) {
        fncts.Beep();
        return;
    }
    calculation_.Begin();
    if (limit > NbreMax) {
        fncts.Beep();
        EditFieldFin.Text = "Nb Max = " + FormatWhole(NbreMax, grouped_.Value);
        calculation_.End();
        return;
    }
    ProgressWheel2.Visible = true;
    const auto body = [&calculation = calculation_](
                          std::uint64_t end) { calculation.NbresPremCalc(end, false); };
    calculation_.RunOnThread({Calculation::listRunHasEnded, limit, ProgressWheel2, StaticTextAvance, limit,
        true, body, [this](std::uint64_t) { ButtCalcPremsFin(); }});
}

// Ends a run of this window, on the main thread.
void WinNbresPremiers::ButtCalcPremsFin() {
    if (fncts.ArretUrg) {
        Ind_DerPrem = table_.UpperBound();
        ShowBinding();
        EditFieldFin.Text = FormatWhole(table_.Back(), false);
    } else {
        EditFieldAffAu.Text = "0";
        FaireListe(true, false);
    }
    ProgressWheel2.Visible = false;
    calculation_.End();
    calculation_.TellWhyRunEnded();
    calculation_.AnnounceRunEnded(StaticTextNbNbre1ers.Text);
}

} // namespace tessarolyne

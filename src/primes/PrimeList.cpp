// The slice of the prime table that the list window shows, and the run that extends the table from there.

#include "app/Program.h"
#include "conversion/NumberFormat.h"
#include "conversion/WinMain.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"
#include "ui/Localisation.h"

#include <algorithm>

namespace tessarolyne {

namespace {

// What the user entered as a rank, counted from 0; -1 for nothing or 0. Beyond the last rank that a table can
// have all are alike.
std::int64_t EnteredRank(std::string_view text) {
    return std::int64_t{ToInt32(Round(Val(WithoutBlanks(text))))} - 1;
}

struct Slice {
    std::int64_t debut;
    std::int64_t fin;
};

// The range that is shown of a table that ends at rank `last`.
Slice CutToTable(Slice entered, std::int64_t last, bool garderDebut, std::int64_t largest) {
    std::int64_t debut = std::max<std::int64_t>(entered.debut, 0);
    if (debut > last) {
        debut = std::max<std::int64_t>(last - (largest - 1), 0);
    }
    std::int64_t fin = entered.fin < 0 || entered.fin > last ? last : entered.fin;
    if (fin < debut || debut + largest - 1 <= fin) {
        if (garderDebut) {
            fin = std::min(debut + largest - 1, last);
        } else {
            debut = std::max<std::int64_t>(fin - (largest - 1), 0);
        }
    }
    return {debut, fin};
}

} // namespace

void WinNbresPremiers::FaireListe(bool forcer, bool garderDebut) {
    WinMain& main = program.winMain();
    const PrimeTable& table = main.Nbres_Premiers;
    const std::int32_t last = table.UpperBound();
    if (Ind_DerPrem >= last && !forcer) {
        return;
    }
    TxtAreaListeNbres1ers.Text = Localisation::Txt_Attente();
    StaticTextNbNbre1ers.Text = Localisation::Txt_Attente();
    Ind_DerPrem = last;
    const Slice slice = CutToTable({EnteredRank(EditFieldAffDu.Text()), EnteredRank(EditFieldAffAu.Text())},
        last, garderDebut, largestSlice);
    debut_ = static_cast<std::int32_t>(slice.debut);
    fin_ = static_cast<std::int32_t>(slice.fin);
    EditFieldAffDu.Text = Str(slice.debut + 1);
    EditFieldAffAu.Text = Str(slice.fin + 1);
    const std::string text = ListText(debut_, fin_);
    ShowBinding();
    StaticTextNbNbre1ers.Text =
        FormatWhole(static_cast<std::uint64_t>(Ind_DerPrem) + 1, main.CheckBoxFormatAuto.Value) +
        Localisation::Txt_NombresPremiers();
    EditFieldFin.Text = FormatWhole(table.Back(), false);
    TxtAreaListeNbres1ers.Text = Localisation::Txt_Attente() + "   " + Localisation::Txt_Attente();
    TxtAreaListeNbres1ers.Text = text;
}

std::string WinNbresPremiers::ListText(std::int32_t debut, std::int32_t fin) const {
    if (fin < debut) {
        return {}; // of an empty table
    }
    PrimeTable::Cursor cursor(program.winMain().Nbres_Premiers, debut);
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

void WinNbresPremiers::PushButtonCalcPrems_Action(PushButton&) {
    WinMain& main = program.winMain();
    const std::uint64_t limit = ToUInt64(Round(Val(WithoutBlanks(EditFieldFin.Text()))));
    if (main.CalculEnCours) {
        fncts.Beep();
        return;
    }
    main.CalculEnCours = true;
    fncts.ArretUrg = false;
    if (limit > main.NbreMax) {
        fncts.Beep();
        EditFieldFin.Text = "Nb Max = " + FormatWhole(main.NbreMax, main.CheckBoxFormatAuto.Value);
        main.CalculEnCours = false;
        return;
    }
    ProgressWheel2.Visible = true;
    main.HoldMenuForCalculation(true);
    main.ThrPn1 = limit;
    main.Progress.Follow(ProgressWheel2, StaticTextAvance, limit);
    main.NoteRunBegins(true);
    ThreadCalcPrems.Start();
}

void WinNbresPremiers::ThreadCalcPrems_Run(Thread&) {
    WinMain& main = program.winMain();
    main.NbresPremCalc(main.ThrPn1, false);
    main.ThrNo = WinMain::listRunHasEnded;
    main.TimerThr.Mode = 1;
}

void WinNbresPremiers::ButtCalcPremsFin() {
    WinMain& main = program.winMain();
    if (fncts.ArretUrg) {
        Ind_DerPrem = main.Nbres_Premiers.UpperBound();
        ShowBinding();
        EditFieldFin.Text = FormatWhole(main.Nbres_Premiers.Back(), false);
    } else {
        EditFieldAffAu.Text = "0";
        FaireListe(true, false);
    }
    ProgressWheel2.Visible = false;
    main.Progress.End();
    main.HoldMenuForCalculation(false);
    main.CalculEnCours = false;
    main.TellWhyRunEnded();
    main.AnnounceRunEnded(StaticTextNbNbre1ers.Text);
}

} // namespace tessarolyne

// The slice of the prime table that the list window shows, the ways through it by keyboard, and the run that
// extends the table from there.

#include "platform/Controls.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/Calculation.h"
#include "primes/WinNbresPremiers.h"
#include "primes/engine/PrimeTable.h"
#include "ui/Localisation.h"
#include "ui/WrittenNumber.h"

#include <algorithm>
#include <numeric>

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

// The rank of the first entry that isn't below `value`; Size() where there is none.
std::int32_t LowerBound(const PrimeTable& table, std::uint64_t value) {
    std::int32_t low = 0;
    for (std::int32_t high = table.Size(); low < high;) {
        const std::int32_t middle = std::midpoint(low, high);
        table[middle] < value ? low = middle + 1 : high = middle;
    }
    return low;
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

void WinNbresPremiers::AskForValue() {
    if (!fncts.DrapMenu) {
        fncts.Beep(); // the table may be growing
        return;
    }
    StaticTextNbNbre1ers.Visible = false;
    EditFieldChercher.Visible = true;
    EditFieldChercher.SetFocus();
    EditFieldChercher.UserSelected(0, static_cast<int>(Len(EditFieldChercher.Text())));
    EditFieldChercher.Notify(Localisation::Txt_Chercher());
}

bool WinNbresPremiers::EditFieldChercher_KeyDown(const std::string& key) {
    const bool isReturn = IsReturn(key);
    if (!isReturn && key != Chr(27)) {
        return false;
    }
    const std::string text = WithoutBlanks(EditFieldChercher.Text());
    if (calculation_.CalculEnCours()) {
        isReturn ? fncts.Beep() : calculation_.StopOnEscape(key);
    } else if (isReturn && !text.empty()) {
        GoToValue(ToUInt64(Val(text)));
    } else {
        TxtAreaListeNbres1ers.SetFocus();
    }
    return true;
}

void WinNbresPremiers::EditFieldChercher_LostFocus() {
    EditFieldChercher.Visible = false;
    StaticTextNbNbre1ers.Visible = true;
}

void WinNbresPremiers::GoToValue(std::uint64_t value) {
    const auto say = [this](const std::string& text) {
        (EditFieldChercher.HasFocus() ? static_cast<Control&>(EditFieldChercher) : TxtAreaListeNbres1ers)
            .Notify(text);
        fncts.Announce(text);
    };
    if (value > table_.Back()) {
        say(fncts.Filled(Localisation::Txt_AuDela(), {Shown(table_.Back())}));
        return;
    }
    const std::int32_t rank = LowerBound(table_, value);
    ShowRank(rank);
    const std::string found = WithRank(rank);
    if (table_[rank] == value) {
        StaticTextNbNbre1ers.Text = found;
        say(found);
        return;
    }
    const std::string before = rank == 0 ? "" : WithRank(rank - 1);
    StaticTextNbNbre1ers.Text = before + (rank == 0 ? "" : " < ") + Shown(value) + " < " + found;
    const std::string neighbours = rank == 0 ? found : before + ", " + found;
    say(fncts.Filled(Localisation::Txt_NonPremier(), {Shown(value), neighbours}));
}

// Selects the entry in the list, among about as many before as behind it if it isn't there yet.
void WinNbresPremiers::ShowRank(std::int32_t rank) {
    TxtAreaListeNbres1ers.SetFocus();
    if (rank < debut_ || rank > fin_) {
        const std::int64_t debut = std::max<std::int64_t>(std::int64_t{rank} - largestSlice / 2, 0);
        ShowRanks(debut, debut + largestSlice - 1);
    }
    const std::string& text = TxtAreaListeNbres1ers.Text;
    const std::string entry = FormatWhole(table_[rank], false);
    std::size_t at = 0;
    do {
        at = text.find("\t" + entry, at) + 1;
    } while (at != 0 && at + entry.size() < text.size() && IsNumeric(text.substr(at + entry.size(), 1)));
    TxtAreaListeNbres1ers.SelLength = 0;
    TxtAreaListeNbres1ers.SelStart = static_cast<int>(at);
    TxtAreaListeNbres1ers.SelLength = static_cast<int>(entry.size());
}

std::string WinNbresPremiers::WithRank(std::int32_t rank) const {
    return fncts.Filled(
        Localisation::Txt_AvecRang(), {Shown(table_[rank]), Shown(static_cast<std::uint64_t>(rank) + 1)});
}

std::string WinNbresPremiers::Shown(std::uint64_t value) const {
    return FormatWhole(value, grouped_.Value);
}

void WinNbresPremiers::ShowRanks(std::int64_t debut, std::int64_t fin) {
    EditFieldAffDu.Text = Str(debut + 1);
    EditFieldAffAu.Text = Str(fin + 1);
    FaireListe(true, true);
}

// The keys go on in the next slice from the last line of this one, and from the first in the one before.
bool WinNbresPremiers::TxtAreaListeNbres1ers_KeyDown(const std::string& key) {
    TextArea& zone = TxtAreaListeNbres1ers;
    const std::string& text = zone.Text;
    const auto caret = static_cast<std::size_t>(zone.SelStart() + zone.SelLength());
    if (key == Chr(12) && text.find(endOfLine, caret) == std::string::npos && fin_ < table_.UpperBound()) {
        ShowRanks(std::int64_t{fin_} + 1, std::int64_t{fin_} + largestSlice);
        zone.UserSelected(0, 0);
        return true;
    }
    if (key == Chr(11) && text.substr(0, caret).find(endOfLine) == std::string::npos && debut_ > 0) {
        ShowRanks(std::max<std::int64_t>(std::int64_t{debut_} - largestSlice, 0), std::int64_t{debut_} - 1);
        zone.UserSelected(static_cast<int>(Len(zone.Text())), 0);
        return true;
    }
    return false;
}

} // namespace tessarolyne

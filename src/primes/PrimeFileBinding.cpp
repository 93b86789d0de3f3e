#include "primes/PrimeFileBinding.h"

#include "platform/Services.h"
#include "primes/WinChargSauvNb1ers.h"
#include "ui/FileItems.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/Program.h"
#include "ui/WrittenNumber.h"

#include <algorithm>

namespace tessarolyne {

namespace {

// With which every table begins.
constexpr std::int64_t firstPrimes = 4;

} // namespace

PrimeFileBinding::PrimeFileBinding(Program& program)
    : program_(program), app_(program.app), fncts_(program.fncts) {}

void PrimeFileBinding::OpenBoundFile() {
    const bool isThere = PasNil_Existe_Alias(app_.FichNbPrems, true);
    if (!isThere || !program_.services.desktop.OpenFile(*app_.FichNbPrems)) {
        fncts_.Beep();
    }
}

std::optional<FolderItem> PrimeFileBinding::ChooseForLoad() {
    auto chosen = fncts_.MyDialogLoad(
        app_.FichNbPrems, Localisation::Txt_SelectFichierNbPrem(), FileTypes::QueText, nullptr);
    if (!chosen || !CanBeKept(*chosen)) {
        return {};
    }
    app_.FichNbPrems = MemeItem(chosen);
    return chosen;
}

void PrimeFileBinding::Load() {
    program_.winChargSauvNb1ers().LoadNb1ers();
}

// A file that can't be replaced is refused before anything is touched; the old one stays whole until the new
// one is complete.
std::optional<FolderItem> PrimeFileBinding::ChooseAndSave() {
    const auto chosen = fncts_.MyDialogSave(app_.FichNbPrems, Localisation::Txt_SelectDossSauv(),
        FileTypes::QueText, Localisation::WinNbresTitre() + ".txt", nullptr);
    if (chosen && chosen->Exists() && !chosen->CanReplace(LinkPolicy::ReplaceLink)) {
        fncts_.Warn(Localisation::Txt_Rempl_Imposs(), Localisation::Btn_Annuler());
        return {};
    }
    if (!chosen || !CanBeKept(*chosen)) {
        return {};
    }
    if (chosen != app_.FichNbPrems) {
        PrimeFile = {chosen->Stamp(), false}; // the user has agreed to replace this
    }
    app_.FichNbPrems = MemeItem(chosen);
    program_.winChargSauvNb1ers().SaveNb1ers(LinkPolicy::ReplaceLink);
    return chosen;
}

// A table that never agreed with the file says nothing of what the file holds.
void PrimeFileBinding::SaveQuietly() {
    if (Nb_NbrePcharg == 0 || PrimeFile.isForeign || NewPrimes() <= 0 ||
        !PasNil_Existe_Alias(app_.FichNbPrems, true)) {
        return;
    }
    const FolderItem item = *app_.FichNbPrems;
    try {
        PrimeFileProgress nobody;
        const std::uint64_t memory = program_.services.memory.AvailableBytes() / 2;
        if (LookBeforeSaving(item, PrimeFile, Nbres_Premiers, memory, nobody) != UnseenContent::None) {
            return;
        }
        const auto file = item.Files().CreateSafely(item.NativePath(), LinkPolicy::ReplaceTarget);
        WritePrimeFile(Nbres_Premiers, Localisation::Txt_NbreDeNbPrem(), NbreNbPparLigne, *file, nobody);
        file->Commit();
    } catch (const std::exception&) {
        return;
    }
}

// A setting is one line: a place that holds a line end could not be found again at the next start.
bool PrimeFileBinding::CanBeKept(const FolderItem& item) {
    const auto isOneLine = [](const FolderItem& place) {
        return place.NativePath().find_first_of("\r\n") == std::string::npos;
    };
    if (isOneLine(item) && isOneLine(GetTargetItem_f(item).value_or(item))) {
        return true;
    }
    fncts_.Warn(Localisation::Txt_FichNomSurLignes(), Localisation::Btn_Annuler());
    return false;
}

void PrimeFileBinding::AskToKeepFile() {
    if (!app_.FichNbPrems) {
        return;
    }
    fncts_.Beep();
    const int answer = fncts_.MyDialogBox(Localisation::Txt_VoulVsConservFich(), "",
        Localisation::Btn_Garder(), Localisation::Btn_NePlusUtiliser(), "", 0, nullptr);
    if (answer == 2) {
        app_.FichNbPrems.reset();
    }
}

std::int32_t PrimeFileBinding::NewPrimes() const {
    const std::int64_t known = PrimeFile.isForeign ? firstPrimes : std::int64_t{Nb_NbrePcharg};
    return static_cast<std::int32_t>(std::int64_t{Nbres_Premiers.UpperBound()} + 1 - known);
}

std::string PrimeFileBinding::TextOfUnkeptPrimes() const {
    const std::int64_t inFile = app_.FichNbPrems ? 0 : std::int64_t{Nb_NbrePcharg}; // a bound one is gone
    const std::int64_t unkept = Nbres_Premiers.UpperBound() + 1 - std::max(firstPrimes, inFile);
    if (unkept <= 0) {
        return {};
    }
    const std::string count = FormatWhole(static_cast<std::uint64_t>(unkept), true);
    return "\r" + fncts_.Filled(Localisation::Txt_PremsPerdus(), {count});
}

} // namespace tessarolyne

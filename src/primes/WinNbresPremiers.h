#pragma once

#include "platform/TextControls.h"
#include "ui/BlockingOverlay.h"
#include "ui/NumberField.h"
#include "ui/ProgramWindow.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tessarolyne {

class Calculation;
class PrimeFileBinding;
class PrimeTable;

// The list of primes: a slice of the table, at most 2000 at a time, the run that extends the table up to a
// limit, and the button to the prime file. The window exists while it is open; it must be asked for only
// while BevelButtonListe of the main window says so.
class WinNbresPremiers final : public ProgramWindow {
public:
    // `grouped` says how numbers are shown, `listButton` that the window is open; `mainWindow` decides a
    // quit.
    WinNbresPremiers(Program& owner, PrimeFileBinding& primeFile, Calculation& calculation,
        Window& mainWindow, const CheckBox& grouped, BevelButton& listButton);

    PushButton PushButtonCalcPrems{*this, "PushButtonCalcPrems", {20, 14, 210, 20}, lockLeftTop, TabStop(0)};
    TextField EditFieldFin{*this, "EditFieldFin", {242, 13, 170, 22}, lockLeftTop, TabStop(1)};
    ProgressWheel ProgressWheel2{*this, "ProgressWheel2", {484, 14, 16, 16}, lockTopRight, NoTabStop(2)};
    Label StaticTextAffDu{*this, "StaticTextAffDu", {20, 46, 155, 20}, lockLeftTop, NoTabStop(3)};
    TextField EditFieldAffDu{*this, "EditFieldAffDu", {181, 45, 120, 22}, lockLeftTop, TabStop(4)};
    Label StaticTextAffAu{*this, "StaticTextAffAu", {303, 46, 32, 20}, lockLeftTop, NoTabStop(5)};
    TextField EditFieldAffAu{*this, "EditFieldAffAu", {339, 45, 120, 22}, lockLeftTop, TabStop(6)};
    Label StaticTextEme{*this, "StaticTextEme", {463, 46, 37, 20}, lockLeftTop, NoTabStop(7)};
    TextArea TxtAreaListeNbres1ers{*this, "TxtAreaListeNbres1ers", {20, 78, 480, 456}, lockAll, TabStop(8)};
    Label StaticTextNbNbre1ers{
        *this, "StaticTextNbNbre1ers", {20, 550, 261, 20}, lockLeftBottom, NoTabStop(9)};
    TextField EditFieldNbNbresLigne{
        *this, "EditFieldNbNbresLigne", {313, 549, 45, 22}, lockRightBottom, TabStop(10)};
    PushButton PushButtonFichier{
        *this, "PushButtonFichier", {370, 550, 130, 20}, lockRightBottom, TabStop(11)};
    // How far a run is, above the wheel.
    Label StaticTextAvance{*this, "StaticTextAvance", {270, 0, 230, 14}, lockTopRight, NoTabStop(12)};
    // In the place of StaticTextNbNbre1ers, for as long as a value is looked for.
    TextField EditFieldChercher{*this, "EditFieldChercher", {20, 549, 261, 22}, lockLeftBottom, NoTabStop(9)};
    BlockingOverlay LabBlockUI{*this, fncts, NoTabStop(12)};

    // How many primes the list shows at most, so that the area is quick to fill.
    static constexpr std::int32_t largestSlice = 2000;
    // How many stand on a line of the list.
    static constexpr int columns = 6;

    // The upper bound of the table when the list was last built, or a run was stopped.
    std::int32_t Ind_DerPrem = 0;

    // Builds the list again; without `forcer` only if the table has grown. `garderDebut` says which end of
    // the range stays when it has to be cut to 2000 primes.
    void FaireListe(bool forcer, bool garderDebut);
    // Takes over the number of primes per line of the file; 0 is refused with a message.
    void DefNbreNbPparLigne();
    // Shows the numbers in its fields with groups or without.
    void Regroup(bool grouped);
    // Notes the window's place and the primes per line for the preferences, asking nothing.
    void KeepSettings();
    // Opens, loads or saves the prime file, as the state of the binding and the two keys decide.
    void Btn_Fich(bool fichDispo, bool touchOption, bool touchMaj);
    // Tells by the button to the file whether there is one, and what the lack of one would cost.
    void ShowBinding();

    void Event_Open() override;
    bool Event_CancelClose(bool appQuitting) override;
    bool Event_KeyDown(const std::string& key) override;
    bool EditFieldFin_KeyDown(const std::string& key);
    bool EditFieldAffDu_KeyDown(const std::string& key);
    bool EditFieldAffAu_KeyDown(const std::string& key);
    bool EditFieldChercher_KeyDown(const std::string& key);
    void EditFieldChercher_LostFocus();
    bool TxtAreaListeNbres1ers_KeyDown(const std::string& key);
    void PushButtonCalcPrems_Action();
    void PushButtonFichier_Action();

private:
    void ButtCalcPremsFin();
    void SetInitialState();
    void BindEvents();
    void PlaceWindow();
    void AskForValue();
    void GoToValue(std::uint64_t value);
    void ShowRank(std::int32_t rank);
    std::string WithRank(std::int32_t rank) const;
    std::string Shown(std::uint64_t value) const;
    void ShowRanks(std::int64_t debut, std::int64_t fin);
    std::string ListText(std::int32_t debut, std::int32_t fin) const;
    bool ChooseAndLoad();

    PrimeFileBinding& primeFile_;
    const PrimeTable& table_;
    Calculation& calculation_;
    Window& mainWindow_;
    const CheckBox& grouped_;
    BevelButton& listButton_;

    // The ranks in the list, counted from 0; what the two fields say may be typed since.
    std::int32_t debut_ = 0;
    std::int32_t fin_ = -1;

    NumberField finField_{EditFieldFin, fncts};
    NumberField affDuField_{EditFieldAffDu, fncts};
    NumberField affAuField_{EditFieldAffAu, fncts};
    NumberField nbNbresLigneField_{EditFieldNbNbresLigne, fncts};
    NumberField chercherField_{EditFieldChercher, fncts};
};

} // namespace tessarolyne

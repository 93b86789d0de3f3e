#include "primes/WinNbresPremiers.h"

#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/Calculation.h"
#include "primes/PrimeFileBinding.h"
#include "ui/FileItems.h"
#include "ui/Localisation.h"

namespace tessarolyne {

namespace {

constexpr WindowFrame frame{WindowFrame::Kind::Document, true, true, true, true, 520, 400, 520, 32000};

// Where the window comes when its stored place is no longer on the screen.
constexpr int defaultFromRight = 510;
constexpr int defaultTop = 50;
constexpr int defaultWidth = 500;
constexpr int defaultHeight = 540;

bool OnReturn(const std::string& key, const std::function<void()>& action) {
    const bool isReturn = IsReturn(key);
    if (isReturn) {
        action();
    }
    return isReturn;
}

} // namespace

WinNbresPremiers::WinNbresPremiers(Program& owner, PrimeFileBinding& primeFile, Calculation& calculation,
    Window& mainWindow, const CheckBox& grouped, BevelButton& listButton)
    : ProgramWindow(owner, Localisation::WinNbresTitre(), 520, 585, frame), primeFile_(primeFile),
      table_(primeFile.Nbres_Premiers), calculation_(calculation), mainWindow_(mainWindow), grouped_(grouped),
      listButton_(listButton) {
    SetInitialState();
    ExplainControls();
    BindEvents();
}

void WinNbresPremiers::SetInitialState() {
    AlwaysEnabled = {&EditFieldChercher};
    PushButtonCalcPrems.Caption = Localisation::Btn_CalcPrems();
    EditFieldFin.Mask = "999999999999";
    EditFieldAffDu.Mask = "999999999";
    EditFieldAffAu.Mask = "999999999";
    EditFieldChercher.Mask = "999999999999";
    EditFieldChercher.Visible = false;
    EditFieldNbNbresLigne.Mask = "999";
    EditFieldNbNbresLigne.Format = "###";
    for (TextField* field : {&EditFieldFin, &EditFieldAffDu, &EditFieldAffAu, &EditFieldNbNbresLigne}) {
        field->TextAlignment = Alignment::Right;
    }
    StaticTextAffDu.Text = Localisation::StTextAffDu();
    StaticTextAffDu.TextAlignment = Alignment::Right;
    StaticTextAffAu.Text = Localisation::StTextAffAu();
    StaticTextAffAu.TextAlignment = Alignment::Center;
    StaticTextEme.Text = Localisation::StTextEme();
    StaticTextAvance.Visible = false;
    StaticTextAvance.TextAlignment = Alignment::Right;
    StaticTextNbNbre1ers.Text = "… Nombres Premiers …";
    TxtAreaListeNbres1ers.ReadOnly = true;
    TxtAreaListeNbres1ers.TextSize = 12;
    TxtAreaListeNbres1ers.TabColumns = columns;
    PushButtonFichier.Caption = Localisation::Btn_ChoixFich();

    ProgressWheel2.AccessibleName = Localisation::Acc_Calcul();
    StaticTextAffDu.AltTarget = &EditFieldAffDu;
    StaticTextAffAu.AltTarget = &EditFieldAffAu;

    EditFieldChercher.AccessibleName = Localisation::Txt_Chercher();
    TxtAreaListeNbres1ers.KeyTag = Localisation::Touches_Liste();
}

void WinNbresPremiers::BindEvents() {
    EditFieldFin.KeyDown = [this](const std::string& key) { return EditFieldFin_KeyDown(key); };
    EditFieldAffDu.KeyDown = [this](const std::string& key) { return EditFieldAffDu_KeyDown(key); };
    EditFieldAffAu.KeyDown = [this](const std::string& key) { return EditFieldAffAu_KeyDown(key); };
    EditFieldChercher.KeyDown = [this](const std::string& key) { return EditFieldChercher_KeyDown(key); };
    EditFieldChercher.LostFocus = [this] { EditFieldChercher_LostFocus(); };
    TxtAreaListeNbres1ers.KeyDown = [this](const std::string& key) {
        return TxtAreaListeNbres1ers_KeyDown(key);
    };
    AddShortcut("Cmd+F", [this] { AskForValue(); });
    for (TextField* field : {&EditFieldFin, &EditFieldAffDu, &EditFieldAffAu, &EditFieldChercher}) {
        OfferCopies(*field, fncts);
    }
    PushButtonCalcPrems.Action = [this] { PushButtonCalcPrems_Action(); };
    PushButtonFichier.Action = [this] { PushButtonFichier_Action(); };
}

void WinNbresPremiers::Event_Open() {
    LabBlockUI.Open();
    Fncts::DecPosCtrl(*this);
    ShowBinding();
    PlaceWindow();
    listButton_.Value = true;
    Ind_DerPrem = 0;
    EditFieldNbNbresLigne.Text = Str(primeFile_.NbreNbPparLigne);
    EditFieldAffDu.Text = "1";
    EditFieldAffAu.Text = FormatWhole(largestSlice, false);
    const std::string mask(grouped_.Value ? groupedMask : plainMask);
    EditFieldAffDu.Format = mask;
    EditFieldAffAu.Format = mask;
    ProgressWheel2.Visible = true;
    Show();
    FaireListe(true, true);
    EditFieldFin.UserSelected(0, static_cast<int>(Len(EditFieldFin.Text())));
    EditFieldFin.SetFocus();
    EditFieldFin.Format = mask;
    ProgressWheel2.Visible = false;
}

void WinNbresPremiers::PlaceWindow() {
    const ScreenSize screen = program.services.stage.Screen();
    const auto [left, top, width, height] = app.WinNBP;
    if (width < Frame.minWidth || height < Frame.minHeight || !CanStandAt({left, top, width, height})) {
        app.WinNBP = {ToInt16(screen.width - defaultFromRight), defaultTop, defaultWidth, defaultHeight};
    }
    Left = app.WinNBP[0];
    Top = app.WinNBP[1];
    UserResized(app.WinNBP[2], app.WinNBP[3]);
}

bool WinNbresPremiers::Event_CancelClose(bool appQuitting) {
    if (calculation_.CalculEnCours()) {
        return mainWindow_.Event_CancelClose(false); // asks whether to stop it and quit
    }
    if (appQuitting) {
        if (!app.DrapOkQuit) {
            return mainWindow_.Event_CancelClose(true);
        }
    } else if (!fncts.DrapMenu) {
        fncts.Beep();
        return true;
    }
    listButton_.Value = false;
    KeepSettings();
    DefNbreNbPparLigne();
    return false;
}

void WinNbresPremiers::KeepSettings() {
    app.WinNBP = {ToInt16(Left()), ToInt16(Top()), ToInt16(Width()), ToInt16(Height())};
    if (const std::int16_t perLine = ToInt16(Val(EditFieldNbNbresLigne.Text())); perLine != 0) {
        primeFile_.NbreNbPparLigne = perLine;
    }
}

bool WinNbresPremiers::Event_KeyDown(const std::string& key) {
    calculation_.StopOnEscape(key);
    return key != Chr(9);
}

bool WinNbresPremiers::EditFieldFin_KeyDown(const std::string& key) {
    return OnReturn(key, [this] { PushButtonCalcPrems.Push(); });
}

bool WinNbresPremiers::EditFieldAffDu_KeyDown(const std::string& key) {
    return OnReturn(key, [this] { FaireListe(true, true); });
}

bool WinNbresPremiers::EditFieldAffAu_KeyDown(const std::string& key) {
    return OnReturn(key, [this] { FaireListe(true, false); });
}

void WinNbresPremiers::DefNbreNbPparLigne() {
    std::int16_t& perLine = primeFile_.NbreNbPparLigne;
    perLine = ToInt16(Val(EditFieldNbNbresLigne.Text()));
    if (perLine == 0) {
        perLine = 10;
        EditFieldNbNbresLigne.Text = "10";
        fncts.Warn(Localisation::Txt_VsPouvPasMettre0(), Localisation::Btn_Ok());
    }
}

void WinNbresPremiers::PushButtonFichier_Action() {
    Desktop& desktop = program.services.desktop;
    Btn_Fich(PasNil_Existe_Alias(app.FichNbPrems, true), desktop.OptionKeyIsDown(), desktop.ShiftKeyIsDown());
}

// Option opens the bound file; Shift swaps what a plain click does.
void WinNbresPremiers::Btn_Fich(bool fichDispo, bool touchOption, bool touchMaj) {
    if (touchOption) {
        primeFile_.OpenBoundFile();
        return;
    }
    DefNbreNbPparLigne();
    const bool load = fichDispo != touchMaj;
    if (load ? !ChooseAndLoad() : !primeFile_.ChooseAndSave()) {
        primeFile_.AskToKeepFile();
    }
    ShowBinding();
}

bool WinNbresPremiers::ChooseAndLoad() {
    if (!primeFile_.ChooseForLoad()) {
        return false;
    }
    ProgressWheel2.Visible = true;
    primeFile_.Load();
    EditFieldAffAu.Text = "0";
    FaireListe(true, false);
    ProgressWheel2.Visible = false;
    return true;
}

void WinNbresPremiers::ShowBinding() {
    if (PasNil_Existe_Alias(app.FichNbPrems, true)) {
        PushButtonFichier.Caption = Localisation::Btn_ChangFich();
        PushButtonFichier.HelpTag = Localisation::Btn_ChangFich_HT();
        StaticTextNbNbre1ers.HelpTag = ShownPath(*app.FichNbPrems);
    } else {
        PushButtonFichier.Caption = Localisation::Btn_SauvFich();
        PushButtonFichier.HelpTag = Localisation::Btn_SauvFich_HT() + primeFile_.TextOfUnkeptPrimes();
        StaticTextNbNbre1ers.HelpTag = Localisation::Txt_PasDeFichNbPremSelect();
    }
}

void WinNbresPremiers::Regroup(bool grouped) {
    const std::string mask(grouped ? groupedMask : plainMask);
    for (TextField* field : {&EditFieldFin, &EditFieldAffDu, &EditFieldAffAu}) {
        field->Format = mask;
        const std::string bare = WithoutBlanks(field->Text());
        if (IsNumeric(bare)) { // a message keeps its blanks
            field->Text = bare;
        }
    }
}

} // namespace tessarolyne

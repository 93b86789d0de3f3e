#include "conversion/WinMain.h"

#include "app/Program.h"
#include "platform/Services.h"
#include "primes/WinNbresPremiers.h"
#include "ui/HelpTags.h"
#include "ui/Localisation.h"

namespace tessarolyne {

namespace {

constexpr int recalculationDelay = 20; // shorter than the time between two keystrokes
constexpr int quitPeriod = 10;
constexpr int moment = 500; // what takes longer is shown to be under way
constexpr int typingPause = 1000;
constexpr int copyButtonTextSize = 16;

constexpr const char* copyButtonCaption = "✎";

} // namespace

WinMain::WinMain(Program& owner)
    : ProgramWindow(owner, "Tessarolyne", 550, 594, WindowFrame{}),
      TimerTempo(owner.services.loop, recalculationDelay), TimerQuit(owner.services.loop, quitPeriod),
      TimerVerMaJ(owner.services.loop, handOverPeriod), SocketVerMaJ(owner.services.http),
      decomposition({EditFieldNbre, TxtAreaDecomp1er, PushButtDecomposer, CheckBoxFormatAuto, ProgressWheel1,
                        StaticTextAvance},
          factors_, calculation, Nbres_Premiers, owner.fncts),
      typingPause_(owner.services.loop, typingPause), slowCheck_(owner.services.loop, moment),
      calculation(owner.fncts, owner.services, Nbres_Premiers, CheckBoxFormatAuto) {
    SetInitialState();
    NameForScreenReaders();
    ExplainControls(*this);
    GiveAltKeys();
    BindEvents();
    BindCommandEvents();
    BindAnnouncements();
    BindUpdateCheck();
    AddMenuHandlers();
}

void WinMain::SetInitialState() {
    AlwaysEnabled = {&EditFieldNbre, &EditFieldBaseOrg, &PushButtDecomposer};
    EditFieldNbre.Mask = "999999999999.99";
    EditFieldBaseOrg.TakeEdit = [this](TextEdit& edit) { return TakeBaseEdit(edit); };
    FollowEdits(EditFieldNbre);
    FollowEdits(EditFieldBaseOrg);
    EditFieldBaseDest.ReadOnly = true;
    for (TextField* field : {&EditFieldBaseOrg, &EditFieldBaseDest, &EditFieldMonnaies, &EditFieldMonnaie,
             &EditFieldCentimes, &EditFieldCentime}) {
        field->ShowsAll = true;
    }
    for (TextField* field : {&EditFieldNbre, &EditFieldBaseOrg, &EditFieldBaseDest}) {
        field->TextAlignment = Alignment::Right;
    }
    for (TextArea* area : {&TxtAreaDecomp1er, &TxtAreaLettres}) {
        area->ReadOnly = true;
    }
    for (PushButton* button : {&PushButtonPressPapLettr, &PushButtonPressPapBOrg, &PushButtonPressPapBDest,
             &PushButtonPressPapPrem}) {
        button->Caption = copyButtonCaption;
        button->TextSize = copyButtonTextSize;
    }
    GroupBox1.Caption = Localisation::GpBox1();
    GroupBox2.Caption = Localisation::GpBox2();
    GroupBoxLettre.Caption = Localisation::GpBox3();
    CheckBoxMajusc.Caption = Localisation::ChBoxMajusc();
    CheckBoxTrUnion.Caption = "-";
    CheckBoxFormatAuto.Caption = Localisation::ChBoxFormatAuto();
    RadioButton09AZ[0].Caption = "01…89AB…YZ";
    RadioButton09AZ[1].Caption = "AB…YZ01…89";
    BevelButtonListe.Caption = Localisation::BevelButtListe();
    BevelButtonListe.HasState = true;
    PushButtDecomposer.Caption = Localisation::Btn_Decomposer();
    PushButtDecomposer.Enabled = false;
    ProgressWheel1.Visible = false;
    StaticTextAvance.Visible = false;
    StaticTextAvance.TextAlignment = Alignment::Right;
    StaticTextEnAttente.Visible = false;
    StaticTextEnAttente.Text = Localisation::Txt_NbreEnAttente();
    StaticTextEnAttente.TextAlignment = Alignment::Right;
    for (const char* code : {"en", "fr", "ch be"}) {
        PopupMenuLg.AddRow(code);
    }
    PopupMenuLg.ListIndex = 0;
    for (PopupMenu* menu : {&PopupMenuBaseOrg, &PopupMenuBaseDest}) {
        menu->AddRow("");
        menu->ListIndex = 0;
    }
}

// The captions without words are alike in all languages.
void WinMain::GiveAltKeys() {
    GroupBox1.AltKey = Localisation::Alt_GpBox1();
    GroupBox1.AltTarget = &EditFieldBaseOrg;
    GroupBox2.AltKey = Localisation::Alt_GpBox2();
    GroupBox2.AltTarget = &TxtAreaDecomp1er;
    GroupBoxLettre.AltKey = Localisation::Alt_GpBox3();
    GroupBoxLettre.AltTarget = &TxtAreaLettres;
    StaticTextEnBase10.AltKey = Localisation::Alt_Txt_EnBase();
    StaticTextEnBase10.AltTarget = &EditFieldNbre;
    CheckBoxFormatAuto.AltKey = Localisation::Alt_ChBoxFormatAuto();
    CheckBoxMajusc.AltKey = Localisation::Alt_ChBoxMajusc();
    CheckBoxTrUnion.AltKey = "-";
    RadioButton09AZ[0].AltKey = "0";
    RadioButton09AZ[1].AltKey = "Z";
    BevelButtonListe.AltKey = Localisation::Alt_BevelButtListe();
    PushButtDecomposer.AltKey = Localisation::Alt_Btn_Decomposer();
}

// Only for those that have no caption, or share one with another control of the window.
void WinMain::NameForScreenReaders() {
    EditFieldNbre.AccessibleName = Localisation::Acc_Nombre() + Localisation::Txt_EnBase() + "10";
    EditFieldBaseOrg.AccessibleName = Localisation::Acc_NombreDepart();
    PopupMenuBaseOrg.AccessibleName = Localisation::Acc_BaseDepart();
    EditFieldBaseDest.AccessibleName = Localisation::Acc_NombreArrivee();
    PopupMenuBaseDest.AccessibleName = Localisation::Acc_BaseArrivee();
    TxtAreaDecomp1er.AccessibleName = Localisation::Acc_Facteurs();
    TxtAreaLettres.AccessibleName = Localisation::Acc_Lettres();
    PopupMenuLg.AccessibleName = Localisation::Acc_LangueLettres();
    CheckBoxTrUnion.AccessibleName = Localisation::Acc_TraitsUnion();
    EditFieldMonnaies.AccessibleName = Localisation::Acc_DevisePluriel();
    EditFieldMonnaie.AccessibleName = Localisation::Acc_DeviseSingulier();
    EditFieldCentimes.AccessibleName = Localisation::Acc_CentimePluriel();
    EditFieldCentime.AccessibleName = Localisation::Acc_CentimeSingulier();
    const std::string copy = fncts.FracTexte(Localisation::Acc_Copier(), 1);
    PushButtonPressPapBOrg.AccessibleName = copy + EditFieldBaseOrg.AccessibleName();
    PushButtonPressPapBDest.AccessibleName = copy + EditFieldBaseDest.AccessibleName();
    PushButtonPressPapPrem.AccessibleName = copy + TxtAreaDecomp1er.AccessibleName();
    PushButtonPressPapLettr.AccessibleName = copy + TxtAreaLettres.AccessibleName();
}

void WinMain::BindEvents() {
    EditFieldNbre.GotFocus = [this] {
        numberField_.Forget();
        EditFieldNbre_GotFocus(EditFieldNbre);
    };
    EditFieldNbre.LostFocus = [this] {
        NoteNumber(EditFieldNbre);
        EditFieldNbre_LostFocus(EditFieldNbre);
    };
    EditFieldNbre.TextChange = [this](ChangedBy who) { EditFieldNbre_TextChange(EditFieldNbre, who); };
    EditFieldNbre.KeyDown = [this](
                                const std::string& key) { return EditFieldNbre_KeyDown(EditFieldNbre, key); };
    EditFieldBaseOrg.GotFocus = [this] { EditFieldBaseOrg_GotFocus(EditFieldBaseOrg); };
    EditFieldBaseOrg.LostFocus = [this] {
        NoteNumber(EditFieldBaseOrg);
        EditFieldBaseOrg_LostFocus(EditFieldBaseOrg);
    };
    EditFieldBaseOrg.TextChange = [this](
                                      ChangedBy who) { EditFieldBaseOrg_TextChange(EditFieldBaseOrg, who); };
    EditFieldBaseOrg.KeyDown = [this](const std::string& key) {
        return EditFieldBaseOrg_KeyDown(EditFieldBaseOrg, key);
    };
    PopupMenuBaseOrg.Change = [this] { PopupMenuBaseOrg_Change(PopupMenuBaseOrg); };
    for (PopupMenu* menu : {&PopupMenuBaseOrg, &PopupMenuBaseDest}) {
        menu->KeyDown = [this, menu](const std::string& key) { return PopupMenuBase_KeyDown(*menu, key); };
    }
    PopupMenuBaseDest.Change = [this] { PopupMenuBaseDest_Change(PopupMenuBaseDest); };
    RadioButton09AZ[0].Action = [this] { RadioButton09AZ_Action(RadioButton09AZ[0], 0); };
    RadioButton09AZ[1].Action = [this] { RadioButton09AZ_Action(RadioButton09AZ[1], 1); };
    EditFieldMonnaies.TextChange = [this](ChangedBy) { EditFieldMonnaies_TextChange(EditFieldMonnaies); };
    EditFieldMonnaie.TextChange = [this](ChangedBy) { EditFieldMonnaie_TextChange(EditFieldMonnaie); };
    EditFieldCentimes.TextChange = [this](ChangedBy) { EditFieldCentimes_TextChange(EditFieldCentimes); };
    EditFieldCentime.TextChange = [this](ChangedBy) { EditFieldCentime_TextChange(EditFieldCentime); };
    CheckBoxMajusc.Action = [this] { CheckBoxMajusc_Action(CheckBoxMajusc); };
    CheckBoxTrUnion.Action = [this] { CheckBoxTrUnion_Action(CheckBoxTrUnion); };
    PopupMenuLg.Change = [this] { PopupMenuLg_Change(PopupMenuLg); };
    TimerTempo.Action = [this] { TimerTempo_Action(TimerTempo); };
    TimerQuit.Action = [this] { TimerQuit_Action(TimerQuit); };
    calculation.EnableMenuBoutons = [this] { EnableMenuBoutons(); };
    calculation.EndAnnounced = [this] { typingPause_.Mode = 0; }; // said with this
    decomposition.TakesTime = [this](bool on) { TurnWheel(factorsTakeTime_, on); };
    decomposition.TableMayHaveGrown = [this](bool isAsWanted) {
        if (BevelButtonListe.Value) {
            WinNbresPremiers& list = program.winNbresPremiers();
            isAsWanted ? list.FaireListe(false, false) : list.ShowBinding();
        }
    };
}

void WinMain::BindCommandEvents() {
    CheckBoxFormatAuto.Action = [this] { CheckBoxFormatAuto_Action(CheckBoxFormatAuto); };
    PushButtonPressPapBOrg.Action = [this] { PushButtonPressPapBOrg_Action(PushButtonPressPapBOrg); };
    PushButtonPressPapBDest.Action = [this] { PushButtonPressPapBDest_Action(PushButtonPressPapBDest); };
    PushButtonPressPapPrem.Action = [this] { PushButtonPressPapPrem_Action(PushButtonPressPapPrem); };
    PushButtonPressPapLettr.Action = [this] { PushButtonPressPapLettr_Action(PushButtonPressPapLettr); };
    BevelButtonListe.Action = [this] { BevelButtonListe_Action(BevelButtonListe); };
    PushButtDecomposer.Action = [this] { PushButtDecomposer_Action(PushButtDecomposer); };
    AddCopyShortcuts();
    OfferCopies(EditFieldNbre);
    OfferCopies(EditFieldBaseOrg, &PopupMenuBaseOrg);
    OfferCopies(EditFieldBaseDest, &PopupMenuBaseDest);
    OfferCopies(TxtAreaDecomp1er);
    EditFieldNbre.KeyTag = Localisation::Touches_Zones();
}

} // namespace tessarolyne

#include "conversion/WinMain.h"

#include "primes/WinNbresPremiers.h"
#include "ui/Localisation.h"

namespace tessarolyne {

namespace {

constexpr int copyButtonTextSize = 16;

constexpr const char* copyButtonCaption = "✎";

} // namespace

WinMain::WinMain(Program& owner)
    : ProgramWindow(owner, "Tessarolyne", 550, 594, WindowFrame{}),
      decomposition({EditFieldNbre, TxtAreaDecomp1er, PushButtDecomposer, CheckBoxFormatAuto, ProgressWheel1,
                        StaticTextAvance},
          factorsOutput_, calculation, primeFile.Nbres_Premiers, fncts),
      words({EditFieldNbre, EditFieldMonnaies, EditFieldMonnaie, EditFieldCentimes, EditFieldCentime,
                CheckBoxMajusc, CheckBoxTrUnion, PopupMenuLg},
          wordsOutput_, app, fncts),
      entry({EditFieldNbre, EditFieldBaseOrg, EditFieldBaseDest, PopupMenuBaseOrg, PopupMenuBaseDest,
                RadioButton09AZ, CheckBoxFormatAuto, TxtAreaDecomp1er, TxtAreaLettres, StaticTextEnAttente,
                factorsOutput_, wordsOutput_, decomposition, words},
          calculation, app, fncts, owner.services),
      quitting(*this, owner, settings, calculation, entry, primeFile, BevelButtonListe),
      updateCheck(app, fncts, owner.services, owner.versionFile),
      calculation(fncts, owner.services, primeFile.Nbres_Premiers, CheckBoxFormatAuto) {
    SetInitialState();
    ExplainControls();
    NameForScreenReaders();
    GiveAltKeys();
    BindEvents();
    BindSubjects();
    AddMenuHandlers();
}

void WinMain::SetInitialState() {
    AlwaysEnabled = {&EditFieldNbre, &EditFieldBaseOrg, &PushButtDecomposer};
    EditFieldNbre.Mask = "999999999999.99";
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
    RadioButton09AZ[1].HelpTag = Localisation::RadioButtonAZ09_HT();
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
    GroupBox1.AltTarget = &EditFieldBaseOrg;
    GroupBox2.AltTarget = &TxtAreaDecomp1er;
    GroupBoxLettre.AltTarget = &TxtAreaLettres;
    StaticTextEnBase10.AltKey = Localisation::Alt_Txt_EnBase();
    StaticTextEnBase10.AltTarget = &EditFieldNbre;
    CheckBoxTrUnion.AltKey = "-";
    RadioButton09AZ[0].AltKey = "0";
    RadioButton09AZ[1].AltKey = "Z";
}

// Those whose names are put together.
void WinMain::NameForScreenReaders() {
    EditFieldNbre.AccessibleName = Localisation::Acc_Nombre() + Localisation::Txt_EnBase() + "10";
    const std::string copy = fncts.FracTexte(Localisation::Acc_Copier(), 1);
    PushButtonPressPapBOrg.AccessibleName = copy + EditFieldBaseOrg.AccessibleName();
    PushButtonPressPapBDest.AccessibleName = copy + EditFieldBaseDest.AccessibleName();
    PushButtonPressPapPrem.AccessibleName = copy + TxtAreaDecomp1er.AccessibleName();
    PushButtonPressPapLettr.AccessibleName = copy + TxtAreaLettres.AccessibleName();
}

void WinMain::BindEvents() {
    CheckBoxFormatAuto.Action = [this] { CheckBoxFormatAuto_Action(); };
    PushButtonPressPapBOrg.Action = [this] { fncts.CopyToClipboard(EditFieldBaseOrg.Text); };
    PushButtonPressPapBDest.Action = [this] { fncts.CopyToClipboard(EditFieldBaseDest.Text); };
    PushButtonPressPapPrem.Action = [this] { fncts.CopyToClipboard(TxtAreaDecomp1er.Text); };
    PushButtonPressPapLettr.Action = [this] { PushButtonPressPapLettr_Action(); };
    BevelButtonListe.Action = [this] { BevelButtonListe_Action(); };
    PushButtDecomposer.Action = [this] { PushButtDecomposer_Action(); };
    AddCopyShortcuts();
    OfferCopies(EditFieldNbre, fncts);
    OfferBaseCopies(EditFieldBaseOrg, PopupMenuBaseOrg);
    OfferBaseCopies(EditFieldBaseDest, PopupMenuBaseDest);
    OfferCopies(TxtAreaDecomp1er, fncts);
    EditFieldNbre.KeyTag = Localisation::Touches_Zones();
}

// Where one subject has to do with another, or with a second window.
void WinMain::BindSubjects() {
    calculation.EnableMenuBoutons = [this] { EnableMenuBoutons(); };
    calculation.EndAnnounced = [this] { entry.ForgetPause(); }; // said with this
    words.Recomputed = [this] { entry.AnnounceResultAfterPause(); };
    entry.QuitIsUnderWay = [this] { return quitting.IsUnderWay(); };
    updateCheck.TakesTime = [this](bool on) { TurnWheel(checkTakesTime_, on); };
    decomposition.TakesTime = [this](bool on) { TurnWheel(factorsTakeTime_, on); };
    decomposition.TableMayHaveGrown = [this](bool isAsWanted) {
        if (BevelButtonListe.Value) {
            WinNbresPremiers& list = program.winNbresPremiers();
            isAsWanted ? list.FaireListe(false, false) : list.ShowBinding();
        }
    };
}

} // namespace tessarolyne

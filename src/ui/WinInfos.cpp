#include "ui/WinInfos.h"

#include "platform/Text.h"
#include "ui/Localisation.h"
#include "ui/Version.h"

namespace tessarolyne {

namespace {

constexpr std::uint32_t paleYellow = 0xFFE8B8;
constexpr int bodyTextSize = 13; // definite, since the prompt's first line is two points larger
constexpr int titleLarger = 2;

constexpr WindowFrame aboutFrame{.kind = WindowFrame::Kind::MovableModal,
    .minimizeButton = false,
    .resizeable = true,
    .minWidth = 300,
    .minHeight = 300};

bool IsInside(const Control& control, int x, int y) {
    return x >= 0 && x <= control.Width() && y >= 0 && y <= control.Height();
}

} // namespace

WinInfos::WinInfos(Program& owner)
    : ModalWindow(owner, Localisation::Menu_AppleApropos(), 430, 480, aboutFrame) {
    SetInitialState();
    ExplainControls();
    BindLinks();
    PointAt(BevButtDon);
    BevButtDon.Action = [this] {
        app.DejaDonne = true; // before the page is opened, whatever the browser does
        fncts.ShowURL(donationAddress);
        FermeFentr();
    };
    BevButtDejDon.Action = [this] {
        app.DejaDonne = true;
        FermeFentr();
    };
    BoutonOk.Action = [this] { FermeFentr(); };
}

void WinInfos::SetInitialState() {
    // The picture has twice the points' pixels, for screens that show them.
    CanvIcon.Image = Picture{"IconApp_128", CanvIcon.Width, CanvIcon.Height, 0};
    CanvDevLogo.Image = Picture{"Xojo_Logo", CanvDevLogo.Width, CanvDevLogo.Height, 0};
    StaticTextNomProg.Text = "Tessarolyne";
    StaticTextVersion.Text = "v.0.0.0";
    StTextCopRight.Text = Localisation::Infos_StTextCopRight();
    TexteInfo.ReadOnly = true;
    TexteInfo.TextSize = bodyTextSize;
    TexteInfo.AccessibleName = Localisation::Menu_AppleApropos();
    Web1.Text = authorSite;
    Web2.Text = authorSite2;
    Email1.Text = authorEmail;
    Email2.Text = authorEmail2;
    Web1.Visible = false;
    Email1.Visible = false;
    BevButtDon.Caption = Localisation::Btn_FaireDon();
    BevButtDon.AltKey = Localisation::Alt_Btn_FaireDon();
    BevButtDon.HelpTag = donationAddress;
    BevButtDon.Visible = asksForDonations;
    BevButtDejDon.Caption = Localisation::Btn_DejDon();
    BevButtDejDon.Visible = false;
    CanvDevLogo.HelpTag = buildToolSite;
    CanvDevLogo.AccessibleName = buildToolSite;
    BoutonOk.Caption = Localisation::Btn_Ok();
    BoutonOk.AltKey = Localisation::Alt_PushButtOk();
    BoutonOk.Default = true;
}

// The pointer shows what can be followed.
template <typename Pointed>
void WinInfos::PointAt(Pointed& control) {
    const auto point = [this, &control](Cursor cursor) {
        if (control.Enabled()) {
            MouseCursor = cursor;
        }
    };
    control.MouseEnter = [point] { point(Cursor::Finger); };
    control.MouseExit = [point] { point(Cursor::Standard); };
}

// A press is followed by its release within the control; one that is let go elsewhere is taken back.
template <typename Link>
void WinInfos::BindLink(Link& link, bool& pressed, std::function<void()> follow) {
    link.IsLink = true;
    PointAt(link);
    link.MouseDown = [&pressed](int, int) { return pressed = true; };
    link.MouseUp = [this, &link, &pressed, follow = std::move(follow)](int x, int y) {
        if (!std::exchange(pressed, false)) {
            return;
        }
        MouseCursor = Cursor::Standard;
        if (IsInside(link, x, y)) {
            follow();
        }
    };
}

void WinInfos::BindLinks() {
    BindLink(Web1, OnWeb1, [this] { fncts.ShowURL(Web1.Text); });
    BindLink(Web2, OnWeb2, [this] { fncts.ShowURL(Web2.Text); });
    BindLink(Email1, OnEmail1, [this] { WriteTo(Email1.Text); });
    BindLink(Email2, OnEmail2, [this] { WriteTo(Email2.Text); });
    BindLink(CanvDevLogo, OnDevLogo, [this] { fncts.ShowURL(buildToolSite); });
}

void WinInfos::WriteTo(const std::string& email) {
    const std::string subject = "A propos de Tessarolyne " + app.ShortVersion + " " + Fncts::TypeCompil();
    fncts.ShowURL("mailto:" + EncodeURLComponent(email) + "?Subject=" + EncodeURLComponent(subject));
}

void WinInfos::Event_Open() {
    LabBlockUI.Open();
    Fncts::DecPosCtrl(*this);
    OpenModal();
    TexteInfo.Text = Localisation::Infos_Texte() + "\n \n \n" + licenceText;
    StaticTextVersion.Text = app.ShortVersion;
    for (BevelButton* button : {&BevButtDon, &BevButtDejDon}) {
        button->Icon = Picture{"", button->Width - 2, button->Height - 2, paleYellow};
        button->IconDX = -1;
        button->IconDY = 0;
    }
}

void WinInfos::AskForDonation() {
    const std::string title = Localisation::Btn_FaireDon();
    const std::string eol(endOfLine);
    TexteInfo.Text = title + eol + eol + Localisation::Infos_Text_Don();
    TexteInfo.Styles = std::vector<TextStyle>{
        {0, static_cast<int>(Len(title)), true, true, TexteInfo.TextSize + titleLarger}};
    BevButtDejDon.Visible = true;
}

} // namespace tessarolyne

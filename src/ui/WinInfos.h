#pragma once

#include "platform/Controls.h"
#include "platform/TextControls.h"
#include "ui/BlockingOverlay.h"
#include "ui/ProgramWindow.h"

#include <functional>
#include <string>

namespace tessarolyne {

// What the program does, who made it and how to reach them; its text is the manual. At a start it also serves
// as the donation prompt, with another text and one button more. Nothing depends on a donation.
class WinInfos final : public ModalWindow {
public:
    explicit WinInfos(Program& owner);

    Canvas CanvIcon{*this, "CanvIcon", {20, 14, 64, 64}, lockLeftTop, NoTabStop(0)};
    Label StaticTextNomProg{*this, "StaticTextNomProg", {96, 22, 314, 22}, lockLeftTopRight, NoTabStop(1)};
    Label StaticTextVersion{*this, "StaticTextVersion", {96, 46, 314, 20}, lockLeftTopRight, NoTabStop(2)};
    Label StTextCopRight{*this, "StTextCopRight", {20, 84, 390, 20}, lockLeftTopRight, NoTabStop(3)};
    TextArea TexteInfo{*this, "TexteInfo", {20, 110, 390, 216}, lockAll, TabStop(4)};
    Label Web1{*this, "Web1", {20, 334, 318, 18}, lockLeftBottomRight, TabStop(5)};
    Label Web2{*this, "Web2", {20, 352, 318, 18}, lockLeftBottomRight, TabStop(6)};
    Label Email1{*this, "Email1", {20, 388, 318, 18}, lockLeftBottomRight, TabStop(8)};
    Label Email2{*this, "Email2", {20, 370, 318, 18}, lockLeftBottomRight, TabStop(7)};
    BevelButton BevButtDon{*this, "BevButtDon", {20, 442, 180, 24}, lockLeftBottom, TabStop(10)};
    BevelButton BevButtDejDon{*this, "BevButtDejDon", {20, 412, 180, 24}, lockLeftBottom, TabStop(9)};
    Canvas CanvDevLogo{*this, "CanvDevLogo", {350, 340, 60, 60}, lockRightBottom, TabStop(11)};
    PushButton BoutonOk{*this, "BoutonOk", {341, 444, 69, 20}, lockRightBottom, TabStop(12)};
    BlockingOverlay LabBlockUI{*this, fncts, NoTabStop(13)};

    // Where a press began that hasn't been released yet.
    bool OnWeb1 = false;
    bool OnWeb2 = false;
    bool OnEmail1 = false;
    bool OnEmail2 = false;
    bool OnDevLogo = false;

    // Turns the window into the donation prompt.
    void AskForDonation();
    // The only way to close the window.
    void FermeFentr() { EndModal(); }

    void Event_Open() override;

private:
    static constexpr Locks lockLeftBottomRight{true, false, true, true};

    void SetInitialState();
    void BindLinks();
    template <typename Pointed>
    void PointAt(Pointed& control);
    template <typename Link>
    void BindLink(Link& link, bool& pressed, std::function<void()> follow);
    void WriteTo(const std::string& email);
};

} // namespace tessarolyne

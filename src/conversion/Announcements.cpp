// What a screen reader is told without being asked: what typing has given.

#include "app/Program.h"
#include "conversion/WinMain.h"

#include <initializer_list>

namespace tessarolyne {

void WinMain::BindAnnouncements() {
    for (TextControl* output :
        std::initializer_list<TextControl*>{&EditFieldBaseDest, &TxtAreaDecomp1er, &TxtAreaLettres}) {
        output->GotFocus = [this, output] { outputOfInterest_ = output; };
    }
    typingPause_.Action = [this] { AnnounceResult(); };
}

void WinMain::AnnounceResultAfterPause() {
    typingPause_.Mode = 1;
    typingPause_.Reset();
}

void WinMain::AnnounceResult() {
    const bool isToCome =
        TimerTempo.Mode != 0 || (calculation.CalculEnCours() && outputOfInterest_ == &TxtAreaDecomp1er);
    if (isToCome) {
        AnnounceResultAfterPause();
    } else {
        fncts.Announce(outputOfInterest_->Text);
    }
}

} // namespace tessarolyne

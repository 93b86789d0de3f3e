// What a screen reader is told without being asked: what typing has given, and how a long run has ended.

#include "app/Program.h"
#include "conversion/WinMain.h"
#include "platform/Clock.h"
#include "platform/Services.h"
#include "ui/Localisation.h"

#include <initializer_list>

namespace tessarolyne {

namespace {

constexpr int longRun = 1000; // milliseconds: by then nobody waits for the result any more

} // namespace

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
    const bool isToCome = TimerTempo.Mode != 0 || (CalculEnCours && outputOfInterest_ == &TxtAreaDecomp1er);
    if (isToCome) {
        AnnounceResultAfterPause();
    } else {
        fncts.Announce(outputOfInterest_->Text);
    }
}

void WinMain::NoteRunBegins(bool isAskedFor) {
    runIsAskedFor_ = isAskedFor;
    runBegan_ = program.services.clock.Milliseconds();
}

void WinMain::AnnounceRunEnded(const std::string& resultat) {
    if (runIsAskedFor_ || program.services.clock.Milliseconds() - runBegan_ >= longRun) {
        typingPause_.Mode = 0; // said with this
        fncts.Announce(fncts.ArretUrg ? Localisation::Txt_CalculArrete()
                                      : fncts.FracTexte(Localisation::Txt_CalculFini(), 1) + resultat);
    }
}

} // namespace tessarolyne

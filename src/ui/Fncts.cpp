#include "ui/Fncts.h"

#include "app/Version.h"
#include "platform/Application.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/EventLoop.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "ui/FracTexte.h"
#include "ui/Localisation.h"
#include "ui/SafeAddress.h"

namespace tessarolyne {

namespace {

constexpr int ticksBetweenBeeps = 10;

} // namespace

void Fncts::Beep() {
    services_.sounds.Beep();
}

void Fncts::Announce(const std::string& texte) {
    if (Annonces && !texte.empty()) {
        services_.announcer.Say(texte);
    }
}

void Fncts::BeepNbT(int nombre) {
    for (int beep = 1; beep <= nombre; ++beep) {
        if (beep > 1) {
            Pause(ticksBetweenBeeps, false);
        }
        Beep();
    }
}

void Fncts::Pause(int ticks, bool doEvents) {
    if (doEvents) {
        MsgBox("Error ! Please contact the authors, Fncts - Pause should no longer use App.DoEvents !");
    }
    Clock& clock = services_.clock;
    const std::int64_t end = clock.Ticks() + ticks;
    services_.loop.WaitUntil([&] { return clock.Ticks() >= end; });
}

void Fncts::PlayT(Sound& son, bool attendre) {
    Sound clone = son.Clone();
    Sound& played = son.IsPlaying() ? clone : son;
    played.Play(services_.sounds);
    if (attendre) {
        services_.loop.WaitUntil([&] { return !played.IsPlaying(); });
    }
}

void Fncts::PressPapTxt(const std::string& texte) {
    services_.desktop.SetClipboardText(ReplaceLineEndings(texte, endOfLine));
}

void Fncts::ShowURL(const std::string& adresse) {
    const auto show = [this, adresse] { MsgBox(adresse); };
    if (IsSafeAddress(adresse)) {
        services_.desktop.OpenAddress(adresse, show);
    } else {
        show();
    }
}

std::string Fncts::TypeCompil() {
    return builtFor;
}

std::string Fncts::FracTexte(const std::string& texte, int partie) {
    if (auto piece = TextPiece(texte, partie)) {
        return *piece;
    }
    const std::string eol(endOfLine);
    ReportFault("FracTexte. Partie = " + Str(partie) + eol + " " + eol + texte);
    return {};
}

void Fncts::CopyToClipboard(const std::string& texte) {
    PlayT(Bip, false);
    PressPapTxt(texte);
    if (!texte.empty()) {
        Announce(FracTexte(Localisation::Txt_Copie(), 1) + texte);
    }
}

void Fncts::HoldMenuForCalculation(bool hold) {
    calculationHoldsMenu_ = hold;
    DrapMenu = !hold;
}

void Fncts::RestoreDrapMenu(bool found) {
    DrapMenu = found && !calculationHoldsMenu_;
}

void Fncts::ReportFault(const std::string& place) {
    MsgBox("Error ! Please contact the authors." + std::string(endOfLine) + place);
}

void Fncts::ReportFaultInLines(const std::string& place) {
    const std::string eol(endOfLine);
    MsgBox("Error !" + eol + "Please contact the authors." + eol + place);
}

} // namespace tessarolyne

#pragma once

#include "platform/EventLoop.h"

#include <string>

namespace tessarolyne {

class App;
class BevelButton;
class Calculation;
class Fncts;
class NumberEntry;
class PrimeFileBinding;
class Program;
class Settings;
class Window;

// The way out: a close can't finish at once, since a calculation may run and questions may have to be asked.
class Quitting {
public:
    Quitting(Window& mainWindow, Program& program, Settings& settings, Calculation& calculation,
        NumberEntry& entry, PrimeFileBinding& primeFile, const BevelButton& BevelButtonListe);

    // What the main window answers to its close; always true until all is decided.
    bool CancelClose(bool appQuitting);
    bool IsUnderWay() const;
    // From now on there are settings to save.
    void StartIsOver() { startIsOver_ = true; }
    // What the signal or the session's end leaves time for: the settings, and new primes if a file is bound.
    void SaveWithoutAsking();

private:
    int AskOnTheWayOut(const std::string& message, const std::string& explanation, const std::string& action,
        const std::string& cancel, const std::string& alternate, int icon);
    void AskToStopCalculation();
    bool AskAboutNewPrimes(bool& enregistrer);
    void StayOpen();
    void DecideClose(bool enregistrer);
    void TimerQuit_Action();

    Window& mainWindow_;
    Program& program_;
    App& app_;
    Fncts& fncts_;
    Settings& settings_;
    Calculation& calculation_;
    NumberEntry& entry_;
    PrimeFileBinding& primeFile_;
    const BevelButton& bevelButtonListe_;
    Timer timerQuit_;
    bool startIsOver_ = false; // unlike App.initProg it stays up
    bool questionIsUp_ = false;
};

} // namespace tessarolyne

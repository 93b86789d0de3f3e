#pragma once

#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/Http.h"

#include <string>

namespace tessarolyne {

class App;
class Fncts;
struct Services;

// The check for a new version: the fetch, the hand-over of its reply to an event of its own, so that no
// dialog ever opens inside the socket's, and what the user is told.
class UpdateCheck {
public:
    UpdateCheck(App& app, Fncts& fncts, Services& services, std::string versionFile);

    // At the start, once a day, if the user wants it; speaks only of a new version.
    void StartAutomatically();
    // From the menu; reports every outcome.
    void Start();

    Event<void(bool)> TakesTime; // turns the wheel

private:
    void Fetch();
    void HasCome(const HttpReply& reply);
    void TimerVerMaJ_Action();
    bool VrfVerMaJ();

    App& app_;
    Fncts& fncts_;
    Services& services_;
    const std::string versionFile_;
    bool alertVerAjour_ = false; // every outcome is reported, not only a new version
    HttpReply reply_;            // the last, until it has been dealt with
    int fetchesUnderWay_ = 0;
    Timer slowCheck_; // until a check from the menu has to show that it is under way
    Timer timerVerMaJ_;
};

} // namespace tessarolyne

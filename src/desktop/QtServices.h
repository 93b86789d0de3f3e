#pragma once

#include "desktop/QtAnnouncer.h"
#include "desktop/QtDesktop.h"
#include "desktop/QtDialogs.h"
#include "desktop/QtEventLoop.h"
#include "desktop/QtHttp.h"
#include "desktop/QtSounds.h"
#include "desktop/QtStage.h"
#include "platform/Services.h"

namespace tessarolyne {

// All that the desktop answers. Made after the QtApplication and before the program, and outlives it.
struct QtServices {
    explicit QtServices(FileSystem& files, HttpLimits httpLimits = {})
        : dialogs(loop, stage, files), desktop(loop), http(loop, httpLimits) {}

    // Them together with what the machine answers.
    Services With(Clock& clock, FileSystem& files, MemoryLimits& memory) {
        return {clock, loop, stage, dialogs, desktop, sounds, http, files, memory, announcer};
    }

    QtEventLoop loop;
    QtStage stage;
    QtDialogs dialogs;
    QtDesktop desktop;
    QtSounds sounds;
    QtHttp http;
    QtAnnouncer announcer;
};

} // namespace tessarolyne

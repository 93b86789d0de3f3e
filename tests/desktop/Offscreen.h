#pragma once

#include <QApplication>

namespace tessarolyne {

// The application of these tests, made once, which needs no display. It is never ended: what Qt itself keeps
// as static objects would go before it.
inline void UseQt() {
    static int count = 1;
    static char name[] = "tests";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    [[maybe_unused]] static const auto* const application = new QApplication(count, arguments);
}

} // namespace tessarolyne

#pragma once

#include <QString>

namespace tessarolyne {

// One stretch of a text put in the place of another, in UTF-16 units.
struct Replacement {
    qsizetype start = 0;
    qsizetype removed = 0;
    QString inserted;
};

// What the user did to turn `before` into `after`, with the caret then at `caret`. Where the texts alone
// leave it open ("1" typed among other ones), the caret decides; what was selected (from `selectionStart`)
// counts as replaced as a whole, so that all of a pasted text is seen.
Replacement FindReplacement(
    const QString& before, const QString& after, qsizetype selectionStart, qsizetype caret);

} // namespace tessarolyne

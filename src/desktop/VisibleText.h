#pragma once

#include <QString>

#include <string>

namespace tessarolyne {

// The text for a dialog: line ends as line feeds, and every character that has no shape of its own but could
// change the layout of the others (controls, direction marks, invisible formats) as an escape such as
// ⟨U+202E⟩. A very long text is cut with an ellipsis, so that a dialog opens at once.
QString VisibleText(const std::string& text);

} // namespace tessarolyne

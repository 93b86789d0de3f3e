#pragma once

namespace tessarolyne {

// Mends what Qt tells screen readers of lines of text, and of widgets that lend their focus to another.
void TellTextsAsTheyAre();

} // namespace tessarolyne

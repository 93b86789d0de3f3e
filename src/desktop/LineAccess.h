#pragma once

namespace tessarolyne {

// Lets lines of text tell screen readers that all of their text has the same attributes. Qt's own say that no
// character has any run of attributes; a reader that speaks run by run then leaves out the last character,
// and 255 is heard as 25.
void TellLinesWhole();

} // namespace tessarolyne

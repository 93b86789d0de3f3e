#pragma once

namespace tessarolyne {

// Mends what Qt tells screen readers of lines of text, and of widgets that lend their focus to another.
void TellTextsAsTheyAre();

// Keeps from screen readers what a text that hasn't the focus yet says of its caret and selection. Qt tells
// of a move of the focus last, when the text that gets it has long placed its caret: a reader then takes that
// for a move within the text, and never speaks where it has come.
void TellFocusBeforeCaret();

} // namespace tessarolyne

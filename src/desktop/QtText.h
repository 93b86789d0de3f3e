#pragma once

#include "platform/TextControls.h"

#include <QFont>
#include <QString>

#include <string>

class QKeyEvent;
class QWidget;

namespace tessarolyne {

// Texts between the models and Qt. The models count characters (code points) of UTF-8, Qt counts UTF-16
// units; a line end is one position in Qt, though it may be CR LF in a model.
QString ToQt(const std::string& text);
std::string FromQt(const QString& text);

// The text as Qt's views hold it: every line end of the model is one line feed.
QString WithLineFeeds(const std::string& text);

// The unit of `WithLineFeeds(text)` at which the model's character number `character` begins, and back.
int UnitOfCharacter(const std::string& text, int character);
int CharacterOfUnit(const std::string& text, int unit);

// A caption in which "&" is only a character, and the letter is marked that works with Alt, if any is given:
// where a word begins with it, else where it comes first.
QString WithAltKey(const std::string& caption, const std::string& letter);

// A text as a tool tip that is never taken for markup.
QString PlainToolTip(const std::string& text);

// Left, right or centre, in the middle of the height.
Qt::Alignment QtAlignment(Alignment alignment);

// The key as the models know it: Return is Chr(13), Enter Chr(3), Escape Chr(27), Tab Chr(9), and without
// modifiers PageUp is Chr(11), PageDown Chr(12), Up Chr(30), Down Chr(31); any other key is the text that it
// types. Empty for keys that type nothing and for those of the menus (with Ctrl or Command).
std::string KeyText(const QKeyEvent& event);

// Whether the key would type something but is held with Alt or Super, which are for the menus and the
// desktop. AltGr is another key, by whatever name the layout has it.
bool IsCommandKey(const QKeyEvent& event);

// The text for a dialog: line ends as line feeds, and every character that has no shape of its own but could
// change the layout of the others (controls, direction marks, invisible formats) as an escape such as
// ⟨U+202E⟩. A very long text is cut with an ellipsis, so that a dialog opens at once.
QString VisibleText(const std::string& text);

// The widget's font for `text` in `width` points and its height: the system's own, or `pixels` high if that
// isn't 0, made smaller as far as needed where the text would be cut in a desktop with large fonts.
QFont FittingFont(const QWidget& widget, const QString& text, int width, int pixels = 0);

} // namespace tessarolyne

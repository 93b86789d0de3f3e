#pragma once

#include "platform/TextControl.h"

#include <QString>

#include <string>

// Texts between the models and Qt. The models count characters (code points) of UTF-8, Qt counts UTF-16
// units; a line end is one position in Qt, though it may be CR LF in a model.
namespace tessarolyne {

QString ToQt(const std::string& text);
std::string FromQt(const QString& text);

// The text as Qt's views hold it: every line end of the model is one line feed.
QString WithLineFeeds(const std::string& text);

// The unit of `WithLineFeeds(text)` at which the model's character number `character` begins, and back.
int UnitOfCharacter(const std::string& text, int character);
int CharacterOfUnit(const std::string& text, int unit);

// A caption in which "&" is only a character.
QString LiteralCaption(const std::string& caption);

// The same with the letter marked that works with Alt: where a word begins with it, else where it comes
// first.
QString WithAltKey(const std::string& caption, const std::string& letter);

// A text as a tool tip that is never taken for markup.
QString PlainToolTip(const std::string& text);

// Left, right or centre, in the middle of the height.
Qt::Alignment QtAlignment(Alignment alignment);

} // namespace tessarolyne

#pragma once

#include <string>

class QKeyEvent;

namespace tessarolyne {

// The key as the models know it: Return is Chr(13), Enter Chr(3), Escape Chr(27), Tab Chr(9), and without
// modifiers PageUp is Chr(11), PageDown Chr(12), Up Chr(30), Down Chr(31); any other key is the text that it
// types. Empty for keys that type nothing and for those of the menus (with Ctrl or Command).
std::string KeyText(const QKeyEvent& event);

// Whether the key would type something but is held with Alt or Super, which are for the menus and the
// desktop. AltGr is another key, by whatever name the layout has it.
bool IsCommandKey(const QKeyEvent& event);

} // namespace tessarolyne

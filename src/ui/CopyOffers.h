#pragma once

#include "platform/TextControls.h"

#include <functional>
#include <string>
#include <vector>

namespace tessarolyne {

class Fncts;

// Has the control's context menu offer, besides copying what is shown, the number without the blanks between
// its groups, and what `further` makes of that.
using FurtherCopies =
    std::function<void(const std::string& bare, std::vector<TextControl::Command>& commands)>;
void OfferCopies(TextControl& source, Fncts& fncts, FurtherCopies further = {});

// A command that puts the text on the clipboard.
TextControl::Command CopyCommand(Fncts& fncts, const std::string& caption, const std::string& text);

} // namespace tessarolyne

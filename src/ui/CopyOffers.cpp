#include "ui/CopyOffers.h"

#include "platform/Text.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"

#include <algorithm>
#include <utility>

namespace tessarolyne {

namespace {

// The factors' "x" among them, but no sign that errors and hints have.
bool StandsInNumber(char c) {
    return IsDigit(c) || IsLetter(c) || c == '.';
}

} // namespace

void OfferCopies(TextControl& source, Fncts& fncts, FurtherCopies further) {
    source.ContextCommands = [&source, &fncts, further = std::move(further)] {
        std::vector<TextControl::Command> commands;
        const std::string bare = WithoutBlanks(source.Text());
        if (!bare.empty() && std::all_of(bare.begin(), bare.end(), StandsInNumber)) {
            commands.push_back(CopyCommand(fncts, Localisation::Txt_CopierSansEsp(), bare));
            if (further) {
                further(bare, commands);
            }
        }
        return commands;
    };
}

TextControl::Command CopyCommand(Fncts& fncts, const std::string& caption, const std::string& text) {
    return {caption, [&fncts, text] { fncts.CopyToClipboard(text); }};
}

} // namespace tessarolyne

#pragma once

#include "platform/TextControls.h"
#include "ui/WrittenNumber.h"

#include <string>

namespace tessarolyne {

// What becomes of each edit in a number field: keys that go on with a number are taken one by one, and a
// paste is taken whole or not at all. It remembers how the number was typed, since a separator may turn out
// to be one of groups: "1,23" is 1.23 in English, "1,234" is 1234. Such a text that isn't complete stands as
// it was typed.
class NumberTyping {
public:
    enum class Refusal { None, NoNumber, TooManyDigits, TooManyDecimals, Minus };

    // Makes of the edit what may stand, or says why it can't; the mask is the field's.
    Refusal Take(TextEdit& edit, const Mask& mask, DecimalSign sign);
    // Whoever comes back to the field goes on with the number that it shows.
    void Forget();

private:
    bool StandsInPart() const { return !written_.empty() && written_ == shown_; }
    void TakeDeletion(TextEdit& edit, const Mask& mask, DecimalSign sign);
    Refusal TakeKey(TextEdit& edit, const Mask& mask, DecimalSign sign);
    Refusal TakePaste(TextEdit& edit, const Mask& mask, DecimalSign sign);
    bool Stands(TextEdit& edit, const std::string& written, const Mask& mask, DecimalSign sign);

    std::string written_; // as it was typed, for as long as the field holds `shown_`
    std::string shown_;
};

} // namespace tessarolyne

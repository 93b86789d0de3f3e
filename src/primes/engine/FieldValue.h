#pragma once

#include <cstdint>
#include <string>

namespace tessarolyne {

// ToUInt64(Val(text)) of a text that comes character by character and may be longer than memory. It keeps as
// many significant digits as can matter to a double, and counts the others.
class FieldValue {
public:
    void Take(char c);
    std::uint64_t Value() const;
    // Begins the next text.
    void Clear();

private:
    enum class State { Blanks, Whole, Fraction, ExponentSign, ExponentFirst, Exponent, End };

    void Begin(char c);
    void TakeDigit(char c);
    void TakeMark(char c);
    void TakeExponentDigit(char c);

    State state_ = State::Blanks;
    bool negative_ = false;
    bool exponentNegative_ = false;
    bool anyDigit_ = false;
    std::string digits_;     // from the first that isn't 0
    std::int64_t scale_ = 0; // the power of ten of the last kept digit, without the exponent
    std::int64_t exponent_ = 0;
};

} // namespace tessarolyne

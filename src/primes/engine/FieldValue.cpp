#include "primes/engine/FieldValue.h"

#include "platform/Ascii.h"
#include "platform/Numbers.h"

#include <cstddef>

namespace tessarolyne {

namespace {

// Halfway between two doubles lies at most 767 digits deep; one more digit tells which side a number is on.
constexpr std::size_t mostDigits = 800;
// Beyond any count of digits, and far from overflow.
constexpr std::int64_t mostExponent = 1'000'000'000'000'000'000;

} // namespace

void FieldValue::Take(char c) {
    switch (state_) {
    case State::Blanks:
        Begin(c);
        break;
    case State::Whole:
    case State::Fraction:
        IsDigit(c) ? TakeDigit(c) : TakeMark(c);
        break;
    case State::ExponentSign:
        state_ = State::ExponentFirst;
        if (c == '+' || c == '-') {
            exponentNegative_ = c == '-';
            break;
        }
        [[fallthrough]];
    case State::ExponentFirst:
    case State::Exponent:
        TakeExponentDigit(c);
        break;
    case State::End:
        break;
    }
}

void FieldValue::Begin(char c) {
    if (c == ' ') {
        return;
    }
    state_ = State::Whole;
    if (c == '+' || c == '-') {
        negative_ = c == '-';
    } else {
        Take(c);
    }
}

void FieldValue::TakeDigit(char c) {
    anyDigit_ = true;
    const bool isFraction = state_ == State::Fraction;
    if (digits_.empty() && c == '0') {
        scale_ -= isFraction ? 1 : 0;
    } else if (digits_.size() < mostDigits) {
        digits_ += c;
        scale_ -= isFraction ? 1 : 0;
    } else {
        // Only whether anything but 0 follows can still matter.
        digits_.back() = c == '0' || digits_.back() != '0' ? digits_.back() : '1';
        scale_ += isFraction ? 0 : 1;
    }
}

void FieldValue::TakeMark(char c) {
    if (c == '.' && state_ == State::Whole) {
        state_ = State::Fraction;
    } else if ((c == 'e' || c == 'E') && anyDigit_) {
        state_ = State::ExponentSign;
    } else {
        state_ = State::End;
    }
}

void FieldValue::TakeExponentDigit(char c) {
    if (!IsDigit(c)) {
        state_ = State::End;
        return;
    }
    state_ = State::Exponent;
    if (exponent_ < mostExponent / 10) {
        exponent_ = exponent_ * 10 + (c - '0');
    }
}

std::uint64_t FieldValue::Value() const {
    if (digits_.empty() || negative_) {
        return 0;
    }
    const std::int64_t power = scale_ + (exponentNegative_ ? -exponent_ : exponent_);
    return ToUInt64(Val(digits_ + "e" + Str(power)));
}

void FieldValue::Clear() {
    state_ = State::Blanks;
    negative_ = false;
    exponentNegative_ = false;
    anyDigit_ = false;
    digits_.clear();
    scale_ = 0;
    exponent_ = 0;
}

} // namespace tessarolyne

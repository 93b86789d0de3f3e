#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarolyne {

// What a text field lets its user insert: up to so many digits, with a point and up to so many digits behind
// it, as in "999999999999.99" or "999". It filters insertions only: deleting is always allowed, and texts
// that the program sets don't come here. It isn't the mask by which numbers are shown (see Format).
class Mask {
public:
    // Each "9" is one digit that may stand there, "." the point. An empty mask, or one with any other
    // character, lets everything through.
    explicit Mask(std::string_view mask = {});

    // What may be inserted of `inserted` when it replaces `removed` characters from `start` (counted from 0)
    // of the text `before`: each of its characters, from left to right, with which the whole text still fits.
    //
    // A number shown with blanks (U+0020) is judged without them; beginnings of numbers, such as "." and
    // "12.", fit. Nothing may be inserted in a text that Holds is false of.
    std::string Filter(
        std::string_view before, std::size_t start, std::size_t removed, std::string_view inserted) const;
    // Whether the text, without blanks, is what the user could have typed; a message isn't.
    bool Holds(std::string_view text) const;

private:
    bool Fits(std::string_view text) const;
    std::string FittingPart(
        std::string_view inserted, const std::string& left, const std::string& right) const;

    bool filters_ = false;
    bool point_ = false;
    std::size_t wholeDigits_ = 0;
    std::size_t decimals_ = 0;
};

} // namespace tessarolyne

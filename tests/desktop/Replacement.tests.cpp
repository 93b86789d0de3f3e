#include "desktop/TextEdits.h"

#include <QString>

#include <doctest/doctest.h>

using tessarolyne::FindReplacement;
using tessarolyne::Replacement;

TEST_CASE("The edit between two texts is the one that the user made") {
    const struct {
        const char* what;
        QString before, after;
        qsizetype selectionStart, caret;
        Replacement expected;
    } cases[] = {
        {"a digit typed among equal ones", u"1111"_qs, u"11111"_qs, 1, 2, {1, 0, u"1"_qs}},
        {"the key that deletes to the left", u"2222"_qs, u"222"_qs, 3, 2, {2, 1, u""_qs}},
        {"the key that deletes to the right", u"2222"_qs, u"222"_qs, 2, 2, {2, 1, u""_qs}},
        {"a paste that begins like what was selected", u"1 000"_qs, u"1 234,5"_qs, 0, 7,
            {0, 5, u"1 234,5"_qs}},
        {"an undo with the caret elsewhere", u"12345"_qs, u"19345"_qs, 5, 0, {1, 1, u"9"_qs}},
        {"one half of a surrogate pair", u"a\U0001F600b"_qs, u"a\U0001F601b"_qs, 3, 3,
            {1, 2, u"\U0001F601"_qs}},
        {"a first text", u""_qs, u"255"_qs, 0, 3, {0, 0, u"255"_qs}},
    };
    for (const auto& c : cases) {
        CAPTURE(c.what);
        const Replacement change = FindReplacement(c.before, c.after, c.selectionStart, c.caret);
        CHECK(change.start == c.expected.start);
        CHECK(change.removed == c.expected.removed);
        CHECK(change.inserted == c.expected.inserted);
    }
}

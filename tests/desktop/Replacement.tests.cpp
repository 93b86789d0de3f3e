#include "desktop/Replacement.h"

#include <QString>

#include <doctest/doctest.h>

using tessarolyne::FindReplacement;
using tessarolyne::Replacement;

namespace {

// The edit that turns `before` into `after`, after checking that it does.
Replacement Found(const QString& before, const QString& after, qsizetype selectionStart, qsizetype caret) {
    const Replacement change = FindReplacement(before, after, selectionStart, caret);
    QString replayed = before;
    replayed.replace(change.start, change.removed, change.inserted);
    CHECK(replayed == after);
    return change;
}

} // namespace

TEST_CASE("A digit typed among equal digits is inserted where the caret was") {
    const Replacement change = Found(u"1111"_qs, u"11111"_qs, 1, 2);
    CHECK(change.start == 1);
    CHECK(change.removed == 0);
    CHECK(change.inserted == u"1"_qs);
}

TEST_CASE("Both delete keys remove one character on their own side of the caret") {
    const Replacement back = Found(u"2222"_qs, u"222"_qs, 3, 2);
    CHECK(back.start == 2);
    CHECK(back.removed == 1);
    const Replacement forward = Found(u"2222"_qs, u"222"_qs, 2, 2);
    CHECK(forward.start == 2);
    CHECK(forward.removed == 1);
    CHECK(forward.inserted.isEmpty());
}

TEST_CASE("A text pasted over a selection is seen whole, also where it begins like the selected one") {
    const Replacement change = Found(u"1 000"_qs, u"1 234,5"_qs, 0, 7);
    CHECK(change.start == 0);
    CHECK(change.removed == 5);
    CHECK(change.inserted == u"1 234,5"_qs);
}

TEST_CASE("An undo that leaves the caret away from the change is still found") {
    const Replacement change = Found(u"12345"_qs, u"19345"_qs, 5, 0);
    CHECK(change.start == 1);
    CHECK(change.removed == 1);
    CHECK(change.inserted == u"9"_qs);
}

TEST_CASE("A change between two characters of one surrogate pair takes the whole character") {
    const QString before = u"a\U0001F600b"_qs;
    const QString after = u"a\U0001F601b"_qs; // the same high surrogate
    const Replacement change = Found(before, after, 3, 3);
    CHECK(change.start == 1);
    CHECK(change.removed == 2);
    CHECK(change.inserted.size() == 2);
}

TEST_CASE("Emptying and filling a text are one replacement each") {
    CHECK(Found(u"255"_qs, QString(), 0, 0).removed == 3);
    CHECK(Found(QString(), u"255"_qs, 0, 3).inserted == u"255"_qs);
}

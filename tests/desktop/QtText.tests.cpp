#include "desktop/QtText.h"
#include "desktop/TextEdits.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

TEST_CASE("A dialog's text keeps its lines, shows what would change its layout as escapes, and is cut") {
    CHECK(VisibleText("a\rb\r\nc\td") == u"a\nb\nc\td"_qs);
    CHECK(VisibleText("x\u202Egnp.exe") == u"x⟨U+202E⟩gnp.exe"_qs);
    CHECK(VisibleText(std::string("\0\x1B\x7F", 3)) == u"⟨U+0000⟩⟨U+001B⟩⟨U+007F⟩"_qs);
    CHECK(VisibleText("\uFEFF\u2066\u200F") == u"⟨U+FEFF⟩⟨U+2066⟩⟨U+200F⟩"_qs);
    CHECK(VisibleText("<b>é 😀</b>") == u"<b>é 😀</b>"_qs);
    const QString shown = VisibleText(std::string(1'000'000, 'm'));
    CHECK(shown.size() < 20'000);
    CHECK(shown.endsWith(u'…'));
}

TEST_CASE("Positions agree across line ends, wide characters and bytes that are no text") {
    const std::string text = "a\r\n😀é\xFFz";
    // a, CR, LF, the face, é, the byte, z
    CHECK(WithLineFeeds(text).size() == 7);
    CHECK(UnitOfCharacter(text, 3) == 2);
    CHECK(UnitOfCharacter(text, 4) == 4);
    CHECK(UnitOfCharacter(text, 7) == 7);
    CHECK(CharacterOfUnit(text, 4) == 4);
    CHECK(CharacterOfUnit(text, 6) == 6);
    CHECK(CharacterOfUnit(text, 99) == 7);
}

TEST_CASE("A tool tip is never markup nor wider than the screen, and a caption never a mnemonic") {
    CHECK(PlainToolTip("<img src=x>\rb").contains(u"&lt;img src=x&gt;\nb"_qs));
    CHECK(PlainToolTip(std::string(100, 'x')).contains(u"x\nx"_qs)); // else it leaves the screen
    CHECK(WithAltKey("R&D", "") == u"R&&D"_qs);
}

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

#include "desktop/QtText.h"

#include <QString>

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

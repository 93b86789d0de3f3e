#include "app/VersionFile.h"
#include "fuzz/Fuzz.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

TEST_CASE("Notes end before the older versions and without empty lines, and have bullets for hyphens") {
    const char* const rows[][2] = {{"-- One -- Two\rthree", "• One\r• Two\rthree"}, {"\r\r", ""},
        {"First -- One -- Two", "First\r• One\r• Two"}, {"older versions", "older versions"},
        {"a--b --c-- d", "a--b --c• d"}, // only one of those without a blank before it
        {"One\r\r\rOlder versions\r-- Old", "One"}};
    for (const auto& [text, notes] : rows) {
        CHECK(ReadVersionFile(std::string("url\rRelease Notes\rhttp://a\rv.1\r") + text)->notes == notes);
    }
    CHECK(HistoryPage("http://host/prg/Tessarolyne_V.txt") == "http://host/prg/Tessarolyne_AffV.html");
    CHECK(HistoryPage("ab") == "_AffV.html");
}

TEST_CASE("A version file with random damage is read as an obvious reading has it") {
    const std::string good = "http://host/x_V.txt\r\nRelease Notes\nhttp://a.example/x\rv.1.0\r-- One -- "
                             "Two\n\nOlder versions\r0.9";
    RunOnDamaged([&](Random&) { return good; }, {"\r", "\n", "\r\n", " -- ", "Older versions", "http://",
                                                    "v.", "@", "\\", "\xE2\x80\xAE", "\xFF", "<", " "});
}

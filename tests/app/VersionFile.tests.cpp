#include "app/VersionFile.h"
#include "fuzz/Damage.h"

#include <doctest/doctest.h>

#include <string>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string url = "http://host/prg/Xojo/Tessarolyne_V.txt";

std::string NotesOf(const std::string& notes) {
    const auto reply = ReadVersionReply(url + "\rRelease Notes\rhttp://a\rv.1\r" + notes);
    CHECK(reply.kind == VersionReply::Kind::VersionFile);
    return reply.notes;
}

} // namespace

TEST_CASE("Two hyphens between blanks become a bullet on a line of its own") {
    CHECK(NotesOf("-- One -- Two\rthree") == "• One\r• Two\rthree");
    CHECK(NotesOf("First -- One -- Two") == "First\r• One\r• Two");
    CHECK(NotesOf("a--b --c-- d") == "a--b --c• d"); // only one of those without a blank before it
}

TEST_CASE("The notes end before the older versions and without empty lines") {
    CHECK(NotesOf("One\r\r\rOlder versions\r-- Old") == "One");
    CHECK(NotesOf("\r\r").empty());
    CHECK(NotesOf("older versions") == "older versions");
}

TEST_CASE("The history stands beside the version file") {
    CHECK(HistoryPage(url) == "http://host/prg/Xojo/Tessarolyne_AffV.html");
    CHECK(HistoryPage("http://host/123456") == "http://host/_AffV.html");
    CHECK(HistoryPage("ab") == "_AffV.html");
}

TEST_CASE("A version file with random damage is read as an obvious reading has it") {
    const std::string good =
        url + "\r\nRelease Notes\nhttp://a.example/x\rv.1.0\r-- One -- Two\n\nOlder versions\r0.9";
    RunOnDamaged(
        [&](Random&) { return good; }, {"\r", "\n", "\r\n", " -- ", "-- ", "Older versions", "Release Notes",
                                           "http://", "v.", "@", "\\", "\xE2\x80\xAE", "\xFF", "<", " "});
}

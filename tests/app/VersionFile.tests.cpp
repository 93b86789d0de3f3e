#include "app/VersionFile.h"

#include <doctest/doctest.h>

#include <cstdint>
#include <random>
#include <string>

using namespace tessarolyne;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

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
    CHECK(NotesOf("x--y") == "x--y");
}

TEST_CASE("The notes end before the older versions and without empty lines") {
    CHECK(NotesOf("One\r\r\rOlder versions\r-- Old") == "One");
    CHECK(NotesOf("One\rTwo\r\r") == "One\rTwo");
    CHECK(NotesOf("Older versions").empty());
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
    const char* const pieces[] = {"\r", "\n", "\r\n", " -- ", "-- ", "Older versions", "Release Notes",
        "http://", "v.", "@", "\\", "\xE2\x80\xAE", "\xFF", "<", " "};
    std::mt19937 random(20261122);
    const auto below = [&](std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
    };
    for (int run = 0; run < 20'000; ++run) {
        std::string text = good;
        for (std::size_t change = below(5); change > 0; --change) {
            text.replace(below(text.size() + 1), below(3), pieces[below(std::size(pieces))]);
        }
        text.resize(below(4) == 0 ? below(text.size() + 1) : text.size());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    }
}

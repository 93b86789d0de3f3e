#include "app/PreferencesFile.h"
#include "fuzz/Fuzz.h"
#include "support/MemoryFileSystem.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

namespace {

// Takes the lines into the values; false if one fails.
bool Read(const std::vector<std::string>& lines, Preferences& preferences) {
    std::string text = "\xEF\xBB\xBF";
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return ReadPreferences(text, preferences);
}

struct Disk : MemoryFileSystem {
    Disk() { AddFolder("/p"); }
    const std::string path = "/p/Tessarolyne Prefs.txt";
    const std::string bad = path + ".bad";
    Preferences preferences;

    PreferencesOutcome Read() { return ReadPreferencesFile(At("/p"), preferences); }
    PreferencesOutcome Read(const std::string& text) {
        AddFile(path, text);
        return Read();
    }
};

} // namespace

TEST_CASE("A value with a line end, or too long, is written empty, so that no file name sets a setting") {
    Preferences preferences;
    for (const char* name : {"Root:a\nMajuscule :@: True", "Root:a\rMajuscule :@: True"}) {
        preferences.fichNbPrems = name;
        Disk disk;
        CHECK(disk.Read(PreferencesText(preferences)) == PreferencesOutcome::Read);
        CHECK(disk.preferences == Preferences());
    }
    preferences.monnaie = std::string(longestPreferencesValue, 'x');
    preferences.centime = preferences.monnaie + "x";
    CHECK(PreferencesText(preferences).find("\nMonnaie :@: " + preferences.monnaie + "\nCentime :@: \n") !=
          std::string::npos);
}

TEST_CASE("Lines count in any order, the later of two wins, and what isn't known says nothing") {
    Preferences preferences;
    const bool read =
        Read({"Base Dest :@: 3", "Unknown :@: 1", "", " :@: True", "Base Org:@: 9", " Base Org :@: 9",
                 "Base Dest :@: 4", "Majuscule :@: True", "majuscule :@: TRUE", "Format Auto :@: yes",
                 "Trait d'union :@: True ", "Monnaie :@: caf\xE9", "Centime :@: cen\vtime\t\x1B\u2028",
                 "Fichier Nbres 1ers :@: Root:caf\xE9", "Nbre Nb Prem par Lignes :@:   -3.9 x",
                 "Fenetre WinNbres_1ers :@: 1,,99999", "Fenetre WinMain :@: 4294967296,-4294967296,7,8"},
            preferences);
    Preferences expected;
    expected.baseDest = 4;
    expected.majuscule = true;
    expected.formatAuto = false;
    expected.monnaie = "caf\uFFFD"; // shown, so UTF-8; a path is kept as it is
    expected.centime = "cen time";  // one line, without control characters
    expected.fichNbPrems = "Root:caf\xE9";
    expected.nbreNbPparLigne = -3;
    expected.winNBP = {1, 0, 32767, 0};
    expected.winMain = {2147483647, -2147483647 - 1, 7, 8};
    CHECK(read);
    CHECK(preferences == expected);
}

TEST_CASE("A date that is none, or an index that its control lacks, fails with the lines before it done") {
    for (const char* line : {"Date Launch :@: ", "Date Launch :@: 2026-02-30 00:00:00",
             "Date Launch :@: 2026-02-03T00:00:00", "Date Launch :@: 2026-02-03 24:00:00",
             "Date Launch :@: 2026-02-03 00:00:00 ", "Base Org :@: 35", "Base Org :@: -1",
             "Base Dest :@: 99999999999", "Nbre Base 09AZ :@: 2", "Nbre Base 09AZ :@: -1"}) {
        CAPTURE(line);
        Preferences preferences;
        Preferences expected;
        expected.baseOrg = 5;
        CHECK_FALSE(Read({"Base Org :@: 5", line, "Majuscule :@: True"}, preferences));
        CHECK(preferences == expected);
    }
}

TEST_CASE("A file that isn't there is missing, one that can't be read or is far too long has failed") {
    Disk disk;
    CHECK(disk.Read() == PreferencesOutcome::Missing);
    CHECK(disk.Read(std::string(longestPreferencesFile + 1, '\n')) == PreferencesOutcome::Failed);
    disk.unreadable = {disk.path};
    CHECK(disk.Read("Base Org :@: 7") == PreferencesOutcome::Failed);
    disk.AddLink(disk.path, "/none");
    CHECK(disk.Read() == PreferencesOutcome::Failed);
    disk.entries[disk.path] = {FileKind::Unknown}; // in a folder that can't be searched
    CHECK(disk.Read() == PreferencesOutcome::Failed);
    CHECK(disk.preferences == Preferences());
}

TEST_CASE("A file whose reading failed is kept before another takes its place, or nothing is replaced") {
    Disk disk;
    REQUIRE(disk.Read("Base Org :@: 99") == PreferencesOutcome::Failed);
    disk.unwritable = {disk.bad};
    CHECK_THROWS_AS(WritePreferencesFile(disk.At("/p"), {}, true), IOException);
    CHECK(disk.entries[disk.path].content == "Base Org :@: 99");
    disk.unwritable.clear();
    WritePreferencesFile(disk.At("/p"), {}, true);
    WritePreferencesFile(disk.At("/p"), {}, false);
    CHECK(disk.entries[disk.bad].content == "Base Org :@: 99");
    CHECK(disk.entries[disk.path].content == PreferencesText({}));
}

TEST_CASE("Any bytes whatever are read within their types, and what was read comes back") {
    Preferences preferences;
    preferences.monnaies = "euros :@: é";
    preferences.fichNbPrems = "Root:home:\xE9";
    RunOnDamaged([text = PreferencesText(preferences)](Random&) { return text; },
        {"\r", "\n", "\r\n", " :@: ", "\xEF\xBB\xBF", "-", "99999999999999999999", ",,", "True", "\xE9",
            std::string(1, '\0'), "2024-02-30 00:00:00", "36", "-1", "e999", "0x10"});
}

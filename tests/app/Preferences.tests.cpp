#include "app/PreferencesFile.h"
#include "platform/IOException.h"
#include "support/MemoryFileSystem.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

namespace {

Preferences EverySettingChanged() {
    Preferences p;
    p.dateLaunch = {2026, 11, 22, 9, 5, 3};
    p.dejaDonne = p.autoCheckUpdt = p.majuscule = p.listeVisible = p.trUnion = true;
    p.formatAuto = false;
    p.winMain = {-7, 38, 500, 600};
    p.winNBP = {1, -2, 520, 540};
    p.fichNbPrems = "Root:home:u:prem/1.txt";
    p.nbreNbPparLigne = 25;
    p.baseOrg = 34;
    p.baseDest = 6;
    p.radio09AZ = 1;
    p.langue = "ch be";
    p.monnaie = "franc :@: suisse";
    p.centime = "";
    p.monnaies = "francs";
    p.centimes = "centimes é";
    return p;
}

const std::string everySettingChanged = "Date Launch :@: 2026-11-22 09:05:03\n"
                                        "Deja Envoye Don 03 :@: True\n"
                                        "Auto Check Update :@: True\n"
                                        "Fenetre WinMain :@: -7,38,500,600\n"
                                        "Majuscule :@: True\n"
                                        "Fenetre WinNbres_1ers :@: 1,-2,520,540\n"
                                        "Liste Nb1ers Visible :@: True\n"
                                        "Fichier Nbres 1ers :@: Root:home:u:prem/1.txt\n"
                                        "Nbre Nb Prem par Lignes :@: 25\n"
                                        "Base Org :@: 34\n"
                                        "Base Dest :@: 6\n"
                                        "Nbre Base 09AZ :@: 1\n"
                                        "Format Auto :@: False\n"
                                        "Trait d'union :@: True\n"
                                        "Langue Nombre Lettre :@: ch be\n"
                                        "Monnaie :@: franc :@: suisse\n"
                                        "Centime :@: \n"
                                        "Monnaies :@: francs\n"
                                        "Centimes :@: centimes é\n";

// What the lines make of the initial values.
struct After {
    explicit After(const std::vector<std::string>& lines) : read(ReadPreferences(lines, {}, preferences)) {}
    Preferences preferences;
    bool read;
};

struct Disk : MemoryFileSystem {
    Disk() { AddFolder("/p"); }
    const std::string path = "/p/Tessarolyne Prefs.txt";
    const std::string bad = "/p/Tessarolyne Prefs.txt.bad";
    Preferences preferences;

    PreferencesOutcome Read() { return ReadPreferencesFile(At("/p"), {}, preferences); }
    PreferencesOutcome Read(const std::string& text) {
        AddFile(path, text);
        return Read();
    }
};

} // namespace

TEST_CASE("The file has its nineteen lines in order, and every setting comes back from it") {
    CHECK(PreferencesText(EverySettingChanged()) == everySettingChanged);
    Disk disk;
    REQUIRE(disk.Read(everySettingChanged) == PreferencesOutcome::Read);
    auto expected = EverySettingChanged();
    expected.winMain = {-7, 38, 0, 0};
    CHECK(disk.preferences == expected);
}

TEST_CASE("A value with a line end is written empty, so that no file name sets a setting") {
    for (const char* name : {"Root:a\nMajuscule :@: True", "Root:a\rMajuscule :@: True"}) {
        Preferences preferences;
        preferences.fichNbPrems = name;
        Disk disk;
        CHECK(disk.Read(PreferencesText(preferences)) == PreferencesOutcome::Read);
        CHECK(disk.preferences == Preferences());
    }
    Preferences longWord;
    longWord.monnaie = std::string(longestPreferencesValue, 'x');
    longWord.centime = std::string(longestPreferencesValue + 1, 'x');
    const auto text = PreferencesText(longWord);
    CHECK(text.find("\nMonnaie :@: " + longWord.monnaie + "\nCentime :@: \n") != text.npos);
}

TEST_CASE("Lines count in any order, the later of two wins, and what isn't known says nothing") {
    const After after({"Base Dest :@: 3", "Unknown :@: 1", "", " :@: True", "Base Org:@: 9",
        " Base Org :@: 9", "Base Dest :@: 4", "Majuscule :@: True", "majuscule :@: TRUE",
        "Format Auto :@: yes", "Trait d'union :@: True ", "Deja Envoye Don 04 :@: True"});
    Preferences expected;
    expected.baseDest = 4;
    expected.majuscule = true;
    expected.formatAuto = false;
    CHECK(after.read);
    CHECK(after.preferences == expected);
}

TEST_CASE("A number is the one at the start of its text, held within its type") {
    const auto perLine = [](const std::string& value) {
        return After({"Nbre Nb Prem par Lignes :@: " + value}).preferences.nbreNbPparLigne;
    };
    CHECK(perLine("  -3.9 x") == -3);
    CHECK(perLine("32768") == 32767);
    CHECK(perLine("-99999999999999999999999999") == -32768);
    using Rectangle = std::array<std::int16_t, 4>;
    const auto list = [](const std::string& value) {
        return After({"Fenetre WinNbres_1ers :@: " + value}).preferences.winNBP;
    };
    CHECK(list("1,,99999") == Rectangle{1, 0, 32767, 0});
    const std::array<int, 4> far = {2147483647, -2147483647 - 1, 0, 0};
    CHECK(After({"Fenetre WinMain :@: 4294967296,-4294967296,7,8"}).preferences.winMain == far);
}

TEST_CASE(
    "A date that is none, or an index that its control doesn't have, fails with the lines before it done") {
    for (const char* line :
        {"Date Launch :@: ", "Date Launch :@: 2026-02-30 00:00:00", "Base Org :@: 35", "Base Org :@: -1",
            "Base Dest :@: 99999999999", "Nbre Base 09AZ :@: 2", "Nbre Base 09AZ :@: -1"}) {
        CAPTURE(line);
        const After after({"Base Org :@: 5", "Base Dest :@: 6", line, "Majuscule :@: True"});
        Preferences expected;
        expected.baseOrg = 5;
        expected.baseDest = 6;
        CHECK_FALSE(after.read);
        CHECK(after.preferences == expected);
    }
}

TEST_CASE("Bytes that aren't UTF-8 are replaced in a word and kept in a path") {
    const After after({"Monnaie :@: caf\xE9", "Fichier Nbres 1ers :@: Root:caf\xE9"});
    CHECK(after.preferences.monnaie == "caf\uFFFD");
    CHECK(after.preferences.fichNbPrems == "Root:caf\xE9");
}

TEST_CASE("A file that isn't there is missing, one that can't be read or is far too long has failed") {
    Disk disk;
    CHECK(disk.Read() == PreferencesOutcome::Missing);
    CHECK(disk.Read("\xEF\xBB\xBF"
                    "Base Org :@: 5\r\nBase Dest :@: 6\rMajuscule :@: True") == PreferencesOutcome::Read);
    CHECK(disk.preferences.baseOrg == 5);
    CHECK(disk.preferences.baseDest == 6);
    CHECK(disk.preferences.majuscule);

    const auto before = disk.preferences;
    for (const std::string piece : {"x", "\n", "Base Org :@: 7\n"}) {
        std::string text;
        while (text.size() <= longestPreferencesFile) {
            text += piece;
        }
        CHECK(disk.Read(text) == PreferencesOutcome::Failed);
    }
    disk.unreadable = {disk.path};
    CHECK(disk.Read("Base Org :@: 7") == PreferencesOutcome::Failed);
    disk.unreadable.clear();
    disk.AddLink(disk.path, "/none");
    CHECK(disk.Read() == PreferencesOutcome::Failed);
    CHECK(disk.preferences == before);
}

TEST_CASE(
    "A file whose reading failed is kept before another replaces it, and without that nothing is replaced") {
    Disk disk;
    REQUIRE(disk.Read("Base Org :@: 99") == PreferencesOutcome::Failed);
    disk.unwritable = {disk.bad};
    CHECK_THROWS_AS(WritePreferencesFile(disk.At("/p"), {}, true), IOException);
    CHECK(disk.entries[disk.path].content == "Base Org :@: 99");
    disk.unwritable.clear();
    WritePreferencesFile(disk.At("/p"), {}, true);
    CHECK(disk.entries[disk.bad].content == "Base Org :@: 99");
    CHECK(disk.entries[disk.path].content == PreferencesText({}));

    WritePreferencesFile(disk.At("/p"), EverySettingChanged(), false);
    CHECK(disk.entries[disk.bad].content == "Base Org :@: 99");
}

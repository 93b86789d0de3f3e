#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string path = "/home/user/primes.txt";
const std::string sixPrimes = "2\t3\t5\t7\t11\t13\n";

struct Binding : TestWorld {
    explicit Binding(bool bound) {
        files.AddFile(path, sixPrimes);
        if (bound) {
            Bound() = files.At(path);
        }
        Main().BevelButtonListe.UserPressed();
    }

    std::optional<FolderItem>& Bound() { return program->app.FichNbPrems; }
    std::string Caption() { return program->winNbresPremiers().PushButtonFichier.Caption; }
    // A chooser gives that path, or is cancelled without one.
    void Click(bool option, bool shift, const std::string& chosen) {
        desktop.option = option;
        desktop.shift = shift;
        if (!option) {
            dialogs.ExpectFile(chosen.empty() ? std::nullopt : std::optional(files.At(chosen)));
        }
        program->winNbresPremiers().PushButtonFichier.UserPressed();
    }
};

} // namespace

TEST_CASE("The binding, Option and Shift decide what a click does") {
    for (int keys = 0; keys < 8; ++keys) {
        const bool bound = (keys & 1) != 0;
        const bool option = (keys & 2) != 0;
        const bool shift = (keys & 4) != 0;
        CAPTURE(keys);
        Binding world(bound);
        const bool load = bound != shift;
        const std::string chosen = load ? path : "/home/user/new.txt";
        world.Click(option, shift, chosen);
        if (option) {
            CHECK(world.desktop.opened.size() == (bound ? 1U : 0U));
            CHECK(world.sounds.beeps == (bound ? 0 : 1));
            CHECK(world.Bound().has_value() == bound);
            continue;
        }
        CHECK(world.dialogs.fileDialogs.back().prompt ==
              (load ? Localisation::Txt_SelectFichierNbPrem() : Localisation::Txt_SelectDossSauv()));
        CHECK(world.Bound() == world.files.At(chosen));
        CHECK(world.Caption() == "Changer Fichier");
        CHECK(world.Main().primeFile.Nbres_Premiers.Back() == (load ? 13 : 7));
        CHECK(world.files.entries.at(chosen).content.starts_with(load ? "2\t3" : "Nombre de"));
    }
}

TEST_CASE("A cancelled chooser asks what becomes of a bound file, and is silent without one") {
    Binding unbound(true);
    unbound.files.entries.erase(path); // as good as none
    unbound.Click(false, false, path);
    CHECK(unbound.files.entries.at(path).content.starts_with("Nombre de Nombres Premiers : 4\n"));
    unbound.Bound().reset();
    unbound.Click(false, true, "");
    CHECK(unbound.dialogs.asked.empty());

    for (const DialogButton answer : {DialogButton::Action, DialogButton::Cancel, DialogButton::None}) {
        Binding world(true);
        world.dialogs.Expect(answer);
        world.Click(false, false, "");
        CHECK(world.Bound().has_value() == (answer != DialogButton::Cancel));
        CHECK(world.Caption() == (answer == DialogButton::Cancel ? "Sauver Fichier" : "Changer Fichier"));
        CHECK(world.Main().primeFile.Nbres_Premiers.Back() == 7);
    }
}

TEST_CASE(
    "A file that can't be replaced, or found again at the next start, is told and counts as cancelled") {
    Binding locked(false);
    locked.files.unwritable.insert(path);
    locked.dialogs.Expect(DialogButton::Action);
    locked.Click(false, false, path);
    CHECK(locked.dialogs.asked.at(0).message == "Remplacement impossible !");
    CHECK_FALSE(locked.Bound().has_value());
    Binding fewer(true); // never read, and holds six primes to the table's four
    fewer.dialogs.Expect(DialogButton::Action);
    fewer.Click(false, true, path);
    CHECK(fewer.dialogs.asked.at(0).message == Localisation::Txt_FichAPlusDeNb1ers());
    CHECK(fewer.files.entries.at(path).content == sixPrimes);

    for (const bool load : {false, true}) {
        for (const char* name :
            {"/home/user/two\nlines.txt", "/home/user/two\rlines/primes.txt", "/home/user/link"}) {
            Binding world(false);
            world.files.AddFile("/home/user/two\nlines.txt", sixPrimes);
            world.files.AddLink("/home/user/link", "/home/user/two\nlines.txt");
            world.dialogs.Expect(DialogButton::Action);
            world.Click(false, load, name);
            CHECK(world.dialogs.asked.at(0).message == Localisation::Txt_FichNomSurLignes());
            CHECK_FALSE(world.Bound().has_value());
            CHECK(world.files.entries.at("/home/user/two\nlines.txt").content == sixPrimes);
        }
    }
}

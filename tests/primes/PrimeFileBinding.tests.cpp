#include "platform/MenuBar.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string path = "/home/user/primes.txt";

struct Binding {
    explicit Binding(bool bound) {
        world.files.AddFile(path, "2\t3\t5\t7\t11\t13\n");
        if (bound) {
            world.program->app.FichNbPrems = Item(path);
        }
        world.Main().BevelButtonListe.UserPressed();
    }

    std::optional<FolderItem> Item(const std::string& place) {
        return FolderItem::FromNativePath(world.files, place);
    }
    WinNbresPremiers& List() { return world.program->winNbresPremiers(); }
    std::optional<FolderItem>& Bound() { return world.program->app.FichNbPrems; }
    void Click(bool option, bool shift) {
        world.desktop.option = option;
        world.desktop.shift = shift;
        List().PushButtonFichier.UserPressed();
    }

    TestWorld world;
};

} // namespace

TEST_CASE("The binding, Option and Shift decide what a click does") {
    for (const bool bound : {false, true}) {
        for (const bool option : {false, true}) {
            for (const bool shift : {false, true}) {
                CAPTURE(bound);
                CAPTURE(option);
                CAPTURE(shift);
                Binding binding(bound);
                const bool load = bound != shift;
                if (!option) {
                    binding.world.dialogs.ExpectFile(binding.Item(path));
                }
                const int beeps = binding.world.sounds.beeps;
                binding.Click(option, shift);
                if (option) {
                    CHECK(binding.world.desktop.opened.size() == (bound ? 1U : 0U));
                    CHECK(binding.world.sounds.beeps == beeps + (bound ? 0 : 1));
                    CHECK(binding.Bound().has_value() == bound);
                    continue;
                }
                CHECK(binding.world.dialogs.fileDialogs.back().prompt ==
                      (load ? "Sélectionner le Fichier des Nombres Premiers :"
                            : "Sélectionner le dossier de sauvegarde :"));
                CHECK(binding.Bound() == binding.Item(path));
                CHECK(binding.List().PushButtonFichier.Caption() == "Changer Fichier");
                CHECK(binding.world.Main().Nbres_Premiers.Back() == (load ? 13 : 7));
                CHECK(binding.world.files.entries.at(path).content.starts_with(load ? "2\t3" : "Nombre de"));
            }
        }
    }
}

TEST_CASE("A cancelled chooser asks what becomes of a bound file, and is silent without one") {
    Binding unbound(false);
    unbound.world.dialogs.ExpectFile(std::nullopt);
    unbound.Click(false, false);
    CHECK(unbound.world.dialogs.asked.empty());

    for (const DialogButton answer : {DialogButton::Action, DialogButton::Cancel, DialogButton::None}) {
        Binding binding(true);
        binding.world.dialogs.ExpectFile(std::nullopt);
        binding.world.dialogs.Expect(answer);
        binding.Click(false, false);
        CHECK(binding.Bound().has_value() == (answer != DialogButton::Cancel));
        CHECK(binding.List().PushButtonFichier.Caption() ==
              (answer == DialogButton::Cancel ? "Sauver Fichier" : "Changer Fichier"));
        CHECK(binding.world.Main().Nbres_Premiers.Back() == 7);
    }
}

TEST_CASE("A file that can't be replaced is told, costs nothing, and counts as cancelled") {
    Binding binding(false);
    binding.world.files.unwritable.insert(path);
    binding.world.dialogs.ExpectFile(binding.Item(path));
    binding.world.dialogs.Expect(DialogButton::Action);
    binding.Click(false, false);
    CHECK(binding.world.dialogs.asked.at(0).message == "Remplacement impossible !");
    CHECK_FALSE(binding.Bound().has_value());
    CHECK(binding.world.files.entries.at(path).content == "2\t3\t5\t7\t11\t13\n");
}

TEST_CASE("A bound file that has vanished counts as none, and a click offers to save") {
    Binding binding(true);
    binding.world.files.entries.erase(path);
    binding.world.dialogs.ExpectFile(binding.Item(path));
    binding.Click(false, false);
    CHECK(binding.world.files.entries.at(path).content.starts_with("Nombre de Nombres Premiers : 4\n"));
}

TEST_CASE("The menu commands open the list and work with a file bound and without") {
    for (const bool bound : {false, true}) {
        Binding binding(bound);
        binding.world.Main().BevelButtonListe.UserPressed();
        binding.world.loop.Advance(1);
        const MenuBar& menus = *binding.world.program->app.GetMenuBar();
        binding.world.dialogs.ExpectFile(binding.Item(path));
        menus.Find("FichChoixFichNbP")->UserChose(binding.world.program->app);
        CHECK(binding.world.Main().BevelButtonListe.Value());
        CHECK(binding.world.Main().Nbres_Premiers.Back() == 13);
        binding.world.dialogs.ExpectFile(binding.Item("/home/user/new.txt"));
        menus.Find("FichSauvFichNbP")->UserChose(binding.world.program->app);
        CHECK(binding.world.files.entries.at("/home/user/new.txt").content ==
              "Nombre de Nombres Premiers : 6\n2\t3\t5\t7\t11\t13\n");
    }
}

#pragma once

#include "platform/FolderItem.h"
#include "primes/engine/PrimeFile.h"
#include "primes/engine/PrimeTable.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tessarolyne {

class App;
class Fncts;
class Program;

// The table of primes and the text file that is bound to it: how the user binds, replaces, opens and releases
// that, and how the two differ.
class PrimeFileBinding {
public:
    explicit PrimeFileBinding(Program& program);

    PrimeTable Nbres_Premiers;         // rising from 2
    std::uint32_t Nb_NbrePcharg = 0;   // how many of its entries agree with the file
    BoundFile PrimeFile;               // what is known of the file's content
    std::int16_t NbreNbPparLigne = 10; // primes per line in the file

    // Asks for a file, and binds it; nil if none was chosen.
    std::optional<FolderItem> ChooseForLoad();
    void Load();
    std::optional<FolderItem> ChooseAndSave();
    // Without a window, since nobody is there to see it or to read that it failed; the old file is whole
    // then.
    void SaveQuietly();
    void OpenBoundFile();
    // After a choice that was cancelled.
    void AskToKeepFile();

    // How many primes the table holds beyond its file. Those with which every table begins are none beside a
    // file that could not be read.
    std::int32_t NewPrimes() const;
    // A further line, if a quit would drop primes that are in no file, as it does without asking.
    std::string TextOfUnkeptPrimes() const;

private:
    bool CanBeKept(const FolderItem& item);

    Program& program_;
    App& app_;
    Fncts& fncts_;
};

} // namespace tessarolyne

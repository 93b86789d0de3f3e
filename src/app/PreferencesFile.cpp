#include "app/PreferencesFile.h"

#include "platform/Numbers.h"
#include "platform/Text.h"
#include "ui/FileItems.h"

#include <algorithm>

namespace tessarolyne {

namespace {

// Between a key and its value.
constexpr std::string_view separator = " :@: ";

// Stands in the file only where it is switched off, so that all others keep their 19 lines.
constexpr std::string_view keyOfAnnouncements = "Annonces";

// How many rows and buttons the controls have into which indexes are read.
constexpr int baseRows = 35;
constexpr int radioButtons = 2;

// A text of which every byte counts.
struct Path {};

// Gives `visit` each setting with its key, in the order of the file. The keys are the file's own and don't
// follow the language of the interface.
template <class AnyPreferences, class Visitor>
void VisitSettings(AnyPreferences& preferences, const Visitor& visit) {
    visit("Date Launch", preferences.dateLaunch);
    visit("Deja Envoye Don 03", preferences.dejaDonne);
    visit("Auto Check Update", preferences.autoCheckUpdt);
    visit("Fenetre WinMain", preferences.winMain);
    visit("Majuscule", preferences.majuscule);
    visit("Fenetre WinNbres_1ers", preferences.winNBP);
    visit("Liste Nb1ers Visible", preferences.listeVisible);
    visit("Fichier Nbres 1ers", preferences.fichNbPrems, Path());
    visit("Nbre Nb Prem par Lignes", preferences.nbreNbPparLigne);
    visit("Base Org", preferences.baseOrg, baseRows);
    visit("Base Dest", preferences.baseDest, baseRows);
    visit("Nbre Base 09AZ", preferences.radio09AZ, radioButtons);
    visit("Format Auto", preferences.formatAuto);
    visit("Trait d'union", preferences.trUnion);
    visit("Langue Nombre Lettre", preferences.langue);
    visit("Monnaie", preferences.monnaie);
    visit("Centime", preferences.centime);
    visit("Monnaies", preferences.monnaies);
    visit("Centimes", preferences.centimes);
}

std::string TextOf(const Date& date) {
    return date.SQLDateTime();
}

std::string TextOf(bool value) {
    return value ? "True" : "False";
}

std::string TextOf(int value) {
    return std::to_string(value);
}

template <class Integer>
std::string TextOf(const std::array<Integer, 4>& rectangle) {
    std::string text = TextOf(rectangle[0]);
    for (std::size_t i = 1; i < rectangle.size(); ++i) {
        text += "," + TextOf(rectangle[i]);
    }
    return text;
}

std::string TextOf(const std::string& text) {
    const bool isOneLine =
        text.size() <= longestPreferencesValue && text.find_first_of("\r\n") == std::string::npos;
    return isOneLine ? text : "";
}

bool SameIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && Uppercase(a) == Uppercase(b);
}

bool Take(std::string_view value, Date& date) {
    const auto read = Date::FromSQLDateTime(value);
    date = read.value_or(date);
    return read.has_value();
}

bool Take(std::string_view value, bool& setting) {
    setting = SameIgnoringCase(value, "True");
    return true;
}

bool Take(std::string_view value, int& number) {
    number = ToInt32(Val(value));
    return true;
}

bool Take(std::string_view value, std::int16_t& number) {
    number = ToInt16(Val(value));
    return true;
}

bool Take(std::string_view value, int& index, int count) {
    int read = 0;
    Take(value, read);
    const bool isThere = read >= 0 && read < count;
    index = isThere ? read : index;
    return isThere;
}

// The first comma fields of the text, a missing one being 0.
template <class Integer>
bool Take(std::string_view value, std::array<Integer, 4>& rectangle) {
    for (Integer& number : rectangle) {
        const auto field = value.substr(0, value.find(','));
        Take(field, number);
        value.remove_prefix(std::min(value.size(), field.size() + 1));
    }
    return true;
}

bool Take(std::string_view value, std::string& text) {
    text = OneLine(WithoutInvalidUtf8(value));
    return true;
}

bool Take(std::string_view value, std::string& text, Path) {
    text = value;
    return true;
}

bool TakeLine(std::string_view line, Preferences& preferences) {
    const auto place = std::min(line.find(separator), line.size());
    const auto key = line.substr(0, place);
    const auto value = line.substr(std::min(place + separator.size(), line.size()));
    bool good = true;
    const auto take = [&](std::string_view name, auto& setting, auto... limit) {
        if (SameIgnoringCase(key, name)) {
            good = Take(value, setting, limit...);
        }
    };
    if (place < line.size()) {
        VisitSettings(preferences, take);
        take(keyOfAnnouncements, preferences.annonces);
    }
    return good;
}

FolderItem ItemIn(const FolderItem& folder, std::string_view name) {
    return folder.TrueChild(name).value();
}

std::string ReadWhole(const FolderItem& item) {
    const auto file = item.Files().OpenForReading(item.NativePath());
    std::string text(longestPreferencesFile + 1, '\0');
    std::size_t size = 0;
    for (std::size_t read = 1; read > 0 && size < text.size(); size += read) {
        read = file->Read(std::span(text).subspan(size));
    }
    if (size == text.size()) {
        throw IOException("too long for a preferences file");
    }
    text.resize(size);
    return text;
}

} // namespace

std::string PreferencesText(const Preferences& preferences) {
    std::string text;
    const auto add = [&text](std::string_view key, const auto& setting, auto...) {
        text.append(key).append(separator).append(TextOf(setting)).append("\n");
    };
    VisitSettings(preferences, add);
    if (!preferences.annonces) {
        add(keyOfAnnouncements, preferences.annonces);
    }
    return text;
}

bool ReadPreferences(std::string_view text, Preferences& preferences) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    text.remove_prefix(text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0);
    const std::string lines = ReplaceLineEndings(text, "\n");
    return std::ranges::all_of(
        Split(lines, "\n"), [&](std::string_view line) { return TakeLine(line, preferences); });
}

PreferencesOutcome ReadPreferencesFile(const FolderItem& folder, Preferences& preferences) {
    const auto item = ItemIn(folder, preferencesFileName);
    if (!item.Exists()) {
        return PreferencesOutcome::Missing;
    }
    try {
        return ReadPreferences(ReadWhole(item), preferences) ? PreferencesOutcome::Read
                                                             : PreferencesOutcome::Failed;
    } catch (const IOException&) {
        return PreferencesOutcome::Failed;
    }
}

void WritePreferencesFile(const FolderItem& folder, const Preferences& preferences, bool keepOld) {
    const auto item = ItemIn(folder, preferencesFileName);
    if (keepOld && PasNil_Existe_Alias(item, true)) {
        const auto copy = ItemIn(folder, badPreferencesFileName);
        folder.Files().KeepAs(item.NativePath(), copy.NativePath());
    }
    const auto file = folder.Files().CreateSafely(item.NativePath(), LinkPolicy::ReplaceTarget);
    file->Write(PreferencesText(preferences));
    file->Commit();
}

} // namespace tessarolyne

#include "app/PreferencesText.h"

#include "platform/Numbers.h"
#include "platform/Text.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <cstddef>

namespace tessarolyne {

namespace {

namespace keys = PreferencesKeys;

void AppendLine(std::string& text, std::string_view key, std::string_view value) {
    const bool isOneLine =
        value.size() <= longestPreferencesValue && value.find_first_of("\r\n") == std::string_view::npos;
    text.append(key).append(keys::separator).append(isOneLine ? value : std::string_view()).append("\n");
}

std::string_view TextOf(bool value) {
    return value ? "True" : "False";
}

template <class Rectangle>
std::string TextOf(const Rectangle& rectangle) {
    std::string text;
    for (const auto value : rectangle) {
        text.append(text.empty() ? "" : ",").append(std::to_string(value));
    }
    return text;
}

bool SameIgnoringCase(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) { return lower(x) == lower(y); });
}

bool Truth(std::string_view value) {
    return SameIgnoringCase(value, "True");
}

// The number at the start of the text, truncated, 0 if there is none, held within its type.
template <class Integer>
Integer Number(std::string_view text) {
    if constexpr (sizeof(Integer) == sizeof(std::int16_t)) {
        return ToInt16(Val(text));
    } else {
        return ToInt32(Val(text));
    }
}

// The first `count` comma fields of the text, a missing one being 0.
template <class Rectangle>
void ReadFields(std::string_view text, std::size_t count, Rectangle& rectangle) {
    for (std::size_t i = 0; i < count; ++i) {
        const auto field = text.substr(0, text.find(','));
        rectangle[i] = Number<typename Rectangle::value_type>(field);
        text.remove_prefix(std::min(text.size(), field.size() + 1));
    }
}

bool ReadDate(std::string_view value, Date& date) {
    const auto read = Date::FromSQLDateTime(value);
    date = read.value_or(date);
    return read.has_value();
}

bool ReadIndex(std::string_view value, int count, int& index) {
    const int read = Number<int>(value);
    if (read < 0 || read >= count) {
        return false;
    }
    index = read;
    return true;
}

// The value of a setting that can be read from any text whatever; false if the key isn't such a setting's.
bool ReadSwitch(std::string_view key, std::string_view value, Preferences& preferences) {
    const std::pair<std::string_view, bool*> switches[] = {
        {keys::dejaDonne, &preferences.dejaDonne},
        {keys::autoCheckUpdt, &preferences.autoCheckUpdt},
        {keys::majuscule, &preferences.majuscule},
        {keys::listeVisible, &preferences.listeVisible},
        {keys::formatAuto, &preferences.formatAuto},
        {keys::trUnion, &preferences.trUnion},
        {keys::annonces, &preferences.annonces},
    };
    for (const auto& [name, place] : switches) {
        if (SameIgnoringCase(key, name)) {
            *place = Truth(value);
            return true;
        }
    }
    return false;
}

bool ReadWord(std::string_view key, std::string_view value, Preferences& preferences) {
    const std::pair<std::string_view, std::string*> words[] = {
        {keys::langue, &preferences.langue},
        {keys::monnaie, &preferences.monnaie},
        {keys::centime, &preferences.centime},
        {keys::monnaies, &preferences.monnaies},
        {keys::centimes, &preferences.centimes},
    };
    for (const auto& [name, place] : words) {
        if (SameIgnoringCase(key, name)) {
            *place = OneLine(WithoutInvalidUtf8(value));
            return true;
        }
    }
    return false;
}

} // namespace

std::string PreferencesText(const Preferences& preferences) {
    std::string text;
    AppendLine(text, keys::dateLaunch, preferences.dateLaunch.SQLDateTime());
    AppendLine(text, keys::dejaDonne, TextOf(preferences.dejaDonne));
    AppendLine(text, keys::autoCheckUpdt, TextOf(preferences.autoCheckUpdt));
    AppendLine(text, keys::winMain, TextOf(preferences.winMain));
    AppendLine(text, keys::majuscule, TextOf(preferences.majuscule));
    AppendLine(text, keys::winNBP, TextOf(preferences.winNBP));
    AppendLine(text, keys::listeVisible, TextOf(preferences.listeVisible));
    AppendLine(text, keys::fichNbPrems, preferences.fichNbPrems);
    AppendLine(text, keys::nbreNbPparLigne, std::to_string(preferences.nbreNbPparLigne));
    AppendLine(text, keys::baseOrg, std::to_string(preferences.baseOrg));
    AppendLine(text, keys::baseDest, std::to_string(preferences.baseDest));
    AppendLine(text, keys::radio09AZ, std::to_string(preferences.radio09AZ));
    AppendLine(text, keys::formatAuto, TextOf(preferences.formatAuto));
    AppendLine(text, keys::trUnion, TextOf(preferences.trUnion));
    AppendLine(text, keys::langue, preferences.langue);
    AppendLine(text, keys::monnaie, preferences.monnaie);
    AppendLine(text, keys::centime, preferences.centime);
    AppendLine(text, keys::monnaies, preferences.monnaies);
    AppendLine(text, keys::centimes, preferences.centimes);
    if (!preferences.annonces) {
        AppendLine(text, keys::annonces, TextOf(false));
    }
    return text;
}

std::pair<std::string_view, std::string_view> SplitPreferencesLine(std::string_view line) {
    const auto place = line.find(keys::separator);
    if (place == std::string_view::npos) {
        return {};
    }
    return {line.substr(0, place), line.substr(place + keys::separator.size())};
}

bool ApplyPreferencesLine(std::string_view line, const PreferencesLimits& limits, Preferences& preferences) {
    const auto [key, value] = SplitPreferencesLine(line);
    const auto is = [&key = key](std::string_view name) { return SameIgnoringCase(key, name); };
    if (is(keys::dateLaunch)) {
        return ReadDate(value, preferences.dateLaunch);
    }
    if (is(keys::baseOrg)) {
        return ReadIndex(value, limits.baseRows, preferences.baseOrg);
    }
    if (is(keys::baseDest)) {
        return ReadIndex(value, limits.baseRows, preferences.baseDest);
    }
    if (is(keys::radio09AZ)) {
        return ReadIndex(value, limits.radioButtons, preferences.radio09AZ);
    }
    if (is(keys::winMain)) {
        ReadFields(value, 2, preferences.winMain);
    } else if (is(keys::winNBP)) {
        ReadFields(value, 4, preferences.winNBP);
    } else if (is(keys::fichNbPrems)) {
        preferences.fichNbPrems = value;
    } else if (is(keys::nbreNbPparLigne)) {
        preferences.nbreNbPparLigne = Number<std::int16_t>(value);
    } else if (!ReadSwitch(key, value, preferences)) {
        ReadWord(key, value, preferences);
    }
    return true;
}

bool ReadPreferences(
    const std::vector<std::string>& lines, const PreferencesLimits& limits, Preferences& preferences) {
    return std::all_of(lines.begin(), lines.end(),
        [&](const std::string& line) { return ApplyPreferencesLine(line, limits, preferences); });
}

} // namespace tessarolyne

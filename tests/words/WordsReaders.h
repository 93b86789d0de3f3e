#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// Readers that turn words back into a number. They follow the grammar of the language, with a lexicon of
// their own, and are strict: a wrong hyphen, plural mark, "et" or "and" is no number to them. Both read words
// without anything behind them.
namespace tessarolyne::tests {

enum class French { OfFrance, OfSwitzerlandAndBelgium };

std::optional<std::int64_t> ReadFrench(std::string_view words, French variant);
std::optional<std::int64_t> ReadEnglish(std::string_view words);

} // namespace tessarolyne::tests

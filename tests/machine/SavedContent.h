#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

// A text of the given size in which no two places look alike, so that a file made of parts of two saves, or
// of a part of one, is seen.
inline std::string SavedContent(std::size_t size, unsigned seed) {
    std::string text;
    text.reserve(size + 32);
    for (std::size_t i = 0; text.size() < size; ++i) {
        text.append(std::to_string(seed)).append(":").append(std::to_string(i)).append("\n");
    }
    text.resize(size);
    return text;
}

// The writer of this name saves a table of numbers as a prime file.
inline constexpr std::string_view primeFileWriter = "prime-file";
inline constexpr std::size_t primeFileLine = 10;

// Numbers of seven to nine digits, one for ten bytes; tables of two seeds have few in common.
inline std::vector<std::uint64_t> SavedNumbers(std::size_t size, unsigned seed) {
    std::vector<std::uint64_t> numbers(size / primeFileLine);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        numbers[i] = 1'000'001 + 2 * seed * i;
    }
    return numbers;
}

// What the writer is to save: the format spelled out, or the plain text.
inline std::string SavedContent(std::string_view writer, std::size_t size, unsigned seed) {
    if (writer != primeFileWriter) {
        return SavedContent(size, seed);
    }
    const auto numbers = SavedNumbers(size, seed);
    std::string text = "Label : " + std::to_string(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        text.append(i % primeFileLine == 0 ? "\n" : "\t").append(std::to_string(numbers[i]));
    }
    return text + "\n";
}

} // namespace tessarolyne

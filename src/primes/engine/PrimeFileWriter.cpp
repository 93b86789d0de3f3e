#include "platform/Numbers.h"
#include "primes/engine/PrimeFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace tessarolyne {

namespace {

// More than a file keeps back, so that it is written at once.
constexpr std::size_t bufferSize = std::size_t{320} * 1024;
constexpr std::size_t roomForNumber = 32; // what is copied at once ends behind the number

constexpr std::uint64_t lowEnd = 1000; // one step of the leading digits

// "000\t" to "999\t".
using LowDigits = std::array<std::array<char, 4>, lowEnd>;
constexpr LowDigits lowDigits = [] {
    LowDigits table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto digit = [](std::size_t value) { return static_cast<char>('0' + value % 10); };
        table[i] = {digit(i / 100), digit(i / 10), digit(i), '\t'};
    }
    return table;
}();

// Of one number to the next only the last three digits change, but for one in some fifty: so the others are
// kept as text and copied, and the three come from a table. A number without others, or one that a double
// doesn't hold exactly, is written as that double.
class NumberText {
public:
    // Writes the number and a tab, and gives the place behind it.
    char* Put(char* out, std::uint64_t value) {
        if (value - base_ >= span_) {
            Lead(value);
        }
        if (span_ == 0) {
            const std::string text = Format(static_cast<double>(value), plainMask) + '\t';
            return std::copy(text.begin(), text.end(), out);
        }
        std::memcpy(out, leading_.data(), leading_.size());
        out += leadingSize_;
        std::memcpy(out, lowDigits[static_cast<std::size_t>(value - base_)].data(), 4);
        return out + 4;
    }

private:
    void Lead(std::uint64_t value) {
        constexpr std::uint64_t exactEnd = (std::uint64_t{1} << 53U) - lowEnd;
        span_ = value >= lowEnd && value < exactEnd ? lowEnd : 0;
        base_ = value - value % lowEnd;
        const auto end = std::to_chars(leading_.begin(), leading_.end(), value / lowEnd).ptr;
        leadingSize_ = static_cast<std::size_t>(end - leading_.begin());
    }

    std::array<char, 16> leading_{};
    std::size_t leadingSize_ = 0;
    std::uint64_t base_ = 0;
    std::uint64_t span_ = 0; // numbers from base_ on that have these leading digits
};

} // namespace

std::int64_t ProgressStep(std::int64_t maximum) {
    constexpr std::int64_t steps = 500;
    return maximum / steps;
}

void WritePrimeFile(const PrimeTable& table, std::string_view label, int perLine, OutputFile& file,
    PrimeFileProgress& progress) {
    const std::int64_t count = table.Size();
    progress.Expect(count);
    file.Write(std::string(label) + " : " + Str(count) + "\n");
    if (count == 0) {
        return;
    }
    const std::int64_t step = std::max<std::int64_t>(ProgressStep(count), 1);
    const std::int64_t lineLength = perLine != 0 ? std::abs(std::int64_t{perLine}) : count;
    std::int64_t nextStep = step;
    std::int64_t lineEnd = std::min(lineLength, count) - 1; // the index of its last number
    // Not zeroed: a short table touches only what it fills.
    const auto buffer = std::make_unique_for_overwrite<char[]>(bufferSize);
    char* out = buffer.get();
    NumberText text;
    PrimeTable::Cursor number(table, 0);
    do {
        const std::int64_t index = number.Rank();
        out = text.Put(out, number.Value());
        if (index == lineEnd) {
            out[-1] = '\n';
            lineEnd = std::min(lineEnd + lineLength, count - 1);
        }
        if (out + roomForNumber > buffer.get() + bufferSize || index == count - 1) {
            file.Write({buffer.get(), out});
            out = buffer.get();
            progress.Work();
        }
        if (index == nextStep) {
            progress.Reach(index);
            nextStep += step;
        }
    } while (number.Next());
}

} // namespace tessarolyne

#include "platform/Numbers.h"
#include "primes/engine/PrimeFile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>
#include <string>

namespace tessarolyne {

namespace {

// More than a file keeps back, so that it is written at once.
constexpr std::size_t bufferSize = std::size_t{320} * 1024;
constexpr std::size_t burstSize = 256;
constexpr std::size_t longestNumber = 20;
constexpr std::size_t burstRoom = burstSize * (longestNumber + 1) + 16;

constexpr std::uint64_t lowEnd = 1000; // one step of the leading digits
constexpr std::uint64_t exactEnd = std::uint64_t{1} << 53U;

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

// A number in a file has the exactness of a double.
char* PutNumber(char* out, std::uint64_t value) {
    if (value < exactEnd) {
        return std::to_chars(out, out + longestNumber, value).ptr;
    }
    const std::string text = Format(static_cast<double>(value), plainMask);
    return std::copy(text.begin(), text.end(), out);
}

// Turns numbers into text. Of one number to the next only the last three digits change, but for one in some
// fifty: so the others are kept as text and copied, and the three come from a table.
class NumberText {
public:
    NumberText(OutputFile& file, PrimeFileProgress& progress, std::int64_t lineLength)
        : file_(file), progress_(progress), lineLength_(lineLength), leftInLine_(lineLength) {}

    // Each number with what parts it from the next. At most burstSize numbers.
    void Append(std::span<const std::uint64_t> numbers);
    // Ends the line of the last number.
    void EndLine() { buffer_[used_ - 1] = '\n'; }
    void Append(std::string_view text);
    void Flush();

private:
    using Leading = std::array<char, 16>;

    void MakeRoom() {
        if (used_ + burstRoom > bufferSize) {
            Flush();
        }
    }
    std::uint64_t LeadWith(std::uint64_t value);

    OutputFile& file_;
    PrimeFileProgress& progress_;
    const std::int64_t lineLength_;
    std::int64_t leftInLine_;
    // Not zeroed: a short table touches only what it fills.
    std::unique_ptr<char[]> buffer_ = std::make_unique_for_overwrite<char[]>(bufferSize);
    std::size_t used_ = 0;
    Leading leading_{};
    std::size_t leadingSize_ = 0;
    std::uint64_t base_ = 0;
    std::uint64_t span_ = 0; // numbers from base_ on that have these leading digits
};

// Gives the span, 0 for numbers that have no leading digits, or too many.
std::uint64_t NumberText::LeadWith(std::uint64_t value) {
    constexpr std::uint64_t end = 1'000'000'000'000'000;
    span_ = 0;
    if (value < lowEnd || value >= end) {
        return 0;
    }
    base_ = value - value % lowEnd;
    span_ = lowEnd;
    const auto written = std::to_chars(leading_.data(), leading_.data() + leading_.size(), value / lowEnd);
    leadingSize_ = static_cast<std::size_t>(written.ptr - leading_.data());
    return span_;
}

void NumberText::Append(std::span<const std::uint64_t> numbers) {
    MakeRoom();
    char* out = buffer_.get() + used_;
    // Copies, which the characters written can't be suspected to change.
    Leading leading = leading_;
    std::size_t leadingSize = leadingSize_;
    std::uint64_t base = base_;
    std::uint64_t span = span_;
    std::int64_t left = leftInLine_;
    for (const std::uint64_t value : numbers) {
        if (value - base >= span) {
            span = LeadWith(value);
            leading = leading_;
            leadingSize = leadingSize_;
            base = base_;
        }
        if (span != 0) {
            std::memcpy(out, leading.data(), leading.size());
            out += leadingSize;
            std::memcpy(out, lowDigits[static_cast<std::size_t>(value - base)].data(), 4);
            out += 4;
        } else {
            out = PutNumber(out, value);
            *out++ = '\t';
        }
        if (--left == 0) {
            out[-1] = '\n';
            left = lineLength_;
        }
    }
    leftInLine_ = left;
    used_ = static_cast<std::size_t>(out - buffer_.get());
}

void NumberText::Append(std::string_view text) {
    Flush();
    file_.Write(text);
}

void NumberText::Flush() {
    if (used_ > 0) {
        file_.Write(std::string_view(buffer_.get(), used_));
        used_ = 0;
        progress_.Work();
    }
}

// Tells of indexes as they are passed.
class Milestones {
public:
    Milestones(std::int64_t maximum, PrimeFileProgress& progress)
        : progress_(progress), step_(std::max<std::int64_t>(ProgressStep(maximum), 1)), next_(step_) {}

    // How many numbers, with the one at `index` the first, lead up to the next milestone, it included.
    std::size_t Distance(std::int64_t index) const { return static_cast<std::size_t>(next_ - index + 1); }
    void Written(std::int64_t index) {
        if (index == next_) {
            progress_.Reach(index);
            next_ += step_;
        }
    }

private:
    PrimeFileProgress& progress_;
    std::int64_t step_;
    std::int64_t next_;
};

} // namespace

std::int64_t ProgressStep(std::int64_t maximum) {
    constexpr std::int64_t steps = 500;
    return maximum / steps;
}

void WritePrimeFile(const PrimeTable& table, std::string_view label, int perLine, OutputFile& file,
    PrimeFileProgress& progress) {
    const std::int32_t count = table.Size();
    progress.Expect(count);
    NumberText text(file, progress, perLine != 0 ? std::abs(std::int64_t{perLine}) : std::max(count, 1));
    text.Append(std::string(label) + " : " + Str(count) + "\n");
    Milestones milestones(count, progress);
    std::array<std::uint64_t, 16 * burstSize> numbers{};
    for (std::int32_t index = 0; index < count;) {
        std::span<const std::uint64_t> rest(
            numbers.data(), static_cast<std::size_t>(table.CopyTo(index, numbers)));
        while (!rest.empty()) {
            const std::size_t burst = std::min({rest.size(), burstSize, milestones.Distance(index)});
            text.Append(rest.first(burst));
            rest = rest.subspan(burst);
            index += static_cast<std::int32_t>(burst);
            if (index == count) {
                text.EndLine();
            }
            milestones.Written(index - 1);
        }
    }
    text.Flush();
}

} // namespace tessarolyne

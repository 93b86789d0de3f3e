#include "platform/Ascii.h"
#include "platform/IOException.h"
#include "primes/engine/DigitNeighbourhood.h"
#include "primes/engine/FieldValue.h"
#include "primes/engine/PrimeFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <vector>

namespace tessarolyne {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view headerMark = " : ";
constexpr std::string_view lineEnds = "\r\n";
constexpr std::string_view blanks = " \t\r\n";

bool IsLineEnd(char c) {
    return c == '\n' || c == '\r';
}

// Looks for " : " in a line that comes in parts.
class HeaderMark {
public:
    // Where in this part the mark ends, npos if it isn't there yet.
    std::size_t EndIn(std::string_view part) {
        const std::string seam = tail_ + std::string(part.substr(0, headerMark.size() - 1));
        if (const auto at = seam.find(headerMark); at != std::string::npos) {
            return at + headerMark.size() - tail_.size();
        }
        if (const auto at = part.find(headerMark); at != std::string_view::npos) {
            return at + headerMark.size();
        }
        tail_ += part.substr(part.size() - std::min(part.size(), headerMark.size() - 1));
        tail_.erase(0, tail_.size() - std::min(tail_.size(), headerMark.size() - 1));
        return std::string_view::npos;
    }

private:
    std::string tail_;
};

// Takes the numbers one by one and fills the table with them, most of them by half their gap.
class NumberSink {
public:
    NumberSink(PrimeTable& table, PrimeFileProgress& progress) : table_(table), progress_(progress) {}

    void Begin(std::int64_t maximum) {
        progress_.Expect(maximum);
        step_ = ProgressStep(maximum);
    }
    void Add(std::uint64_t value);
    // How many numbers AddHalfGap may be given now.
    std::int64_t Room() const {
        const auto room = static_cast<std::int64_t>(halfGaps_.size() - used_);
        return last_ == 0 ? 0 : milestone_ < index_ ? room : std::min(room, milestone_ - index_);
    }
    std::span<std::uint8_t> Gaps() { return std::span(halfGaps_).subspan(used_); }
    void Took(std::size_t count, std::uint64_t last) {
        used_ += count;
        index_ += static_cast<std::int64_t>(count);
        last_ = last;
    }
    std::uint64_t Last() const { return last_; }
    void Flush();
    // Forgets all that was added.
    void Restart();

private:
    PrimeTable& table_;
    PrimeFileProgress& progress_;
    std::array<std::uint8_t, 4096> halfGaps_{};
    std::size_t used_ = 0;
    std::uint64_t last_ = 0;
    std::int64_t index_ = 0;
    std::int64_t step_ = 0;
    std::int64_t milestone_ = 0; // the next index to be told; once passed, there is none
};

void NumberSink::Add(std::uint64_t value) {
    if (index_ == milestone_) {
        progress_.Reach(index_);
        milestone_ += step_;
    }
    const std::uint64_t halfGapLessOne = HalfGapLessOne(last_, value);
    if (last_ != 0 && halfGapLessOne <= largestHalfGapLessOne) {
        if (used_ == halfGaps_.size()) {
            Flush();
        }
        halfGaps_[used_++] = static_cast<std::uint8_t>(halfGapLessOne + 1);
    } else {
        Flush();
        if (!table_.Append(value)) {
            throw IOException("the table takes no more numbers");
        }
    }
    last_ = value;
    ++index_;
}

void NumberSink::Flush() {
    const std::span<const std::uint8_t> pending(halfGaps_.data(), used_);
    used_ = 0;
    if (!pending.empty() && table_.AppendByHalfGaps(pending) != static_cast<std::int32_t>(pending.size())) {
        throw IOException("the table takes no more numbers");
    }
}

void NumberSink::Restart() {
    table_.Clear();
    used_ = 0;
    last_ = 0;
    index_ = 0;
    milestone_ = 0;
}

// Takes a prime file in pieces of any size.
class Reader {
public:
    Reader(PrimeTable& table, PrimeFileProgress& progress) : sink_(table, progress) {}

    void Take(std::string_view bytes);
    void Finish();
    // Whether there was anything but blanks and a header.
    bool HasText() const { return hasText_; }

private:
    std::string_view TakeFirstLine(std::string_view bytes);
    void BeginHeadless();
    void BeginHeaded();
    void TakeData(const char* at, const char* end);
    const char* TakeNeighbours(const char* at, const char* end);
    const char* TakePlainField(const char* at, const char* end);
    const char* TakeAnyField(const char* at, const char* end);
    void EndField(std::uint64_t value, char ending);

    NumberSink sink_;
    DigitNeighbourhood neighbourhood_;
    bool inFirstLine_ = true;
    bool isHeader_ = false;
    bool hasBegun_ = false;
    bool hasText_ = false;
    HeaderMark headerMark_;
    bool inField_ = false;  // field_ has begun to take one
    bool dropping_ = false; // up to the end of the line
    FieldValue field_;
};

void Reader::Take(std::string_view bytes) {
    if (inFirstLine_) {
        bytes = TakeFirstLine(bytes);
    }
    hasText_ = hasText_ || bytes.find_first_not_of(blanks) != std::string_view::npos;
    TakeData(bytes.data(), bytes.data() + bytes.size());
    sink_.Flush();
}

// A line that is longer than a piece is read as data until the mark turns up in it.
std::string_view Reader::TakeFirstLine(std::string_view bytes) {
    const std::size_t size = std::min(bytes.find_first_of(lineEnds), bytes.size());
    std::string_view line = bytes.substr(0, size);
    inFirstLine_ = size == bytes.size();
    if (!isHeader_) {
        const std::size_t behindMark = headerMark_.EndIn(line);
        if (behindMark == std::string_view::npos) {
            BeginHeadless();
            return bytes;
        }
        isHeader_ = true;
        hasText_ = false;
        inField_ = dropping_ = false;
        neighbourhood_.Leave();
        sink_.Restart();
        field_.Clear();
        line.remove_prefix(behindMark);
    }
    // A line of prose may contain the mark too: in the header of a list there is a number behind it.
    hasText_ =
        hasText_ || std::any_of(line.begin(), line.end(), [](char c) { return c != ' ' && !IsDigit(c); });
    for (const char c : line) {
        field_.Take(c);
    }
    if (!inFirstLine_) {
        BeginHeaded();
    }
    return bytes.substr(size);
}

void Reader::BeginHeadless() {
    if (!hasBegun_) {
        hasBegun_ = true;
        sink_.Begin(headerlessMaximum);
    }
}

void Reader::BeginHeaded() {
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    hasBegun_ = true;
    sink_.Begin(static_cast<std::int64_t>(std::min(field_.Value(), most)));
    field_.Clear();
}

void Reader::TakeData(const char* at, const char* end) {
    while (at != end) {
        if (dropping_) {
            at = std::find_if(at, end, IsLineEnd);
            dropping_ = at == end;
        } else if (inField_) {
            at = TakeAnyField(at, end);
        } else {
            at = TakeNeighbours(at, end);
            const char* const behind = TakePlainField(at, end);
            at = behind != at ? behind : TakeAnyField(at, end);
        }
    }
}

const char* Reader::TakeNeighbours(const char* at, const char* end) {
    if (!neighbourhood_.IsSettled() || end - at <= std::ptrdiff_t{DigitNeighbourhood::readAhead}) {
        return at;
    }
    const auto room = static_cast<std::size_t>(sink_.Room());
    std::uint64_t last = sink_.Last();
    const auto count =
        neighbourhood_.Read(at, end - DigitNeighbourhood::readAhead, sink_.Gaps().first(room), last);
    sink_.Took(count, last);
    return at;
}

// A field of up to 15 digits and nothing else, which a double holds exactly; all in this piece. Gives back
// `at` for any other.
const char* Reader::TakePlainField(const char* at, const char* end) {
    constexpr std::ptrdiff_t mostDigits = 15;
    const char* place = at;
    std::uint64_t value = 0;
    for (; place != end && IsDigit(*place); ++place) {
        if (place - at == mostDigits) {
            return at;
        }
        value = value * 10 + static_cast<std::uint64_t>(*place - '0');
    }
    if (place == at || place == end || !EndsField(*place)) {
        return at;
    }
    if (end - at >= std::ptrdiff_t{DigitNeighbourhood::readAhead}) {
        neighbourhood_.Settle(at, static_cast<std::size_t>(place - at), value);
    }
    EndField(value, *place);
    return place + 1;
}

const char* Reader::TakeAnyField(const char* at, const char* end) {
    inField_ = true;
    for (; at != end; ++at) {
        if (EndsField(*at)) {
            inField_ = false;
            EndField(field_.Value(), *at);
            field_.Clear();
            return at + 1;
        }
        field_.Take(*at);
    }
    return at;
}

void Reader::EndField(std::uint64_t value, char ending) {
    if (value != 0) {
        sink_.Add(value);
    } else {
        dropping_ = !IsLineEnd(ending);
    }
}

void Reader::Finish() {
    if (inFirstLine_ && isHeader_) {
        BeginHeaded();
    } else {
        BeginHeadless();
    }
    if (inField_) {
        EndField(field_.Value(), '\n');
    }
    sink_.Flush();
}

} // namespace

PrimeFileContent ReadPrimeFile(InputFile& file, PrimeTable& table, PrimeFileProgress& progress,
    std::uint64_t mostBytes, std::size_t chunkSize) {
    table.Clear();
    Reader reader(table, progress);
    std::vector<char> chunk(chunkSize);
    for (bool isFirst = true;; isFirst = false) {
        const std::size_t size = file.Read(chunk);
        std::string_view bytes(chunk.data(), size);
        if (isFirst && bytes.starts_with(byteOrderMark)) {
            bytes.remove_prefix(byteOrderMark.size());
        }
        reader.Take(bytes);
        progress.Work();
        if (progress.MustStop()) {
            throw ReadingStopped();
        }
        if (table.Bytes() > mostBytes) {
            throw IOException("no memory for more numbers");
        }
        if (size < chunk.size()) {
            break;
        }
    }
    reader.Finish();
    return BeginsWithFirstPrimes(table) ? PrimeFileContent::Primes
           : reader.HasText()           ? PrimeFileContent::Other
                                        : PrimeFileContent::Nothing;
}

bool BeginsWithFirstPrimes(const PrimeTable& table) {
    constexpr std::array<std::uint64_t, 4> firstPrimes{2, 3, 5, 7};
    std::array<std::uint64_t, 4> first{};
    table.CopyTo(0, first);
    return first == firstPrimes;
}

} // namespace tessarolyne

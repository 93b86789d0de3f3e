#include "platform/FolderItem.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/engine/DigitNeighbourhood.h"
#include "primes/engine/PrimeFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace tessarolyne {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view headerMark = " : ";
constexpr std::string_view lineEnds = "\r\n";
constexpr std::string_view blanks = " \t\r\n";

// A longer first line is no header, and of a longer field only the beginning counts: no list has either.
constexpr std::size_t longestFirstLine = std::size_t{64} * 1024;
constexpr std::size_t longestField = std::size_t{1024} * 1024;

bool IsLineEnd(char c) {
    return c == '\n' || c == '\r';
}

// Takes the numbers one by one and fills the table with them, most of them by half their gap.
class NumberSink {
public:
    NumberSink(PrimeTable& table, PrimeFileProgress& progress) : table_(table), progress_(progress) {}

    void Begin(std::int64_t maximum) {
        progress_.Expect(maximum);
        step_ = ProgressStep(maximum);
    }
    void Add(std::uint64_t value);
    // How many numbers may be put into Gaps now.
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

// Takes a prime file: first its beginning, with the whole first line, then the rest in pieces of any size.
class Reader {
public:
    Reader(PrimeTable& table, PrimeFileProgress& progress) : sink_(table, progress) {}

    void Begin(std::string_view bytes);
    void Take(std::string_view bytes);
    void Finish();
    // Whether there was anything but blanks and a header.
    bool HasText() const { return hasText_; }

private:
    void TakeData(const char* at, const char* end);
    const char* TakeNeighbours(const char* at, const char* end);
    const char* TakePlainField(const char* at, const char* end);
    const char* TakeAnyField(const char* at, const char* end);
    void EndField(std::uint64_t value, char ending);

    NumberSink sink_;
    DigitNeighbourhood neighbourhood_;
    bool hasText_ = false;
    bool inField_ = false;  // field_ has begun to take one
    bool dropping_ = false; // up to the end of the line
    std::string field_;
};

std::uint64_t ValueOf(std::string_view field) {
    return ToUInt64(Val(field));
}

void Reader::Begin(std::string_view bytes) {
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    std::string_view line = bytes.substr(0, bytes.find_first_of(lineEnds));
    const std::size_t mark = line.find(headerMark);
    if (mark == std::string_view::npos) {
        sink_.Begin(headerlessMaximum);
    } else {
        bytes.remove_prefix(line.size());
        line.remove_prefix(mark + headerMark.size());
        // A line of prose may contain the mark too: in the header of a list there is a number behind it.
        hasText_ = std::any_of(line.begin(), line.end(), [](char c) { return c != ' ' && !IsDigit(c); });
        sink_.Begin(static_cast<std::int64_t>(std::min(ValueOf(line), most)));
    }
    Take(bytes);
}

void Reader::Take(std::string_view bytes) {
    hasText_ = hasText_ || bytes.find_first_not_of(blanks) != std::string_view::npos;
    TakeData(bytes.data(), bytes.data() + bytes.size());
    sink_.Flush();
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
            EndField(ValueOf(field_), *at);
            field_.clear();
            return at + 1;
        }
        if (field_.size() < longestField) {
            field_ += *at;
        }
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
    if (inField_) {
        EndField(ValueOf(field_), '\n');
    }
    sink_.Flush();
}

} // namespace

PrimeFileContent ReadPrimeFile(InputFile& file, PrimeTable& table, PrimeFileProgress& progress,
    std::uint64_t mostBytes, std::size_t chunkSize) {
    table.Clear();
    Reader reader(table, progress);
    std::string chunk(chunkSize, '\0');
    const auto read = [&] { return std::string_view(chunk).substr(0, file.Read(chunk)); };
    std::string head;
    std::string_view bytes;
    do {
        head += bytes = read();
    } while (bytes.size() == chunkSize && head.size() < longestFirstLine &&
             bytes.find_first_of(lineEnds) == std::string_view::npos);
    reader.Begin(std::string_view(head).substr(head.starts_with(byteOrderMark) ? byteOrderMark.size() : 0));
    for (;;) {
        progress.Work();
        if (progress.MustStop()) {
            throw ReadingStopped();
        }
        if (table.Bytes() > mostBytes) {
            throw IOException("no memory for more numbers");
        }
        if (bytes.size() < chunkSize) {
            break;
        }
        reader.Take(bytes = read());
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

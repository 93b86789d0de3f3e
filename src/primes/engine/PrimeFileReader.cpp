#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/engine/PrimeFile.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <span>

namespace tessarolyne {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view headerMark = " : ";
constexpr std::string_view lineEnds = "\r\n";
constexpr std::string_view blanks = " \t\r\n";

// A longer first line is no header, and of a longer field only the beginning counts: no list has either.
constexpr std::size_t longestField = std::size_t{64} * 1024;

bool IsLineEnd(char c) {
    return c == '\n' || c == '\r';
}

// What ends a field. Behind a number all of these mean the same: the next field begins.
bool EndsField(char c) {
    return c == '\t' || IsLineEnd(c);
}

// The digits that a number has in common with those around it: all but the last four. Numbers of 5 to 12
// digits have such a neighbourhood; the largest that the program accepts has 12.
class DigitNeighbourhood {
public:
    static constexpr std::ptrdiff_t readAhead = 16;

    // Makes it the one of a number with these digits and this value.
    void Settle(const char* digits, std::ptrdiff_t size, std::uint64_t value) {
        size_ = size > lowDigits && size <= lowDigits + std::ptrdiff_t{sizeof mask_} ? size : 0;
        if (size_ != 0) {
            mask_ = 0;
            std::memset(&mask_, 0xFF, static_cast<std::size_t>(size - lowDigits));
            std::memcpy(&leading_, digits, sizeof leading_);
            leading_ &= mask_;
            base_ = value - value % 10000;
        }
    }
    // Reads a number of the neighbourhood, and moves behind it; leaves what is anything else, and gives 0.
    std::uint64_t Read(const char*& at) const {
        if (size_ == 0) {
            return 0;
        }
        std::uint64_t head = 0;
        std::memcpy(&head, at, sizeof head);
        // Four digits as bytes of 0 to 9.
        const std::uint32_t digits = LoadLittleEndian(at + size_ - lowDigits) ^ 0x30303030U;
        const std::uint64_t strange = ((digits + 0x76767676U) | digits) & 0x80808080U;
        if ((((head & mask_) ^ leading_) | strange) != 0 || !EndsField(at[size_])) {
            return 0;
        }
        at += size_ + 1;
        // Each byte ten times and the next one added, which leaves two pairs; then the same with these.
        const std::uint32_t pairs = ((digits * (10U << 8U | 1U)) >> 8U) & 0x00FF00FFU;
        return base_ + ((pairs * (100U << 16U | 1U)) >> 16U);
    }

private:
    static constexpr std::ptrdiff_t lowDigits = 4;

    static std::uint32_t LoadLittleEndian(const char* bytes) {
        const auto byte = [&](int i) { return std::uint32_t{static_cast<unsigned char>(bytes[i])}; };
        return byte(0) | byte(1) << 8U | byte(2) << 16U | byte(3) << 24U;
    }

    std::ptrdiff_t size_ = 0; // digits of a number, 0 for no neighbourhood
    std::uint64_t leading_ = 0;
    std::uint64_t mask_ = 0;
    std::uint64_t base_ = 0;
};

// Takes a prime file piece by piece.
class Reader {
public:
    Reader(PrimeTable& table, PrimeFileProgress& progress) : table_(table), progress_(progress) {}

    // Takes the fields that end in `text`, and gives what is left. Nothing is taken of a beginning whose
    // first line may go on.
    std::string_view Take(std::string_view text);
    // Whether there was anything but blanks and a header.
    bool HasText() const { return hasText_; }

private:
    std::string_view TakeHead(std::string_view text);
    void Expect(std::int64_t maximum);
    void Add(std::uint64_t value);

    PrimeTable& table_;
    PrimeFileProgress& progress_;
    DigitNeighbourhood neighbourhood_;
    std::int64_t step_ = 0;
    std::int64_t milestone_ = 0; // the next index to be told; once passed, there is none
    bool hasBegun_ = false;
    bool hasText_ = false;
    bool dropping_ = false; // up to the end of the line
};

std::uint64_t ValueOf(std::string_view field) {
    return ToUInt64(Val(field));
}

void Reader::Expect(std::int64_t maximum) {
    progress_.Expect(maximum);
    step_ = ProgressStep(maximum);
}

inline void Reader::Add(std::uint64_t value) {
    if (table_.Size() == milestone_) {
        progress_.Reach(milestone_);
        milestone_ += step_;
    }
    if (!table_.Append(value)) {
        throw IOException("the table takes no more numbers");
    }
}

std::string_view Reader::TakeHead(std::string_view text) {
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    hasBegun_ = true;
    if (text.starts_with(byteOrderMark)) {
        text.remove_prefix(byteOrderMark.size());
    }
    std::string_view line = text.substr(0, text.find_first_of(lineEnds));
    const std::size_t mark = line.find(headerMark);
    if (mark == std::string_view::npos) {
        Expect(headerlessMaximum);
        return text;
    }
    text.remove_prefix(line.size());
    line.remove_prefix(mark + headerMark.size());
    // A line of prose may contain the mark too: in the header of a list there is a number behind it.
    hasText_ = std::any_of(line.begin(), line.end(), [](char c) { return c != ' ' && !IsDigit(c); });
    Expect(static_cast<std::int64_t>(std::min(ValueOf(line), most)));
    return text;
}

std::string_view Reader::Take(std::string_view text) {
    constexpr std::ptrdiff_t mostDigits = 15; // which a double holds exactly
    if (!hasBegun_) {
        if (text.size() < longestField && text.find_first_of(lineEnds) == std::string_view::npos) {
            return text;
        }
        text = TakeHead(text);
    }
    hasText_ = hasText_ || text.find_first_not_of(blanks) != std::string_view::npos;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end) {
        if (dropping_) {
            at = std::find_if(at, end, IsLineEnd);
            dropping_ = at == end;
            continue;
        }
        // A copy, which the numbers stored can't be suspected to change.
        const DigitNeighbourhood neighbourhood = neighbourhood_;
        while (end - at >= DigitNeighbourhood::readAhead) {
            const std::uint64_t neighbour = neighbourhood.Read(at);
            if (neighbour == 0) {
                break;
            }
            Add(neighbour);
        }
        const char* place = at;
        std::uint64_t value = 0;
        for (; place != end && IsDigit(*place); ++place) {
            value = value * 10 + static_cast<std::uint64_t>(*place - '0');
        }
        if (place - at > mostDigits || place == end || !EndsField(*place)) {
            place = std::find_if(at, end, EndsField);
            if (place == end) {
                break;
            }
            value = ValueOf(std::string_view(at, place).substr(0, longestField));
        } else if (end - at >= DigitNeighbourhood::readAhead) {
            neighbourhood_.Settle(at, place - at, value);
        }
        if (value != 0) {
            Add(value);
        } else {
            dropping_ = !IsLineEnd(*place);
        }
        at = place + 1;
    }
    return {at, end};
}

bool BeginsWithFirstPrimes(const PrimeTable& table) {
    return table.Size() >= 4 && table[0] == 2 && table[1] == 3 && table[2] == 5 && table[3] == 7;
}

// Ends the reading once it has been decided.
class Comparison final : public PrimeFileProgress {
public:
    Comparison(const PrimeTable& inFile, const PrimeTable& table, PrimeFileProgress& progress)
        : inFile_(inFile), table_(table), progress_(progress) {}

    void Work() override { progress_.Work(); }
    bool MustStop() override { return inFile_.Size() > table_.Size(); }

private:
    const PrimeTable& inFile_;
    const PrimeTable& table_;
    PrimeFileProgress& progress_;
};

} // namespace

PrimeFileContent ReadPrimeFile(InputFile& file, PrimeTable& table, PrimeFileProgress& progress,
    std::uint64_t mostBytes, std::size_t chunkSize) {
    table.Clear();
    Reader reader(table, progress);
    const auto buffer = std::make_unique_for_overwrite<char[]>(longestField + chunkSize + 1);
    std::size_t kept = 0;
    for (bool isMore = true; isMore;) {
        const std::size_t count = file.Read(std::span(buffer.get() + kept, chunkSize));
        kept += count;
        isMore = count == chunkSize;
        if (!isMore) {
            buffer[kept++] = '\n';
        }
        const std::string_view rest = reader.Take({buffer.get(), kept});
        kept = std::min(rest.size(), longestField);
        std::memmove(buffer.get(), rest.data(), kept);
        progress.Work();
        if (progress.MustStop()) {
            throw ReadingStopped();
        }
        if (table.Bytes() > mostBytes) {
            throw IOException("no memory for more numbers");
        }
    }
    return BeginsWithFirstPrimes(table) ? PrimeFileContent::Primes
           : reader.HasText()           ? PrimeFileContent::Other
                                        : PrimeFileContent::Nothing;
}

UnseenContent LookBeforeSaving(const FolderItem& item, const BoundFile& known, const PrimeTable& table,
    std::uint64_t mostBytes, PrimeFileProgress& progress) {
    const auto stamp = item.Stamp();
    if (!stamp || stamp == known.seen) {
        return UnseenContent::None;
    }
    PrimeTable inFile;
    Comparison comparison(inFile, table, progress);
    auto content = PrimeFileContent::Other;
    try {
        const auto file = item.Files().OpenForReading(item.NativePath());
        content = ReadPrimeFile(*file, inFile, comparison, mostBytes);
    } catch (const ReadingStopped&) {
        content = BeginsWithFirstPrimes(inFile) ? PrimeFileContent::Primes : PrimeFileContent::Other;
    } catch (const std::exception&) {
        return UnseenContent::Unreadable;
    }
    if (content == PrimeFileContent::Other) {
        return UnseenContent::Other;
    }
    return inFile.Size() > table.Size() ? UnseenContent::MorePrimes : UnseenContent::None;
}

} // namespace tessarolyne

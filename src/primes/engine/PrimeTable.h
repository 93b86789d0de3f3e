#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <span>
#include <vector>

namespace tessarolyne {

// The store of Nbres_Premiers: an array of unsigned 64-bit numbers, indexed from 0, that only grows. It holds
// any sequence, and odd numbers that rise slowly in about one byte each: half the gap to the entry before,
// with the full value at every 256th entry. A chunk of 65536 with any other is kept in full. Nothing that
// stands is ever copied to make room. It finds no primes itself, and it has no lock: one thread at a time
// uses it, but for Back.
class PrimeTable {
public:
    class Cursor;

    // Ranks are signed 32-bit numbers throughout the program.
    static constexpr std::int32_t maxSize = 2147483647;

    // An empty table that takes its memory from `memory`, which outlives it, and no more than `largestSize`
    // entries.
    explicit PrimeTable(std::pmr::memory_resource* memory = std::pmr::get_default_resource(),
        std::int32_t largestSize = maxSize)
        : largestSize_(largestSize), chunks_(memory) {}
    PrimeTable(const PrimeTable&) = delete;
    PrimeTable& operator=(const PrimeTable&) = delete;

    // Number of entries.
    std::int32_t Size() const { return size_; }

    // Index of the last entry, -1 for an empty table.
    std::int32_t UpperBound() const { return size_ - 1; }

    // The entry at `rank`, from 0 to UpperBound().
    std::uint64_t operator[](std::int32_t rank) const;

    // The last entry; 0 for an empty table. Any thread may ask how far a calculation is.
    std::uint64_t Back() const { return last_.load(std::memory_order_relaxed); }

    // How many entries the table takes, however much memory there is.
    std::int32_t LargestSize() const { return largestSize_; }

    // Adds any value at the end. False, and nothing changed, at LargestSize() or when there is no memory.
    [[nodiscard]] bool Append(std::uint64_t value) {
        const std::uint64_t halfGap = HalfGap(value);
        if (BeginsBlock() || halfGap > largestHalfGap || chunks_.back()->full || size_ == largestSize_) {
            return AppendInFull(value);
        }
        chunks_.back()->halfGaps[static_cast<std::size_t>(size_ % chunkEntries)] =
            static_cast<std::uint8_t>(halfGap);
        ++size_;
        last_.store(value, std::memory_order_relaxed);
        return true;
    }

    // Adds entries by half their gaps, the first one counted from Back(), which is odd. False when not all
    // could be added, at LargestSize() or when there is no memory.
    [[nodiscard]] bool AppendByHalfGaps(std::span<const std::uint8_t> halfGaps);

    // Empties the table and gives its memory back.
    void Clear();

    // Exchanges the content of two tables that take their memory from the same place.
    void Swap(PrimeTable& other);

    // Bytes that the entries take at present.
    std::uint64_t Bytes() const { return chunks_.size() * sizeof(Chunk) + fullChunks_ * sizeof(Full); }

    // How many entries of consecutive primes the table can have without passing `bytes` bytes; never less
    // than Size().
    std::int32_t SizeWithin(std::uint64_t bytes) const;

    // --- What is known of the content. A file may hold anything, so entries count as unknown until they have
    // been compared with a sieve (VerifyPrimes), or come from one.

    // How many leading entries are known to be the first primes, none missing.
    std::int32_t ConsecutiveCount() const { return consecutive_; }

    // The last of those entries, 0 where there is none.
    std::uint64_t ConsecutiveBack() const {
        return IsConsecutive() ? Back() : consecutive_ == 0 ? 0 : (*this)[consecutive_ - 1];
    }

    // True when that is the whole table.
    bool IsConsecutive() const { return consecutive_ == size_; }

    // True when the entry at rank ConsecutiveCount() is known not to be the next prime.
    bool IsIrregular() const { return irregular_; }

    // Notes that the first `count` entries are the first primes.
    void NoteConsecutive(std::int32_t count) { consecutive_ = count; }

    // Notes that the entry behind those known to be consecutive is not the next prime.
    void NoteIrregular() { irregular_ = true; }

private:
    static constexpr std::int32_t blockEntries = 256;
    static constexpr std::int32_t chunkEntries = 65536;
    static constexpr std::uint64_t largestHalfGap = 255;

    using Full = std::array<std::uint64_t, chunkEntries>;

    // The first byte of a block is 0, its value being in `firsts`.
    struct Chunk {
        std::array<std::uint8_t, chunkEntries> halfGaps;
        std::array<std::uint64_t, chunkEntries / blockEntries> firsts;
        std::shared_ptr<Full> full; // all the entries, where one of them doesn't fit
    };

    bool BeginsBlock() const { return size_ % blockEntries == 0; }
    // Half the gap from the last entry to the odd `value`, so that 3 is 0 away from 2; for any other above
    // the largest one.
    std::uint64_t HalfGap(std::uint64_t value) const {
        return value % 2 != 0 ? value / 2 - Back() / 2 : largestHalfGap + 1;
    }
    bool AppendInFull(std::uint64_t value);

    std::int32_t largestSize_;
    // Shared by nobody: these pointers know to which memory they return. The vector's growth copies sixteen
    // bytes for every 65536 entries.
    std::pmr::vector<std::shared_ptr<Chunk>> chunks_;
    std::size_t fullChunks_ = 0;
    std::int32_t size_ = 0;
    std::int32_t consecutive_ = 0;
    bool irregular_ = false;
    std::atomic<std::uint64_t> last_ = 0;
};

// Walks through a table from one rank upwards, faster than by index. It stays valid while primes are added to
// a table of consecutive ones; any other change of the table ends its use.
class PrimeTable::Cursor {
public:
    // At `rank`, which exists.
    Cursor(const PrimeTable& table, std::int32_t rank) : table_(&table), rank_(rank) { Enter(); }

    std::int32_t Rank() const { return rank_; }
    std::uint64_t Value() const { return value_; }

    // Steps to the next entry. Returns false, and stays, at the end of the table.
    bool Next() {
        if (rank_ >= table_->UpperBound()) {
            return false;
        }
        ++rank_;
        const auto place = static_cast<std::uint32_t>(rank_) % blockEntries;
        if (place == 0 || halfGaps_ == nullptr) {
            Enter();
        } else {
            value_ = (value_ | 1U) + 2U * std::uint64_t{halfGaps_[place]};
        }
        return true;
    }

private:
    void Enter();

    const PrimeTable* table_;
    const std::uint8_t* halfGaps_ = nullptr; // of the block; none where the chunk is kept in full
    std::int32_t rank_;
    std::uint64_t value_ = 0;
};

} // namespace tessarolyne

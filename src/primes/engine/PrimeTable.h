#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory_resource>
#include <span>
#include <vector>

namespace tessarolyne {

// The store of Nbres_Premiers: an array of unsigned 64-bit numbers, indexed from 0, that only grows. It holds
// any sequence, and consecutive primes in about one byte each: half the gap to the entry before, with the
// full value at every 256th entry; a block of 256 in which a gap doesn't fit is kept in full. Nothing that
// stands is ever copied to make room. It finds no primes itself, and it has no lock: one thread at a time
// uses it, but for LastReached.
class PrimeTable {
public:
    class Cursor;

    // Ranks are signed 32-bit numbers throughout the program.
    static constexpr std::int32_t maxSize = 2147483647;

    // An empty table that takes its memory from `memory`, which outlives it, and no more than `largestSize`
    // entries.
    explicit PrimeTable(std::pmr::memory_resource* memory = std::pmr::get_default_resource(),
        std::int32_t largestSize = maxSize);
    ~PrimeTable();
    PrimeTable(const PrimeTable&) = delete;
    PrimeTable& operator=(const PrimeTable&) = delete;

    // Number of entries.
    std::int32_t Size() const { return size_; }

    // Index of the last entry, -1 for an empty table.
    std::int32_t UpperBound() const { return size_ - 1; }

    // The entry at `rank`, from 0 to UpperBound().
    std::uint64_t operator[](std::int32_t rank) const;

    // The last entry; 0 for an empty table.
    std::uint64_t Back() const { return last_; }

    // How many entries the table takes, however much memory there is.
    std::int32_t LargestSize() const { return largestSize_; }

    // Adds any value at the end. False, and nothing changed, at LargestSize() or when there is no memory.
    [[nodiscard]] bool Append(std::uint64_t value);

    // Adds entries by half their gaps, each from 1 to 255, the first gap counted from Back(). The table is
    // not empty. Gives how many were added: fewer than given at LargestSize() or when there is no memory.
    std::int32_t AppendByHalfGaps(std::span<const std::uint8_t> halfGaps);

    // Copies the entries from `rank` on, as many as there are and have room, and gives their number. Much
    // faster than one by one.
    std::int32_t CopyTo(std::int32_t rank, std::span<std::uint64_t> values) const;

    // Empties the table and gives its memory back.
    void Clear();

    // Exchanges the content of two tables that take their memory from the same place.
    void Swap(PrimeTable& other);

    // Bytes that the entries take at present.
    std::uint64_t Bytes() const { return bytes_; }

    // How many entries of consecutive primes the table can have without passing `bytes` bytes; never less
    // than Size().
    std::int32_t SizeWithin(std::uint64_t bytes) const;

    // The last entry, for any thread to show how far a calculation is; may lag by a few thousand primes.
    std::uint64_t LastReached() const { return lastReached_.load(std::memory_order_relaxed); }

    // --- What is known of the content. A file may hold anything, so entries that came by Append count as
    // unknown until they have been compared with a sieve (VerifyPrimes).

    // How many leading entries are known to be the first primes, none missing.
    std::int32_t ConsecutiveCount() const { return consecutive_; }

    // The last of those entries, 0 where there is none.
    std::uint64_t ConsecutiveBack() const { return consecutive_ == 0 ? 0 : consecutiveBack_; }

    // True when that is the whole table.
    bool IsConsecutive() const { return consecutive_ == size_; }

    // True when the entry at rank ConsecutiveCount() is known not to be the next prime.
    bool IsIrregular() const { return irregular_; }

    // Notes that the entries up to `count` are the first primes; only for callers that have compared them.
    void NoteConsecutive(std::int32_t count);

    // Notes that the entry behind those known to be consecutive is not the next prime.
    void NoteIrregular() { irregular_ = true; }

    // Adds `prime`, of which the caller knows that it is the next one. False as with Append.
    [[nodiscard]] bool AppendNextPrime(std::uint64_t prime);

    // AppendByHalfGaps, where the caller knows that these are the next primes.
    std::int32_t AppendNextPrimes(std::span<const std::uint8_t> halfGaps);

private:
    static constexpr std::int32_t blockEntries = 256;
    static constexpr std::int32_t chunkEntries = 65536;

    using WideBlock = std::array<std::uint64_t, blockEntries>;
    using WideBlocks = std::array<WideBlock*, chunkEntries / blockEntries>;

    // Allocated as a whole, its bytes unset until they are written, and never moved. The first byte of a
    // block is 0, its value being in `firsts`.
    struct Chunk {
        std::array<std::uint8_t, chunkEntries> halfGaps;
        std::array<std::uint64_t, chunkEntries / blockEntries> firsts;
        WideBlocks* wide = nullptr; // only where a block of the chunk is kept in full
    };

    WideBlock* WideBlockAt(std::int32_t rank) const;
    bool AddChunk();
    WideBlock* Widen(Chunk& chunk, std::int32_t rank);
    bool Store(std::uint64_t value);
    void AppendWithinBlock(std::span<const std::uint8_t> halfGaps);

    template <typename T>
    T* Allocate();
    template <typename T>
    void Free(T* object);

    std::pmr::memory_resource* memory_;
    std::int32_t largestSize_;
    // Pointers alone; its growth copies eight bytes for every 65536 entries.
    std::pmr::vector<Chunk*> chunks_;
    std::int32_t size_ = 0;
    std::int32_t consecutive_ = 0;
    bool irregular_ = false;
    std::uint64_t last_ = 0;
    std::uint64_t consecutiveBack_ = 0;
    std::uint64_t bytes_ = 0;
    std::atomic<std::uint64_t> lastReached_ = 0;
};

// Walks through a table from one rank upwards, faster than by index. It stays valid while AppendNextPrime(s)
// add entries; any other change of the table ends its use.
class PrimeTable::Cursor {
public:
    // At `rank`, which exists.
    Cursor(const PrimeTable& table, std::int32_t rank);

    std::int32_t Rank() const { return rank_; }
    std::uint64_t Value() const { return value_; }

    // Steps to the next entry. Returns false, and stays, at the end of the table.
    bool Next() {
        if (rank_ >= table_->UpperBound()) {
            return false;
        }
        ++rank_;
        const auto place = static_cast<std::uint32_t>(rank_) % blockEntries;
        if (place == 0) {
            EnterBlock();
        } else if (wide_ == nullptr) {
            value_ += 2U * std::uint64_t{halfGaps_[place]};
        } else {
            value_ = (*wide_)[place];
        }
        return true;
    }

private:
    void EnterBlock();

    const PrimeTable* table_;
    const std::uint8_t* halfGaps_ = nullptr;
    const WideBlock* wide_ = nullptr;
    std::int32_t rank_;
    std::uint64_t value_ = 0;
};

} // namespace tessarolyne

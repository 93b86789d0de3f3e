#include "primes/engine/PrimeTable.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace tessarolyne {

namespace {

// Eight sums of bytes side by side. A vector of the compiler, which splits it on machines that have none.
using Lanes = std::uint16_t __attribute__((vector_size(16)));

// The sum of up to 256 bytes, each up to 255, which the lanes can't overflow; hands every step's bytes to
// `use` on the way.
template <typename Use>
inline std::uint64_t SumOfBytes(const std::uint8_t* bytes, std::size_t count, Use use) {
    Lanes lanes{};
    std::size_t i = 0;
    for (; i + sizeof lanes <= count; i += sizeof lanes) {
        Lanes pairs;
        std::memcpy(&pairs, bytes + i, sizeof pairs);
        use(i, pairs);
        lanes += (pairs & 0xFF) + (pairs >> 8);
    }
    std::uint64_t sum = 0;
    for (; i < count; ++i) {
        use(i, bytes[i]);
        sum += bytes[i];
    }
    for (std::size_t k = 0; k < sizeof lanes / sizeof lanes[0]; ++k) {
        sum += lanes[k];
    }
    return sum;
}

std::uint64_t SumOfBytes(const std::uint8_t* bytes, std::size_t count) {
    return SumOfBytes(bytes, count, [](std::size_t, auto) {});
}

// Copies the bytes and gives their sum.
std::uint64_t CopyAndSum(const std::uint8_t* from, std::size_t count, std::uint8_t* to) {
    return SumOfBytes(
        from, count, [to](std::size_t at, auto step) { std::memcpy(to + at, &step, sizeof step); });
}

bool FitsAsHalfGap(std::uint64_t from, std::uint64_t to) {
    return to >= from && to - from <= 510 && (to - from) % 2 == 0;
}

} // namespace

PrimeTable::PrimeTable(std::pmr::memory_resource* memory, std::int32_t largestSize)
    : memory_(memory), largestSize_(largestSize), chunks_(memory) {}

PrimeTable::~PrimeTable() {
    Clear();
}

template <typename T>
T* PrimeTable::Allocate() {
    T* object = new (memory_->allocate(sizeof(T), alignof(T))) T;
    bytes_ += sizeof(T);
    return object;
}

template <typename T>
void PrimeTable::Free(T* object) {
    memory_->deallocate(object, sizeof(T), alignof(T));
}

void PrimeTable::Clear() {
    for (Chunk* chunk : chunks_) {
        if (chunk->wide != nullptr) {
            for (WideBlock* block : *chunk->wide) {
                if (block != nullptr) {
                    Free(block);
                }
            }
            Free(chunk->wide);
        }
        Free(chunk);
    }
    chunks_.clear();
    chunks_.shrink_to_fit();
    size_ = 0;
    consecutive_ = 0;
    irregular_ = false;
    last_ = 0;
    consecutiveBack_ = 0;
    bytes_ = 0;
    lastReached_.store(0, std::memory_order_relaxed);
}

void PrimeTable::Swap(PrimeTable& other) {
    std::swap(largestSize_, other.largestSize_);
    chunks_.swap(other.chunks_);
    std::swap(size_, other.size_);
    std::swap(consecutive_, other.consecutive_);
    std::swap(irregular_, other.irregular_);
    std::swap(last_, other.last_);
    std::swap(consecutiveBack_, other.consecutiveBack_);
    std::swap(bytes_, other.bytes_);
    lastReached_.store(other.lastReached_.exchange(LastReached()), std::memory_order_relaxed);
}

PrimeTable::WideBlock* PrimeTable::WideBlockAt(std::int32_t rank) const {
    const Chunk& chunk = *chunks_[static_cast<std::size_t>(rank / chunkEntries)];
    const auto block = static_cast<std::size_t>(rank % chunkEntries / blockEntries);
    return chunk.wide == nullptr ? nullptr : (*chunk.wide)[block];
}

std::uint64_t PrimeTable::operator[](std::int32_t rank) const {
    const auto place = static_cast<std::size_t>(rank % blockEntries);
    if (const WideBlock* wide = WideBlockAt(rank)) {
        return (*wide)[place];
    }
    const Chunk& chunk = *chunks_[static_cast<std::size_t>(rank / chunkEntries)];
    const auto start = static_cast<std::size_t>(rank % chunkEntries) - place;
    return chunk.firsts[start / blockEntries] + 2 * SumOfBytes(&chunk.halfGaps[start], place + 1);
}

bool PrimeTable::AddChunk() {
    try {
        chunks_.push_back(nullptr);
        chunks_.back() = Allocate<Chunk>();
        return true;
    } catch (const std::bad_alloc&) {
        if (!chunks_.empty() && chunks_.back() == nullptr) {
            chunks_.pop_back();
        }
        return false;
    }
}

// Turns the block of `rank` into one of full values, its entries before `rank` included.
PrimeTable::WideBlock* PrimeTable::Widen(Chunk& chunk, std::int32_t rank) {
    try {
        if (chunk.wide == nullptr) {
            chunk.wide = Allocate<WideBlocks>();
            chunk.wide->fill(nullptr);
        }
        auto* block = Allocate<WideBlock>();
        const std::int32_t start = rank - rank % blockEntries;
        for (std::int32_t i = start; i < rank; ++i) {
            (*block)[static_cast<std::size_t>(i - start)] = (*this)[i];
        }
        (*chunk.wide)[static_cast<std::size_t>(rank % chunkEntries / blockEntries)] = block;
        return block;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

bool PrimeTable::Store(std::uint64_t value) {
    if (size_ == largestSize_ || (size_ % chunkEntries == 0 && !AddChunk())) {
        return false;
    }
    Chunk& chunk = *chunks_.back();
    const auto inChunk = static_cast<std::size_t>(size_ % chunkEntries);
    const auto place = static_cast<std::size_t>(size_ % blockEntries);
    if (place == 0) {
        chunk.firsts[inChunk / blockEntries] = value;
        chunk.halfGaps[inChunk] = 0;
    } else {
        WideBlock* wide = WideBlockAt(size_);
        if (wide == nullptr && !FitsAsHalfGap(last_, value)) {
            wide = Widen(chunk, size_);
            if (wide == nullptr) {
                return false;
            }
        }
        if (wide != nullptr) {
            (*wide)[place] = value;
        } else {
            chunk.halfGaps[inChunk] = static_cast<std::uint8_t>((value - last_) / 2);
        }
    }
    ++size_;
    last_ = value;
    return true;
}

bool PrimeTable::Append(std::uint64_t value) {
    if (!Store(value)) {
        return false;
    }
    lastReached_.store(value, std::memory_order_relaxed);
    return true;
}

bool PrimeTable::AppendNextPrime(std::uint64_t prime) {
    const bool wasConsecutive = IsConsecutive();
    if (!Append(prime)) {
        return false;
    }
    if (wasConsecutive) {
        NoteConsecutive(size_);
    }
    return true;
}

void PrimeTable::NoteConsecutive(std::int32_t count) {
    consecutive_ = count;
    consecutiveBack_ = count == 0 ? 0 : count == size_ ? last_ : (*this)[count - 1];
}

void PrimeTable::AppendWithinBlock(std::span<const std::uint8_t> halfGaps) {
    std::uint8_t* target = &chunks_.back()->halfGaps[static_cast<std::size_t>(size_ % chunkEntries)];
    last_ += 2 * CopyAndSum(halfGaps.data(), halfGaps.size(), target);
    size_ += static_cast<std::int32_t>(halfGaps.size());
}

std::int32_t PrimeTable::AppendByHalfGaps(std::span<const std::uint8_t> halfGaps) {
    std::size_t done = 0;
    while (done < halfGaps.size()) {
        const std::int32_t place = size_ % blockEntries;
        if (place == 0 || WideBlockAt(size_) != nullptr) {
            if (!Store(last_ + 2U * std::uint64_t{halfGaps[done]})) {
                break;
            }
            ++done;
            continue;
        }
        const std::int32_t room = std::min(blockEntries - place, largestSize_ - size_);
        const auto count = std::min(static_cast<std::size_t>(room), halfGaps.size() - done);
        if (count == 0) {
            break;
        }
        AppendWithinBlock(halfGaps.subspan(done, count));
        done += count;
    }
    lastReached_.store(last_, std::memory_order_relaxed);
    return static_cast<std::int32_t>(done);
}

std::int32_t PrimeTable::AppendNextPrimes(std::span<const std::uint8_t> halfGaps) {
    const bool wasConsecutive = IsConsecutive();
    const std::int32_t done = AppendByHalfGaps(halfGaps);
    if (wasConsecutive) {
        NoteConsecutive(size_);
    }
    return done;
}

std::int32_t PrimeTable::CopyTo(std::int32_t rank, std::span<std::uint64_t> values) const {
    std::size_t done = 0;
    while (done < values.size() && rank < size_) {
        const std::int32_t inBlock = std::min(blockEntries - rank % blockEntries, size_ - rank);
        const auto count = std::min(static_cast<std::size_t>(inBlock), values.size() - done);
        if (const WideBlock* wide = WideBlockAt(rank)) {
            std::copy_n(wide->begin() + rank % blockEntries, count,
                values.begin() + static_cast<std::ptrdiff_t>(done));
        } else {
            const Chunk& chunk = *chunks_[static_cast<std::size_t>(rank / chunkEntries)];
            const std::uint8_t* halfGaps = &chunk.halfGaps[static_cast<std::size_t>(rank % chunkEntries)];
            std::uint64_t value = (*this)[rank];
            values[done] = value;
            for (std::size_t i = 1; i < count; ++i) {
                value += 2U * std::uint64_t{halfGaps[i]};
                values[done + i] = value;
            }
        }
        done += count;
        rank += static_cast<std::int32_t>(count);
    }
    return static_cast<std::int32_t>(done);
}

std::int32_t PrimeTable::SizeWithin(std::uint64_t bytes) const {
    const std::uint64_t newChunks = bytes > bytes_ ? (bytes - bytes_) / sizeof(Chunk) : 0;
    const std::uint64_t entries = (chunks_.size() + newChunks) * std::uint64_t{chunkEntries};
    return static_cast<std::int32_t>(
        std::min<std::uint64_t>(entries, static_cast<std::uint64_t>(largestSize_)));
}

PrimeTable::Cursor::Cursor(const PrimeTable& table, std::int32_t rank)
    : table_(&table), rank_(rank - rank % blockEntries) {
    EnterBlock();
    while (rank_ < rank) {
        Next();
    }
}

void PrimeTable::Cursor::EnterBlock() {
    const Chunk& chunk = *table_->chunks_[static_cast<std::size_t>(rank_ / chunkEntries)];
    const auto start = static_cast<std::size_t>(rank_ % chunkEntries);
    halfGaps_ = &chunk.halfGaps[start];
    wide_ = table_->WideBlockAt(rank_);
    value_ = wide_ != nullptr ? (*wide_)[0] : chunk.firsts[start / blockEntries];
}

} // namespace tessarolyne

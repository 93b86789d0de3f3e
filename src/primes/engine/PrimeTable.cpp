#include "primes/engine/PrimeTable.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <numeric>
#include <utility>

namespace tessarolyne {

namespace {

// The sum of up to 256 bytes, each up to 255, which sixteen bits can't overflow.
std::uint64_t SumOfBytes(const std::uint8_t* bytes, std::size_t count) {
    // A vector of the compiler, which splits it on machines that have none.
    using Lanes = std::uint16_t __attribute__((vector_size(16)));
    Lanes lanes{};
    std::size_t i = 0;
    for (; i + sizeof lanes <= count; i += sizeof lanes) {
        Lanes pairs;
        std::memcpy(&pairs, bytes + i, sizeof pairs);
        lanes += (pairs & 0xFF) + (pairs >> 8);
    }
    std::uint64_t sum = std::accumulate(bytes + i, bytes + count, std::uint64_t{0});
    for (std::size_t k = 0; k < sizeof lanes / sizeof lanes[0]; ++k) {
        sum += lanes[k];
    }
    return sum;
}

} // namespace

void PrimeTable::Clear() {
    PrimeTable empty(chunks_.get_allocator().resource());
    Swap(empty);
}

void PrimeTable::Swap(PrimeTable& other) {
    chunks_.swap(other.chunks_);
    std::swap(fullChunks_, other.fullChunks_);
    std::swap(size_, other.size_);
    std::swap(consecutive_, other.consecutive_);
    std::swap(irregular_, other.irregular_);
    last_ = other.last_.exchange(last_);
}

std::uint64_t PrimeTable::operator[](std::int32_t rank) const {
    const Chunk& chunk = *chunks_[static_cast<std::size_t>(rank / chunkEntries)];
    const auto inChunk = static_cast<std::size_t>(rank % chunkEntries);
    if (chunk.full) {
        return (*chunk.full)[inChunk];
    }
    const std::size_t place = inChunk % blockEntries;
    const std::uint64_t first = chunk.firsts[inChunk / blockEntries];
    return place == 0 ? first : (first | 1U) + 2 * SumOfBytes(&chunk.halfGaps[inChunk - place], place + 1);
}

// Adds what isn't kept as a half gap.
bool PrimeTable::AppendInFull(std::uint64_t value) {
    if (size_ == largestSize_) {
        return false;
    }
    const std::pmr::polymorphic_allocator<> memory = chunks_.get_allocator();
    const auto place = static_cast<std::size_t>(size_ % chunkEntries);
    try {
        if (place == 0) {
            chunks_.push_back(std::allocate_shared<Chunk>(memory));
        } else if (!BeginsBlock() && !chunks_.back()->full) {
            const auto full = std::allocate_shared<Full>(memory);
            for (std::size_t i = 0; i < place; ++i) {
                (*full)[i] = (*this)[size_ - static_cast<std::int32_t>(place - i)];
            }
            chunks_.back()->full = full;
            ++fullChunks_;
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
    Chunk& chunk = *chunks_.back();
    if (chunk.full) {
        (*chunk.full)[place] = value;
    } else {
        chunk.firsts[place / blockEntries] = value;
    }
    ++size_;
    last_.store(value, std::memory_order_relaxed);
    return true;
}

bool PrimeTable::AppendByHalfGaps(std::span<const std::uint8_t> halfGaps) {
    while (!halfGaps.empty()) {
        if (BeginsBlock() || chunks_.back()->full) {
            if (!AppendInFull(Back() + 2U * std::uint64_t{halfGaps.front()})) {
                return false;
            }
            halfGaps = halfGaps.subspan(1);
            continue;
        }
        const std::int32_t room = std::min(blockEntries - size_ % blockEntries, largestSize_ - size_);
        const auto count = std::min(static_cast<std::size_t>(room), halfGaps.size());
        if (count == 0) {
            return false;
        }
        std::memcpy(&chunks_.back()->halfGaps[static_cast<std::size_t>(size_ % chunkEntries)],
            halfGaps.data(), count);
        last_.store(Back() + 2 * SumOfBytes(halfGaps.data(), count), std::memory_order_relaxed);
        size_ += static_cast<std::int32_t>(count);
        halfGaps = halfGaps.subspan(count);
    }
    return true;
}

std::int32_t PrimeTable::SizeWithin(std::uint64_t bytes) const {
    const std::uint64_t newChunks = bytes > Bytes() ? (bytes - Bytes()) / sizeof(Chunk) : 0;
    const std::uint64_t entries = (chunks_.size() + newChunks) * std::uint64_t{chunkEntries};
    return static_cast<std::int32_t>(
        std::min<std::uint64_t>(entries, static_cast<std::uint64_t>(largestSize_)));
}

void PrimeTable::Cursor::Enter() {
    const Chunk& chunk = *table_->chunks_[static_cast<std::size_t>(rank_ / chunkEntries)];
    const std::int32_t inChunk = rank_ % chunkEntries;
    value_ = (*table_)[rank_];
    halfGaps_ =
        chunk.full ? nullptr : &chunk.halfGaps[static_cast<std::size_t>(inChunk - inChunk % blockEntries)];
}

} // namespace tessarolyne

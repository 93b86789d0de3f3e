#include "primes/engine/BlockSieve.h"

#include "primes/engine/Wheel30.h"

#include <algorithm>

namespace tessarolyne {

namespace {

// A first-level cache of 32 KB is the least that machines of the last twenty years have; the rest of it is
// left to the strikers.
constexpr std::uint32_t windowBytes = 28 * 1024;
constexpr std::uint32_t windowsPerBlock = 6;

// Rank of 167, the first prime that the patterns leave.
constexpr std::int32_t firstStrikerRank = 38;

} // namespace

BlockSieve::BlockSieve(const PrimeTable& table)
    : table_(table), nextStriker_(table, firstStrikerRank), gapReader_(table.ConsecutiveBack()),
      bytes_(windowBytes * windowsPerBlock + 2 * TurnStrikeList::largestPrime),
      block_(bytes_.data() + TurnStrikeList::largestPrime), blockByte_(table.ConsecutiveBack() / 30),
      reached_(table.ConsecutiveBack()) {}

// Adds the primes whose squares lie up to `blockEnd`. The last known one is never among them, so the cursor
// stays within what is known.
void BlockSieve::AddStrikers(std::uint64_t blockEnd) {
    for (; nextStriker_.Value() * nextStriker_.Value() <= blockEnd; nextStriker_.Next()) {
        const std::uint64_t prime = nextStriker_.Value();
        if (prime > TurnStrikeList::largestPrime) {
            largeStrikers_.Add(prime, blockByte_);
        } else {
            windowStrikers_.Add(prime, blockByte_);
        }
    }
}

void BlockSieve::BeginBlock(std::uint64_t end) {
    blockByte_ += blockSize_;
    windowStrikers_.EndBlock(blockSize_);
    // The known primes decide all numbers below the square of the last one.
    const std::uint64_t known = std::min<std::uint64_t>(table_.ConsecutiveBack(), 0xFFFFFFFF);
    const std::uint64_t bytesDecidable = known * known / 30;
    const std::uint64_t bytes = std::min(bytesDecidable - blockByte_, end / 30 + 1 - blockByte_);
    blockSize_ = static_cast<std::uint32_t>(std::min(bytes, std::uint64_t{windowBytes} * windowsPerBlock));
    windowStart_ = 0;
    AddStrikers(30 * (blockByte_ + blockSize_));
    preSieve_.Fill(block_, blockSize_, blockByte_);
    largeStrikers_.Strike(block_, blockSize_);
}

void BlockSieve::DecideWindow(std::uint64_t end) {
    if (windowStart_ == blockSize_) {
        BeginBlock(end);
    }
    const std::uint32_t size = std::min(windowBytes, blockSize_ - windowStart_);
    std::uint8_t* window = block_ + windowStart_;
    windowStrikers_.Strike(block_, windowStart_ + size);
    const std::uint64_t firstByte = blockByte_ + windowStart_;
    if (reached_ / 30 == firstByte) {
        window[0] &= static_cast<std::uint8_t>(~Wheel30::BitsUpTo(reached_));
    }
    windowStart_ += size;
    reached_ = 30 * (firstByte + size) - 1;
    if (reached_ > end) {
        window[size - 1] &= Wheel30::BitsUpTo(end);
        reached_ = end;
    }
    unread_ = {window, size};
}

std::span<const std::uint8_t> BlockSieve::NextHalfGaps() {
    std::span<const std::uint8_t> halfGaps;
    while (halfGaps.empty() && !unread_.empty()) {
        const std::size_t count = std::min(unread_.size(), GapReader::mostBytes);
        halfGaps = gapReader_.Read(unread_.first(count));
        unread_ = unread_.subspan(count);
    }
    return halfGaps;
}

} // namespace tessarolyne

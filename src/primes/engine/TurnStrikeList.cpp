#include "primes/engine/TurnStrikeList.h"

#include "primes/engine/StrikeProduct.h"
#include "primes/engine/Wheel30.h"

#include <algorithm>

namespace tessarolyne {

void TurnStrikeList::Add(std::uint64_t prime, std::uint64_t startByte) {
    // A turn begins with a cofactor 30 a + 1, and 163 is too large for the first one, 1, to occur.
    const std::uint64_t cofactor = std::max(prime, 30 * startByte / prime) / 30 * 30 + 1;
    const auto turn = static_cast<std::int64_t>(prime * cofactor / 30) - static_cast<std::int64_t>(startByte);
    classes_[Wheel30::BitOf(prime)].push_back(
        {static_cast<std::uint32_t>(prime / 30), static_cast<std::int32_t>(turn)});
}

template <unsigned Class>
void TurnStrikeList::StrikeClass(std::vector<Striker>& strikers, std::uint8_t* block, std::int32_t end) {
    for (Striker& striker : strikers) {
        const std::uint32_t quotient = striker.quotient;
        const auto prime = static_cast<std::int32_t>(30 * quotient + Wheel30::residues[Class]);
        std::int32_t turn = striker.turn;
        for (; turn < end; turn += prime) {
            StrikeTurn<Class>(block + turn, quotient);
        }
        striker.turn = turn;
    }
}

void TurnStrikeList::Strike(std::uint8_t* block, std::uint32_t end) {
    const auto signedEnd = static_cast<std::int32_t>(end);
    StrikeClass<0>(classes_[0], block, signedEnd);
    StrikeClass<1>(classes_[1], block, signedEnd);
    StrikeClass<2>(classes_[2], block, signedEnd);
    StrikeClass<3>(classes_[3], block, signedEnd);
    StrikeClass<4>(classes_[4], block, signedEnd);
    StrikeClass<5>(classes_[5], block, signedEnd);
    StrikeClass<6>(classes_[6], block, signedEnd);
    StrikeClass<7>(classes_[7], block, signedEnd);
}

void TurnStrikeList::EndBlock(std::uint32_t size) {
    for (std::size_t k = 0; k < classes_.size(); ++k) {
        for (Striker& striker : classes_[k]) {
            const std::uint32_t prime = 30 * striker.quotient + Wheel30::residues[k];
            striker.turn -= static_cast<std::int32_t>(prime + size);
        }
    }
}

} // namespace tessarolyne

#pragma once

#include "PlurexData/Export.h"

#include <cstdint>

namespace Korv::Plurex::Data::Channels {

// What a player reports about its transport: 27 words, of which the player state's comparison reads
// the mode, word 1, the rate, the position and the end.
struct PLUREXDATA_API PlayerInfoOnAir {
    static constexpr unsigned int ValueCount = 8;

    std::uint32_t word0 = 0;
    std::uint32_t word1 = 0;
    // Below 2: idle; 2 to 6: playing a clip; 7 and above: playing two clips.
    std::int32_t mode = 0;
    std::int32_t rateNumerator = 0;
    std::int32_t rateDenominator = 1;
    std::uint32_t word5 = 0;
    std::uint32_t word6 = 1;
    std::uint32_t word7 = 0;
    std::uint32_t word8 = 0;
    // Words 9 to 24; the low word of the first is the position.
    std::int64_t values[ValueCount] = {};
    std::uint32_t end = 0;
    std::uint32_t word26 = 0;

    std::uint32_t Position() const noexcept { return static_cast<std::uint32_t>(values[0]); }

    // All 27 words equal.
    bool operator==(const PlayerInfoOnAir& other) const noexcept;
    bool operator!=(const PlayerInfoOnAir& other) const noexcept { return !(*this == other); }
};

}  // namespace Korv::Plurex::Data::Channels

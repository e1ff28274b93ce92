#pragma once

#include "PlurexData/Export.h"

#include <cstdint>

namespace Korv::Plurex::Data::Channels {

/// What a player reports about its transport: 27 words, of which the player state's comparison reads
/// the mode, word 1, the rate, the position and the end.
struct PLUREXDATA_API PlayerInfoOnAir {
    /// The number of 64-bit values (words 9 to 24).
    static constexpr unsigned int ValueCount = 8;

    /// Word 0, carried as reported; only equality reads it.
    std::uint32_t word0 = 0;
    /// Word 1; the player state's CompareStatus reports a change of it.
    std::uint32_t word1 = 0;
    /// Below 2: idle; 2 to 6: playing a clip; 7 and above: playing two clips.
    std::int32_t mode = 0;
    /// Word 3, the rate's numerator. CompareStatus reports one that becomes or stops being 0, and
    /// scales the remaining samples by a positive one.
    std::int32_t rateNumerator = 0;
    std::int32_t rateDenominator = 1;  ///< word 4, the rate's denominator
    std::uint32_t word5 = 0;           ///< carried as reported; only equality reads it
    std::uint32_t word6 = 1;           ///< carried as reported; only equality reads it
    std::uint32_t word7 = 0;           ///< carried as reported; only equality reads it
    std::uint32_t word8 = 0;           ///< carried as reported; only equality reads it
    /// Words 9 to 24; the low word of the first is the position.
    std::int64_t values[ValueCount] = {};
    /// Word 25, the end: CompareStatus counts end - 1 - Position() samples as remaining, in unsigned
    /// 32-bit arithmetic.
    std::uint32_t end = 0;
    /// Word 26, carried as reported; only equality reads it.
    std::uint32_t word26 = 0;

    /// The position: the low 32 bits of the first value (word 9).
    std::uint32_t Position() const noexcept { return static_cast<std::uint32_t>(values[0]); }

    /// All 27 words equal.
    ///@{
    bool operator==(const PlayerInfoOnAir& other) const noexcept;
    bool operator!=(const PlayerInfoOnAir& other) const noexcept { return !(*this == other); }
    ///@}
};

}  // namespace Korv::Plurex::Data::Channels

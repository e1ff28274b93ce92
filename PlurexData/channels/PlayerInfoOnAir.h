#pragma once

#include "PlurexData/Export.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace Korv::Plurex::Data::Channels {

/// A signed 64-bit value stored as two consecutive 32-bit words, in the host's byte order, so that it
/// needs no more than 4-byte alignment: a server sends PlayerInfoOnAir as 27 consecutive words, its
/// 64-bit values included, on 32-bit and 64-bit hosts alike. Converts to and from std::int64_t.
class PLUREXDATA_API Word64 {
public:
    /// Zero.
    constexpr Word64() noexcept = default;
    /// The value `value`; implicit, so a Word64 is assigned and compared as an integer.
    Word64(std::int64_t value) noexcept { std::memcpy(words_, &value, sizeof value); }
    /// The value.
    operator std::int64_t() const noexcept {
        std::int64_t value;
        std::memcpy(&value, words_, sizeof value);
        return value;
    }

private:
    std::uint32_t words_[2] = {};
};

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
    /// Words 9 to 24 (bytes 36 to 99, 4-byte aligned); the low word of the first is the position.
    Word64 values[ValueCount] = {};
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

// 27 words with nothing between them, as the record travels: a client may copy a server's 108 bytes
// over the structure.
static_assert(sizeof(PlayerInfoOnAir) == 108 && alignof(PlayerInfoOnAir) == 4);
static_assert(offsetof(PlayerInfoOnAir, word8) == 32 && offsetof(PlayerInfoOnAir, values) == 36 &&
              offsetof(PlayerInfoOnAir, end) == 100 && offsetof(PlayerInfoOnAir, word26) == 104);

}  // namespace Korv::Plurex::Data::Channels

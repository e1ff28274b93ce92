#pragma once

// The rules of the clip's setters, shared with the record loader so that it applies them without a call
// per field. Internal to the library.

#include "PlurexData/data/VideoStandard.h"
#include "PlurexData/data/clips/Type.h"
#include "PlurexData/timepoints/Rate.h"

#include <cstdint>

namespace Korv::Plurex::Data::Clips::Detail {

// The clip rate: 50/1 for Pal, 60/1 for any other standard.
inline bool IsClipRate(VideoStandard standard, const TimePoints::Rate& rate) noexcept {
    return rate.GetDenominator() == 1 && rate.GetNumerator() == (standard == VideoStandard::Pal ? 50 : 60);
}

// std::invalid_argument("Timecode Rate inconsistent with Clip Rate").
[[noreturn]] void ThrowRateInconsistent();

// The values an essence of each type (0 Intra, 1 LongGop, 2 LowRes) accepts in one field.
struct Accepted {
    std::int32_t first;
    std::int32_t last;
};
inline constexpr Accepted MetadataValues[3] = {{0, 2}, {3, 3}, {4, 4}};
inline constexpr Accepted VideoCompressionTypeValues[3] = {{0, 17}, {18, 18}, {19, 20}};
inline constexpr Accepted AudioCompressionTypeValues[3] = {{0, 0}, {1, 1}, {2, 2}};
inline constexpr Accepted VideoCompressionInfoValues[3] = {{0, 8}, {9, 9}, {10, 10}};

// Whether an essence of `type` takes `value`; any other type takes nothing.
inline bool Accepts(Essences::Type type, std::int32_t value, const Accepted (&accepted)[3]) noexcept {
    const auto index = static_cast<std::int32_t>(type);
    return index >= 0 && index <= 2 && value >= accepted[index].first && value <= accepted[index].last;
}

}  // namespace Korv::Plurex::Data::Clips::Detail

#pragma once

#include "PlurexData/Export.h"

#include <cstdint>

namespace Korv::Plurex::Data::Clips {

/// One stretch of material that a train recorded, as sample positions of its clip: from the in
/// position up to, not including, the out position.
class PLUREXDATA_API RecordingRange {
public:
    /// The empty range at position 0.
    constexpr RecordingRange() noexcept : inPosition(0), outPosition(0) {}
    /// From `in` up to, not including, `out`; nothing checks their order.
    constexpr RecordingRange(std::int64_t in, std::int64_t out) noexcept : inPosition(in), outPosition(out) {}

    /// The samples in the range; negative when the out position lies before the in position.
    std::int64_t GetDuration() const noexcept;

    /// Same in and out positions.
    ///@{
    bool operator==(const RecordingRange& other) const noexcept;
    bool operator!=(const RecordingRange& other) const noexcept { return !(*this == other); }
    ///@}

    std::int64_t inPosition;   ///< the first sample of the range
    std::int64_t outPosition;  ///< the sample after the last one
};

}  // namespace Korv::Plurex::Data::Clips

#pragma once

#include "PlurexData/Export.h"

namespace Korv::TimePoints {

/// A 64-bit time value with a distinguished empty value, the bit pattern 0x8000000000000001 that the
/// records use for "not set". The value is carried and compared; nothing here gives it a unit.
class PLUREXDATA_API TimePoint {
public:
    /// The raw value; nothing is checked.
    constexpr explicit TimePoint(long long value) noexcept : value_(value) {}

    /// The value that marks "not set".
    static constexpr TimePoint Empty() noexcept { return TimePoint(-0x7fffffffffffffffLL); }

    /// The raw value.
    constexpr long long GetValue() const noexcept { return value_; }

    /// Compare the raw values; Empty() equals only itself.
    ///@{
    constexpr bool operator==(const TimePoint& other) const noexcept { return value_ == other.value_; }
    constexpr bool operator!=(const TimePoint& other) const noexcept { return value_ != other.value_; }
    ///@}

private:
    long long value_;
};

}  // namespace Korv::TimePoints

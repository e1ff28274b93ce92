#pragma once

#include "PlurexData/Export.h"

namespace Korv::TimePoints {

// A 64-bit time value (nanoseconds of the system clock since the epoch) with a distinguished empty
// value, the bit pattern 0x8000000000000001 that the records use for "not set".
class PLUREXDATA_API TimePoint {
public:
    constexpr explicit TimePoint(long long value) noexcept : value_(value) {}

    static constexpr TimePoint Empty() noexcept { return TimePoint(-0x7fffffffffffffffLL); }

    constexpr long long GetValue() const noexcept { return value_; }

    constexpr bool operator==(const TimePoint& other) const noexcept { return value_ == other.value_; }
    constexpr bool operator!=(const TimePoint& other) const noexcept { return value_ != other.value_; }

private:
    long long value_;
};

}  // namespace Korv::TimePoints

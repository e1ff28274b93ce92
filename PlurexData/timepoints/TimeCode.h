#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/timepoints/Rate.h"

namespace Korv::TimePoints {

/// A position in time: the number of samples at `rate` since 1 January 1900 00:00:00 (which is
/// sample 0), with a drop-frame marker and a further flag byte that is carried and compared but
/// not interpreted.
class PLUREXDATA_API TimeCode {
public:
    /// Kept as given; nothing is checked. TimeCodeBuilder builds the count from a date and a time of day.
    constexpr TimeCode(const Rate& rate, long long totalSample, bool drop = false,
                       unsigned char flag = 0) noexcept
        : rate_(rate), totalSample_(totalSample), drop_(drop), flag_(flag) {}

    /// The rate the samples are counted at.
    constexpr const Rate& GetRate() const noexcept { return rate_; }
    /// The samples since 1 January 1900 00:00:00.
    constexpr long long GetTotalSample() const noexcept { return totalSample_; }
    /// The drop-frame marker.
    constexpr bool IsDropFrame() const noexcept { return drop_; }
    /// The flag byte, carried and compared but not interpreted.
    constexpr unsigned char GetFlag() const noexcept { return flag_; }

    /// Field by field: rate (numerator and denominator), both flags and the count.
    ///@{
    constexpr bool operator==(const TimeCode& other) const noexcept {
        return rate_ == other.rate_ && drop_ == other.drop_ && flag_ == other.flag_ &&
               totalSample_ == other.totalSample_;
    }
    constexpr bool operator!=(const TimeCode& other) const noexcept { return !(*this == other); }
    ///@}

private:
    Rate rate_;
    long long totalSample_;
    bool drop_;
    unsigned char flag_;
};

}  // namespace Korv::TimePoints

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/timepoints/Rate.h"

#include <optional>
#include <string>
#include <string_view>

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

    /// "YYYY-MM-DD HH:MM:SS:FF", with ";" before the frame of a drop-frame timecode, for every
    /// timecode TimeCodeBuilder::FromTimeCode splits; the frame takes at least two digits. Any other
    /// timecode, which no builder makes, reads "TotalSample <count> at <n>/<d>", with " drop-frame"
    /// added for the drop marker: this never throws for lack of a date, so it is safe in a log line.
    std::string ToString() const;
    /// The time of day of ToString: "HH:MM:SS:FF" (";" before the frame for drop-frame), or the same
    /// "TotalSample" form for a timecode no builder makes.
    std::string ToTimeOfDayString() const;
    /// The timecode at `rate` (flag byte 0) of "YYYY-MM-DD HH:MM:SS:FF" or "HH:MM:SS:FF", the date
    /// 1900-01-01 when left out; ";" before the frame builds a drop-frame timecode. Two digits for each
    /// field but the year (four) and the frame (two to ten, at most 2147483647), nothing before or after. Other text
    /// throws std::invalid_argument("Invalid timecode text: " followed by the text); fields that do not
    /// build throw TimeCodeBuilder's std::out_of_range, with its message.
    static TimeCode Parse(std::string_view text, const Rate& rate);
    /// Parse, empty instead of either exception.
    static std::optional<TimeCode> TryParse(std::string_view text, const Rate& rate);

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

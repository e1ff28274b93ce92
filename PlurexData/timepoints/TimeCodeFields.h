#pragma once

namespace Korv::TimePoints {

/// The calendar and clock fields of a timecode, as TimeCodeBuilder takes them and
/// TimeCodeBuilder::FromTimeCode gives them back.
struct TimeCodeFields {
    int year;    ///< 1900 to 2261
    int month;   ///< 1 to 12
    int day;     ///< 1 to the days of the month
    int hour;    ///< 0 to 23
    int minute;  ///< 0 to 59
    int second;  ///< 0 to 59
    int sample;  ///< the frame (sample) within the second, from 0

    /// Field by field.
    ///@{
    constexpr bool operator==(const TimeCodeFields& other) const noexcept {
        return year == other.year && month == other.month && day == other.day && hour == other.hour &&
               minute == other.minute && second == other.second && sample == other.sample;
    }
    constexpr bool operator!=(const TimeCodeFields& other) const noexcept { return !(*this == other); }
    ///@}
};

}  // namespace Korv::TimePoints

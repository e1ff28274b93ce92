#pragma once

#include "PlurexData/Export.h"

namespace Korv::TimePoints {

/// The Gregorian calendar, as the timecode builder counts it.
class PLUREXDATA_API CalendarTools {
public:
    CalendarTools() = delete;

    /// Divisible by 4, and either not by 100 or by 400.
    static bool IsLeapYear(int year) noexcept;
    /// The days of `month` (1 to 12) in `year`; any other month throws
    /// std::out_of_range("month " + month + " must be between 1 and 12").
    static int DayPerMonth(int year, int month);
    /// The days from 1 January 1900 to `day` of `month` in `year`, negative before 1900. The day is
    /// not checked against the month (day 0 is the last day of the month before); a month outside 1
    /// to 12 throws as DayPerMonth does.
    static long long DaysSince1900(int year, int month, int day);
};

}  // namespace Korv::TimePoints

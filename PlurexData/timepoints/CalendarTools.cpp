#include "PlurexData/timepoints/CalendarTools.h"

#include <cstdio>
#include <stdexcept>

namespace Korv::TimePoints {

namespace {

constexpr int daysPerMonth[2][12] = {{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31},
                                     {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}};

// The days of the year before the first of each month, from the rows above.
constexpr int daysBeforeMonth[2][12] = {{0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334},
                                        {0, 31, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335}};

void CheckMonth(int month) {
    if (month < 1 || month > 12) {
        char message[64];
        std::snprintf(message, sizeof message, "month %d must be between 1 and 12", month);
        throw std::out_of_range(message);
    }
}

long long FloorDivide(long long value, long long divisor) noexcept {
    const long long quotient = value / divisor;
    return (value % divisor != 0 && value < 0) ? quotient - 1 : quotient;
}

// Leap years from year 0 up to and including `year` (fewer than zero before year 0).
long long LeapYearsThrough(long long year) noexcept {
    return FloorDivide(year, 4) - FloorDivide(year, 100) + FloorDivide(year, 400);
}

}  // namespace

bool CalendarTools::IsLeapYear(int year) noexcept {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int CalendarTools::DayPerMonth(int year, int month) {
    CheckMonth(month);
    return daysPerMonth[IsLeapYear(year) ? 1 : 0][month - 1];
}

long long CalendarTools::DaysSince1900(int year, int month, int day) {
    CheckMonth(month);
    const long long years = static_cast<long long>(year) - 1900;
    const long long leapDays = LeapYearsThrough(static_cast<long long>(year) - 1) - LeapYearsThrough(1899);
    return years * 365 + leapDays + daysBeforeMonth[IsLeapYear(year) ? 1 : 0][month - 1] + day - 1;
}

}  // namespace Korv::TimePoints

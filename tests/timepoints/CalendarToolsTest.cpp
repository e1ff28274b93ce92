#include "PlurexData/timepoints/CalendarTools.h"

#include <gtest/gtest.h>

#include <ctime>
#include <stdexcept>
#include <string>

using Korv::TimePoints::CalendarTools;

TEST(CalendarTools, LeapYearsFollowTheGregorianRule) {
    struct Case {
        int year;
        bool leap;
    };
    for (const Case c :
         {Case{1900, false}, Case{2000, true}, Case{2100, false}, Case{2024, true}, Case{2023, false},
          Case{2400, true}, Case{2261, false}, Case{0, true}, Case{-4, true}, Case{-100, false}}) {
        EXPECT_EQ(CalendarTools::IsLeapYear(c.year), c.leap) << c.year;
        EXPECT_EQ(CalendarTools::DayPerMonth(c.year, 2), c.leap ? 29 : 28) << c.year;
    }
    const int common[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month) {
        EXPECT_EQ(CalendarTools::DayPerMonth(2023, month), common[month - 1]) << month;
    }
}

TEST(CalendarTools, MonthOutsideTheYearThrows) {
    for (int month : {0, 13, -1}) {
        try {
            CalendarTools::DayPerMonth(2000, month);
            ADD_FAILURE() << month;
        } catch (const std::out_of_range& e) {
            EXPECT_EQ(std::string(e.what()), "month " + std::to_string(month) + " must be between 1 and 12");
        }
        EXPECT_THROW(CalendarTools::DaysSince1900(2000, month, 1), std::out_of_range);
    }
}

// Walks every day from 1900 to the end of 2261 with the C library's calendar: the day count and
// the length of each month must agree with it.
TEST(CalendarTools, DaysAgreeWithTheCLibrary) {
    if (sizeof(std::time_t) < 8) {
        GTEST_SKIP() << "time_t cannot reach 1900 here";
    }
    std::tm first{};
    first.tm_year = 0;
    first.tm_mday = 1;
    const std::time_t start = timegm(&first);
    ASSERT_EQ(start, static_cast<std::time_t>(-2208988800LL));
    long long index = 0;
    std::tm day{};
    for (std::time_t t = start;; t += 86400, ++index) {
        ASSERT_NE(gmtime_r(&t, &day), nullptr);
        const int year = day.tm_year + 1900;
        if (year == 2262) {
            break;
        }
        ASSERT_EQ(CalendarTools::DaysSince1900(year, day.tm_mon + 1, day.tm_mday), index)
            << year << '-' << day.tm_mon + 1 << '-' << day.tm_mday;
        std::time_t next = t + 86400;
        std::tm following{};
        gmtime_r(&next, &following);
        if (following.tm_mday == 1) {
            ASSERT_EQ(CalendarTools::DayPerMonth(year, day.tm_mon + 1), day.tm_mday)
                << year << '-' << day.tm_mon + 1;
        }
    }
    EXPECT_EQ(index, 132218);
    // Day 0 is the last day of the month before; years before 1900 count down.
    EXPECT_EQ(CalendarTools::DaysSince1900(1900, 3, 0), 58);
    EXPECT_EQ(CalendarTools::DaysSince1900(1899, 12, 31), -1);
    EXPECT_EQ(CalendarTools::DaysSince1900(1896, 3, 1), -1401);
}

#include "PlurexData/timepoints/TimeCodeBuilder.h"

#include <gtest/gtest.h>

#include <climits>
#include <ctime>
#include <limits>
#include <stdexcept>
#include <string>

using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::TimeCodeBuilder;

namespace {

struct Fields {
    int year = 2024, month = 1, day = 1, hour = 0, minute = 0, second = 0, sample = 0;
    Rate rate{25, 1};
    bool drop = false;

    TimeCodeBuilder Builder(unsigned char flag = 0) const {
        return TimeCodeBuilder(year, month, day, hour, minute, second, sample, rate, drop, flag);
    }
};

// "valid", or the message of the std::out_of_range the validation throws.
std::string Check(const Fields& fields) {
    try {
        return fields.Builder().IsValidToBuildWithexception() ? "valid" : "false";
    } catch (const std::out_of_range& e) {
        return e.what();
    }
}

Fields Clock(int hour, int minute, int second, int sample, Rate rate, bool drop) {
    Fields f;
    f.year = 1900;
    f.hour = hour;
    f.minute = minute;
    f.second = second;
    f.sample = sample;
    f.rate = rate;
    f.drop = drop;
    return f;
}

long long Count(const Fields& fields) {
    return fields.Builder().Build().GetTotalSample();
}

}  // namespace

// Starts with every field wrong and mends one at a time: each message names the next field.
TEST(TimeCodeBuilder, ChecksRunInOrder) {
    Fields f{1899, 13, 32, 24, 60, 60, 25, Rate(25, 1001), true};
    const std::pair<void (*)(Fields&), const char*> steps[] = {
        {[](Fields&) {}, "year 1899 must be between 1900 and 2261"},
        {[](Fields& g) { g.year = 2024; }, "month 13 must be between 1 and 12"},
        {[](Fields& g) { g.month = 2; }, "day 32is negative or greater than 29 in month 2"},
        {[](Fields& g) { g.day = 29; }, "hour 24 must be between 0 and 23"},
        {[](Fields& g) { g.hour = 23; }, "minute 60 must be between 0 and 59"},
        {[](Fields& g) { g.minute = 1; }, "second 60 must be between 0 and 59"},
        {[](Fields& g) { g.second = 0; }, "Denominator 1001 must be between equals to 1"},
        {[](Fields& g) { g.rate = Rate(25, 1); }, "Sample 25 is greater than numerator ratio 25"},
        // A dropped frame number is reported before the rate that cannot drop frames.
        {[](Fields& g) { g.sample = 2; }, "In dropped TimeCode, this value doesn't exist 1:0;2"},
        {[](Fields& g) { g.sample = 5; }, "Rate 25 / 1 is not compatible with drop TC format"},
        {[](Fields& g) { g.rate = Rate(60, 1); }, "valid"},
    };
    for (const auto& [mend, message] : steps) {
        mend(f);
        EXPECT_EQ(Check(f), message);
    }
}

TEST(TimeCodeBuilder, FieldBounds) {
    struct Case {
        void (*set)(Fields&);
        const char* expected;
    };
    const Case cases[] = {
        {[](Fields& f) { f.year = 1900; }, "valid"},
        {[](Fields& f) { f.year = 2261; }, "valid"},
        {[](Fields& f) { f.year = 2262; }, "year 2262 must be between 1900 and 2261"},
        {[](Fields& f) { f.year = INT_MIN; }, "year -2147483648 must be between 1900 and 2261"},
        {[](Fields& f) { f.month = 0; }, "month 0 must be between 1 and 12"},
        {[](Fields& f) { f.month = 12; }, "valid"},
        {[](Fields& f) { f.month = -1; }, "month -1 must be between 1 and 12"},
        {[](Fields& f) { f.day = 0; }, "day 0is negative or greater than 31 in month 1"},
        {[](Fields& f) { f.day = -5; }, "day -5is negative or greater than 31 in month 1"},
        {[](Fields& f) { f.day = 31; }, "valid"},
        {[](Fields& f) { f.day = 32; }, "day 32is negative or greater than 31 in month 1"},
        {[](Fields& f) { f.month = 4, f.day = 31; }, "day 31is negative or greater than 30 in month 4"},
        {[](Fields& f) { f.year = 2000, f.month = 2, f.day = 29; }, "valid"},
        {[](Fields& f) { f.year = 2024, f.month = 2, f.day = 29; }, "valid"},
        {[](Fields& f) { f.year = 1900, f.month = 2, f.day = 29; },
         "day 29is negative or greater than 28 in month 2"},
        {[](Fields& f) { f.year = 2100, f.month = 2, f.day = 29; },
         "day 29is negative or greater than 28 in month 2"},
        {[](Fields& f) { f.year = 2000, f.month = 2, f.day = 30; },
         "day 30is negative or greater than 29 in month 2"},
        {[](Fields& f) { f.hour = -1; }, "hour -1 must be between 0 and 23"},
        {[](Fields& f) { f.hour = 23; }, "valid"},
        {[](Fields& f) { f.hour = 24; }, "hour 24 must be between 0 and 23"},
        {[](Fields& f) { f.minute = -1; }, "minute -1 must be between 0 and 59"},
        {[](Fields& f) { f.minute = 59; }, "valid"},
        {[](Fields& f) { f.minute = 60; }, "minute 60 must be between 0 and 59"},
        {[](Fields& f) { f.second = -1; }, "second -1 must be between 0 and 59"},
        {[](Fields& f) { f.second = INT_MIN; }, "second -2147483648 must be between 0 and 59"},
        {[](Fields& f) { f.second = 59; }, "valid"},
        {[](Fields& f) { f.second = 60; }, "second 60 must be between 0 and 59"},
        {[](Fields& f) { f.rate = Rate(30000, 1001); }, "Denominator 1001 must be between equals to 1"},
        {[](Fields& f) { f.rate = Rate(25, 0); }, "Denominator 0 must be between equals to 1"},
        {[](Fields& f) { f.rate = Rate(25, -1); }, "Denominator -1 must be between equals to 1"},
        {[](Fields& f) { f.rate = Rate(50, 2); }, "Denominator 2 must be between equals to 1"},
        {[](Fields& f) { f.sample = 24; }, "valid"},
        {[](Fields& f) { f.sample = 25; }, "Sample 25 is greater than numerator ratio 25"},
        {[](Fields& f) { f.sample = 26; }, "Sample 26 is greater than numerator ratio 25"},
        // The sample has no lower bound, and is compared with the numerator in 64 bits.
        {[](Fields& f) { f.sample = INT_MIN; }, "valid"},
        {[](Fields& f) { f.sample = INT_MAX, f.rate = Rate(4294967296LL, 1); }, "valid"},
        {[](Fields& f) { f.rate = Rate(0, 1); }, "Sample 0 is greater than numerator ratio 0"},
        {[](Fields& f) { f.rate = Rate(-5, 1); }, "Sample 0 is greater than numerator ratio -5"},
        {[](Fields& f) { f.rate = Rate(LLONG_MIN, 1); },
         "Sample 0 is greater than numerator ratio -9223372036854775808"},
    };
    for (const Case& c : cases) {
        Fields f;
        c.set(f);
        EXPECT_EQ(Check(f), c.expected);
    }
}

TEST(TimeCodeBuilder, DropFrameRules) {
    struct Case {
        int minute, second, sample;
        long long numerator;
        const char* expected;
    };
    const Case cases[] = {
        {1, 0, 0, 30, "In dropped TimeCode, this value doesn't exist 1:0;0"},
        {1, 0, 1, 30, "In dropped TimeCode, this value doesn't exist 1:0;1"},
        {1, 0, -1, 30, "In dropped TimeCode, this value doesn't exist 1:0;-1"},
        {1, 0, 2, 30, "valid"},
        {59, 0, 1, 30, "In dropped TimeCode, this value doesn't exist 59:0;1"},
        {10, 0, 0, 30, "valid"},
        {0, 0, 0, 30, "valid"},
        {1, 1, 0, 30, "valid"},
        {1, 0, 3, 60, "In dropped TimeCode, this value doesn't exist 1:0;3"},
        {1, 0, 4, 60, "valid"},
        {20, 0, 0, 60, "valid"},
        {1, 0, 2, 25, "In dropped TimeCode, this value doesn't exist 1:0;2"},
        {1, 0, 4, 25, "Rate 25 / 1 is not compatible with drop TC format"},
        {0, 5, 0, 25, "Rate 25 / 1 is not compatible with drop TC format"},
        {10, 0, 0, 24, "Rate 24 / 1 is not compatible with drop TC format"},
        {1, 0, 3, 120, "In dropped TimeCode, this value doesn't exist 1:0;3"},
        {1, 0, 4, 120, "Rate 120 / 1 is not compatible with drop TC format"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Check(Clock(0, c.minute, c.second, c.sample, Rate(c.numerator, 1), true)), c.expected)
            << c.minute << ':' << c.second << ';' << c.sample << " at " << c.numerator;
    }
}

TEST(TimeCodeBuilder, BuildValidatesFirstAndCarriesRateDropAndFlag) {
    Fields bad;
    bad.year = 1899;
    try {
        bad.Builder().Build();
        ADD_FAILURE() << "built";
    } catch (const std::out_of_range& e) {
        EXPECT_STREQ(e.what(), "year 1899 must be between 1900 and 2261");
    }
    // 1 January 1900 00:00:00:00 is sample 0 at every rate: the clip record relies on it.
    EXPECT_EQ(Clock(0, 0, 0, 0, Rate(50, 1), false).Builder().Build(), TimeCode(Rate(50, 1), 0));
    EXPECT_EQ(Clock(0, 0, 0, 0, Rate(60, 1), true).Builder(1).Build(), TimeCode(Rate(60, 1), 0, true, 1));
    Fields f = Clock(0, 0, 1, 3, Rate(60, 1), true);
    const TimeCode tc = f.Builder(0xAB).Build();
    EXPECT_EQ(tc, TimeCode(Rate(60, 1), 63, true, 0xAB));
}

// Build at rate 1/1 counts seconds since 1900, which the C library can count too.
TEST(TimeCodeBuilder, NonDropCountsAgreeWithTheCLibrary) {
    if (sizeof(std::time_t) < 8) {
        GTEST_SKIP() << "time_t cannot reach 1900 here";
    }
    std::tm epoch{};
    epoch.tm_mday = 1;
    const std::time_t base = timegm(&epoch);
    struct When {
        int year, month, day, hour, minute, second;
    };
    for (const When w : {When{1900, 1, 1, 0, 0, 1}, When{1900, 3, 1, 0, 0, 0}, When{1970, 1, 1, 0, 0, 0},
                         When{2000, 2, 29, 12, 30, 45}, When{2024, 12, 31, 23, 59, 59},
                         When{2100, 3, 1, 1, 2, 3}, When{2261, 12, 31, 23, 59, 59}}) {
        std::tm tm{};
        tm.tm_year = w.year - 1900;
        tm.tm_mon = w.month - 1;
        tm.tm_mday = w.day;
        tm.tm_hour = w.hour;
        tm.tm_min = w.minute;
        tm.tm_sec = w.second;
        const long long seconds = static_cast<long long>(timegm(&tm) - base);
        Fields f{w.year, w.month, w.day, w.hour, w.minute, w.second, 0, Rate(1, 1), false};
        EXPECT_EQ(Count(f), seconds) << w.year << '-' << w.month << '-' << w.day;
        f.rate = Rate(50, 1);
        f.sample = 49;
        EXPECT_EQ(Count(f), seconds * 50 + 49) << w.year << '-' << w.month << '-' << w.day;
    }
}

// Worked by hand: frames 0 and 1 (at 30) or 0 to 3 (at 60) of each minute not divisible by ten do
// not exist, so the count runs on without a gap across them, across ten minutes and across midnight.
TEST(TimeCodeBuilder, DropFrameCounts) {
    struct Case {
        long long numerator;
        int day, hour, minute, second, sample;
        long long expected;
    };
    const Case cases[] = {
        {30, 1, 0, 0, 59, 29, 1799},  {30, 1, 0, 1, 0, 2, 1800},        {30, 1, 0, 1, 59, 29, 3597},
        {30, 1, 0, 2, 0, 2, 3598},    {30, 1, 0, 9, 59, 29, 17981},     {30, 1, 0, 10, 0, 0, 17982},
        {30, 1, 0, 10, 0, 1, 17983},  {30, 1, 0, 10, 59, 29, 19781},    {30, 1, 0, 11, 0, 2, 19782},
        {30, 1, 1, 0, 0, 0, 107892},  {30, 1, 23, 59, 59, 29, 2589407}, {30, 2, 0, 0, 0, 0, 2589408},
        {30, 2, 0, 1, 0, 2, 2591208}, {30, 11, 0, 0, 0, 0, 25894080},   {60, 1, 0, 0, 59, 59, 3599},
        {60, 1, 0, 1, 0, 4, 3600},    {60, 1, 0, 9, 59, 59, 35963},     {60, 1, 0, 10, 0, 0, 35964},
        {60, 1, 0, 10, 0, 3, 35967},  {60, 1, 1, 0, 0, 0, 215784},      {60, 1, 23, 59, 59, 59, 5178815},
        {60, 2, 0, 0, 0, 0, 5178816}, {60, 2, 0, 1, 0, 4, 5182416},
    };
    for (const Case& c : cases) {
        Fields f = Clock(c.hour, c.minute, c.second, c.sample, Rate(c.numerator, 1), true);
        f.day = c.day;
        EXPECT_EQ(Count(f), c.expected) << "day " << c.day << ' ' << c.hour << ':' << c.minute << ':'
                                        << c.second << ';' << c.sample << " at " << c.numerator;
    }
}

TEST(TimeCodeBuilder, CountsThatCannotBeHeldThrow) {
    Fields f = Clock(0, 0, 0, -1, Rate(25, 1), false);
    try {
        f.Builder().Build();
        ADD_FAILURE() << "built";
    } catch (const std::out_of_range& e) {
        EXPECT_STREQ(e.what(), "TotalSample -1 must not be negative");
    }
    f.second = 1;
    EXPECT_EQ(Count(f), 24);
    f.rate = Rate(0, 1);
    EXPECT_THROW(f.Builder().Build(), std::out_of_range);

    Fields last{2261, 12, 31, 23, 59, 59, 0, Rate(800000000, 1), false};
    EXPECT_EQ(Count(last), 11423635199LL * 800000000);
    last.rate = Rate(1000000000, 1);
    try {
        last.Builder().Build();
        ADD_FAILURE() << "built";
    } catch (const std::out_of_range& e) {
        EXPECT_STREQ(e.what(), "TotalSample does not fit in 64 bits at rate 1000000000 / 1");
    }
    // 64 seconds at 2^57 is 2^63 samples, one past the range; a negative sample brings the count
    // back into it, and only the count has to fit.
    const Fields edge{1900, 1, 1, 0, 1, 4, -68, Rate(1LL << 57, 1), false};
    EXPECT_EQ(Count(edge), std::numeric_limits<long long>::max() - 67);
}

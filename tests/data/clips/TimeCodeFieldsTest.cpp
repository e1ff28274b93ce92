#include "PlurexData/data/clips/detail/TimeCodeFields.h"
#include "PlurexData/timepoints/TimeCodeBuilder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <ctime>
#include <limits>

using Korv::Plurex::Data::Clips::Detail::SplitTimeCode;
using Korv::Plurex::Data::Clips::Detail::TimeCodeFields;
using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::TimeCodeBuilder;

namespace {

TimeCode Rebuilt(const TimeCodeFields& f, const TimeCode& original) {
    return TimeCodeBuilder(f.year, f.month, f.day, f.hour, f.minute, f.second, f.frame, original.GetRate(),
                           original.IsDropFrame(), original.GetFlag())
        .Build();
}

// Seconds from 1900 to 1970.
constexpr long long Epoch1900 = 2208988800LL;

}  // namespace

// Every count up to the end of 2261 splits into fields that the builder turns back into it.
TEST(TimeCodeFields, SplitIsTheInverseOfTheBuilder) {
    struct Kind {
        long long rate;
        bool drop;
    };
    for (const Kind kind :
         {Kind{50, false}, Kind{60, false}, Kind{25, false}, Kind{60, true}, Kind{30, true}}) {
        const Rate rate(kind.rate, 1);
        const long long last =
            TimeCodeBuilder(2261, 12, 31, 23, 59, 59, static_cast<int>(kind.rate - 1), rate, kind.drop)
                .Build()
                .GetTotalSample();
        // Both ends, the first minutes (where drop-frame skips its first labels), and a spread between.
        std::uint64_t seed = 88172645463325252ULL;
        for (int i = 0; i < 20000; ++i) {
            long long count = 0;
            if (i < 4000) {
                count = i < 2000 ? i * 17 : last - (i - 2000) * 13;
            } else {
                seed ^= seed << 13, seed ^= seed >> 7, seed ^= seed << 17;
                count = static_cast<long long>(seed % static_cast<std::uint64_t>(last + 1));
            }
            const TimeCode original(rate, count, kind.drop, 3);
            TimeCodeFields fields{};
            ASSERT_TRUE(SplitTimeCode(original, fields)) << kind.rate << " " << count;
            ASSERT_EQ(Rebuilt(fields, original), original) << kind.rate << " " << kind.drop << " " << count;
        }
        TimeCodeFields fields{};
        EXPECT_FALSE(SplitTimeCode(TimeCode(rate, last + 1, kind.drop), fields)) << kind.rate;
    }
}

// Against the C library's calendar, where time_t reaches.
TEST(TimeCodeFields, AgreesWithGmtime) {
    const long long endOf2261 =
        TimeCodeBuilder(2261, 12, 31, 23, 59, 59, 0, Rate(1, 1)).Build().GetTotalSample();
    const long long lastSecond = sizeof(std::time_t) == 8 ? endOf2261 : Epoch1900 + 0x7FFFFFFFLL;
    const long long firstSecond = sizeof(std::time_t) == 8 ? 0 : Epoch1900 - 0x7FFFFFFFLL;
    for (long long second = firstSecond; second < lastSecond; second += 86400LL * 97 + 3607) {
        TimeCodeFields fields{};
        ASSERT_TRUE(SplitTimeCode(TimeCode(Rate(50, 1), second * 50 + 49), fields));
        const std::time_t time = static_cast<std::time_t>(second - Epoch1900);
        std::tm tm{};
        ASSERT_NE(gmtime_r(&time, &tm), nullptr);
        EXPECT_EQ(
            (std::array{fields.year, fields.month, fields.day, fields.hour, fields.minute, fields.second,
                        fields.frame}),
            (std::array{tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec, 49}))
            << second;
    }
}

TEST(TimeCodeFields, RefusesWhatNoBuilderMakes) {
    const TimeCode refused[] = {
        TimeCode(Rate(50, 1), -1),
        TimeCode(Rate(0, 1), 0),
        TimeCode(Rate(-50, 1), 10),
        TimeCode(Rate(30000, 1001), 10),
        TimeCode(Rate(1LL << 31, 1), 10),
        TimeCode(Rate(25, 1), 10, true),
        TimeCode(Rate(50, 1), std::numeric_limits<long long>::max()),
        TimeCode(Rate(1, 1), std::numeric_limits<long long>::max()),
    };
    for (const TimeCode& timeCode : refused) {
        TimeCodeFields fields{};
        EXPECT_FALSE(SplitTimeCode(timeCode, fields)) << timeCode.GetRate().GetNumerator();
    }
    // At 60/1 drop-frame minute 0 has all 3600 labels, minutes 1 to 9 start at label 4, minute 10 at 0.
    struct Case {
        long long count;
        int minute, second, frame;
    };
    for (const Case& c : {Case{3599, 0, 59, 59}, Case{3600, 1, 0, 4}, Case{3600 + 3596, 2, 0, 4},
                          Case{3600 + 9 * 3596 - 1, 9, 59, 59}, Case{3600 + 9 * 3596, 10, 0, 0}}) {
        TimeCodeFields fields{};
        ASSERT_TRUE(SplitTimeCode(TimeCode(Rate(60, 1), c.count, true), fields));
        EXPECT_EQ(fields.minute * 10000 + fields.second * 100 + fields.frame,
                  c.minute * 10000 + c.second * 100 + c.frame)
            << c.count;
    }
}

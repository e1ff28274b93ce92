#include "PlurexData/timepoints/TimeCode.h"
#include "PlurexData/timepoints/TimeCodeBuilder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <ctime>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>

using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::TimeCodeBuilder;
using Korv::TimePoints::TimeCodeFields;

namespace {

struct Kind {
    long long rate;
    bool drop;
};
constexpr Kind Kinds[] = {{25, false}, {30, false}, {30, true}, {50, false},
                          {60, false}, {60, true},  {24, false}};

// Seconds from 1900 to 1970.
constexpr long long Epoch1900 = 2208988800LL;

long long LastCount(const Kind& kind) {
    return TimeCodeBuilder(2261, 12, 31, 23, 59, 59, static_cast<int>(kind.rate - 1), Rate(kind.rate, 1),
                           kind.drop)
        .Build()
        .GetTotalSample();
}

// Valid fields at random, the labels that drop-frame skips moved to the first one it keeps.
TimeCodeFields RandomFields(std::mt19937_64& random, const Kind& kind) {
    const auto in = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    TimeCodeFields f{in(1900, 2261), in(1, 12), in(1, 28), in(0, 23), in(0, 59), in(0, 59),
                     in(0, static_cast<int>(kind.rate - 1))};
    if (kind.drop && f.minute % 10 != 0 && f.second == 0 && f.sample < kind.rate / 15) {
        f.sample = static_cast<int>(kind.rate / 15);
    }
    return f;
}

std::string MessageOf(const TimeCode& timeCode) {
    try {
        TimeCodeBuilder::FromTimeCode(timeCode);
        return "split";
    } catch (const std::out_of_range& e) {
        return e.what();
    }
}

template <class Exception>
std::string ParseMessage(const std::string& text, const Rate& rate) {
    try {
        TimeCode::Parse(text, rate);
        return "parsed";
    } catch (const Exception& e) {
        return e.what();
    }
}

}  // namespace

// Both ways round, at every common rate: fields -> count -> fields, and count -> fields -> count (the
// ends of the range and the first minutes, where drop-frame skips labels, included).
TEST(TimeCodeSplit, IsTheInverseOfTheBuilder) {
    std::mt19937_64 random(20261123);
    for (const Kind& kind : Kinds) {
        const Rate rate(kind.rate, 1);
        for (int i = 0; i < 5000; ++i) {
            const TimeCodeFields fields = RandomFields(random, kind);
            const TimeCode built = TimeCodeBuilder(fields, rate, kind.drop, 7).Build();
            const TimeCodeBuilder split = TimeCodeBuilder::FromTimeCode(built);
            ASSERT_EQ(split.GetFields(), fields) << kind.rate << " " << built.ToString();
            ASSERT_EQ(split.GetRate(), rate);
            ASSERT_EQ(split.IsDropFrame(), kind.drop);
            ASSERT_EQ(split.GetFlag(), 7);
        }
        const long long last = LastCount(kind);
        for (int i = 0; i < 20000; ++i) {
            const long long count = i < 2000   ? i * 17
                                    : i < 4000 ? last - (i - 2000) * 13
                                               : std::uniform_int_distribution<long long>(0, last)(random);
            const TimeCode original(rate, count, kind.drop, 3);
            ASSERT_EQ(TimeCodeBuilder::FromTimeCode(original).Build(), original) << kind.rate << " " << count;
        }
        EXPECT_EQ(MessageOf(TimeCode(rate, last + 1, kind.drop)), "year 2262 must be between 1900 and 2261");
    }
}

// Against the C library's calendar, where time_t reaches.
TEST(TimeCodeSplit, AgreesWithGmtime) {
    const long long endOf2261 = LastCount(Kind{1, false});
    const long long lastSecond = sizeof(std::time_t) == 8 ? endOf2261 : Epoch1900 + 0x7FFFFFFFLL;
    const long long firstSecond = sizeof(std::time_t) == 8 ? 0 : Epoch1900 - 0x7FFFFFFFLL;
    for (long long second = firstSecond; second < lastSecond; second += 86400LL * 97 + 3607) {
        const TimeCodeFields f = TimeCodeBuilder::FromTimeCode(TimeCode(Rate(50, 1), second * 50 + 49)).GetFields();
        const std::time_t time = static_cast<std::time_t>(second - Epoch1900);
        std::tm tm{};
        ASSERT_NE(gmtime_r(&time, &tm), nullptr);
        EXPECT_EQ((std::array{f.year, f.month, f.day, f.hour, f.minute, f.second, f.sample}),
                  (std::array{tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec, 49}))
            << second;
    }
}

TEST(TimeCodeSplit, NamesWhyNoBuilderMakesATimecode) {
    constexpr long long max = std::numeric_limits<long long>::max();
    const std::pair<TimeCode, std::string> refused[] = {
        {TimeCode(Rate(30000, 1001), -1, true), "Denominator 1001 must be between equals to 1"},
        {TimeCode(Rate(0, 1), -1), "Rate 0 / 1 is not positive"},
        {TimeCode(Rate(-50, 1), 10), "Rate -50 / 1 is not positive"},
        {TimeCode(Rate(50, 1), -1, true), "TotalSample -1 is negative"},
        {TimeCode(Rate(25, 1), max, true), "Rate 25 / 1 is not compatible with drop TC format"},
        {TimeCode(Rate(1LL << 40, 1), (1LL << 31) + (1LL << 40)), "Sample 2147483648 does not fit in 32 bits"},
        {TimeCode(Rate(50, 1), max), "year 5845542392 must be between 1900 and 2261"},
        {TimeCode(Rate(1, 1), max), "year 292277026526 must be between 1900 and 2261"},
    };
    for (const auto& [timeCode, message] : refused) {
        EXPECT_EQ(MessageOf(timeCode), message);
        EXPECT_FALSE(TimeCodeBuilder::TryFromTimeCode(timeCode).has_value()) << message;
    }
    // A builder at a rate past 2^31 makes small frame numbers, and they split back.
    const TimeCode wide(Rate(1LL << 40, 1), 10);
    EXPECT_EQ(TimeCodeBuilder::FromTimeCode(wide).Build(), wide);
    // At 60/1 drop-frame minute 0 has all 3600 labels, minutes 1 to 9 start at label 4, minute 10 at 0.
    for (const auto& [count, text] : {std::pair{3599LL, "00:00:59;59"}, {3600LL, "00:01:00;04"},
                                      {3600LL + 3596, "00:02:00;04"}, {3600LL + 9 * 3596 - 1, "00:09:59;59"},
                                      {3600LL + 9 * 3596, "00:10:00;00"}}) {
        EXPECT_EQ(TimeCode(Rate(60, 1), count, true).ToTimeOfDayString(), text) << count;
    }
}

TEST(TimeCodeText, PrintsAndParsesBothForms) {
    const TimeCode drop = TimeCodeBuilder(2024, 7, 14, 20, 31, 0, 4, Rate(30, 1), true).Build();
    EXPECT_EQ(drop.ToString(), "2024-07-14 20:31:00;04");
    EXPECT_EQ(drop.ToTimeOfDayString(), "20:31:00;04");
    EXPECT_EQ(TimeCodeBuilder(1900, 1, 1, 0, 0, 0, 123, Rate(250, 1)).Build().ToString(), "1900-01-01 00:00:00:123");
    const TimeCode widest(Rate(1LL << 31, 1), INT32_MAX);
    EXPECT_EQ(TimeCode::Parse(widest.ToString(), widest.GetRate()), widest);
    // Timecodes without a builder still print, as their count and rate.
    EXPECT_EQ(TimeCode(Rate(30000, 1001), 5).ToString(), "TotalSample 5 at 30000/1001");
    EXPECT_EQ(TimeCode(Rate(25, 1), -2, true).ToTimeOfDayString(), "TotalSample -2 at 25/1 drop-frame");

    std::mt19937_64 random(7);
    for (const Kind& kind : Kinds) {
        const Rate rate(kind.rate, 1);
        for (int i = 0; i < 2000; ++i) {
            TimeCodeFields fields = RandomFields(random, kind);
            const TimeCode original = TimeCodeBuilder(fields, rate, kind.drop).Build();
            ASSERT_EQ(TimeCode::Parse(original.ToString(), rate), original) << original.ToString();
            fields.year = 1900, fields.month = 1, fields.day = 1;
            ASSERT_EQ(TimeCode::TryParse(original.ToTimeOfDayString(), rate),
                      TimeCodeBuilder(fields, rate, kind.drop).Build())
                << original.ToTimeOfDayString();
        }
    }
}

TEST(TimeCodeText, RefusesOtherTextAndInvalidFields) {
    const Rate rate(30, 1);
    for (const char* text : {"", "20:31:00", "20:31:00:4", "20:31:00.04", "2:31:00:04", "20:31:00:04 ",
                             " 20:31:00:04", "20:31:00:00000000004", "00:00:00:2147483648", "2024-07-14T20:31:00:04", "2024-7-14 20:31:00:04",
                             "2024-07-14  20:31:00:04", "-1:31:00:04", "20:31:+0:04", "24-07-14 20:31:00:04"}) {
        EXPECT_EQ(ParseMessage<std::invalid_argument>(text, rate), "Invalid timecode text: " + std::string(text));
        EXPECT_FALSE(TimeCode::TryParse(text, rate).has_value()) << text;
    }
    // Well-formed text goes through the builder, whose message stands as it is.
    const std::pair<const char*, const char*> invalid[] = {
        {"2023-02-29 00:00:00:00", "day 29is negative or greater than 28 in month 2"},
        {"2262-01-01 00:00:00:00", "year 2262 must be between 1900 and 2261"},
        {"24:00:00:00", "hour 24 must be between 0 and 23"},
        {"00:01:00;01", "In dropped TimeCode, this value doesn't exist 1:0;1"},
        {"00:00:00:30", "Sample 30 is greater than numerator ratio 30"},
    };
    for (const auto& [text, message] : invalid) {
        EXPECT_EQ(ParseMessage<std::out_of_range>(text, rate), message);
        EXPECT_FALSE(TimeCode::TryParse(text, rate).has_value()) << text;
    }
    EXPECT_EQ(ParseMessage<std::out_of_range>("00:00:01;00", Rate(25, 1)),
              "Rate 25 / 1 is not compatible with drop TC format");
}

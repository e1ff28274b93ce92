#include "PlurexData/timepoints/TimeCode.h"
#include "PlurexData/timepoints/TimePoint.h"
#include "PlurexData/timepoints/VideoRates.h"

#include <gtest/gtest.h>

#include <cstdint>

using namespace Korv::TimePoints;

TEST(TimeCode, EqualityComparesEveryFieldAndRatesAsGiven) {
    const TimeCode base(Rate(50, 1), 1000, true, 1);
    EXPECT_EQ(base, TimeCode(Rate(50, 1), 1000, true, 1));
    const TimeCode others[] = {
        TimeCode(Rate(60, 1), 1000, true, 1),  TimeCode(Rate(50, 2), 1000, true, 1),
        TimeCode(Rate(100, 2), 1000, true, 1), TimeCode(Rate(50, 1), 1001, true, 1),
        TimeCode(Rate(50, 1), 1000, false, 1), TimeCode(Rate(50, 1), 1000, true, 0),
    };
    for (const TimeCode& other : others) {
        EXPECT_NE(base, other) << other.GetRate().GetNumerator() << '/' << other.GetRate().GetDenominator()
                               << ' ' << other.GetTotalSample() << ' ' << other.IsDropFrame() << ' '
                               << int{other.GetFlag()};
        EXPECT_FALSE(base == other);
    }
    EXPECT_NE(Rate(50, 1), Rate(100, 2));
}

TEST(TimeCode, VideoRatesAreSharedConstants) {
    EXPECT_EQ(VideoRates::Rate50(), Rate(50, 1));
    EXPECT_EQ(VideoRates::Rate60(), Rate(60, 1));
    EXPECT_EQ(&VideoRates::Rate50(), &VideoRates::Rate50());
    EXPECT_EQ(&VideoRates::Rate60(), &VideoRates::Rate60());
}

TEST(TimePoint, EmptyIsTheUnsetBitPattern) {
    EXPECT_EQ(static_cast<std::uint64_t>(TimePoint::Empty().GetValue()), 0x8000000000000001u);
    EXPECT_EQ(TimePoint::Empty(), TimePoint(INT64_MIN + 1));
    EXPECT_NE(TimePoint::Empty(), TimePoint(INT64_MIN));
    EXPECT_NE(TimePoint::Empty(), TimePoint(0));
}

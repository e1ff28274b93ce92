#include "PlurexData/data/timelines/TimelineId.h"

#include <gtest/gtest.h>

#include <stdexcept>

using Korv::Plurex::Data::Servers::ServerId;
using Korv::Plurex::Data::Timelines::TimelineId;

TEST(TimelineId, NumbersRunFrom0To109) {
    EXPECT_EQ(TimelineId(109, ServerId(20)).GetNumber(), 109);
    for (int number : {110, -1, -2147483647 - 1}) {
        try {
            TimelineId(number, ServerId(20));
            ADD_FAILURE() << number;
        } catch (const std::invalid_argument& e) {
            EXPECT_STREQ(e.what(), "invalid number");
        }
    }
    TimelineId id(7, ServerId(10));
    EXPECT_THROW(id.SetNumber(200), std::invalid_argument);
    EXPECT_EQ(id.GetNumber(), 7);
    const ServerId* null = nullptr;
    try {
        id.SetServerId(null);
        ADD_FAILURE();
    } catch (const std::invalid_argument& e) {
        EXPECT_STREQ(e.what(), "null ServerId");
    }
}

TEST(TimelineId, CompareIgnoresTheServerWhileEqualsDoesNot) {
    const TimelineId a(5, ServerId(10)), b(5, ServerId(20));
    EXPECT_EQ(a.CompareTo(b), 0);
    EXPECT_FALSE(a.Equals(b));
    EXPECT_FALSE(a == b);
    EXPECT_EQ(TimelineId(9, ServerId(10)).CompareTo(TimelineId(2, ServerId(30))), 7);
    const TimelineId* null = nullptr;
    EXPECT_EQ(a.CompareTo(null), 1);
    EXPECT_FALSE(a.Equals(null));
}

TEST(TimelineId, EmptyAndText) {
    EXPECT_TRUE(TimelineId::IsNullOrEmpty(TimelineId()));
    EXPECT_TRUE(TimelineId::IsNullOrEmpty(static_cast<const TimelineId*>(nullptr)));
    EXPECT_FALSE(TimelineId::IsNullOrEmpty(TimelineId(0, ServerId(10))));
    EXPECT_EQ(TimelineId::cEmpty.ToString(), "000/   -1");
    EXPECT_EQ(TimelineId(7, ServerId(10)).ToString(), "007/   10");
    EXPECT_EQ(TimelineId(42, ServerId(120)).ToString(), "042/  120");
}

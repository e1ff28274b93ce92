#include "PlurexData/channels/RecorderState.h"

#include <gtest/gtest.h>

#include <cstdint>

using Korv::Plurex::Data::Channels::RecorderState;

TEST(RecorderState, EqualityLeavesOutTheFlagByteAndAbsentClips) {
    RecorderState a, b;
    EXPECT_TRUE(a == b);
    EXPECT_EQ(a.ChannelMode(), 1);
    EXPECT_EQ(a.firstTimeValue, static_cast<std::int64_t>(0x8000000000000001ULL));
    b.flagByte = 7;
    EXPECT_TRUE(a == b);
    b.clip.value1 = 3;
    EXPECT_TRUE(a == b);
    a.clipPresent = b.clipPresent = true;
    EXPECT_FALSE(a == b);
    b.clip.value1 = 0;
    EXPECT_TRUE(a == b);
    b.thirdValue = 1;
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(RecorderState(1, 2) == RecorderState(1, 3));
}

TEST(RecorderState, CompareStatusSeesNameAndStatusOnly) {
    RecorderState a, b;
    EXPECT_EQ(static_cast<std::uint32_t>(a.CompareStatus(b)), 0u);
    b.firstValue = 5;
    b.clipPresent = true;
    EXPECT_EQ(static_cast<std::uint32_t>(a.CompareStatus(b)), 0u);
    b.status = 2;
    EXPECT_EQ(static_cast<std::uint32_t>(a.CompareStatus(b)), 0x2u);
    b.SetName("REC1");
    EXPECT_EQ(static_cast<std::uint32_t>(a.CompareStatus(b)), 0x3u);
}

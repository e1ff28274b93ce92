#include "Marks.h"
#include "PlurexData/cuepoints/CuePoint.h"
#include "PlurexData/cuepoints/CuePointData.h"
#include "PlurexData/data/clips/KepId.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>

using namespace CuePointTests;
using Korv::Data::CuePointData;
using Korv::Plurex::Data::Clips::KepId;

TEST(CuePointOrdering, UsesTheLowHalfOfThePositionWithWrapAround) {
    constexpr std::int32_t Min = std::numeric_limits<std::int32_t>::min();
    // {0x7FFFFFFF, -1} and {-1, 0x7FFFFFFF}: both ways negative, each is less than the other.
    const struct {
        long long left, right;
        std::int32_t expected;
    } cases[] = {{0x100000005LL, 5, 0},
                 {0, 0x80000000LL, Min},
                 {0x80000001LL, 0, -2147483647},
                 {5, 3, 2},
                 {3, 5, -2},
                 {-1, 0, -1},
                 {0x7FFFFFFFLL, -1, Min},
                 {-1, 0x7FFFFFFFLL, Min},
                 {-0x100000000LL, 0, 0},
                 {0x123456789ALL, 0x3456789ALL, 0}};
    for (const auto& c : cases) {
        const CuePointData left(c.left, UmId("A")), right(c.right, UmId("B"));
        EXPECT_EQ(left.CompareTo(right), c.expected) << c.left << " " << c.right;
        EXPECT_EQ(left < right, c.expected < 0);
        EXPECT_EQ(left >= right, c.expected >= 0);
        EXPECT_EQ(Mark(c.left, "A").CompareTo(Mark(c.right, "B")), c.expected);
        EXPECT_EQ(Mark(c.left) == Mark(c.right), c.expected == 0);
    }
    // The server decides first, whatever the positions.
    EXPECT_EQ(Mark(1000, "A", 10).CompareTo(Mark(0, "A", 30)), -20);
    EXPECT_TRUE(Mark(0, "A", 30) > Mark(1000, "A", 10));
    EXPECT_EQ(Mark(5).CompareTo(static_cast<const CuePoint*>(nullptr)), 1);
    EXPECT_EQ(CuePointData().CompareTo(static_cast<const CuePointData*>(nullptr)), 1);
}

TEST(CuePointEquality, DataUsesTheWholePositionAndTheClipCuePointNeither) {
    const CuePointData low(5, UmId("CLIP")), high(0x100000005LL, UmId("CLIP"));
    EXPECT_TRUE(!low.Equals(high) && low != high);
    EXPECT_EQ(low.CompareTo(high), 0);
    EXPECT_TRUE(low <= high && low >= high);
    EXPECT_TRUE(low == CuePointData(5, UmId("CLIP")));
    EXPECT_FALSE(low.Equals(CuePointData(5, UmId("CLIP", true))));  // UmId::Equals sees the flag

    const CuePoint a = Mark(0x100000005LL, "CLIPA");
    CuePoint b(5, 9, 'C', ServerId(10), UmId("CLIPB"), true);
    b.SetNumber(7);
    b.SetZoom(3);
    EXPECT_TRUE(a.Equals(b) && a == b && !(a != b));
    EXPECT_FALSE(a.Equals(Mark(5, "CLIPA", 20)) || a.Equals(static_cast<const CuePoint*>(nullptr)));
    // A null cue point counts as greater than every other.
    const CuePoint six = Mark(6);
    EXPECT_TRUE(a < static_cast<const CuePoint*>(nullptr) && a < &six);
    EXPECT_FALSE(a > static_cast<const CuePoint*>(nullptr) || a > &six);
}

TEST(CuePointNulls, CopyAndEqualsRefuseANullSource) {
    ExpectThrow<std::invalid_argument>([] { CuePointData(static_cast<const CuePointData*>(nullptr)); },
                                       "Null CuePointData");
    ExpectThrow<std::invalid_argument>(
        [] { CuePointData().Equals(static_cast<const CuePointData*>(nullptr)); }, "Null CuePointData");
    ExpectThrow<std::invalid_argument>([] { CuePoint(static_cast<const CuePoint*>(nullptr)); },
                                       "Null CuePoint");
}

TEST(CuePointConstruction, ShorterFormsDefaultTheKepAndTheCamera) {
    const KepId kep(123, 'B', ServerId(20));
    const CuePoint full(-7, 4, 'C', ServerId(20), UmId("U"), kep, true);
    const CuePoint noKep(-7, 4, 'C', ServerId(20), UmId("U"), true);
    const CuePoint plain(-7, 4, ServerId(20), UmId("U"), true);
    for (const CuePoint* mark : {&full, &noKep, &plain}) {
        EXPECT_TRUE(mark->GetTc() == -7 && mark->GetPcx() == 4 && mark->GetServerId().GetValue() == 20 &&
                    mark->IsTrain() && mark->GetNumber() == 0 && mark->GetZoom() == 0);
    }
    EXPECT_TRUE(full.GetKepId().Equals(kep) && noKep.GetKepId().Equals(KepId()));
    EXPECT_TRUE(noKep.GetCamera() == 'C' && plain.GetCamera() == 0 && CuePoint().GetKepId().Equals(KepId()));
}

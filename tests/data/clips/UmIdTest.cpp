#include "PlurexData/data/clips/UmId.h"

#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>
#include <string>

using Korv::Plurex::Data::Clips::UmId;

TEST(UmId, StoresEightCharactersPaddedWithNuls) {
    EXPECT_STREQ(UmId().GetUmId(), "        ");
    EXPECT_STREQ(UmId("ABCDEFGHIJ").GetUmId(), "ABCDEFGH");
    const UmId ab(std::string("AB"));
    EXPECT_EQ(std::memcmp(ab.GetUmId(), "AB\0\0\0\0\0\0\0", 9), 0);
    EXPECT_FALSE(UmId::IsNullOrEmpty(ab));
    EXPECT_TRUE(UmId("x", true).IsUnicode());
    EXPECT_FALSE(UmId("x").IsUnicode());
    for (auto make :
         {+[] { UmId{static_cast<const char*>(nullptr)}; },
          +[] { UmId(static_cast<const char*>(nullptr), true); }, +[] { UmId().SetUmId(nullptr); }}) {
        try {
            make();
            ADD_FAILURE();
        } catch (const std::invalid_argument& e) {
            EXPECT_STREQ(e.what(), "null pointer for UmId");
        }
    }
}

TEST(UmId, EqualityOperatorIgnoresTheUnicodeFlagAndEqualsDoesNot) {
    EXPECT_TRUE(UmId("x", true) == UmId("x", false));
    EXPECT_FALSE(UmId("x", true).Equals(UmId("x", false)));
    EXPECT_TRUE(UmId("x", true).Equals(UmId("x", true)));
    EXPECT_FALSE(UmId("x").Equals(static_cast<const UmId*>(nullptr)));
    EXPECT_EQ(UmId("x").CompareTo(static_cast<const UmId*>(nullptr)), 1);
    EXPECT_EQ(UmId("ABC").CompareTo(UmId("ABD")), -1);
    EXPECT_EQ(UmId("AB").CompareTo(UmId("ABC")), -'C');
    EXPECT_GT(UmId("\xE9").CompareTo(UmId("A")), 0);  // bytes compare unsigned
    EXPECT_EQ(UmId("ABCDEFGHX").CompareTo(UmId("ABCDEFGHY")), 0);
}

TEST(UmId, ReservedIdentifiers) {
    struct Case {
        const char* text;
        bool empty, virt, white, black, pattern, macro;
        int edit;
    };
    const Case cases[] = {
        {"        ", true, false, false, false, false, false, -1},
        {"@VIRTUA!", false, true, false, false, true, false, -1},
        {"@WHTCLP!", false, false, true, false, true, false, -1},
        {"@BLKCLP!", false, false, false, true, true, false, -1},
        {"@PLS042!", false, false, false, false, false, true, 42},
        {"@PLS999!", false, false, false, false, false, true, 999},
        {"@PLS12X!", false, false, false, false, false, true, -1},
        {"@PLS123", false, false, false, false, false, true, -1},
        {"@PLS###!", false, false, false, false, false, true, -1},
        {"@BLKCLP", false, false, false, false, false, false, -1},
    };
    for (const Case& c : cases) {
        const UmId id(c.text, true);
        EXPECT_EQ(UmId::IsNullOrEmpty(id), c.empty) << c.text;
        EXPECT_EQ(UmId::IsVirtualClip(id), c.virt) << c.text;
        EXPECT_EQ(UmId::IsWhiteClip(id), c.white) << c.text;
        EXPECT_EQ(UmId::IsBlackClip(id), c.black) << c.text;
        EXPECT_EQ(UmId::IsPatternClip(id), c.pattern) << c.text;
        EXPECT_EQ(UmId::IsMacroClip(id), c.macro) << c.text;
        EXPECT_EQ(UmId::GetUmIdEditNumber(id), c.edit) << c.text;
    }
    EXPECT_STREQ(UmId::UmIdVirtual().GetUmId(), "@VIRTUA!");
    EXPECT_STREQ(UmId::UmIdWhite().GetUmId(), "@WHTCLP!");
    EXPECT_STREQ(UmId::UmIdBlack().GetUmId(), "@BLKCLP!");
    EXPECT_STREQ(UmId::UmIdEditPattern().GetUmId(), "@PLS###!");
    EXPECT_TRUE(UmId::Empty().Equals(UmId()));
    EXPECT_TRUE(UmId::IsNullOrEmpty(static_cast<const UmId*>(nullptr)));
}

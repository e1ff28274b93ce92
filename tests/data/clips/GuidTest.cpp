#include "PlurexData/data/clips/Guid.h"

#include <gtest/gtest.h>

using ClipGuid = Korv::Plurex::Data::Clips::Guid;

TEST(ClipGuid, DefaultIsAllZero) {
    EXPECT_EQ(ClipGuid(), Korv::Plurex::Data::Guid::Empty());
    EXPECT_EQ(ClipGuid().UmId(), "");
}

TEST(ClipGuid, CarriesTheIdentifierText) {
    const ClipGuid abc(std::string("ABC"));
    EXPECT_EQ(abc.UmId(), "ABC");
    EXPECT_EQ(abc.ToString(), "41424300-0000-0000-0000-000000000000");
    EXPECT_EQ(ClipGuid(std::string("0123456789abcdefXYZ")).UmId(), "0123456789abcdef");
    EXPECT_EQ(ClipGuid(std::string("AB\0CD", 5)).UmId(), "AB");
}

TEST(ClipGuid, FromStringKeepsTheParsedBytes) {
    const auto guid = ClipGuid::FromString("41424300-0000-0000-0000-000000000000");
    EXPECT_EQ(guid.UmId(), "ABC");
    EXPECT_EQ(ClipGuid::FromString("not a guid"), ClipGuid());
}

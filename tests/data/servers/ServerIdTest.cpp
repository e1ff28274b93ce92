#include "PlurexData/data/servers/ServerId.h"

#include <gtest/gtest.h>

#include <stdexcept>

using Korv::Plurex::Data::Servers::ServerId;

TEST(ServerId, AcceptsNoneAndPositiveMultiplesOfTen) {
    for (int id : {-1, 10, 20, 7650, 2147483640}) {
        EXPECT_EQ(ServerId(id).GetValue(), id);
    }
    for (int id : {0, 5, 15, -10, -2, 2147483647, -2147483647 - 1}) {
        try {
            ServerId{id};
            ADD_FAILURE() << id << " accepted";
        } catch (const std::invalid_argument& e) {
            EXPECT_STREQ(e.what(), "invalid ServerId");
        }
    }
}

TEST(ServerId, NullReferencesAndComparison) {
    const ServerId* null = nullptr;
    try {
        ServerId{null};
        ADD_FAILURE() << "copied from null";
    } catch (const std::invalid_argument& e) {
        EXPECT_STREQ(e.what(), "null ServerId");
    }
    const ServerId thirty(30), ten(10);
    EXPECT_EQ(ServerId(&thirty).GetValue(), 30);
    EXPECT_EQ(thirty.CompareTo(ten), 20);
    EXPECT_EQ(ten.CompareTo(thirty), -20);
    EXPECT_EQ(ten.CompareTo(null), 1);
    EXPECT_EQ(ServerId::None().CompareTo(ServerId(2147483640)), -2147483641);
    EXPECT_FALSE(ten.Equals(null));
    EXPECT_TRUE(ten.Equals(ServerId(10)));
    EXPECT_TRUE(ten != thirty);
    EXPECT_EQ(ServerId::None().GetValue(), -1);
}

TEST(ServerId, TextIsRightAlignedInFiveCharacters) {
    EXPECT_EQ(ServerId(10).ToString(), "   10");
    EXPECT_EQ(ServerId(120).ToString(), "  120");
    EXPECT_EQ(ServerId(-1).ToString(), "   -1");
    EXPECT_EQ(ServerId(7650).ToString(), " 7650");
    EXPECT_EQ(ServerId(123450).ToString(), "123450");
}

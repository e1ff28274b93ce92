#include "PlurexData/data/clips/KepId.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using Korv::Plurex::Data::Clips::KepId;
using Korv::Plurex::Data::Servers::ServerId;

namespace {

template <class Call>
std::string InvalidArgument(Call call) {
    try {
        call();
    } catch (const std::invalid_argument& e) {
        return e.what();
    }
    return "no exception";
}

const ServerId s10(10);

}  // namespace

TEST(KepId, PacksPageBankAndClipAsDecimalDigits) {
    EXPECT_EQ(KepId(1, 1, 1, 'A', s10).GetPosition(), 111);
    EXPECT_EQ(KepId(1, 2, 3, 'A', s10).GetPosition(), 123);
    const KepId tens(10, 10, 10, 'A', s10);
    EXPECT_EQ(tens.GetPosition(), 0);
    EXPECT_EQ(tens.GetPage(), 10);
    EXPECT_EQ(tens.GetBank(), 10);
    EXPECT_EQ(tens.GetClip(), 10);
    const KepId none;
    EXPECT_EQ(none.GetPosition(), -1);
    EXPECT_EQ(none.GetPage(), -1);
    EXPECT_EQ(none.GetBank(), -1);
    EXPECT_EQ(none.GetClip(), -1);
    EXPECT_EQ(none.GetCamera(), 'A');
    EXPECT_EQ(none.GetServerId(), ServerId::None());
}

TEST(KepId, DigitSettersKeepTheirDifferentArithmetic) {
    struct Case {
        void (KepId::*setter)(int);
        int value;
        int expected;
    };
    for (const Case& c : {Case{&KepId::SetBank, 5, 171}, Case{&KepId::SetPage, 4, 522},
                          Case{&KepId::SetClip, 9, 129}, Case{&KepId::SetClip, 10, 120}}) {
        KepId id(1, 2, 3, 'A', s10);
        (id.*c.setter)(c.value);
        EXPECT_EQ(id.GetPosition(), c.expected);
    }
    KepId fresh;
    fresh.SetBank(4);
    EXPECT_EQ(fresh.GetPosition(), 40);
}

TEST(KepId, PackedPositionTakesTwoPageDigits) {
    KepId id;
    id.SetPosition(0);
    EXPECT_EQ(id.GetPage(), 10);
    EXPECT_EQ(id.GetBank(), 10);
    EXPECT_EQ(id.GetClip(), 10);
    id.SetPosition(987);
    EXPECT_EQ(id.GetPosition(), 987);
    EXPECT_EQ(InvalidArgument([&] { id.SetPosition(1211); }), "Invalid page: 12");
    // The bank was written before the page check threw.
    EXPECT_EQ(id.GetPosition(), 10);
    EXPECT_EQ(InvalidArgument([] { KepId(1211, 'A', s10); }), "Invalid page: 12");
}

TEST(KepId, RejectionsNameTheValue) {
    KepId id(1, 2, 3, 'B', s10);
    EXPECT_EQ(InvalidArgument([&] { id.SetBank(11); }), "Invalid bank: 11");
    EXPECT_EQ(InvalidArgument([&] { id.SetPage(0); }), "Invalid page: 0");
    EXPECT_EQ(InvalidArgument([&] { id.SetClip(-3); }), "Invalid clip: -3");
    EXPECT_EQ(InvalidArgument([&] { id.SetCamera('W'); }), "Invalid cam: 87");
    EXPECT_EQ(InvalidArgument([&] { id.SetCamera('M'); }), "Invalid cam: 77");
    EXPECT_EQ(InvalidArgument([&] { id.SetCamera(static_cast<char>(0xE9)); }), "Invalid cam: -23");
    EXPECT_EQ(InvalidArgument([&] { id.SetServerId(static_cast<const ServerId*>(nullptr)); }),
              "null ServerId");
    EXPECT_EQ(InvalidArgument([] { KepId(1, 1, 1, 'a', s10); }), "Invalid cam: 97");
    EXPECT_EQ(id.GetPosition(), 123);
    EXPECT_EQ(id.GetCamera(), 'B');
    for (char camera : {'A', 'L', 'X', 'Y', 'Z', '\0'}) {
        EXPECT_NO_THROW(id.SetCamera(camera)) << int(camera);
    }
}

TEST(KepId, ComparesServerThenPositionThenCamera) {
    const KepId a(1, 2, 3, 'B', ServerId(20));
    EXPECT_EQ(a.CompareTo(KepId(1, 2, 3, 'B', ServerId(10))), 10);
    EXPECT_EQ(a.CompareTo(KepId(1, 2, 5, 'B', ServerId(20))), -2);
    EXPECT_EQ(a.CompareTo(KepId(1, 2, 3, 'A', ServerId(20))), 1);
    EXPECT_EQ(a.CompareTo(static_cast<const KepId*>(nullptr)), 1);
    EXPECT_TRUE(a == KepId(123, 'B', ServerId(20)));
    EXPECT_TRUE(a.Equals(KepId(123, 'B', ServerId(20))));
    EXPECT_FALSE(a.Equals(static_cast<const KepId*>(nullptr)));
}

TEST(KepId, EmptyAndText) {
    EXPECT_TRUE(KepId::IsNullOrEmpty(KepId()));
    EXPECT_TRUE(KepId::IsNullOrEmpty(static_cast<const KepId*>(nullptr)));
    KepId cameraB;
    cameraB.SetCamera('B');
    EXPECT_FALSE(KepId::IsNullOrEmpty(cameraB));
    EXPECT_EQ(KepId(1, 2, 3, 'B', s10).ToString(), "123B/   10");
    EXPECT_EQ(KepId(1, 1, 10, 'A', s10).ToString(), "110A/   10");
    EXPECT_EQ(KepId(10, 10, 1, 'C', ServerId(120)).ToString(), "001C/  120");
    EXPECT_EQ(KepId().ToString(), "-01A/   -1");
}

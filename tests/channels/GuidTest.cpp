#include "PlurexData/channels/Guid.h"

#include <gtest/gtest.h>

using ChannelGuid = Korv::Plurex::Data::Channels::Guid;
using Type = ChannelGuid::Type;

TEST(ChannelGuid, LayoutAndReadback) {
    struct Case {
        Type type;
        int index;
        unsigned int serial;
        const char* text;
        Type readType;
        int readIndex, readSerial;
    };
    const Case cases[] = {
        {Type::First, 12, 123456, "00000000-0000-0001-0012-000000123456", Type::First, 12, 123456},
        {Type::Second, 7, 5, "00000000-0000-0002-0007-000000000005", Type::Second, 7, 5},
        {Type::Second, 9999, 4294967295u, "00000000-0000-0002-9999-004294967295", Type::Second, 9999,
         2147483647},
        {Type::First, 12345, 1, "00000000-0000-0001-2345-000000000001", Type::First, 2345, 1},
        {static_cast<Type>(7), 3, 0, "00000000-0000-0002-0003-000000000000", Type::Second, 3, 0},
        {Type::None, 5, 5, "00000000-0000-0000-0000-000000000000", Type::None, 0, 0},
        {Type::First, -1, 5, "00000000-0000-0000-0000-000000000000", Type::None, 0, 0},
    };
    for (const Case& c : cases) {
        const ChannelGuid guid(c.type, c.index, c.serial);
        EXPECT_EQ(guid.ToString(), c.text);
        EXPECT_EQ(guid.ChannelType(), c.readType) << c.text;
        EXPECT_EQ(guid.ChannelIndex(), c.readIndex) << c.text;
        EXPECT_EQ(guid.MachineSerial(), c.readSerial) << c.text;
    }
    EXPECT_EQ(ChannelGuid(), ChannelGuid(Type::None, 0, 0));
}

TEST(ChannelGuid, ReadsAnyGuidAsDigitsUpToTheFirstLetter) {
    const auto guid = ChannelGuid::FromString("01234567-89ab-cdef-0a12-3456789abcde");
    EXPECT_EQ(guid.ChannelType(), Type::None);  // 'f' is no digit: 0
    EXPECT_EQ(guid.ChannelIndex(), 0);          // "0a12" stops at 'a'
    EXPECT_EQ(guid.MachineSerial(), 3456789);   // "3456789abcde"
    EXPECT_EQ(ChannelGuid::FromString("00000000-0000-0002-0042-000000000010").ChannelIndex(), 42);
    EXPECT_EQ(ChannelGuid::FromString("not a guid"), ChannelGuid());
}

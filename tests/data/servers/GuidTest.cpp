#include "PlurexData/data/servers/Guid.h"

#include <gtest/gtest.h>

using ServerGuid = Korv::Plurex::Data::Servers::Guid;
using Type = ServerGuid::Type;

TEST(ServerGuid, CarriesTypeMarkerAndPackedSerial) {
    const ServerGuid guid(Type::Primary, 123456);
    EXPECT_EQ(guid.ToString(), "00000000-0000-0064-0140-000000123456");
    EXPECT_EQ(guid.ServerType(), Type::Primary);
    EXPECT_EQ(guid.MachineSerial(), 123456u);
    EXPECT_EQ(ServerGuid(Type::Secondary, 4294967294u).ToString(), "00000000-0000-0065-01fe-004294967294");
}

TEST(ServerGuid, InvalidTypeOrNoSerial) {
    const ServerGuid invalid(static_cast<Type>(3), 123456);
    EXPECT_EQ(invalid.ToString(), "00000000-0000-0000-0000-000000000000");
    EXPECT_EQ(invalid.ServerType(), Type::None);
    EXPECT_EQ(invalid.MachineSerial(), 0u);
    EXPECT_EQ(ServerGuid(Type::Secondary, 0xFFFFFFFF).ToString(), "00000000-0000-0065-0000-000000000000");
    EXPECT_EQ(ServerGuid().ToString(), "00000000-0000-0000-0000-000000000000");
}

TEST(ServerGuid, SerialsAboveTheSigned32BitRangeReadBackSaturated) {
    // Same result on 64-bit builds as on the 32-bit platform, where the conversion saturates.
    EXPECT_EQ(ServerGuid(Type::Primary, 2147483647u).MachineSerial(), 2147483647u);
    EXPECT_EQ(ServerGuid(Type::Primary, 2147483648u).MachineSerial(), 2147483647u);
    EXPECT_EQ(ServerGuid(Type::Primary, 4294967294u).MachineSerial(), 2147483647u);
}

TEST(ServerGuid, ReadsAnyBytesReceived) {
    const auto parsed = Korv::Plurex::Data::Guid::FromString("00000000-0000-0065-0000-00000000a123");
    const ServerGuid guid(parsed);
    EXPECT_EQ(guid.ServerType(), Type::Secondary);
    EXPECT_EQ(guid.MachineSerial(), 0u);  // the digits stop at the first letter
}

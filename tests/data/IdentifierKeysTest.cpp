#include "IdentifierKeys.h"

#include "PlurexData/data/Guid.h"
#include "PlurexData/data/clips/Guid.h"
#include "PlurexData/data/clips/KepId.h"
#include "PlurexData/data/clips/UmId.h"
#include "PlurexData/data/servers/Guid.h"
#include "PlurexData/data/servers/ServerId.h"
#include "PlurexData/data/timelines/TimelineId.h"

#include <string>

namespace Data = Korv::Plurex::Data;
using Data::Clips::KepId;
using Data::Clips::UmId;
using Data::Servers::ServerId;
using Data::Timelines::TimelineId;

namespace {

template <class T, std::size_t N>
T Pick(std::mt19937& random, const T (&choices)[N]) {
    return choices[random() % N];
}

ServerId SampleServer(std::mt19937& random) {
    return ServerId(Pick(random, {-1, 10, 20, 2147483640}));
}

}  // namespace

// Zero to two bytes set, around the sign bit of a char.
template <>
Data::Guid SampleKey<Data::Guid>(std::mt19937& random) {
    unsigned char bytes[Data::Guid::Size] = {};
    for (unsigned set = random() % 3; set > 0; --set) {
        bytes[random() % Data::Guid::Size] = Pick(random, {0x01, 0x7F, 0x80, 0xFF});
    }
    return Data::Guid(bytes, Data::Guid::Size);
}

template <>
Data::Servers::Guid SampleKey<Data::Servers::Guid>(std::mt19937& random) {
    using Type = Data::Servers::Guid::Type;
    return Data::Servers::Guid(Pick(random, {Type::None, Type::Primary, Type::Secondary}),
                               Pick(random, {0u, 255u, 256u, 123456u, Data::Servers::Guid::NoMachineSerial}));
}

template <>
Data::Clips::Guid SampleKey<Data::Clips::Guid>(std::mt19937& random) {
    std::string text(random() % 3, ' ');
    for (char& c : text) {
        c = Pick(random, {'a', 'B', '\x80', '\xff'});
    }
    return Data::Clips::Guid(text);
}

template <>
ServerId SampleKey<ServerId>(std::mt19937& random) {
    return SampleServer(random);
}

// Numbers shared by several servers: equivalent under <, yet unequal.
template <>
TimelineId SampleKey<TimelineId>(std::mt19937& random) {
    return TimelineId(Pick(random, {0, 7, 109}), SampleServer(random));
}

template <>
KepId SampleKey<KepId>(std::mt19937& random) {
    return KepId(Pick(random, {1, 10}), Pick(random, {1, 2}), Pick(random, {3, 10}),
                 Pick(random, {'A', 'Z', '\0'}), SampleServer(random));
}

// Either flag, which == ignores; texts cut at 8 characters, so "ABCDEFGHx" equals "ABCDEFGHy".
template <>
UmId SampleKey<UmId>(std::mt19937& random) {
    std::string text = random() % 8 == 0 ? std::string("ABCDEFGH") : std::string();
    for (unsigned length = random() % 3; length > 0; --length) {
        text += Pick(random, {'A', 'z', '\x80', '\xff'});
    }
    return UmId(text, random() % 2 == 0);
}

using Identifiers =
    testing::Types<Data::Guid, Data::Servers::Guid, Data::Clips::Guid, ServerId, TimelineId, KepId, UmId>;
INSTANTIATE_TYPED_TEST_SUITE_P(Keys, IdentifierKeys, Identifiers, testing::internal::DefaultNameGenerator);

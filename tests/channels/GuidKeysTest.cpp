#include "../data/IdentifierKeys.h"

#include "PlurexData/channels/Guid.h"

using ChannelGuid = Korv::Plurex::Data::Channels::Guid;

template <>
ChannelGuid SampleKey<ChannelGuid>(std::mt19937& random) {
    const ChannelGuid::Type types[] = {ChannelGuid::Type::First, ChannelGuid::Type::Second,
                                       ChannelGuid::Type::None};
    const int indexes[] = {-1, 0, 9999, 10000};
    const unsigned int serials[] = {0, 123456, 4294967295u};
    return ChannelGuid(types[random() % 3], indexes[random() % 4], serials[random() % 3]);
}

INSTANTIATE_TYPED_TEST_SUITE_P(Keys, IdentifierKeys, ChannelGuid, testing::internal::DefaultNameGenerator);

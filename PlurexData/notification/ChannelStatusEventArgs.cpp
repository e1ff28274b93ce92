#include "PlurexData/notification/ChannelStatusEventArgs.h"

#include <chrono>

namespace Korv::Plurex::Notification {

ChannelStatusEventArgs::ChannelStatusEventArgs(const Data::Channels::Guid& channelGuid)
    : channelGuid_(channelGuid) {
    StoreSystemTime();
}

ChannelStatusEventArgs::~ChannelStatusEventArgs() = default;

void ChannelStatusEventArgs::StoreSystemTime() noexcept {
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    SetTime(
        static_cast<std::int64_t>(std::chrono::duration_cast<std::chrono::nanoseconds>(sinceEpoch).count()));
}

}  // namespace Korv::Plurex::Notification

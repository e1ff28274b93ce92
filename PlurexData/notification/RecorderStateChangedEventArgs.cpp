#include "PlurexData/notification/RecorderStateChangedEventArgs.h"

namespace Korv::Plurex::Notification {

RecorderStateChangedEventArgs::RecorderStateChangedEventArgs(
    const Data::Channels::Guid& channelGuid, Data::Channels::RecorderState::StatusChange change,
    const Data::Channels::RecorderState& state)
    : ChannelStatusEventArgs(channelGuid), change_(change), state_(state) {}

RecorderStateChangedEventArgs::RecorderStateChangedEventArgs(const RecorderStateChangedEventArgs& other) =
    default;

RecorderStateChangedEventArgs::RecorderStateChangedEventArgs(RecorderStateChangedEventArgs&& other) noexcept =
    default;

RecorderStateChangedEventArgs::~RecorderStateChangedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

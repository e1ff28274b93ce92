#include "PlurexData/notification/PlayerStateChangedEventArgs.h"

namespace Korv::Plurex::Notification {

PlayerStateChangedEventArgs::PlayerStateChangedEventArgs(const Data::Channels::Guid& channelGuid,
                                                         Data::Channels::PlayerState::StatusChange change,
                                                         const Data::Channels::PlayerState& state)
    : ChannelStatusEventArgs(channelGuid), change_(change), state_(state) {}

PlayerStateChangedEventArgs::PlayerStateChangedEventArgs(const PlayerStateChangedEventArgs& other) = default;

PlayerStateChangedEventArgs::PlayerStateChangedEventArgs(PlayerStateChangedEventArgs&& other) = default;

PlayerStateChangedEventArgs::~PlayerStateChangedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

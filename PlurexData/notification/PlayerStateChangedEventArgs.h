#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/channels/PlayerState.h"
#include "PlurexData/notification/ChannelStatusEventArgs.h"

namespace Korv::Plurex::Notification {

// A player channel whose snapshot changed: what changed and a copy of the new snapshot.
class PLUREXDATA_API PlayerStateChangedEventArgs : public ChannelStatusEventArgs {
public:
    PlayerStateChangedEventArgs(const Data::Channels::Guid& channelGuid,
                                Data::Channels::PlayerState::StatusChange change,
                                const Data::Channels::PlayerState& state);
    // Every field, the time stamp included.
    PlayerStateChangedEventArgs(const PlayerStateChangedEventArgs& other);
    PlayerStateChangedEventArgs(PlayerStateChangedEventArgs&& other) noexcept;
    ~PlayerStateChangedEventArgs() override;

    Data::Channels::PlayerState::StatusChange GetStatusChange() const noexcept { return change_; }
    const Data::Channels::PlayerState& GetState() const noexcept { return state_; }

private:
    Data::Channels::PlayerState::StatusChange change_;
    Data::Channels::PlayerState state_;
};

}  // namespace Korv::Plurex::Notification

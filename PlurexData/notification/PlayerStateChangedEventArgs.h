#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/channels/PlayerState.h"
#include "PlurexData/notification/ChannelStatusEventArgs.h"

namespace Korv::Plurex::Notification {

/// A player channel whose snapshot changed: what changed and a copy of the new snapshot.
class PLUREXDATA_API PlayerStateChangedEventArgs : public ChannelStatusEventArgs {
public:
    /// Copies the GUID, the change mask and the snapshot; the time is stamped from the system clock.
    PlayerStateChangedEventArgs(const Data::Channels::Guid& channelGuid,
                                Data::Channels::PlayerState::StatusChange change,
                                const Data::Channels::PlayerState& state);
    /// Copy or move every field, the time stamp included: neither stamps the time again.
    ///@{
    PlayerStateChangedEventArgs(const PlayerStateChangedEventArgs& other);
    PlayerStateChangedEventArgs(PlayerStateChangedEventArgs&& other);
    ///@}
    ~PlayerStateChangedEventArgs() override;

    /// The bits of PlayerState::StatusChange that changed.
    Data::Channels::PlayerState::StatusChange GetStatusChange() const noexcept { return change_; }
    /// The new snapshot, copied at construction.
    const Data::Channels::PlayerState& GetState() const noexcept { return state_; }

private:
    Data::Channels::PlayerState::StatusChange change_;
    Data::Channels::PlayerState state_;
};

}  // namespace Korv::Plurex::Notification

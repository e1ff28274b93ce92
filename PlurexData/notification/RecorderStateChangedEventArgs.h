#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/channels/RecorderState.h"
#include "PlurexData/notification/ChannelStatusEventArgs.h"

namespace Korv::Plurex::Notification {

/// A recorder channel whose snapshot changed: what changed and a copy of the new snapshot.
class PLUREXDATA_API RecorderStateChangedEventArgs : public ChannelStatusEventArgs {
public:
    /// Copies the GUID, the change mask and the snapshot; the time is stamped from the system clock.
    RecorderStateChangedEventArgs(const Data::Channels::Guid& channelGuid,
                                  Data::Channels::RecorderState::StatusChange change,
                                  const Data::Channels::RecorderState& state);
    /// Copy or move every field, the time stamp included: neither stamps the time again.
    ///@{
    RecorderStateChangedEventArgs(const RecorderStateChangedEventArgs& other);
    RecorderStateChangedEventArgs(RecorderStateChangedEventArgs&& other) noexcept;
    ///@}
    ~RecorderStateChangedEventArgs() override;

    /// The bits of RecorderState::StatusChange that changed.
    Data::Channels::RecorderState::StatusChange GetStatusChange() const noexcept { return change_; }
    /// The new snapshot, copied at construction.
    const Data::Channels::RecorderState& GetState() const noexcept { return state_; }

private:
    Data::Channels::RecorderState::StatusChange change_;
    Data::Channels::RecorderState state_;
};

}  // namespace Korv::Plurex::Notification

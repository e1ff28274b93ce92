#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/channels/RecorderState.h"
#include "PlurexData/notification/ChannelStatusEventArgs.h"

namespace Korv::Plurex::Notification {

// A recorder channel whose snapshot changed: what changed and a copy of the new snapshot.
class PLUREXDATA_API RecorderStateChangedEventArgs : public ChannelStatusEventArgs {
public:
    RecorderStateChangedEventArgs(const Data::Channels::Guid& channelGuid,
                                  Data::Channels::RecorderState::StatusChange change,
                                  const Data::Channels::RecorderState& state);
    // Every field, the time stamp included.
    RecorderStateChangedEventArgs(const RecorderStateChangedEventArgs& other);
    RecorderStateChangedEventArgs(RecorderStateChangedEventArgs&& other) noexcept;
    ~RecorderStateChangedEventArgs() override;

    Data::Channels::RecorderState::StatusChange GetStatusChange() const noexcept { return change_; }
    const Data::Channels::RecorderState& GetState() const noexcept { return state_; }

private:
    Data::Channels::RecorderState::StatusChange change_;
    Data::Channels::RecorderState state_;
};

}  // namespace Korv::Plurex::Notification

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/channels/Guid.h"
#include "PlurexData/notification/StatusEventArgs.h"

namespace Korv::Plurex::Notification {

/// A status event of one channel, stamped with the system clock when it is built.
class PLUREXDATA_API ChannelStatusEventArgs : public StatusEventArgs {
public:
    /// Copies the GUID, then StoreSystemTime().
    explicit ChannelStatusEventArgs(const Data::Channels::Guid& channelGuid);
    /// Copies and assigns the GUID and the time: a copy is not stamped again.
    ///@{
    ChannelStatusEventArgs(const ChannelStatusEventArgs&) noexcept = default;
    ChannelStatusEventArgs& operator=(const ChannelStatusEventArgs&) noexcept = default;
    ///@}
    ~ChannelStatusEventArgs() override;

    /// The channel the event is about.
    const Data::Channels::Guid& GetChannelGuid() const noexcept { return channelGuid_; }

    /// Sets the time to the system clock's current value, in nanoseconds since the epoch.
    void StoreSystemTime() noexcept;

private:
    Data::Channels::Guid channelGuid_;
};

}  // namespace Korv::Plurex::Notification

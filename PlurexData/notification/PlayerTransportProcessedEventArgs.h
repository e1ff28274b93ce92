#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ChannelCommandEventArgs.h"

namespace Korv::Plurex::Notification {

/// A player processed a transport command. No data of its own.
class PLUREXDATA_API PlayerTransportProcessedEventArgs : public ChannelCommandEventArgs {
public:
    PlayerTransportProcessedEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    PlayerTransportProcessedEventArgs(const PlayerTransportProcessedEventArgs&) noexcept = default;
    PlayerTransportProcessedEventArgs& operator=(const PlayerTransportProcessedEventArgs&) noexcept = default;
    ///@}
    ~PlayerTransportProcessedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

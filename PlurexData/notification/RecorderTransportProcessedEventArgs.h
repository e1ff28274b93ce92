#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ChannelCommandEventArgs.h"

namespace Korv::Plurex::Notification {

/// A recorder processed a transport command. No data of its own.
class PLUREXDATA_API RecorderTransportProcessedEventArgs : public ChannelCommandEventArgs {
public:
    RecorderTransportProcessedEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    RecorderTransportProcessedEventArgs(const RecorderTransportProcessedEventArgs&) noexcept = default;
    RecorderTransportProcessedEventArgs& operator=(const RecorderTransportProcessedEventArgs&) noexcept =
        default;
    ///@}
    ~RecorderTransportProcessedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

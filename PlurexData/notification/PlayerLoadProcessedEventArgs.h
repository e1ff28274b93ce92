#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ChannelCommandEventArgs.h"

namespace Korv::Plurex::Notification {

/// A player processed a load command. No data of its own.
class PLUREXDATA_API PlayerLoadProcessedEventArgs : public ChannelCommandEventArgs {
public:
    PlayerLoadProcessedEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    PlayerLoadProcessedEventArgs(const PlayerLoadProcessedEventArgs&) noexcept = default;
    PlayerLoadProcessedEventArgs& operator=(const PlayerLoadProcessedEventArgs&) noexcept = default;
    ///@}
    ~PlayerLoadProcessedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

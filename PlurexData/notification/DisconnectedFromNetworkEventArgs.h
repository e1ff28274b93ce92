#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ServerStatusEventArgs.h"

namespace Korv::Plurex::Notification {

/// This application lost the installation's network. No data of its own.
class PLUREXDATA_API DisconnectedFromNetworkEventArgs : public ServerStatusEventArgs {
public:
    DisconnectedFromNetworkEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    DisconnectedFromNetworkEventArgs(const DisconnectedFromNetworkEventArgs&) noexcept = default;
    DisconnectedFromNetworkEventArgs& operator=(const DisconnectedFromNetworkEventArgs&) noexcept = default;
    ///@}
    ~DisconnectedFromNetworkEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ServerStatusEventArgs.h"

namespace Korv::Plurex::Notification {

/// A server joined the installation. No data of its own.
class PLUREXDATA_API ServerAddedEventArgs : public ServerStatusEventArgs {
public:
    ServerAddedEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    ServerAddedEventArgs(const ServerAddedEventArgs&) noexcept = default;
    ServerAddedEventArgs& operator=(const ServerAddedEventArgs&) noexcept = default;
    ///@}
    ~ServerAddedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ServerStatusEventArgs.h"

namespace Korv::Plurex::Notification {

/// A server left the installation. No data of its own.
class PLUREXDATA_API ServerRemovedEventArgs : public ServerStatusEventArgs {
public:
    ServerRemovedEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    ServerRemovedEventArgs(const ServerRemovedEventArgs&) noexcept = default;
    ServerRemovedEventArgs& operator=(const ServerRemovedEventArgs&) noexcept = default;
    ///@}
    ~ServerRemovedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/StatusEventArgs.h"

namespace Korv::Plurex::Notification {

/// The base of server events; applications derive the arguments they post. No data of its own.
class PLUREXDATA_API ServerStatusEventArgs : public StatusEventArgs {
public:
    ServerStatusEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    ServerStatusEventArgs(const ServerStatusEventArgs&) noexcept = default;
    ServerStatusEventArgs& operator=(const ServerStatusEventArgs&) noexcept = default;
    ///@}
    ~ServerStatusEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

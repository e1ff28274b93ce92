#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/CommandEventArgs.h"

namespace Korv::Plurex::Notification {

/// The base of channel command events; applications derive the arguments they post. No data of its own.
class PLUREXDATA_API ChannelCommandEventArgs : public CommandEventArgs {
public:
    ChannelCommandEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    ChannelCommandEventArgs(const ChannelCommandEventArgs&) noexcept = default;
    ChannelCommandEventArgs& operator=(const ChannelCommandEventArgs&) noexcept = default;
    ///@}
    ~ChannelCommandEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

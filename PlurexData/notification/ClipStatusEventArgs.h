#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/StatusEventArgs.h"

namespace Korv::Plurex::Notification {

/// The base of clip status events; applications derive the arguments they post. No data of its own.
class PLUREXDATA_API ClipStatusEventArgs : public StatusEventArgs {
public:
    ClipStatusEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    ClipStatusEventArgs(const ClipStatusEventArgs&) noexcept = default;
    ClipStatusEventArgs& operator=(const ClipStatusEventArgs&) noexcept = default;
    ///@}
    ~ClipStatusEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

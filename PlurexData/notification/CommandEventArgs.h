#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/system/EventArgs.h"

namespace Korv::Plurex::Notification {

/// The common base of the arguments of command events (clip and channel commands); no data.
class PLUREXDATA_API CommandEventArgs : public Korv::System::EventArgs {
public:
    CommandEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    CommandEventArgs(const CommandEventArgs&) noexcept = default;
    CommandEventArgs& operator=(const CommandEventArgs&) noexcept = default;
    ///@}
    ~CommandEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

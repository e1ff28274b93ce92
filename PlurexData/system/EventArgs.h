#pragma once

#include "PlurexData/Export.h"

namespace Korv::System {

/// The root of every event-argument class. It carries no data; arguments are handed around and
/// destroyed through this type, hence the virtual destructor.
class PLUREXDATA_API EventArgs {
public:
    EventArgs() noexcept = default;
    /// Copies and assigns; there is no data.
    ///@{
    EventArgs(const EventArgs&) noexcept = default;
    EventArgs& operator=(const EventArgs&) noexcept = default;
    ///@}
    virtual ~EventArgs();
};

}  // namespace Korv::System

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/AnglesGroupDeletionEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// An angles group deletion that completed.
class PLUREXDATA_API AnglesGroupDeletionFinishedEventArgs : public AnglesGroupDeletionEventArgs {
public:
    /// The arguments of AnglesGroupDeletionEventArgs, passed on.
    AnglesGroupDeletionFinishedEventArgs(std::uint32_t commandNumber, const Data::Guid& commandGuid,
                                         std::uint32_t value);
    ~AnglesGroupDeletionFinishedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

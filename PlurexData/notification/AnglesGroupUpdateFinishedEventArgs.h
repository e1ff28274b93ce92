#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/AnglesGroupUpdateEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// An angles group update that completed.
class PLUREXDATA_API AnglesGroupUpdateFinishedEventArgs : public AnglesGroupUpdateEventArgs {
public:
    /// The arguments of AnglesGroupUpdateEventArgs, passed on.
    AnglesGroupUpdateFinishedEventArgs(std::uint32_t commandNumber, const Data::Guid& commandGuid,
                                       std::uint32_t value, Data::Clips::Angle firstAngle,
                                       Data::Clips::Angle secondAngle,
                                       const std::vector<Data::Clips::Angle>& angles);
    ~AnglesGroupUpdateFinishedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

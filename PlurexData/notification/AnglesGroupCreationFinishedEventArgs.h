#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/AnglesGroupCreationEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// An angles group creation that completed.
class PLUREXDATA_API AnglesGroupCreationFinishedEventArgs : public AnglesGroupCreationEventArgs {
public:
    /// The arguments of AnglesGroupCreationEventArgs, passed on.
    AnglesGroupCreationFinishedEventArgs(std::uint32_t commandNumber, const Data::Guid& commandGuid,
                                         std::uint32_t value, Data::Clips::Angle firstAngle,
                                         Data::Clips::Angle secondAngle,
                                         const std::vector<Data::Clips::Angle>& angles);
    ~AnglesGroupCreationFinishedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

#include "PlurexData/notification/AnglesGroupUpdateFinishedEventArgs.h"

namespace Korv::Plurex::Notification {

AnglesGroupUpdateFinishedEventArgs::AnglesGroupUpdateFinishedEventArgs(
    std::uint32_t commandNumber, const Data::Guid& commandGuid, std::uint32_t value,
    Data::Clips::Angle firstAngle, Data::Clips::Angle secondAngle,
    const std::vector<Data::Clips::Angle>& angles)
    : AnglesGroupUpdateEventArgs(commandNumber, commandGuid, value, firstAngle, secondAngle, angles) {}

AnglesGroupUpdateFinishedEventArgs::~AnglesGroupUpdateFinishedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

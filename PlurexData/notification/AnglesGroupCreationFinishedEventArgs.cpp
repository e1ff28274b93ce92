#include "PlurexData/notification/AnglesGroupCreationFinishedEventArgs.h"

namespace Korv::Plurex::Notification {

AnglesGroupCreationFinishedEventArgs::AnglesGroupCreationFinishedEventArgs(
    std::uint32_t commandNumber, const Data::Guid& commandGuid, std::uint32_t value,
    Data::Clips::Angle firstAngle, Data::Clips::Angle secondAngle,
    const std::vector<Data::Clips::Angle>& angles)
    : AnglesGroupCreationEventArgs(commandNumber, commandGuid, value, firstAngle, secondAngle, angles) {}

AnglesGroupCreationFinishedEventArgs::~AnglesGroupCreationFinishedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

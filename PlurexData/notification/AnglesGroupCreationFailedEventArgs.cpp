#include "PlurexData/notification/AnglesGroupCreationFailedEventArgs.h"

namespace Korv::Plurex::Notification {

AnglesGroupCreationFailedEventArgs::AnglesGroupCreationFailedEventArgs(
    std::uint32_t commandNumber, const Data::Guid& commandGuid, Data::OperationResult result,
    std::int16_t errorCode, std::uint32_t value, Data::Clips::Angle firstAngle,
    Data::Clips::Angle secondAngle, const std::vector<Data::Clips::Angle>& angles)
    : AnglesGroupCreationEventArgs(commandNumber, commandGuid, value, firstAngle, secondAngle, angles),
      result_(result),
      errorCode_(errorCode) {}

AnglesGroupCreationFailedEventArgs::~AnglesGroupCreationFailedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

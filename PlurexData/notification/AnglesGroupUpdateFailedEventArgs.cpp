#include "PlurexData/notification/AnglesGroupUpdateFailedEventArgs.h"

namespace Korv::Plurex::Notification {

AnglesGroupUpdateFailedEventArgs::AnglesGroupUpdateFailedEventArgs(
    std::uint32_t commandNumber, const Data::Guid& commandGuid, Data::OperationResult result,
    std::int16_t errorCode, std::uint32_t value, Data::Clips::Angle firstAngle,
    Data::Clips::Angle secondAngle, const std::vector<Data::Clips::Angle>& angles)
    : AnglesGroupUpdateEventArgs(commandNumber, commandGuid, value, firstAngle, secondAngle, angles),
      result_(result),
      errorCode_(errorCode) {}

AnglesGroupUpdateFailedEventArgs::~AnglesGroupUpdateFailedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

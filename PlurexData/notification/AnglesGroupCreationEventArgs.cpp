#include "PlurexData/notification/AnglesGroupCreationEventArgs.h"

namespace Korv::Plurex::Notification {

AnglesGroupCreationEventArgs::AnglesGroupCreationEventArgs(std::uint32_t commandNumber,
                                                           const Data::Guid& commandGuid, std::uint32_t value,
                                                           Data::Clips::Angle firstAngle,
                                                           Data::Clips::Angle secondAngle,
                                                           const std::vector<Data::Clips::Angle>& angles)
    : ClipCommandEventArgs(commandNumber, RequestSource::Unknown, 0, 0, commandGuid, -1),
      value_(value),
      firstAngle_(firstAngle),
      secondAngle_(secondAngle),
      angles_(angles) {}

AnglesGroupCreationEventArgs::~AnglesGroupCreationEventArgs() = default;

}  // namespace Korv::Plurex::Notification

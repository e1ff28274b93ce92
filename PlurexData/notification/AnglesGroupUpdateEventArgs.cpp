#include "PlurexData/notification/AnglesGroupUpdateEventArgs.h"

namespace Korv::Plurex::Notification {

AnglesGroupUpdateEventArgs::AnglesGroupUpdateEventArgs(std::uint32_t commandNumber,
                                                       const Data::Guid& commandGuid, std::uint32_t value,
                                                       Data::Clips::Angle firstAngle,
                                                       Data::Clips::Angle secondAngle,
                                                       const std::vector<Data::Clips::Angle>& angles)
    : ClipCommandEventArgs(commandNumber, RequestSource::Unknown, 0, 0, commandGuid, -1),
      value_(value),
      firstAngle_(firstAngle),
      secondAngle_(secondAngle),
      angles_(angles) {}

AnglesGroupUpdateEventArgs::~AnglesGroupUpdateEventArgs() = default;

}  // namespace Korv::Plurex::Notification

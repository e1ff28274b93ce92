#include "PlurexData/notification/AnglesGroupDeletionFailedEventArgs.h"

namespace Korv::Plurex::Notification {

AnglesGroupDeletionFailedEventArgs::AnglesGroupDeletionFailedEventArgs(std::uint32_t commandNumber,
                                                                       const Data::Guid& commandGuid,
                                                                       Data::OperationResult result,
                                                                       std::int16_t errorCode,
                                                                       std::uint32_t value)
    : AnglesGroupDeletionEventArgs(commandNumber, commandGuid, value),
      result_(result),
      errorCode_(errorCode) {}

AnglesGroupDeletionFailedEventArgs::~AnglesGroupDeletionFailedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

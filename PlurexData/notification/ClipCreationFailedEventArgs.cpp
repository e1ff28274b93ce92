#include "PlurexData/notification/ClipCreationFailedEventArgs.h"

namespace Korv::Plurex::Notification {

ClipCreationFailedEventArgs::ClipCreationFailedEventArgs(
    std::uint32_t commandNumber, RequestSource requestSource, std::uint32_t thirdValue,
    std::uint16_t fourthValue, const Data::Guid& commandGuid, long long value64, Data::OperationResult result,
    std::int16_t errorCode, const Data::Clips::Clip& clipBefore, const Data::Clips::Clip& clipAfter,
    CreationType creationType, NetworkType networkType)
    : ClipCreationEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64,
                            clipBefore, clipAfter, creationType, networkType),
      result_(result),
      errorCode_(errorCode) {}

ClipCreationFailedEventArgs::~ClipCreationFailedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

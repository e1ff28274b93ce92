#include "PlurexData/notification/ClipUpdateFailedEventArgs.h"

namespace Korv::Plurex::Notification {

ClipUpdateFailedEventArgs::ClipUpdateFailedEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                                     std::uint32_t thirdValue, std::uint16_t fourthValue,
                                                     const Data::Guid& commandGuid, long long value64,
                                                     Data::OperationResult result, std::int16_t errorCode,
                                                     const Data::Clips::Clip& firstClip,
                                                     const Data::Clips::Clip& secondClip)
    : ClipUpdateEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64,
                          firstClip, secondClip),
      result_(result),
      errorCode_(errorCode) {}

ClipUpdateFailedEventArgs::~ClipUpdateFailedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

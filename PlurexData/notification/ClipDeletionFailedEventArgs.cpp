#include "PlurexData/notification/ClipDeletionFailedEventArgs.h"

namespace Korv::Plurex::Notification {

ClipDeletionFailedEventArgs::ClipDeletionFailedEventArgs(
    std::uint32_t commandNumber, RequestSource requestSource, std::uint32_t thirdValue,
    std::uint16_t fourthValue, const Data::Guid& commandGuid, long long value64, Data::OperationResult result,
    std::int16_t errorCode, const Data::Clips::Clip& clip, std::uint8_t firstByte, std::uint8_t secondByte,
    std::uint8_t thirdByte, bool firstFlag, bool secondFlag)
    : ClipDeletionEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64, clip,
                            firstByte, secondByte),
      result_(result),
      errorCode_(errorCode),
      thirdByte_(thirdByte),
      firstFlag_(firstFlag),
      secondFlag_(secondFlag) {}

ClipDeletionFailedEventArgs::~ClipDeletionFailedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

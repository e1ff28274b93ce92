#include "PlurexData/notification/MassClipDeletionFailedEventArgs.h"

namespace Korv::Plurex::Notification {

MassClipDeletionFailedEventArgs::MassClipDeletionFailedEventArgs(
    std::uint32_t commandNumber, RequestSource requestSource, std::uint32_t thirdValue,
    std::uint16_t fourthValue, const Data::Guid& commandGuid, long long value64, Data::OperationResult result,
    std::int16_t errorCode, std::uint32_t count)
    : MassClipDeletionEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64,
                                count),
      result_(result),
      errorCode_(errorCode) {}

MassClipDeletionFailedEventArgs::~MassClipDeletionFailedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

#include "PlurexData/notification/MassClipUpdateFailedEventArgs.h"

namespace Korv::Plurex::Notification {

MassClipUpdateFailedEventArgs::MassClipUpdateFailedEventArgs(
    std::uint32_t commandNumber, RequestSource requestSource, std::uint32_t thirdValue,
    std::uint16_t fourthValue, const Data::Guid& commandGuid, long long value64, Data::OperationResult result,
    std::int16_t errorCode, std::uint32_t count)
    : MassClipUpdateEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64,
                              count),
      result_(result),
      errorCode_(errorCode) {}

MassClipUpdateFailedEventArgs::~MassClipUpdateFailedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

#include "PlurexData/notification/ClipDeletionFinishedEventArgs.h"

namespace Korv::Plurex::Notification {

ClipDeletionFinishedEventArgs::ClipDeletionFinishedEventArgs(
    std::uint32_t commandNumber, RequestSource requestSource, std::uint32_t thirdValue,
    std::uint16_t fourthValue, const Data::Guid& commandGuid, long long value64,
    const Data::Clips::Clip& clip, std::uint8_t firstByte, std::uint8_t secondByte)
    : ClipDeletionEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64, clip,
                            firstByte, secondByte) {}

ClipDeletionFinishedEventArgs::~ClipDeletionFinishedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

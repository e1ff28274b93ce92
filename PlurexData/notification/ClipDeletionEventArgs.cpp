#include "PlurexData/notification/ClipDeletionEventArgs.h"

namespace Korv::Plurex::Notification {

ClipDeletionEventArgs::ClipDeletionEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                             std::uint32_t thirdValue, std::uint16_t fourthValue,
                                             const Data::Guid& commandGuid, long long value64,
                                             const Data::Clips::Clip& clip, std::uint8_t firstByte,
                                             std::uint8_t secondByte)
    : ClipCommandEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64),
      clip_(clip),
      firstByte_(firstByte),
      secondByte_(secondByte) {}

ClipDeletionEventArgs::~ClipDeletionEventArgs() = default;

}  // namespace Korv::Plurex::Notification

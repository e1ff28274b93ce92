#include "PlurexData/notification/ClipCreationFinishedEventArgs.h"

namespace Korv::Plurex::Notification {

ClipCreationFinishedEventArgs::ClipCreationFinishedEventArgs(
    std::uint32_t commandNumber, RequestSource requestSource, std::uint32_t thirdValue,
    std::uint16_t fourthValue, const Data::Guid& commandGuid, long long value64,
    const Data::Clips::Clip& clipBefore, const Data::Clips::Clip& clipAfter, CreationType creationType,
    NetworkType networkType)
    : ClipCreationEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64,
                            clipBefore, clipAfter, creationType, networkType) {}

ClipCreationFinishedEventArgs::~ClipCreationFinishedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

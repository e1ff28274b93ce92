#include "PlurexData/notification/ClipMoveFinishedEventArgs.h"

namespace Korv::Plurex::Notification {

ClipMoveFinishedEventArgs::ClipMoveFinishedEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                                     std::uint32_t thirdValue, std::uint16_t fourthValue,
                                                     const Data::Guid& commandGuid, long long value64,
                                                     const Data::Clips::Clip& firstClip,
                                                     const Data::Clips::Clip& secondClip)
    : ClipMoveEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64,
                        firstClip, secondClip) {}

ClipMoveFinishedEventArgs::~ClipMoveFinishedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

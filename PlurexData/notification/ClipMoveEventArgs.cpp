#include "PlurexData/notification/ClipMoveEventArgs.h"

namespace Korv::Plurex::Notification {

ClipMoveEventArgs::ClipMoveEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                     std::uint32_t thirdValue, std::uint16_t fourthValue,
                                     const Data::Guid& commandGuid, long long value64,
                                     const Data::Clips::Clip& firstClip, const Data::Clips::Clip& secondClip)
    : ClipCommandEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64),
      firstClip_(firstClip),
      secondClip_(secondClip) {}

ClipMoveEventArgs::~ClipMoveEventArgs() = default;

}  // namespace Korv::Plurex::Notification

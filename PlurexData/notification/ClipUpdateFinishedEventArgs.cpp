#include "PlurexData/notification/ClipUpdateFinishedEventArgs.h"

namespace Korv::Plurex::Notification {

ClipUpdateFinishedEventArgs::ClipUpdateFinishedEventArgs(std::uint32_t commandNumber,
                                                         RequestSource requestSource,
                                                         std::uint32_t thirdValue, std::uint16_t fourthValue,
                                                         const Data::Guid& commandGuid, long long value64,
                                                         bool flag, const Data::Clips::Clip& firstClip,
                                                         const Data::Clips::Clip& secondClip)
    : ClipUpdateEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64,
                          firstClip, secondClip),
      flag_(flag) {}

ClipUpdateFinishedEventArgs::~ClipUpdateFinishedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

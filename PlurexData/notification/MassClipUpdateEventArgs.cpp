#include "PlurexData/notification/MassClipUpdateEventArgs.h"

namespace Korv::Plurex::Notification {

MassClipUpdateEventArgs::MassClipUpdateEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                                 std::uint32_t thirdValue, std::uint16_t fourthValue,
                                                 const Data::Guid& commandGuid, long long value64,
                                                 std::uint32_t count)
    : ClipCommandEventArgs(commandNumber, requestSource, thirdValue, fourthValue, commandGuid, value64),
      count_(count) {}

MassClipUpdateEventArgs::~MassClipUpdateEventArgs() = default;

}  // namespace Korv::Plurex::Notification

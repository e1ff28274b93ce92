#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ClipDeletionEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A clip deletion that completed.
class PLUREXDATA_API ClipDeletionFinishedEventArgs : public ClipDeletionEventArgs {
public:
    /// The arguments of ClipDeletionEventArgs, passed on.
    ClipDeletionFinishedEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                  std::uint32_t thirdValue, std::uint16_t fourthValue,
                                  const Data::Guid& commandGuid, long long value64,
                                  const Data::Clips::Clip& clip, std::uint8_t firstByte,
                                  std::uint8_t secondByte);
    ~ClipDeletionFinishedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

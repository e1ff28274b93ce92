#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ClipMoveEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A clip move that completed.
class PLUREXDATA_API ClipMoveFinishedEventArgs : public ClipMoveEventArgs {
public:
    /// The arguments of ClipMoveEventArgs, passed on.
    ClipMoveFinishedEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                              std::uint32_t thirdValue, std::uint16_t fourthValue,
                              const Data::Guid& commandGuid, long long value64,
                              const Data::Clips::Clip& firstClip, const Data::Clips::Clip& secondClip);
    ~ClipMoveFinishedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

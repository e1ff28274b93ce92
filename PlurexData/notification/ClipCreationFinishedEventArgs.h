#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ClipCreationEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A clip creation that completed.
class PLUREXDATA_API ClipCreationFinishedEventArgs : public ClipCreationEventArgs {
public:
    /// The arguments of ClipCreationEventArgs, passed on.
    ClipCreationFinishedEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                  std::uint32_t thirdValue, std::uint16_t fourthValue,
                                  const Data::Guid& commandGuid, long long value64,
                                  const Data::Clips::Clip& clipBefore, const Data::Clips::Clip& clipAfter,
                                  CreationType creationType, NetworkType networkType);
    ~ClipCreationFinishedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ClipUpdateEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A clip update that completed, with one flag.
class PLUREXDATA_API ClipUpdateFinishedEventArgs : public ClipUpdateEventArgs {
public:
    /// The six common fields, the flag, then both clips.
    ClipUpdateFinishedEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                                std::uint32_t thirdValue, std::uint16_t fourthValue,
                                const Data::Guid& commandGuid, long long value64, bool flag,
                                const Data::Clips::Clip& firstClip, const Data::Clips::Clip& secondClip);
    ~ClipUpdateFinishedEventArgs() override;

    /// The flag, carried as given.
    bool GetFlag() const noexcept { return flag_; }

private:
    bool flag_;
};

}  // namespace Korv::Plurex::Notification

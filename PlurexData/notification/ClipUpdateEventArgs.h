#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/notification/ClipCommandEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A clip being updated: two copies of the clip.
class PLUREXDATA_API ClipUpdateEventArgs : public ClipCommandEventArgs {
public:
    /// The six common fields, then copies of both clips.
    ClipUpdateEventArgs(std::uint32_t commandNumber, RequestSource requestSource, std::uint32_t thirdValue,
                        std::uint16_t fourthValue, const Data::Guid& commandGuid, long long value64,
                        const Data::Clips::Clip& firstClip, const Data::Clips::Clip& secondClip);
    ~ClipUpdateEventArgs() override;

    /// The first clip, copied at construction.
    const Data::Clips::Clip& GetFirstClip() const noexcept { return firstClip_; }
    /// The second clip, copied at construction.
    const Data::Clips::Clip& GetSecondClip() const noexcept { return secondClip_; }

private:
    Data::Clips::Clip firstClip_;
    Data::Clips::Clip secondClip_;
};

}  // namespace Korv::Plurex::Notification

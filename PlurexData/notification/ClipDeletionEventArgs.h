#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/notification/ClipCommandEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A clip being deleted: a copy of the clip and two 8-bit values.
class PLUREXDATA_API ClipDeletionEventArgs : public ClipCommandEventArgs {
public:
    /// The six common fields, then a copy of the clip and the two 8-bit values.
    ClipDeletionEventArgs(std::uint32_t commandNumber, RequestSource requestSource, std::uint32_t thirdValue,
                          std::uint16_t fourthValue, const Data::Guid& commandGuid, long long value64,
                          const Data::Clips::Clip& clip, std::uint8_t firstByte, std::uint8_t secondByte);
    ~ClipDeletionEventArgs() override;

    /// The clip, copied at construction.
    const Data::Clips::Clip& GetClip() const noexcept { return clip_; }
    /// The first 8-bit value, carried as given.
    std::uint8_t GetFirstByte() const noexcept { return firstByte_; }
    /// The second 8-bit value, carried as given.
    std::uint8_t GetSecondByte() const noexcept { return secondByte_; }

private:
    Data::Clips::Clip clip_;
    std::uint8_t firstByte_;
    std::uint8_t secondByte_;
};

}  // namespace Korv::Plurex::Notification

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ClipCommandEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A deletion of many clips at once, with their count.
class PLUREXDATA_API MassClipDeletionEventArgs : public ClipCommandEventArgs {
public:
    /// The six common fields, then the count.
    MassClipDeletionEventArgs(std::uint32_t commandNumber, RequestSource requestSource,
                              std::uint32_t thirdValue, std::uint16_t fourthValue,
                              const Data::Guid& commandGuid, long long value64, std::uint32_t count);
    ~MassClipDeletionEventArgs() override;

    /// The number of clips.
    std::uint32_t GetCount() const noexcept { return count_; }

private:
    std::uint32_t count_;
};

}  // namespace Korv::Plurex::Notification

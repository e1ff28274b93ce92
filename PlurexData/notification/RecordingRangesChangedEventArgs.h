#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ClipStatusEventArgs.h"

namespace Korv::Plurex::Notification {

/// The recording ranges of a clip changed. No data of its own.
class PLUREXDATA_API RecordingRangesChangedEventArgs : public ClipStatusEventArgs {
public:
    RecordingRangesChangedEventArgs() noexcept = default;
    /// Copies and assigns; nothing of its own to copy.
    ///@{
    RecordingRangesChangedEventArgs(const RecordingRangesChangedEventArgs&) noexcept = default;
    RecordingRangesChangedEventArgs& operator=(const RecordingRangesChangedEventArgs&) noexcept = default;
    ///@}
    ~RecordingRangesChangedEventArgs() override;
};

}  // namespace Korv::Plurex::Notification

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ClipStatusEventArgs.h"

#include <cstdint>
#include <memory>

namespace Korv::Plurex::Notification {

/// One queued clip status event: its shared arguments and its type.
struct PLUREXDATA_API ClipStatusEvent {
    /// Selects the specific callback list and so the class the producer guarantees for the arguments.
    /// Any other 32-bit value is carried too and reaches only the generic callbacks.
    enum class Type : std::int32_t {
        RecordingRangesChanged = 0,  ///< RecordingRangesChangedEventArgs
    };

    /// The arguments, shared by the producer and every callback; SendEvent refuses null.
    std::shared_ptr<ClipStatusEventArgs> args;
    /// The type the event was posted under, any 32-bit value.
    Type type{};
};

}  // namespace Korv::Plurex::Notification

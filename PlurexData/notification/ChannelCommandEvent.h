#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ChannelCommandEventArgs.h"

#include <cstdint>
#include <memory>

namespace Korv::Plurex::Notification {

/// One queued channel command event: its shared arguments and its type.
struct PLUREXDATA_API ChannelCommandEvent {
    /// Selects the specific callback list and so the class the producer guarantees for the arguments.
    /// Any other 32-bit value is carried too and reaches only the generic callbacks.
    enum class Type : std::int32_t {
        RecorderTransportProcessed = 0,  ///< RecorderTransportProcessedEventArgs
        PlayerLoadProcessed = 1,         ///< PlayerLoadProcessedEventArgs
        PlayerTransportProcessed = 2,    ///< PlayerTransportProcessedEventArgs
    };

    /// The arguments, shared by the producer and every callback; SendEvent refuses null.
    std::shared_ptr<ChannelCommandEventArgs> args;
    /// The type the event was posted under, any 32-bit value.
    Type type{};
};

}  // namespace Korv::Plurex::Notification

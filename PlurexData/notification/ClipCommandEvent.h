#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ClipCommandEventArgs.h"

#include <cstdint>
#include <memory>

namespace Korv::Plurex::Notification {

/// One queued clip command event: its shared arguments and its type.
struct PLUREXDATA_API ClipCommandEvent {
    /// Selects the specific callback list and so the class the producer guarantees for the arguments.
    /// Any other 32-bit value is carried too and reaches only the generic callbacks.
    enum class Type : std::int32_t {
        ClipCreation = 0,                  ///< ClipCreationEventArgs
        ClipCreationFinished = 1,          ///< ClipCreationFinishedEventArgs
        ClipCreationFailed = 2,            ///< ClipCreationFailedEventArgs
        ClipUpdateFinished = 3,            ///< ClipUpdateFinishedEventArgs
        ClipUpdateFailed = 4,              ///< ClipUpdateFailedEventArgs
        ClipDeletionFinished = 5,          ///< ClipDeletionFinishedEventArgs
        ClipDeletionFailed = 6,            ///< ClipDeletionFailedEventArgs
        ClipMove = 7,                      ///< ClipMoveEventArgs
        ClipMoveFinished = 8,              ///< ClipMoveFinishedEventArgs
        ClipMoveFailed = 9,                ///< ClipMoveFailedEventArgs
        MassClipUpdate = 10,               ///< MassClipUpdateEventArgs
        MassClipUpdateFailed = 11,         ///< MassClipUpdateFailedEventArgs
        MassClipDeletion = 12,             ///< MassClipDeletionEventArgs
        MassClipDeletionFailed = 13,       ///< MassClipDeletionFailedEventArgs
        AnglesGroupCreationFinished = 14,  ///< AnglesGroupCreationFinishedEventArgs
        AnglesGroupCreationFailed = 15,    ///< AnglesGroupCreationFailedEventArgs
        AnglesGroupUpdateFinished = 16,    ///< AnglesGroupUpdateFinishedEventArgs
        AnglesGroupUpdateFailed = 17,      ///< AnglesGroupUpdateFailedEventArgs
        AnglesGroupDeletionFinished = 18,  ///< AnglesGroupDeletionFinishedEventArgs
        AnglesGroupDeletionFailed = 19,    ///< AnglesGroupDeletionFailedEventArgs
    };

    /// The arguments, shared by the producer and every callback; SendEvent refuses null.
    std::shared_ptr<ClipCommandEventArgs> args;
    /// The type the event was posted under, any 32-bit value.
    Type type{};
};

}  // namespace Korv::Plurex::Notification

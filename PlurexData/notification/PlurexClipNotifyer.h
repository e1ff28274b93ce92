#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/AnglesGroupCreationFailedEventArgs.h"
#include "PlurexData/notification/AnglesGroupCreationFinishedEventArgs.h"
#include "PlurexData/notification/AnglesGroupDeletionFailedEventArgs.h"
#include "PlurexData/notification/AnglesGroupDeletionFinishedEventArgs.h"
#include "PlurexData/notification/AnglesGroupUpdateFailedEventArgs.h"
#include "PlurexData/notification/AnglesGroupUpdateFinishedEventArgs.h"
#include "PlurexData/notification/ClipCommandEvent.h"
#include "PlurexData/notification/ClipCommandEventArgs.h"
#include "PlurexData/notification/ClipCreationEventArgs.h"
#include "PlurexData/notification/ClipCreationFailedEventArgs.h"
#include "PlurexData/notification/ClipCreationFinishedEventArgs.h"
#include "PlurexData/notification/ClipDeletionFailedEventArgs.h"
#include "PlurexData/notification/ClipDeletionFinishedEventArgs.h"
#include "PlurexData/notification/ClipMoveEventArgs.h"
#include "PlurexData/notification/ClipMoveFailedEventArgs.h"
#include "PlurexData/notification/ClipMoveFinishedEventArgs.h"
#include "PlurexData/notification/ClipStatusEvent.h"
#include "PlurexData/notification/ClipStatusEventArgs.h"
#include "PlurexData/notification/ClipUpdateFailedEventArgs.h"
#include "PlurexData/notification/ClipUpdateFinishedEventArgs.h"
#include "PlurexData/notification/MassClipDeletionEventArgs.h"
#include "PlurexData/notification/MassClipDeletionFailedEventArgs.h"
#include "PlurexData/notification/MassClipUpdateEventArgs.h"
#include "PlurexData/notification/MassClipUpdateFailedEventArgs.h"
#include "PlurexData/notification/RecordingRangesChangedEventArgs.h"

#include <atomic>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace Korv::Plurex::Notification {

/// Carries clip events from producers on any thread to callbacks run on the thread that calls Run.
/// Two queues (commands and status), each guarded by its own mutex, held only to append or remove one
/// record and never while a callback runs, so a callback may post to the same notifier.
///
/// Clients register by appending to the public callback lists, before or between calls to Run, or
/// from a callback of this notifier's Run (the walk sees a callback appended to its own list in the
/// same Run). The lists are not guarded: no other thread may change them while Run may be running,
/// and no callback may remove or replace callbacks.
class PLUREXDATA_API PlurexClipNotifyer {
public:
    /// A specific list: each callback receives the arguments as class `Args`.
    template <class Args>
    using Callbacks = std::vector<std::function<void(const Args&)>>;
    /// The generic command list: each callback receives the type and the arguments as the base class.
    using CommandCallbacks =
        std::vector<std::function<void(ClipCommandEvent::Type, const ClipCommandEventArgs&)>>;
    /// The generic status list: each callback receives the type and the arguments as the base class.
    using StatusCallbacks =
        std::vector<std::function<void(ClipStatusEvent::Type, const ClipStatusEventArgs&)>>;

    PlurexClipNotifyer();
    PlurexClipNotifyer(const PlurexClipNotifyer&) = delete;
    PlurexClipNotifyer& operator=(const PlurexClipNotifyer&) = delete;
    /// Events still queued are dropped with their arguments.
    ~PlurexClipNotifyer();

    /// Appends {args, type} at the back of its queue; safe from any number of threads. The producer may
    /// drop its own reference at once. Null arguments throw std::invalid_argument("Null EventArgs");
    /// arguments that are not of the class the type's specific list receives (or derived from it)
    /// throw std::invalid_argument("EventArgs do not match the event type"); a failed lock throws
    /// std::system_error. The queue is unchanged by all three.
    ///@{
    void SendEvent(std::shared_ptr<ClipCommandEventArgs> args, ClipCommandEvent::Type type);
    void SendEvent(std::shared_ptr<ClipStatusEventArgs> args, ClipStatusEvent::Type type);
    ///@}

    /// Delivers the front command event, if any, then the front status event, if any: first to the
    /// specific list of its type (none for values outside the table), then to the generic list, each
    /// in registration order. For one consumer thread at a time. An empty callback
    /// (std::bad_function_call) or a callback's exception leaves Run at once: the event has already
    /// left its queue and is lost, and the rest of this Run is skipped. A failed lock throws
    /// std::system_error.
    void Run();

private:
    std::deque<ClipCommandEvent> commandQueue_;
    std::mutex commandMutex_;
    std::atomic<std::size_t> commandSize_;
    std::deque<ClipStatusEvent> statusQueue_;
    std::mutex statusMutex_;
    std::atomic<std::size_t> statusSize_;

public:
    /// Every command event, after its specific list.
    CommandCallbacks genericCommandCallbacks;
    /// Every status event, after its specific list.
    StatusCallbacks genericStatusCallbacks;
    /// One list per ClipCommandEvent::Type value, in the order of the values.
    ///@{
    Callbacks<ClipCreationEventArgs> clipCreationCallbacks;
    Callbacks<ClipCreationFinishedEventArgs> clipCreationFinishedCallbacks;
    Callbacks<ClipCreationFailedEventArgs> clipCreationFailedCallbacks;
    Callbacks<ClipUpdateFinishedEventArgs> clipUpdateFinishedCallbacks;
    Callbacks<ClipUpdateFailedEventArgs> clipUpdateFailedCallbacks;
    Callbacks<ClipDeletionFinishedEventArgs> clipDeletionFinishedCallbacks;
    Callbacks<ClipDeletionFailedEventArgs> clipDeletionFailedCallbacks;
    Callbacks<ClipMoveEventArgs> clipMoveCallbacks;
    Callbacks<ClipMoveFinishedEventArgs> clipMoveFinishedCallbacks;
    Callbacks<ClipMoveFailedEventArgs> clipMoveFailedCallbacks;
    Callbacks<MassClipUpdateEventArgs> massClipUpdateCallbacks;
    Callbacks<MassClipUpdateFailedEventArgs> massClipUpdateFailedCallbacks;
    Callbacks<MassClipDeletionEventArgs> massClipDeletionCallbacks;
    Callbacks<MassClipDeletionFailedEventArgs> massClipDeletionFailedCallbacks;
    Callbacks<AnglesGroupCreationFinishedEventArgs> anglesGroupCreationFinishedCallbacks;
    Callbacks<AnglesGroupCreationFailedEventArgs> anglesGroupCreationFailedCallbacks;
    Callbacks<AnglesGroupUpdateFinishedEventArgs> anglesGroupUpdateFinishedCallbacks;
    Callbacks<AnglesGroupUpdateFailedEventArgs> anglesGroupUpdateFailedCallbacks;
    Callbacks<AnglesGroupDeletionFinishedEventArgs> anglesGroupDeletionFinishedCallbacks;
    Callbacks<AnglesGroupDeletionFailedEventArgs> anglesGroupDeletionFailedCallbacks;
    ///@}
    /// ClipStatusEvent::Type::RecordingRangesChanged.
    Callbacks<RecordingRangesChangedEventArgs> recordingRangesChangedCallbacks;
};

}  // namespace Korv::Plurex::Notification

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
#include "PlurexData/notification/EventTypeTable.h"
#include "PlurexData/notification/NotifierWaiting.h"
#include "PlurexData/notification/MassClipDeletionEventArgs.h"
#include "PlurexData/notification/MassClipDeletionFailedEventArgs.h"
#include "PlurexData/notification/MassClipUpdateEventArgs.h"
#include "PlurexData/notification/MassClipUpdateFailedEventArgs.h"
#include "PlurexData/notification/RecordingRangesChangedEventArgs.h"

#include <atomic>
#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <type_traits>
#include <utility>
#include <vector>

namespace Korv::Plurex::Notification {

/// Carries clip events from producers on any thread to callbacks run on the thread that calls Run.
/// Two queues (commands and status), each guarded by its own mutex, held only to append or remove one
/// record (or, in RunFor before it sleeps, to see whether the queue is empty) and never while a
/// callback runs, so a callback may post to the same notifier. RunFor sleeps on a mutex and condition
/// variable of its own, never held with a queue mutex nor while a callback runs.
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

    /// The class each specific list receives, with its event type: what the one-argument SendEvent
    /// reads.
    using EventTypes = EventTypeTable<
        EventTypeRow<ClipCreationEventArgs, ClipCommandEvent::Type::ClipCreation>,
        EventTypeRow<ClipCreationFinishedEventArgs, ClipCommandEvent::Type::ClipCreationFinished>,
        EventTypeRow<ClipCreationFailedEventArgs, ClipCommandEvent::Type::ClipCreationFailed>,
        EventTypeRow<ClipUpdateFinishedEventArgs, ClipCommandEvent::Type::ClipUpdateFinished>,
        EventTypeRow<ClipUpdateFailedEventArgs, ClipCommandEvent::Type::ClipUpdateFailed>,
        EventTypeRow<ClipDeletionFinishedEventArgs, ClipCommandEvent::Type::ClipDeletionFinished>,
        EventTypeRow<ClipDeletionFailedEventArgs, ClipCommandEvent::Type::ClipDeletionFailed>,
        EventTypeRow<ClipMoveEventArgs, ClipCommandEvent::Type::ClipMove>,
        EventTypeRow<ClipMoveFinishedEventArgs, ClipCommandEvent::Type::ClipMoveFinished>,
        EventTypeRow<ClipMoveFailedEventArgs, ClipCommandEvent::Type::ClipMoveFailed>,
        EventTypeRow<MassClipUpdateEventArgs, ClipCommandEvent::Type::MassClipUpdate>,
        EventTypeRow<MassClipUpdateFailedEventArgs, ClipCommandEvent::Type::MassClipUpdateFailed>,
        EventTypeRow<MassClipDeletionEventArgs, ClipCommandEvent::Type::MassClipDeletion>,
        EventTypeRow<MassClipDeletionFailedEventArgs, ClipCommandEvent::Type::MassClipDeletionFailed>,
        EventTypeRow<AnglesGroupCreationFinishedEventArgs,
                     ClipCommandEvent::Type::AnglesGroupCreationFinished>,
        EventTypeRow<AnglesGroupCreationFailedEventArgs, ClipCommandEvent::Type::AnglesGroupCreationFailed>,
        EventTypeRow<AnglesGroupUpdateFinishedEventArgs, ClipCommandEvent::Type::AnglesGroupUpdateFinished>,
        EventTypeRow<AnglesGroupUpdateFailedEventArgs, ClipCommandEvent::Type::AnglesGroupUpdateFailed>,
        EventTypeRow<AnglesGroupDeletionFinishedEventArgs,
                     ClipCommandEvent::Type::AnglesGroupDeletionFinished>,
        EventTypeRow<AnglesGroupDeletionFailedEventArgs, ClipCommandEvent::Type::AnglesGroupDeletionFailed>,
        EventTypeRow<RecordingRangesChangedEventArgs, ClipStatusEvent::Type::RecordingRangesChanged>>;

    PlurexClipNotifyer();
    PlurexClipNotifyer(const PlurexClipNotifyer&) = delete;
    PlurexClipNotifyer& operator=(const PlurexClipNotifyer&) = delete;
    /// Events still queued are dropped with their arguments.
    ~PlurexClipNotifyer();

    /// Appends {args, type} at the back of its queue; safe from any number of threads. The producer may
    /// drop its own reference at once. Null arguments throw std::invalid_argument("Null EventArgs");
    /// arguments that are not of the class the type's specific list receives (or derived from it)
    /// throw std::invalid_argument("EventArgs do not match the event type"); a failed lock throws
    /// std::system_error. The queue is unchanged by all three. When a consumer waits in RunFor, the
    /// append is followed by a lock of RunFor's mutex to wake it; should that fail, std::system_error
    /// is thrown with the event queued.
    ///@{
    void SendEvent(std::shared_ptr<ClipCommandEventArgs> args, ClipCommandEvent::Type type);
    void SendEvent(std::shared_ptr<ClipStatusEventArgs> args, ClipStatusEvent::Type type);
    ///@}

    /// Posts `args` under the one event type whose specific list receives exactly class `Args` (see
    /// EventTypes), as the two-argument form does, with the same exceptions. Only such a class
    /// compiles: a base class, a class derived from a list's class or a class of another notifier
    /// does not; post those with the two-argument form.
    template <class Args, std::enable_if_t<EventTypes::Count<Args> == 1, int> = 0>
    void SendEvent(std::shared_ptr<Args> args) {
        SendEvent(std::move(args), EventTypes::TypeOf<Args>);
    }

    /// Delivers the front command event, if any, then the front status event, if any: first to the
    /// specific list of its type (none for values outside the table), then to the generic list, each
    /// in registration order. For one consumer thread at a time. An empty callback
    /// (std::bad_function_call) or a callback's exception leaves Run at once: the event has already
    /// left its queue and is lost, and the rest of this Run is skipped. A failed lock throws
    /// std::system_error.
    void Run();

    /// Waits until an event is queued (in either queue), Wake is called or `timeout` has passed, then
    /// runs as Run does unless woken. Returns whether an event left its queue for its callbacks: false
    /// after a timeout with nothing queued, and at once after Wake, which leaves queued events for
    /// the next call. A zero or negative timeout does not wait; milliseconds::max() waits without
    /// limit. For one consumer thread at a time, like Run, and not at the same time as Run. Throws
    /// as Run does, and std::system_error when a lock or the wait fails.
    bool RunFor(std::chrono::milliseconds timeout);

    /// Makes the RunFor that waits return false at once or, when none is waiting, the next RunFor: a
    /// wake is kept until a RunFor answers it, so a consumer looping on `while (!stop) RunFor(...)`
    /// cannot miss `stop = true; Wake();`. Several wakes before a RunFor count as one; Run neither
    /// waits nor takes a wake. Safe from any thread and from a callback; a failed lock throws
    /// std::system_error.
    void Wake();

private:
    std::deque<ClipCommandEvent> commandQueue_;
    std::mutex commandMutex_;
    std::atomic<std::size_t> commandSize_;
    std::deque<ClipStatusEvent> statusQueue_;
    std::mutex statusMutex_;
    std::atomic<std::size_t> statusSize_;

    // What RunFor waits on (see detail::WaitUnlessWoken).
    NotifierWaiting waiting_;

    // Run's work; returns whether an event left a queue.
    bool RunOnce();

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

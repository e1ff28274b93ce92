#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ChannelCommandEvent.h"
#include "PlurexData/notification/ChannelCommandEventArgs.h"
#include "PlurexData/notification/ChannelStatusEvent.h"
#include "PlurexData/notification/ChannelStatusEventArgs.h"
#include "PlurexData/notification/EventTypeTable.h"
#include "PlurexData/notification/NotifierWaiting.h"
#include "PlurexData/notification/PlayerLoadProcessedEventArgs.h"
#include "PlurexData/notification/PlayerStateChangedEventArgs.h"
#include "PlurexData/notification/PlayerTransportProcessedEventArgs.h"
#include "PlurexData/notification/RecorderStateChangedEventArgs.h"
#include "PlurexData/notification/RecorderTransportProcessedEventArgs.h"

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

/// Carries channel events (commands processed, state changes) as PlurexClipNotifyer carries clip
/// events: a command and a status queue, each with its own mutex, drained one event per queue per
/// Run on the caller's thread. Clients register by appending to the public callback lists, between
/// calls to Run or from one of its callbacks, as on PlurexClipNotifyer.
class PLUREXDATA_API PlurexChannelNotifyer {
public:
    /// A specific list: each callback receives the arguments as class `Args`.
    template <class Args>
    using Callbacks = std::vector<std::function<void(const Args&)>>;
    /// The generic command list: each callback receives the type and the arguments as the base class.
    using CommandCallbacks =
        std::vector<std::function<void(ChannelCommandEvent::Type, const ChannelCommandEventArgs&)>>;
    /// The generic status list: each callback receives the type and the arguments as the base class.
    using StatusCallbacks =
        std::vector<std::function<void(ChannelStatusEvent::Type, const ChannelStatusEventArgs&)>>;

    /// The class each specific list receives, with its event type: what the one-argument SendEvent
    /// reads.
    using EventTypes = EventTypeTable<
        EventTypeRow<RecorderTransportProcessedEventArgs,
                     ChannelCommandEvent::Type::RecorderTransportProcessed>,
        EventTypeRow<PlayerLoadProcessedEventArgs, ChannelCommandEvent::Type::PlayerLoadProcessed>,
        EventTypeRow<PlayerTransportProcessedEventArgs, ChannelCommandEvent::Type::PlayerTransportProcessed>,
        EventTypeRow<RecorderStateChangedEventArgs, ChannelStatusEvent::Type::RecorderStateChanged>,
        EventTypeRow<PlayerStateChangedEventArgs, ChannelStatusEvent::Type::PlayerStateChanged>>;

    PlurexChannelNotifyer();
    PlurexChannelNotifyer(const PlurexChannelNotifyer&) = delete;
    PlurexChannelNotifyer& operator=(const PlurexChannelNotifyer&) = delete;
    /// Events still queued are dropped with their arguments.
    ~PlurexChannelNotifyer();

    /// Appends {args, type} at the back of its queue; safe from any number of threads. Null arguments
    /// throw std::invalid_argument("Null EventArgs"), arguments of another class than the type's
    /// specific list receives std::invalid_argument("EventArgs do not match the event type"), and a
    /// failed lock std::system_error; the queue is unchanged by all three. A failed lock
    /// of RunFor's mutex, to wake a waiting consumer after the append, throws std::system_error with
    /// the event queued.
    ///@{
    void SendEvent(std::shared_ptr<ChannelCommandEventArgs> args, ChannelCommandEvent::Type type);
    void SendEvent(std::shared_ptr<ChannelStatusEventArgs> args, ChannelStatusEvent::Type type);
    ///@}

    /// Posts `args` under the one event type whose specific list receives exactly class `Args` (see
    /// EventTypes), as the two-argument form does, with the same exceptions. Only such a class
    /// compiles: a base class, a class derived from a list's class or a class of another notifier
    /// does not; post those with the two-argument form.
    template <class Args, std::enable_if_t<EventTypes::Count<Args> == 1, int> = 0>
    void SendEvent(std::shared_ptr<Args> args) {
        SendEvent(std::move(args), EventTypes::TypeOf<Args>);
    }

    /// At most one command event, then at most one status event: specific list, then generic list. An
    /// empty callback or a callback's exception leaves Run at once; the event is lost and the rest of
    /// this Run is skipped. For one consumer thread at a time.
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
    std::deque<ChannelCommandEvent> commandQueue_;
    std::mutex commandMutex_;
    std::atomic<std::size_t> commandSize_;
    std::deque<ChannelStatusEvent> statusQueue_;
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
    /// One list per ChannelCommandEvent::Type value, in the order of the values.
    ///@{
    Callbacks<RecorderTransportProcessedEventArgs> recorderTransportProcessedCallbacks;
    Callbacks<PlayerLoadProcessedEventArgs> playerLoadProcessedCallbacks;
    Callbacks<PlayerTransportProcessedEventArgs> playerTransportProcessedCallbacks;
    ///@}
    /// One list per ChannelStatusEvent::Type value, in the order of the values.
    ///@{
    Callbacks<RecorderStateChangedEventArgs> recorderStateChangedCallbacks;
    Callbacks<PlayerStateChangedEventArgs> playerStateChangedCallbacks;
    ///@}
};

}  // namespace Korv::Plurex::Notification

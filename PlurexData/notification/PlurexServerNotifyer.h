#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/DisconnectedFromNetworkEventArgs.h"
#include "PlurexData/notification/EventTypeTable.h"
#include "PlurexData/notification/NotifierWaiting.h"
#include "PlurexData/notification/ServerAddedEventArgs.h"
#include "PlurexData/notification/ServerRemovedEventArgs.h"
#include "PlurexData/notification/ServerStatusEvent.h"
#include "PlurexData/notification/ServerStatusEventArgs.h"

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

/// Carries server events as PlurexClipNotifyer carries clip events, through a single queue: server
/// events have no command/status split. Clients register by appending to the public callback lists,
/// between calls to Run or from one of its callbacks, as on PlurexClipNotifyer.
class PLUREXDATA_API PlurexServerNotifyer {
public:
    /// A specific list: each callback receives the arguments as class `Args`.
    template <class Args>
    using Callbacks = std::vector<std::function<void(const Args&)>>;
    /// The generic list: each callback receives the type and the arguments as the base class.
    using StatusCallbacks =
        std::vector<std::function<void(ServerStatusEvent::Type, const ServerStatusEventArgs&)>>;

    /// The class each specific list receives, with its event type: what the one-argument SendEvent
    /// reads.
    using EventTypes = EventTypeTable<
        EventTypeRow<ServerAddedEventArgs, ServerStatusEvent::Type::ServerAdded>,
        EventTypeRow<ServerRemovedEventArgs, ServerStatusEvent::Type::ServerRemoved>,
        EventTypeRow<DisconnectedFromNetworkEventArgs, ServerStatusEvent::Type::DisconnectedFromNetwork>>;

    PlurexServerNotifyer();
    PlurexServerNotifyer(const PlurexServerNotifyer&) = delete;
    PlurexServerNotifyer& operator=(const PlurexServerNotifyer&) = delete;
    /// Events still queued are dropped with their arguments.
    ~PlurexServerNotifyer();

    /// Appends {args, type} at the back of the queue; safe from any number of threads. Null arguments
    /// throw std::invalid_argument("Null EventArgs"), arguments of another class than the type's
    /// specific list receives std::invalid_argument("EventArgs do not match the event type"), and a
    /// failed lock std::system_error; the queue is unchanged by all three. A failed lock
    /// of RunFor's mutex, to wake a waiting consumer after the append, throws std::system_error with
    /// the event queued.
    void SendEvent(std::shared_ptr<ServerStatusEventArgs> args, ServerStatusEvent::Type type);

    /// Posts `args` under the one event type whose specific list receives exactly class `Args` (see
    /// EventTypes), as the two-argument form does, with the same exceptions. Only such a class
    /// compiles: a base class, a class derived from a list's class or a class of another notifier
    /// does not; post those with the two-argument form.
    template <class Args, std::enable_if_t<EventTypes::Count<Args> == 1, int> = 0>
    void SendEvent(std::shared_ptr<Args> args) {
        SendEvent(std::move(args), EventTypes::TypeOf<Args>);
    }

    /// At most one event: specific list, then generic list. An empty callback or a callback's
    /// exception leaves Run at once and the event is lost. For one consumer thread at a time.
    void Run();

    /// Waits until an event is queued, Wake is called or `timeout` has passed, then runs as Run does
    /// unless woken. Returns whether an event left the queue for its callbacks: false
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
    std::deque<ServerStatusEvent> queue_;
    std::mutex mutex_;
    std::atomic<std::size_t> size_;

    // What RunFor waits on (see detail::WaitUnlessWoken).
    NotifierWaiting waiting_;

    // Run's work; returns whether an event left a queue.
    bool RunOnce();

public:
    /// Every event, after its specific list.
    StatusCallbacks genericCallbacks;
    /// One list per ServerStatusEvent::Type value, in the order of the values.
    ///@{
    Callbacks<ServerAddedEventArgs> serverAddedCallbacks;
    Callbacks<ServerRemovedEventArgs> serverRemovedCallbacks;
    Callbacks<DisconnectedFromNetworkEventArgs> disconnectedFromNetworkCallbacks;
    ///@}
};

}  // namespace Korv::Plurex::Notification

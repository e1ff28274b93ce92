#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/DisconnectedFromNetworkEventArgs.h"
#include "PlurexData/notification/ServerAddedEventArgs.h"
#include "PlurexData/notification/ServerRemovedEventArgs.h"
#include "PlurexData/notification/ServerStatusEvent.h"
#include "PlurexData/notification/ServerStatusEventArgs.h"

#include <atomic>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
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

    PlurexServerNotifyer();
    PlurexServerNotifyer(const PlurexServerNotifyer&) = delete;
    PlurexServerNotifyer& operator=(const PlurexServerNotifyer&) = delete;
    /// Events still queued are dropped with their arguments.
    ~PlurexServerNotifyer();

    /// Appends {args, type} at the back of the queue; safe from any number of threads. Null arguments
    /// throw std::invalid_argument("Null EventArgs"), arguments of another class than the type's
    /// specific list receives std::invalid_argument("EventArgs do not match the event type"), and a
    /// failed lock std::system_error; the queue is unchanged by all three.
    void SendEvent(std::shared_ptr<ServerStatusEventArgs> args, ServerStatusEvent::Type type);

    /// At most one event: specific list, then generic list. An empty callback or a callback's
    /// exception leaves Run at once and the event is lost. For one consumer thread at a time.
    void Run();

private:
    std::deque<ServerStatusEvent> queue_;
    std::mutex mutex_;
    std::atomic<std::size_t> size_;

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

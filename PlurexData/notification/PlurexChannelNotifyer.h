#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/notification/ChannelCommandEvent.h"
#include "PlurexData/notification/ChannelCommandEventArgs.h"
#include "PlurexData/notification/ChannelStatusEvent.h"
#include "PlurexData/notification/ChannelStatusEventArgs.h"
#include "PlurexData/notification/PlayerLoadProcessedEventArgs.h"
#include "PlurexData/notification/PlayerStateChangedEventArgs.h"
#include "PlurexData/notification/PlayerTransportProcessedEventArgs.h"
#include "PlurexData/notification/RecorderStateChangedEventArgs.h"
#include "PlurexData/notification/RecorderTransportProcessedEventArgs.h"

#include <atomic>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
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

    PlurexChannelNotifyer();
    PlurexChannelNotifyer(const PlurexChannelNotifyer&) = delete;
    PlurexChannelNotifyer& operator=(const PlurexChannelNotifyer&) = delete;
    /// Events still queued are dropped with their arguments.
    ~PlurexChannelNotifyer();

    /// Appends {args, type} at the back of its queue; safe from any number of threads. Null arguments
    /// throw std::invalid_argument("Null EventArgs"), arguments of another class than the type's
    /// specific list receives std::invalid_argument("EventArgs do not match the event type"), and a
    /// failed lock std::system_error; the queue is unchanged by all three.
    ///@{
    void SendEvent(std::shared_ptr<ChannelCommandEventArgs> args, ChannelCommandEvent::Type type);
    void SendEvent(std::shared_ptr<ChannelStatusEventArgs> args, ChannelStatusEvent::Type type);
    ///@}

    /// At most one command event, then at most one status event: specific list, then generic list. An
    /// empty callback or a callback's exception leaves Run at once; the event is lost and the rest of
    /// this Run is skipped. For one consumer thread at a time.
    void Run();

private:
    std::deque<ChannelCommandEvent> commandQueue_;
    std::mutex commandMutex_;
    std::atomic<std::size_t> commandSize_;
    std::deque<ChannelStatusEvent> statusQueue_;
    std::mutex statusMutex_;
    std::atomic<std::size_t> statusSize_;

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

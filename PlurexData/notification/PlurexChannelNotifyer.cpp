#include "PlurexData/notification/PlurexChannelNotifyer.h"

#include "PlurexData/notification/detail/EventQueue.h"

#include <utility>

namespace Korv::Plurex::Notification {

namespace {

// Calls `visit` with the specific callback list of an event type; types without one have none.
template <class Visit>
void WithCommandList(PlurexChannelNotifyer& notifier, ChannelCommandEvent::Type type, Visit&& visit) {
    using Type = ChannelCommandEvent::Type;
    switch (type) {
        case Type::RecorderTransportProcessed:
            visit(notifier.recorderTransportProcessedCallbacks);
            return;
        case Type::PlayerLoadProcessed:
            visit(notifier.playerLoadProcessedCallbacks);
            return;
        case Type::PlayerTransportProcessed:
            visit(notifier.playerTransportProcessedCallbacks);
            return;
        default:
            return;
    }
}

template <class Visit>
void WithStatusList(PlurexChannelNotifyer& notifier, ChannelStatusEvent::Type type, Visit&& visit) {
    using Type = ChannelStatusEvent::Type;
    switch (type) {
        case Type::RecorderStateChanged:
            visit(notifier.recorderStateChangedCallbacks);
            return;
        case Type::PlayerStateChanged:
            visit(notifier.playerStateChangedCallbacks);
            return;
        default:
            return;
    }
}

}  // namespace

PlurexChannelNotifyer::PlurexChannelNotifyer() : commandSize_(0), statusSize_(0) {}

PlurexChannelNotifyer::~PlurexChannelNotifyer() = default;

void PlurexChannelNotifyer::SendEvent(std::shared_ptr<ChannelCommandEventArgs> args,
                                      ChannelCommandEvent::Type type) {
    if (detail::Append(commandQueue_, commandMutex_, commandSize_, waiting_.waiters,
                       ChannelCommandEvent{std::move(args), type}, [this](const ChannelCommandEvent& event) {
                           WithCommandList(*this, event.type,
                                           [&](const auto& list) { detail::CheckClass(list, *event.args); });
                       })) {
        detail::Raise(waiting_, &NotifierWaiting::signalled);
    }
}

void PlurexChannelNotifyer::SendEvent(std::shared_ptr<ChannelStatusEventArgs> args,
                                      ChannelStatusEvent::Type type) {
    if (detail::Append(statusQueue_, statusMutex_, statusSize_, waiting_.waiters,
                       ChannelStatusEvent{std::move(args), type}, [this](const ChannelStatusEvent& event) {
                           WithStatusList(*this, event.type,
                                          [&](const auto& list) { detail::CheckClass(list, *event.args); });
                       })) {
        detail::Raise(waiting_, &NotifierWaiting::signalled);
    }
}

void PlurexChannelNotifyer::Run() {
    RunOnce();
}

bool PlurexChannelNotifyer::RunOnce() {
    bool delivered = false;
    ChannelCommandEvent command;
    if (detail::TakeFront(commandQueue_, commandMutex_, commandSize_, command)) {
        const ChannelCommandEventArgs& args = *command.args;
        WithCommandList(*this, command.type, [&](const auto& list) { detail::CallEach(list, args); });
        detail::CallEach(genericCommandCallbacks, command.type, args);
        command.args.reset();
        delivered = true;
    }

    ChannelStatusEvent status;
    if (detail::TakeFront(statusQueue_, statusMutex_, statusSize_, status)) {
        const ChannelStatusEventArgs& args = *status.args;
        WithStatusList(*this, status.type, [&](const auto& list) { detail::CallEach(list, args); });
        detail::CallEach(genericStatusCallbacks, status.type, args);
        delivered = true;
    }
    return delivered;
}

bool PlurexChannelNotifyer::RunFor(std::chrono::milliseconds timeout) {
    return detail::WaitUnlessWoken(waiting_, timeout,
                                   [this] {
                                       return detail::IsQueued(commandQueue_, commandMutex_, commandSize_) ||
                                              detail::IsQueued(statusQueue_, statusMutex_, statusSize_);
                                   }) &&
           RunOnce();
}

void PlurexChannelNotifyer::Wake() {
    detail::Raise(waiting_, &NotifierWaiting::woken);
}

}  // namespace Korv::Plurex::Notification

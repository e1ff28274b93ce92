#include "PlurexData/notification/PlurexServerNotifyer.h"

#include "PlurexData/notification/detail/EventQueue.h"

#include <utility>

namespace Korv::Plurex::Notification {

namespace {

// Calls `visit` with the specific callback list of an event type; types without one have none.
template <class Visit>
void WithList(PlurexServerNotifyer& notifier, ServerStatusEvent::Type type, Visit&& visit) {
    using Type = ServerStatusEvent::Type;
    switch (type) {
        case Type::ServerAdded:
            visit(notifier.serverAddedCallbacks);
            return;
        case Type::ServerRemoved:
            visit(notifier.serverRemovedCallbacks);
            return;
        case Type::DisconnectedFromNetwork:
            visit(notifier.disconnectedFromNetworkCallbacks);
            return;
        default:
            return;
    }
}

}  // namespace

PlurexServerNotifyer::PlurexServerNotifyer() : size_(0) {}

PlurexServerNotifyer::~PlurexServerNotifyer() = default;

void PlurexServerNotifyer::SendEvent(std::shared_ptr<ServerStatusEventArgs> args,
                                     ServerStatusEvent::Type type) {
    if (detail::Append(queue_, mutex_, size_, waiting_.waiters, ServerStatusEvent{std::move(args), type},
                       [this](const ServerStatusEvent& event) {
                           WithList(*this, event.type,
                                    [&](const auto& list) { detail::CheckClass(list, *event.args); });
                       })) {
        detail::Raise(waiting_, &NotifierWaiting::signalled);
    }
}

void PlurexServerNotifyer::Run() {
    RunOnce();
}

bool PlurexServerNotifyer::RunOnce() {
    ServerStatusEvent event;
    if (!detail::TakeFront(queue_, mutex_, size_, event)) {
        return false;
    }
    const ServerStatusEventArgs& args = *event.args;
    WithList(*this, event.type, [&](const auto& list) { detail::CallEach(list, args); });
    detail::CallEach(genericCallbacks, event.type, args);
    return true;
}

bool PlurexServerNotifyer::RunFor(std::chrono::milliseconds timeout) {
    return detail::WaitUnlessWoken(waiting_, timeout,
                                   [this] { return detail::IsQueued(queue_, mutex_, size_); }) &&
           RunOnce();
}

void PlurexServerNotifyer::Wake() {
    detail::Raise(waiting_, &NotifierWaiting::woken);
}

}  // namespace Korv::Plurex::Notification

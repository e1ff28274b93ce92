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
    detail::Append(queue_, mutex_, size_, ServerStatusEvent{std::move(args), type},
                   [this](const ServerStatusEvent& event) {
                       WithList(*this, event.type,
                                [&](const auto& list) { detail::CheckClass(list, *event.args); });
                   });
}

void PlurexServerNotifyer::Run() {
    ServerStatusEvent event;
    if (!detail::TakeFront(queue_, mutex_, size_, event)) {
        return;
    }
    const ServerStatusEventArgs& args = *event.args;
    WithList(*this, event.type, [&](const auto& list) { detail::CallEach(list, args); });
    detail::CallEach(genericCallbacks, event.type, args);
}

}  // namespace Korv::Plurex::Notification

#include "PlurexData/notification/PlurexServerNotifyer.h"

#include "PlurexData/notification/detail/EventQueue.h"

#include <utility>

namespace Korv::Plurex::Notification {

PlurexServerNotifyer::PlurexServerNotifyer() : size_(0) {}

PlurexServerNotifyer::~PlurexServerNotifyer() = default;

void PlurexServerNotifyer::SendEvent(std::shared_ptr<ServerStatusEventArgs> args,
                                     ServerStatusEvent::Type type) {
    detail::Append(queue_, mutex_, size_, ServerStatusEvent{std::move(args), type});
}

void PlurexServerNotifyer::Run() {
    using detail::CallEach;
    ServerStatusEvent event;
    if (!detail::TakeFront(queue_, mutex_, size_, event)) {
        return;
    }
    const ServerStatusEventArgs& args = *event.args;
    switch (event.type) {
        case ServerStatusEvent::Type::ServerAdded:
            CallEach(serverAddedCallbacks, args);
            break;
        case ServerStatusEvent::Type::ServerRemoved:
            CallEach(serverRemovedCallbacks, args);
            break;
        case ServerStatusEvent::Type::DisconnectedFromNetwork:
            CallEach(disconnectedFromNetworkCallbacks, args);
            break;
        default:  // no specific list
            break;
    }
    CallEach(genericCallbacks, event.type, args);
}

}  // namespace Korv::Plurex::Notification

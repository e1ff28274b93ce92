#include "PlurexData/notification/PlurexChannelNotifyer.h"

#include "PlurexData/notification/detail/EventQueue.h"

#include <utility>

namespace Korv::Plurex::Notification {

PlurexChannelNotifyer::PlurexChannelNotifyer() : commandSize_(0), statusSize_(0) {}

PlurexChannelNotifyer::~PlurexChannelNotifyer() = default;

void PlurexChannelNotifyer::SendEvent(std::shared_ptr<ChannelCommandEventArgs> args,
                                      ChannelCommandEvent::Type type) {
    detail::Append(commandQueue_, commandMutex_, commandSize_, ChannelCommandEvent{std::move(args), type});
}

void PlurexChannelNotifyer::SendEvent(std::shared_ptr<ChannelStatusEventArgs> args,
                                      ChannelStatusEvent::Type type) {
    detail::Append(statusQueue_, statusMutex_, statusSize_, ChannelStatusEvent{std::move(args), type});
}

void PlurexChannelNotifyer::Run() {
    using detail::CallEach;
    ChannelCommandEvent command;
    if (detail::TakeFront(commandQueue_, commandMutex_, commandSize_, command)) {
        const ChannelCommandEventArgs& args = *command.args;
        switch (command.type) {
            case ChannelCommandEvent::Type::RecorderTransportProcessed:
                CallEach(recorderTransportProcessedCallbacks, args);
                break;
            case ChannelCommandEvent::Type::PlayerLoadProcessed:
                CallEach(playerLoadProcessedCallbacks, args);
                break;
            case ChannelCommandEvent::Type::PlayerTransportProcessed:
                CallEach(playerTransportProcessedCallbacks, args);
                break;
            default:  // no specific list
                break;
        }
        CallEach(genericCommandCallbacks, command.type, args);
        command.args.reset();
    }

    ChannelStatusEvent status;
    if (detail::TakeFront(statusQueue_, statusMutex_, statusSize_, status)) {
        const ChannelStatusEventArgs& args = *status.args;
        switch (status.type) {
            case ChannelStatusEvent::Type::RecorderStateChanged:
                CallEach(recorderStateChangedCallbacks, args);
                break;
            case ChannelStatusEvent::Type::PlayerStateChanged:
                CallEach(playerStateChangedCallbacks, args);
                break;
            default:  // no specific list
                break;
        }
        CallEach(genericStatusCallbacks, status.type, args);
    }
}

}  // namespace Korv::Plurex::Notification

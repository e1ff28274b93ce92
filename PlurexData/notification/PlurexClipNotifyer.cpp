#include "PlurexData/notification/PlurexClipNotifyer.h"

#include "PlurexData/notification/detail/EventQueue.h"

#include <utility>

namespace Korv::Plurex::Notification {

namespace {

// Calls `visit` with the specific callback list of a command event type; types without one have none.
template <class Visit>
void WithCommandList(PlurexClipNotifyer& notifier, ClipCommandEvent::Type type, Visit&& visit) {
    using Type = ClipCommandEvent::Type;
    switch (type) {
        case Type::ClipCreation:
            visit(notifier.clipCreationCallbacks);
            return;
        case Type::ClipCreationFinished:
            visit(notifier.clipCreationFinishedCallbacks);
            return;
        case Type::ClipCreationFailed:
            visit(notifier.clipCreationFailedCallbacks);
            return;
        case Type::ClipUpdateFinished:
            visit(notifier.clipUpdateFinishedCallbacks);
            return;
        case Type::ClipUpdateFailed:
            visit(notifier.clipUpdateFailedCallbacks);
            return;
        case Type::ClipDeletionFinished:
            visit(notifier.clipDeletionFinishedCallbacks);
            return;
        case Type::ClipDeletionFailed:
            visit(notifier.clipDeletionFailedCallbacks);
            return;
        case Type::ClipMove:
            visit(notifier.clipMoveCallbacks);
            return;
        case Type::ClipMoveFinished:
            visit(notifier.clipMoveFinishedCallbacks);
            return;
        case Type::ClipMoveFailed:
            visit(notifier.clipMoveFailedCallbacks);
            return;
        case Type::MassClipUpdate:
            visit(notifier.massClipUpdateCallbacks);
            return;
        case Type::MassClipUpdateFailed:
            visit(notifier.massClipUpdateFailedCallbacks);
            return;
        case Type::MassClipDeletion:
            visit(notifier.massClipDeletionCallbacks);
            return;
        case Type::MassClipDeletionFailed:
            visit(notifier.massClipDeletionFailedCallbacks);
            return;
        case Type::AnglesGroupCreationFinished:
            visit(notifier.anglesGroupCreationFinishedCallbacks);
            return;
        case Type::AnglesGroupCreationFailed:
            visit(notifier.anglesGroupCreationFailedCallbacks);
            return;
        case Type::AnglesGroupUpdateFinished:
            visit(notifier.anglesGroupUpdateFinishedCallbacks);
            return;
        case Type::AnglesGroupUpdateFailed:
            visit(notifier.anglesGroupUpdateFailedCallbacks);
            return;
        case Type::AnglesGroupDeletionFinished:
            visit(notifier.anglesGroupDeletionFinishedCallbacks);
            return;
        case Type::AnglesGroupDeletionFailed:
            visit(notifier.anglesGroupDeletionFailedCallbacks);
            return;
        default:
            return;
    }
}

template <class Visit>
void WithStatusList(PlurexClipNotifyer& notifier, ClipStatusEvent::Type type, Visit&& visit) {
    if (type == ClipStatusEvent::Type::RecordingRangesChanged) {
        visit(notifier.recordingRangesChangedCallbacks);
    }
}

}  // namespace

PlurexClipNotifyer::PlurexClipNotifyer() : commandSize_(0), statusSize_(0) {}

PlurexClipNotifyer::~PlurexClipNotifyer() = default;

void PlurexClipNotifyer::SendEvent(std::shared_ptr<ClipCommandEventArgs> args, ClipCommandEvent::Type type) {
    if (detail::Append(commandQueue_, commandMutex_, commandSize_, waiting_.waiters,
                       ClipCommandEvent{std::move(args), type}, [this](const ClipCommandEvent& event) {
                           WithCommandList(*this, event.type,
                                           [&](const auto& list) { detail::CheckClass(list, *event.args); });
                       })) {
        detail::Raise(waiting_, &NotifierWaiting::signalled);
    }
}

void PlurexClipNotifyer::SendEvent(std::shared_ptr<ClipStatusEventArgs> args, ClipStatusEvent::Type type) {
    if (detail::Append(statusQueue_, statusMutex_, statusSize_, waiting_.waiters,
                       ClipStatusEvent{std::move(args), type}, [this](const ClipStatusEvent& event) {
                           WithStatusList(*this, event.type,
                                          [&](const auto& list) { detail::CheckClass(list, *event.args); });
                       })) {
        detail::Raise(waiting_, &NotifierWaiting::signalled);
    }
}

void PlurexClipNotifyer::Run() {
    RunOnce();
}

bool PlurexClipNotifyer::RunOnce() {
    bool delivered = false;
    ClipCommandEvent command;
    if (detail::TakeFront(commandQueue_, commandMutex_, commandSize_, command)) {
        const ClipCommandEventArgs& args = *command.args;
        WithCommandList(*this, command.type, [&](const auto& list) { detail::CallEach(list, args); });
        detail::CallEach(genericCommandCallbacks, command.type, args);
        command.args.reset();
        delivered = true;
    }

    ClipStatusEvent status;
    if (detail::TakeFront(statusQueue_, statusMutex_, statusSize_, status)) {
        const ClipStatusEventArgs& args = *status.args;
        WithStatusList(*this, status.type, [&](const auto& list) { detail::CallEach(list, args); });
        detail::CallEach(genericStatusCallbacks, status.type, args);
        delivered = true;
    }
    return delivered;
}

bool PlurexClipNotifyer::RunFor(std::chrono::milliseconds timeout) {
    return detail::WaitUnlessWoken(waiting_, timeout,
                                   [this] {
                                       return detail::IsQueued(commandQueue_, commandMutex_, commandSize_) ||
                                              detail::IsQueued(statusQueue_, statusMutex_, statusSize_);
                                   }) &&
           RunOnce();
}

void PlurexClipNotifyer::Wake() {
    detail::Raise(waiting_, &NotifierWaiting::woken);
}

}  // namespace Korv::Plurex::Notification

#include "PlurexData/notification/PlurexClipNotifyer.h"

#include "PlurexData/notification/detail/EventQueue.h"

#include <utility>

namespace Korv::Plurex::Notification {

PlurexClipNotifyer::PlurexClipNotifyer() : commandSize_(0), statusSize_(0) {}

PlurexClipNotifyer::~PlurexClipNotifyer() = default;

void PlurexClipNotifyer::SendEvent(std::shared_ptr<ClipCommandEventArgs> args, ClipCommandEvent::Type type) {
    detail::Append(commandQueue_, commandMutex_, commandSize_, ClipCommandEvent{std::move(args), type});
}

void PlurexClipNotifyer::SendEvent(std::shared_ptr<ClipStatusEventArgs> args, ClipStatusEvent::Type type) {
    detail::Append(statusQueue_, statusMutex_, statusSize_, ClipStatusEvent{std::move(args), type});
}

void PlurexClipNotifyer::Run() {
    using detail::CallEach;
    ClipCommandEvent command;
    if (detail::TakeFront(commandQueue_, commandMutex_, commandSize_, command)) {
        const ClipCommandEventArgs& args = *command.args;
        switch (command.type) {
            case ClipCommandEvent::Type::ClipCreation:
                CallEach(clipCreationCallbacks, args);
                break;
            case ClipCommandEvent::Type::ClipCreationFinished:
                CallEach(clipCreationFinishedCallbacks, args);
                break;
            case ClipCommandEvent::Type::ClipCreationFailed:
                CallEach(clipCreationFailedCallbacks, args);
                break;
            case ClipCommandEvent::Type::ClipUpdateFinished:
                CallEach(clipUpdateFinishedCallbacks, args);
                break;
            case ClipCommandEvent::Type::ClipUpdateFailed:
                CallEach(clipUpdateFailedCallbacks, args);
                break;
            case ClipCommandEvent::Type::ClipDeletionFinished:
                CallEach(clipDeletionFinishedCallbacks, args);
                break;
            case ClipCommandEvent::Type::ClipDeletionFailed:
                CallEach(clipDeletionFailedCallbacks, args);
                break;
            case ClipCommandEvent::Type::ClipMove:
                CallEach(clipMoveCallbacks, args);
                break;
            case ClipCommandEvent::Type::ClipMoveFinished:
                CallEach(clipMoveFinishedCallbacks, args);
                break;
            case ClipCommandEvent::Type::ClipMoveFailed:
                CallEach(clipMoveFailedCallbacks, args);
                break;
            case ClipCommandEvent::Type::MassClipUpdate:
                CallEach(massClipUpdateCallbacks, args);
                break;
            case ClipCommandEvent::Type::MassClipUpdateFailed:
                CallEach(massClipUpdateFailedCallbacks, args);
                break;
            case ClipCommandEvent::Type::MassClipDeletion:
                CallEach(massClipDeletionCallbacks, args);
                break;
            case ClipCommandEvent::Type::MassClipDeletionFailed:
                CallEach(massClipDeletionFailedCallbacks, args);
                break;
            case ClipCommandEvent::Type::AnglesGroupCreationFinished:
                CallEach(anglesGroupCreationFinishedCallbacks, args);
                break;
            case ClipCommandEvent::Type::AnglesGroupCreationFailed:
                CallEach(anglesGroupCreationFailedCallbacks, args);
                break;
            case ClipCommandEvent::Type::AnglesGroupUpdateFinished:
                CallEach(anglesGroupUpdateFinishedCallbacks, args);
                break;
            case ClipCommandEvent::Type::AnglesGroupUpdateFailed:
                CallEach(anglesGroupUpdateFailedCallbacks, args);
                break;
            case ClipCommandEvent::Type::AnglesGroupDeletionFinished:
                CallEach(anglesGroupDeletionFinishedCallbacks, args);
                break;
            case ClipCommandEvent::Type::AnglesGroupDeletionFailed:
                CallEach(anglesGroupDeletionFailedCallbacks, args);
                break;
            default:  // no specific list
                break;
        }
        CallEach(genericCommandCallbacks, command.type, args);
        command.args.reset();
    }

    ClipStatusEvent status;
    if (detail::TakeFront(statusQueue_, statusMutex_, statusSize_, status)) {
        const ClipStatusEventArgs& args = *status.args;
        if (status.type == ClipStatusEvent::Type::RecordingRangesChanged) {
            CallEach(recordingRangesChangedCallbacks, args);
        }
        CallEach(genericStatusCallbacks, status.type, args);
    }
}

}  // namespace Korv::Plurex::Notification

#include "PlurexData/cuepoints/CuePointUserCommand.h"

namespace Korv::Plurex::BusinessObjects::CuePoints {

CuePointUserCommand::CuePointUserCommand() noexcept : command_() {}

CuePointUserCommand::cue_point_user_command CuePointUserCommand::GetCommand() const noexcept {
    return command_;
}

void CuePointUserCommand::SetCommand(const cue_point_user_command& command) noexcept {
    command_ = command;
}

}  // namespace Korv::Plurex::BusinessObjects::CuePoints

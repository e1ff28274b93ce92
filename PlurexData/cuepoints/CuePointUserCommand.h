#pragma once

#include "PlurexData/Export.h"

#include <cstdint>

namespace Korv::Plurex::BusinessObjects::CuePoints {

/// The operator's current mode, as the controller sends it.
class PLUREXDATA_API CuePointUserCommand {
public:
    /// The values are the controller's: the library only stores and returns them, so none is named.
    enum class cue_point_user_command : std::int32_t {};

    /// Command 0.
    CuePointUserCommand() noexcept;

    /// The mode, stored as given.
    ///@{
    cue_point_user_command GetCommand() const noexcept;
    void SetCommand(const cue_point_user_command& command) noexcept;
    ///@}

private:
    cue_point_user_command command_;
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints

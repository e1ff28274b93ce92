#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/cuepoints/CuePoint.h"
#include "PlurexData/cuepoints/CuePointDbEventType.h"
#include "PlurexData/cuepoints/CuePointDeleteCommand.h"
#include "PlurexData/system/EventArgs.h"

#include <cstdint>

namespace Korv::Plurex::BusinessObjects::CuePoints {

/// A change of one user's cue points, handed to the listeners of the registry. The field the
/// constructor does not receive keeps its default.
class PLUREXDATA_API CuePointDbEventArgs : public Korv::System::EventArgs {
public:
    /// A change of `type` to the cue points of `user`.
    CuePointDbEventArgs(std::int32_t user, CuePointDbEventType type);
    /// The same with a copy of the delete command, for a removal of all.
    CuePointDbEventArgs(std::int32_t user, CuePointDbEventType type,
                        const CuePointDeleteCommand& deleteCommand);
    /// The same with a copy of the cue point added or removed.
    CuePointDbEventArgs(std::int32_t user, CuePointDbEventType type, const CuePoint& cuePoint);
    /// Copies and assigns every field.
    ///@{
    CuePointDbEventArgs(const CuePointDbEventArgs& other) = default;
    CuePointDbEventArgs& operator=(const CuePointDbEventArgs& other) = default;
    ///@}
    ~CuePointDbEventArgs() override;

    /// The user number.
    std::int32_t GetUser() const noexcept { return user_; }
    /// What changed.
    CuePointDbEventType GetType() const noexcept { return type_; }
    /// The delete command given at construction (with a removal of all); a default one otherwise.
    const CuePointDeleteCommand& GetDeleteCommand() const noexcept { return deleteCommand_; }
    /// The cue point given at construction (the one added or removed); a default one otherwise.
    const CuePoint& GetCuePoint() const noexcept { return cuePoint_; }

private:
    std::int32_t user_;
    CuePointDbEventType type_;
    CuePointDeleteCommand deleteCommand_;
    CuePoint cuePoint_;
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/cuepoints/CuePoint.h"
#include "PlurexData/cuepoints/CuePointDbEventType.h"
#include "PlurexData/cuepoints/CuePointDeleteCommand.h"
#include "PlurexData/system/EventArgs.h"

#include <cstdint>

namespace Korv::Plurex::BusinessObjects::CuePoints {

// A change of one user's cue points, handed to the listeners of the registry. The field the
// constructor does not receive keeps its default.
class PLUREXDATA_API CuePointDbEventArgs : public Korv::System::EventArgs {
public:
    CuePointDbEventArgs(std::int32_t user, CuePointDbEventType type);
    CuePointDbEventArgs(std::int32_t user, CuePointDbEventType type,
                        const CuePointDeleteCommand& deleteCommand);
    CuePointDbEventArgs(std::int32_t user, CuePointDbEventType type, const CuePoint& cuePoint);
    CuePointDbEventArgs(const CuePointDbEventArgs& other) = default;
    CuePointDbEventArgs& operator=(const CuePointDbEventArgs& other) = default;
    ~CuePointDbEventArgs() override;

    std::int32_t GetUser() const noexcept { return user_; }
    CuePointDbEventType GetType() const noexcept { return type_; }
    const CuePointDeleteCommand& GetDeleteCommand() const noexcept { return deleteCommand_; }
    const CuePoint& GetCuePoint() const noexcept { return cuePoint_; }

private:
    std::int32_t user_;
    CuePointDbEventType type_;
    CuePointDeleteCommand deleteCommand_;
    CuePoint cuePoint_;
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints

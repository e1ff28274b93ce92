#include "PlurexData/cuepoints/CuePointDbEventArgs.h"

namespace Korv::Plurex::BusinessObjects::CuePoints {

CuePointDbEventArgs::CuePointDbEventArgs(std::int32_t user, CuePointDbEventType type)
    : user_(user), type_(type), deleteCommand_(), cuePoint_() {}

CuePointDbEventArgs::CuePointDbEventArgs(std::int32_t user, CuePointDbEventType type,
                                         const CuePointDeleteCommand& deleteCommand)
    : user_(user), type_(type), deleteCommand_(deleteCommand), cuePoint_() {}

CuePointDbEventArgs::CuePointDbEventArgs(std::int32_t user, CuePointDbEventType type,
                                         const CuePoint& cuePoint)
    : user_(user), type_(type), deleteCommand_(), cuePoint_(cuePoint) {}

CuePointDbEventArgs::~CuePointDbEventArgs() = default;

}  // namespace Korv::Plurex::BusinessObjects::CuePoints

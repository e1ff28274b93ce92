#include "PlurexData/notification/CommandEventArgs.h"

namespace Korv::Plurex::Notification {

// Out of line so that the type information lives in the library, where dynamic_cast finds one copy.
CommandEventArgs::~CommandEventArgs() = default;

}  // namespace Korv::Plurex::Notification

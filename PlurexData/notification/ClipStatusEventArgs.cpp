#include "PlurexData/notification/ClipStatusEventArgs.h"

namespace Korv::Plurex::Notification {

ClipStatusEventArgs::~ClipStatusEventArgs() = default;

}  // namespace Korv::Plurex::Notification

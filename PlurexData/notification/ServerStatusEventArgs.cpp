#include "PlurexData/notification/ServerStatusEventArgs.h"

namespace Korv::Plurex::Notification {

ServerStatusEventArgs::~ServerStatusEventArgs() = default;

}  // namespace Korv::Plurex::Notification

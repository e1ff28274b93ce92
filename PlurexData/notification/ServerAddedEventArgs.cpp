#include "PlurexData/notification/ServerAddedEventArgs.h"

namespace Korv::Plurex::Notification {

ServerAddedEventArgs::~ServerAddedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

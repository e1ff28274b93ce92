#include "PlurexData/notification/ServerRemovedEventArgs.h"

namespace Korv::Plurex::Notification {

ServerRemovedEventArgs::~ServerRemovedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

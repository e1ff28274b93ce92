#include "PlurexData/notification/StatusEventArgs.h"

namespace Korv::Plurex::Notification {

StatusEventArgs::StatusEventArgs() noexcept : time_(UnsetTime) {}

StatusEventArgs::~StatusEventArgs() = default;

}  // namespace Korv::Plurex::Notification

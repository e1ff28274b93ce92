#include "PlurexData/notification/PlayerLoadProcessedEventArgs.h"

namespace Korv::Plurex::Notification {

PlayerLoadProcessedEventArgs::~PlayerLoadProcessedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

#include "PlurexData/notification/PlayerTransportProcessedEventArgs.h"

namespace Korv::Plurex::Notification {

PlayerTransportProcessedEventArgs::~PlayerTransportProcessedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

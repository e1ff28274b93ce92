#include "PlurexData/notification/DisconnectedFromNetworkEventArgs.h"

namespace Korv::Plurex::Notification {

DisconnectedFromNetworkEventArgs::~DisconnectedFromNetworkEventArgs() = default;

}  // namespace Korv::Plurex::Notification

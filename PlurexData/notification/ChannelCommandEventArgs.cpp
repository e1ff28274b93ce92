#include "PlurexData/notification/ChannelCommandEventArgs.h"

namespace Korv::Plurex::Notification {

ChannelCommandEventArgs::~ChannelCommandEventArgs() = default;

}  // namespace Korv::Plurex::Notification

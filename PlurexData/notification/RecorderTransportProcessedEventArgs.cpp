#include "PlurexData/notification/RecorderTransportProcessedEventArgs.h"

namespace Korv::Plurex::Notification {

RecorderTransportProcessedEventArgs::~RecorderTransportProcessedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

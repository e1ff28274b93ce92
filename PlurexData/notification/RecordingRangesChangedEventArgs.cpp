#include "PlurexData/notification/RecordingRangesChangedEventArgs.h"

namespace Korv::Plurex::Notification {

RecordingRangesChangedEventArgs::~RecordingRangesChangedEventArgs() = default;

}  // namespace Korv::Plurex::Notification

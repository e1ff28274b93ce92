#include "PlurexData/system/EventArgs.h"

namespace Korv::System {

// Defined here so that the type information and the virtual table live in the library.
EventArgs::~EventArgs() = default;

}  // namespace Korv::System

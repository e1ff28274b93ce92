#include "PlurexData/Version.h"

namespace Korv::Plurex {

// Compiled into the shared object, so it reports the library that is loaded, not the headers.
const char* Version() noexcept {
    return PLUREXDATA_VERSION_STRING;
}

}  // namespace Korv::Plurex

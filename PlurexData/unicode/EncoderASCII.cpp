#include "PlurexData/unicode/EncoderASCII.h"

namespace Korv::Plurex::Unicode {

// Out of line so that the virtual table lives in the library.
EncoderASCII::~EncoderASCII() = default;

}  // namespace Korv::Plurex::Unicode

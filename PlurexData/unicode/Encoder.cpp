#include "PlurexData/unicode/Encoder.h"

namespace Korv::Plurex::Unicode {

Encoder::~Encoder() = default;

}  // namespace Korv::Plurex::Unicode

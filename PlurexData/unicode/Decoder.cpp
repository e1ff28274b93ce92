#include "PlurexData/unicode/Decoder.h"

namespace Korv::Plurex::Unicode {

Decoder::~Decoder() = default;

}  // namespace Korv::Plurex::Unicode

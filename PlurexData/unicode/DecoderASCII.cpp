#include "PlurexData/unicode/DecoderASCII.h"

namespace Korv::Plurex::Unicode {

DecoderASCII::~DecoderASCII() = default;

}  // namespace Korv::Plurex::Unicode

#include "PlurexData/unicode/DecoderANSI.h"

namespace Korv::Plurex::Unicode {

DecoderANSI::~DecoderANSI() = default;

}  // namespace Korv::Plurex::Unicode

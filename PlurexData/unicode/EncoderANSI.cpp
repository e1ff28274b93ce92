#include "PlurexData/unicode/EncoderANSI.h"

namespace Korv::Plurex::Unicode {

EncoderANSI::~EncoderANSI() = default;

}  // namespace Korv::Plurex::Unicode

#include "PlurexData/unicode/EncoderUTF32.h"

namespace Korv::Plurex::Unicode {

EncoderUTF32::~EncoderUTF32() = default;

}  // namespace Korv::Plurex::Unicode

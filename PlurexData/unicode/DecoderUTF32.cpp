#include "PlurexData/unicode/DecoderUTF32.h"

namespace Korv::Plurex::Unicode {

DecoderUTF32::~DecoderUTF32() = default;

}  // namespace Korv::Plurex::Unicode

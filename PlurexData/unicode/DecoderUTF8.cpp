#include "PlurexData/unicode/DecoderUTF8.h"

namespace Korv::Plurex::Unicode {

DecoderUTF8::~DecoderUTF8() = default;

}  // namespace Korv::Plurex::Unicode

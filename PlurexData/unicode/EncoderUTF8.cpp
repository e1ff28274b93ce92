#include "PlurexData/unicode/EncoderUTF8.h"

namespace Korv::Plurex::Unicode {

EncoderUTF8::~EncoderUTF8() = default;

}  // namespace Korv::Plurex::Unicode

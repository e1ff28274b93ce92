#include "PlurexData/unicode/EncoderUTF16.h"

namespace Korv::Plurex::Unicode {

EncoderUTF16::~EncoderUTF16() = default;

}  // namespace Korv::Plurex::Unicode

#include "PlurexData/unicode/DecoderUTF16.h"

namespace Korv::Plurex::Unicode {

DecoderUTF16::~DecoderUTF16() = default;

}  // namespace Korv::Plurex::Unicode

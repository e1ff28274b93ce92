#include "PlurexData/unicode/DecoderCodePage28591.h"

namespace Korv::Plurex::Unicode {

DecoderCodePage28591::~DecoderCodePage28591() = default;

}  // namespace Korv::Plurex::Unicode

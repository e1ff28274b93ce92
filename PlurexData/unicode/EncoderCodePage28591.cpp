#include "PlurexData/unicode/EncoderCodePage28591.h"

namespace Korv::Plurex::Unicode {

EncoderCodePage28591::~EncoderCodePage28591() = default;

}  // namespace Korv::Plurex::Unicode

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/DecoderANSI.h"

namespace Korv::Plurex::Unicode {

/// ISO 8859-1 (code page 28591): the byte's value is the code point.
class PLUREXDATA_API DecoderCodePage28591 final : public DecoderANSI {
public:
    DecoderCodePage28591() = default;
    ~DecoderCodePage28591() override;

    CodePoint GetCodePoint(unsigned char byte) const noexcept override { return byte; }
};

}  // namespace Korv::Plurex::Unicode

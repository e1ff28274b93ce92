#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/EncoderANSI.h"

namespace Korv::Plurex::Unicode {

/// ISO 8859-1 (code page 28591): the code point itself below 256, else "?".
class PLUREXDATA_API EncoderCodePage28591 final : public EncoderANSI {
public:
    EncoderCodePage28591() = default;
    ~EncoderCodePage28591() override;

    /// The comparison is signed on purpose: a negative code point writes its low 8 bits.
    unsigned char GetByte(CodePoint codePoint) const noexcept override {
        return codePoint < 0x100 ? static_cast<unsigned char>(codePoint) : '?';
    }
};

}  // namespace Korv::Plurex::Unicode

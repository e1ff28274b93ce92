#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Encoder.h"

namespace Korv::Plurex::Unicode {

/// 7-bit ASCII: one byte per code point, "?" for anything from 128 up.
class PLUREXDATA_API EncoderASCII final : public Encoder {
public:
    EncoderASCII() = default;
    ~EncoderASCII() override;

    std::uint32_t GetNbBytes(CodePoint) const noexcept override { return 1; }
    /// The comparison is signed on purpose: a negative code point writes its low 8 bits.
    void Encode(CodePoint codePoint, unsigned char* out) const noexcept override {
        *out = codePoint < 0x80 ? static_cast<unsigned char>(codePoint) : '?';
    }
};

}  // namespace Korv::Plurex::Unicode

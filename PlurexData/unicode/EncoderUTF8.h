#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Encoder.h"

namespace Korv::Plurex::Unicode {

/// UTF-8 (RFC 3629), refusing surrogates and values above 0x10FFFF (GetNbBytes 0, nothing written).
///
/// A negative code point passes ValidateCodePoint; GetNbBytes then compares signed and answers 1
/// while Encode compares unsigned and writes the four-byte form (0xF0 | bits 18 and up, then three
/// continuation bytes). Both are kept on purpose for compatibility, hence the 4-byte buffer rule.
class PLUREXDATA_API EncoderUTF8 final : public Encoder {
public:
    EncoderUTF8() = default;
    ~EncoderUTF8() override;

    std::uint32_t GetNbBytes(CodePoint codePoint) const noexcept override {
        if (!ValidateCodePoint(codePoint)) {
            return 0;
        }
        if (codePoint < 0x80) {
            return 1;
        }
        if (codePoint < 0x800) {
            return 2;
        }
        return codePoint < 0x10000 ? 3 : 4;
    }

    void Encode(CodePoint codePoint, unsigned char* out) const noexcept override {
        if (!ValidateCodePoint(codePoint)) {
            return;
        }
        const auto code = static_cast<std::uint32_t>(codePoint);
        if (code < 0x80) {
            out[0] = static_cast<unsigned char>(code);
        } else if (code < 0x800) {
            out[0] = static_cast<unsigned char>(0xC0 | code >> 6);
            out[1] = static_cast<unsigned char>(0x80 | (code & 0x3F));
        } else if (code < 0x10000) {
            out[0] = static_cast<unsigned char>(0xE0 | code >> 12);
            out[1] = static_cast<unsigned char>(0x80 | (code >> 6 & 0x3F));
            out[2] = static_cast<unsigned char>(0x80 | (code & 0x3F));
        } else {
            out[0] = static_cast<unsigned char>(0xF0 | code >> 18);
            out[1] = static_cast<unsigned char>(0x80 | (code >> 12 & 0x3F));
            out[2] = static_cast<unsigned char>(0x80 | (code >> 6 & 0x3F));
            out[3] = static_cast<unsigned char>(0x80 | (code & 0x3F));
        }
    }
};

}  // namespace Korv::Plurex::Unicode

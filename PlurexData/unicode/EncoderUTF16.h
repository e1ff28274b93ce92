#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/ByteOrder.h"
#include "PlurexData/unicode/Encoder.h"

namespace Korv::Plurex::Unicode {

/// UTF-16 in the byte order chosen at construction (true: most significant byte first), without a
/// byte order mark. Refuses surrogates and values above 0x10FFFF (GetNbBytes 0, nothing written).
/// A negative code point passes ValidateCodePoint and, being below 0x10000 as a signed number, is
/// written as one unit holding its low 16 bits.
class PLUREXDATA_API EncoderUTF16 final : public Encoder {
public:
    /// Most significant byte first when `bigEndian`, else least significant first.
    explicit EncoderUTF16(bool bigEndian) noexcept : bigEndian_(bigEndian) {}
    ~EncoderUTF16() override;

    /// The byte order given at construction.
    bool IsBigEndian() const noexcept { return bigEndian_; }

    std::uint32_t GetNbBytes(CodePoint codePoint) const noexcept override {
        if (!ValidateCodePoint(codePoint)) {
            return 0;
        }
        return codePoint < 0x10000 ? 2 : 4;
    }

    void Encode(CodePoint codePoint, unsigned char* out) const noexcept override {
        if (!ValidateCodePoint(codePoint)) {
            return;
        }
        if (codePoint < 0x10000) {
            Push(static_cast<unsigned short>(codePoint), out);
        } else {
            Push(static_cast<unsigned short>(0xD800 + ((codePoint - 0x10000) >> 10)), out);
            Push(static_cast<unsigned short>(0xDC00 + (codePoint & 0x3FF)), out + 2);
        }
    }

private:
    void Push(unsigned short word, unsigned char* out) const noexcept {
        if (bigEndian_) {
            push_be(word, out[0], out[1]);
        } else {
            push_le(word, out[0], out[1]);
        }
    }

    bool bigEndian_;
};

}  // namespace Korv::Plurex::Unicode

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/EncoderANSI.h"

namespace Korv::Plurex::Unicode {

/// Code page 437 (IBM PC): the code point itself below 128, the code page's byte for the 128
/// characters of its upper half, "?" for every other code point (negative ones included).
class PLUREXDATA_API EncoderCodePage437 final : public EncoderANSI {
public:
    EncoderCodePage437() = default;
    ~EncoderCodePage437() override;

    unsigned char GetByte(CodePoint codePoint) const noexcept override {
        return codePoint >= 0 && codePoint < 0x80 ? static_cast<unsigned char>(codePoint)
                                                  : GetUpperByte(codePoint);
    }

private:
    /// The multi-way branch over the upper half, kept out of line.
    static unsigned char GetUpperByte(CodePoint codePoint) noexcept;
};

}  // namespace Korv::Plurex::Unicode

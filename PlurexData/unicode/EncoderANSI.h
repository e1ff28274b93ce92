#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Encoder.h"

namespace Korv::Plurex::Unicode {

/// A single-byte code page: one byte per code point, the one GetByte gives. The code pages never
/// refuse a code point; what they lack becomes "?" (0x3F).
class PLUREXDATA_API EncoderANSI : public Encoder {
public:
    ~EncoderANSI() override;

    std::uint32_t GetNbBytes(CodePoint) const noexcept override { return 1; }
    void Encode(CodePoint codePoint, unsigned char* out) const noexcept override {
        *out = GetByte(codePoint);
    }
    /// The byte of `codePoint` in this code page.
    virtual unsigned char GetByte(CodePoint codePoint) const noexcept = 0;

protected:
    EncoderANSI() = default;
    /// Copyable, although there is no state to copy.
    ///@{
    EncoderANSI(const EncoderANSI&) = default;
    EncoderANSI& operator=(const EncoderANSI&) = default;
    ///@}
};

}  // namespace Korv::Plurex::Unicode

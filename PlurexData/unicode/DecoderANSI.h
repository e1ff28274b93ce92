#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Decoder.h"

namespace Korv::Plurex::Unicode {

/// A single-byte code page: every byte is a code point, the one GetCodePoint gives, so these
/// decoders never fail.
class PLUREXDATA_API DecoderANSI : public Decoder {
public:
    ~DecoderANSI() override;

    void Add(unsigned char byte) noexcept override {
        Decoder::Add(byte);
        Complete(GetCodePoint(byte));
    }
    /// The code point of `byte` in this code page.
    virtual CodePoint GetCodePoint(unsigned char byte) const noexcept = 0;

protected:
    /// One byte per code point.
    DecoderANSI() noexcept : Decoder(1) {}
    /// Copies the state, as Decoder does.
    ///@{
    DecoderANSI(const DecoderANSI&) = default;
    DecoderANSI& operator=(const DecoderANSI&) = default;
    ///@}
};

}  // namespace Korv::Plurex::Unicode

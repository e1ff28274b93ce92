#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Decoder.h"

namespace Korv::Plurex::Unicode {

/// 7-bit ASCII, one byte per code point. Bytes 0x80 to 0xFF come out as code points 0x80 to 0xFF,
/// without complaint: kept on purpose for compatibility.
class PLUREXDATA_API DecoderASCII final : public Decoder {
public:
    DecoderASCII() noexcept : Decoder(1) {}
    ~DecoderASCII() override;

    void Add(unsigned char byte) noexcept override {
        Decoder::Add(byte);
        Complete(byte);
    }
};

}  // namespace Korv::Plurex::Unicode

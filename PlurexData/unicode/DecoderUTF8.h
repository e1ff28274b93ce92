#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Decoder.h"
#include "PlurexData/unicode/GetCode.h"

namespace Korv::Plurex::Unicode {

/// UTF-8, leniently. A sequence is as long as its first byte announces (up to 6); a byte that does not
/// fit is dropped without notice: a stray continuation byte, 0xFE and 0xFF, a new lead byte in the
/// middle of a sequence (which abandons the bytes so far) and the five- and six-byte forms (dropped
/// when the 4-byte buffer fills). Continuation bytes are not tested further, so overlong forms,
/// surrogates and values up to 0x1FFFFF come out as they are.
class PLUREXDATA_API DecoderUTF8 final : public Decoder {
public:
    DecoderUTF8() noexcept : Decoder(1) {}
    ~DecoderUTF8() override;

    /// The length announced by the first byte of the current sequence; 0 when empty.
    unsigned char GetExpectedLength() const noexcept { return expectedLength_; }

    void Add(unsigned char byte) noexcept override {
        const unsigned char length = LengthOf(byte);
        if (complete_ || (length != 0 && count_ >= 1)) {
            Reset();
        }
        Decoder::Add(byte);
        if (count_ == 1) {
            expectedLength_ = length;
            if (length == 1) {
                Complete(GetCode(buffer_, 1));
            } else if (length == 0 || length == Invalid) {
                Reset();
            }
        } else if (count_ == expectedLength_) {
            Complete(GetCode(buffer_, static_cast<unsigned char>(count_)));
        } else if (count_ == sizeof buffer_) {
            Reset();
        }
    }

    void Reset() noexcept override {
        Decoder::Reset();
        expectedLength_ = 0;
    }

private:
    static constexpr unsigned char Invalid = 255;

    /// The sequence length a byte announces: 0 for a continuation byte, Invalid for 0xFE and 0xFF.
    static constexpr unsigned char LengthOf(unsigned char byte) noexcept {
        if (byte < 0x80) {
            return 1;
        }
        if (byte < 0xC0) {
            return 0;
        }
        if (byte < 0xE0) {
            return 2;
        }
        if (byte < 0xF0) {
            return 3;
        }
        if (byte < 0xF8) {
            return 4;
        }
        if (byte < 0xFC) {
            return 5;
        }
        return byte < 0xFE ? 6 : Invalid;
    }

    unsigned char expectedLength_ = 0;
};

}  // namespace Korv::Plurex::Unicode

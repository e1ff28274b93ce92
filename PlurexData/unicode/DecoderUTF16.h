#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Decode.h"
#include "PlurexData/unicode/Decoder.h"

namespace Korv::Plurex::Unicode {

/// UTF-16 in the byte order chosen at construction (true: most significant byte first); no byte
/// order mark is looked for. A lone low surrogate is a code point of its own, and the word after a
/// high surrogate is taken as its low half untested (see Decode).
class PLUREXDATA_API DecoderUTF16 final : public Decoder {
public:
    /// Most significant byte first when `bigEndian`, else least significant first.
    explicit DecoderUTF16(bool bigEndian) noexcept : Decoder(2), bigEndian_(bigEndian) {}
    ~DecoderUTF16() override;

    /// The byte order given at construction.
    bool IsBigEndian() const noexcept { return bigEndian_; }

    void Add(unsigned char byte) noexcept override {
        Decoder::Add(byte);
        CodePoint codePoint = 0;
        if (count_ == 2) {
            if (Decode(buffer_, 2, bigEndian_, codePoint) == 2) {
                Complete(codePoint);
            }
        } else if (count_ == 4) {
            if (Decode(buffer_, 4, bigEndian_, codePoint) == 4) {
                Complete(codePoint);
            } else {
                Reset();
            }
        }
    }

private:
    bool bigEndian_;
};

}  // namespace Korv::Plurex::Unicode

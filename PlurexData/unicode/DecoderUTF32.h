#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Decoder.h"

namespace Korv::Plurex::Unicode {

/// UTF-32 in the byte order chosen at construction (true: most significant byte first); no byte
/// order mark is looked for and the value is not tested, so 0x110000 and negative values come out.
class PLUREXDATA_API DecoderUTF32 final : public Decoder {
public:
    /// Most significant byte first when `bigEndian`, else least significant first.
    explicit DecoderUTF32(bool bigEndian) noexcept : Decoder(4), bigEndian_(bigEndian) {}
    ~DecoderUTF32() override;

    /// The byte order given at construction.
    bool IsBigEndian() const noexcept { return bigEndian_; }

    void Add(unsigned char byte) noexcept override {
        Decoder::Add(byte);
        if (count_ == 4) {
            std::uint32_t code = 0;
            for (int i = 0; i < 4; ++i) {
                code = code << 8 | buffer_[bigEndian_ ? i : 3 - i];
            }
            Complete(static_cast<CodePoint>(code));
        }
    }

private:
    bool bigEndian_;
};

}  // namespace Korv::Plurex::Unicode

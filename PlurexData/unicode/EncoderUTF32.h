#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/Encoder.h"

namespace Korv::Plurex::Unicode {

/// UTF-32 in the byte order chosen at construction (true: most significant byte first), without a
/// byte order mark. Writes whatever it is given as a 32-bit value: no validity test.
class PLUREXDATA_API EncoderUTF32 final : public Encoder {
public:
    /// Most significant byte first when `bigEndian`, else least significant first.
    explicit EncoderUTF32(bool bigEndian) noexcept : bigEndian_(bigEndian) {}
    ~EncoderUTF32() override;

    /// The byte order given at construction.
    bool IsBigEndian() const noexcept { return bigEndian_; }

    std::uint32_t GetNbBytes(CodePoint) const noexcept override { return 4; }

    void Encode(CodePoint codePoint, unsigned char* out) const noexcept override {
        const auto code = static_cast<std::uint32_t>(codePoint);
        for (int i = 0; i < 4; ++i) {
            out[bigEndian_ ? 3 - i : i] = static_cast<unsigned char>(code >> (8 * i));
        }
    }

private:
    bool bigEndian_;
};

}  // namespace Korv::Plurex::Unicode

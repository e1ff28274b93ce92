#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/DecoderANSI.h"

namespace Korv::Plurex::Unicode {

/// Code page 437 (IBM PC): bytes below 0x80 unchanged, 0x80 to 0xFF by the code page's table.
class PLUREXDATA_API DecoderCodePage437 final : public DecoderANSI {
public:
    DecoderCodePage437() = default;
    ~DecoderCodePage437() override;

    CodePoint GetCodePoint(unsigned char byte) const noexcept override {
        return byte < 0x80 ? byte : table_[byte - 0x80];
    }

private:
    /// The code points of bytes 0x80 to 0xFF.
    static const std::uint16_t table_[0x80];
};

}  // namespace Korv::Plurex::Unicode

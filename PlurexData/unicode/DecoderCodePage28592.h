#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/DecoderANSI.h"

namespace Korv::Plurex::Unicode {

/// ISO 8859-2 (code page 28592): bytes below 0xA1 unchanged, 0xA1 to 0xFF by the standard's table.
class PLUREXDATA_API DecoderCodePage28592 final : public DecoderANSI {
public:
    DecoderCodePage28592() = default;
    ~DecoderCodePage28592() override;

    CodePoint GetCodePoint(unsigned char byte) const noexcept override {
        return byte < 0xA1 ? byte : table_[byte - 0xA1];
    }

private:
    /// The code points of bytes 0xA1 to 0xFF.
    static const std::uint16_t table_[0x100 - 0xA1];
};

}  // namespace Korv::Plurex::Unicode

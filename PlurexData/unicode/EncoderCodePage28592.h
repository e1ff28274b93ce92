#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/unicode/EncoderANSI.h"

namespace Korv::Plurex::Unicode {

/// ISO 8859-2 (code page 28592): the code point itself below 161; the byte from a table for 164 to
/// 733; "?" for 161 to 163, above 733 and for every code point of the table that ISO 8859-2 lacks.
class PLUREXDATA_API EncoderCodePage28592 final : public EncoderANSI {
public:
    EncoderCodePage28592() = default;
    ~EncoderCodePage28592() override;

    /// The comparison is signed on purpose: a negative code point writes its low 8 bits.
    unsigned char GetByte(CodePoint codePoint) const noexcept override {
        if (codePoint < 161) {
            return static_cast<unsigned char>(codePoint);
        }
        if (codePoint >= TableFirst && codePoint < TableFirst + TableSize) {
            return table_[codePoint - TableFirst];
        }
        return '?';
    }

private:
    static constexpr CodePoint TableFirst = 164;
    static constexpr CodePoint TableSize = 570;
    /// The byte of each code point from 164 to 733, 0x3F where ISO 8859-2 lacks it.
    static const unsigned char table_[TableSize];
};

}  // namespace Korv::Plurex::Unicode

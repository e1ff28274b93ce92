#pragma once

#include "PlurexData/unicode/CodePoint.h"

#include <cstdint>

namespace Korv::Plurex::Unicode {

/// The UTF-8 assembly step: the code point of the n bytes of one sequence. 0 when n is 0; the first
/// byte keeps its low 7 bits when n is 1 and its low 8 - (n + 1) bits otherwise, every further byte
/// its low 6 bits. The bytes are not checked: overlong forms, surrogates and values above 0x10FFFF come
/// out as they are. Bits pushed beyond 32 (n above 6) are lost.
constexpr CodePoint GetCode(unsigned char const* bytes, unsigned char n) noexcept {
    if (n == 0) {
        return 0;
    }
    // From n = 7 on, the lead byte keeps no bit (and a shift of 32 or more would be undefined).
    std::uint32_t code = bytes[0] & (n == 1 ? 0x7Fu : n < 7 ? 0xFFu >> (n + 1) : 0u);
    for (unsigned char i = 1; i < n; ++i) {
        code = code << 6 | (bytes[i] & 0x3Fu);
    }
    return static_cast<CodePoint>(code);
}

}  // namespace Korv::Plurex::Unicode

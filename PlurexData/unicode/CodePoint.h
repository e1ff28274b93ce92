#pragma once

#include <cstdint>

namespace Korv::Plurex::Unicode {

/// A Unicode scalar value held in a signed 32-bit integer, passed by value.
using CodePoint = std::int32_t;

/// False above 0x10FFFF and for the surrogates 0xD800 to 0xDFFF; true otherwise. The upper test is
/// signed, so negative values count as valid: kept on purpose, the encoders' quirks rest on it.
/// Inline (like the other per-character helpers) so that conversion loops compile to straight code.
constexpr bool ValidateCodePoint(CodePoint codePoint) noexcept {
    return codePoint <= 0x10FFFF && (codePoint < 0xD800 || codePoint > 0xDFFF);
}

}  // namespace Korv::Plurex::Unicode

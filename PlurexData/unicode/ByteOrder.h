#pragma once

namespace Korv::Plurex::Unicode {

/// Stores a 16-bit word as two bytes: push_be puts the high byte first, push_le the low byte first.
///@{
constexpr void push_be(unsigned short word, unsigned char& first, unsigned char& second) noexcept {
    first = static_cast<unsigned char>(word >> 8);
    second = static_cast<unsigned char>(word & 0xFF);
}

constexpr void push_le(unsigned short word, unsigned char& first, unsigned char& second) noexcept {
    first = static_cast<unsigned char>(word & 0xFF);
    second = static_cast<unsigned char>(word >> 8);
}
///@}

/// Reads two bytes as a 16-bit word: b0 * 256 + b1 (big-endian) or b1 * 256 + b0 (little-endian).
///@{
constexpr unsigned short _make_word_be(unsigned char b0, unsigned char b1) noexcept {
    return static_cast<unsigned short>(b0 << 8 | b1);
}

constexpr unsigned short _make_word_le(unsigned char b0, unsigned char b1) noexcept {
    return static_cast<unsigned short>(b1 << 8 | b0);
}
///@}

}  // namespace Korv::Plurex::Unicode

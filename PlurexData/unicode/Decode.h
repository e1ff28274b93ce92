#pragma once

#include "PlurexData/unicode/ByteOrder.h"
#include "PlurexData/unicode/CodePoint.h"

namespace Korv::Plurex::Unicode {

/// The UTF-16 step: reads one code point from the first n bytes in the chosen byte order into `out`
/// and returns the bytes used (2 or 4), or 0 when more bytes are needed. A word outside the high
/// surrogates 0xD800 to 0xDBFF is a code point by itself, a lone low surrogate included; after a high
/// surrogate the next word is taken as the low one without being tested.
constexpr unsigned int Decode(unsigned char const* bytes, unsigned int n, bool bigEndian,
                              CodePoint& out) noexcept {
    if (n < 2) {
        return 0;
    }
    const unsigned short first =
        bigEndian ? _make_word_be(bytes[0], bytes[1]) : _make_word_le(bytes[0], bytes[1]);
    if (first < 0xD800 || first > 0xDBFF) {
        out = first;
        return 2;
    }
    if (n < 4) {
        return 0;
    }
    const unsigned short second =
        bigEndian ? _make_word_be(bytes[2], bytes[3]) : _make_word_le(bytes[2], bytes[3]);
    out = ((first - 0xD800) << 10) + (second - 0xDC00) + 0x10000;
    return 4;
}

}  // namespace Korv::Plurex::Unicode

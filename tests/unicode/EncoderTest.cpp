#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/Encoder.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace Korv::Plurex::Unicode;
using Bytes = std::vector<unsigned char>;

TEST(Unicode, Validity) {
    for (CodePoint valid : {0, 0xD7FF, 0xE000, 0x10FFFF, -1, -2147483647 - 1}) {
        EXPECT_TRUE(ValidateCodePoint(valid)) << valid;
    }
    for (CodePoint invalid : {0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0x110000, 0x7FFFFFFF}) {
        EXPECT_FALSE(ValidateCodePoint(invalid)) << invalid;
    }
}

// Every code point up to 0xFFFF of the single-byte charsets and every scalar value of the others are
// checked against iconv; these are the values beyond, and what Encode writes past GetNbBytes into a
// 4-byte buffer primed with 0xEE.
TEST(Encoder, OutsideTheOracle) {
    struct Case {
        Charset charset;
        CodePoint codePoint;
        std::uint32_t size;
        Bytes buffer;
    };
    const Case cases[] = {
        {Charset::Ascii, -1, 1, {0xFF, 0xEE, 0xEE, 0xEE}},
        {Charset::Ascii, -0x7F, 1, {0x81, 0xEE, 0xEE, 0xEE}},
        {Charset::CodePage28591, -2, 1, {0xFE, 0xEE, 0xEE, 0xEE}},
        {Charset::CodePage28592, -0x100, 1, {0x00, 0xEE, 0xEE, 0xEE}},
        {Charset::CodePage437, -1, 1, {'?', 0xEE, 0xEE, 0xEE}},
        {Charset::CodePage437, 0x10082, 1, {'?', 0xEE, 0xEE, 0xEE}},
        {Charset::Utf8, 0x7F, 1, {0x7F, 0xEE, 0xEE, 0xEE}},
        {Charset::Utf8, 0x7FF, 2, {0xDF, 0xBF, 0xEE, 0xEE}},
        {Charset::Utf8, 0xFFFF, 3, {0xEF, 0xBF, 0xBF, 0xEE}},
        {Charset::Utf8, 0xD800, 0, {0xEE, 0xEE, 0xEE, 0xEE}},
        {Charset::Utf8, 0xDFFF, 0, {0xEE, 0xEE, 0xEE, 0xEE}},
        {Charset::Utf8, 0x110000, 0, {0xEE, 0xEE, 0xEE, 0xEE}},
        // Negative: GetNbBytes compares signed (1 byte), Encode unsigned (the 4-byte form).
        {Charset::Utf8, -1, 1, {0xFF, 0xBF, 0xBF, 0xBF}},
        {Charset::Utf8, -2147483647 - 1, 1, {0xF0, 0x80, 0x80, 0x80}},
        {Charset::Utf16BE, 0xFFFF, 2, {0xFF, 0xFF, 0xEE, 0xEE}},
        {Charset::Utf16LE, 0xDC00, 0, {0xEE, 0xEE, 0xEE, 0xEE}},
        {Charset::Utf16BE, 0x110000, 0, {0xEE, 0xEE, 0xEE, 0xEE}},
        {Charset::Utf16BE, -2, 2, {0xFF, 0xFE, 0xEE, 0xEE}},
        {Charset::Utf32LE, 0x110000, 4, {0x00, 0x00, 0x11, 0x00}},
        {Charset::Utf32BE, 0x110000, 4, {0x00, 0x11, 0x00, 0x00}},
        {Charset::Utf32BE, 0xD800, 4, {0x00, 0x00, 0xD8, 0x00}},
        {Charset::Utf32LE, -2, 4, {0xFE, 0xFF, 0xFF, 0xFF}},
    };
    for (const Case& c : cases) {
        const auto encoder = MakeEncoder(c.charset);
        Bytes buffer(4, 0xEE);
        encoder->Encode(c.codePoint, buffer.data());
        EXPECT_EQ(encoder->GetNbBytes(c.codePoint), c.size)
            << ToString(c.charset) << std::hex << " " << c.codePoint;
        EXPECT_EQ(buffer, c.buffer) << ToString(c.charset) << std::hex << " " << c.codePoint;
    }
}

}  // namespace

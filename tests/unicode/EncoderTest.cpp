#include "PlurexData/unicode/ByteOrder.h"
#include "PlurexData/unicode/EncoderASCII.h"
#include "PlurexData/unicode/EncoderCodePage28591.h"
#include "PlurexData/unicode/EncoderCodePage28592.h"
#include "PlurexData/unicode/EncoderCodePage437.h"
#include "PlurexData/unicode/EncoderUTF16.h"
#include "PlurexData/unicode/EncoderUTF32.h"
#include "PlurexData/unicode/EncoderUTF8.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace Korv::Plurex::Unicode;
using Bytes = std::vector<unsigned char>;

// What a caller that sizes by GetNbBytes gets, through the base class; the rest of a 4-byte buffer
// primed with 0xEE shows whatever Encode wrote beyond it.
struct Written {
    std::uint32_t size;
    Bytes buffer;
};

Written Write(const Encoder& encoder, CodePoint codePoint) {
    Bytes buffer(4, 0xEE);
    const std::uint32_t size = encoder.GetNbBytes(codePoint);
    encoder.Encode(codePoint, buffer.data());
    return {size, buffer};
}

TEST(Unicode, HelpersAndValidity) {
    unsigned char first = 0, second = 0;
    push_be(0x1234, first, second);
    EXPECT_EQ(Bytes({first, second}), Bytes({0x12, 0x34}));
    push_le(0x1234, first, second);
    EXPECT_EQ(Bytes({first, second}), Bytes({0x34, 0x12}));
    EXPECT_EQ(_make_word_be(0xD8, 0x3D), 0xD83D);
    EXPECT_EQ(_make_word_le(0xD8, 0x3D), 0x3DD8);
    for (CodePoint valid : {0, 0xD7FF, 0xE000, 0x10FFFF, -1, -2147483647 - 1}) {
        EXPECT_TRUE(ValidateCodePoint(valid)) << valid;
    }
    for (CodePoint invalid : {0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0x110000, 0x7FFFFFFF}) {
        EXPECT_FALSE(ValidateCodePoint(invalid)) << invalid;
    }
}

TEST(Encoder, SingleByteCodePagesAndTheirQuirks) {
    const EncoderASCII ascii;
    const EncoderCodePage28591 latin1;
    const EncoderCodePage28592 latin2;
    const EncoderCodePage437 ibm;
    struct Case {
        const Encoder* encoder;
        CodePoint codePoint;
        unsigned char byte;
    };
    const Case cases[] = {
        {&ascii, 0x7F, 0x7F},    {&ascii, 0x80, '?'},    {&ascii, -1, 0xFF},      {&ascii, -0x7F, 0x81},
        {&latin1, 0xFF, 0xFF},   {&latin1, 0x100, '?'},  {&latin1, -2, 0xFE},     {&latin2, 0x0104, 0xA1},
        {&latin2, 0x02DD, 0xBD}, {&latin2, 0x00A1, '?'}, {&latin2, 0x00A0, 0xA0}, {&latin2, 0x00A3, '?'},
        {&latin2, 0x00A4, 0xA4}, {&latin2, 0x00A5, '?'}, {&latin2, 0x02DE, '?'},  {&latin2, -0x100, 0x00},
        {&ibm, 0x00E9, 0x82},    {&ibm, 0x00A0, 0xFF},   {&ibm, 0x25A0, 0xFE},    {&ibm, 0x263A, '?'},
        {&ibm, 0x7F, 0x7F},      {&ibm, -1, '?'},        {&ibm, 0x10082, '?'},
    };
    for (const Case& c : cases) {
        const Written written = Write(*c.encoder, c.codePoint);
        EXPECT_EQ(written.size, 1u) << c.codePoint;
        EXPECT_EQ(written.buffer, Bytes({c.byte, 0xEE, 0xEE, 0xEE})) << c.codePoint;
    }
    EXPECT_EQ(latin2.GetByte(0x02D9), 0xFF);
    EXPECT_EQ(ibm.GetByte(0x03B1), 0xE0);
}

TEST(Encoder, UnicodeForms) {
    const EncoderUTF8 utf8;
    const EncoderUTF16 utf16be(true), utf16le(false);
    const EncoderUTF32 utf32be(true), utf32le(false);
    struct Case {
        const Encoder* encoder;
        CodePoint codePoint;
        std::uint32_t size;
        Bytes buffer;
    };
    const Case cases[] = {
        {&utf8, 0x7F, 1, {0x7F, 0xEE, 0xEE, 0xEE}},
        {&utf8, 0x80, 2, {0xC2, 0x80, 0xEE, 0xEE}},
        {&utf8, 0x7FF, 2, {0xDF, 0xBF, 0xEE, 0xEE}},
        {&utf8, 0x800, 3, {0xE0, 0xA0, 0x80, 0xEE}},
        {&utf8, 0xFFFF, 3, {0xEF, 0xBF, 0xBF, 0xEE}},
        {&utf8, 0x10000, 4, {0xF0, 0x90, 0x80, 0x80}},
        {&utf8, 0x10FFFF, 4, {0xF4, 0x8F, 0xBF, 0xBF}},
        {&utf8, 0xD800, 0, {0xEE, 0xEE, 0xEE, 0xEE}},
        {&utf8, 0xDFFF, 0, {0xEE, 0xEE, 0xEE, 0xEE}},
        {&utf8, 0x110000, 0, {0xEE, 0xEE, 0xEE, 0xEE}},
        // Negative: GetNbBytes compares signed (1 byte), Encode unsigned (the 4-byte form).
        {&utf8, -1, 1, {0xFF, 0xBF, 0xBF, 0xBF}},
        {&utf8, -2147483647 - 1, 1, {0xF0, 0x80, 0x80, 0x80}},
        {&utf16be, 0x1F600, 4, {0xD8, 0x3D, 0xDE, 0x00}},
        {&utf16le, 0x1F600, 4, {0x3D, 0xD8, 0x00, 0xDE}},
        {&utf16be, 0xFFFF, 2, {0xFF, 0xFF, 0xEE, 0xEE}},
        {&utf16le, 0x10FFFF, 4, {0xFF, 0xDB, 0xFF, 0xDF}},
        {&utf16le, 0xDC00, 0, {0xEE, 0xEE, 0xEE, 0xEE}},
        {&utf16be, 0x110000, 0, {0xEE, 0xEE, 0xEE, 0xEE}},
        {&utf16be, -2, 2, {0xFF, 0xFE, 0xEE, 0xEE}},
        {&utf32le, 0x110000, 4, {0x00, 0x00, 0x11, 0x00}},
        {&utf32be, 0x110000, 4, {0x00, 0x11, 0x00, 0x00}},
        {&utf32be, 0xD800, 4, {0x00, 0x00, 0xD8, 0x00}},
        {&utf32le, -2, 4, {0xFE, 0xFF, 0xFF, 0xFF}},
    };
    for (const Case& c : cases) {
        const Written written = Write(*c.encoder, c.codePoint);
        EXPECT_EQ(written.size, c.size) << std::hex << c.codePoint;
        EXPECT_EQ(written.buffer, c.buffer) << std::hex << c.codePoint;
    }
    EXPECT_TRUE(utf16be.IsBigEndian());
    EXPECT_FALSE(utf32le.IsBigEndian());
}

}  // namespace

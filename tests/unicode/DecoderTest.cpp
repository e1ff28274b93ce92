#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/Decode.h"
#include "PlurexData/unicode/DecoderUTF8.h"
#include "PlurexData/unicode/GetCode.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace Korv::Plurex::Unicode;
using Bytes = std::vector<unsigned char>;

// After each byte, through the base class: "." when nothing is complete, else the code point in hex;
// then "|" and the bytes left collected.
std::string Trace(Decoder& decoder, const Bytes& bytes) {
    std::string trace;
    for (unsigned char byte : bytes) {
        decoder.Add(byte);
        char text[16] = ".";
        if (decoder.IsComplete()) {
            std::snprintf(text, sizeof text, "%X", static_cast<unsigned int>(decoder.GetResult()));
        }
        trace += std::string(trace.empty() ? "" : " ") + text;
    }
    return trace + " |" + std::to_string(decoder.GetCount());
}

// Every byte of the single-byte charsets and every scalar value of the others are checked against iconv;
// these are the lenient cases and the quirks.
TEST(Decoder, Traces) {
    struct Case {
        Charset charset;
        Bytes bytes;
        const char* trace;
    };
    const Case cases[] = {
        {Charset::Utf8, {0xC3, 0xA9}, ". E9 |2"},
        {Charset::Utf8, {0xC3, 0x41}, ". 41 |1"},                  // a new lead byte abandons the sequence
        {Charset::Utf8, {0xE2, 0x82, 0xC3, 0xA9}, ". . . E9 |2"},  // so does a lead of another length
        {Charset::Utf8, {0x80}, ". |0"},                           // a stray continuation byte is dropped
        {Charset::Utf8, {0xFE, 0x41, 0xFF}, ". 41 . |0"},          // as are 0xFE and 0xFF
        {Charset::Utf8, {0xC3, 0xA9, 0xA9}, ". E9 . |0"},          // a continuation after a complete one
        {Charset::Utf8, {0xC0, 0x80}, ". 0 |2"},                   // overlong forms pass
        {Charset::Utf8, {0xED, 0xA0, 0x80}, ". . D800 |3"},        // surrogates pass
        {Charset::Utf8, {0xF4, 0x90, 0x80, 0x80}, ". . . 110000 |4"},  // beyond 0x10FFFF passes
        {Charset::Utf8, {0xF7, 0xBF, 0xBF, 0xBF}, ". . . 1FFFFF |4"},
        {Charset::Utf8, {0xF8, 0x88, 0x80, 0x80}, ". . . . |0"},          // 5 bytes: reset at the fourth,
        {Charset::Utf8, {0xF8, 0x88, 0x80, 0x80, 0x80}, ". . . . . |0"},  // the fifth dropped as stray
        {Charset::Utf8, {0xFC, 0x84, 0x80, 0x80, 0x80, 0x80, 0x41}, ". . . . . . 41 |1"},
        {Charset::Utf8, {0xF0, 0x9F, 0x98, 0x80, 0x7A}, ". . . 1F600 7A |1"},
        {Charset::Utf8, {0xE2, 0x82}, ". . |2"},  // a partial tail stays incomplete
        {Charset::Utf16LE, {0x3D, 0xD8, 0x00, 0xDE}, ". . . 1F600 |4"},
        {Charset::Utf16BE, {0xDC, 0x00}, ". DC00 |2"},                  // a lone low surrogate
        {Charset::Utf16BE, {0xD8, 0x00, 0x00, 0x41}, ". . . 2441 |4"},  // the second word is not tested
        {Charset::Utf16BE, {0x00, 0x41, 0x00}, ". 41 . |1"},
        {Charset::Utf16LE, {0xFF, 0xFE, 0x41, 0x00}, ". FEFF . 41 |2"},  // no byte order mark handling
        {Charset::Utf32BE, {0x00, 0x11, 0x00, 0x00}, ". . . 110000 |4"},
        {Charset::Utf32LE, {0x00, 0xD8, 0x00, 0x00, 0x41}, ". . . D800 . |1"},
        {Charset::Utf32BE, {0xFF, 0xFF, 0xFF, 0xFE}, ". . . FFFFFFFE |4"},
        {Charset::Ascii, {0x41, 0xE9, 0x00}, "41 E9 0 |1"},
        {Charset::CodePage28592, {0xA0, 0xA1, 0xBD, 0xFF}, "A0 104 2DD 2D9 |1"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Trace(*MakeDecoder(c.charset), c.bytes), c.trace) << ToString(c.charset);
    }
    const unsigned int sizes[] = {1, 1, 1, 1, 1, 2, 2, 4, 4};
    for (const Charset charset : GetCharsets()) {
        EXPECT_EQ(MakeDecoder(charset)->GetSize(), sizes[static_cast<int>(charset)]) << ToString(charset);
    }
    DecoderUTF8 decoder;
    EXPECT_EQ(Trace(decoder, {0xE2, 0x82, 0xAC}), ". . 20AC |3");
    EXPECT_EQ(decoder.GetExpectedLength(), 3);
    decoder.Reset();
    EXPECT_FALSE(decoder.IsComplete());
    EXPECT_EQ(decoder.GetCount(), 0u);
    EXPECT_EQ(decoder.GetExpectedLength(), 0);
}

TEST(Decoder, AssemblySteps) {
    const unsigned char bytes[] = {0xF0, 0x9F, 0x98, 0x80, 0xFF, 0xBF, 0xBF, 0xBF, 0xBF, 0xBF};
    EXPECT_EQ(GetCode(bytes, 0), 0);
    EXPECT_EQ(GetCode(bytes + 4, 1), 0x7F);
    EXPECT_EQ(GetCode(bytes, 4), 0x1F600);
    EXPECT_EQ(GetCode(bytes + 4, 2), 0x7FF);               // 0xFF masked with 0x1F
    EXPECT_EQ(GetCode(bytes + 4, 6), 0x7FFFFFFF);          // 0xFF masked with 0x01
    EXPECT_EQ(GetCode(bytes, 10), CodePoint(0xFFFFFFFF));  // bits beyond 32 are lost
    const unsigned char many[255] = {0xFF};
    EXPECT_EQ(GetCode(many, 255), 0);

    const unsigned char pair[] = {0xD8, 0x3D, 0xDE, 0x00};
    CodePoint out = -1;
    EXPECT_EQ(Decode(pair, 1, true, out), 0u);
    EXPECT_EQ(Decode(pair, 3, true, out), 0u);
    EXPECT_EQ(out, -1);
    EXPECT_EQ(Decode(pair, 4, true, out), 4u);
    EXPECT_EQ(out, 0x1F600);
    EXPECT_EQ(Decode(pair, 4, false, out), 2u);
    EXPECT_EQ(out, 0x3DD8);
}

}  // namespace

#include "PlurexData/unicode/Decode.h"
#include "PlurexData/unicode/DecoderASCII.h"
#include "PlurexData/unicode/DecoderCodePage28591.h"
#include "PlurexData/unicode/DecoderCodePage28592.h"
#include "PlurexData/unicode/DecoderCodePage437.h"
#include "PlurexData/unicode/DecoderUTF16.h"
#include "PlurexData/unicode/DecoderUTF32.h"
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

TEST(DecoderUTF8, LenientSequences) {
    struct Case {
        Bytes bytes;
        const char* trace;
    };
    const Case cases[] = {
        {{0xC3, 0xA9}, ". E9 |2"},
        {{0xC3, 0x41}, ". 41 |1"},                      // a new lead byte abandons the sequence
        {{0xE2, 0x82, 0xC3, 0xA9}, ". . . E9 |2"},      // so does a lead of another length
        {{0x80}, ". |0"},                               // a stray continuation byte is dropped
        {{0xFE, 0x41, 0xFF}, ". 41 . |0"},              // as are 0xFE and 0xFF
        {{0xC3, 0xA9, 0xA9}, ". E9 . |0"},              // a continuation after a complete code point
        {{0xC0, 0x80}, ". 0 |2"},                       // overlong forms pass
        {{0xED, 0xA0, 0x80}, ". . D800 |3"},            // surrogates pass
        {{0xF4, 0x90, 0x80, 0x80}, ". . . 110000 |4"},  // beyond 0x10FFFF passes
        {{0xF7, 0xBF, 0xBF, 0xBF}, ". . . 1FFFFF |4"},
        {{0xF8, 0x88, 0x80, 0x80}, ". . . . |0"},          // 5 bytes: reset at the fourth,
        {{0xF8, 0x88, 0x80, 0x80, 0x80}, ". . . . . |0"},  // the fifth dropped as stray
        {{0xFC, 0x84, 0x80, 0x80, 0x80, 0x80, 0x41}, ". . . . . . 41 |1"},
        {{0xF0, 0x9F, 0x98, 0x80, 0x7A}, ". . . 1F600 7A |1"},
        {{0xE2, 0x82}, ". . |2"},  // a partial tail stays incomplete
    };
    for (const Case& c : cases) {
        DecoderUTF8 decoder;
        EXPECT_EQ(Trace(decoder, c.bytes), c.trace);
    }
    DecoderUTF8 decoder;
    decoder.Add(0xE2);
    EXPECT_EQ(decoder.GetExpectedLength(), 3);
    const DecoderUTF8 copy = decoder;
    decoder.Reset();
    EXPECT_EQ(decoder.GetCount(), 0u);
    EXPECT_EQ(decoder.GetExpectedLength(), 0);
    EXPECT_EQ(copy.GetCount(), 1u);
    EXPECT_EQ(copy.GetBuffer()[0], 0xE2);
}

TEST(DecoderUTF16And32, WordsAndSurrogates) {
    struct Case {
        bool bigEndian;
        Bytes bytes;
        const char* trace;
    };
    const Case utf16[] = {
        {false, {0x3D, 0xD8, 0x00, 0xDE}, ". . . 1F600 |4"},
        {true, {0xDC, 0x00}, ". DC00 |2"},                  // a lone low surrogate
        {true, {0xD8, 0x00, 0x00, 0x41}, ". . . 2441 |4"},  // the second word is not tested
        {true, {0x00, 0x41, 0x00}, ". 41 . |1"},
        {false, {0xFF, 0xFE, 0x41, 0x00}, ". FEFF . 41 |2"},  // no byte order mark handling
    };
    for (const Case& c : utf16) {
        DecoderUTF16 decoder(c.bigEndian);
        EXPECT_EQ(Trace(decoder, c.bytes), c.trace);
    }
    const Case utf32[] = {
        {true, {0x00, 0x11, 0x00, 0x00}, ". . . 110000 |4"},
        {false, {0x00, 0xD8, 0x00, 0x00, 0x41}, ". . . D800 . |1"},
        {true, {0xFF, 0xFF, 0xFF, 0xFE}, ". . . FFFFFFFE |4"},
    };
    for (const Case& c : utf32) {
        DecoderUTF32 decoder(c.bigEndian);
        EXPECT_EQ(Trace(decoder, c.bytes), c.trace);
    }
}

TEST(Decoder, SingleByteDecodersAndSizes) {
    DecoderASCII ascii;
    EXPECT_EQ(Trace(ascii, {0x41, 0xE9, 0x00}), "41 E9 0 |1");
    DecoderCodePage437 ibm;
    EXPECT_EQ(Trace(ibm, {0x7F, 0x80, 0xFF}), "7F C7 A0 |1");
    EXPECT_EQ(ibm.GetCodePoint(0xE1), 0xDF);
    DecoderCodePage28591 latin1;
    EXPECT_EQ(Trace(latin1, {0xA1, 0xFF}), "A1 FF |1");
    DecoderCodePage28592 latin2;
    EXPECT_EQ(Trace(latin2, {0xA0, 0xA1, 0xBD, 0xFF}), "A0 104 2DD 2D9 |1");
    latin2.Reset();
    EXPECT_FALSE(latin2.IsComplete());
    EXPECT_EQ(latin2.GetCount(), 0u);

    EXPECT_EQ(DecoderASCII().GetSize(), 1u);
    EXPECT_EQ(DecoderCodePage437().GetSize(), 1u);
    EXPECT_EQ(DecoderUTF8().GetSize(), 1u);
    EXPECT_EQ(DecoderUTF16(true).GetSize(), 2u);
    EXPECT_EQ(DecoderUTF32(false).GetSize(), 4u);
    EXPECT_TRUE(DecoderUTF16(true).IsBigEndian());
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

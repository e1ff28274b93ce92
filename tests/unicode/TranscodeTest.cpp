#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/Transcode.h"
#include "ReferenceTranscode.h"

#include "Thrown.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace Korv::Plurex::Unicode;

TEST(Charset, NamesAndAliases) {
    const char* canonical[] = {"ascii",    "cp437",    "iso-8859-1", "iso-8859-2", "utf-8",
                               "utf-16le", "utf-16be", "utf-32le",   "utf-32be"};
    ASSERT_EQ(GetCharsets().size(), 9u);
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_EQ(ToString(GetCharsets()[i]), canonical[i]);
        EXPECT_EQ(ToCharset(canonical[i]), GetCharsets()[i]);
        for (const std::string& alias : GetAliases(GetCharsets()[i])) {
            EXPECT_EQ(ToCharset(alias), GetCharsets()[i]) << alias;
        }
    }
    for (const auto& [name, charset] : {std::pair{"UTF8", Charset::Utf8},
                                        {"ISO_8859-2", Charset::CodePage28592},
                                        {"Latin1", Charset::CodePage28591},
                                        {"IBM437", Charset::CodePage437},
                                        {"US-ASCII", Charset::Ascii},
                                        {"utf-16BE", Charset::Utf16BE}}) {
        EXPECT_EQ(ToCharset(name), charset) << name;
    }
    EXPECT_EQ(ToString(static_cast<Charset>(9)), "unknown");
    EXPECT_TRUE(GetAliases(static_cast<Charset>(-1)).empty());
    for (const char* unknown : {"utf-16", "utf-32", "latin3", "", "-", "cp1252"}) {
        EXPECT_EQ(Thrown([&] { ToCharset(unknown); }), std::string("Unknown charset: ") + unknown);
    }
    EXPECT_EQ(Thrown([] { MakeDecoder(static_cast<Charset>(9)); }), "Unknown charset: 9");
    EXPECT_EQ(Thrown([] { MakeEncoder(static_cast<Charset>(9)); }), "Unknown charset: 9");
}

TEST(Transcode, DocumentedChoices) {
    struct Case {
        Charset from, to;
        std::string input, output;
    };
    const Case cases[] = {
        {Charset::Utf8, Charset::CodePage28592, "Ko\xC5\x88 \xC3\xA9t\xC3\xA9", "Ko\xF2 \xE9t\xE9"},
        {Charset::Utf8, Charset::CodePage437, "\xE2\x94\x80\xE2\x82\xAC", "\xC4?"},  // U+20AC is lacking
        {Charset::CodePage437, Charset::Utf8, "\x82\xFE", "\xC3\xA9\xE2\x96\xA0"},
        {Charset::Utf8, Charset::Utf16LE, "A\xF0\x9F\x98\x80", std::string("A\0\x3D\xD8\x00\xDE", 6)},
        // Dropped bytes and a partial tail give nothing.
        {Charset::Utf8, Charset::Utf8, "\200a\303b\376\342\202",
         "ab"},  // octal: a hex escape would take the "a"
        {Charset::Utf16LE, Charset::Utf8, std::string("A\0B", 3), "A"},
        // Refused code points become U+FFFD.
        {Charset::Utf8, Charset::Utf8, "\xED\xA0\x80|\xF4\x90\x80\x80", "\xEF\xBF\xBD|\xEF\xBF\xBD"},
        {Charset::Utf16BE, Charset::Utf16LE, std::string("\xDC\x00\x00\x41", 4),
         std::string("\xFD\xFF\x41\x00", 4)},
        {Charset::Utf32BE, Charset::Utf8, std::string("\x00\x11\x00\x00", 4), "\xEF\xBF\xBD"},
        // UTF-32 writes anything; a negative value gives UTF-8 the one byte GetNbBytes announces.
        {Charset::Utf8, Charset::Utf32BE, "\xED\xA0\x80", std::string("\x00\x00\xD8\x00", 4)},
        {Charset::Utf32LE, Charset::Utf8, "\xFF\xFF\xFF\xFF", "\xFF"},
        {Charset::Utf32LE, Charset::Utf16BE, "\xFE\xFF\xFF\xFF", "\xFF\xFE"},
        {Charset::Ascii, Charset::Utf8, "\xE9", "\xC3\xA9"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Transcode(c.input, c.from, c.to), c.output) << ToString(c.from) << " to " << ToString(c.to);
        EXPECT_EQ(PlurexTest::ReferenceTranscode(c.input, c.from, c.to), c.output)
            << ToString(c.from) << " to " << ToString(c.to);
    }
}

TEST(Transcode, OutputUntouchedOnUnknownCharsetAndMayBeTheInput) {
    std::string output = "kept";
    EXPECT_EQ(Thrown([&] { Transcode("abc", Charset::Utf8, static_cast<Charset>(9), output); }),
              "Unknown charset: 9");
    EXPECT_EQ(Thrown([&] { Transcode("abc", static_cast<Charset>(-1), Charset::Utf8, output); }),
              "Unknown charset: -1");
    EXPECT_EQ(output, "kept");
    Transcode("", Charset::Utf8, Charset::Utf16LE, output);
    EXPECT_EQ(output, "");
    output = "h\xC3\xA9";
    Transcode(output, Charset::Utf8, Charset::Utf32BE, output);
    EXPECT_EQ(output, std::string("\0\0\0h\0\0\0\xE9", 8));
}

// Text in every charset's units, so that each source meets its own runs and their ends: ASCII and
// Latin-1 letters, letters above 0xFF, characters outside the basic plane, surrogates alone, and in
// UTF-32 values above 0x10FFFF and negative ones.
std::vector<std::string> Pieces() {
    const std::string ascii = "plain ASCII text, long enough for a block of sixty-four bytes or more, ";
    std::vector<std::string> pieces = {
        ascii,
        "Gr\xC3\xB6\xC3\x9F\x65 \xCE\x95\xCE\xBB\xCE\xBB\xCE\xAC\xCE\xB4\xCE\xB1 "
        "\xD0\x9C\xD0\xBE\xD1\x81\xD0\xBA\xD0\xB2\xD0\xB0 \xE6\x9D\xB1\xE4\xBA\xAC "
        "za\xC5\xBC\xC3\xB3\xC5\x82\xC4\x87 g\xC4\x99\xC5\x9Bl\xC4\x85 ",
        "\xC3\xA9",
        "\xE2\x94\x80",
        "\xF0\x9F\x98\x80",
        "\xED\xA0\x80",
        "\xED\x9F\xBF",
        "\xC0\x80",
        "\xE0\x80\x80",
        "\xC3",
        "\x80",
        "\xF8\x88\x80\x80\x80",
        "\xFF",
        std::string("\0\xD8\x00\xDC", 4)};
    const std::u32string wide[] = {U"Gr\u00F6\u00DFe \u00FCber",
                                   U"\u0141\u00F3d\u017A \u017Ar\u00F3d\u0142o",
                                   U"\u6771\u4EAC",
                                   U"\U0001F600",
                                   std::u32string(1, 0xD800),
                                   std::u32string(1, 0xDC00),
                                   std::u32string(1, 0x110000),
                                   std::u32string(1, 0xFFFFFFFF)};
    for (const std::u32string& text : wide) {
        for (const bool bigEndian : {false, true}) {
            std::string utf16;
            std::string utf32;
            for (const char32_t c : text) {
                const auto unit = static_cast<std::uint32_t>(c);
                for (int i = 0; i < 4; ++i) {
                    utf32 += static_cast<char>(unit >> (8 * (bigEndian ? 3 - i : i)));
                }
                const std::uint32_t units[2] = {unit < 0x10000 ? unit : 0xD800 + ((unit - 0x10000) >> 10),
                                                unit < 0x10000 ? 0 : 0xDC00 + (unit & 0x3FF)};
                for (int u = 0; u < (unit < 0x10000 ? 1 : 2); ++u) {
                    utf16 += static_cast<char>(units[u] >> (bigEndian ? 8 : 0));
                    utf16 += static_cast<char>(units[u] >> (bigEndian ? 0 : 8));
                }
            }
            pieces.push_back(utf16);
            pieces.push_back(utf32);
        }
    }
    for (const bool bigEndian : {false, true}) {
        std::string utf16;
        std::string utf32;
        for (const char c : ascii) {
            utf16 += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
            utf32 += bigEndian ? std::string{'\0', '\0', '\0', c} : std::string{c, '\0', '\0', '\0'};
        }
        pieces.push_back(utf16);
        pieces.push_back(utf32);
    }
    return pieces;
}

// Every pair of charsets on inputs long enough to cross the internal chunks, mixing runs of every
// kind, characters that end them, malformed sequences and random bytes, against the
// one-call-at-a-time reference. A random byte now and then shifts the units out of step.
TEST(Transcode, EveryPairMatchesTheCodersOneByteAtATime) {
    std::mt19937 random(20240607);
    const std::vector<std::string> pieces = Pieces();
    for (int round = 0; round < 4; ++round) {
        std::string input;
        while (input.size() < 40000) {
            if (random() % 8 == 0) {
                input += static_cast<char>(random());
            } else {
                input += pieces[random() % pieces.size()];
            }
        }
        input.resize(input.size() - round);  // tails cut at every offset of a 4-byte unit
        for (const Charset from : GetCharsets()) {
            for (const Charset to : GetCharsets()) {
                ASSERT_EQ(Transcode(input, from, to), PlurexTest::ReferenceTranscode(input, from, to))
                    << ToString(from) << " to " << ToString(to) << ", round " << round;
            }
        }
    }
}

// The character that ends a block or a chunk, whatever it is, converts as it does alone: after ASCII
// padding that ends 1 to 8 units before such an end, the pieces convert as they do without it. The
// chunks are 16 KiB of output over the most bytes a pair writes per unit of input: these input sizes.
TEST(Transcode, CharactersAcrossBlockAndChunkEndsConvertAsAlone) {
    std::string tail;
    for (const std::string& piece : Pieces()) {
        tail = piece + tail;  // the ASCII piece last: what straddles is the rest
    }
    for (const Charset from : GetCharsets()) {
        const std::size_t width = Transcode("a", Charset::Ascii, from).size();
        for (const Charset to : GetCharsets()) {
            const std::string alone = PlurexTest::ReferenceTranscode(tail, from, to);
            for (const std::size_t end : {64, 4096, 5440, 8192, 10880, 16384, 32768, 65536}) {
                for (std::size_t before = 1; before <= 8; ++before) {
                    const std::string pad =
                        Transcode(std::string(end / width - before, 'a'), Charset::Ascii, from);
                    ASSERT_EQ(Transcode(pad + tail, from, to), Transcode(pad, from, to) + alone)
                        << ToString(from) << " to " << ToString(to) << ", " << before << " units before "
                        << end;
                }
            }
        }
    }
}

// UTF-8 whose every block ends with the first byte of a two-byte character, each a different one,
// over several chunks: the second byte is written where it belongs, not left as an earlier chunk's.
TEST(Transcode, TwoByteCharactersAcrossEveryBlockEnd) {
    std::mt19937 random(20261123);
    std::string input(63, 'a');
    while (input.size() < 100000) {
        const auto codePoint = static_cast<unsigned>(0x80 + random() % 0x780);
        input += static_cast<char>(0xC0 | codePoint >> 6);
        input += static_cast<char>(0x80 | (codePoint & 0x3F));
        input += std::string(62, 'a');
    }
    for (const Charset to : GetCharsets()) {
        EXPECT_EQ(Transcode(input, Charset::Utf8, to),
                  PlurexTest::ReferenceTranscode(input, Charset::Utf8, to))
            << ToString(to);
    }
}

}  // namespace

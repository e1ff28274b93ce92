#include "PlurexData/unicode/ByteOrderMark.h"
#include "PlurexData/unicode/Charset.h"

#include "Thrown.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>

namespace {

using namespace Korv::Plurex::Unicode;

TEST(ByteOrderMark, MarkedNames) {
    for (const char* name : {"utf-16", "UTF16", "Utf_16", " utf - 16 "}) {
        EXPECT_EQ(ToMarkedCharset(name), Charset::Utf16BE) << name;
    }
    for (const char* name : {"utf-32", "UTF32", "utf_32"}) {
        EXPECT_EQ(ToMarkedCharset(name), Charset::Utf32BE) << name;
    }
    for (const char* name : {"", "utf", "utf-8", "utf-16le", "utf-32be", "utf-161", "ucs-2", "utf16\t"}) {
        EXPECT_EQ(ToMarkedCharset(name), std::nullopt) << name;
    }
    for (const Charset charset : GetCharsets()) {
        EXPECT_EQ(ToMarkedCharset(ToString(charset)), std::nullopt);
        for (const std::string& alias : GetAliases(charset)) {
            EXPECT_EQ(ToMarkedCharset(alias), std::nullopt) << alias;
        }
    }
}

TEST(ByteOrderMark, ReadTheMarkOfEitherByteOrder) {
    struct Case {
        std::string input;
        ByteOrderMark utf16, utf32;
    };
    const Case cases[] = {
        {"", {Charset::Utf16BE, 0}, {Charset::Utf32BE, 0}},
        {"\xFF", {Charset::Utf16BE, 0}, {Charset::Utf32BE, 0}},
        {"\xFF\xFE", {Charset::Utf16LE, 2}, {Charset::Utf32BE, 0}},
        {"\xFE\xFF", {Charset::Utf16BE, 2}, {Charset::Utf32BE, 0}},
        {std::string("\xFF\xFE\0", 3), {Charset::Utf16LE, 2}, {Charset::Utf32BE, 0}},
        {std::string("\xFF\xFE\0\0", 4), {Charset::Utf16LE, 2}, {Charset::Utf32LE, 4}},
        {std::string("\0\0\xFE\xFF", 4), {Charset::Utf16BE, 0}, {Charset::Utf32BE, 4}},
        {std::string("\0\0\xFF\xFE", 4), {Charset::Utf16BE, 0}, {Charset::Utf32BE, 0}},
        {"\xEF\xBB\xBF", {Charset::Utf16BE, 0}, {Charset::Utf32BE, 0}},
    };
    for (const Case& c : cases) {
        for (const auto& [charset, expected] : {std::pair{Charset::Utf16LE, c.utf16},
                                                {Charset::Utf16BE, c.utf16},
                                                {Charset::Utf32LE, c.utf32},
                                                {Charset::Utf32BE, c.utf32}}) {
            const ByteOrderMark mark = ReadByteOrderMark(c.input, charset);
            EXPECT_EQ(mark.charset, expected.charset) << ToString(charset) << " " << c.input.size();
            EXPECT_EQ(mark.size, expected.size) << ToString(charset) << " " << c.input.size();
        }
    }
    EXPECT_EQ(Thrown([] { ReadByteOrderMark("\xEF\xBB\xBF", Charset::Utf8); }),
              "Not a UTF-16 or UTF-32 charset: utf-8");
    EXPECT_EQ(Thrown([] { ReadByteOrderMark("", Charset::CodePage437); }),
              "Not a UTF-16 or UTF-32 charset: cp437");
    EXPECT_EQ(Thrown([] { ReadByteOrderMark("", static_cast<Charset>(9)); }),
              "Not a UTF-16 or UTF-32 charset: unknown");
}

TEST(ByteOrderMark, MarksWrittenAndReadBack) {
    const std::string marks[] = {"",
                                 "",
                                 "",
                                 "",
                                 "\xEF\xBB\xBF",
                                 "\xFF\xFE",
                                 "\xFE\xFF",
                                 std::string("\xFF\xFE\0\0", 4),
                                 std::string("\0\0\xFE\xFF", 4)};
    for (std::size_t i = 0; i < GetCharsets().size(); ++i) {
        const Charset charset = GetCharsets()[i];
        EXPECT_EQ(GetByteOrderMark(charset), marks[i]) << ToString(charset);
        if (i >= 5) {
            const ByteOrderMark mark = ReadByteOrderMark(marks[i] + "text", charset);
            EXPECT_EQ(mark.charset, charset);
            EXPECT_EQ(mark.size, marks[i].size());
        }
    }
    EXPECT_EQ(Thrown([] { GetByteOrderMark(static_cast<Charset>(-1)); }), "Unknown charset: -1");
}

}  // namespace

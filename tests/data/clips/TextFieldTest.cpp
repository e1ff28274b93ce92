#include "PlurexData/data/clips/TextField.h"

#include <gtest/gtest.h>

#include <iconv.h>

#include <cstring>
#include <random>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

using namespace Korv::Plurex::Data::Clips;
using Korv::Plurex::Unicode::Charset;

namespace {

constexpr TextField AllFields[] = {TextField::Text1,    TextField::Text2,    TextField::Text3,
                                   TextField::Text4,    TextField::Name,     TextField::VarId,
                                   TextField::Keyword0, TextField::Keyword1, TextField::Keyword2,
                                   TextField::Keyword3, TextField::Keyword4};

// The stored bytes of a field (with its terminators) and its flag, read straight from the clip.
struct Stored {
    std::string bytes;
    bool unicode;
    bool operator==(const Stored& other) const { return bytes == other.bytes && unicode == other.unicode; }
};

template <std::size_t N>
Stored Of(const Clip::Text<N>& text) {
    return {std::string(text.text, N + 2), text.unicode};
}

Stored Of(const Clip& clip, TextField field) {
    const char* texts[] = {clip.text1, clip.text2, clip.text3, clip.text4};
    const int index = static_cast<int>(field);
    if (index < 4) {
        return {std::string(texts[index], Clip::TextLength + 1), false};
    }
    return field == TextField::Name ? Of(clip.name) : field == TextField::VarId ? Of(clip.varId) : Of(clip.keywords[index - 6]);
}

std::size_t SizeOf(TextField field) {
    return Of(Clip(), field).bytes.size() - (static_cast<int>(field) < 4 ? 1 : 2);
}

// glibc's conversion of `bytes` from `from` to `to`.
std::string Iconv(const std::string& bytes, const char* from, const char* to) {
    iconv_t cd = iconv_open(to, from);
    EXPECT_NE(cd, reinterpret_cast<iconv_t>(-1));
    std::string in = bytes;
    std::string out(bytes.size() * 4 + 8, '\0');
    char* inPtr = in.data();
    char* outPtr = out.data();
    std::size_t inLeft = in.size();
    std::size_t outLeft = out.size();
    EXPECT_NE(iconv(cd, &inPtr, &inLeft, &outPtr, &outLeft), static_cast<std::size_t>(-1));
    iconv_close(cd);
    out.resize(out.size() - outLeft);
    return out;
}

std::string Refusal(Clip& clip, TextField field, const std::string& text, bool unicode,
                    Charset charset = Charset::CodePage28591) {
    try {
        SetTextUtf8(clip, field, text, unicode, charset);
        return "written";
    } catch (const std::invalid_argument& e) {
        return e.what();
    }
}

}  // namespace

TEST(TextField, WritesAndReadsTheStoredBytes) {
    Clip clip;
    EXPECT_EQ(GetTextUtf8(clip, TextField::Name), std::string(24, ' '));
    SetTextUtf8(clip, TextField::Name, "Z\xC3\xBCrich");
    EXPECT_EQ(Of(clip, TextField::Name), (Stored{"Z\xFCrich" + std::string(20, '\0'), false}));
    SetTextUtf8(clip, TextField::Keyword4, "Z\xC3\xBC\xF0\x9F\x98\x80", true);
    EXPECT_EQ(Of(clip, TextField::Keyword4), (Stored{std::string("Z\0\xFC\0\x3D\xD8\x00\xDE", 8) + std::string(6, '\0'), true}));
    SetTextUtf8(clip, TextField::Text2, "\xC5\x81\xC3\xB3\xC5\xBA", false, Charset::CodePage28592);
    EXPECT_EQ(Of(clip, TextField::Text2).bytes, "\xA3\xF3\xBC" + std::string(6, '\0'));
    EXPECT_EQ(ToString(TextField::Keyword2), "keywords[2]");
    EXPECT_EQ(ToString(static_cast<TextField>(11)), "unknown");
}

// Whatever a field holds as text reads back and writes again to the very same bytes, in every 8-bit set
// and in UTF-16; ISO 8859 and UTF-16 read as glibc's iconv reads them.
TEST(TextField, RoundTripsEveryTextAFieldHolds) {
    struct Form {
        Charset charset;
        bool unicode;
        const char* iconvName;
    };
    const Form forms[] = {{Charset::Ascii, false, "ASCII"},
                          {Charset::CodePage437, false, nullptr},
                          {Charset::CodePage28591, false, "ISO-8859-1"},
                          {Charset::CodePage28592, false, "ISO-8859-2"},
                          {Charset::CodePage28591, true, "UTF-16LE"}};
    std::mt19937 random(17);
    for (const Form& form : forms) {
        for (const TextField field : AllFields) {
            if (form.unicode && static_cast<int>(field) < 4) {
                continue;
            }
            const std::size_t size = SizeOf(field);
            for (int i = 0; i < 200; ++i) {
                std::string bytes;
                const std::size_t length = random() % (size + 1);
                while (bytes.size() + (form.unicode ? 2 : 1) <= length) {
                    if (!form.unicode) {
                        bytes += static_cast<char>(1 + random() % (form.charset == Charset::Ascii ? 127 : 255));
                        continue;
                    }
                    // Any non-zero unit but a lone surrogate, and surrogate pairs where there is room.
                    unsigned int unit = 1 + random() % 0xFFFF;
                    if (unit >= 0xD800 && unit < 0xE000) {
                        if (bytes.size() + 4 > length) {
                            continue;
                        }
                        const unsigned int low = 0xDC00 + random() % 0x400;
                        unit = 0xD800 + random() % 0x400;
                        bytes += {static_cast<char>(unit), static_cast<char>(unit >> 8), static_cast<char>(low),
                                  static_cast<char>(low >> 8)};
                        continue;
                    }
                    bytes += {static_cast<char>(unit), static_cast<char>(unit >> 8)};
                }
                Clip source;
                SetTextBytes(source, field, bytes, form.unicode);
                ASSERT_EQ(Of(source, field).bytes, bytes + std::string(Of(source, field).bytes.size() - bytes.size(), '\0'));
                ASSERT_EQ(GetTextBytes(source, field), bytes + std::string(size - bytes.size(), '\0'));
                ASSERT_EQ(IsTextUtf16(source, field), form.unicode);
                const std::string text = GetTextUtf8(source, field, form.charset);
                if (form.iconvName != nullptr) {
                    ASSERT_EQ(text, Iconv(bytes, form.iconvName, "UTF-8"));
                }
                Clip written;
                SetTextUtf8(written, field, text, form.unicode, form.charset);
                ASSERT_EQ(Of(written, field), Of(source, field)) << ToString(field) << " " << text;
                ASSERT_EQ(GetTextUtf8(written, field, form.charset), text);
            }
        }
    }
}

TEST(TextField, RefusesWhatTheFieldCannotHoldAndChangesNothing) {
    struct Case {
        TextField field;
        std::string text;
        bool unicode;
        Charset charset;
        std::string message;
    };
    const Case cases[] = {
        {TextField::Name, std::string(25, 'a'), false, Charset::CodePage28591, "name: text longer than 24 bytes"},
        {TextField::Name, std::string(11, 'a') + "\xF0\x9F\x98\x80", true, Charset::CodePage28591,
         "name: text longer than 24 bytes"},
        {TextField::Text4, "123456789", false, Charset::CodePage437, "text4: text longer than 8 bytes"},
        {TextField::Name, "\xE2\x82\xAC", false, Charset::CodePage28591, "name: U+20AC not in iso-8859-1"},
        {TextField::VarId, "\xC3\xA8", false, Charset::CodePage28592, "varId: U+00E8 not in iso-8859-2"},
        {TextField::Text1, "\xC3\xA9", false, Charset::Ascii, "text1: U+00E9 not in ascii"},
        {TextField::Keyword2, "ab\xC3", true, Charset::CodePage28591, "keywords[2]: text is not UTF-8"},
        {TextField::Keyword0, "\xC0\xAF", false, Charset::CodePage28591, "keywords[0]: text is not UTF-8"},
        {TextField::Keyword1, "\xED\xA0\x80", true, Charset::CodePage28591, "keywords[1]: text is not UTF-8"},
        {TextField::Keyword3, "\x80", false, Charset::CodePage28591, "keywords[3]: text is not UTF-8"},
        {TextField::VarId, std::string("a\0b", 3), true, Charset::CodePage28591, "varId: U+0000 not allowed"},
        {TextField::Text3, "a", true, Charset::CodePage28591, "text3: no UTF-16 form"},
        {TextField::Name, "a", false, Charset::Utf8, "Not an 8-bit charset: utf-8"},
        {static_cast<TextField>(11), "a", false, Charset::CodePage28591, "Unknown text field: 11"},
    };
    for (const Case& c : cases) {
        Clip clip;
        EXPECT_EQ(Refusal(clip, c.field, c.text, c.unicode, c.charset), c.message);
        EXPECT_EQ(clip, Clip()) << c.message;
    }
    EXPECT_THROW(GetTextUtf8(Clip(), TextField::Name, Charset::Utf16LE), std::invalid_argument);
    // Raw bytes: refused as text is, by the field's size and flag.
    for (const auto& [field, bytes, unicode, message] :
         {std::tuple{TextField::VarId, std::string(33, 'x'), true, "varId: text longer than 32 bytes"},
          std::tuple{TextField::Text2, std::string(1, 'x'), true, "text2: no UTF-16 form"}}) {
        Clip clip;
        try {
            SetTextBytes(clip, field, bytes, unicode);
            ADD_FAILURE() << message;
        } catch (const std::invalid_argument& e) {
            EXPECT_STREQ(e.what(), message);
        }
        EXPECT_EQ(clip, Clip());
    }
}

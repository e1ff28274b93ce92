// TranscodeStrict: its messages, its agreement with the lenient Transcode, and glibc iconv (without
// //IGNORE or //TRANSLIT) as the outside oracle for where it stops, why, and what it wrote first.
// Where glibc differs on a corner, the test says why and excludes exactly that corner.
#include "PlurexData/unicode/ByteOrderMark.h"
#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/GetCode.h"
#include "PlurexData/unicode/Transcode.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <cerrno>
#include <cstdint>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <tuple>

namespace {

using namespace Korv::Plurex::Unicode;
using Reason = TranscodeProblem::Reason;

// Where a conversion stopped (the input's size when it did not), why (EILSEQ, EINVAL or 0), and what
// it wrote; ours carries the error as well.
struct Stop {
    std::string output;
    int error = 0;
    std::size_t offset = 0;
    std::optional<TranscodeProblem> problem;
};

Stop Strict(const std::string& input, Charset from, Charset to) {
    Stop stop{"left over", 0, input.size(), std::nullopt};
    if (const auto problem = TryTranscodeStrict(input, from, to, stop.output)) {
        stop = {stop.output, problem->reason == Reason::Incomplete ? EINVAL : EILSEQ, problem->offset, problem};
    }
    return stop;
}

Stop Iconv(const char* from, const char* to, const std::string& input) {
    const iconv_t descriptor = iconv_open(to, from);
    EXPECT_NE(reinterpret_cast<std::intptr_t>(descriptor), -1) << from << " to " << to;
    std::string output(input.size() * 4 + 16, '\0');
    char* in = const_cast<char*>(input.data());
    char* out = output.data();
    std::size_t inLeft = input.size(), outLeft = output.size();
    Stop stop;
    if (iconv(descriptor, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1)) {
        stop.error = errno;
    } else {
        iconv(descriptor, nullptr, nullptr, &out, &outLeft);
    }
    iconv_close(descriptor);
    stop.offset = static_cast<std::size_t>(in - input.data());
    stop.output = output.substr(0, output.size() - outLeft);
    return stop;
}

const char* GlibcName(Charset charset) {
    static const char* const names[] = {"ANSI_X3.4-1968", "IBM437",   "ISO-8859-1", "ISO-8859-2", "UTF-8",
                                        "UTF-16LE",       "UTF-16BE", "UTF-32LE",   "UTF-32BE"};
    return names[static_cast<int>(charset)];
}

// Text in `charset`, clean or spoilt by one changed or inserted byte or a cut end.
std::string RandomInput(std::mt19937& random, Charset charset) {
    static const std::uint32_t pool[] = {'a',   '?',   0x7F,   0x80,   0xA4,   0xE9,   0xFF,    0x104,
                                         0x2D9, 0x398, 0x20AC, 0x2500, 0xFEFF, 0xFFFD, 0x1F600, 0x10FFFF};
    static const unsigned char spoilers[] = {0x00, 0x11, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xC0,
                                             0xC3, 0xD8, 0xDC, 0xE0, 0xED, 0xF0, 0xF4, 0xF5};
    std::string utf32;
    for (auto n = random() % 8; n != 0; --n) {
        const std::uint32_t code = pool[random() % std::size(pool)];
        for (int i = 0; i < 4; ++i) {
            utf32 += static_cast<char>(code >> (8 * i));
        }
    }
    std::string text = Transcode(utf32, Charset::Utf32LE, charset);  // what the charset lacks is "?"
    const auto spoiler = static_cast<char>(random() % 2 ? spoilers[random() % 16] : random());
    switch (random() % 4) {
        case 1:
            text.insert(random() % (text.size() + 1), 1, spoiler);
            break;
        case 2:
            text.resize(random() % (text.size() + 1));
            break;
        case 3:
            if (!text.empty()) {
                text[random() % text.size()] = spoiler;
            }
            break;
    }
    return text;
}

// A UTF-8 lead byte and the continuation bytes after it in `tail`, as glibc reads them: with the old
// five- and six-byte forms (F8 to FD). Its length is 0 for anything else.
struct GlibcUtf8 {
    std::size_t length = 0, continued = 1;
    explicit GlibcUtf8(const std::string& tail) {
        const auto lead = static_cast<unsigned char>(tail[0]);
        length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF8 ? 4 : lead < 0xFC ? 5 : 6;
        length = lead > 0xFD ? 0 : length;
        while (continued < tail.size() && continued < length && (tail[continued] & 0xC0) == 0x80) {
            ++continued;
        }
    }
};

TEST(TranscodeStrict, MessagesOffsetsAndPrefixes) {
    struct Case {
        Charset from, to;
        std::string input, message, output;
        Reason reason;
        CodePoint codePoint;
    };
    const Case cases[] = {
        {Charset::Utf8, Charset::Utf8, "ab\xE2\x82\x41", "byte 2: cannot decode E2 82 41 as utf-8", "ab",
         Reason::Malformed, 0},
        {Charset::Utf8, Charset::Utf8, "\xE0\x9F\xBF", "byte 0: cannot decode E0 9F as utf-8", "",
         Reason::Malformed, 0},
        {Charset::Utf8, Charset::Utf16LE, "a\xF4\x8F\xBF", "byte 1: incomplete utf-8 sequence at the end",
         std::string("a\0", 2), Reason::Incomplete, 0},
        {Charset::Utf16BE, Charset::Utf8, std::string("\0a\xD8\0\0a", 6),
         "byte 2: cannot decode D8 00 00 61 as utf-16be", "a", Reason::Malformed, 0},
        {Charset::Utf32BE, Charset::Utf8, std::string("\0\x10\xFF\xFF\0\x11\0\0", 8),
         "byte 4: cannot decode 00 11 00 00 as utf-32be", "\xF4\x8F\xBF\xBF", Reason::Malformed, 0},
        {Charset::Utf8, Charset::CodePage28591, "\xC3\xBFx\xE2\x82\xAC", "byte 3: U+20AC not in iso-8859-1",
         "\xFFx", Reason::Unmappable, 0x20AC},
        {Charset::Utf8, Charset::CodePage437, "?\xF0\x9F\x98\x80", "byte 1: U+1F600 not in cp437", "?",
         Reason::Unmappable, 0x1F600},
        // The first problem wins: here the unmappable character before the malformed byte.
        {Charset::CodePage28592, Charset::Ascii, "\x7F\xA1\xFF", "byte 1: U+0104 not in ascii", "\x7F",
         Reason::Unmappable, 0x104},
    };
    for (const Case& c : cases) {
        const Stop stop = Strict(c.input, c.from, c.to);
        ASSERT_TRUE(stop.problem) << c.message;
        EXPECT_EQ(stop.problem->message, c.message);
        EXPECT_EQ(stop.offset, std::stoul(c.message.substr(5))) << c.message;
        EXPECT_EQ(stop.problem->reason, c.reason) << c.message;
        EXPECT_EQ(stop.problem->codePoint, c.codePoint) << c.message;
        EXPECT_EQ(stop.output, c.output) << c.message;
    }
}

TEST(TranscodeStrict, UnknownCharsetsComeFirstAndOutputMayBeTheInput) {
    std::string output = "kept";
    for (const auto& [from, to, message] :
         {std::tuple{static_cast<Charset>(-1), static_cast<Charset>(9), "-1"},
          {Charset::Ascii, static_cast<Charset>(9), "9"}}) {
        try {
            TranscodeStrict("\x80", from, to, output);
            ADD_FAILURE() << "no exception";
        } catch (const std::invalid_argument& e) {
            EXPECT_EQ(e.what(), std::string("Unknown charset: ") + message);
        }
    }
    EXPECT_EQ(output, "kept");
    output = "ab\xFF";
    EXPECT_THROW(TranscodeStrict(output, Charset::Utf8, Charset::Utf16BE, output), std::invalid_argument);
    EXPECT_EQ(output, std::string("\0a\0b", 4));
}

// Every pair on random inputs, clean and spoilt. Against the lenient conversion: without a failure
// the output is Transcode's; a failure at k leaves Transcode of the k bytes before it, and the rest
// fails again at its own start for the same reason. Against glibc: the same success, stop and output.
TEST(TranscodeStrict, AgreesWithTranscodeAndWithIconvOnEveryPair) {
    std::mt19937 random(20240612);
    int failures = 0, incompleteCorners = 0, passthroughCorners = 0;
    for (const Charset from : GetCharsets()) {
        for (const Charset to : GetCharsets()) {
            for (int round = 0; round < 1000; ++round) {
                const std::string input = RandomInput(random, from);
                std::string where = ToString(from) + " to " + ToString(to) + ":";
                for (const char c : input) {
                    where += " " + std::to_string(static_cast<unsigned char>(c));
                }
                const Stop ours = Strict(input, from, to);
                ASSERT_EQ(ours.output, Transcode(input.substr(0, ours.offset), from, to)) << where;
                if (ours.problem) {
                    ++failures;
                    const Stop rest = Strict(input.substr(ours.offset), from, to);
                    ASSERT_TRUE(rest.problem && rest.offset == 0 && rest.output.empty()) << where;
                    ASSERT_EQ(rest.problem->reason, ours.problem->reason) << where;
                    ASSERT_EQ(rest.problem->codePoint, ours.problem->codePoint) << where;
                }

                const Stop glibc = Iconv(GlibcName(from), GlibcName(to), input);
                const std::string tail = input.substr(ours.offset);
                if (from == Charset::Utf8 && !tail.empty()) {
                    const GlibcUtf8 sequence(tail);
                    // glibc's UTF-8 to UTF-8 passes the old 31-bit forms through (four bytes above
                    // U+10FFFF, five and six bytes), which its UTF-8 to anything else refuses.
                    const auto code = GetCode(reinterpret_cast<const unsigned char*>(tail.data()),
                                              static_cast<unsigned char>(sequence.continued));
                    if (to == Charset::Utf8 && sequence.length >= 4 &&
                        sequence.continued == sequence.length &&
                        static_cast<std::uint32_t>(code) >= (sequence.length == 4   ? 0x110000u
                                                             : sequence.length == 5 ? 0x200000u
                                                                                    : 0x4000000u)) {
                        ASSERT_GT(glibc.offset, ours.offset) << where;
                        ASSERT_EQ(glibc.output.substr(0, ours.output.size()), ours.output) << where;
                        ++passthroughCorners;
                        continue;
                    }
                    // At the end of the input glibc looks only for continuation bytes up to the length
                    // the lead announces: "E0 80", "ED A0" or "F5" end incomplete to it, malformed here.
                    if (ours.error == EILSEQ && glibc.error == EINVAL && sequence.continued == tail.size() &&
                        tail.size() < sequence.length) {
                        ++incompleteCorners;
                        ASSERT_EQ(std::tie(ours.offset, ours.output), std::tie(glibc.offset, glibc.output))
                            << where;
                        continue;
                    }
                }
                ASSERT_EQ(std::tie(ours.offset, ours.error, ours.output),
                          std::tie(glibc.offset, glibc.error, glibc.output))
                    << where;
            }
        }
    }
    // The inputs are biased enough to exercise both outcomes and both corners.
    EXPECT_GT(failures, 81 * 1000 / 4);
    EXPECT_LT(failures, 81 * 1000 * 3 / 4);
    EXPECT_GT(incompleteCorners, 0);
    EXPECT_GT(passthroughCorners, 0);
}

TEST(TranscodeStrict, ByteOrderMarksAsIconvReadsAndWritesThem) {
    std::mt19937 random(20240613);
    for (const auto& [glibcName, little, big] : {std::tuple{"UTF-16", Charset::Utf16LE, Charset::Utf16BE},
                                                 {"UTF-32", Charset::Utf32LE, Charset::Utf32BE}}) {
        for (int round = 0; round < 50; ++round) {
            const std::string text =
                Transcode(RandomInput(random, Charset::Utf8), Charset::Utf8, Charset::Utf8);
            // Input: glibc takes the byte order from the mark, as ReadByteOrderMark does.
            for (const Charset charset : {little, big}) {
                const std::string input =
                    std::string(GetByteOrderMark(charset)) + Transcode(text, Charset::Utf8, charset);
                const ByteOrderMark mark = ReadByteOrderMark(input, big);
                ASSERT_EQ(mark.charset, charset);
                ASSERT_EQ(Iconv(glibcName, "UTF-8", input).output,
                          TranscodeStrict(input.substr(mark.size), charset, Charset::Utf8));
            }
            // Without a mark glibc assumes the host's byte order, little-endian on x86, where the text
            // here is big-endian, as RFC 2781 says.
            const std::string unmarked = Transcode(text, Charset::Utf8, little);
            if (!text.empty() && text.compare(0, 3, "\xEF\xBB\xBF") != 0) {
                const ByteOrderMark none = ReadByteOrderMark(unmarked, little);
                ASSERT_EQ(none.charset, big);
                ASSERT_EQ(none.size, 0u);
                ASSERT_EQ(Iconv(glibcName, "UTF-8", unmarked).output, text);
                // Output: glibc writes a mark, then the host's byte order.
                ASSERT_EQ(Iconv("UTF-8", glibcName, text).output,
                          std::string(GetByteOrderMark(little)) + unmarked);
            }
        }
    }
}

}  // namespace

// The character sets against glibc iconv. Where a rule deliberately differs from iconv, the test
// says so and checks the difference.
#include "PlurexData/unicode/DecoderASCII.h"
#include "PlurexData/unicode/DecoderCodePage28591.h"
#include "PlurexData/unicode/DecoderCodePage28592.h"
#include "PlurexData/unicode/DecoderCodePage437.h"
#include "PlurexData/unicode/DecoderUTF16.h"
#include "PlurexData/unicode/DecoderUTF32.h"
#include "PlurexData/unicode/DecoderUTF8.h"
#include "PlurexData/unicode/EncoderASCII.h"
#include "PlurexData/unicode/EncoderCodePage28591.h"
#include "PlurexData/unicode/EncoderCodePage28592.h"
#include "PlurexData/unicode/EncoderCodePage437.h"
#include "PlurexData/unicode/EncoderUTF16.h"
#include "PlurexData/unicode/EncoderUTF32.h"
#include "PlurexData/unicode/EncoderUTF8.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace Korv::Plurex::Unicode;
using Bytes = std::vector<unsigned char>;

class Iconv {
public:
    Iconv(const char* from, const char* to) : descriptor_(iconv_open(to, from)) {
        if (reinterpret_cast<std::intptr_t>(descriptor_) == -1) {
            throw std::runtime_error(std::string("iconv cannot convert from ") + from + " to " + to);
        }
    }
    Iconv(const Iconv&) = delete;
    Iconv& operator=(const Iconv&) = delete;
    ~Iconv() { iconv_close(descriptor_); }

    // The whole input converted, or nothing when iconv refuses any of it.
    std::optional<Bytes> Convert(const Bytes& input) {
        Bytes output(input.size() * 4 + 16);
        char* in = reinterpret_cast<char*>(const_cast<unsigned char*>(input.data()));
        char* out = reinterpret_cast<char*>(output.data());
        std::size_t inLeft = input.size(), outLeft = output.size();
        iconv(descriptor_, nullptr, nullptr, nullptr, nullptr);
        if (iconv(descriptor_, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1) ||
            iconv(descriptor_, nullptr, nullptr, &out, &outLeft) == static_cast<std::size_t>(-1)) {
            return std::nullopt;
        }
        output.resize(output.size() - outLeft);
        return output;
    }

private:
    iconv_t descriptor_;
};

Bytes Utf32Le(CodePoint codePoint) {
    const auto code = static_cast<std::uint32_t>(codePoint);
    return {static_cast<unsigned char>(code), static_cast<unsigned char>(code >> 8),
            static_cast<unsigned char>(code >> 16), static_cast<unsigned char>(code >> 24)};
}

struct SingleByte {
    const char* name;
    std::shared_ptr<Decoder> decoder;
    std::shared_ptr<EncoderANSI> codePage;  // null for ASCII
    std::shared_ptr<Encoder> encoder;
};

std::vector<SingleByte> SingleByteCharsets() {
    return {
        {"ANSI_X3.4-1968", std::make_shared<DecoderASCII>(), nullptr, std::make_shared<EncoderASCII>()},
        {"IBM437", std::make_shared<DecoderCodePage437>(), std::make_shared<EncoderCodePage437>(), nullptr},
        {"ISO-8859-1", std::make_shared<DecoderCodePage28591>(), std::make_shared<EncoderCodePage28591>(),
         nullptr},
        {"ISO-8859-2", std::make_shared<DecoderCodePage28592>(), std::make_shared<EncoderCodePage28592>(),
         nullptr},
    };
}

TEST(IconvOracle, SingleByteDecodersForEveryByte) {
    for (const SingleByte& charset : SingleByteCharsets()) {
        Iconv toUtf32(charset.name, "UTF-32LE");
        for (int byte = 0; byte < 256; ++byte) {
            charset.decoder->Add(static_cast<unsigned char>(byte));
            ASSERT_TRUE(charset.decoder->IsComplete());
            const std::optional<Bytes> expected = toUtf32.Convert({static_cast<unsigned char>(byte)});
            if (expected) {
                EXPECT_EQ(Utf32Le(charset.decoder->GetResult()), *expected)
                    << charset.name << " byte " << byte;
            } else {
                // Difference: iconv refuses ASCII bytes 0x80 to 0xFF; the decoder passes them through.
                EXPECT_TRUE(charset.codePage == nullptr && byte >= 0x80) << charset.name << " byte " << byte;
                EXPECT_EQ(charset.decoder->GetResult(), byte);
            }
        }
    }
}

TEST(IconvOracle, SingleByteEncodersUpTo0xFFFF) {
    for (const SingleByte& charset : SingleByteCharsets()) {
        Iconv fromUtf32("UTF-32LE", charset.name);
        const Encoder& encoder = charset.codePage ? *charset.codePage : *charset.encoder;
        for (CodePoint codePoint = 0; codePoint <= 0xFFFF; ++codePoint) {
            unsigned char byte = 0;
            ASSERT_EQ(encoder.GetNbBytes(codePoint), 1u);
            encoder.Encode(codePoint, &byte);
            if (charset.codePage) {
                ASSERT_EQ(charset.codePage->GetByte(codePoint), byte);
            }
            // Difference: iconv refuses what the charset lacks (surrogates included); the encoders
            // write "?" instead.
            const Bytes expected = fromUtf32.Convert(Utf32Le(codePoint)).value_or(Bytes{'?'});
            ASSERT_EQ(Bytes{byte}, expected) << charset.name << " U+" << std::hex << codePoint;
        }
    }
}

TEST(IconvOracle, UnicodeFormsForEveryScalarValue) {
    Bytes scalars;
    std::vector<CodePoint> codePoints;
    for (CodePoint codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
        if (ValidateCodePoint(codePoint)) {
            codePoints.push_back(codePoint);
            const Bytes bytes = Utf32Le(codePoint);
            scalars.insert(scalars.end(), bytes.begin(), bytes.end());
        }
    }
    struct Form {
        const char* name;
        std::shared_ptr<Encoder> encoder;
        std::shared_ptr<Decoder> decoder;
    };
    const Form forms[] = {
        {"UTF-8", std::make_shared<EncoderUTF8>(), std::make_shared<DecoderUTF8>()},
        {"UTF-16LE", std::make_shared<EncoderUTF16>(false), std::make_shared<DecoderUTF16>(false)},
        {"UTF-16BE", std::make_shared<EncoderUTF16>(true), std::make_shared<DecoderUTF16>(true)},
        {"UTF-32LE", std::make_shared<EncoderUTF32>(false), std::make_shared<DecoderUTF32>(false)},
        {"UTF-32BE", std::make_shared<EncoderUTF32>(true), std::make_shared<DecoderUTF32>(true)},
    };
    for (const Form& form : forms) {
        Iconv fromUtf32("UTF-32LE", form.name);
        const std::optional<Bytes> expected = fromUtf32.Convert(scalars);
        ASSERT_TRUE(expected) << form.name;
        Bytes encoded;
        for (const CodePoint codePoint : codePoints) {
            unsigned char buffer[4];
            const std::uint32_t size = form.encoder->GetNbBytes(codePoint);
            form.encoder->Encode(codePoint, buffer);
            encoded.insert(encoded.end(), buffer, buffer + size);
        }
        EXPECT_TRUE(encoded == *expected) << form.name << " encoding differs";

        std::vector<CodePoint> decoded;
        for (const unsigned char byte : *expected) {
            form.decoder->Add(byte);
            if (form.decoder->IsComplete()) {
                decoded.push_back(form.decoder->GetResult());
            }
        }
        EXPECT_TRUE(decoded == codePoints) << form.name << " decoding differs";

        // Both refuse surrogates and values above 0x10FFFF; UTF-32 alone writes them anyway.
        const bool writesAnything = form.name[4] == '3';
        for (const CodePoint invalid : {0xD800, 0xDFFF, 0x110000}) {
            EXPECT_FALSE(fromUtf32.Convert(Utf32Le(invalid))) << form.name;
            EXPECT_EQ(form.encoder->GetNbBytes(invalid), writesAnything ? 4u : 0u) << form.name;
        }
    }
}

// Malformed UTF-8 that iconv refuses and the decoder deliberately accepts.
TEST(IconvOracle, Utf8DecoderAcceptsWhatIconvRefuses) {
    Iconv toUtf32("UTF-8", "UTF-32LE");
    const struct {
        Bytes bytes;
        CodePoint codePoint;
    } cases[] = {{{0xC0, 0x80}, 0},
                 {{0xE0, 0x80, 0xAF}, 0x2F},
                 {{0xED, 0xA0, 0x80}, 0xD800},
                 {{0xF4, 0x90, 0x80, 0x80}, 0x110000}};
    for (const auto& c : cases) {
        EXPECT_FALSE(toUtf32.Convert(c.bytes));
        DecoderUTF8 decoder;
        for (const unsigned char byte : c.bytes) {
            decoder.Add(byte);
        }
        EXPECT_TRUE(decoder.IsComplete());
        EXPECT_EQ(decoder.GetResult(), c.codePoint);
    }
}

}  // namespace

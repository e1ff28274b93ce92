// Each decoder fed arbitrary bytes (the first byte picks the decoder): nothing crashes, a completed
// code point holds the very bytes it came from, and it re-encodes to those bytes exactly when they are
// a well-formed sequence of the charset; a well-formed input loses no byte.
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

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

using namespace Korv::Plurex::Unicode;

namespace {

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

enum class Form { SingleByte, Ascii, Utf8, Utf16, Utf32 };

bool InRange(unsigned char byte, unsigned char low, unsigned char high) {
    return byte >= low && byte <= high;
}

// RFC 3629's well-formed sequences: shortest forms of the scalar values.
bool WellFormedUtf8(const unsigned char* b, std::uint32_t n) {
    switch (n) {
        case 1:
            return b[0] < 0x80;
        case 2:
            return InRange(b[0], 0xC2, 0xDF) && InRange(b[1], 0x80, 0xBF);
        case 3:
            return (b[0] == 0xE0   ? InRange(b[1], 0xA0, 0xBF)
                    : b[0] == 0xED ? InRange(b[1], 0x80, 0x9F)
                                   : InRange(b[0], 0xE1, 0xEF) && InRange(b[1], 0x80, 0xBF)) &&
                   InRange(b[2], 0x80, 0xBF);
        case 4:
            return (b[0] == 0xF0   ? InRange(b[1], 0x90, 0xBF)
                    : b[0] == 0xF4 ? InRange(b[1], 0x80, 0x8F)
                                   : InRange(b[0], 0xF1, 0xF3) && InRange(b[1], 0x80, 0xBF)) &&
                   InRange(b[2], 0x80, 0xBF) && InRange(b[3], 0x80, 0xBF);
        default:
            return false;
    }
}

bool WellFormed(Form form, const unsigned char* bytes, std::uint32_t n, bool bigEndian) {
    const auto word = [&](int at) {
        return bigEndian ? bytes[at] << 8 | bytes[at + 1] : bytes[at + 1] << 8 | bytes[at];
    };
    switch (form) {
        case Form::SingleByte:
            return n == 1;
        case Form::Ascii:
            return n == 1 && bytes[0] < 0x80;
        case Form::Utf8:
            return WellFormedUtf8(bytes, n);
        case Form::Utf16:
            return (n == 2 && (word(0) < 0xD800 || word(0) > 0xDFFF)) ||
                   (n == 4 && word(0) >= 0xD800 && word(0) <= 0xDBFF && word(2) >= 0xDC00 &&
                    word(2) <= 0xDFFF);
        case Form::Utf32:
            return n == 4;  // UTF-32 writes any value back as it came
    }
    return false;
}

// The whole input cut into the sequences its lead bytes announce, each well-formed, none left over.
bool WellFormedInput(Form form, const unsigned char* input, std::size_t length, bool bigEndian) {
    std::size_t at = 0;
    while (at < length) {
        std::uint32_t n = 1;
        if (form == Form::Utf8) {
            n = input[at] < 0xC0 ? 1 : input[at] < 0xE0 ? 2 : input[at] < 0xF0 ? 3 : 4;
        } else if (form == Form::Utf16) {
            if (length - at < 2) {
                return false;
            }
            const unsigned char high = input[at + (bigEndian ? 0 : 1)];
            n = high >= 0xD8 && high <= 0xDB ? 4 : 2;
        } else if (form == Form::Utf32) {
            n = 4;
        }
        if (n > length - at || !WellFormed(form, input + at, n, bigEndian)) {
            return false;
        }
        at += n;
    }
    return true;
}

struct Pick {
    std::unique_ptr<Decoder> decoder;
    std::unique_ptr<Encoder> encoder;
    Form form;
    bool bigEndian;
};

Pick Choose(unsigned char selector) {
    switch (selector % 9) {
        case 0:
            return {std::make_unique<DecoderASCII>(), std::make_unique<EncoderASCII>(), Form::Ascii, false};
        case 1:
            return {std::make_unique<DecoderCodePage437>(), std::make_unique<EncoderCodePage437>(),
                    Form::SingleByte, false};
        case 2:
            return {std::make_unique<DecoderCodePage28591>(), std::make_unique<EncoderCodePage28591>(),
                    Form::SingleByte, false};
        case 3:
            return {std::make_unique<DecoderCodePage28592>(), std::make_unique<EncoderCodePage28592>(),
                    Form::SingleByte, false};
        case 4:
            return {std::make_unique<DecoderUTF8>(), std::make_unique<EncoderUTF8>(), Form::Utf8, false};
        case 5:
            return {std::make_unique<DecoderUTF16>(false), std::make_unique<EncoderUTF16>(false), Form::Utf16,
                    false};
        case 6:
            return {std::make_unique<DecoderUTF16>(true), std::make_unique<EncoderUTF16>(true), Form::Utf16,
                    true};
        case 7:
            return {std::make_unique<DecoderUTF32>(false), std::make_unique<EncoderUTF32>(false), Form::Utf32,
                    false};
        default:
            return {std::make_unique<DecoderUTF32>(true), std::make_unique<EncoderUTF32>(true), Form::Utf32,
                    true};
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const Pick pick = Choose(data[0]);
    const unsigned char* input = data + 1;
    const std::size_t length = size - 1;
    std::size_t consumed = 0;  // input bytes that went into completed code points
    for (std::size_t i = 0; i < length; ++i) {
        pick.decoder->Add(input[i]);
        const std::uint32_t count = pick.decoder->GetCount();
        Check(count <= 4);
        if (!pick.decoder->IsComplete()) {
            continue;
        }
        const unsigned char* bytes = pick.decoder->GetBuffer();
        Check(count >= 1 && count <= i + 1 && std::memcmp(bytes, input + i + 1 - count, count) == 0);
        consumed += count;
        const CodePoint codePoint = pick.decoder->GetResult();
        unsigned char again[4];
        const std::uint32_t againSize = pick.encoder->GetNbBytes(codePoint);
        pick.encoder->Encode(codePoint, again);
        const bool same = againSize == count && std::memcmp(again, bytes, count) == 0;
        Check(same == WellFormed(pick.form, bytes, count, pick.bigEndian));
    }
    // A well-formed input loses no byte.
    Check(consumed == length || !WellFormedInput(pick.form, input, length, pick.bigEndian));
    return 0;
}

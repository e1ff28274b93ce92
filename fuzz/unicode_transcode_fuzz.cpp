// Transcode between any two charsets (the first two bytes pick them): the result is what the
// decoder and encoder give one virtual call at a time, and well-formed UTF-8 comes back unchanged
// through UTF-16 and UTF-32.
#include "PlurexData/unicode/Charset.h"
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
#include "PlurexData/unicode/Transcode.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

using namespace Korv::Plurex::Unicode;

namespace {

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

std::unique_ptr<Decoder> MakeDecoder(Charset charset) {
    switch (charset) {
        case Charset::Ascii:
            return std::make_unique<DecoderASCII>();
        case Charset::CodePage437:
            return std::make_unique<DecoderCodePage437>();
        case Charset::CodePage28591:
            return std::make_unique<DecoderCodePage28591>();
        case Charset::CodePage28592:
            return std::make_unique<DecoderCodePage28592>();
        case Charset::Utf8:
            return std::make_unique<DecoderUTF8>();
        case Charset::Utf16LE:
            return std::make_unique<DecoderUTF16>(false);
        case Charset::Utf16BE:
            return std::make_unique<DecoderUTF16>(true);
        case Charset::Utf32LE:
            return std::make_unique<DecoderUTF32>(false);
        case Charset::Utf32BE:
            return std::make_unique<DecoderUTF32>(true);
    }
    std::abort();
}

std::unique_ptr<Encoder> MakeEncoder(Charset charset) {
    switch (charset) {
        case Charset::Ascii:
            return std::make_unique<EncoderASCII>();
        case Charset::CodePage437:
            return std::make_unique<EncoderCodePage437>();
        case Charset::CodePage28591:
            return std::make_unique<EncoderCodePage28591>();
        case Charset::CodePage28592:
            return std::make_unique<EncoderCodePage28592>();
        case Charset::Utf8:
            return std::make_unique<EncoderUTF8>();
        case Charset::Utf16LE:
            return std::make_unique<EncoderUTF16>(false);
        case Charset::Utf16BE:
            return std::make_unique<EncoderUTF16>(true);
        case Charset::Utf32LE:
            return std::make_unique<EncoderUTF32>(false);
        case Charset::Utf32BE:
            return std::make_unique<EncoderUTF32>(true);
    }
    std::abort();
}

// Transcode's documented behaviour, one virtual call at a time.
std::string Reference(const std::string& input, Charset from, Charset to) {
    const auto decoder = MakeDecoder(from);
    const auto encoder = MakeEncoder(to);
    std::string output;
    for (const char c : input) {
        decoder->Add(static_cast<unsigned char>(c));
        if (decoder->IsComplete()) {
            CodePoint codePoint = decoder->GetResult();
            if (encoder->GetNbBytes(codePoint) == 0) {
                codePoint = 0xFFFD;
            }
            unsigned char bytes[4];
            encoder->Encode(codePoint, bytes);
            output.append(reinterpret_cast<const char*>(bytes), encoder->GetNbBytes(codePoint));
        }
    }
    return output;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    const auto& charsets = GetCharsets();
    const Charset from = charsets[data[0] % charsets.size()];
    const Charset to = charsets[data[1] % charsets.size()];
    const std::string input(reinterpret_cast<const char*>(data + 2), size - 2);

    const std::string output = Transcode(input, from, to);
    Check(output == Reference(input, from, to));
    std::string reused = "left over";
    Transcode(input, from, to, reused);
    Check(reused == output);

    // UTF-8 that comes back unchanged from UTF-8 is well-formed (no byte dropped, no overlong form,
    // nothing refused), and then it survives a round trip through the other Unicode forms.
    if (from == Charset::Utf8 && Transcode(input, Charset::Utf8, Charset::Utf8) == input) {
        for (const Charset via : {Charset::Utf16LE, Charset::Utf16BE, Charset::Utf32LE, Charset::Utf32BE}) {
            Check(Transcode(Transcode(input, Charset::Utf8, via), via, Charset::Utf8) == input);
        }
    }
    return 0;
}

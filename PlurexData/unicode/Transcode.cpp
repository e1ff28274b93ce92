#include "PlurexData/unicode/Transcode.h"

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
#include "PlurexData/unicode/GetCode.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <type_traits>

namespace Korv::Plurex::Unicode {

namespace {

constexpr CodePoint ReplacementCharacter = 0xFFFD;
// Input is converted in chunks through a buffer on the stack: one input byte completes at most one
// code point, and no encoder writes more than 4 bytes for one.
constexpr std::size_t ChunkSize = 4096;
constexpr std::size_t MaxBytesPerCodePoint = 4;

[[noreturn]] void ThrowUnknown(Charset charset) {
    throw std::invalid_argument("Unknown charset: " + std::to_string(static_cast<std::int32_t>(charset)));
}

// The decoders for which every byte below 0x80 completes at once as the code point of the same value,
// whatever came before it (a UTF-8 sequence in progress is abandoned, as a new lead byte abandons
// it). After such a byte, the decoder behaves towards the next bytes exactly as an empty one.
template <class TDecoder>
constexpr bool AsciiCompletesAlone =
    !std::is_same_v<TDecoder, DecoderUTF16> && !std::is_same_v<TDecoder, DecoderUTF32>;

// Writes one code point as Transcode documents it; returns the end of what was written.
template <class TEncoder>
unsigned char* Put(const TEncoder& encoder, CodePoint codePoint, unsigned char* out) noexcept {
    if constexpr (std::is_base_of_v<EncoderANSI, TEncoder>) {
        // EncoderANSI's one byte, from the final class's GetByte called directly: reached through the
        // base class's Encode, not every compiler inlines it.
        *out = encoder.GetByte(codePoint);
        return out + 1;
    }
    const std::uint32_t size = encoder.GetNbBytes(codePoint);
    if (size == 0) {
        encoder.Encode(ReplacementCharacter, out);
        return out + encoder.GetNbBytes(ReplacementCharacter);
    }
    encoder.Encode(codePoint, out);
    return out + size;
}

std::uint64_t Load8(const unsigned char* bytes) noexcept {
    std::uint64_t word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

// The length a UTF-8 lead byte of two to four bytes announces; 0 for any other byte.
constexpr std::size_t SequenceLength(unsigned char lead) noexcept {
    if (lead < 0xC0) {
        return 0;
    }
    if (lead < 0xE0) {
        return 2;
    }
    if (lead < 0xF0) {
        return 3;
    }
    return lead < 0xF8 ? 4 : 0;
}

bool AreContinuations(const unsigned char* bytes, std::size_t count) noexcept {
    for (std::size_t i = 0; i < count; ++i) {
        if ((bytes[i] & 0xC0) != 0x80) {
            return false;
        }
    }
    return true;
}

// Both classes are final, so every call below is direct, and flatten has the compiler inline all of
// them (left to itself it calls UTF-8's Add and Put out of line, once per character). The coders are
// copied into locals whose address never leaves this function: the compiler then knows that the
// bytes written through `out` cannot change them.
template <class TDecoder, class TEncoder>
[[gnu::flatten]] void Convert(std::string_view input, const TDecoder& initialDecoder,
                              const TEncoder& initialEncoder, std::string& output) {
    TDecoder decoder = initialDecoder;
    const TEncoder encoder = initialEncoder;  // NOLINT(performance-unnecessary-copy-initialization)
    unsigned char staging[ChunkSize * MaxBytesPerCodePoint];
    const auto* in = reinterpret_cast<const unsigned char*>(input.data());
    const auto* const end = in + input.size();
    while (in != end) {
        const auto* const stop = in + std::min<std::size_t>(ChunkSize, static_cast<std::size_t>(end - in));
        unsigned char* out = staging;
        while (in != stop) {
            if constexpr (AsciiCompletesAlone<TDecoder>) {
                // Bytes below 0x80 skip the decoder, which would hand each back unchanged; eight at a
                // time while they last. Masking tells the encoder's inlined code that they are ASCII.
                if (*in < 0x80) {
                    while (stop - in >= 8 && (Load8(in) & 0x8080808080808080u) == 0) {
                        for (int i = 0; i < 8; ++i) {
                            out = Put(encoder, in[i] & 0x7F, out);
                        }
                        in += 8;
                    }
                    for (; in != stop && *in < 0x80; ++in) {
                        out = Put(encoder, *in, out);
                    }
                    decoder.Reset();
                    continue;
                }
            }
            if constexpr (std::is_same_v<TDecoder, DecoderUTF8>) {
                // A lead byte followed by all the continuation bytes it announces completes as GetCode
                // of them whatever came before (a lead byte abandons a sequence in progress), and
                // leaves the decoder as good as empty.
                const std::size_t length = SequenceLength(*in);
                if (length != 0 && static_cast<std::size_t>(stop - in) >= length &&
                    AreContinuations(in + 1, length - 1)) {
                    out = Put(encoder, GetCode(in, static_cast<unsigned char>(length)), out);
                    in += length;
                    decoder.Reset();
                    continue;
                }
            }
            if constexpr (std::is_base_of_v<DecoderANSI, TDecoder>) {
                // DecoderANSI completes every byte as GetCodePoint of it; called directly on the final
                // class for the same reason as GetByte in Put.
                out = Put(encoder, decoder.GetCodePoint(*in++), out);
                continue;
            }
            decoder.Add(*in++);
            if (decoder.IsComplete()) {
                out = Put(encoder, decoder.GetResult(), out);
            }
        }
        output.append(reinterpret_cast<const char*>(staging), static_cast<std::size_t>(out - staging));
    }
}

template <class TDecoder>
void ConvertFrom(std::string_view input, const TDecoder& decoder, Charset to, std::string& output) {
    switch (to) {
        case Charset::Ascii:
            return Convert(input, decoder, EncoderASCII(), output);
        case Charset::CodePage437:
            return Convert(input, decoder, EncoderCodePage437(), output);
        case Charset::CodePage28591:
            return Convert(input, decoder, EncoderCodePage28591(), output);
        case Charset::CodePage28592:
            return Convert(input, decoder, EncoderCodePage28592(), output);
        case Charset::Utf8:
            return Convert(input, decoder, EncoderUTF8(), output);
        case Charset::Utf16LE:
            return Convert(input, decoder, EncoderUTF16(false), output);
        case Charset::Utf16BE:
            return Convert(input, decoder, EncoderUTF16(true), output);
        case Charset::Utf32LE:
            return Convert(input, decoder, EncoderUTF32(false), output);
        case Charset::Utf32BE:
            return Convert(input, decoder, EncoderUTF32(true), output);
    }
    ThrowUnknown(to);
}

}  // namespace

void Transcode(std::string_view input, Charset from, Charset to, std::string& output) {
    // Both are checked before the output is touched.
    for (const Charset charset : {from, to}) {
        const auto& known = GetCharsets();
        if (std::find(known.begin(), known.end(), charset) == known.end()) {
            ThrowUnknown(charset);
        }
    }
    // `input` may be a view of `output` itself: convert into a new string then.
    const std::less<const char*> before;
    if (!input.empty() && !before(input.data(), output.data()) &&
        before(input.data(), output.data() + output.size())) {
        std::string converted;
        Transcode(input, from, to, converted);
        output.swap(converted);
        return;
    }
    output.clear();
    output.reserve(input.size());
    switch (from) {
        case Charset::Ascii:
            return ConvertFrom(input, DecoderASCII(), to, output);
        case Charset::CodePage437:
            return ConvertFrom(input, DecoderCodePage437(), to, output);
        case Charset::CodePage28591:
            return ConvertFrom(input, DecoderCodePage28591(), to, output);
        case Charset::CodePage28592:
            return ConvertFrom(input, DecoderCodePage28592(), to, output);
        case Charset::Utf8:
            return ConvertFrom(input, DecoderUTF8(), to, output);
        case Charset::Utf16LE:
            return ConvertFrom(input, DecoderUTF16(false), to, output);
        case Charset::Utf16BE:
            return ConvertFrom(input, DecoderUTF16(true), to, output);
        case Charset::Utf32LE:
            return ConvertFrom(input, DecoderUTF32(false), to, output);
        case Charset::Utf32BE:
            return ConvertFrom(input, DecoderUTF32(true), to, output);
    }
    ThrowUnknown(from);
}

std::string Transcode(std::string_view input, Charset from, Charset to) {
    std::string output;
    Transcode(input, from, to, output);
    return output;
}

}  // namespace Korv::Plurex::Unicode

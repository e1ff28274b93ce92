#include "PlurexData/unicode/Transcode.h"

#include "PlurexData/unicode/Decode.h"
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
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
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

void CheckKnown(Charset from, Charset to) {
    for (const Charset charset : {from, to}) {
        const auto& known = GetCharsets();
        if (std::find(known.begin(), known.end(), charset) == known.end()) {
            ThrowUnknown(charset);
        }
    }
}

// Whether `input` is a view of part of `output`, which a conversion into `output` would overwrite.
bool Overlaps(std::string_view input, const std::string& output) {
    const std::less<const char*> before;
    return !input.empty() && !before(input.data(), output.data()) &&
           before(input.data(), output.data() + output.size());
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
    CheckKnown(from, to);
    // `input` may be a view of `output` itself: convert into a new string then.
    if (Overlaps(input, output)) {
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

// The strict conversion: one character at a time, through the same coders, stopping at the first
// one that cannot be converted.
namespace {

// One character read strictly: `length` bytes making `codePoint`; or, with `length` 0, the first
// `malformed` bytes of a sequence that cannot be a character, or (with `malformed` 0 as well) the
// start of one that the input ends inside.
struct Read {
    std::size_t length = 0;
    CodePoint codePoint = 0;
    std::size_t malformed = 0;
};

constexpr Read Character(std::size_t length, CodePoint codePoint) noexcept {
    return {length, codePoint, 0};
}
constexpr Read Malformed(std::size_t bytes) noexcept {
    return {0, 0, bytes};
}
constexpr Read Incomplete() noexcept {
    return {};
}

// RFC 3629: the lead byte decides the length and the range of the second byte, which is what
// excludes overlong forms (E0, F0), surrogates (ED) and values above 0x10FFFF (F4).
Read ReadUtf8(const unsigned char* in, std::size_t left) noexcept {
    const unsigned char lead = in[0];
    if (lead < 0x80) {
        return Character(1, lead);
    }
    std::size_t length = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead < 0xE0) {
        length = 2;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        length = 3;
        low = lead == 0xE0 ? 0xA0 : low;
        high = lead == 0xED ? 0x9F : high;
    } else if (lead >= 0xF0 && lead < 0xF5) {
        length = 4;
        low = lead == 0xF0 ? 0x90 : low;
        high = lead == 0xF4 ? 0x8F : high;
    } else {
        return Malformed(1);
    }
    for (std::size_t i = 1; i < length; ++i) {
        if (i == left) {
            return Incomplete();
        }
        if (in[i] < low || in[i] > high) {
            return Malformed(i + 1);
        }
        low = 0x80;
        high = 0xBF;
    }
    return Character(length, GetCode(in, static_cast<unsigned char>(length)));
}

Read ReadUtf16(const unsigned char* in, std::size_t left, bool bigEndian) noexcept {
    const auto unit = [&](std::size_t i) {
        return bigEndian ? _make_word_be(in[i], in[i + 1]) : _make_word_le(in[i], in[i + 1]);
    };
    const auto isLow = [](unsigned short word) { return word >= 0xDC00 && word <= 0xDFFF; };
    if (left < 2) {
        return Incomplete();
    }
    const unsigned short first = unit(0);
    if (isLow(first)) {
        return Malformed(2);
    }
    if (first < 0xD800 || first > 0xDBFF) {
        return Character(2, first);
    }
    if (left < 4) {
        return Incomplete();
    }
    if (!isLow(unit(2))) {
        return Malformed(4);
    }
    CodePoint codePoint = 0;
    Decode(in, 4, bigEndian, codePoint);
    return Character(4, codePoint);
}

Read ReadUtf32(const unsigned char* in, std::size_t left, bool bigEndian) noexcept {
    if (left < 4) {
        return Incomplete();
    }
    std::uint32_t code = 0;
    for (int i = 0; i < 4; ++i) {
        code = code << 8 | in[bigEndian ? i : 3 - i];
    }
    // Unsigned, so that the values with the top bit set are refused with those above 0x10FFFF.
    if (code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
        return Malformed(4);
    }
    return Character(4, static_cast<CodePoint>(code));
}

Read ReadStrict(Charset from, const unsigned char* in, std::size_t left) noexcept {
    switch (from) {
        case Charset::Ascii:
            return in[0] < 0x80 ? Character(1, in[0]) : Malformed(1);
        case Charset::CodePage437:
            return Character(1, DecoderCodePage437().GetCodePoint(in[0]));
        case Charset::CodePage28591:
            return Character(1, DecoderCodePage28591().GetCodePoint(in[0]));
        case Charset::CodePage28592:
            return Character(1, DecoderCodePage28592().GetCodePoint(in[0]));
        case Charset::Utf8:
            return ReadUtf8(in, left);
        case Charset::Utf16LE:
        case Charset::Utf16BE:
            return ReadUtf16(in, left, from == Charset::Utf16BE);
        case Charset::Utf32LE:
        case Charset::Utf32BE:
            return ReadUtf32(in, left, from == Charset::Utf32BE);
    }
    return Malformed(1);  // not reached: the charsets are checked first
}

// Whether `to` has the valid code point `codePoint`; the code pages say they lack it with "?".
bool Has(Charset to, CodePoint codePoint) noexcept {
    switch (to) {
        case Charset::Ascii:
            return codePoint < 0x80;
        case Charset::CodePage437:
            return codePoint == '?' || EncoderCodePage437().GetByte(codePoint) != '?';
        case Charset::CodePage28591:
            return codePoint < 0x100;
        case Charset::CodePage28592:
            return codePoint == '?' || EncoderCodePage28592().GetByte(codePoint) != '?';
        default:
            return true;
    }
}

std::string Prefix(std::size_t offset) {
    return "byte " + std::to_string(offset) + ": ";
}

TranscodeProblem Malformed(const unsigned char* sequence, std::size_t size, std::size_t offset, Charset from) {
    static const char digits[] = "0123456789ABCDEF";
    std::string bytes;
    for (std::size_t i = 0; i < size; ++i) {
        if (i != 0) {
            bytes += ' ';
        }
        bytes += digits[sequence[i] >> 4];
        bytes += digits[sequence[i] & 0xF];
    }
    return {TranscodeProblem::Reason::Malformed, offset, 0,
            Prefix(offset) + "cannot decode " + bytes + " as " + ToString(from)};
}

TranscodeProblem Incomplete(std::size_t offset, Charset from) {
    return {TranscodeProblem::Reason::Incomplete, offset, 0,
            Prefix(offset) + "incomplete " + ToString(from) + " sequence at the end"};
}

TranscodeProblem Unmappable(CodePoint codePoint, std::size_t offset, Charset to) {
    char name[16];
    std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned int>(codePoint));
    return {TranscodeProblem::Reason::Unmappable, offset, codePoint, Prefix(offset) + name + " not in " + ToString(to)};
}

std::optional<TranscodeProblem> ConvertStrict(std::string_view input, Charset from, Charset to,
                                              std::string& output) {
    const std::unique_ptr<Encoder> encoder = MakeEncoder(to);
    const auto* const begin = reinterpret_cast<const unsigned char*>(input.data());
    std::size_t offset = 0;
    while (offset != input.size()) {
        const Read read = ReadStrict(from, begin + offset, input.size() - offset);
        if (read.length == 0) {
            if (read.malformed != 0) {
                return Malformed(begin + offset, read.malformed, offset, from);
            }
            return Incomplete(offset, from);
        }
        if (!Has(to, read.codePoint)) {
            return Unmappable(read.codePoint, offset, to);
        }
        // Every code point read strictly is a valid one, which every encoder writes as announced.
        unsigned char bytes[MaxBytesPerCodePoint];
        encoder->Encode(read.codePoint, bytes);
        output.append(reinterpret_cast<const char*>(bytes), encoder->GetNbBytes(read.codePoint));
        offset += read.length;
    }
    return std::nullopt;
}

}  // namespace

std::optional<TranscodeProblem> TryTranscodeStrict(std::string_view input, Charset from, Charset to,
                                                   std::string& output) {
    CheckKnown(from, to);
    // `input` may be a view of `output` itself: convert into a new string then, which replaces
    // `output` whether the conversion ends or stops.
    if (Overlaps(input, output)) {
        std::string converted;
        std::optional<TranscodeProblem> problem = TryTranscodeStrict(input, from, to, converted);
        output.swap(converted);
        return problem;
    }
    output.clear();
    output.reserve(input.size());
    return ConvertStrict(input, from, to, output);
}

void TranscodeStrict(std::string_view input, Charset from, Charset to, std::string& output) {
    if (const std::optional<TranscodeProblem> problem = TryTranscodeStrict(input, from, to, output)) {
        throw std::invalid_argument(problem->message);
    }
}

std::string TranscodeStrict(std::string_view input, Charset from, Charset to) {
    std::string output;
    TranscodeStrict(input, from, to, output);
    return output;
}

}  // namespace Korv::Plurex::Unicode

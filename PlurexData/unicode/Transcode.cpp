#include "PlurexData/unicode/Transcode.h"

#include "PlurexData/unicode/Decode.h"
#include "PlurexData/unicode/DecoderCodePage28591.h"
#include "PlurexData/unicode/DecoderCodePage28592.h"
#include "PlurexData/unicode/DecoderCodePage437.h"
#include "PlurexData/unicode/EncoderASCII.h"
#include "PlurexData/unicode/EncoderCodePage28591.h"
#include "PlurexData/unicode/EncoderCodePage28592.h"
#include "PlurexData/unicode/EncoderCodePage437.h"
#include "PlurexData/unicode/EncoderUTF16.h"
#include "PlurexData/unicode/EncoderUTF32.h"
#include "PlurexData/unicode/EncoderUTF8.h"
#include "PlurexData/unicode/GetCode.h"
#include "PlurexData/unicode/detail/UnitBlocks.h"

#include <algorithm>
#include <array>
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
// Output is staged in a buffer on the stack and appended to the string a chunk at a time. A chunk's
// input is sized so that its output fits StagingSize; the slack covers the character that ends past
// the chunk and the bytes written beyond what is kept (4 for a character).
constexpr std::size_t StagingSize = 16384;
constexpr std::size_t StagingSlack = 256;
// No encoder writes more than 4 bytes for a code point.
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

// The targets: how a code point is written, and below which code point it is written as one unit
// of its own value (the blocks copy, widen or narrow those).

template <class TEncoder, bool BigEndian>
TEncoder Construct() noexcept {
    if constexpr (std::is_constructible_v<TEncoder, bool>) {
        return TEncoder(BigEndian);
    } else {
        return TEncoder();
    }
}

template <class TEncoder, std::size_t Width, bool BigEndian, std::uint64_t IdentityBelow>
struct EncoderTarget {
    using Units = detail::Units<Width, BigEndian>;
    static constexpr std::uint64_t identityBelow = IdentityBelow;

    unsigned char* Put(CodePoint codePoint, unsigned char* out) const noexcept {
        return Unicode::Put(encoder, codePoint, out);
    }

    TEncoder encoder = Construct<TEncoder, BigEndian>();
};

// Code page 437's encoder finds a byte through a multi-way branch; this target looks it up in a
// table made from that encoder, for every code point up to the highest the code page has.
class CodePage437Target {
public:
    using Units = detail::Units<1, false>;
    static constexpr std::uint64_t identityBelow = 0x80;

    unsigned char* Put(CodePoint codePoint, unsigned char* out) const noexcept {
        const auto index = static_cast<std::uint32_t>(codePoint);
        *out = index < TableSize ? bytes_[index] : EncoderCodePage437().GetByte(codePoint);
        return out + 1;
    }

private:
    static constexpr std::uint32_t TableSize = 0x2600;

    static const unsigned char* Table() {
        static const auto table = [] {
            std::array<unsigned char, TableSize> bytes{};
            for (std::uint32_t codePoint = 0; codePoint < TableSize; ++codePoint) {
                bytes[codePoint] = EncoderCodePage437().GetByte(static_cast<CodePoint>(codePoint));
            }
            return bytes;
        }();
        return table.data();
    }

    const unsigned char* bytes_ = Table();
};

using AsciiTarget = EncoderTarget<EncoderASCII, 1, false, 0x80>;
using CodePage28591Target = EncoderTarget<EncoderCodePage28591, 1, false, 0x100>;
using CodePage28592Target = EncoderTarget<EncoderCodePage28592, 1, false, 0xA1>;

// UTF-8 and UTF-16 write the code points of most text straight away, and leave the rest (and every
// quirk) to their encoders.
struct Utf8Target : EncoderTarget<EncoderUTF8, 1, false, 0x80> {
    unsigned char* Put(CodePoint codePoint, unsigned char* out) const noexcept {
        const auto code = static_cast<std::uint32_t>(codePoint);
        if (code < 0x80) {
            *out = static_cast<unsigned char>(code);
            return out + 1;
        }
        if (code < 0x800) {
            out[0] = static_cast<unsigned char>(0xC0 | code >> 6);
            out[1] = static_cast<unsigned char>(0x80 | (code & 0x3F));
            return out + 2;
        }
        if (code < 0x10000 && code - 0xD800 >= 0x800) {
            out[0] = static_cast<unsigned char>(0xE0 | code >> 12);
            out[1] = static_cast<unsigned char>(0x80 | (code >> 6 & 0x3F));
            out[2] = static_cast<unsigned char>(0x80 | (code & 0x3F));
            return out + 3;
        }
        return EncoderTarget::Put(codePoint, out);
    }
};

template <bool BigEndian>
struct Utf16Target : EncoderTarget<EncoderUTF16, 2, BigEndian, 0xD800> {
    using Base = EncoderTarget<EncoderUTF16, 2, BigEndian, 0xD800>;
    unsigned char* Put(CodePoint codePoint, unsigned char* out) const noexcept {
        const auto code = static_cast<std::uint32_t>(codePoint);
        if (code < 0xD800) {
            Base::Units::Store(code, out);
            return out + 2;
        }
        return Base::Put(codePoint, out);
    }
};

// UTF-32 writes every value as it is.
template <bool BigEndian>
struct Utf32Target : EncoderTarget<EncoderUTF32, 4, BigEndian, detail::NoLimit> {
    unsigned char* Put(CodePoint codePoint, unsigned char* out) const noexcept {
        detail::Units<4, BigEndian>::Store(static_cast<std::uint32_t>(codePoint), out);
        return out + 4;
    }
};

// The most bytes a target writes per unit of a source, whatever the bytes: what the staging buffer
// is sized by. A code point takes at least one unit; UTF-8 input never grows in UTF-8 (a sequence
// of n bytes makes a code point of at most n bytes, or the 3 of U+FFFD), nor in UTF-16 beyond 2 per
// byte.
template <class TSource, class TTarget>
constexpr std::size_t MaxBytesPerUnit() noexcept {
    constexpr std::size_t source = TSource::Units::width;
    if constexpr (TTarget::Units::width == 4) {
        return 4;
    } else if constexpr (TTarget::Units::width == 2) {
        return source == 4 ? 4 : 2;
    } else if constexpr (!std::is_same_v<TTarget, Utf8Target>) {
        return 1;
    } else if constexpr (source == 1) {
        return TSource::isUtf8 ? 1 : 3;
    } else {
        return source == 2 ? 3 : 4;
    }
}

// The sources: how one code point is read at a position, statelessly (the decoders' state never
// outlives a character that way), and below which unit value a unit is the code point of its value.

// What a single-byte source byte becomes in a target: its bytes, and how many.
struct ByteMap {
    unsigned char bytes[256][MaxBytesPerCodePoint];
    unsigned char length[256];
};

template <class TDecode, std::uint64_t IdentityBelow>
struct SingleByteSource {
    using Units = detail::Units<1, false>;
    static constexpr std::uint64_t identityBelow = IdentityBelow;
    static constexpr bool isUtf8 = false;

    // Every byte is a character, written from a table made for the pair, without a branch.
    template <class TTarget>
    class Reader {
    public:
        // Whether every byte is written as one unit of the target, so that a block's other units can be
        // put in place after it (UTF-8 is the one target that writes the code points of these
        // charsets in more than one length).
        static constexpr bool fixesBlocks = !std::is_same_v<TTarget, Utf8Target>;
        // Into UTF-8, bytes go 16 at a time through Expand instead.
        static constexpr bool expands = !fixesBlocks;

        explicit Reader(const TTarget& target) noexcept : map_(Map(target)) {}

        void Step(const unsigned char*& in, const unsigned char*, unsigned char*& out) const noexcept {
            std::memcpy(out, map_.bytes[*in], MaxBytesPerCodePoint);
            out += map_.length[*in++];
        }

        // Writes the bytes of the units `above` names in the block at `in` converted to `out`. The
        // first is written whether there is one or not (the last unit again, which is the same
        // bytes), so that text with a character to fix now and then takes no branch it mispredicts.
        void Fix(const unsigned char* in, std::uint64_t above, unsigned char* out) const noexcept {
            constexpr std::size_t width = TTarget::Units::width;
            constexpr std::uint64_t last = std::uint64_t{1} << (detail::BlockBytes - 1);
            auto unit = static_cast<std::size_t>(__builtin_ctzll(above | last));
            std::memcpy(out + unit * width, map_.bytes[in[unit]], width);
            for (above &= above - 1; above != 0; above &= above - 1) {
                unit = static_cast<std::size_t>(__builtin_ctzll(above));
                std::memcpy(out + unit * width, map_.bytes[in[unit]], width);
            }
        }

        // Into UTF-8, after ConvertBlock copied the block at `in` to `out` and named its bytes from
        // 0x80 in `above`: writes each of those from the table, the bytes after it copied again
        // behind it, and returns how many bytes the block makes. The first is written whether there
        // is one or not (the block's last byte, which is then ASCII), so that text with a character
        // now and then takes no branch it mispredicts, and the output moves by a sum that does not
        // wait for the writes. Reads up to 128 bytes; writes up to 68 beyond what it keeps.
        std::size_t Expand(const unsigned char* in, std::uint64_t above, unsigned char* out) const noexcept {
            constexpr std::size_t block = detail::BlockBytes;
            constexpr std::uint64_t last = std::uint64_t{1} << (block - 1);
            auto at = static_cast<std::size_t>(__builtin_ctzll(above | last));
            std::memcpy(out + at, map_.bytes[in[at]], MaxBytesPerCodePoint);
            std::size_t extra = map_.length[in[at]] - std::size_t{1};
            std::memcpy(out + at + 1 + extra, in + at + 1, block);
            for (above &= above - 1; above != 0; above &= above - 1) {
                at = static_cast<std::size_t>(__builtin_ctzll(above));
                std::memcpy(out + at + extra, map_.bytes[in[at]], MaxBytesPerCodePoint);
                extra += map_.length[in[at]] - std::size_t{1};
                std::memcpy(out + at + 1 + extra, in + at + 1, block);
            }
            return block + extra;
        }

    private:
        static const ByteMap& Map(const TTarget& target) noexcept {
            static const ByteMap map = [&] {
                ByteMap bytes{};
                for (unsigned int byte = 0; byte < 256; ++byte) {
                    const auto value = static_cast<unsigned char>(byte);
                    bytes.length[byte] = static_cast<unsigned char>(
                        target.Put(TDecode()(value), bytes.bytes[byte]) - bytes.bytes[byte]);
                }
                return bytes;
            }();
            return map;
        }

        const ByteMap& map_;
    };
};

struct AsciiBytes {
    CodePoint operator()(unsigned char byte) const noexcept { return byte; }
};

template <class TDecoder>
struct CodePageBytes {
    CodePoint operator()(unsigned char byte) const noexcept { return TDecoder().GetCodePoint(byte); }
};

using AsciiSource = SingleByteSource<AsciiBytes, 0x100>;
using CodePage437Source = SingleByteSource<CodePageBytes<DecoderCodePage437>, 0x80>;
using CodePage28591Source = SingleByteSource<CodePageBytes<DecoderCodePage28591>, 0x100>;
using CodePage28592Source = SingleByteSource<CodePageBytes<DecoderCodePage28592>, 0xA1>;

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

// The sources whose characters are read one at a time.
template <class TSource>
struct CodePointSource {
    template <class TTarget>
    class Reader {
    public:
        static constexpr bool fixesBlocks = false;
        static constexpr bool expands = false;

        explicit Reader(const TTarget& target) noexcept : target_(target) {}

        // Writes the character at `in`, which may end anywhere up to `end`, and moves past it.
        void Step(const unsigned char*& in, const unsigned char* end, unsigned char*& out) const noexcept {
            TSource::Step(in, end, out, target_);
        }

    private:
        const TTarget& target_;
    };
};

// UTF-8 as DecoderUTF8 reads it, seen from the start of each character: a byte below 0x80 is one; a
// lead byte followed by all the continuation bytes it announces is one; any other byte completes
// nothing, and the continuation bytes after it are then dropped one by one as strays, which is
// where the decoder's abandoned sequences (cut short, five and six bytes, 0xFE, 0xFF) leave them.
struct Utf8Source : CodePointSource<Utf8Source> {
    using Units = detail::Units<1, false>;
    static constexpr std::uint64_t identityBelow = 0x80;
    static constexpr bool isUtf8 = true;

    template <class TTarget>
    static void Step(const unsigned char*& in, const unsigned char* end, unsigned char*& out,
                     const TTarget& target) noexcept {
        const unsigned char lead = *in;
        if (lead < 0x80) {
            out = target.Put(lead, out);
            ++in;
            return;
        }
        if (lead >= 0xC0 && lead < 0xE0 && end - in >= 2 && (in[1] & 0xC0) == 0x80) {
            out = target.Put((lead & 0x1F) << 6 | (in[1] & 0x3F), out);
            in += 2;
            return;
        }
        if (lead >= 0xE0 && lead < 0xF0 && end - in >= 3 && (in[1] & 0xC0) == 0x80 &&
            (in[2] & 0xC0) == 0x80) {
            out = target.Put((lead & 0x0F) << 12 | (in[1] & 0x3F) << 6 | (in[2] & 0x3F), out);
            in += 3;
            return;
        }
        const std::size_t length = SequenceLength(*in);
        if (length != 0 && static_cast<std::size_t>(end - in) >= length &&
            AreContinuations(in + 1, length - 1)) {
            out = target.Put(GetCode(in, static_cast<unsigned char>(length)), out);
            in += length;
            return;
        }
        ++in;
    }
};

template <bool BigEndian>
struct Utf16Source : CodePointSource<Utf16Source<BigEndian>> {
    using Units = detail::Units<2, BigEndian>;
    static constexpr std::uint64_t identityBelow = 0xD800;

    // A unit, or a high surrogate and the unit after it; nothing for an odd last byte or a high
    // surrogate at the end.
    template <class TTarget>
    static void Step(const unsigned char*& in, const unsigned char* end, unsigned char*& out,
                     const TTarget& target) noexcept {
        if (end - in >= 2) {
            const std::uint32_t unit = Units::Load(in);
            if (unit - 0xD800 >= 0x400) {
                out = target.Put(static_cast<CodePoint>(unit), out);
                in += 2;
                return;
            }
        }
        CodePoint codePoint = 0;
        const auto left = static_cast<unsigned int>(std::min<std::ptrdiff_t>(end - in, 4));
        const unsigned int used = Decode(in, left, BigEndian, codePoint);
        if (used == 0) {
            in = end;
            return;
        }
        out = target.Put(codePoint, out);
        in += used;
    }
};

template <bool BigEndian>
struct Utf32Source : CodePointSource<Utf32Source<BigEndian>> {
    using Units = detail::Units<4, BigEndian>;
    static constexpr std::uint64_t identityBelow = detail::NoLimit;

    template <class TTarget>
    static void Step(const unsigned char*& in, const unsigned char* end, unsigned char*& out,
                     const TTarget& target) noexcept {
        if (end - in < 4) {
            in = end;
            return;
        }
        out = target.Put(static_cast<CodePoint>(Units::Load(in)), out);
        in += 4;
    }
};

// UTF-8 into a charset of single bytes: the byte of every code point a sequence of one or two
// bytes makes (below 0x800), from a table made from the target.
template <class TTarget>
struct NarrowMap {
    static const NarrowMap& Of(const TTarget& target) noexcept {
        static const NarrowMap map = [&] {
            NarrowMap made{};
            for (std::uint32_t codePoint = 0; codePoint < 0x800; ++codePoint) {
                target.Put(static_cast<CodePoint>(codePoint), &made.bytes[codePoint]);
            }
            return made;
        }();
        return map;
    }

    unsigned char bytes[0x800];
};

// What NarrowUtf8Block reads from a block: its last character may start at the block's last byte
// and take four, and 64 bytes are copied after it.
constexpr std::size_t NarrowReadBytes = 2 * detail::BlockBytes + 3;

// After ConvertBlock copied the block at `in` to `out` and named its bytes from 0x80 in `above`:
// reads the character at each of those, copies the bytes after it again behind what it wrote, and
// returns where the block's output ends. The first is read whether there is one or not (the
// block's last byte, which is then ASCII), and without a branch when it is ASCII or two bytes, so
// that text with a character now and then takes no branch it mispredicts. A character that ends
// past the block leaves continuation bytes at the start of the next, which make nothing there as
// they do here. Reads up to NarrowReadBytes; writes up to 64 beyond what it keeps. Into UTF-8 the
// first character, when ASCII or two bytes, is copied as it stands, and `map` is not read.
template <class TTarget, class TReader>
unsigned char* NarrowUtf8Block(const unsigned char* in, const unsigned char* end, std::uint64_t above,
                               unsigned char* out, const TReader& reader,
                               const NarrowMap<TTarget>* map) noexcept {
    constexpr std::size_t block = detail::BlockBytes;
    constexpr std::uint64_t last = std::uint64_t{1} << (block - 1);
    const auto at = static_cast<std::size_t>(__builtin_ctzll(above | last));
    const unsigned char* from = in + at;
    unsigned char* to = out + at;
    const std::uint32_t lead = from[0];
    if constexpr (std::is_same_v<TTarget, Utf8Target>) {
        const bool two = lead >= 0xC2 && lead < 0xE0 && (from[1] & 0xC0) == 0x80;
        if (lead < 0x80 || two) {
            std::memcpy(to, from, 2);  // a lead that ends the block has its continuation past the copy
            from += 1 + static_cast<std::size_t>(two);
            to += 1 + static_cast<std::size_t>(two);
        } else {
            reader.Step(from, end, to);
        }
    } else {
        const bool two = (lead & 0xE0) == 0xC0 && (from[1] & 0xC0) == 0x80;
        if (lead < 0x80 || two) {
            const std::uint32_t codePoint = two ? (lead & 0x1F) << 6 | (from[1] & 0x3F) : lead;
            *to++ = map->bytes[codePoint];
            from += 1 + static_cast<std::size_t>(two);
        } else {
            reader.Step(from, end, to);
        }
    }
    std::memcpy(to, from, block);
    for (auto done = static_cast<std::size_t>(from - in); done < block;
         done = static_cast<std::size_t>(from - in)) {
        above &= ~std::uint64_t{0} << done;
        if (above == 0) {
            return to + (block - done);
        }
        const auto next = static_cast<std::size_t>(__builtin_ctzll(above));
        to += next - done;
        from = in + next;
        reader.Step(from, end, to);
        std::memcpy(to, from, block);
    }
    return to;
}

// UTF-8 into UTF-8 from the first byte from 0x80 that `above` names in the block at `in`: copies
// well-formed text 16 bytes at a time while it lasts, reads a character alone where that stops,
// and returns after 16 ASCII.
template <class TReader>
void CopyUtf8Run(const unsigned char*& in, const unsigned char* stop, const unsigned char* end,
                 std::uint64_t above, unsigned char*& out, const TReader& reader) noexcept {
    const std::size_t below = detail::FirstUnit<Utf8Source::Units>(above);
    in += below;
    out += below;
    reader.Step(in, end, out);
    while (stop - in >= 16) {
        const detail::Copied copied = detail::CopyWellFormedUtf8(in, out);
        if (copied.bytes == 0) {
            reader.Step(in, end, out);
            continue;
        }
        in += copied.bytes;
        out += copied.bytes;
        if (copied.ascii) {
            return;
        }
    }
}

// UTF-16 or UTF-32 into UTF-8 one unit at a time, characters of one and two bytes written here and
// the others by the reader, until 16 ASCII in a row or a block before `stop`.
template <class SourceUnits, class TReader>
void MixedIntoUtf8(const unsigned char*& in, const unsigned char* stop, const unsigned char* end,
                   unsigned char*& out, const TReader& reader) noexcept {
    std::size_t ascii = 0;
    while (ascii < 16 && stop - in >= static_cast<std::ptrdiff_t>(detail::BlockBytes)) {
        const std::uint32_t unit = SourceUnits::Load(in);
        if (unit < 0x80) {
            *out++ = static_cast<unsigned char>(unit);
            in += SourceUnits::width;
            ++ascii;
            continue;
        }
        ascii = 0;
        if (unit < 0x800) {
            out[0] = static_cast<unsigned char>(0xC0 | unit >> 6);
            out[1] = static_cast<unsigned char>(0x80 | (unit & 0x3F));
            out += 2;
            in += SourceUnits::width;
            continue;
        }
        reader.Step(in, end, out);
    }
}

// The conversion of one pair. Blocks of 64 bytes go through ConvertBlock; the units at or above the
// limit both sides agree on are then put in place when the source can (single-byte charsets into
// fixed widths), or else the block is taken up to the first of them and the source reads the
// character there. The position only ever moves by whole units, so a block never splits one. Output
// is staged a chunk at a time and appended.
template <class TSource, class TTarget>
[[gnu::flatten]] void ConvertPair(std::string_view input, std::string& output) {
    using SourceUnits = typename TSource::Units;
    using TargetUnits = typename TTarget::Units;
    using Reader = typename TSource::template Reader<TTarget>;
    constexpr std::uint64_t limit = std::min(TSource::identityBelow, TTarget::identityBelow);
    // Whether a unit can be at or above the limit at all.
    constexpr bool checked = limit < (std::uint64_t{1} << (8 * SourceUnits::width));
    constexpr std::size_t blockBytes = detail::BlockBytes;
    constexpr std::size_t chunkBytes =
        StagingSize / MaxBytesPerUnit<TSource, TTarget>() * SourceUnits::width / blockBytes * blockBytes;
    static_assert(chunkBytes % 4 == 0 && chunkBytes >= blockBytes);

    const TTarget target;
    const Reader reader(target);
    // UTF-8 into a charset of single bytes, or into UTF-8, goes through NarrowUtf8Block.
    constexpr bool narrows = std::is_same_v<TSource, Utf8Source> && TargetUnits::width == 1;
    const auto* const narrowMap = [&]() -> const NarrowMap<TTarget>* {
        if constexpr (narrows && !std::is_same_v<TTarget, Utf8Target>) {
            return &NarrowMap<TTarget>::Of(target);
        } else {
            return nullptr;
        }
    }();
    // Both write blocks that grow or shrink with what they hold; `sparse` is whether most blocks of
    // the last chunk were ASCII alone.
    constexpr bool resizes = Reader::expands || narrows;
    unsigned char staging[StagingSize + StagingSlack];
    const auto* in = reinterpret_cast<const unsigned char*>(input.data());
    const auto* const end = in + input.size();
    output.reserve(input.size() / SourceUnits::width * TargetUnits::width);
    bool sparse = true;
    bool dense = false;
    while (in < end) {
        const auto* const stop = in + std::min<std::size_t>(chunkBytes, static_cast<std::size_t>(end - in));
        unsigned char* out = staging;
        std::size_t stops = 0;
        std::size_t crowded = 0;
        std::size_t tried = 0;
        while (stop - in >= static_cast<std::ptrdiff_t>(blockBytes)) {
            const std::uint64_t above = detail::ConvertBlock<SourceUnits, TargetUnits, limit>(in, out);
            if constexpr (!checked) {
                static_cast<void>(above);  // always 0
            } else if constexpr (Reader::fixesBlocks) {
                reader.Fix(in, above, out);
            } else if constexpr (resizes) {
                // Text where most blocks are ASCII (the last chunk says) skips those with a branch
                // that is then predicted; other text takes every block through the same code.
                stops += above != 0;
                if (sparse && above == 0) {
                    in += blockBytes;
                    out += blockBytes;
                    continue;
                }
                if constexpr (std::is_same_v<TSource, Utf8Source> && std::is_same_v<TTarget, Utf8Target>) {
                    // UTF-8 into UTF-8: text with characters from 0x80 close together (four or more
                    // bytes of them in most blocks of the last chunk) is copied a run at a time.
                    std::uint64_t fewer = above & (above - 1);
                    fewer &= fewer - 1;
                    crowded += (fewer & (fewer - 1)) != 0;
                    ++tried;
                    if (dense && above != 0) {
                        CopyUtf8Run(in, stop, end, above, out, reader);
                        continue;
                    }
                }
                if (end - in >= static_cast<std::ptrdiff_t>(narrows ? NarrowReadBytes : 2 * blockBytes)) {
                    if constexpr (narrows) {
                        out = NarrowUtf8Block(in, end, above, out, reader, narrowMap);
                    } else {
                        out += reader.Expand(in, above, out);
                    }
                    in += blockBytes;
                    continue;
                }
                if (above != 0) {
                    break;  // the last block of the text, read a character at a time
                }
            } else if (above != 0) {
                // The character there is read on its own; then a block of 16 units is tried, and
                // where it does not convert whole, its run is taken unit by unit and the next
                // character read, until one does: mostly-ASCII text soon goes back to full blocks.
                constexpr std::size_t shortBytes = 16 * SourceUnits::width;
#if defined(__SSE2__)
                if constexpr (SourceUnits::width == 2 && std::is_same_v<TTarget, Utf8Target>) {
                    if (detail::ssse3::Available()) {
                        // UTF-16 into UTF-8 goes 8 units at a time while they are below 0x800; the 8
                        // where that stops are read a character at a time.
                        detail::ssse3::Utf16IntoUtf8<SourceUnits::bigEndian>(in, stop, out);
                        const auto* const group = in + std::min<std::ptrdiff_t>(16, stop - in);
                        while (in < group) {
                            reader.Step(in, end, out);
                        }
                        continue;
                    }
                }
#endif
                const std::size_t below = detail::FirstUnit<SourceUnits>(above);
                in += below * SourceUnits::width;
                out += below * TargetUnits::width;
                while (true) {
                    reader.Step(in, end, out);
                    if (stop - in < static_cast<std::ptrdiff_t>(shortBytes)) {
                        break;
                    }
                    const std::uint64_t stopped =
                        detail::ConvertBlock<SourceUnits, TargetUnits, limit, shortBytes>(in, out);
                    if (stopped == 0) {
                        in += shortBytes;
                        out += 16 * TargetUnits::width;
                        break;
                    }
                    if constexpr (SourceUnits::width != 1 && std::is_same_v<TTarget, Utf8Target>) {
                        // UTF-16 and UTF-32 text that mixes scripts into UTF-8: where the block
                        // stopped within 8 units, the text goes unit by unit, the one- and two-byte
                        // characters written here, until 16 ASCII in a row.
                        if (detail::FirstUnit<SourceUnits>(stopped) < 8) {
                            MixedIntoUtf8<SourceUnits>(in, stop, end, out, reader);
                            break;
                        }
                    }
                    // The run before the next such character, unit by unit: predicted branches let
                    // the next character start before this run's length is known. The block just
                    // converted holds such a character, so the run ends inside it.
                    for (std::uint32_t unit = SourceUnits::Load(in); unit < limit;
                         unit = SourceUnits::Load(in)) {
                        TargetUnits::Store(unit, out);
                        in += SourceUnits::width;
                        out += TargetUnits::width;
                    }
                }
                continue;
            }
            in += blockBytes;
            out += blockBytes / SourceUnits::width * TargetUnits::width;
        }
        while (in < stop) {
            reader.Step(in, end, out);
        }
        output.append(reinterpret_cast<const char*>(staging), static_cast<std::size_t>(out - staging));
        if constexpr (resizes) {
            sparse = stops < chunkBytes / blockBytes / 16;
            dense = crowded > tried / 2;
        }
    }
}

template <class TSource>
void ConvertFrom(std::string_view input, Charset to, std::string& output) {
    switch (to) {
        case Charset::Ascii:
            return ConvertPair<TSource, AsciiTarget>(input, output);
        case Charset::CodePage437:
            return ConvertPair<TSource, CodePage437Target>(input, output);
        case Charset::CodePage28591:
            return ConvertPair<TSource, CodePage28591Target>(input, output);
        case Charset::CodePage28592:
            return ConvertPair<TSource, CodePage28592Target>(input, output);
        case Charset::Utf8:
            return ConvertPair<TSource, Utf8Target>(input, output);
        case Charset::Utf16LE:
            return ConvertPair<TSource, Utf16Target<false>>(input, output);
        case Charset::Utf16BE:
            return ConvertPair<TSource, Utf16Target<true>>(input, output);
        case Charset::Utf32LE:
            return ConvertPair<TSource, Utf32Target<false>>(input, output);
        case Charset::Utf32BE:
            return ConvertPair<TSource, Utf32Target<true>>(input, output);
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
    switch (from) {
        case Charset::Ascii:
            return ConvertFrom<AsciiSource>(input, to, output);
        case Charset::CodePage437:
            return ConvertFrom<CodePage437Source>(input, to, output);
        case Charset::CodePage28591:
            return ConvertFrom<CodePage28591Source>(input, to, output);
        case Charset::CodePage28592:
            return ConvertFrom<CodePage28592Source>(input, to, output);
        case Charset::Utf8:
            return ConvertFrom<Utf8Source>(input, to, output);
        case Charset::Utf16LE:
            return ConvertFrom<Utf16Source<false>>(input, to, output);
        case Charset::Utf16BE:
            return ConvertFrom<Utf16Source<true>>(input, to, output);
        case Charset::Utf32LE:
            return ConvertFrom<Utf32Source<false>>(input, to, output);
        case Charset::Utf32BE:
            return ConvertFrom<Utf32Source<true>>(input, to, output);
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

TranscodeProblem Malformed(const unsigned char* sequence, std::size_t size, std::size_t offset,
                           Charset from) {
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
    return {TranscodeProblem::Reason::Unmappable, offset, codePoint,
            Prefix(offset) + name + " not in " + ToString(to)};
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

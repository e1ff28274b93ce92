#pragma once

// Blocks of code units converted at once: the fast path of Transcode for runs of characters that
// both charsets write as a single unit holding the code point itself (ASCII everywhere, Latin-1 from
// ISO 8859-1 into UTF-16, the basic plane below the surrogates between UTF-16 and UTF-32).
//
// With SSE2 (every x86_64 compiler) a block is a few vector instructions; without it (the 32-bit
// build) the same function is a plain loop, so both give the same bytes and the tests run both.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#if defined(__SSE2__)
#include <emmintrin.h>
#include <tmmintrin.h>
#endif

namespace Korv::Plurex::Unicode::detail {

/// Code units of `Width` bytes (1, 2 or 4) in one byte order.
template <std::size_t Width, bool BigEndian>
struct Units {
    static constexpr std::size_t width = Width;
    static constexpr bool bigEndian = BigEndian;

    static std::uint32_t Load(const unsigned char* bytes) noexcept {
        if constexpr (Width == 1) {
            return bytes[0];
        } else {
            // One load, and a byte swap where the host's order differs: a loop over the bytes is not
            // always merged into that.
            Word value;
            std::memcpy(&value, bytes, Width);
            return Swapped() ? Swap(value) : value;
        }
    }

    /// Writes the low `Width` bytes of `value`.
    static void Store(std::uint32_t value, unsigned char* bytes) noexcept {
        if constexpr (Width == 1) {
            bytes[0] = static_cast<unsigned char>(value);
        } else {
            auto word = static_cast<Word>(value);
            word = Swapped() ? Swap(word) : word;
            std::memcpy(bytes, &word, Width);
        }
    }

private:
    using Word = std::conditional_t<Width == 2, std::uint16_t, std::uint32_t>;

    static constexpr bool Swapped() noexcept { return BigEndian != (__BYTE_ORDER__ == __ORDER_BIG_ENDIAN__); }

    static Word Swap(Word word) noexcept {
        if constexpr (Width == 2) {
            return __builtin_bswap16(word);
        } else {
            return __builtin_bswap32(word);
        }
    }
};

/// A limit above every unit value: every unit passes.
constexpr std::uint64_t NoLimit = std::uint64_t{1} << 32;

#if defined(__SSE2__)
namespace sse2 {

inline __m128i Load(const unsigned char* bytes) noexcept {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
}

inline void Store(__m128i vector, unsigned char* bytes) noexcept {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(bytes), vector);
}

inline __m128i Swap16(__m128i vector) noexcept {
    return _mm_or_si128(_mm_slli_epi16(vector, 8), _mm_srli_epi16(vector, 8));
}

inline __m128i Swap32(__m128i vector) noexcept {
    // 0xB1: the two 16-bit halves of each 32-bit lane exchanged.
    const __m128i halves = _mm_shufflehi_epi16(_mm_shufflelo_epi16(vector, 0xB1), 0xB1);
    return Swap16(halves);
}

/// Between the given byte order and the host's (little-endian), either way.
template <std::size_t Width, bool BigEndian>
__m128i Reorder(__m128i vector) noexcept {
    if constexpr (!BigEndian || Width == 1) {
        return vector;
    } else if constexpr (Width == 2) {
        return Swap16(vector);
    } else {
        return Swap32(vector);
    }
}

/// One bit per byte (movemask) of the lanes whose unit is at or above `Limit`.
template <std::size_t Width, std::uint64_t Limit>
unsigned int AboveMask(__m128i units) noexcept {
    const __m128i zero = _mm_setzero_si128();
    if constexpr (Width == 1 && Limit == 0x80) {
        return static_cast<unsigned int>(_mm_movemask_epi8(units));  // the top bits themselves
    } else if constexpr (Width == 1) {
        const __m128i excess = _mm_subs_epu8(units, _mm_set1_epi8(static_cast<char>(Limit - 1)));
        return static_cast<unsigned int>(_mm_movemask_epi8(_mm_cmpeq_epi8(excess, zero))) ^ 0xFFFF;
    } else if constexpr (Width == 2) {
        const __m128i excess = _mm_subs_epu16(units, _mm_set1_epi16(static_cast<short>(Limit - 1)));
        return static_cast<unsigned int>(_mm_movemask_epi8(_mm_cmpeq_epi16(excess, zero))) ^ 0xFFFF;
    } else {
        // No unsigned 32-bit comparison in SSE2: flip the top bits and compare signed.
        const __m128i bias = _mm_set1_epi32(static_cast<int>(0x80000000u));
        const __m128i last = _mm_set1_epi32(static_cast<int>((Limit - 1) ^ 0x80000000u));
        return static_cast<unsigned int>(
            _mm_movemask_epi8(_mm_cmpgt_epi32(_mm_xor_si128(units, bias), last)));
    }
}

/// The 16 units of `source` (SourceWidth vectors) in DestinationWidth vectors; exact for every unit
/// that fits the narrower width.
template <std::size_t SourceWidth, std::size_t DestinationWidth>
void Resize(const __m128i* source, __m128i* destination) noexcept {
    const __m128i zero = _mm_setzero_si128();
    if constexpr (SourceWidth == DestinationWidth) {
        for (std::size_t i = 0; i < SourceWidth; ++i) {
            destination[i] = source[i];
        }
    } else if constexpr (SourceWidth == 1 && DestinationWidth == 2) {
        destination[0] = _mm_unpacklo_epi8(source[0], zero);
        destination[1] = _mm_unpackhi_epi8(source[0], zero);
    } else if constexpr (SourceWidth == 1 && DestinationWidth == 4) {
        const __m128i low = _mm_unpacklo_epi8(source[0], zero);
        const __m128i high = _mm_unpackhi_epi8(source[0], zero);
        destination[0] = _mm_unpacklo_epi16(low, zero);
        destination[1] = _mm_unpackhi_epi16(low, zero);
        destination[2] = _mm_unpacklo_epi16(high, zero);
        destination[3] = _mm_unpackhi_epi16(high, zero);
    } else if constexpr (SourceWidth == 2 && DestinationWidth == 1) {
        destination[0] = _mm_packus_epi16(source[0], source[1]);
    } else if constexpr (SourceWidth == 2 && DestinationWidth == 4) {
        destination[0] = _mm_unpacklo_epi16(source[0], zero);
        destination[1] = _mm_unpackhi_epi16(source[0], zero);
        destination[2] = _mm_unpacklo_epi16(source[1], zero);
        destination[3] = _mm_unpackhi_epi16(source[1], zero);
    } else if constexpr (SourceWidth == 4 && DestinationWidth == 1) {
        destination[0] =
            _mm_packus_epi16(_mm_packs_epi32(source[0], source[1]), _mm_packs_epi32(source[2], source[3]));
    } else {
        // 4 to 2: the signed pack saturates, so each lane first becomes its low 16 bits sign-extended.
        __m128i low[4];
        for (std::size_t i = 0; i < 4; ++i) {
            low[i] = _mm_srai_epi32(_mm_slli_epi32(source[i], 16), 16);
        }
        destination[0] = _mm_packs_epi32(low[0], low[1]);
        destination[1] = _mm_packs_epi32(low[2], low[3]);
    }
}

}  // namespace sse2
#endif

/// The bytes of source a block holds: 64, 32 or 16 units.
constexpr std::size_t BlockBytes = 64;

/// Converts the Bytes / Source::width units (Bytes a multiple of 16 * Source::width, at most 64) at `in` into
/// units of `Destination` at `out`, exactly for those below `Limit`, and returns a mask of the others: for
/// unit k at or above `Limit`, bit k * Source::width is set (with SSE2, the bits of the unit's other bytes
/// too; 0: the whole block converted). Reads the whole block and writes all its units, whatever their values:
/// what is written for a unit the mask names is to be overwritten.
template <class Source, class Destination, std::uint64_t Limit, std::size_t Bytes = BlockBytes>
std::uint64_t ConvertBlock(const unsigned char* in, unsigned char* out) noexcept {
    constexpr std::size_t sourceWidth = Source::width;
    constexpr std::size_t destinationWidth = Destination::width;
    constexpr bool checked = Limit < (std::uint64_t{1} << (8 * sourceWidth));
    static_assert(Bytes % (16 * sourceWidth) == 0 && Bytes <= 64);
#if defined(__SSE2__)
    // 16 units at a time: sourceWidth vectors in, destinationWidth vectors out.
    std::uint64_t above = 0;
#pragma GCC unroll 4
    for (std::size_t part = 0; part < Bytes / (16 * sourceWidth); ++part) {
        __m128i raw[sourceWidth];
        __m128i units[sourceWidth];
#pragma GCC unroll 4
        for (std::size_t i = 0; i < sourceWidth; ++i) {
            raw[i] = sse2::Load(in + 16 * i);
            units[i] = sse2::Reorder<sourceWidth, Source::bigEndian>(raw[i]);
            if constexpr (checked) {
                above |= std::uint64_t{sse2::AboveMask<sourceWidth, Limit>(units[i])}
                         << (16 * (part * sourceWidth + i));
            }
        }
        if constexpr (sourceWidth == destinationWidth && Source::bigEndian == Destination::bigEndian) {
            for (std::size_t i = 0; i < sourceWidth; ++i) {
                sse2::Store(raw[i], out + 16 * i);
            }
        } else {
            __m128i converted[destinationWidth];
            sse2::Resize<sourceWidth, destinationWidth>(units, converted);
            for (std::size_t i = 0; i < destinationWidth; ++i) {
                sse2::Store(sse2::Reorder<destinationWidth, Destination::bigEndian>(converted[i]),
                            out + 16 * i);
            }
        }
        in += 16 * sourceWidth;
        out += 16 * destinationWidth;
    }
    return above;
#else
    std::uint64_t above = 0;
    for (std::size_t i = 0; i < Bytes / sourceWidth; ++i) {
        const std::uint32_t unit = Source::Load(in + i * sourceWidth);
        Destination::Store(unit, out + i * destinationWidth);
        if constexpr (checked) {
            if (unit >= Limit) {
                above |= std::uint64_t{1} << (i * sourceWidth);
            }
        }
    }
    return above;
#endif
}

/// What CopyWellFormedUtf8 copied: how many bytes (0: nothing), and whether all 16 were ASCII.
struct Copied {
    std::size_t bytes;
    bool ascii;
};

#if defined(__SSE2__)
namespace sse2 {

/// The bytes of `bytes` (as signed values) from `low` to `high`, inclusive; `high` below 127.
inline __m128i Between(__m128i bytes, int low, int high) noexcept {
    return _mm_and_si128(_mm_cmpgt_epi8(bytes, _mm_set1_epi8(static_cast<char>(low - 1))),
                         _mm_cmplt_epi8(bytes, _mm_set1_epi8(static_cast<char>(high + 1))));
}

inline __m128i IsContinuation(__m128i bytes) noexcept {
    return _mm_cmpeq_epi8(_mm_and_si128(bytes, _mm_set1_epi8(static_cast<char>(0xC0))),
                          _mm_set1_epi8(static_cast<char>(0x80)));
}

/// The length of the prefix of 16 bytes made of whole sequences: up to the first byte `wrong` names
/// (or all 16), less a sequence whose lead byte (`leads`; `leads3` for three-byte ones) is one or two
/// bytes before that and which therefore ends there or after it.
inline std::size_t WholePrefix(unsigned int wrong, unsigned int leads, unsigned int leads3) noexcept {
    const auto first = static_cast<unsigned int>(__builtin_ctz(wrong | 0x10000u));
    if (first >= 1 && (leads >> (first - 1) & 1) != 0) {
        return first - 1;
    }
    if (first >= 2 && (leads3 >> (first - 2) & 1) != 0) {
        return first - 2;
    }
    return first;
}

}  // namespace sse2
#endif

/// For UTF-8 into UTF-8: copies the 16 bytes at `in` to `out`, and counts as copied the whole
/// sequences at their start that decoding and encoding again give back unchanged (ASCII, two-byte
/// sequences from 0xC2, three-byte ones from 0xE1 but 0xED). What is written beyond is to be
/// overwritten. Without SSE2, 16 ASCII bytes or nothing.
inline Copied CopyWellFormedUtf8(const unsigned char* in, unsigned char* out) noexcept {
#if defined(__SSE2__)
    const __m128i bytes = sse2::Load(in);
    sse2::Store(bytes, out);
    // Signed bytes: ASCII is 0 to 127, 0xC2 to 0xDF is -62 to -33, 0xE1 to 0xEF is -31 to -17.
    const __m128i ascii = _mm_cmpgt_epi8(bytes, _mm_set1_epi8(-1));
    const __m128i lead2 = sse2::Between(bytes, -62, -33);
    const __m128i lead3 = _mm_andnot_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(static_cast<char>(0xED))),
                                           sse2::Between(bytes, -31, -17));
    const __m128i leads = _mm_or_si128(lead2, lead3);
    const __m128i continuation = sse2::IsContinuation(bytes);
    const __m128i expected = _mm_or_si128(_mm_slli_si128(leads, 1), _mm_slli_si128(lead3, 2));
    const __m128i known = _mm_or_si128(_mm_or_si128(ascii, leads), continuation);
    const auto wrong = static_cast<unsigned int>(_mm_movemask_epi8(known) ^ 0xFFFF) |
                       static_cast<unsigned int>(_mm_movemask_epi8(_mm_xor_si128(continuation, expected)));
    const auto leadBits = static_cast<unsigned int>(_mm_movemask_epi8(leads));
    const auto lead3Bits = static_cast<unsigned int>(_mm_movemask_epi8(lead3));
    // The common case as a branch of its own: predicted, it lets the next block start before this
    // one's length is known.
    const std::size_t whole = wrong == 0 && (leadBits & 0x8000) == 0 && (lead3Bits & 0x4000) == 0
                                  ? 16
                                  : sse2::WholePrefix(wrong, leadBits, lead3Bits);
    return {whole, _mm_movemask_epi8(ascii) == 0xFFFF};
#else
    // ASCII alone, so that text of it goes back to full blocks.
    std::memcpy(out, in, 16);
    for (std::size_t i = 0; i < 16; ++i) {
        if (in[i] >= 0x80) {
            return {0, false};
        }
    }
    return {16, true};
#endif
}

#if defined(__SSE2__)
namespace ssse3 {

/// Whether the processor has SSSE3 (its byte shuffle is what Utf16IntoUtf8 compacts with).
inline bool Available() noexcept {
    static const bool available = __builtin_cpu_supports("ssse3");
    return available;
}

/// For each pattern of 8 UTF-16 units (bit k set: unit k is ASCII) made into 16-bit lanes of UTF-8
/// (the character or the lead byte low, the continuation byte high), the bytes kept, in order, and
/// how many.
struct Compaction {
    unsigned char shuffle[256][16];
    unsigned char length[256];
};

constexpr Compaction MakeCompaction() noexcept {
    Compaction compaction{};
    for (unsigned int ascii = 0; ascii < 256; ++ascii) {
        unsigned int kept = 0;
        for (unsigned int lane = 0; lane < 8; ++lane) {
            compaction.shuffle[ascii][kept++] = static_cast<unsigned char>(2 * lane);
            if ((ascii >> lane & 1) == 0) {
                compaction.shuffle[ascii][kept++] = static_cast<unsigned char>(2 * lane + 1);
            }
        }
        // The bytes after those kept are written past the end: whatever they are.
        compaction.length[ascii] = static_cast<unsigned char>(kept);
    }
    return compaction;
}

inline constexpr Compaction compaction = MakeCompaction();

/// UTF-16 in the given byte order into UTF-8, 8 units at a time while all 8 are below 0x800 and 16
/// bytes remain before `stop`; stops at the first 8 that are not. Writes up to 8 bytes beyond what
/// it keeps. Only to be called where Available(); never inlined, since its callers are flattened and
/// code for SSSE3 cannot be part of theirs.
template <bool BigEndian>
[[gnu::target("ssse3"), gnu::noinline]] void Utf16IntoUtf8(const unsigned char*& in,
                                                           const unsigned char* stop,
                                                           unsigned char*& out) noexcept {
    const __m128i zero = _mm_setzero_si128();
    const __m128i swap = _mm_setr_epi8(1, 0, 3, 2, 5, 4, 7, 6, 9, 8, 11, 10, 13, 12, 15, 14);
    const unsigned char* from = in;
    unsigned char* to = out;
    while (stop - from >= 16) {
        __m128i units = sse2::Load(from);
        if constexpr (BigEndian) {
            units = _mm_shuffle_epi8(units, swap);
        }
        const __m128i high = _mm_and_si128(units, _mm_set1_epi16(static_cast<short>(0xFF80)));
        if (_mm_movemask_epi8(_mm_cmpeq_epi16(high, zero)) == 0xFFFF) {
            _mm_storel_epi64(reinterpret_cast<__m128i*>(to), _mm_packus_epi16(units, units));
            from += 16;
            to += 8;
            continue;
        }
        const __m128i beyond = _mm_and_si128(units, _mm_set1_epi16(static_cast<short>(0xF800)));
        if (_mm_movemask_epi8(_mm_cmpeq_epi16(beyond, zero)) != 0xFFFF) {
            break;
        }
        // Each lane below 0x800: 110xxxxx 10xxxxxx as two bytes, or the ASCII character alone.
        const __m128i ascii = _mm_cmpeq_epi16(high, zero);
        const __m128i lead = _mm_or_si128(_mm_srli_epi16(units, 6), _mm_set1_epi16(0xC0));
        const __m128i trail =
            _mm_slli_epi16(_mm_or_si128(_mm_and_si128(units, _mm_set1_epi16(0x3F)), _mm_set1_epi16(0x80)), 8);
        const __m128i lanes =
            _mm_or_si128(_mm_and_si128(ascii, units), _mm_andnot_si128(ascii, _mm_or_si128(lead, trail)));
        const auto pattern = static_cast<unsigned int>(_mm_movemask_epi8(_mm_packs_epi16(ascii, zero)));
        sse2::Store(_mm_shuffle_epi8(lanes, sse2::Load(compaction.shuffle[pattern])), to);
        from += 16;
        to += compaction.length[pattern];
    }
    in = from;
    out = to;
}

}  // namespace ssse3
#endif

/// The index of the first unit a non-zero ConvertBlock mask names.
template <class Source>
std::size_t FirstUnit(std::uint64_t mask) noexcept {
    return static_cast<std::size_t>(__builtin_ctzll(mask)) / Source::width;
}

}  // namespace Korv::Plurex::Unicode::detail

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/timepoints/TimeCode.h"

#include <cstdint>
#include <optional>

namespace Korv::Plurex::Data::Clips {

/// The packed 290-byte clip record that servers and clients exchange. Multi-byte numbers are
/// little-endian, or big-endian when `bigEndian` is set; texts and raw bytes travel as they are
/// stored, never reordered. Stateless and allocation-free (except for an exception's message).
///
/// The record, by byte offset (widths in bytes, or in bits where marked):
///
///     0 tag 1792 (16)    2 texts 1-4 (4 x 8)   34 text flags     35 name (24)     59 var-id (32)
///     91 keywords (5 x 12)    151 raw bytes (8)    159 bool flags    160 attributes 1-7 (1 each)
///     167 attribute 8 (16)    169 attributes 9-12    173 video standard    174 attributes 13-18
///     180 in, short-in, short-out, out positions (low 32 bits each)
///     196 value 1 (32)   200 short value 1 (16)   202 value 2   206 value 3   210 short value 2 (16)
///     212 value 4   216 byte value (8)   217 value 5   221 in-bound Tod timecode (64)
///     229 in-bound user timecode (64)   237 64-bit value   245, 260, 275 essences (15 each)   290 end
class PLUREXDATA_API Serializer {
public:
    Serializer() = delete;

    static constexpr unsigned int RecordSize = 290;    ///< bytes of a whole record
    static constexpr unsigned int EssenceSize = 15;    ///< bytes of one essence
    static constexpr unsigned int TimecodeSize = 8;    ///< bytes of one timecode
    static constexpr unsigned short RecordTag = 1792;  ///< written at offset 0; never checked on load

    /// Writes the record and returns the bytes written: 290, or 282 (274) when one (both) of the
    /// in-bound timecodes has a rate other than 50/1 and 60/1. Such a timecode is left out and every
    /// later item written 8 bytes earlier, the tail of the buffer left as it was: a reader sees shifted
    /// fields, as existing readers do. Numbers wider than their field are cut to its low bits. Returns
    /// 0 and writes nothing for a null buffer or a size below 290.
    static unsigned int SaveToBuffer(const Clip& clip, unsigned char* buffer, unsigned int size,
                                     bool bigEndian) noexcept;

    /// Reads a record into `clip` and returns the bytes consumed (290); 0, with the clip unchanged,
    /// for a null buffer or a size below 290. Bytes 0 and 1 are not examined. In this order: texts and
    /// their flags; raw bytes; the 3D, dual and twin-rec flags, and the legacy drop flag only if the
    /// clip is Ntsc before this load; attributes 1 to 12; the standard through VideoStandard();
    /// attributes 13 to 18, positions (zero-extended) and values; the two in-bound timecodes through
    /// their setters; the 64-bit value and the essences, through the essences' validating setters.
    /// Throws, leaving every earlier field loaded: std::invalid_argument("Timecode Rate inconsistent
    /// with Clip Rate") for a timecode whose rate is not the clip's; std::out_of_range("New
    /// TotalSample ...") from LoadTimecodeFromBuffer.
    static unsigned int LoadFromBuffer(const unsigned char* buffer, unsigned int size, Clip& clip,
                                       bool bigEndian);

    /// LoadFromBuffer on a clip first set to the record's own video standard (byte 173) through
    /// VideoStandard(), as a client already running that standard would hold it: a record saved from an
    /// Ntsc clip then reads back with its legacy drop flag, whatever standard `clip` had. 0, with the
    /// clip unchanged, for a null buffer or a size below 290; throws as LoadFromBuffer does.
    static unsigned int LoadWithRecordStandard(const unsigned char* buffer, unsigned int size, Clip& clip,
                                               bool bigEndian);
    /// The byte order a record's tag (bytes 0 and 1) says it is written in: false (little-endian) for
    /// 0x00 0x07, true (big-endian) for 0x07 0x00. Empty for a null buffer, a size below 2, or any other
    /// two bytes: no clip record starts so. The loads themselves never look at the tag.
    static std::optional<bool> DetectByteOrder(const unsigned char* buffer, unsigned int size) noexcept;

    /// 15 bytes: the flag, field 2, metadata, field 4 and the three compression fields one byte each,
    /// then the four values in 16 bits. The type is not written. 0 for a null buffer or a size below 15.
    static unsigned int SaveEssenceToBuffer(const Clip::Essence& essence, unsigned char* buffer,
                                            unsigned int size, bool bigEndian) noexcept;
    /// The mirror of the above: flag, field 2 and field 4 are stored as read; the metadata and the
    /// compression fields go through the essence's setters, which keep a value that does not suit the
    /// essence's type; the values are zero-extended.
    static unsigned int LoadEssenceFromBuffer(const unsigned char* buffer, unsigned int size,
                                              Clip::Essence& essence, bool bigEndian) noexcept;

    /// 64 bits: the count in bits 0 to 61, bit 62 set for 60/1 (clear for 50/1), bit 63 the drop flag
    /// (60/1 only). 0, nothing written, for a null buffer, a size below 8 or any other rate.
    static unsigned int SaveTimecodeToBuffer(const TimePoints::TimeCode& timeCode, unsigned char* buffer,
                                             unsigned int size, bool bigEndian) noexcept;
    /// The count added to 00:00:00:00 on 1 January 1900 at the rate of bit 62 (drop-frame for bit 63
    /// at 60/1), flag byte 0. A negative sum throws std::out_of_range("New TotalSample <sum> must be
    /// positive (after 1/1/1900) "). 0, with `timeCode` untouched, for a null buffer or a size below 8.
    static unsigned int LoadTimecodeFromBuffer(const unsigned char* buffer, unsigned int size,
                                               TimePoints::TimeCode& timeCode, bool bigEndian);

    /// The 64-bit timecode word of the record, before byte order is applied: what SaveTimecodeToBuffer
    /// writes. Throws std::invalid_argument("Timecode rate must be 50/1 or 60/1") for any other rate.
    static std::uint64_t ToTimecodeWord(const TimePoints::TimeCode& timeCode);
    /// The timecode of a 64-bit timecode word, as LoadTimecodeFromBuffer reads it, with its exception.
    static TimePoints::TimeCode FromTimecodeWord(std::uint64_t word);
    /// The value, byte-reversed when `swap` is set.
    ///@{
    static unsigned short Swap16(unsigned short value, bool swap) noexcept;
    static unsigned int Swap32(unsigned int value, bool swap) noexcept;
    static unsigned long long Swap64(unsigned long long value, bool swap) noexcept;
    ///@}

    /// The text flags byte: bit 0 name, bit 1 var-id, bits 2 to 6 keywords 0 to 4 are UTF-16.
    static unsigned char Utf16Flag(const Clip& clip) noexcept;
    /// The bool flags byte: bit 0 3D, bit 1 dual, bit 2 twin-rec, bit 3 legacy timecode drop.
    static unsigned char BoolFlag(const Clip& clip) noexcept;

    /// The name is UTF-16: bit 0 of the text flags byte.
    static bool IsNameUtf16(unsigned char flags) noexcept;
    /// The var-id is UTF-16: bit 1 of the text flags byte.
    static bool IsVarIdUtf16(unsigned char flags) noexcept;
    /// Keyword k (0 to 4) is UTF-16: mask 0x04 << k. False for any other k.
    static bool IsKeywordUtf16(unsigned char flags, int k) noexcept;
    /// Bit 0 of the bool flags byte.
    static bool Is3D(unsigned char flags) noexcept;
    /// Bit 1 of the bool flags byte.
    static bool IsDual(unsigned char flags) noexcept;
    /// Bit 2 of the bool flags byte.
    static bool IsTwinRec(unsigned char flags) noexcept;
    /// Bit 3 of the bool flags byte.
    static bool IsLegacyTimecodeDrop(unsigned char flags) noexcept;
};

}  // namespace Korv::Plurex::Data::Clips

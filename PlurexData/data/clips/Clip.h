#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/AfdAspectRatio.h"
#include "PlurexData/data/AlphaArchiveStatus.h"
#include "PlurexData/data/ArchiveStatus.h"
#include "PlurexData/data/AudioConfiguration.h"
#include "PlurexData/data/Camera.h"
#include "PlurexData/data/CodedFrameAspectRation.h"
#include "PlurexData/data/FillAndKeyStatus.h"
#include "PlurexData/data/HdrProfile.h"
#include "PlurexData/data/PrimaryTimecode.h"
#include "PlurexData/data/Rating.h"
#include "PlurexData/data/SourceEngine.h"
#include "PlurexData/data/TimecodeType.h"
#include "PlurexData/data/TrainStatus.h"
#include "PlurexData/data/UhdDivisionMode.h"
#include "PlurexData/data/UserProtect.h"
#include "PlurexData/data/VideoFormat.h"
#include "PlurexData/data/VideoStandard.h"
#include "PlurexData/data/WideColorGamut.h"
#include "PlurexData/data/clips/AudioCompressionType.h"
#include "PlurexData/data/clips/Metadata.h"
#include "PlurexData/data/clips/Type.h"
#include "PlurexData/data/clips/VideoCompressionInfo.h"
#include "PlurexData/data/clips/VideoCompressionType.h"
#include "PlurexData/timepoints/Rate.h"
#include "PlurexData/timepoints/TimeCode.h"

#include <cstddef>
#include <cstdint>

namespace Korv::Plurex::Data::Clips {

/// One clip on a server: texts, flags, attributes, sample positions, in-bound timecodes and three
/// essences. A plain value with public fields, kept field for field in step with the 290-byte record
/// that Serializer reads and writes; the comments give each field's record offset and width.
/// Attributes travel as their low 8 bits (attribute 8 as 16 bits) and keep the record's numbering.
/// Assigning the fields directly bypasses the checks of the timecode setters and of VideoStandard().
class PLUREXDATA_API Clip {
public:
    /// A text of `N` bytes as the record carries it: 8-bit characters, or N / 2 UTF-16 code units
    /// when `unicode` is set (the clip never converts between the two), then two zero terminators.
    template <std::size_t N>
    struct Text {
        /// `N`: the bytes of text the record carries, terminators not counted.
        static constexpr std::size_t Size = N;

        bool unicode;      ///< the text is UTF-16
        char text[N + 2];  ///< the text, then two zero terminators
    };

    /// One compressed stream of the clip. Every field is 32 bits wide here; the record keeps the
    /// seven after the type in one byte each and the four values in 16 bits.
    class PLUREXDATA_API Essence {
    public:
        /// Every field zero (an Intra type with nothing else set).
        Essence() noexcept;
        /// Every field zero, then Clear(type).
        explicit Essence(Essences::Type type) noexcept;

        /// Sets the type, zeroes the flag, field 2 and the four values, and for types 0 to 2 sets
        /// the metadata, field 4 and the three compression fields to that type's defaults. Any
        /// other type leaves those five fields as they were.
        void Clear(Essences::Type type) noexcept;

        /// Each stores the value and returns true only when it suits the type (below); otherwise
        /// returns false and keeps the field. An essence of any other type accepts nothing.
        ///
        /// | Setter               | Intra   | LongGop | LowRes |
        /// |----------------------|---------|---------|--------|
        /// | Metadata             | 0 to 2  | 3       | 4      |
        /// | VideoCompressionType | 0 to 17 | 18      | 19, 20 |
        /// | AudioCompressionType | 0       | 1       | 2      |
        /// | VideoCompressionInfo | 0 to 8  | 9       | 10     |
        ///@{
        bool Metadata(Essences::Metadata value) noexcept;
        bool VideoCompressionType(Essences::VideoCompressionType value) noexcept;
        bool AudioCompressionType(Essences::AudioCompressionType value) noexcept;
        bool VideoCompressionInfo(Essences::VideoCompressionInfo value) noexcept;
        ///@}

        /// All twelve fields, the flag compared as a boolean.
        ///@{
        bool operator==(const Essence& other) const noexcept;
        bool operator!=(const Essence& other) const noexcept { return !(*this == other); }
        ///@}

        Essences::Type type;  ///< not in the record: the essence's slot implies it
        std::int32_t flag;    ///< compared as a boolean
        std::int32_t field2;  ///< carried as it arrives
        /// Set through Metadata(), which refuses a value that does not suit the type.
        Essences::Metadata metadata;
        std::int32_t field4;  ///< carried as it arrives; Clear sets it per type
        /// Set through the setters of the same names, which refuse a value that does not suit the type.
        ///@{
        Essences::VideoCompressionType videoCompressionType;
        Essences::AudioCompressionType audioCompressionType;
        Essences::VideoCompressionInfo videoCompressionInfo;
        ///@}
        /// Values 1 to 4, carried as they arrive; they travel as 16 bits.
        ///@{
        std::int32_t value1;
        std::int32_t value2;
        std::int32_t value3;
        std::int32_t value4;
        ///@}
    };

    /// The characters of texts 1 to 4, without the NUL.
    static constexpr std::size_t TextLength = 8;
    /// The number of keywords.
    static constexpr std::size_t KeywordCount = 5;

    /// The defaults: texts of spaces (not unicode), zero raw bytes and flags, attributes 0 but
    /// attribute 13 = 2, Pal, positions 0, short value 2 = 65535, byte value 1, both in-bound
    /// timecodes DefaultTimecode(), the 64-bit value 0x8000000000000001 (not set) and the essences
    /// cleared as Intra, LongGop and LowRes.
    Clip() noexcept;

    /// 00:00:00:00 on 1 January 1900 at 50/1, built once by TimeCodeBuilder; should the builder refuse
    /// it, 50/1 with count 0, no drop and the flag byte 1.
    static const TimePoints::TimeCode& DefaultTimecode() noexcept;

    /// The clip rate: 50/1 for Pal, 60/1 for any other standard (Ntsc and Unknown alike).
    const TimePoints::Rate& GetRate() const noexcept;

    /// Does nothing when `value` is the current standard. Otherwise stores it, rebuilds both in-bound
    /// timecodes at the new rate and, for Pal, clears the legacy drop flag. Never throws.
    void VideoStandard(Clips::VideoStandard value) noexcept;

    /// Store `timeCode` itself. std::invalid_argument("Timecode Rate inconsistent with Clip Rate")
    /// when its rate is not the clip rate.
    ///@{
    void InBoundTodTimecode(const TimePoints::TimeCode& timeCode);
    void InBoundUserTimecode(const TimePoints::TimeCode& timeCode);
    ///@}
    /// Store in the short in, short out or out position the distance of `timeCode` from the in-bound
    /// Tod (or user) timecode, added to the in position; no wrap at midnight. Throw as above for a rate
    /// that is not the clip rate, then std::out_of_range("TimeCode Incompatibilty") when the rate, drop
    /// flag or flag byte differs from the in-bound timecode's.
    ///@{
    void ShortInBoundTodTimecode(const TimePoints::TimeCode& timeCode);
    void ShortOutBoundTodTimecode(const TimePoints::TimeCode& timeCode);
    void OutBoundTodTimecode(const TimePoints::TimeCode& timeCode);
    void ShortInBoundUserTimecode(const TimePoints::TimeCode& timeCode);
    void ShortOutBoundUserTimecode(const TimePoints::TimeCode& timeCode);
    void OutBoundUserTimecode(const TimePoints::TimeCode& timeCode);
    ///@}

    /// The setters above, false instead of any exception.
    ///@{
    bool TrySetInBoundTodTimecode(const TimePoints::TimeCode& timeCode) noexcept;
    bool TrySetInBoundUserTimecode(const TimePoints::TimeCode& timeCode) noexcept;
    bool TrySetShortInBoundTodTimecode(const TimePoints::TimeCode& timeCode) noexcept;
    bool TrySetShortOutBoundTodTimecode(const TimePoints::TimeCode& timeCode) noexcept;
    bool TrySetOutBoundTodTimecode(const TimePoints::TimeCode& timeCode) noexcept;
    bool TrySetShortInBoundUserTimecode(const TimePoints::TimeCode& timeCode) noexcept;
    bool TrySetShortOutBoundUserTimecode(const TimePoints::TimeCode& timeCode) noexcept;
    bool TrySetOutBoundUserTimecode(const TimePoints::TimeCode& timeCode) noexcept;
    ///@}

    /// Equal keywords, raw bytes, texts 1 to 4 (by their NUL-terminated length and content), name,
    /// var-id, flags, attribute 1 as a boolean, the other attributes and the standard, positions and
    /// values, in-bound timecodes, 64-bit value and essences, in that order. Attributes 2 and 5 and
    /// values 2 and 4 are left out on purpose: the archive states change as the archive works, and
    /// neither they nor those two values make two clips different.
    ///@{
    bool operator==(const Clip& other) const noexcept;
    bool operator!=(const Clip& other) const noexcept { return !(*this == other); }
    ///@}

    char text1[TextLength + 1];       ///< 2: 8 bytes, the ninth is the NUL
    char text2[TextLength + 1];       ///< 10
    char text3[TextLength + 1];       ///< 18
    char text4[TextLength + 1];       ///< 26
    Text<24> name;                    ///< 35; the unicode flags of name, var-id and keywords: 34
    Text<32> varId;                   ///< 59
    Text<12> keywords[KeywordCount];  ///< 91, 12 bytes each
    unsigned char rawBytes[8];        ///< 151
    bool is3D;                        ///< 159 bit 0
    bool isDual;                      ///< 159 bit 1
    bool isTwinRec;                   ///< 159 bit 2
    bool isLegacyTimecodeDrop;        ///< 159 bit 3
    // The attributes, numbered as in the record.
    std::int32_t attribute1;                   ///< 160; a flag compared as a boolean, set by Train
    Clips::ArchiveStatus attribute2;           ///< 161
    Clips::Camera attribute3;                  ///< 162
    Clips::VideoFormat attribute4;             ///< 163
    Clips::AlphaArchiveStatus attribute5;      ///< 164
    Clips::AudioConfiguration attribute6;      ///< 165
    Clips::TimecodeType attribute7;            ///< 166
    Clips::UserProtect attribute8;             ///< 167, 16 bits: the low 16 protection bits
    Clips::PrimaryTimecode attribute9;         ///< 169
    Clips::TrainStatus attribute10;            ///< 170
    Clips::Rating attribute11;                 ///< 171
    Clips::FillAndKeyStatus attribute12;       ///< 172
    Clips::VideoStandard videoStandard;        ///< 173; VideoStandard() keeps the timecodes in step
    Clips::WideColorGamut attribute13;         ///< 174; 2 (Unknown) by default
    Clips::HdrProfile attribute14;             ///< 175
    Clips::AfdAspectRatio attribute15;         ///< 176
    Clips::CodedFrameAspectRatio attribute16;  ///< 177
    Clips::UhdDivisionMode attribute17;        ///< 178
    Clips::SourceEngine attribute18;           ///< 179
    std::int64_t inPosition;                   ///< 180, low 32 bits
    std::int64_t shortInPosition;              ///< 184
    std::int64_t shortOutPosition;             ///< 188
    std::int64_t outPosition;                  ///< 192
    std::int32_t value1;                       ///< 196
    std::uint16_t shortValue1;                 ///< 200
    std::int32_t value2;                       ///< 202
    std::int32_t value3;                       ///< 206
    std::uint16_t shortValue2;                 ///< 210
    std::int32_t value4;                       ///< 212
    std::int32_t byteValue;                    ///< 216, low 8 bits
    std::int32_t value5;                       ///< 217
    TimePoints::TimeCode inBoundTodTimecode;   ///< 221
    TimePoints::TimeCode inBoundUserTimecode;  ///< 229
    std::int64_t value64;                      ///< 237
    Essence essences[3];                       ///< 245, 260, 275: 15 bytes each
};

}  // namespace Korv::Plurex::Data::Clips

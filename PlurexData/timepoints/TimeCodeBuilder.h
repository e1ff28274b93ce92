#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/timepoints/Rate.h"
#include "PlurexData/timepoints/TimeCode.h"
#include "PlurexData/timepoints/TimeCodeFields.h"

#include <optional>

namespace Korv::TimePoints {

/// The calendar and clock fields from which a timecode is built. The fields are kept as given; the
/// checks run when the builder is asked to validate or to build.
class PLUREXDATA_API TimeCodeBuilder {
public:
    /// Keeps the fields as given; `sample` is the frame within the second. Nothing is checked before
    /// IsValidToBuildWithexception or Build.
    TimeCodeBuilder(int year, int month, int day, int hour, int minute, int second, int sample,
                    const Rate& rate, bool drop = false, unsigned char flag = 0) noexcept;
    /// The same from a TimeCodeFields.
    TimeCodeBuilder(const TimeCodeFields& fields, const Rate& rate, bool drop = false,
                    unsigned char flag = 0) noexcept;

    /// The builder whose Build gives `timeCode` back exactly (rate, count, drop and flag byte): its
    /// date, time of day and frame, drop-frame counting included. A negative sample given to a builder
    /// counts back into the second before, so the fields come back with the sample from 0, the
    /// second earlier. Throws std::out_of_range for a timecode that no builder makes, naming the
    /// first reason in this order: "Denominator <d> must be between equals to 1", "Rate <n> / 1 is not
    /// positive", "TotalSample <count> is negative", "Rate <n> / 1 is not compatible with drop TC
    /// format" (drop-frame at a rate other than 30 and 60), "Sample <frame> does not fit in 32 bits"
    /// (a frame number no int holds, at a rate above 2^31) and "year <year> must be between 1900 and
    /// 2261".
    static TimeCodeBuilder FromTimeCode(const TimeCode& timeCode);
    /// FromTimeCode, empty instead of throwing.
    static std::optional<TimeCodeBuilder> TryFromTimeCode(const TimeCode& timeCode) noexcept;

    /// The fields as given.
    TimeCodeFields GetFields() const noexcept;
    /// The rate as given.
    const Rate& GetRate() const noexcept { return rate_; }
    /// Whether a drop-frame timecode is to be built.
    bool IsDropFrame() const noexcept { return drop_; }
    /// The flag byte passed on to the timecode.
    unsigned char GetFlag() const noexcept { return flag_; }

    /// True when the fields can be built into a timecode; otherwise throws std::out_of_range naming
    /// the first field that fails, in this order: year (1900 to 2261), month, day of that month,
    /// hour, minute, second, rate denominator (must be 1), sample (below the rate numerator), then
    /// for a drop-frame timecode the dropped frame numbers and the rate (30/1 or 60/1). Never false.
    bool IsValidToBuildWithexception() const;

    /// Validates as above, then counts the samples from 1 January 1900 00:00:00 (sample 0) at the
    /// rate. A drop-frame timecode leaves out the frame numbers that do not exist: 2 per minute at 30,
    /// 4 at 60, none in the minutes that are multiples of ten. The flag byte is passed on. A count
    /// that would be negative (a negative sample at the very start, or a rate that is not positive)
    /// or would not fit in 64 bits throws std::out_of_range.
    TimeCode Build() const;

private:
    int year_;
    int month_;
    int day_;
    int hour_;
    int minute_;
    int second_;
    int sample_;
    Rate rate_;
    bool drop_;
    unsigned char flag_;
};

}  // namespace Korv::TimePoints

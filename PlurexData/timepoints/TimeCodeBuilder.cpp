#include "PlurexData/timepoints/TimeCodeBuilder.h"

#include "PlurexData/timepoints/CalendarTools.h"

#include <climits>
#include <cstdarg>
#include <cstdio>
#include <stdexcept>

namespace Korv::TimePoints {

namespace {

constexpr int firstYear = 1900;
constexpr int lastYear = 2261;

[[noreturn]] void Fail(const char* format, ...) __attribute__((format(printf, 1, 2)));

void Fail(const char* format, ...) {
    char message[160];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(message, sizeof message, format, arguments);
    va_end(arguments);
    throw std::out_of_range(message);
}

// Why a timecode has no builder; None when it has one.
enum class SplitFailure { None, Denominator, Rate, Negative, DropRate, Sample, Year };

// The civil date of a day count from 1 January 1900 (proleptic Gregorian, days >= 0): the 400-year
// cycle split of the civil-from-days algorithm, on an era that starts on 1 March of year 0. The year
// is wide: a count far past 2261 must still name its year in the message.
void DateFromDays(long long days, long long& year, int& month, int& day) noexcept {
    // 1 January 1900 is day 693901 after 1 March of year 0.
    const long long z = days + 693901;
    const long long era = z / 146097;
    const long long dayOfEra = z - era * 146097;
    const long long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long long shiftedMonth = (5 * dayOfYear + 2) / 153;  // 0 is March
    month = static_cast<int>(shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9);
    year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    day = static_cast<int>(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
}

// The fields TimeCodeBuilder builds `timeCode` from. On failure `fields.sample` or `year` hold the
// value the message names.
SplitFailure Split(const TimeCode& timeCode, TimeCodeFields& fields, long long& year) noexcept {
    const long long rate = timeCode.GetRate().GetNumerator();
    const long long count = timeCode.GetTotalSample();
    if (timeCode.GetRate().GetDenominator() != 1) {
        return SplitFailure::Denominator;
    }
    if (rate <= 0) {
        return SplitFailure::Rate;
    }
    if (count < 0) {
        return SplitFailure::Negative;
    }
    long long minutes = 0;
    long long second = 0;
    long long sample = 0;
    if (timeCode.IsDropFrame()) {
        if (rate != 30 && rate != 60) {
            return SplitFailure::DropRate;
        }
        // Every minute but the tenth leaves out its first `dropped` labels, which the count skips.
        const long long dropped = rate / 15;
        const long long perMinute = 60 * rate;
        const long long perTenMinutes = 10 * perMinute - 9 * dropped;
        const long long rest = count % perTenMinutes;
        long long inMinute = rest;  // the sample number within the minute, as labelled
        minutes = count / perTenMinutes * 10;
        if (rest >= perMinute) {
            minutes += 1 + (rest - perMinute) / (perMinute - dropped);
            inMinute = (rest - perMinute) % (perMinute - dropped) + dropped;
        }
        second = inMinute / rate;
        sample = inMinute % rate;
    } else {
        // Divided before anything is multiplied, so that no rate overflows.
        const long long seconds = count / rate;
        minutes = seconds / 60;
        second = seconds % 60;
        sample = count % rate;
    }
    if (sample > INT_MAX) {
        year = sample;
        return SplitFailure::Sample;
    }
    int month = 0;
    int day = 0;
    DateFromDays(minutes / 1440, year, month, day);
    if (year > lastYear) {
        return SplitFailure::Year;
    }
    fields = TimeCodeFields{static_cast<int>(year), month, day, static_cast<int>(minutes % 1440 / 60),
                            static_cast<int>(minutes % 60), static_cast<int>(second), static_cast<int>(sample)};
    return SplitFailure::None;
}

}  // namespace

TimeCodeBuilder::TimeCodeBuilder(const TimeCodeFields& fields, const Rate& rate, bool drop,
                                 unsigned char flag) noexcept
    : TimeCodeBuilder(fields.year, fields.month, fields.day, fields.hour, fields.minute, fields.second,
                      fields.sample, rate, drop, flag) {}

TimeCodeBuilder TimeCodeBuilder::FromTimeCode(const TimeCode& timeCode) {
    TimeCodeFields fields{};
    long long value = 0;
    const long long numerator = timeCode.GetRate().GetNumerator();
    switch (Split(timeCode, fields, value)) {
        case SplitFailure::None:
            break;
        case SplitFailure::Denominator:
            Fail("Denominator %lld must be between equals to 1", timeCode.GetRate().GetDenominator());
        case SplitFailure::Rate:
            Fail("Rate %lld / 1 is not positive", numerator);
        case SplitFailure::Negative:
            Fail("TotalSample %lld is negative", timeCode.GetTotalSample());
        case SplitFailure::DropRate:
            Fail("Rate %lld / 1 is not compatible with drop TC format", numerator);
        case SplitFailure::Sample:
            Fail("Sample %lld does not fit in 32 bits", value);
        case SplitFailure::Year:
            Fail("year %lld must be between %d and %d", value, firstYear, lastYear);
    }
    return TimeCodeBuilder(fields, timeCode.GetRate(), timeCode.IsDropFrame(), timeCode.GetFlag());
}

std::optional<TimeCodeBuilder> TimeCodeBuilder::TryFromTimeCode(const TimeCode& timeCode) noexcept {
    TimeCodeFields fields{};
    long long value = 0;
    if (Split(timeCode, fields, value) != SplitFailure::None) {
        return std::nullopt;
    }
    return TimeCodeBuilder(fields, timeCode.GetRate(), timeCode.IsDropFrame(), timeCode.GetFlag());
}

TimeCodeFields TimeCodeBuilder::GetFields() const noexcept {
    return TimeCodeFields{year_, month_, day_, hour_, minute_, second_, sample_};
}

TimeCodeBuilder::TimeCodeBuilder(int year, int month, int day, int hour, int minute, int second, int sample,
                                 const Rate& rate, bool drop, unsigned char flag) noexcept
    : year_(year),
      month_(month),
      day_(day),
      hour_(hour),
      minute_(minute),
      second_(second),
      sample_(sample),
      rate_(rate),
      drop_(drop),
      flag_(flag) {}

bool TimeCodeBuilder::IsValidToBuildWithexception() const {
    if (year_ < firstYear || year_ > lastYear) {
        Fail("year %d must be between %d and %d", year_, firstYear, lastYear);
    }
    if (month_ < 1 || month_ > 12) {
        Fail("month %d must be between 1 and 12", month_);
    }
    const int days = CalendarTools::DayPerMonth(year_, month_);
    if (day_ < 1 || day_ > days) {
        // No space before "is": kept, the message is matched as it stands.
        Fail("day %dis negative or greater than %d in month %d", day_, days, month_);
    }
    if (hour_ < 0 || hour_ > 23) {
        Fail("hour %d must be between 0 and 23", hour_);
    }
    if (minute_ < 0 || minute_ > 59) {
        Fail("minute %d must be between 0 and 59", minute_);
    }
    if (static_cast<unsigned int>(second_) > 59u) {
        Fail("second %d must be between 0 and 59", second_);
    }
    const long long numerator = rate_.GetNumerator();
    const long long denominator = rate_.GetDenominator();
    if (denominator != 1) {
        Fail("Denominator %lld must be between equals to 1", denominator);
    }
    if (static_cast<long long>(sample_) >= numerator) {
        Fail("Sample %d is greater than numerator ratio %lld", sample_, numerator);
    }
    if (!drop_) {
        return true;
    }
    // The dropped frame numbers are checked before the rate, so an unsupported rate reports a
    // dropped value first: kept for compatibility with the messages callers match.
    if (minute_ % 10 != 0 && second_ == 0) {
        const int firstKept = numerator == 30 ? 2 : 4;
        if (sample_ < firstKept) {
            Fail("In dropped TimeCode, this value doesn't exist %d:%d;%d", minute_, second_, sample_);
        }
        if (numerator == 30) {
            return true;
        }
    }
    if (numerator != 30 && numerator != 60) {
        Fail("Rate %lld / %lld is not compatible with drop TC format", numerator, denominator);
    }
    return true;
}

TimeCode TimeCodeBuilder::Build() const {
    IsValidToBuildWithexception();
    const long long numerator = rate_.GetNumerator();
    const long long days = CalendarTools::DaysSince1900(year_, month_, day_);
    const long long seconds = ((days * 24 + hour_) * 60 + minute_) * 60 + second_;
    long long count = 0;
    bool overflow = false;
    if (numerator > 0) {
        // seconds is never negative. The product may pass 2^63 while the count, after a negative
        // sample, still fits: it is formed unsigned, and only the sum has to fit.
        unsigned long long product = 0;
        overflow = __builtin_mul_overflow(static_cast<unsigned long long>(seconds),
                                          static_cast<unsigned long long>(numerator), &product) ||
                   __builtin_add_overflow(product, static_cast<long long>(sample_), &count);
    } else {
        overflow = __builtin_mul_overflow(seconds, numerator, &count) ||
                   __builtin_add_overflow(count, static_cast<long long>(sample_), &count);
    }
    if (overflow) {
        Fail("TotalSample does not fit in 64 bits at rate %lld / 1", numerator);
    }
    if (drop_) {
        // Validation leaves 30 and 60, which drop 2 and 4 frame numbers in each minute since 1900
        // that is not a multiple of ten (days hold 1440 minutes, so the rule runs on across them).
        const long long minutes = (days * 24 + hour_) * 60 + minute_;
        count -= (numerator / 15) * (minutes - minutes / 10);
    }
    if (count < 0) {
        Fail("TotalSample %lld must not be negative", count);
    }
    return TimeCode(rate_, count, drop_, flag_);
}

}  // namespace Korv::TimePoints

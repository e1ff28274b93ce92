#include "PlurexData/timepoints/TimeCodeBuilder.h"

#include "PlurexData/timepoints/CalendarTools.h"

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

}  // namespace

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

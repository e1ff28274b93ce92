#include "PlurexData/data/clips/detail/TimeCodeFields.h"

#include <cstdint>

namespace Korv::Plurex::Data::Clips::Detail {

namespace {

constexpr long long lastYear = 2261;

// The civil date of a day count from 1 January 1900 (proleptic Gregorian, days >= 0): the 400-year
// cycle split of the civil-from-days algorithm, on an era that starts on 1 March of year 0.
void DateFromDays(long long days, TimeCodeFields& fields) noexcept {
    // 1 January 1900 is day 693901 after 1 March of year 0.
    const long long z = days + 693901;
    const long long era = z / 146097;
    const long long dayOfEra = z - era * 146097;
    const long long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long long shiftedMonth = (5 * dayOfYear + 2) / 153;  // 0 is March
    const long long month = shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9;
    fields.year = static_cast<int>(yearOfEra + era * 400 + (month <= 2 ? 1 : 0));
    fields.month = static_cast<int>(month);
    fields.day = static_cast<int>(dayOfYear - (153 * shiftedMonth + 2) / 5 + 1);
}

}  // namespace

bool SplitTimeCode(const TimePoints::TimeCode& timeCode, TimeCodeFields& fields) noexcept {
    const long long rate = timeCode.GetRate().GetNumerator();
    const long long count = timeCode.GetTotalSample();
    if (timeCode.GetRate().GetDenominator() != 1 || rate <= 0 || rate > INT32_MAX || count < 0) {
        return false;
    }
    long long minutes = 0;
    long long inMinute = 0;  // sample number within the minute, as labelled
    if (timeCode.IsDropFrame()) {
        if (rate != 30 && rate != 60) {
            return false;
        }
        // Every minute but the tenth leaves out its first `dropped` labels, which the count skips.
        const long long dropped = rate / 15;
        const long long perMinute = 60 * rate;
        const long long perTenMinutes = 10 * perMinute - 9 * dropped;
        const long long rest = count % perTenMinutes;
        minutes = count / perTenMinutes * 10;
        if (rest < perMinute) {
            inMinute = rest;
        } else {
            minutes += 1 + (rest - perMinute) / (perMinute - dropped);
            inMinute = (rest - perMinute) % (perMinute - dropped) + dropped;
        }
    } else {
        const long long seconds = count / rate;
        minutes = seconds / 60;
        inMinute = (seconds % 60) * rate + count % rate;
    }
    const long long days = minutes / 1440;
    // Past 2261 nothing is built; the bound also keeps the date arithmetic in range.
    if (days > (lastYear - 1900 + 1) * 366) {
        return false;
    }
    DateFromDays(days, fields);
    if (fields.year > lastYear) {
        return false;
    }
    fields.hour = static_cast<int>(minutes % 1440 / 60);
    fields.minute = static_cast<int>(minutes % 60);
    fields.second = static_cast<int>(inMinute / rate);
    fields.frame = static_cast<int>(inMinute % rate);
    return true;
}

}  // namespace Korv::Plurex::Data::Clips::Detail

#include "PlurexData/timepoints/TimeCode.h"

#include "PlurexData/timepoints/TimeCodeBuilder.h"
#include "PlurexData/timepoints/TimeCodeFields.h"

#include <climits>
#include <cstdio>
#include <stdexcept>

namespace Korv::TimePoints {

namespace {

// The text of a timecode without a builder: its count and rate, as they are.
std::string Raw(const TimeCode& timeCode) {
    char text[96];
    std::snprintf(text, sizeof text, "TotalSample %lld at %lld/%lld%s", timeCode.GetTotalSample(),
                  timeCode.GetRate().GetNumerator(), timeCode.GetRate().GetDenominator(),
                  timeCode.IsDropFrame() ? " drop-frame" : "");
    return text;
}

std::string Clock(const TimeCodeFields& f, bool drop) {
    char text[32];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d%c%02d", f.hour, f.minute, f.second, drop ? ';' : ':',
                  f.sample);
    return text;
}

// Reads `count` decimal digits at `at` into `value`; false on anything else, or a value past INT_MAX.
bool Digits(std::string_view text, std::size_t& at, std::size_t count, int& value) {
    if (text.size() - at < count) {
        return false;
    }
    long long number = 0;
    for (std::size_t end = at + count; at < end; ++at) {
        if (text[at] < '0' || text[at] > '9') {
            return false;
        }
        number = number * 10 + (text[at] - '0');
    }
    value = static_cast<int>(number);
    return number <= INT_MAX;
}

bool Separator(std::string_view text, std::size_t& at, char separator) {
    if (at < text.size() && text[at] == separator) {
        ++at;
        return true;
    }
    return false;
}

// The fields and drop marker of the text forms; false for any other text.
bool ParseFields(std::string_view text, TimeCodeFields& f, bool& drop) {
    std::size_t at = 0;
    f = TimeCodeFields{1900, 1, 1, 0, 0, 0, 0};
    // The date is there when the text is longer than the longest time of day.
    if (text.size() > 8 + 1 + 10 && !(Digits(text, at, 4, f.year) && Separator(text, at, '-') &&
                                     Digits(text, at, 2, f.month) && Separator(text, at, '-') &&
                                     Digits(text, at, 2, f.day) && Separator(text, at, ' '))) {
        return false;
    }
    if (!(Digits(text, at, 2, f.hour) && Separator(text, at, ':') && Digits(text, at, 2, f.minute) &&
          Separator(text, at, ':') && Digits(text, at, 2, f.second))) {
        return false;
    }
    drop = at < text.size() && text[at] == ';';
    if (!Separator(text, at, drop ? ';' : ':')) {
        return false;
    }
    const std::size_t frameDigits = text.size() - at;
    return frameDigits >= 2 && frameDigits <= 10 && Digits(text, at, frameDigits, f.sample);
}

}  // namespace

std::string TimeCode::ToString() const {
    const auto builder = TimeCodeBuilder::TryFromTimeCode(*this);
    if (!builder) {
        return Raw(*this);
    }
    const TimeCodeFields f = builder->GetFields();
    char date[16];
    std::snprintf(date, sizeof date, "%04d-%02d-%02d ", f.year, f.month, f.day);
    return date + Clock(f, drop_);
}

std::string TimeCode::ToTimeOfDayString() const {
    const auto builder = TimeCodeBuilder::TryFromTimeCode(*this);
    return builder ? Clock(builder->GetFields(), drop_) : Raw(*this);
}

TimeCode TimeCode::Parse(std::string_view text, const Rate& rate) {
    TimeCodeFields fields{};
    bool drop = false;
    if (!ParseFields(text, fields, drop)) {
        throw std::invalid_argument("Invalid timecode text: " + std::string(text));
    }
    return TimeCodeBuilder(fields, rate, drop).Build();
}

std::optional<TimeCode> TimeCode::TryParse(std::string_view text, const Rate& rate) {
    try {
        return Parse(text, rate);
    } catch (const std::invalid_argument&) {
        return std::nullopt;
    } catch (const std::out_of_range&) {
        return std::nullopt;
    }
}

}  // namespace Korv::TimePoints

#pragma once

// The calendar and clock fields of a timecode, the inverse of TimeCodeBuilder::Build. Internal to the
// library (the tool compiles its own copy to print timecodes).

#include "PlurexData/timepoints/TimeCode.h"

namespace Korv::Plurex::Data::Clips::Detail {

struct TimeCodeFields {
    int year;
    int month;
    int day;
    int hour;
    int minute;
    int second;
    int frame;
};

// Splits `timeCode` into the fields from which TimeCodeBuilder builds it back exactly (same rate,
// count, drop and flag). False, with `fields` unspecified, for a timecode no builder makes: a rate that
// is not n/1 with 0 < n < 2^31, drop-frame at a rate other than 30/1 or 60/1, a negative count, or a
// date after 2261.
bool SplitTimeCode(const TimePoints::TimeCode& timeCode, TimeCodeFields& fields) noexcept;

}  // namespace Korv::Plurex::Data::Clips::Detail

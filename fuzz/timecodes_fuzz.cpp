// TimeCodeBuilder with arbitrary fields, rates and drop flag. Validation is decided by the checks
// written out again here, in their order, down to the message of the first one that fails; a
// timecode that builds counts exactly the samples a 128-bit count from 1 January 1900 gives (drop
// frame leaving out 2 or 4 labels in every minute that is not a multiple of ten), fails only when that
// count is negative or needs more than 64 bits, and splits back into fields that build it again (the
// same fields, for a sample that is not negative).
#include "PlurexData/timepoints/TimeCodeBuilder.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>

using Korv::TimePoints::TimeCodeFields;
using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::TimeCodeBuilder;

namespace {

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

using Int128 = __int128;
constexpr long long Max64 = std::numeric_limits<long long>::max();
constexpr long long Min64 = std::numeric_limits<long long>::min();

class Reader {
public:
    Reader(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    std::uint64_t Bytes(int count) {
        std::uint64_t value = 0;
        for (int i = 0; i < count; ++i) {
            value = value << 8 | (at_ < size_ ? data_[at_++] : 0u);
        }
        return value;
    }

    // Mostly a value in [low, high], a little past every bound; 0xFFxx reads a raw 32-bit number.
    int Field(int low, int high) {
        const auto selector = static_cast<std::uint32_t>(Bytes(2));
        if (selector >= 0xFF00u) {
            return static_cast<int>(static_cast<std::uint32_t>(Bytes(4)));
        }
        return low + static_cast<int>(selector % static_cast<std::uint32_t>(high - low + 1));
    }

    // One of `table` (the rates and boundaries worth visiting), else a raw 64-bit number.
    template <std::size_t N>
    long long Pick(const long long (&table)[N]) {
        const auto selector = static_cast<std::size_t>(Bytes(1));
        return selector < N ? table[selector] : static_cast<long long>(Bytes(8));
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

struct Fields {
    int year, month, day, hour, minute, second, sample;
    long long numerator, denominator;
    bool drop;
    unsigned char flag;
};

bool Leap(int year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

int DaysIn(int year, int month) {
    static const int common[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && Leap(year) ? 29 : common[month - 1];
}

std::string Text(long long value) {
    return std::to_string(value);
}

// The message of the first check that fails, in the builder's order; none when the fields build.
std::optional<std::string> FirstFailure(const Fields& f) {
    if (f.year < 1900 || f.year > 2261) {
        return "year " + Text(f.year) + " must be between 1900 and 2261";
    }
    if (f.month < 1 || f.month > 12) {
        return "month " + Text(f.month) + " must be between 1 and 12";
    }
    if (f.day < 1 || f.day > DaysIn(f.year, f.month)) {
        return "day " + Text(f.day) + "is negative or greater than " + Text(DaysIn(f.year, f.month)) +
               " in month " + Text(f.month);
    }
    if (f.hour < 0 || f.hour > 23) {
        return "hour " + Text(f.hour) + " must be between 0 and 23";
    }
    if (f.minute < 0 || f.minute > 59) {
        return "minute " + Text(f.minute) + " must be between 0 and 59";
    }
    if (f.second < 0 || f.second > 59) {
        return "second " + Text(f.second) + " must be between 0 and 59";
    }
    if (f.denominator != 1) {
        return "Denominator " + Text(f.denominator) + " must be between equals to 1";
    }
    if (f.sample >= f.numerator) {
        return "Sample " + Text(f.sample) + " is greater than numerator ratio " + Text(f.numerator);
    }
    if (!f.drop) {
        return std::nullopt;
    }
    if (f.minute % 10 != 0 && f.second == 0) {
        // The first labels of such a minute do not exist: 2 at 30/1, 4 at any other rate, which then
        // still has to pass the rate test below.
        const int firstKept = f.numerator == 30 ? 2 : 4;
        if (f.sample < firstKept) {
            return "In dropped TimeCode, this value doesn't exist " + Text(f.minute) + ":" + Text(f.second) +
                   ";" + Text(f.sample);
        }
        if (f.numerator == 30) {
            return std::nullopt;
        }
    }
    if (f.numerator != 30 && f.numerator != 60) {
        return "Rate " + Text(f.numerator) + " / " + Text(f.denominator) +
               " is not compatible with drop TC format";
    }
    return std::nullopt;
}

// Samples from 1 January 1900 00:00:00 to the fields, at any size.
Int128 Count(const Fields& f) {
    Int128 days = f.day - 1;
    for (int year = 1900; year < f.year; ++year) {
        days += Leap(year) ? 366 : 365;
    }
    for (int month = 1; month < f.month; ++month) {
        days += DaysIn(f.year, month);
    }
    const Int128 minutes = (days * 24 + f.hour) * 60 + f.minute;
    Int128 count = (minutes * 60 + f.second) * f.numerator + f.sample;
    if (f.drop) {
        // Minutes 0 to `minutes` that are not a multiple of ten each lost their first labels, the
        // current one included: its labels start after them.
        count -= (f.numerator == 30 ? 2 : 4) * (minutes - minutes / 10);
    }
    return count;
}

std::optional<std::string> Thrown(const TimeCodeBuilder& builder, bool build, TimeCode* built) {
    try {
        if (build) {
            *built = builder.Build();
        } else {
            Check(builder.IsValidToBuildWithexception());
        }
    } catch (const std::out_of_range& e) {
        return std::string(e.what());
    }
    return std::nullopt;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const long long numerators[] = {25, 30,   50, 60,         24,           1,         0,     -1,
                                           2,  1000, 48, 2147483647, 2147483648LL, 1LL << 62, Max64, Min64};
    static const long long denominators[] = {1, 1, 1, 1001, 0, -1, 2, Min64};
    Reader in(data, size);
    Fields f{};
    f.year = in.Field(1895, 2266);
    f.month = in.Field(-1, 13);
    f.day = in.Field(-1, 32);
    f.hour = in.Field(-1, 24);
    f.minute = in.Field(-1, 60);
    f.second = in.Field(-1, 60);
    f.sample = in.Field(-70, 70);
    f.numerator = in.Pick(numerators);
    f.denominator = in.Pick(denominators);
    const auto last = static_cast<std::uint8_t>(in.Bytes(1));
    f.drop = (last & 1) != 0;
    f.flag = static_cast<unsigned char>(last >> 1);

    const TimeCodeBuilder builder(f.year, f.month, f.day, f.hour, f.minute, f.second, f.sample,
                                  Rate(f.numerator, f.denominator), f.drop, f.flag);
    const std::optional<std::string> failure = FirstFailure(f);
    Check(Thrown(builder, false, nullptr) == failure);

    TimeCode built(Rate(0, 0), -1);
    const std::optional<std::string> buildFailure = Thrown(builder, true, &built);
    if (failure) {
        Check(buildFailure == failure);
        return 0;
    }
    const Int128 count = Count(f);
    if (count > Max64 || count < Min64) {
        Check(buildFailure == "TotalSample does not fit in 64 bits at rate " + Text(f.numerator) + " / 1");
        return 0;
    }
    if (count < 0) {
        Check(buildFailure == "TotalSample " + Text(static_cast<long long>(count)) + " must not be negative");
        return 0;
    }
    Check(!buildFailure);
    Check(built == TimeCode(Rate(f.numerator, 1), static_cast<long long>(count), f.drop, f.flag));

    // Every built timecode splits back, but one whose negative sample borrowed from a second of a rate
    // past 2^31: its frame number holds no int.
    const auto split = TimeCodeBuilder::TryFromTimeCode(built);
    Check(split.has_value() || (f.sample < 0 && f.numerator + f.sample > std::numeric_limits<std::int32_t>::max()));
    if (!split) {
        return 0;
    }
    if (f.sample >= 0) {
        Check(split->GetFields() == TimeCodeFields{f.year, f.month, f.day, f.hour, f.minute, f.second, f.sample});
    }
    Check(split->Build() == built);
    Check(TimeCode::Parse(built.ToString(), built.GetRate()) == TimeCode(built.GetRate(), built.GetTotalSample(), built.IsDropFrame()));
    return 0;
}

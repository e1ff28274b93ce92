#pragma once

#include "PlurexData/Export.h"

namespace Korv::TimePoints {

/// A frame or sample rate as the ratio numerator / denominator, kept as given: 50/1 and 100/2 are
/// different rates.
class PLUREXDATA_API Rate {
public:
    /// Kept as given: nothing is reduced or checked, not even a zero denominator.
    constexpr Rate(long long numerator, long long denominator) noexcept
        : numerator_(numerator), denominator_(denominator) {}

    /// The numerator.
    constexpr long long GetNumerator() const noexcept { return numerator_; }
    /// The denominator.
    constexpr long long GetDenominator() const noexcept { return denominator_; }

    /// Equal when both numerators and both denominators are: 50/1 and 100/2 differ.
    ///@{
    constexpr bool operator==(const Rate& other) const noexcept {
        return numerator_ == other.numerator_ && denominator_ == other.denominator_;
    }
    constexpr bool operator!=(const Rate& other) const noexcept { return !(*this == other); }
    ///@}

private:
    long long numerator_;
    long long denominator_;
};

}  // namespace Korv::TimePoints

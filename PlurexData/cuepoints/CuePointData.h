#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/clips/UmId.h"

#include <cstdint>

namespace Korv::Data {

/// A mark's position on a clip, as other components exchange it: the position in fields and the
/// clip it belongs to.
class PLUREXDATA_API CuePointData {
public:
    /// Position 0 on a default UmId.
    CuePointData() : tc_(0), umid_() {}
    /// Position `tc` (in fields) on clip `umid`.
    CuePointData(long long tc, const Plurex::Data::Clips::UmId& umid) noexcept : tc_(tc), umid_(umid) {}
    /// Copies and assigns both fields.
    ///@{
    CuePointData(const CuePointData& other) = default;
    /// Copies `*other`; a null `other` throws std::invalid_argument("Null CuePointData").
    explicit CuePointData(const CuePointData* other);
    CuePointData& operator=(const CuePointData& other) = default;
    ///@}

    /// The position, in fields.
    ///@{
    long long GetTc() const noexcept { return tc_; }
    void SetTc(long long tc) noexcept { tc_ = tc; }
    ///@}
    /// The clip.
    ///@{
    Plurex::Data::Clips::UmId GetUmId() const noexcept { return umid_; }
    void SetUmId(const Plurex::Data::Clips::UmId& umid) noexcept { umid_ = umid; }
    ///@}

    /// The whole position and the clip (UmId::Equals). A null `other` throws
    /// std::invalid_argument("Null CuePointData").
    ///@{
    bool Equals(const CuePointData& other) const;
    bool Equals(const CuePointData* other) const;
    ///@}

    /// The low 32 bits of this position minus those of the other's, wrapping, as a signed 32-bit
    /// number; 1 for a null `other`. The high halves and the clip take no part: stored marks are
    /// ordered this way, so the truncation is kept even though it disagrees with Equals.
    ///@{
    std::int32_t CompareTo(const CuePointData& other) const noexcept { return CompareTo(&other); }
    std::int32_t CompareTo(const CuePointData* other) const noexcept;
    ///@}

    /// Equals, or its negation.
    ///@{
    bool operator==(const CuePointData& other) const { return Equals(other); }
    bool operator!=(const CuePointData& other) const { return !Equals(other); }
    ///@}
    /// CompareTo against 0, so only the low 32 bits of the positions count, unlike ==.
    ///@{
    bool operator<(const CuePointData& other) const noexcept { return CompareTo(other) < 0; }
    bool operator>(const CuePointData& other) const noexcept { return CompareTo(other) > 0; }
    bool operator<=(const CuePointData& other) const noexcept { return CompareTo(other) <= 0; }
    bool operator>=(const CuePointData& other) const noexcept { return CompareTo(other) >= 0; }
    ///@}

    /// The wrapped difference of the low 32 bits of two positions, shared with CuePoint.
    static std::int32_t ComparePositions(long long left, long long right) noexcept {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(left) -
                                         static_cast<std::uint32_t>(right));
    }

private:
    long long tc_;
    Plurex::Data::Clips::UmId umid_;
};

}  // namespace Korv::Data

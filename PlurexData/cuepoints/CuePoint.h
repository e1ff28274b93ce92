#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/cuepoints/CuePointData.h"
#include "PlurexData/data/clips/KepId.h"
#include "PlurexData/data/clips/UmId.h"
#include "PlurexData/data/servers/ServerId.h"

#include <cstdint>

namespace Korv::Plurex::BusinessObjects::CuePoints {

/// A mark an operator set on a clip or on the record train of a server, with the controller's
/// bookkeeping. The cue point lists keep, sort and search these.
class PLUREXDATA_API CuePoint {
public:
    /// No server (-1), pcx, camera, number and zoom 0, not on the train.
    CuePoint();
    /// A mark from the given values; number and zoom 0, and where not given camera 0 and a default
    /// KepId.
    ///@{
    CuePoint(long long tc, int pcx, char camera, const Data::Servers::ServerId& serverId,
             const Data::Clips::UmId& umid, const Data::Clips::KepId& kepId, bool train);
    CuePoint(long long tc, int pcx, char camera, const Data::Servers::ServerId& serverId,
             const Data::Clips::UmId& umid, bool train);
    CuePoint(long long tc, int pcx, const Data::Servers::ServerId& serverId, const Data::Clips::UmId& umid,
             bool train);
    ///@}
    /// Copies and assigns every field.
    ///@{
    CuePoint(const CuePoint& other) = default;
    /// Copies `*other`; a null `other` throws std::invalid_argument("Null CuePoint").
    explicit CuePoint(const CuePoint* other);
    CuePoint& operator=(const CuePoint& other) = default;
    ///@}

    /// The position of the mark, in fields.
    ///@{
    long long GetTc() const noexcept { return data_.GetTc(); }
    void SetTc(long long tc) noexcept { data_.SetTc(tc); }
    ///@}
    /// The clip the mark belongs to; a train mark's list does not depend on it.
    ///@{
    Data::Clips::UmId GetUmId() const noexcept { return data_.GetUmId(); }
    void SetUmId(const Data::Clips::UmId& umid) noexcept { data_.SetUmId(umid); }
    ///@}
    /// The number its list gave it on adding (1 to 999); 0 before.
    ///@{
    std::int32_t GetNumber() const noexcept { return number_; }
    void SetNumber(std::int32_t number) noexcept { number_ = number; }
    ///@}
    /// A controller's value carried with the mark; the library never interprets it.
    ///@{
    std::int32_t GetPcx() const noexcept { return pcx_; }
    void SetPcx(std::int32_t pcx) noexcept { pcx_ = pcx; }
    ///@}
    /// The camera letter or index of the mark.
    ///@{
    char GetCamera() const noexcept { return camera_; }
    void SetCamera(char camera) noexcept { camera_ = camera; }
    ///@}
    /// The server the marked material lies on.
    ///@{
    Data::Servers::ServerId GetServerId() const noexcept { return serverId_; }
    void SetServerId(const Data::Servers::ServerId& serverId) noexcept { serverId_ = serverId; }
    ///@}
    /// The clip's address on the controller.
    ///@{
    Data::Clips::KepId GetKepId() const noexcept { return kepId_; }
    void SetKepId(const Data::Clips::KepId& kepId) noexcept { kepId_ = kepId; }
    ///@}
    /// Whether the mark lies on the server's record train rather than on a clip.
    ///@{
    bool IsTrain() const noexcept { return train_; }
    void SetTrain(bool train) noexcept { train_ = train; }
    ///@}
    /// The zoom slot of the mark; 0 means none given yet, and adding to a list then gives it the
    /// new number.
    ///@{
    std::int32_t GetZoom() const noexcept { return zoom_; }
    void SetZoom(std::int32_t zoom) noexcept { zoom_ = zoom; }
    ///@}

    /// The servers' CompareTo, then the wrapped difference of the low 32 bits of the positions
    /// (as CuePointData); nothing else takes part. 1 for a null `other`.
    ///@{
    std::int32_t CompareTo(const CuePoint& other) const noexcept {
        // ServerId::CompareTo, spelt out so that the lists' searches inline it: the difference of
        // two valid server numbers cannot overflow.
        const std::int32_t servers = serverId_.GetValue() - other.serverId_.GetValue();
        return servers != 0 ? servers
                            : Korv::Data::CuePointData::ComparePositions(data_.GetTc(), other.data_.GetTc());
    }
    std::int32_t CompareTo(const CuePoint* other) const noexcept;
    ///@}
    /// CompareTo == 0: two marks of one server at the same position are one cue point, whatever
    /// their clips. False for a null `other`.
    ///@{
    bool Equals(const CuePoint& other) const noexcept { return Equals(&other); }
    bool Equals(const CuePoint* other) const noexcept { return other != nullptr && CompareTo(*other) == 0; }
    ///@}

    /// By CompareTo: the server, then the low 32 bits of the position.
    ///@{
    bool operator==(const CuePoint& other) const noexcept { return CompareTo(other) == 0; }
    bool operator!=(const CuePoint& other) const noexcept { return CompareTo(other) != 0; }
    bool operator<(const CuePoint& other) const noexcept { return CompareTo(other) < 0; }
    bool operator>(const CuePoint& other) const noexcept { return CompareTo(other) > 0; }
    ///@}
    /// A null `other` counts as greater than every cue point: < gives true and > false.
    ///@{
    bool operator<(const CuePoint* other) const noexcept { return other == nullptr || *this < *other; }
    bool operator>(const CuePoint* other) const noexcept { return other != nullptr && *this > *other; }
    ///@}

private:
    Korv::Data::CuePointData data_;
    std::int32_t number_;
    std::int32_t pcx_;
    char camera_;
    Data::Servers::ServerId serverId_;
    Data::Clips::KepId kepId_;
    bool train_;
    std::int32_t zoom_;
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints

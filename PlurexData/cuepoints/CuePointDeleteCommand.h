#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/clips/UmId.h"

namespace Korv::Plurex::BusinessObjects::CuePoints {

/// Remove all marks of one clip, or of the record train (then the clip id is not used).
class PLUREXDATA_API CuePointDeleteCommand {
public:
    /// A default UmId, not the train.
    CuePointDeleteCommand() = default;
    /// The marks of clip `clipId`, or of the train when `train`.
    CuePointDeleteCommand(const Data::Clips::UmId& clipId, bool train) noexcept
        : clipId_(clipId), train_(train) {}
    /// Copies and assigns both fields.
    ///@{
    CuePointDeleteCommand(const CuePointDeleteCommand& other) = default;
    /// Copies `*other`; a null `other` throws std::invalid_argument("Null CuePointDeleteCommand").
    explicit CuePointDeleteCommand(const CuePointDeleteCommand* other);
    CuePointDeleteCommand& operator=(const CuePointDeleteCommand& other) = default;
    ///@}

    /// The clip and whether the command is for the train instead; set together.
    ///@{
    Data::Clips::UmId GetClipId() const noexcept { return clipId_; }
    void SetClipId(const Data::Clips::UmId& clipId, bool train) noexcept {
        clipId_ = clipId;
        train_ = train;
    }
    bool IsTrain() const noexcept { return train_; }
    ///@}

    /// Same clip id (UmId ==, the unicode flag ignored) and same train flag; false for a null
    /// `other`, and != true.
    ///@{
    bool operator==(const CuePointDeleteCommand& other) const noexcept { return *this == &other; }
    bool operator==(const CuePointDeleteCommand* other) const noexcept;
    bool operator!=(const CuePointDeleteCommand& other) const noexcept { return !(*this == &other); }
    bool operator!=(const CuePointDeleteCommand* other) const noexcept { return !(*this == other); }
    ///@}

    /// Clip id UmId::Empty(), not the train.
    void Clear() noexcept;

private:
    Data::Clips::UmId clipId_;
    bool train_ = false;
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/clips/KepId.h"
#include "PlurexData/data/clips/UmId.h"
#include "PlurexData/data/servers/ServerId.h"

namespace Korv::Plurex::BusinessObjects::CuePoints {

/// Copy the marks of one clip (clip form), or those of a stretch of a server's record train (train
/// form), onto another clip.
class PLUREXDATA_API CuePointCopyCommand {
public:
    /// Default clips, positions 0, camera 0, no server (-1), default KepId, clip form.
    CuePointCopyCommand();
    /// A command from the given values; `train` chooses the train form.
    CuePointCopyCommand(const Data::Clips::UmId& source, bool train, const Data::Clips::UmId& destination,
                        long long fieldIn, long long fieldOut, char camera,
                        const Data::Servers::ServerId& serverId, const Data::Clips::KepId& kepId);
    /// Copies and assigns every field.
    ///@{
    CuePointCopyCommand(const CuePointCopyCommand& other) = default;
    /// Copies `*other`; a null `other` throws std::invalid_argument("Null CuePointCopyCommand").
    explicit CuePointCopyCommand(const CuePointCopyCommand* other);
    CuePointCopyCommand& operator=(const CuePointCopyCommand& other) = default;
    ///@}

    /// The source clip and the form (true: train form, which does not use the source). The source
    /// and the form go together.
    ///@{
    Data::Clips::UmId GetClipIdSource() const noexcept { return source_; }
    void SetClipIdSource(const Data::Clips::UmId& source, bool train) noexcept {
        source_ = source;
        train_ = train;
    }
    bool IsTrain() const noexcept { return train_; }
    ///@}
    /// The clip that receives the copies.
    ///@{
    Data::Clips::UmId GetClipIdDestination() const noexcept { return destination_; }
    void SetClipIdDestination(const Data::Clips::UmId& destination) noexcept { destination_ = destination; }
    ///@}
    /// The train stretch in fields, both bounds included; the clip form ignores it.
    ///@{
    long long GetFieldIn() const noexcept { return fieldIn_; }
    void SetFieldIn(long long fieldIn) noexcept { fieldIn_ = fieldIn; }
    long long GetFieldOut() const noexcept { return fieldOut_; }
    void SetFieldOut(long long fieldOut) noexcept { fieldOut_ = fieldOut; }
    ///@}
    /// The camera every copy receives.
    ///@{
    char GetCamera() const noexcept { return camera_; }
    void SetCamera(char camera) noexcept { camera_ = camera; }
    ///@}
    /// The server every copy receives; in the train form, also the server whose marks are taken.
    ///@{
    Data::Servers::ServerId GetServerId() const noexcept { return serverId_; }
    void SetServerId(const Data::Servers::ServerId& serverId) noexcept { serverId_ = serverId; }
    ///@}
    /// The KepId every copy receives.
    ///@{
    Data::Clips::KepId GetKepId() const noexcept { return kepId_; }
    void SetKepId(const Data::Clips::KepId& kepId) noexcept { kepId_ = kepId; }
    ///@}

private:
    Data::Clips::UmId source_;
    Data::Clips::UmId destination_;
    long long fieldIn_;
    long long fieldOut_;
    char camera_;
    Data::Servers::ServerId serverId_;
    Data::Clips::KepId kepId_;
    bool train_;
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints

#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/notification/ClipCommandEventArgs.h"

#include <cstdint>

namespace Korv::Plurex::Notification {

/// A clip being created: the clip before and after, and how and over which network it was made.
class PLUREXDATA_API ClipCreationEventArgs : public ClipCommandEventArgs {
public:
    /// How the clip was made; any 32-bit value may arrive.
    enum class CreationType : std::int32_t {
        Make = 0,
        Copy = 1,
        QorvaneRestore = 2,
        DrovikRestore = 3,
    };

    /// 2 has no enumerator on purpose: it reads "Unknown" like every unnamed value, and the numbering of
    /// the push forms is kept.
    enum class NetworkType : std::int32_t {
        Sdti = 0,
        Drovik = 1,
        PushSdti = 3,
        PushDrovik = 4,
        PushUnknown = 5,
    };

    /// The six common fields as ClipCommandEventArgs takes them, then copies of both clips and the two types,
    /// kept as given.
    ClipCreationEventArgs(std::uint32_t commandNumber, RequestSource requestSource, std::uint32_t thirdValue,
                          std::uint16_t fourthValue, const Data::Guid& commandGuid, long long value64,
                          const Data::Clips::Clip& clipBefore, const Data::Clips::Clip& clipAfter,
                          CreationType creationType, NetworkType networkType);
    ~ClipCreationEventArgs() override;

    /// The clip before the creation, copied at construction.
    const Data::Clips::Clip& GetClipBefore() const noexcept { return clipBefore_; }
    /// The clip after the creation, copied at construction.
    const Data::Clips::Clip& GetClipAfter() const noexcept { return clipAfter_; }
    /// How the clip was made.
    CreationType GetCreationType() const noexcept { return creationType_; }
    /// The network the clip was made over.
    NetworkType GetNetworkType() const noexcept { return networkType_; }

    /// The enumerator's name, "Unknown" for any other value; constant text.
    ///@{
    const char* GetCreationTypeString() const noexcept;
    const char* GetNetworkTypeString() const noexcept;
    ///@}

private:
    Data::Clips::Clip clipBefore_;
    Data::Clips::Clip clipAfter_;
    CreationType creationType_;
    NetworkType networkType_;
};

}  // namespace Korv::Plurex::Notification

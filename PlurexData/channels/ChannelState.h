#pragma once

#include "PlurexData/Export.h"

namespace Korv::Plurex::Data::Channels {

/// What the snapshots of a player and of a recorder channel share: two identifiers and a name.
class PLUREXDATA_API ChannelState {
public:
    /// The bytes of the name, its terminating zero included.
    static constexpr unsigned int NameSize = 28;

    virtual ~ChannelState();

    /// 0 for a player, 1 for a recorder.
    virtual int ChannelMode() const = 0;

    /// The two identifiers given at construction; the states' equality compares them first.
    ///@{
    unsigned int GetFirstId() const noexcept { return firstId_; }
    unsigned int GetSecondId() const noexcept { return secondId_; }
    ///@}
    /// The name, zero-terminated.
    const char* GetName() const noexcept { return name_; }
    /// Copies at most NameSize - 1 characters of `name`, so the name always stays zero-terminated.
    void SetName(const char* name) noexcept;

protected:
    /// Both identifiers 0 and an empty name.
    ChannelState() noexcept;
    /// The two identifiers and an empty name.
    ChannelState(unsigned int firstId, unsigned int secondId) noexcept;
    /// Memberwise, as part of copying a derived state.
    ///@{
    ChannelState(const ChannelState&) = default;
    ChannelState& operator=(const ChannelState&) = default;
    ///@}

    /// Both identifiers and the names (zero-terminated) equal.
    bool SameIdentity(const ChannelState& other) const noexcept;
    /// The names (zero-terminated) equal; what CompareStatus reports as a change of name.
    bool SameName(const ChannelState& other) const noexcept;

private:
    unsigned int firstId_;
    unsigned int secondId_;
    char name_[NameSize];
};

}  // namespace Korv::Plurex::Data::Channels

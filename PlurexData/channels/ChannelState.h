#pragma once

#include "PlurexData/Export.h"

namespace Korv::Plurex::Data::Channels {

// What the snapshots of a player and of a recorder channel share: two identifiers and a name.
class PLUREXDATA_API ChannelState {
public:
    static constexpr unsigned int NameSize = 28;

    virtual ~ChannelState();

    // 0 for a player, 1 for a recorder.
    virtual int ChannelMode() const = 0;

    unsigned int GetFirstId() const noexcept { return firstId_; }
    unsigned int GetSecondId() const noexcept { return secondId_; }
    // The name, zero-terminated.
    const char* GetName() const noexcept { return name_; }
    // Copies at most NameSize - 1 characters of `name`, so the name always stays zero-terminated.
    void SetName(const char* name) noexcept;

protected:
    ChannelState() noexcept;
    ChannelState(unsigned int firstId, unsigned int secondId) noexcept;
    ChannelState(const ChannelState&) = default;
    ChannelState& operator=(const ChannelState&) = default;

    // Both identifiers and the names (zero-terminated) equal.
    bool SameIdentity(const ChannelState& other) const noexcept;
    bool SameName(const ChannelState& other) const noexcept;

private:
    unsigned int firstId_;
    unsigned int secondId_;
    char name_[NameSize];
};

}  // namespace Korv::Plurex::Data::Channels

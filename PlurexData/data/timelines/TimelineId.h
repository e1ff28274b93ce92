#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/servers/ServerId.h"

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>

namespace Korv::Plurex::Data::Timelines {

/// A timeline (an edit sequence held on a server): its number, 0 to 109, and its server.
class PLUREXDATA_API TimelineId {
public:
    /// Number 0 on no server; what IsNullOrEmpty recognises.
    static const TimelineId cEmpty;

    /// Number 0 on no server, equal to cEmpty.
    TimelineId();
    /// Throws as SetNumber and SetServerId do.
    TimelineId(int number, const Servers::ServerId& server);

    /// The timeline number, 0 to 109.
    int GetNumber() const noexcept { return number_; }
    /// The server.
    Servers::ServerId GetServerId() const { return server_; }

    /// Throws std::invalid_argument("invalid number") outside 0 to 109, leaving the number unchanged.
    void SetNumber(int number);
    /// Sets the server; a null `server` throws std::invalid_argument("null ServerId").
    ///@{
    void SetServerId(const Servers::ServerId& server);
    void SetServerId(const Servers::ServerId* server);
    ///@}

    /// this number - other number; 1 for a null `other`. The server takes no part: timelines of two
    /// servers with one number compare as 0. Kept so, as every caller's ordering depends on it.
    ///@{
    int CompareTo(const TimelineId& other) const noexcept;
    int CompareTo(const TimelineId* other) const noexcept;
    ///@}
    /// Same number and same server; false for a null `other`.
    ///@{
    bool Equals(const TimelineId& other) const noexcept;
    bool Equals(const TimelineId* other) const noexcept;
    ///@}
    /// Equals: unlike CompareTo, the server counts.
    ///@{
    bool operator==(const TimelineId& other) const noexcept { return Equals(other); }
    bool operator!=(const TimelineId& other) const noexcept { return !Equals(other); }
    ///@}
    /// The order of CompareTo (by number), and timelines of one number by server: CompareTo alone
    /// would make timelines of two servers one key of an ordered set or map, which == tells apart.
    bool operator<(const TimelineId& other) const noexcept {
        const int byNumber = CompareTo(other);
        return byNumber != 0 ? byNumber < 0 : server_.CompareTo(other.server_) < 0;
    }
    /// A hash of the number and the server (what == compares); what std::hash uses.
    std::size_t Hash() const noexcept;

    /// True for a null `id` or one equal to cEmpty.
    ///@{
    static bool IsNullOrEmpty(const TimelineId& id) noexcept;
    static bool IsNullOrEmpty(const TimelineId* id) noexcept;
    ///@}

    /// The number in 3 digits, "/", then the server's text: "007/   10".
    std::string ToString() const;

private:
    int number_;
    Servers::ServerId server_;
};

/// Writes ToString(): "007/   10".
PLUREXDATA_API std::ostream& operator<<(std::ostream& out, const TimelineId& id);

}  // namespace Korv::Plurex::Data::Timelines

namespace std {
/// Hashes through TimelineId::Hash, consistent with ==.
template <>
struct hash<Korv::Plurex::Data::Timelines::TimelineId> {
    /// `id.Hash()`.
    size_t operator()(const Korv::Plurex::Data::Timelines::TimelineId& id) const noexcept {
        return id.Hash();
    }
};
}  // namespace std

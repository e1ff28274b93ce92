#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/servers/ServerId.h"

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>

namespace Korv::Plurex::Data::Clips {

/// The operator's address of a clip on one server: page, bank and clip packed as the decimal digits
/// of one position (hundreds, tens, units; 10 is stored as digit 0), a camera letter and the server.
class PLUREXDATA_API KepId {
public:
    /// Position -1 (none), camera 'A', no server.
    KepId();
    /// Sets the camera field, then SetPosition(page, bank, clip), SetCamera and SetServerId.
    KepId(int page, int bank, int clip, char camera, const Servers::ServerId& server);
    /// The same through SetPosition(position).
    KepId(int position, char camera, const Servers::ServerId& server);

    /// A default KepId, shared.
    static const KepId& Empty();

    /// Each -1 for position -1; otherwise its digit of the position, 0 read as 10. GetPage reads the
    /// hundreds digit only.
    ///@{
    int GetPage() const noexcept;
    int GetBank() const noexcept;
    int GetClip() const noexcept;
    ///@}
    /// The packed position (page, bank and clip digits); -1 for none.
    int GetPosition() const noexcept { return position_; }
    /// The camera letter, or NUL.
    char GetCamera() const noexcept { return camera_; }
    /// The server.
    Servers::ServerId GetServerId() const { return server_; }

    /// Each accepts 1 to 10 and otherwise throws std::invalid_argument("Invalid page: " + value), and
    /// so on. A position of -1 counts as 0. The three update the position differently, on purpose:
    /// SetClip replaces the units digit, while SetBank and SetPage subtract the old digit once (not
    /// ten or a hundred times) before adding the new one. Exact from an empty position, which is
    /// the path SetPosition takes; 123 then SetBank(5) gives 171. Stored positions depend on it.
    ///@{
    void SetPage(int page);
    void SetBank(int bank);
    void SetClip(int clip);
    ///@}
    /// Position -1, then SetBank, SetPage and SetClip in that order; a later check may throw after
    /// earlier digits were written.
    void SetPosition(int page, int bank, int clip);
    /// Splits `packed` into page (two digits: (packed / 100) % 100), bank and clip, 0 read as 10, and
    /// passes them on: 1211 gives page 12, which SetPage refuses.
    void SetPosition(int packed);
    /// Accepts 'A' to 'L', 'X', 'Y', 'Z' and NUL; otherwise throws
    /// std::invalid_argument("Invalid cam: " + the character's code, sign-extended).
    void SetCamera(char camera);
    /// Sets the server; a null `server` throws std::invalid_argument("null ServerId").
    ///@{
    void SetServerId(const Servers::ServerId& server);
    void SetServerId(const Servers::ServerId* server);
    ///@}

    /// 1 for a null `other`; else the servers' CompareTo, then the position difference, then the
    /// camera difference (signed 8-bit).
    ///@{
    int CompareTo(const KepId& other) const noexcept;
    int CompareTo(const KepId* other) const noexcept;
    ///@}
    /// Same server, position and camera; false for a null `other`.
    ///@{
    bool Equals(const KepId& other) const noexcept;
    bool Equals(const KepId* other) const noexcept;
    ///@}
    /// CompareTo against 0, which looks at the same fields as Equals.
    ///@{
    bool operator==(const KepId& other) const noexcept { return CompareTo(other) == 0; }
    bool operator!=(const KepId& other) const noexcept { return CompareTo(other) != 0; }
    ///@}
    /// CompareTo < 0, for ordered containers. A strict weak order while positions lie less than 2^31
    /// apart, as all positions of up to three digits do; positions driven far past them by repeated
    /// SetPage or SetBank compare through the wrapped difference, which need not be transitive.
    bool operator<(const KepId& other) const noexcept { return CompareTo(other) < 0; }
    /// A hash of the server, position and camera (what == compares); what std::hash uses.
    std::size_t Hash() const noexcept;

    /// True for a null `id` or one equal to Empty(): position -1 with camera 'B' is not empty.
    ///@{
    static bool IsNullOrEmpty(const KepId& id) noexcept;
    static bool IsNullOrEmpty(const KepId* id) noexcept;
    ///@}

    /// The position in at least 3 digits, the camera character, "/" and the server's text: "123B/   10".
    std::string ToString() const;

private:
    int position_;
    char camera_;
    Servers::ServerId server_;
};

/// Writes ToString(): "123B/   10".
PLUREXDATA_API std::ostream& operator<<(std::ostream& out, const KepId& id);

}  // namespace Korv::Plurex::Data::Clips

namespace std {
/// Hashes through KepId::Hash, consistent with ==.
template <>
struct hash<Korv::Plurex::Data::Clips::KepId> {
    /// `id.Hash()`.
    size_t operator()(const Korv::Plurex::Data::Clips::KepId& id) const noexcept { return id.Hash(); }
};
}  // namespace std

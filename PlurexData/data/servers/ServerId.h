#pragma once

#include "PlurexData/Export.h"

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>

namespace Korv::Plurex::Data::Servers {

/// The number of a server: -1 for no server, otherwise a positive multiple of 10 (servers are
/// numbered in steps of ten).
class PLUREXDATA_API ServerId {
public:
    /// Throws std::invalid_argument("invalid ServerId") unless `id` is -1 or a positive multiple of 10.
    explicit ServerId(int id);
    /// Copies `other`, which was checked when it was made.
    ServerId(const ServerId& other) = default;
    /// Copies `*other`; a null `other` throws std::invalid_argument("null ServerId").
    explicit ServerId(const ServerId* other);
    /// Assigns `other`, which was checked when it was made.
    ServerId& operator=(const ServerId& other) = default;

    /// The shared ServerId that means no server (-1).
    static const ServerId& None();

    /// The server number.
    int GetValue() const noexcept { return id_; }

    /// this - other as a signed difference; 1 for a null `other`.
    ///@{
    int CompareTo(const ServerId& other) const noexcept;
    int CompareTo(const ServerId* other) const noexcept;
    ///@}
    /// Same number; false for a null `other`.
    ///@{
    bool Equals(const ServerId& other) const noexcept;
    bool Equals(const ServerId* other) const noexcept;
    ///@}
    /// Same number.
    ///@{
    bool operator==(const ServerId& other) const noexcept { return id_ == other.id_; }
    bool operator!=(const ServerId& other) const noexcept { return id_ != other.id_; }
    ///@}
    /// CompareTo < 0: by number, for ordered containers.
    bool operator<(const ServerId& other) const noexcept { return CompareTo(other) < 0; }
    /// A hash of the number, equal for equal ServerIds; what std::hash uses.
    std::size_t Hash() const noexcept;

    /// The number right-aligned in 5 characters ("   10", "   -1"); longer numbers are not cut.
    std::string ToString() const;

private:
    int id_;
};

/// Writes ToString(): "   10".
PLUREXDATA_API std::ostream& operator<<(std::ostream& out, const ServerId& id);

}  // namespace Korv::Plurex::Data::Servers

namespace std {
/// Hashes through ServerId::Hash, consistent with ==.
template <>
struct hash<Korv::Plurex::Data::Servers::ServerId> {
    /// `id.Hash()`.
    size_t operator()(const Korv::Plurex::Data::Servers::ServerId& id) const noexcept { return id.Hash(); }
};
}  // namespace std

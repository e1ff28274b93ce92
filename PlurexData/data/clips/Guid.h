#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/Guid.h"

#include <string>

namespace Korv::Plurex::Data::Clips {

/// A clip's 16-byte global identifier, which also carries the clip's identifier text.
/// Comparison and text form are those of Data::Guid.
class PLUREXDATA_API Guid : public Data::Guid {
public:
    /// All zero (not a fresh random value).
    Guid() noexcept;
    /// All zero, then the first min(16, length) characters of `text`, one byte each, no NUL added.
    explicit Guid(const std::string& text) noexcept;

    /// The bytes up to the first zero byte, at most 16 characters.
    std::string UmId() const;

    /// Parses the text form as Data::Guid::FromString does (the empty Guid on failure).
    static Guid FromString(const std::string& text);

private:
    explicit Guid(const Data::Guid& bytes) noexcept : Data::Guid(bytes) {}
};

}  // namespace Korv::Plurex::Data::Clips

namespace std {
/// Hashes as the base Guid does (Guid::Hash), consistent with the inherited ==.
template <>
struct hash<Korv::Plurex::Data::Clips::Guid> : hash<Korv::Plurex::Data::Guid> {};
}  // namespace std

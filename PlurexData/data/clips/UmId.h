#pragma once

#include "PlurexData/Export.h"

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>

namespace Korv::Plurex::Data::Clips {

/// A clip's 8-character material identifier. Shorter text is padded with NULs, longer text cut to 8;
/// the ninth byte is always NUL. The unicode flag records that the identifier came from (and goes
/// back to) a UTF-16 field.
class PLUREXDATA_API UmId {
public:
    /// The characters of an identifier, without the NUL.
    static constexpr unsigned int Length = 8;

    /// Eight spaces, not unicode.
    UmId();
    /// Each goes through SetUmId; a null text throws std::invalid_argument("null pointer for UmId").
    ///@{
    explicit UmId(const char* text);
    explicit UmId(const std::string& text);
    UmId(const char* text, bool unicode);
    UmId(const std::string& text, bool unicode);
    ///@}

    static const UmId& UmIdVirtual();      ///< The shared "@VIRTUA!".
    static const UmId& UmIdWhite();        ///< The shared "@WHTCLP!".
    static const UmId& UmIdBlack();        ///< The shared "@BLKCLP!".
    static const UmId& UmIdEditPattern();  ///< The shared "@PLS###!".
    static const UmId& Empty();            ///< The shared eight spaces, not unicode.

    /// Copies `text` up to its first NUL or 8 characters, pads with NULs and sets the unicode flag
    /// (false when not given). A null `text` throws std::invalid_argument("null pointer for UmId") and
    /// leaves the identifier as it was.
    ///@{
    void SetUmId(const char* text);
    void SetUmId(const char* text, bool unicode);
    ///@}

    /// The 8 characters, NUL-terminated.
    const char* GetUmId() const noexcept { return text_; }
    /// Whether the identifier came from a UTF-16 field.
    bool IsUnicode() const noexcept { return unicode_; }

    /// 1 for a null `other`; else the difference of the first differing bytes (unsigned) among the
    /// first 8 characters, stopping at a NUL; 0 when they match.
    ///@{
    int CompareTo(const UmId& other) const noexcept;
    int CompareTo(const UmId* other) const noexcept;
    ///@}
    /// Same 8 characters and same unicode flag; false for a null `other`. Unlike ==, which ignores
    /// the flag: both are relied on.
    ///@{
    bool Equals(const UmId& other) const noexcept;
    bool Equals(const UmId* other) const noexcept;
    ///@}
    /// CompareTo against 0: the characters only, the unicode flag ignored.
    ///@{
    bool operator==(const UmId& other) const noexcept { return CompareTo(other) == 0; }
    bool operator!=(const UmId& other) const noexcept { return CompareTo(other) != 0; }
    ///@}
    /// CompareTo < 0: the characters only, the unicode flag ignored, as by ==.
    bool operator<(const UmId& other) const noexcept { return CompareTo(other) < 0; }
    /// A hash of the characters up to the first NUL, the unicode flag ignored as by ==; what std::hash
    /// uses.
    std::size_t Hash() const noexcept;
    /// The 8 characters up to the first NUL, as GetUmId() reads.
    std::string ToString() const;

    /// True for a null `id` or eight spaces, whatever the unicode flag.
    ///@{
    static bool IsNullOrEmpty(const UmId& id) noexcept;
    static bool IsNullOrEmpty(const UmId* id) noexcept;
    ///@}
    /// The 8 characters are "@VIRTUA!", whatever the unicode flag.
    static bool IsVirtualClip(const UmId& id) noexcept;
    /// The 8 characters are "@WHTCLP!", whatever the unicode flag.
    static bool IsWhiteClip(const UmId& id) noexcept;
    /// The 8 characters are "@BLKCLP!", whatever the unicode flag.
    static bool IsBlackClip(const UmId& id) noexcept;
    /// Begins with "@PLS", whatever follows.
    static bool IsMacroClip(const UmId& id) noexcept;
    /// Black, white or virtual: virtual clips count as pattern clips too.
    static bool IsPatternClip(const UmId& id) noexcept;
    /// The number nnn of "@PLSnnn!" (0 to 999); -1 when the identifier is not of that form.
    static int GetUmIdEditNumber(const UmId& id) noexcept;

private:
    char text_[Length + 1];
    bool unicode_;
};

/// Writes ToString(): the characters up to the first NUL, unquoted.
PLUREXDATA_API std::ostream& operator<<(std::ostream& out, const UmId& id);

}  // namespace Korv::Plurex::Data::Clips

namespace std {
/// Hashes through UmId::Hash, consistent with ==.
template <>
struct hash<Korv::Plurex::Data::Clips::UmId> {
    /// `id.Hash()`.
    size_t operator()(const Korv::Plurex::Data::Clips::UmId& id) const noexcept { return id.Hash(); }
};
}  // namespace std

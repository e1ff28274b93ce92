#include "PlurexData/data/clips/UmId.h"

#include "PlurexData/data/detail/Hash.h"

#include <cstring>
#include <ostream>
#include <stdexcept>

namespace Korv::Plurex::Data::Clips {

namespace {
constexpr char Spaces[] = "        ";
}  // namespace

UmId::UmId() : UmId(Spaces, false) {}

UmId::UmId(const char* text) : UmId(text, false) {}

UmId::UmId(const std::string& text) : UmId(text.c_str(), false) {}

UmId::UmId(const std::string& text, bool unicode) : UmId(text.c_str(), unicode) {}

UmId::UmId(const char* text, bool unicode) : text_{}, unicode_(false) {
    SetUmId(text, unicode);
}

const UmId& UmId::UmIdVirtual() {
    static const UmId id("@VIRTUA!");
    return id;
}

const UmId& UmId::UmIdWhite() {
    static const UmId id("@WHTCLP!");
    return id;
}

const UmId& UmId::UmIdBlack() {
    static const UmId id("@BLKCLP!");
    return id;
}

const UmId& UmId::UmIdEditPattern() {
    static const UmId id("@PLS###!");
    return id;
}

const UmId& UmId::Empty() {
    static const UmId id;
    return id;
}

void UmId::SetUmId(const char* text) {
    SetUmId(text, false);
}

void UmId::SetUmId(const char* text, bool unicode) {
    if (text == nullptr) {
        throw std::invalid_argument("null pointer for UmId");
    }
    std::size_t length = 0;
    while (length < Length && text[length] != '\0') {
        ++length;
    }
    std::memset(text_, 0, sizeof text_);
    std::memcpy(text_, text, length);
    unicode_ = unicode;
}

std::string UmId::ToString() const {
    return text_;
}

std::size_t UmId::Hash() const noexcept {
    // Up to the first NUL, where CompareTo stops; SetUmId leaves only NULs after it anyway.
    return Detail::Hasher().Bytes(reinterpret_cast<const unsigned char*>(text_), std::strlen(text_)).Get();
}

int UmId::CompareTo(const UmId& other) const noexcept {
    return CompareTo(&other);
}

int UmId::CompareTo(const UmId* other) const noexcept {
    if (other == nullptr) {
        return 1;
    }
    for (unsigned int i = 0; i < Length; ++i) {
        const auto mine = static_cast<unsigned char>(text_[i]);
        const auto theirs = static_cast<unsigned char>(other->text_[i]);
        if (mine != theirs) {
            return mine - theirs;
        }
        if (mine == '\0') {
            break;
        }
    }
    return 0;
}

bool UmId::Equals(const UmId& other) const noexcept {
    return Equals(&other);
}

bool UmId::Equals(const UmId* other) const noexcept {
    return other != nullptr && CompareTo(other) == 0 && unicode_ == other->unicode_;
}

bool UmId::IsNullOrEmpty(const UmId& id) noexcept {
    return IsNullOrEmpty(&id);
}

bool UmId::IsNullOrEmpty(const UmId* id) noexcept {
    return id == nullptr || std::memcmp(id->text_, Spaces, Length) == 0;
}

bool UmId::IsVirtualClip(const UmId& id) noexcept {
    return std::memcmp(id.text_, "@VIRTUA!", Length) == 0;
}

bool UmId::IsWhiteClip(const UmId& id) noexcept {
    return std::memcmp(id.text_, "@WHTCLP!", Length) == 0;
}

bool UmId::IsBlackClip(const UmId& id) noexcept {
    return std::memcmp(id.text_, "@BLKCLP!", Length) == 0;
}

bool UmId::IsMacroClip(const UmId& id) noexcept {
    return std::memcmp(id.text_, "@PLS", 4) == 0;
}

bool UmId::IsPatternClip(const UmId& id) noexcept {
    return IsBlackClip(id) || IsWhiteClip(id) || IsVirtualClip(id);
}

int UmId::GetUmIdEditNumber(const UmId& id) noexcept {
    if (std::memcmp(id.text_, "@PLS", 4) != 0 || id.text_[7] != '!') {
        return -1;
    }
    int number = 0;
    for (unsigned int i = 4; i < 7; ++i) {
        const char c = id.text_[i];
        if (c < '0' || c > '9') {
            return -1;
        }
        number = number * 10 + (c - '0');
    }
    return number;
}

std::ostream& operator<<(std::ostream& out, const UmId& id) {
    return out << id.ToString();
}

}  // namespace Korv::Plurex::Data::Clips

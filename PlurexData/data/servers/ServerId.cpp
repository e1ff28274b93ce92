#include "PlurexData/data/servers/ServerId.h"

#include "PlurexData/data/detail/DecimalText.h"
#include "PlurexData/data/detail/Hash.h"

#include <ostream>
#include <stdexcept>

namespace Korv::Plurex::Data::Servers {

namespace {

int Validated(int id) {
    if (id != -1 && (id <= 0 || id % 10 != 0)) {
        throw std::invalid_argument("invalid ServerId");
    }
    return id;
}

const ServerId& NonNull(const ServerId* other) {
    if (other == nullptr) {
        throw std::invalid_argument("null ServerId");
    }
    return *other;
}

}  // namespace

ServerId::ServerId(int id) : id_(Validated(id)) {}

ServerId::ServerId(const ServerId* other) : id_(NonNull(other).id_) {}

const ServerId& ServerId::None() {
    static const ServerId none(-1);
    return none;
}

int ServerId::CompareTo(const ServerId& other) const noexcept {
    return CompareTo(&other);
}

int ServerId::CompareTo(const ServerId* other) const noexcept {
    // Valid numbers lie in [-1, 2147483640], so the difference cannot overflow.
    return other == nullptr ? 1 : id_ - other->id_;
}

bool ServerId::Equals(const ServerId& other) const noexcept {
    return Equals(&other);
}

bool ServerId::Equals(const ServerId* other) const noexcept {
    return other != nullptr && id_ == other->id_;
}

std::string ServerId::ToString() const {
    std::string text;
    Detail::AppendSpacePadded(text, id_, 5);
    return text;
}

std::size_t ServerId::Hash() const noexcept {
    return Detail::Hasher().Int(id_).Get();
}

std::ostream& operator<<(std::ostream& out, const ServerId& id) {
    return out << id.ToString();
}

}  // namespace Korv::Plurex::Data::Servers

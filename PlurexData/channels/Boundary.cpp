#include "PlurexData/channels/Boundary.h"

namespace Korv::Plurex::Data::Channels {

// Defined here so that the class's type information and virtual table live in the library.
Boundary::~Boundary() = default;

bool Boundary::operator==(const Boundary& other) const {
    return Equals(other);
}

}  // namespace Korv::Plurex::Data::Channels

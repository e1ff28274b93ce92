#pragma once

#include "PlurexData/Export.h"

#include <memory>

namespace Korv::Plurex::Data::Channels {

// A limit of a player's range (its in or out point), of one of several kinds. It has value semantics
// through Clone: holders copy a boundary by cloning it.
class PLUREXDATA_API Boundary {
public:
    virtual ~Boundary();

    // A new copy of the same dynamic type.
    virtual std::unique_ptr<Boundary> Clone() const = 0;
    bool operator==(const Boundary& other) const { return Equals(other); }
    virtual bool Equals(const Boundary& other) const = 0;
    virtual bool IsEmpty() const = 0;
    // The kind of boundary (0: absolute).
    virtual int GetType() const = 0;

protected:
    Boundary() = default;
    Boundary(const Boundary&) = default;
    Boundary& operator=(const Boundary&) = default;
};

}  // namespace Korv::Plurex::Data::Channels

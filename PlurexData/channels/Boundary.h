#pragma once

#include "PlurexData/Export.h"

#include <memory>

namespace Korv::Plurex::Data::Channels {

/// A limit of a player's range (its in or out point), of one of several kinds. It has value semantics
/// through Clone: holders copy a boundary by cloning it.
class PLUREXDATA_API Boundary {
public:
    virtual ~Boundary();

    /// A new copy of the same dynamic type.
    virtual std::unique_ptr<Boundary> Clone() const = 0;
    /// Equals(other), so the left operand's kind decides. Virtual, after Clone and before Equals in
    /// the virtual table, so a kind of boundary may give its own.
    virtual bool operator==(const Boundary& other) const;
    /// Whether `other` is a boundary of the same kind at the same limit.
    virtual bool Equals(const Boundary& other) const = 0;
    /// Whether the boundary sets no limit; a player state's boundaries start empty.
    virtual bool IsEmpty() const = 0;
    /// The kind of boundary (0: absolute).
    virtual int GetType() const = 0;

protected:
    Boundary() = default;
    /// For derived classes only: holders copy through Clone, which keeps the dynamic type.
    ///@{
    Boundary(const Boundary&) = default;
    Boundary& operator=(const Boundary&) = default;
    ///@}
};

}  // namespace Korv::Plurex::Data::Channels

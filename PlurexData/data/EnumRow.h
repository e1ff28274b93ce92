#pragma once

#include <string>
#include <vector>

namespace Korv::Plurex::Data {

/// One row of an enumeration's table: a value and its name.
template <class E>
struct EnumRow {
    /// The value.
    E value;
    /// The name: the very string ToString(value) returns, stored once for the life of the process.
    const std::string& name;
    /// Whether `value` is the table's default, the value that unknown names read as and whose name
    /// unknown values print as.
    bool isDefault;
};

/// Selects the RowsOf overload of the enumeration E; carries nothing.
template <class E>
struct EnumTag {};

/// The rows of the table of the enumeration E, in the order the table gives them (for every clip
/// and essence enumeration, ascending value), its default marked: `GetRows<Clips::Camera>()`.
/// A table that repeats a value lists only its first row, the one ToString reads. Each enumeration
/// exports its rows as an overload `RowsOf(EnumTag<E>)` declared beside it, found here by
/// argument-dependent lookup; an enumeration without one does not compile.
template <class E>
const std::vector<EnumRow<E>>& GetRows() noexcept {
    return RowsOf(EnumTag<E>{});
}

}  // namespace Korv::Plurex::Data

#pragma once

// What the parts of the plurexdata module share: the calls that add each part, and the making of
// Python enumerations from the library's tables.

#include "PlurexData/data/EnumRow.h"

#include <pybind11/pybind11.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace PlurexPython {

namespace py = pybind11;

void BindClips(py::module_& module);
void BindEnumerations(py::module_& module);
void BindIdentifiers(py::module_& module);
void BindText(py::module_& module);
void BindTimeCodes(py::module_& module);
void BindChannels(py::module_& module);

/// An enum.IntEnum named `name` in `scope` with the given members; a value none of them has reads as
/// the member named `fallback` (no fallback: a ValueError, as any IntEnum raises).
py::object MakeIntEnum(py::handle scope, const char* name,
                       const std::vector<std::pair<std::string, std::int64_t>>& members,
                       const std::string& fallback = {});

/// An enum.IntFlag named `name` in `scope`, for a bit mask: any combination of the members' bits is a
/// value of it.
py::object MakeIntFlag(py::handle scope, const char* name,
                       const std::vector<std::pair<std::string, std::int64_t>>& members);

/// The member of an enumeration made by MakeIntEnum without fallback that has `value`, or the plain
/// int when none has: for the enumerations whose every 32-bit value is valid, named or not.
py::object EnumOrInt(const py::object& enumeration, std::int64_t value);

/// The IntEnum of a library table: its rows in the table's order, and its default for the values the
/// table does not name, as ToString prints them.
template <class E>
py::object MakeTableEnum(py::handle scope, const char* name) {
    std::vector<std::pair<std::string, std::int64_t>> members;
    std::string fallback;
    for (const auto& row : Korv::Plurex::Data::GetRows<E>()) {
        members.emplace_back(row.name, static_cast<std::int64_t>(row.value));
        if (row.isDefault) {
            fallback = row.name;
        }
    }
    return MakeIntEnum(scope, name, members, fallback);
}

/// Bytes that carry ISO 8859-1 text (identifiers, the names in a record) as a Python string, one
/// character a byte, through the library's conversion.
py::str FromLatin1(std::string_view bytes);

/// A Python string as ISO 8859-1 bytes: ValueError with the library's message for a character that
/// charset lacks.
std::string ToLatin1(std::string_view utf8);

/// `<`, `<=`, `>` and `>=` of a class from its `<`; `==` and `!=` from its own, and the hash from Hash().
template <class T, class Class>
void DefineComparisons(Class& cls) {
    cls.def(
           "__eq__", [](const T& self, const T& other) { return self == other; }, py::is_operator())
        .def(
            "__ne__", [](const T& self, const T& other) { return self != other; }, py::is_operator())
        .def(
            "__lt__", [](const T& self, const T& other) { return self < other; }, py::is_operator())
        .def(
            "__le__", [](const T& self, const T& other) { return !(other < self); }, py::is_operator())
        .def(
            "__gt__", [](const T& self, const T& other) { return other < self; }, py::is_operator())
        .def(
            "__ge__", [](const T& self, const T& other) { return !(self < other); }, py::is_operator())
        .def("__hash__", [](const T& self) { return self.Hash(); });
}

}  // namespace PlurexPython

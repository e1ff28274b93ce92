#pragma once

// What the parts of the plurexdata module share: the calls that add each part, and the making of
// Python enumerations from the library's tables.

#include "PlurexData/data/EnumRow.h"
#include "PlurexData/data/Value.h"

#include <pybind11/pybind11.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
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
void BindNotifications(py::module_& module);
void BindCuePoints(py::module_& module);

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

/// A reference to a Python object that C++ owners may copy and drop on any thread, the GIL held or
/// not: copies share the one reference, and the last owner takes the GIL to release it. What the
/// library keeps (callbacks in std::function, arguments in a queue) holds Python objects this way.
class GilObject {
public:
    explicit GilObject(py::object object) : holder_(std::make_shared<Holder>(std::move(object))) {}

    /// The object; only with the GIL held.
    const py::object& Get() const noexcept { return holder_->object; }

    /// A pointer to `part` (the C++ value inside the object) that keeps the object alive as long
    /// as any copy of it.
    template <class T>
    std::shared_ptr<T> Share(T* part) const noexcept {
        return std::shared_ptr<T>(holder_, part);
    }

private:
    struct Holder {
        explicit Holder(py::object o) noexcept : object(std::move(o)) {}
        Holder(const Holder&) = delete;
        Holder& operator=(const Holder&) = delete;
        ~Holder() {
            if (!Py_IsInitialized()) {
                // The interpreter is gone and the reference with it: nothing is left to release.
                object.release();
                return;
            }
            py::gil_scoped_acquire gil;
            object = py::object();
        }
        py::object object;
    };
    std::shared_ptr<Holder> holder_;
};

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

/// A fixed number of values as a tuple: a field read whole and written whole, where a list would take
/// an item's assignment and lose it.
template <class Values>
py::tuple Tuple(const Values& values) {
    py::tuple tuple(std::size(values));
    for (std::size_t i = 0; i < std::size(values); ++i) {
        tuple[i] = py::cast(values[i]);
    }
    return tuple;
}

/// Writes `values` over the fixed-size field `target`, or, for another count, changes nothing and
/// raises ValueError("<name> takes N values, got M").
template <class Target, class T>
void AssignWhole(Target& target, const std::vector<T>& values, const char* name) {
    if (values.size() != std::size(target)) {
        throw py::value_error(std::string(name) + " takes " + std::to_string(std::size(target)) +
                              " values, got " + std::to_string(values.size()));
    }
    std::copy(values.begin(), values.end(), std::begin(target));
}

/// A read-write property over a fixed-size field of T, read as a tuple and written whole.
template <class T, class Owner, class Field, class Class>
void DefineWhole(Class& cls, const char* name, Field Owner::*field, const char* doc) {
    cls.def_property(
        name, [field](const Owner& self) { return Tuple(self.*field); },
        [field, name](Owner& self, const std::vector<T>& values) { AssignWhole(self.*field, values, name); },
        doc);
}

/// The JSON-shaped value tree of the library as Python objects (None, bool, int, float, str, list,
/// dict), as the tool prints it.
py::object ToPython(const Korv::Plurex::Data::Value& value);

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

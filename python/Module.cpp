// The plurexdata extension module: the library's data model for Python, call for call.
#include "Bindings.h"

#include "PlurexData/Version.h"
#include "PlurexData/unicode/Transcode.h"

namespace PlurexPython {

namespace {

// A class of the enum module (IntEnum, IntFlag) named `name` in `scope`, with the given members.
py::object MakeEnumeration(const char* kind, py::handle scope, const char* name,
                           const std::vector<std::pair<std::string, std::int64_t>>& members) {
    py::list pairs;
    for (const auto& [member, value] : members) {
        pairs.append(py::make_tuple(member, value));
    }
    const py::object moduleName =
        py::isinstance<py::module_>(scope) ? scope.attr("__name__") : scope.attr("__module__");
    std::string qualifiedName = name;
    if (!py::isinstance<py::module_>(scope)) {
        qualifiedName = py::str(scope.attr("__qualname__")).cast<std::string>() + "." + name;
    }
    py::object enumeration = py::module_::import("enum").attr(kind)(
        name, pairs, py::arg("module") = moduleName, py::arg("qualname") = qualifiedName);
    scope.attr(name) = enumeration;
    return enumeration;
}

}  // namespace

py::object MakeIntEnum(py::handle scope, const char* name,
                       const std::vector<std::pair<std::string, std::int64_t>>& members,
                       const std::string& fallback) {
    py::object enumeration = MakeEnumeration("IntEnum", scope, name, members);
    if (!fallback.empty()) {
        // Enum calls _missing_ for a value no member has: the table's default answers, as the
        // library's ToString does.
        const py::object member = enumeration.attr("__getitem__")(fallback);
        py::cpp_function missing([member](const py::object&, const py::object&) { return member; });
        enumeration.attr("_missing_") = py::module_::import("builtins").attr("classmethod")(missing);
    }
    return enumeration;
}

py::object MakeIntFlag(py::handle scope, const char* name,
                       const std::vector<std::pair<std::string, std::int64_t>>& members) {
    return MakeEnumeration("IntFlag", scope, name, members);
}

py::object EnumOrInt(const py::object& enumeration, std::int64_t value) {
    return enumeration.attr("_value2member_map_").attr("get")(value, py::int_(value));
}

namespace Unicode = Korv::Plurex::Unicode;

py::str FromLatin1(std::string_view bytes) {
    return py::str(Unicode::Transcode(bytes, Unicode::Charset::CodePage28591, Unicode::Charset::Utf8));
}

std::string ToLatin1(std::string_view utf8) {
    return Unicode::TranscodeStrict(utf8, Unicode::Charset::Utf8, Unicode::Charset::CodePage28591);
}

}  // namespace PlurexPython

PYBIND11_MODULE(plurexdata, module) {
    module.doc() = "The data model of a networked broadcast video-server installation.";
    module.attr("__version__") = Korv::Plurex::Version();
    PlurexPython::BindEnumerations(module);
    PlurexPython::BindIdentifiers(module);
    PlurexPython::BindTimeCodes(module);
    PlurexPython::BindClips(module);
    PlurexPython::BindText(module);
    PlurexPython::BindChannels(module);
    // Before the cue points: their change event derives from EventArgs.
    PlurexPython::BindNotifications(module);
    PlurexPython::BindCuePoints(module);
}

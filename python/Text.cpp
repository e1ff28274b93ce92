// Text conversion between the library's charsets, by name.
#include "Bindings.h"

#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/Transcode.h"

#include <pybind11/stl.h>

#include <vector>

namespace PlurexPython {

namespace Unicode = Korv::Plurex::Unicode;

namespace {

// Converts with the interpreter free for other threads: the input is copied out of the bytes first.
template <void (*Convert)(std::string_view, Unicode::Charset, Unicode::Charset, std::string&)>
py::bytes Converted(const py::bytes& data, const std::string& source, const std::string& target) {
    const Unicode::Charset from = Unicode::ToCharset(source);
    const Unicode::Charset to = Unicode::ToCharset(target);
    const std::string input(data);
    std::string output;
    {
        py::gil_scoped_release released;
        Convert(input, from, to, output);
    }
    return py::bytes(output);
}

}  // namespace

void BindText(py::module_& module) {
    module.def("transcode", &Converted<Unicode::Transcode>, py::arg("data"), py::arg("source"),
               py::arg("target"),
               "`data` from one charset into another: malformed bytes dropped, characters the target lacks "
               "replaced. ValueError for an unknown charset name.");
    module.def("transcode_strict", &Converted<Unicode::TranscodeStrict>, py::arg("data"), py::arg("source"),
               py::arg("target"),
               "As transcode, but ValueError at the first byte that is no character or character the target "
               "lacks, naming its byte offset.");
    module.def(
        "charset_names",
        [] {
            std::vector<std::string> names;
            for (const Unicode::Charset charset : Unicode::GetCharsets()) {
                names.push_back(Unicode::ToString(charset));
            }
            return names;
        },
        "The canonical names of the charsets, as transcode takes them.");
    module.def(
        "charset_aliases",
        [](const std::string& name) { return Unicode::GetAliases(Unicode::ToCharset(name)); },
        py::arg("name"), "The other names transcode accepts for the charset `name`.");
}

}  // namespace PlurexPython

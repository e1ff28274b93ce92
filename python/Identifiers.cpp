// The GUIDs and identifiers: Guid and the server, clip and channel GUIDs; ServerId, TimelineId,
// KepId and UmId.
#include "Bindings.h"

#include "PlurexData/PlurexData.h"

#include <pybind11/stl.h>

#include <optional>

namespace PlurexPython {

namespace Data = Korv::Plurex::Data;
using Data::Clips::KepId;
using Data::Clips::UmId;
using Data::Servers::ServerId;
using Data::Timelines::TimelineId;

namespace {

std::string Bytes(const py::bytes& data) {
    return std::string(data);
}

template <class T>
std::string Quoted(const char* name, const T& value) {
    return std::string(name) + "('" + value.ToString() + "')";
}

void BindGuids(py::module_& module) {
    py::class_<Data::Guid> guid(module, "Guid",
                                "A 128-bit identifier, held as 16 bytes in the order of its text form.");
    guid.def(py::init<>(), "A fresh random version-4 identifier.")
        .def(py::init([](const py::bytes& data) {
                 const std::string bytes = Bytes(data);
                 return Data::Guid(reinterpret_cast<const unsigned char*>(bytes.data()),
                                   static_cast<unsigned int>(bytes.size()));
             }),
             py::arg("data"), "All zero, then the first 16 bytes of `data`.")
        .def_static("empty", &Data::Guid::Empty, "The all-zero Guid.")
        .def_static("parse", &Data::Guid::FromString, py::arg("text"),
                    "The 36-character hyphenated form, in either case; the empty Guid for anything else.")
        .def_static("try_parse", &Data::Guid::TryParse, py::arg("text"),
                    "The texts parse accepts; None for any other.")
        .def("__str__", &Data::Guid::ToString)
        .def("__repr__", [](const Data::Guid& self) { return Quoted("Guid", self); })
        .def("__bytes__",
             [](const Data::Guid& self) {
                 unsigned char bytes[Data::Guid::Size];
                 self.ToBinary(bytes, Data::Guid::Size);
                 return py::bytes(reinterpret_cast<const char*>(bytes), Data::Guid::Size);
             })
        .def("compare_to", &Data::Guid::CompareTo, py::arg("other"),
             "The difference of the first differing bytes; 0 when all 16 match.");
    DefineComparisons<Data::Guid>(guid);

    py::class_<Data::Servers::Guid, Data::Guid> server(
        module, "ServerGuid", "The identity of a server: its type and machine serial.");
    const py::object serverType =
        MakeIntEnum(server, "Type", {{"None", 0}, {"Primary", 1}, {"Secondary", 2}}, "None");
    server.attr("NO_MACHINE_SERIAL") = Data::Servers::Guid::NoMachineSerial;
    server.def(py::init<>(), "The all-zero identity.")
        .def(py::init([](int type, unsigned int machineSerial) {
                 return Data::Servers::Guid(static_cast<Data::Servers::Guid::Type>(type), machineSerial);
             }),
             py::arg("type"), py::arg("machine_serial"))
        .def(py::init<const Data::Guid&>(), py::arg("guid"), "The same 16 bytes, read as a server identity.")
        .def_property_readonly("server_type",
                               [serverType](const Data::Servers::Guid& self) {
                                   return serverType(static_cast<int>(self.ServerType()));
                               })
        .def_property_readonly("machine_serial", &Data::Servers::Guid::MachineSerial)
        .def("__repr__", [](const Data::Servers::Guid& self) { return Quoted("ServerGuid", self); });

    py::class_<Data::Clips::Guid, Data::Guid> clip(module, "ClipGuid", "The identity of a clip.");
    clip.def(py::init<>(), "The all-zero identity.")
        .def(py::init([](const py::bytes& data) { return Data::Clips::Guid(Bytes(data)); }), py::arg("data"),
             "All zero, then the first 16 bytes of `data`.")
        .def_static("parse", &Data::Clips::Guid::FromString, py::arg("text"),
                    "The 36-character hyphenated form; the empty identity for anything else.")
        .def_property_readonly(
            "umid", [](const Data::Clips::Guid& self) { return FromLatin1(self.UmId()); },
            "The bytes up to the first zero, at most 16, as text.")
        .def("__repr__", [](const Data::Clips::Guid& self) { return Quoted("ClipGuid", self); });

    py::class_<Data::Channels::Guid, Data::Guid> channel(
        module, "ChannelGuid", "The identity of a channel: its type, index and machine serial.");
    const py::object channelType =
        MakeIntEnum(channel, "Type", {{"First", 0}, {"Second", 1}, {"None", 2}}, "None");
    channel.def(py::init<>(), "The all-zero identity.")
        .def(py::init([](int type, int channelIndex, unsigned int machineSerial) {
                 return Data::Channels::Guid(static_cast<Data::Channels::Guid::Type>(type), channelIndex,
                                             machineSerial);
             }),
             py::arg("type"), py::arg("channel_index"), py::arg("machine_serial"))
        .def(py::init<const Data::Guid&>(), py::arg("guid"), "The same 16 bytes, read as a channel GUID.")
        .def_static("parse", &Data::Channels::Guid::FromString, py::arg("text"))
        .def_property_readonly("channel_type",
                               [channelType](const Data::Channels::Guid& self) {
                                   return channelType(static_cast<int>(self.ChannelType()));
                               })
        .def_property_readonly("channel_index", &Data::Channels::Guid::ChannelIndex)
        .def_property_readonly("machine_serial", &Data::Channels::Guid::MachineSerial)
        .def("__repr__", [](const Data::Channels::Guid& self) { return Quoted("ChannelGuid", self); });
}

void BindIds(py::module_& module) {
    py::class_<ServerId> serverId(module, "ServerId",
                                  "A server's number: -1 (none) or a positive multiple of 10.");
    serverId.def(py::init<int>(), py::arg("id"))
        .def_static("none", &ServerId::None)
        .def_property_readonly("value", &ServerId::GetValue)
        .def("compare_to", py::overload_cast<const ServerId&>(&ServerId::CompareTo, py::const_),
             py::arg("other"))
        .def("__str__", &ServerId::ToString)
        .def("__repr__",
             [](const ServerId& self) { return "ServerId(" + std::to_string(self.GetValue()) + ")"; });
    DefineComparisons<ServerId>(serverId);

    py::class_<TimelineId> timelineId(module, "TimelineId", "A timeline: its number (0 to 109) on a server.");
    timelineId.def(py::init<>())
        .def(py::init<int, const ServerId&>(), py::arg("number"), py::arg("server_id"))
        .def_property("number", &TimelineId::GetNumber, &TimelineId::SetNumber)
        .def_property("server_id", &TimelineId::GetServerId,
                      py::overload_cast<const ServerId&>(&TimelineId::SetServerId))
        .def("compare_to", py::overload_cast<const TimelineId&>(&TimelineId::CompareTo, py::const_),
             py::arg("other"))
        .def("is_null_or_empty", [](const TimelineId& self) { return TimelineId::IsNullOrEmpty(self); })
        .def("__str__", &TimelineId::ToString)
        .def("__repr__", [](const TimelineId& self) { return Quoted("TimelineId", self); });
    DefineComparisons<TimelineId>(timelineId);

    py::class_<KepId> kepId(module, "KepId", "A clip's place on a server: page, bank, clip and camera.");
    kepId.def(py::init<>())
        .def(py::init<int, int, int, char, const ServerId&>(), py::arg("page"), py::arg("bank"),
             py::arg("clip"), py::arg("camera"), py::arg("server_id"))
        .def(py::init<int, char, const ServerId&>(), py::arg("position"), py::arg("camera"),
             py::arg("server_id"))
        .def_static("empty", &KepId::Empty)
        .def_property("page", &KepId::GetPage, &KepId::SetPage)
        .def_property("bank", &KepId::GetBank, &KepId::SetBank)
        .def_property("clip", &KepId::GetClip, &KepId::SetClip)
        .def_property("position", &KepId::GetPosition, py::overload_cast<int>(&KepId::SetPosition))
        .def("set_position", py::overload_cast<int, int, int>(&KepId::SetPosition), py::arg("page"),
             py::arg("bank"), py::arg("clip"))
        .def_property("camera", &KepId::GetCamera, &KepId::SetCamera)
        .def_property("server_id", &KepId::GetServerId,
                      py::overload_cast<const ServerId&>(&KepId::SetServerId))
        .def("compare_to", py::overload_cast<const KepId&>(&KepId::CompareTo, py::const_), py::arg("other"))
        .def("is_null_or_empty", [](const KepId& self) { return KepId::IsNullOrEmpty(self); })
        .def("__str__", &KepId::ToString)
        .def("__repr__", [](const KepId& self) { return Quoted("KepId", self); });
    DefineComparisons<KepId>(kepId);

    py::class_<UmId> umId(module, "UmId",
                          "A clip's 8-character identity, and whether it was written as UTF-16.");
    umId.def(py::init<>(), "Eight spaces.")
        .def(py::init([](const std::string& text, bool unicode) { return UmId(ToLatin1(text), unicode); }),
             py::arg("text"), py::arg("unicode") = false, "The first 8 characters of `text`, zero-padded.")
        .def_static("virtual", &UmId::UmIdVirtual)
        .def_static("white", &UmId::UmIdWhite)
        .def_static("black", &UmId::UmIdBlack)
        .def_static("edit_pattern", &UmId::UmIdEditPattern)
        .def_static("empty", &UmId::Empty)
        .def_property_readonly("unicode", &UmId::IsUnicode)
        .def("equals", py::overload_cast<const UmId&>(&UmId::Equals, py::const_), py::arg("other"),
             "The characters and the UTF-16 mark alike (== compares the characters alone).")
        .def("compare_to", py::overload_cast<const UmId&>(&UmId::CompareTo, py::const_), py::arg("other"))
        .def("is_null_or_empty", [](const UmId& self) { return UmId::IsNullOrEmpty(self); })
        .def("is_virtual_clip", &UmId::IsVirtualClip)
        .def("is_white_clip", &UmId::IsWhiteClip)
        .def("is_black_clip", &UmId::IsBlackClip)
        .def("is_macro_clip", &UmId::IsMacroClip)
        .def("is_pattern_clip", &UmId::IsPatternClip)
        .def_property_readonly("edit_number", &UmId::GetUmIdEditNumber, "nnn of \"@PLSnnn!\", else -1.")
        .def("__str__", [](const UmId& self) { return FromLatin1(self.ToString()); })
        .def("__repr__", [](const UmId& self) {
            return py::str("UmId({!r}, unicode={})").format(FromLatin1(self.ToString()), self.IsUnicode());
        });
    DefineComparisons<UmId>(umId);
}

}  // namespace

void BindIdentifiers(py::module_& module) {
    BindGuids(module);
    BindIds(module);
}

}  // namespace PlurexPython

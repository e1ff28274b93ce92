// The clip: its fields as properties (texts through the library's text calls, attributes as the
// enumerations), its essences, and the 290-byte record in either byte order.
#include "Bindings.h"

#include "PlurexData/PlurexData.h"

#include <pybind11/operators.h>
#include <pybind11/stl.h>

#include <cstring>
#include <stdexcept>
#include <type_traits>

namespace PlurexPython {

namespace Data = Korv::Plurex::Data;
namespace Clips = Korv::Plurex::Data::Clips;
namespace Essences = Korv::Plurex::Data::Clips::Essences;
namespace Unicode = Korv::Plurex::Unicode;
using Clips::Clip;
using Clips::Serializer;
using Clips::TextField;
using Korv::TimePoints::TimeCode;

namespace {

// The member of `enumeration` with this value; the number itself where the table names none, so that
// nothing a record carries is lost on the way.
py::object Named(const py::object& enumeration, std::int64_t value) {
    const py::dict members = enumeration.attr("_value2member_map_");
    const py::int_ key(value);
    return members.contains(key) ? members[key] : py::object(key);
}

// A field of enumeration type E: read as Named, written as any value of its underlying type.
template <class Owner, class E>
void EnumField(py::class_<Owner>& cls, const char* name, E Owner::*field, py::object enumeration) {
    using Underlying = std::underlying_type_t<E>;
    cls.def_property(
        name,
        [enumeration, field](const Owner& self) {
            return Named(enumeration, static_cast<Underlying>(self.*field));
        },
        [field](Owner& self, Underlying value) { self.*field = static_cast<E>(value); });
}

// A text property in ISO 8859-1 (the library's default for 8-bit texts) that keeps the field's form.
void TextProperty(py::class_<Clip>& cls, const char* name, TextField field) {
    cls.def_property(
        name, [field](const Clip& self) { return Clips::GetTextUtf8(self, field); },
        [field](Clip& self, const std::string& text) {
            Clips::SetTextUtf8(self, field, text, Clips::IsTextUtf16(self, field));
        });
}

Unicode::Charset Charset(const std::string& name) {
    return Unicode::ToCharset(name);
}

std::string Bytes(const py::bytes& data) {
    return std::string(data);
}

// Python's objects as a value tree: dicts with string keys, lists and tuples, and the scalars JSON has.
Data::Value FromPython(const py::handle& object) {
    if (object.is_none()) {
        return Data::Value();
    }
    if (py::isinstance<py::bool_>(object)) {  // before int: a bool is an int in Python
        return Data::Value(object.cast<bool>());
    }
    if (py::isinstance<py::int_>(object)) {
        if (object.cast<py::int_>() < py::int_(0)) {
            return Data::Value(object.cast<std::int64_t>());
        }
        return Data::Value(object.cast<std::uint64_t>());
    }
    if (py::isinstance<py::float_>(object)) {
        return Data::Value(object.cast<double>());
    }
    if (py::isinstance<py::str>(object)) {
        return Data::Value(object.cast<std::string>());
    }
    if (py::isinstance<py::dict>(object)) {
        Data::Value members = Data::Value::Object();
        for (const auto& [key, member] : object.cast<py::dict>()) {
            if (!py::isinstance<py::str>(key)) {
                throw py::type_error("dict keys must be str, not " +
                                     py::str(py::type::of(key).attr("__name__")).cast<std::string>());
            }
            members.Set(key.cast<std::string>(), FromPython(member));
        }
        return members;
    }
    if (py::isinstance<py::list>(object) || py::isinstance<py::tuple>(object)) {
        Data::Value items = Data::Value::Array();
        for (const py::handle item : object) {
            items.Append(FromPython(item));
        }
        return items;
    }
    throw py::type_error("cannot read a " +
                         py::str(py::type::of(object).attr("__name__")).cast<std::string>() +
                         " as a clip value");
}

// The bytes of `data`, which must hold at least one record of `size` bytes: ValueError("<what> is
// <size> bytes, got N") otherwise, where the library would read nothing and say only 0.
std::string Record(const py::bytes& data, unsigned int size, const char* what) {
    std::string bytes = Bytes(data);
    if (bytes.size() < size) {
        throw py::value_error(std::string(what) + " is " + std::to_string(size) + " bytes, got " +
                              std::to_string(bytes.size()));
    }
    return bytes;
}

const unsigned char* Unsigned(const std::string& bytes) {
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

void BindEssence(py::class_<Clip>& clip, const py::module_& module) {
    const py::module_ essences = module.attr("essences");
    py::class_<Clip::Essence> essence(clip, "Essence", "One of a clip's three essences.");
    essence.attr("RECORD_SIZE") = Serializer::EssenceSize;
    essence.def(py::init<>(), "All zero.")
        .def(
            "to_bytes",
            [](const Clip::Essence& self, bool bigEndian) {
                unsigned char record[Serializer::EssenceSize];
                Serializer::SaveEssenceToBuffer(self, record, Serializer::EssenceSize, bigEndian);
                return py::bytes(reinterpret_cast<const char*>(record), Serializer::EssenceSize);
            },
            py::arg("big_endian") = false,
            "The 15 bytes of the essence in a record; its type is not written.")
        .def(
            "load_bytes",
            [](Clip::Essence& self, const py::bytes& data, bool bigEndian) {
                const std::string record = Record(data, Serializer::EssenceSize, "an essence record");
                Serializer::LoadEssenceFromBuffer(Unsigned(record), Serializer::EssenceSize, self, bigEndian);
            },
            py::arg("data"), py::arg("big_endian") = false,
            "Reads the first 15 bytes of `data` into this essence, whose type decides which values its "
            "setters keep.")
        .def(py::init([](int type) { return Clip::Essence(static_cast<Essences::Type>(type)); }),
             py::arg("type"), "The defaults of the type.")
        .def(
            "clear", [](Clip::Essence& self, int type) { self.Clear(static_cast<Essences::Type>(type)); },
            py::arg("type"))
        .def(
            "set_metadata",
            [](Clip::Essence& self, int value) {
                return self.Metadata(static_cast<Essences::Metadata>(value));
            },
            py::arg("value"), "False, and nothing changed, for a value the essence's type does not take.")
        .def(
            "set_video_compression_type",
            [](Clip::Essence& self, int value) {
                return self.VideoCompressionType(static_cast<Essences::VideoCompressionType>(value));
            },
            py::arg("value"))
        .def(
            "set_audio_compression_type",
            [](Clip::Essence& self, int value) {
                return self.AudioCompressionType(static_cast<Essences::AudioCompressionType>(value));
            },
            py::arg("value"))
        .def(
            "set_video_compression_info",
            [](Clip::Essence& self, int value) {
                return self.VideoCompressionInfo(static_cast<Essences::VideoCompressionInfo>(value));
            },
            py::arg("value"))
        .def_readwrite("flag", &Clip::Essence::flag)
        .def_readwrite("field2", &Clip::Essence::field2)
        .def_readwrite("field4", &Clip::Essence::field4)
        .def_readwrite("value1", &Clip::Essence::value1)
        .def_readwrite("value2", &Clip::Essence::value2)
        .def_readwrite("value3", &Clip::Essence::value3)
        .def_readwrite("value4", &Clip::Essence::value4)
        .def(py::self == py::self)
        .def(py::self != py::self);
    EnumField(essence, "type", &Clip::Essence::type, essences.attr("Type"));
    EnumField(essence, "metadata", &Clip::Essence::metadata, essences.attr("Metadata"));
    EnumField(essence, "video_compression_type", &Clip::Essence::videoCompressionType,
              essences.attr("VideoCompressionType"));
    EnumField(essence, "audio_compression_type", &Clip::Essence::audioCompressionType,
              essences.attr("AudioCompressionType"));
    EnumField(essence, "video_compression_info", &Clip::Essence::videoCompressionInfo,
              essences.attr("VideoCompressionInfo"));
}

}  // namespace

// Objects as dicts in their order, arrays as lists.
py::object ToPython(const Data::Value& value) {
    switch (value.GetKind()) {
        case Data::Value::Kind::Null:
            return py::none();
        case Data::Value::Kind::Bool:
            return py::bool_(value.AsBool());
        case Data::Value::Kind::Int:
            return py::int_(value.AsInt64());
        case Data::Value::Kind::UInt:
            return py::int_(value.AsUInt64());
        case Data::Value::Kind::Double:
            return py::float_(value.AsDouble());
        case Data::Value::Kind::String:
            return py::str(value.AsString());
        case Data::Value::Kind::Array: {
            py::list items;
            for (const Data::Value& item : value.Items()) {
                items.append(ToPython(item));
            }
            return std::move(items);
        }
        case Data::Value::Kind::Object: {
            py::dict members;
            for (const auto& [key, member] : value.Members()) {
                members[py::str(key)] = ToPython(member);
            }
            return std::move(members);
        }
    }
    throw std::logic_error("a value of unknown kind");
}

void BindClips(py::module_& module) {
    MakeIntEnum(module, "TextField",
                {{"Text1", 0},
                 {"Text2", 1},
                 {"Text3", 2},
                 {"Text4", 3},
                 {"Name", 4},
                 {"VarId", 5},
                 {"Keyword0", 6},
                 {"Keyword1", 7},
                 {"Keyword2", 8},
                 {"Keyword3", 9},
                 {"Keyword4", 10}});

    py::class_<Clip> clip(module, "Clip",
                          "A clip as a server describes it: the fields of its 290-byte record.");
    clip.attr("RECORD_SIZE") = Serializer::RecordSize;
    clip.def(py::init<>(), "The defaults of a new clip.")
        .def_static("default_timecode", &Clip::DefaultTimecode,
                    "The timecode a new clip, and a channel state, starts with.")
        .def_static(
            "from_bytes",
            [](const py::bytes& data, bool bigEndian) {
                const std::string record = Record(data, Serializer::RecordSize, "a clip record");
                Clip loaded;
                Serializer::LoadWithRecordStandard(Unsigned(record), Serializer::RecordSize, loaded,
                                                   bigEndian);
                return loaded;
            },
            py::arg("data"), py::arg("big_endian") = false,
            "The clip of the first 290 bytes of `data`, starting from the record's own video standard.")
        .def(
            "load_bytes",
            [](Clip& self, const py::bytes& data, bool bigEndian) {
                const std::string record = Record(data, Serializer::RecordSize, "a clip record");
                Serializer::LoadFromBuffer(Unsigned(record), Serializer::RecordSize, self, bigEndian);
            },
            py::arg("data"), py::arg("big_endian") = false,
            "Reads the first 290 bytes of `data` into this clip at its own standard, as existing readers do; "
            "a failing timecode leaves the fields before it loaded.")
        .def(
            "to_bytes",
            [](const Clip& self, bool bigEndian) {
                unsigned char record[Serializer::RecordSize];
                const unsigned int size =
                    Serializer::SaveToBuffer(self, record, Serializer::RecordSize, bigEndian);
                return py::bytes(reinterpret_cast<const char*>(record), size);
            },
            py::arg("big_endian") = false,
            "The record: 290 bytes, fewer when a timecode's rate is neither 50/1 nor 60/1 "
            "(the fields after it move up).")
        .def_static(
            "detect_byte_order",
            [](const py::bytes& data) {
                const std::string record = Bytes(data);
                return Serializer::DetectByteOrder(reinterpret_cast<const unsigned char*>(record.data()),
                                                   static_cast<unsigned int>(record.size()));
            },
            py::arg("data"), "True for a big-endian record's tag, False for a little-endian one, else None.")
        .def(
            "to_dict",
            [](const Clip& self, const std::string& charset) {
                return ToPython(Clips::ClipToValue(self, Charset(charset)));
            },
            py::arg("charset") = "iso-8859-1",
            "Every field under the keys plurex's clip JSON has, in the record's order; 8-bit texts read "
            "through "
            "`charset`.")
        .def_static(
            "from_dict",
            [](const py::dict& fields, const std::string& charset) {
                return Clips::ClipFromValue(FromPython(fields), Charset(charset));
            },
            py::arg("fields"), py::arg("charset") = "iso-8859-1",
            "The clip a dict of to_dict's form describes, fields left out as in a new clip; ValueError "
            "naming "
            "the field for anything the clip refuses.")
        .def(
            "get_text",
            [](const Clip& self, int field, const std::string& charset) {
                return Clips::GetTextUtf8(self, static_cast<TextField>(field), Charset(charset));
            },
            py::arg("field"), py::arg("charset") = "iso-8859-1",
            "The text; 8-bit texts read through `charset`.")
        .def(
            "set_text",
            [](Clip& self, int field, const std::string& text, bool unicode, const std::string& charset) {
                Clips::SetTextUtf8(self, static_cast<TextField>(field), text, unicode, Charset(charset));
            },
            py::arg("field"), py::arg("text"), py::arg("unicode") = false, py::arg("charset") = "iso-8859-1")
        .def(
            "get_text_bytes",
            [](const Clip& self, int field) {
                return py::bytes(Clips::GetTextBytes(self, static_cast<TextField>(field)));
            },
            py::arg("field"))
        .def(
            "set_text_bytes",
            [](Clip& self, int field, const py::bytes& data, bool unicode) {
                Clips::SetTextBytes(self, static_cast<TextField>(field), Bytes(data), unicode);
            },
            py::arg("field"), py::arg("data"), py::arg("unicode") = false)
        .def(
            "is_text_utf16",
            [](const Clip& self, int field) {
                return Clips::IsTextUtf16(self, static_cast<TextField>(field));
            },
            py::arg("field"))
        .def_property_readonly(
            "keywords",
            [](const Clip& self) {
                std::array<std::string, Clip::KeywordCount> keywords;
                for (std::size_t k = 0; k < Clip::KeywordCount; ++k) {
                    keywords[k] = Clips::GetTextUtf8(
                        self, static_cast<TextField>(static_cast<std::size_t>(TextField::Keyword0) + k));
                }
                return Tuple(keywords);
            })
        .def_property(
            "raw_bytes",
            [](const Clip& self) {
                return py::bytes(reinterpret_cast<const char*>(self.rawBytes), sizeof self.rawBytes);
            },
            [](Clip& self, const py::bytes& data) {
                const std::string bytes = Bytes(data);
                if (bytes.size() != sizeof self.rawBytes) {
                    throw py::value_error("raw_bytes takes 8 bytes, got " + std::to_string(bytes.size()));
                }
                std::memcpy(self.rawBytes, bytes.data(), sizeof self.rawBytes);
            })
        .def_readwrite("is_3d", &Clip::is3D)
        .def_readwrite("is_dual", &Clip::isDual)
        .def_readwrite("is_twin_rec", &Clip::isTwinRec)
        .def_readwrite("is_legacy_timecode_drop", &Clip::isLegacyTimecodeDrop)
        .def_readwrite("attribute1", &Clip::attribute1)
        .def_readwrite("in_position", &Clip::inPosition)
        .def_readwrite("short_in_position", &Clip::shortInPosition)
        .def_readwrite("short_out_position", &Clip::shortOutPosition)
        .def_readwrite("out_position", &Clip::outPosition)
        .def_readwrite("value1", &Clip::value1)
        .def_readwrite("short_value1", &Clip::shortValue1)
        .def_readwrite("value2", &Clip::value2)
        .def_readwrite("value3", &Clip::value3)
        .def_readwrite("short_value2", &Clip::shortValue2)
        .def_readwrite("value4", &Clip::value4)
        .def_readwrite("byte_value", &Clip::byteValue)
        .def_readwrite("value5", &Clip::value5)
        .def_readwrite("value64", &Clip::value64)
        .def_property_readonly("rate", &Clip::GetRate, py::return_value_policy::copy)
        .def_property(
            "in_bound_tod_timecode", [](const Clip& self) { return self.inBoundTodTimecode; },
            &Clip::InBoundTodTimecode, "Set: ValueError when the timecode's rate is not the clip's.")
        .def_property(
            "in_bound_user_timecode", [](const Clip& self) { return self.inBoundUserTimecode; },
            &Clip::InBoundUserTimecode)
        .def("set_short_in_bound_tod_timecode", &Clip::ShortInBoundTodTimecode, py::arg("time_code"))
        .def("set_short_out_bound_tod_timecode", &Clip::ShortOutBoundTodTimecode, py::arg("time_code"))
        .def("set_out_bound_tod_timecode", &Clip::OutBoundTodTimecode, py::arg("time_code"))
        .def("set_short_in_bound_user_timecode", &Clip::ShortInBoundUserTimecode, py::arg("time_code"))
        .def("set_short_out_bound_user_timecode", &Clip::ShortOutBoundUserTimecode, py::arg("time_code"))
        .def("set_out_bound_user_timecode", &Clip::OutBoundUserTimecode, py::arg("time_code"))
        .def_property_readonly(
            "essences",
            [](py::object self) {
                Clip& owner = self.cast<Clip&>();
                py::list essences;
                for (Clip::Essence& essence : owner.essences) {
                    // Each is the clip's own essence, kept alive by the clip.
                    essences.append(py::cast(&essence, py::return_value_policy::reference_internal, self));
                }
                return py::tuple(essences);
            })
        .def(py::self == py::self)
        .def(py::self != py::self);

    TextProperty(clip, "text1", TextField::Text1);
    TextProperty(clip, "text2", TextField::Text2);
    TextProperty(clip, "text3", TextField::Text3);
    TextProperty(clip, "text4", TextField::Text4);
    TextProperty(clip, "name", TextField::Name);
    TextProperty(clip, "var_id", TextField::VarId);

    EnumField(clip, "attribute2", &Clip::attribute2, module.attr("ArchiveStatus"));
    EnumField(clip, "attribute3", &Clip::attribute3, module.attr("Camera"));
    EnumField(clip, "attribute4", &Clip::attribute4, module.attr("VideoFormat"));
    EnumField(clip, "attribute5", &Clip::attribute5, module.attr("AlphaArchiveStatus"));
    EnumField(clip, "attribute6", &Clip::attribute6, module.attr("AudioConfiguration"));
    EnumField(clip, "attribute7", &Clip::attribute7, module.attr("TimecodeType"));
    EnumField(clip, "attribute8", &Clip::attribute8, module.attr("UserProtect"));
    EnumField(clip, "attribute9", &Clip::attribute9, module.attr("PrimaryTimecode"));
    EnumField(clip, "attribute10", &Clip::attribute10, module.attr("TrainStatus"));
    EnumField(clip, "attribute11", &Clip::attribute11, module.attr("Rating"));
    EnumField(clip, "attribute12", &Clip::attribute12, module.attr("FillAndKeyStatus"));
    EnumField(clip, "attribute13", &Clip::attribute13, module.attr("WideColorGamut"));
    EnumField(clip, "attribute14", &Clip::attribute14, module.attr("HdrProfile"));
    EnumField(clip, "attribute15", &Clip::attribute15, module.attr("AfdAspectRatio"));
    EnumField(clip, "attribute16", &Clip::attribute16, module.attr("CodedFrameAspectRatio"));
    EnumField(clip, "attribute17", &Clip::attribute17, module.attr("UhdDivisionMode"));
    EnumField(clip, "attribute18", &Clip::attribute18, module.attr("SourceEngine"));
    // The standard goes through the library's setter, which keeps the timecodes at the clip's rate.
    const py::object standards = module.attr("VideoStandard");
    clip.def_property(
        "video_standard",
        [standards](const Clip& self) {
            return Named(standards, static_cast<std::int32_t>(self.videoStandard));
        },
        [](Clip& self, std::int32_t value) { self.VideoStandard(static_cast<Clips::VideoStandard>(value)); });

    BindEssence(clip, module);
}

}  // namespace PlurexPython

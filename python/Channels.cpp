// The player and recorder states with their clips, timecodes and boundaries, and the masks
// CompareStatus returns, as enum.IntFlag.
#include "Bindings.h"
#include "EnumCasters.h"

#include "PlurexData/PlurexData.h"

#include <pybind11/operators.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

namespace PlurexPython {

namespace Channels = Korv::Plurex::Data::Channels;
using Channels::PlayerClipOnAir;
using Channels::PlayerInfoOnAir;
using Channels::PlayerState;
using Channels::RecorderState;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::TimePoint;

namespace {

// What both states share: identifiers, name, mode and equality.
template <class State, class Class>
void DefineChannelState(Class& cls) {
    // Through lambdas: the members of the unbound base ChannelState would take it as `self`.
    cls.def_property_readonly("first_id", [](const State& self) { return self.GetFirstId(); })
        .def_property_readonly("second_id", [](const State& self) { return self.GetSecondId(); })
        .def_property(
            "name", [](const State& self) { return FromLatin1(self.GetName()); },
            [](State& self, const std::string& name) { self.SetName(ToLatin1(name).c_str()); },
            "ISO 8859-1 text; setting keeps at most NAME_SIZE - 1 characters.")
        .def(
            "channel_mode", [](const State& self) { return self.ChannelMode(); },
            "0 for a player, 1 for a recorder.")
        .def(py::self == py::self)
        .def(py::self != py::self);
    cls.attr("NAME_SIZE") = Channels::ChannelState::NameSize;
}

// A timecode field read and written as a copy: TimeCode is immutable in Python, and a reference into
// the owner would change under a reader when the field is assigned.
template <class Owner>
void DefineTimecode(py::class_<Owner>& cls, const char* name, TimeCode Owner::*member) {
    cls.def_property(
        name, [member](const Owner& self) { return self.*member; },
        [member](Owner& self, const TimeCode& value) { self.*member = value; });
}

// A player state's boundary, held by unique_ptr and replaced whole, so Python gets and gives copies:
// a reference could outlive the boundary it names.
template <std::unique_ptr<Channels::Boundary> PlayerState::*Member>
std::unique_ptr<Channels::Boundary> GetBoundary(const PlayerState& self) {
    const auto& boundary = self.*Member;
    return boundary ? boundary->Clone() : nullptr;
}

template <std::unique_ptr<Channels::Boundary> PlayerState::*Member>
void SetBoundary(PlayerState& self, const Channels::Boundary& boundary) {
    self.*Member = boundary.Clone();
}

void BindBoundaries(py::module_& module) {
    py::class_<Channels::Boundary>(
        module, "Boundary",
        "A limit of a player's range, of one of several kinds; equal only to one of the same kind.")
        .def(
            "__eq__",
            [](const Channels::Boundary& self, const Channels::Boundary& other) { return self == other; },
            py::is_operator())
        .def(
            "__ne__",
            [](const Channels::Boundary& self, const Channels::Boundary& other) { return !(self == other); },
            py::is_operator())
        .def("is_empty", &Channels::Boundary::IsEmpty)
        .def_property_readonly("type", &Channels::Boundary::GetType,
                               "The kind of boundary; AbsoluteBoundary.KIND (0) is the only one.");
    py::class_<Channels::AbsoluteBoundary, Channels::Boundary>(module, "AbsoluteBoundary",
                                                               "A boundary at a time point.")
        .def(py::init<const TimePoint&>(), py::arg("time_point"), "TimePoint.empty() makes an empty one.")
        .def_property_readonly("time_point", &Channels::AbsoluteBoundary::GetTimePoint)
        .def("__repr__",
             [](const Channels::AbsoluteBoundary& self) {
                 return "AbsoluteBoundary(TimePoint(" + std::to_string(self.GetTimePoint().GetValue()) + "))";
             })
        .attr("KIND") = Channels::AbsoluteBoundary::Kind;
}

void BindPlayer(py::module_& module) {
    py::class_<PlayerInfoOnAir>(module, "PlayerInfoOnAir", "What a player reports about its transport.")
        .def(py::init<>())
        .def_readwrite("word0", &PlayerInfoOnAir::word0)
        .def_readwrite("word1", &PlayerInfoOnAir::word1)
        .def_readwrite("mode", &PlayerInfoOnAir::mode)
        .def_readwrite("rate_numerator", &PlayerInfoOnAir::rateNumerator)
        .def_readwrite("rate_denominator", &PlayerInfoOnAir::rateDenominator)
        .def_readwrite("word5", &PlayerInfoOnAir::word5)
        .def_readwrite("word6", &PlayerInfoOnAir::word6)
        .def_readwrite("word7", &PlayerInfoOnAir::word7)
        .def_readwrite("word8", &PlayerInfoOnAir::word8)
        .def_property(
            "values",
            [](const PlayerInfoOnAir& self) {
                std::array<std::int64_t, PlayerInfoOnAir::ValueCount> values{};
                std::copy(std::begin(self.values), std::end(self.values), values.begin());
                return Tuple(values);
            },
            [](PlayerInfoOnAir& self, const std::vector<std::int64_t>& values) {
                AssignWhole(self.values, values, "values");
            },
            "The eight 64-bit values (words 9 to 24), read and written whole.")
        .def_readwrite("end", &PlayerInfoOnAir::end)
        .def_readwrite("word26", &PlayerInfoOnAir::word26)
        .def_property_readonly("position", &PlayerInfoOnAir::Position, "The low 32 bits of the first value.")
        .def(py::self == py::self)
        .def(py::self != py::self);

    py::class_<PlayerClipOnAir> clipOnAir(module, "PlayerClipOnAir", "A clip that a player has on air.");
    clipOnAir.def(py::init<>())
        .def_readwrite("clip", &PlayerClipOnAir::clip,
                       "The clip, changed in place; CompareStatus reads its text1 only.")
        .def_readwrite("clip_present", &PlayerClipOnAir::clipPresent)
        .def_readwrite("time_value", &PlayerClipOnAir::timeValue)
        .def(py::self == py::self)
        .def(py::self != py::self);
    DefineTimecode(clipOnAir, "first_timecode", &PlayerClipOnAir::firstTimecode);
    DefineTimecode(clipOnAir, "second_timecode", &PlayerClipOnAir::secondTimecode);

    py::class_<PlayerState> player(module, "PlayerState", "A snapshot of one play channel.");
    MakeIntFlag(player, "StatusChange",
                {{"None", 0},
                 {"Name", 0x001},
                 {"Mode", 0x002},
                 {"InfoWord1", 0x004},
                 {"RateCleared", 0x008},
                 {"RateSet", 0x010},
                 {"RemainingTime", 0x020},
                 {"FirstClipOnAir", 0x040},
                 {"SecondClipOnAir", 0x800}});
    player.def(py::init<>())
        .def(py::init<unsigned int, unsigned int>(), py::arg("first_id"), py::arg("second_id"))
        .def(py::init<const PlayerState&>(), py::arg("other"));
    DefineChannelState<PlayerState>(player);
    player.def_readwrite("first_value", &PlayerState::firstValue)
        .def_readwrite("second_value", &PlayerState::secondValue)
        .def_readwrite("third_value", &PlayerState::thirdValue)
        .def_readwrite("info_on_air", &PlayerState::infoOnAir, "The transport, changed in place.")
        .def_property_readonly(
            "clips_on_air",
            [](py::object self) {
                PlayerState& state = self.cast<PlayerState&>();
                return py::make_tuple(
                    py::cast(&state.clipsOnAir[0], py::return_value_policy::reference_internal, self),
                    py::cast(&state.clipsOnAir[1], py::return_value_policy::reference_internal, self));
            },
            "The two clips on air, changed in place.")

        .def_property("in_boundary", &GetBoundary<&PlayerState::inBoundary>,
                      &SetBoundary<&PlayerState::inBoundary>,
                      "A copy of the in limit; setting stores a copy.")
        .def_property("out_boundary", &GetBoundary<&PlayerState::outBoundary>,
                      &SetBoundary<&PlayerState::outBoundary>,
                      "A copy of the out limit; setting stores a copy.")
        .def("compare_status", &PlayerState::CompareStatus, py::arg("other"),
             "The changes from this state to `other`.");
    DefineWhole<std::int64_t>(player, "time_values", &PlayerState::timeValues,
                              "The four time values, read and written whole.");
    DefineWhole<TimeCode>(player, "timecodes", &PlayerState::timecodes,
                          "The eight timecodes, read and written whole.");
    player.attr("TIME_VALUE_COUNT") = PlayerState::TimeValueCount;
    player.attr("TIMECODE_COUNT") = PlayerState::TimecodeCount;
}

void BindRecorder(py::module_& module) {
    py::class_<RecorderState> recorder(module, "RecorderState", "A snapshot of one record channel.");
    MakeIntFlag(recorder, "StatusChange", {{"None", 0}, {"Name", 0x1}, {"Status", 0x2}});
    recorder.def(py::init<>())
        .def(py::init<unsigned int, unsigned int>(), py::arg("first_id"), py::arg("second_id"))
        .def(py::init<const RecorderState&>(), py::arg("other"));
    DefineChannelState<RecorderState>(recorder);
    DefineTimecode(recorder, "first_timecode", &RecorderState::firstTimecode);
    DefineTimecode(recorder, "second_timecode", &RecorderState::secondTimecode);
    recorder.def_readwrite("status", &RecorderState::status)
        .def_readwrite("flag_byte", &RecorderState::flagByte)
        .def_readwrite("first_time_value", &RecorderState::firstTimeValue)
        .def_readwrite("second_time_value", &RecorderState::secondTimeValue)
        .def_readwrite("first_value", &RecorderState::firstValue)
        .def_readwrite("second_value", &RecorderState::secondValue)
        .def_readwrite("third_value", &RecorderState::thirdValue)
        .def_readwrite("clip", &RecorderState::clip,
                       "The clip, changed in place; compared only while clip_present is set.")
        .def_readwrite("clip_present", &RecorderState::clipPresent)
        .def("compare_status", &RecorderState::CompareStatus, py::arg("other"),
             "The changes from this state to `other`: name and status only.");
}

}  // namespace

void BindChannels(py::module_& module) {
    module.attr("UNSET_TIME") = Channels::UnsetTime;
    BindBoundaries(module);
    BindPlayer(module);
    BindRecorder(module);
}

}  // namespace PlurexPython

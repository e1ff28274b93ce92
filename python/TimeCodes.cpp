// Rates, time points, timecodes, their calendar fields and the builder that checks them.
#include "Bindings.h"

#include "PlurexData/PlurexData.h"

#include <pybind11/operators.h>
#include <pybind11/stl.h>

namespace PlurexPython {

namespace TimePoints = Korv::TimePoints;
using TimePoints::Rate;
using TimePoints::TimeCode;
using TimePoints::TimeCodeBuilder;
using TimePoints::TimeCodeFields;

void BindTimeCodes(py::module_& module) {
    py::class_<Rate>(module, "Rate", "Samples per second as a fraction, kept as given (50/1 is not 100/2).")
        .def(py::init<long long, long long>(), py::arg("numerator"), py::arg("denominator"))
        .def_property_readonly("numerator", &Rate::GetNumerator)
        .def_property_readonly("denominator", &Rate::GetDenominator)
        .def(py::self == py::self)
        .def(py::self != py::self)
        .def("__repr__", [](const Rate& self) {
            return "Rate(" + std::to_string(self.GetNumerator()) + ", " +
                   std::to_string(self.GetDenominator()) + ")";
        });

    py::class_<TimePoints::TimePoint>(module, "TimePoint",
                                      "A 64-bit time value; TimePoint.empty() marks \"not set\".")
        .def(py::init<long long>(), py::arg("value"))
        .def_static("empty", &TimePoints::TimePoint::Empty)
        .def_property_readonly("value", &TimePoints::TimePoint::GetValue)
        .def(py::self == py::self)
        .def(py::self != py::self)
        .def("__hash__",
             [](const TimePoints::TimePoint& self) { return py::hash(py::int_(self.GetValue())); })
        .def("__repr__", [](const TimePoints::TimePoint& self) {
            return "TimePoint(" + std::to_string(self.GetValue()) + ")";
        });

    py::class_<TimePoints::VideoRates>(module, "VideoRates", "The two rates of the video standards.")
        .def_static("rate50", &TimePoints::VideoRates::Rate50)
        .def_static("rate60", &TimePoints::VideoRates::Rate60);

    py::class_<TimeCodeFields>(module, "TimeCodeFields", "The calendar and clock fields of a timecode.")
        .def(py::init<int, int, int, int, int, int, int>(), py::arg("year"), py::arg("month"), py::arg("day"),
             py::arg("hour"), py::arg("minute"), py::arg("second"), py::arg("sample"))
        .def_readwrite("year", &TimeCodeFields::year)
        .def_readwrite("month", &TimeCodeFields::month)
        .def_readwrite("day", &TimeCodeFields::day)
        .def_readwrite("hour", &TimeCodeFields::hour)
        .def_readwrite("minute", &TimeCodeFields::minute)
        .def_readwrite("second", &TimeCodeFields::second)
        .def_readwrite("sample", &TimeCodeFields::sample)
        .def(py::self == py::self)
        .def(py::self != py::self)
        .def("__repr__", [](const TimeCodeFields& self) {
            return py::str("TimeCodeFields({}, {}, {}, {}, {}, {}, {})")
                .format(self.year, self.month, self.day, self.hour, self.minute, self.second, self.sample);
        });

    py::class_<TimeCode>(module, "TimeCode", "A count of samples since 1900-01-01 00:00:00 at a rate.")
        .def(py::init<const Rate&, long long, bool, unsigned char>(), py::arg("rate"),
             py::arg("total_sample"), py::arg("drop") = false, py::arg("flag") = 0)
        .def_static(
            "parse", &TimeCode::Parse, py::arg("text"), py::arg("rate"),
            "\"YYYY-MM-DD HH:MM:SS:FF\" or \"HH:MM:SS:FF\" (on 1900-01-01); ';' before FF for drop-frame.")
        .def_static("try_parse", &TimeCode::TryParse, py::arg("text"), py::arg("rate"))
        .def_property_readonly("rate", &TimeCode::GetRate, py::return_value_policy::copy)
        .def_property_readonly("total_sample", &TimeCode::GetTotalSample)
        .def_property_readonly("drop_frame", &TimeCode::IsDropFrame)
        .def_property_readonly("flag", &TimeCode::GetFlag)
        .def_property_readonly(
            "fields", [](const TimeCode& self) { return TimeCodeBuilder::FromTimeCode(self).GetFields(); },
            "The calendar and clock fields; IndexError for a timecode no date can show.")
        .def("time_of_day", &TimeCode::ToTimeOfDayString, "\"HH:MM:SS:FF\".")
        .def(
            "to_dict",
            [](const TimeCode& self) { return ToPython(Korv::Plurex::Data::Clips::TimecodeToValue(self)); },
            "As Clip.to_dict shows a timecode: rate, drop, count, and date, time and frame where a date can "
            "show it.")
        .def("to_timecode_word", &Korv::Plurex::Data::Clips::Serializer::ToTimecodeWord,
             "The 64-bit word of the clip record, before byte order; ValueError unless the rate is 50/1 or "
             "60/1.")
        .def_static("from_timecode_word", &Korv::Plurex::Data::Clips::Serializer::FromTimecodeWord,
                    py::arg("word"),
                    "The timecode of a record's 64-bit word: bit 62 gives 60/1, bits 62 and 63 drop-frame.")
        .def(py::self == py::self)
        .def(py::self != py::self)
        .def("__str__", &TimeCode::ToString)
        .def("__repr__", [](const TimeCode& self) {
            return py::str("TimeCode({!r}, {}, drop={}, flag={})")
                .format(self.GetRate(), self.GetTotalSample(), self.IsDropFrame(), self.GetFlag());
        });

    py::class_<TimeCodeBuilder>(module, "TimeCodeBuilder",
                                "Calendar and clock fields to be checked and counted.")
        .def(py::init<int, int, int, int, int, int, int, const Rate&, bool, unsigned char>(), py::arg("year"),
             py::arg("month"), py::arg("day"), py::arg("hour"), py::arg("minute"), py::arg("second"),
             py::arg("sample"), py::arg("rate"), py::arg("drop") = false, py::arg("flag") = 0)
        .def(py::init<const TimeCodeFields&, const Rate&, bool, unsigned char>(), py::arg("fields"),
             py::arg("rate"), py::arg("drop") = false, py::arg("flag") = 0)
        .def_static("from_time_code", &TimeCodeBuilder::FromTimeCode, py::arg("time_code"))
        .def_static("try_from_time_code", &TimeCodeBuilder::TryFromTimeCode, py::arg("time_code"))
        .def_property_readonly("fields", &TimeCodeBuilder::GetFields)
        .def_property_readonly("rate", &TimeCodeBuilder::GetRate, py::return_value_policy::copy)
        .def_property_readonly("drop_frame", &TimeCodeBuilder::IsDropFrame)
        .def_property_readonly("flag", &TimeCodeBuilder::GetFlag)
        .def("is_valid_to_build_with_exception", &TimeCodeBuilder::IsValidToBuildWithexception,
             "True, or IndexError naming the first field out of range.")
        .def("build", &TimeCodeBuilder::Build);
}

}  // namespace PlurexPython

// The cue point registry: cue points, the copy and delete commands, the per-user registry and Python
// listeners on its process-wide change event.
#include "Bindings.h"
#include "EnumCasters.h"

#include "PlurexData/PlurexData.h"

#include <pybind11/stl.h>

#include <cstdint>
#include <string>
#include <vector>

namespace PlurexPython {

namespace CuePoints = Korv::Plurex::BusinessObjects::CuePoints;
using CuePoints::CuePoint;
using CuePoints::CuePointClip;
using CuePoints::CuePointCopyCommand;
using CuePoints::CuePointDbEventArgs;
using CuePoints::CuePointDbEventType;
using CuePoints::CuePointDeleteCommand;
using CuePoints::CuePointUsers;
using Korv::Plurex::Data::Clips::KepId;
using Korv::Plurex::Data::Clips::UmId;
using Korv::Plurex::Data::Servers::ServerId;

namespace {

using Token = CuePointUsers::DbDelegate::Token;

// The listeners this module added and has not removed: the delegate outlives the interpreter, so
// they are removed at exit, before the Python objects they hold can no longer be released.
std::vector<Token>& PythonListeners() {
    static std::vector<Token> tokens;
    return tokens;
}

Token AddListener(const py::function& listener) {
    const GilObject callable(listener);
    const Token token = CuePointUsers::cuePointDbDelegate.Add([callable](const CuePointDbEventArgs& args) {
        py::gil_scoped_acquire gil;
        callable.Get()(py::cast(args, py::return_value_policy::copy));
    });
    PythonListeners().push_back(token);
    return token;
}

bool RemoveListener(Token token) {
    auto& tokens = PythonListeners();
    for (auto it = tokens.begin(); it != tokens.end(); ++it) {
        if (*it == token) {
            tokens.erase(it);
            break;
        }
    }
    return CuePointUsers::cuePointDbDelegate.Remove(token);
}

void RemovePythonListeners() {
    for (const Token token : PythonListeners()) {
        CuePointUsers::cuePointDbDelegate.Remove(token);
    }
    PythonListeners().clear();
}

void BindCuePoint(py::module_& module) {
    py::class_<CuePoint>(module, "CuePoint", "A marked position of a clip or of the train, on a server.")
        .def(py::init<>())
        .def(py::init<long long, int, char, const ServerId&, const UmId&, const KepId&, bool>(),
             py::arg("tc"), py::arg("pcx"), py::arg("camera"), py::arg("server_id"), py::arg("umid"),
             py::arg("kep_id"), py::arg("train"))
        .def(py::init<long long, int, char, const ServerId&, const UmId&, bool>(), py::arg("tc"),
             py::arg("pcx"), py::arg("camera"), py::arg("server_id"), py::arg("umid"), py::arg("train"))
        .def(py::init<long long, int, const ServerId&, const UmId&, bool>(), py::arg("tc"), py::arg("pcx"),
             py::arg("server_id"), py::arg("umid"), py::arg("train"))
        .def(py::init<const CuePoint*>(), py::arg("other"), "A copy; ValueError for None.")
        .def_property("tc", &CuePoint::GetTc, &CuePoint::SetTc)
        .def_property("umid", &CuePoint::GetUmId, &CuePoint::SetUmId)
        .def_property("number", &CuePoint::GetNumber, &CuePoint::SetNumber)
        .def_property("pcx", &CuePoint::GetPcx, &CuePoint::SetPcx)
        .def_property("camera", &CuePoint::GetCamera, &CuePoint::SetCamera)
        .def_property("server_id", &CuePoint::GetServerId, &CuePoint::SetServerId)
        .def_property("kep_id", &CuePoint::GetKepId, &CuePoint::SetKepId)
        .def_property("train", &CuePoint::IsTrain, &CuePoint::SetTrain)
        .def_property("zoom", &CuePoint::GetZoom, &CuePoint::SetZoom)
        .def("compare_to", py::overload_cast<const CuePoint*>(&CuePoint::CompareTo, py::const_),
             py::arg("other"),
             "The servers' difference, else the low 32 bits of the positions' difference; 1 for None.")
        .def("equals", py::overload_cast<const CuePoint*>(&CuePoint::Equals, py::const_), py::arg("other"))
        .def(
            "__eq__", [](const CuePoint& self, const CuePoint& other) { return self == other; },
            py::is_operator())
        .def(
            "__ne__", [](const CuePoint& self, const CuePoint& other) { return self != other; },
            py::is_operator())
        .def(
            "__lt__", [](const CuePoint& self, const CuePoint& other) { return self < other; },
            py::is_operator())
        .def(
            "__gt__", [](const CuePoint& self, const CuePoint& other) { return self > other; },
            py::is_operator())
        .def("__repr__", [](const CuePoint& self) {
            return py::str("CuePoint(tc={}, number={}, server_id={}, umid={!r}, train={})")
                .format(self.GetTc(), self.GetNumber(), self.GetServerId().GetValue(),
                        FromLatin1(self.GetUmId().ToString()), self.IsTrain());
        });

    py::class_<CuePointClip>(module, "CuePointClip", "A clip's cue points, as the registry lists them.")
        .def(py::init<>())
        .def(py::init<const UmId&, std::int32_t>(), py::arg("umid"), py::arg("capacity"))
        .def_property_readonly("umid", &CuePointClip::GetUmId)
        .def_property_readonly("capacity", &CuePointClip::GetCapacity)
        .def_property_readonly("cue_point_count", &CuePointClip::GetCuePointCount)
        .def_property_readonly(
            "cue_points", [](const CuePointClip& self) { return *self.GetList(); }, "A copy of the list.")
        .def("get_item", &CuePointClip::GetItem, py::arg("i"), "IndexError outside the list.");

    py::class_<CuePointCopyCommand>(module, "CuePointCopyCommand",
                                    "Copies the cue points of a range of one clip (or the train) to another.")
        .def(py::init<>())
        .def(py::init<const UmId&, bool, const UmId&, long long, long long, char, const ServerId&,
                      const KepId&>(),
             py::arg("source"), py::arg("train"), py::arg("destination"), py::arg("field_in"),
             py::arg("field_out"), py::arg("camera"), py::arg("server_id"), py::arg("kep_id"))
        .def(py::init<const CuePointCopyCommand*>(), py::arg("other"), "A copy; ValueError for None.")
        .def_property_readonly("clip_id_source", &CuePointCopyCommand::GetClipIdSource)
        .def("set_clip_id_source", &CuePointCopyCommand::SetClipIdSource, py::arg("source"), py::arg("train"))
        .def_property_readonly("train", &CuePointCopyCommand::IsTrain)
        .def_property("clip_id_destination", &CuePointCopyCommand::GetClipIdDestination,
                      &CuePointCopyCommand::SetClipIdDestination)
        .def_property("field_in", &CuePointCopyCommand::GetFieldIn, &CuePointCopyCommand::SetFieldIn)
        .def_property("field_out", &CuePointCopyCommand::GetFieldOut, &CuePointCopyCommand::SetFieldOut)
        .def_property("camera", &CuePointCopyCommand::GetCamera, &CuePointCopyCommand::SetCamera)
        .def_property("server_id", &CuePointCopyCommand::GetServerId, &CuePointCopyCommand::SetServerId)
        .def_property("kep_id", &CuePointCopyCommand::GetKepId, &CuePointCopyCommand::SetKepId);

    py::class_<CuePointDeleteCommand>(module, "CuePointDeleteCommand",
                                      "Names the clip (or the train) whose cue points go.")
        .def(py::init<>())
        .def(py::init<const UmId&, bool>(), py::arg("clip_id"), py::arg("train"))
        .def(py::init<const CuePointDeleteCommand*>(), py::arg("other"), "A copy; ValueError for None.")
        .def_property_readonly("clip_id", &CuePointDeleteCommand::GetClipId)
        .def("set_clip_id", &CuePointDeleteCommand::SetClipId, py::arg("clip_id"), py::arg("train"))
        .def_property_readonly("train", &CuePointDeleteCommand::IsTrain)
        .def("clear", &CuePointDeleteCommand::Clear)
        .def(
            "__eq__",
            [](const CuePointDeleteCommand& self, const CuePointDeleteCommand& other) {
                return self == other;
            },
            py::is_operator())
        .def(
            "__ne__",
            [](const CuePointDeleteCommand& self, const CuePointDeleteCommand& other) {
                return self != other;
            },
            py::is_operator());
}

void BindEvent(py::module_& module) {
    MakeIntEnum(module, "CuePointDbEventType",
                {{"CuePointAdded", 1}, {"CuePointRemoved", 2}, {"CuePointsRemovedAll", 4}});
    py::class_<CuePointDbEventArgs, Korv::System::EventArgs, std::shared_ptr<CuePointDbEventArgs>>(
        module, "CuePointDbEventArgs", "A change of a cue point registry.")
        .def(py::init<std::int32_t, CuePointDbEventType>(), py::arg("user"), py::arg("type"))
        .def(py::init<std::int32_t, CuePointDbEventType, const CuePointDeleteCommand&>(), py::arg("user"),
             py::arg("type"), py::arg("delete_command"))
        .def(py::init<std::int32_t, CuePointDbEventType, const CuePoint&>(), py::arg("user"), py::arg("type"),
             py::arg("cue_point"))
        .def_property_readonly("user", &CuePointDbEventArgs::GetUser)
        .def_property_readonly("type", &CuePointDbEventArgs::GetType)
        .def_property_readonly("delete_command", &CuePointDbEventArgs::GetDeleteCommand,
                               py::return_value_policy::copy)
        .def_property_readonly("cue_point", &CuePointDbEventArgs::GetCuePoint, py::return_value_policy::copy);
}

// The C++ output parameters of the lists come back as return values.
template <class Key>
std::vector<CuePoint> CuePointList(const CuePointUsers& self, std::int32_t user, const Key& umid,
                                   bool train) {
    std::vector<CuePoint> cuePoints;
    self.GetCuePointList(user, umid, train, cuePoints);
    return cuePoints;
}

void BindUsers(py::module_& module) {
    using Command = CuePointUsers::cue_point_user_command;
    py::class_<CuePointUsers> users(
        module, "CuePointUsers",
        "The cue points of users 0 to 3; every registry raises the one change event.");
    users.attr("USER_COUNT") = CuePointUsers::UserCount;
    users.attr("MAX_TRAIN_CUE_POINTS") = CuePointUsers::MaxTrainCuePoints;
    users.attr("MAX_CLIP_CUE_POINTS") = CuePointUsers::MaxClipCuePoints;
    users.def(py::init<>())
        .def("add_cue_point", &CuePointUsers::AddCuePoint, py::arg("user"), py::arg("cue_point"),
             "0 not added, 1 already there, 2 added; writes the number (and more) into `cue_point`.")
        .def("remove_cue_point", &CuePointUsers::RemoveCuePoint, py::arg("user"), py::arg("cue_point"))
        .def("find_cue_point", &CuePointUsers::FindCuePoint, py::arg("user"), py::arg("cue_point"),
             "The number of the cue point found, written into `cue_point`; 0 when none is.")
        .def("find_cue_point_by_zoom", &CuePointUsers::FindCuePointByZoom, py::arg("user"),
             py::arg("cue_point"))
        .def("find_cue_point_after", &CuePointUsers::FindCuePointAfter, py::arg("user"), py::arg("key"),
             py::arg("found"), "Whether one follows `key`; then it is written into `found`.")
        .def("find_cue_point_before", &CuePointUsers::FindCuePointBefore, py::arg("user"), py::arg("key"),
             py::arg("found"), "Whether one precedes `key`; then it is written into `found`.")
        .def("copy_cue_point", &CuePointUsers::CopyCuePoint, py::arg("user"), py::arg("command"))
        .def("get_cue_point_count",
             py::overload_cast<std::int32_t, const UmId&, bool>(&CuePointUsers::GetCuePointCount, py::const_),
             py::arg("user"), py::arg("umid"), py::arg("train"))
        .def(
            "get_cue_point_count",
            [](const CuePointUsers& self, std::int32_t user, const std::string& umid, bool train) {
                return self.GetCuePointCount(user, ToLatin1(umid), train);
            },
            py::arg("user"), py::arg("umid"), py::arg("train"))
        .def("get_cue_point_list", &CuePointList<UmId>, py::arg("user"), py::arg("umid"), py::arg("train"))
        .def(
            "get_cue_point_list",
            [](const CuePointUsers& self, std::int32_t user, const std::string& umid, bool train) {
                return CuePointList(self, user, ToLatin1(umid), train);
            },
            py::arg("user"), py::arg("umid"), py::arg("train"))
        .def(
            "is_list_empty",
            [](const CuePointUsers& self, std::int32_t user, const std::string& umid, bool train) {
                return self.IsListEmpty(user, ToLatin1(umid), train);
            },
            py::arg("user"), py::arg("umid"), py::arg("train"))
        .def(
            "get_clip_list",
            [](const CuePointUsers& self, std::int32_t user) {
                std::vector<CuePointClip> clips;
                self.GetClipList(user, clips);
                return clips;
            },
            py::arg("user"))
        .def("get_current_clip_to_delete", &CuePointUsers::GetCurrentClipToDelete, py::arg("user"),
             py::arg("slot"))
        .def("set_current_clip_to_delete", &CuePointUsers::SetCurrentClipToDelete, py::arg("user"),
             py::arg("slot"), py::arg("command"))
        .def("clear_all_current_clip_to_delete", &CuePointUsers::ClearAllCurrentClipToDelete, py::arg("user"))
        .def(
            "set_current_user_command",
            [](CuePointUsers& self, std::int32_t user, std::int32_t command) {
                self.SetCurrentUserCommand(user, static_cast<Command>(command));
            },
            py::arg("user"), py::arg("command"))
        .def(
            "get_current_user_command",
            [](const CuePointUsers& self, std::int32_t user) {
                return static_cast<std::int32_t>(self.GetCurrentUserCommand(user));
            },
            py::arg("user"))
        .def("remove_all_cue_point_of_clip", &CuePointUsers::RemoveAllCuePointOfClip, py::arg("user"))
        .def("remove_all_cue_point_of_user",
             py::overload_cast<std::int32_t>(&CuePointUsers::RemoveAllCuePointOfUser), py::arg("user"))
        .def("remove_all_cue_point_of_user",
             py::overload_cast<std::int32_t, const CuePointDeleteCommand&>(
                 &CuePointUsers::RemoveAllCuePointOfUser),
             py::arg("user"), py::arg("command"))
        .def("set_cue_points_into_cache", &CuePointUsers::SetCuePointsIntoCache, py::arg("user"))
        .def("set_cache_user", &CuePointUsers::SetCacheUser, py::arg("user"), py::arg("controller"))
        .def("has_cache_cue_points", &CuePointUsers::HasCacheCuePoints, py::arg("user"),
             py::arg("controller"))
        .def("set_cue_point", &CuePointUsers::SetCuePoint, py::arg("controller"), py::arg("user"),
             "Restores the user's cue points saved under `controller` (note the order).")
        .def_static(
            "fill_cue_point",
            [](long long tc, std::int32_t server, char camera, bool train, std::int32_t pcx,
               const std::string& umid, std::int16_t kep, CuePoint& cuePoint) {
                CuePointUsers::FillCuePoint(tc, server, camera, train, pcx, ToLatin1(umid), kep, cuePoint);
            },
            py::arg("tc"), py::arg("server"), py::arg("camera"), py::arg("train"), py::arg("pcx"),
            py::arg("umid"), py::arg("kep"), py::arg("cue_point"))
        .def_static("invoke_cue_point_db_callback", &CuePointUsers::InvokeCuePointDbCallback, py::arg("args"),
                    "Calls every listener of the change event with `args`.")
        .def_static("add_listener", &AddListener, py::arg("listener"),
                    "Adds a listener to the process-wide change event; its token for remove_listener.")
        .def_static("remove_listener", &RemoveListener, py::arg("token"),
                    "Whether a listener with `token` was there to remove.");
}

}  // namespace

void BindCuePoints(py::module_& module) {
    BindCuePoint(module);
    BindEvent(module);
    BindUsers(module);
    py::module_::import("atexit").attr("register")(py::cpp_function(&RemovePythonListeners));
}

}  // namespace PlurexPython

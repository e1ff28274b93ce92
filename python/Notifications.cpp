// The event arguments, the event types and the three notifiers, with Python callbacks.
//
// Threads: send_event and wake may be called from any Python thread; run and run_for release the GIL
// for as long as the library runs, and each callback takes it again. While one thread runs a
// notifier, the others may not run it or add callbacks to it (see Guarded). Lifetime: the queue shares the
// Python object of each event's arguments, so that it lives while queued and the callbacks receive
// that very object; callbacks and arguments are held through GilObject, which the library may copy
// and drop without the GIL.
#include "Bindings.h"
#include "EnumCasters.h"

#include "PlurexData/PlurexData.h"

#include <pybind11/stl.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <tuple>
#include <typeinfo>
#include <vector>

namespace PlurexPython {

namespace Data = Korv::Plurex::Data;
using Data::Clips::Angle;
using Data::Clips::Clip;
using Korv::System::EventArgs;
using namespace Korv::Plurex::Notification;

namespace {

using Source = ClipCommandEventArgs::RequestSource;
using Result = Data::OperationResult;
using Angles = std::vector<Angle>;
using U8 = std::uint8_t;
using U16 = std::uint16_t;
using U32 = std::uint32_t;
using I16 = std::int16_t;

template <class X, class Base>
using Class = py::class_<X, Base, std::shared_ptr<X>>;

// The Python object of arguments that came from Python: the one the caller passed in, found again
// from its C++ value.
py::object Existing(const EventArgs& args) {
    return py::cast(&args, py::return_value_policy::reference);
}

// The arguments as the queue holds them: sharing the caller's Python object, which so stays alive
// until the last callback has seen it. Null stays null, for the library to refuse.
template <class T>
std::shared_ptr<T> Queued(T* args) {
    if (args == nullptr) {
        return nullptr;
    }
    return GilObject(Existing(*args)).Share(args);
}

// A callback of a specific list.
template <class Args>
std::function<void(const Args&)> Specific(const GilObject& callable) {
    return [callable](const Args& args) {
        py::gil_scoped_acquire gil;
        callable.Get()(Existing(args));
    };
}

// A callback of a generic list: the event type (its Type member, or the plain int) and the arguments.
template <class Type, class Args>
std::function<void(Type, const Args&)> Generic(const GilObject& callable) {
    return [callable](Type type, const Args& args) {
        py::gil_scoped_acquire gil;
        callable.Get()(type, Existing(args));
    };
}

// ---- Event arguments ----------------------------------------------------------------------------

// Defines the constructor of a clip command's arguments: the six values every one starts with, then
// parameters of types `Rest` named by `names`.
template <class... Rest, class Cls, class... Names>
Cls& CommandInit(Cls& cls, Names... names) {
    return cls.def(py::init<U32, Source, U32, U16, const Data::Guid&, long long, Rest...>(),
                   py::arg("command_number"), py::arg("request_source"), py::arg("third_value"),
                   py::arg("fourth_value"), py::arg("command_guid"), py::arg("value64"), names...);
}

// The same for a failure, whose result and error code follow the six; with their two properties.
template <class... Rest, class Cls, class... Names>
Cls& FailedInit(Cls& cls, Names... names) {
    using X = typename Cls::type;
    return CommandInit<Result, I16, Rest...>(cls, py::arg("result"), py::arg("error_code"), names...)
        .def_property_readonly("result", &X::GetResult)
        .def_property_readonly("error_code", &X::GetErrorCode);
}

// Arguments are immutable, so their clips are given as copies.
template <class Cls, class Getter>
void DefineClip(Cls& cls, const char* name, Getter getter) {
    cls.def_property_readonly(name, getter, py::return_value_policy::copy);
}

// Update and move: two clips, in the arguments and in their failure. Their Finished classes are bound
// by the caller: update's takes a flag before the clips.
template <class X, class Failed>
void BindTwoClips(py::module_& module, const char* name, const char* failedName) {
    Class<X, ClipCommandEventArgs> cls(module, name);
    CommandInit<const Clip&, const Clip&>(cls, py::arg("first_clip"), py::arg("second_clip"));
    DefineClip(cls, "first_clip", &X::GetFirstClip);
    DefineClip(cls, "second_clip", &X::GetSecondClip);
    Class<Failed, X> failed(module, failedName);
    FailedInit<const Clip&, const Clip&>(failed, py::arg("first_clip"), py::arg("second_clip"));
}

void BindClipCommandArgs(py::module_& module) {
    Class<ClipCommandEventArgs, CommandEventArgs> command(module, "ClipCommandEventArgs",
                                                          "What every clip command event carries.");
    MakeIntEnum(command, "RequestSource", {{"Local", 0}, {"Network", 1}, {"Unknown", 2}});
    CommandInit<>(command)
        .def_property_readonly("command_number", &ClipCommandEventArgs::GetCommandNumber)
        .def_property_readonly("request_source", &ClipCommandEventArgs::GetRequestSource)
        .def_property_readonly("third_value", &ClipCommandEventArgs::GetThirdValue)
        .def_property_readonly("fourth_value", &ClipCommandEventArgs::GetFourthValue)
        .def_property_readonly("command_guid", &ClipCommandEventArgs::CommandGuid,
                               py::return_value_policy::copy)
        .def_property_readonly("reserved_word", &ClipCommandEventArgs::GetReservedWord)
        .def_property_readonly("value64", &ClipCommandEventArgs::GetValue64)
        .def("request_source_string", &ClipCommandEventArgs::GetRequestSourceString, py::arg("short_form"),
             "\"Local\", \"Network\" or \"Unknown\"; \"LR\", \"NR\" or \"UR\" in short form.");

    // Creation: two clips and how the clip came to be.
    Class<ClipCreationEventArgs, ClipCommandEventArgs> creation(module, "ClipCreationEventArgs",
                                                                "A clip made, copied or restored.");
    MakeIntEnum(creation, "CreationType",
                {{"Make", 0}, {"Copy", 1}, {"QorvaneRestore", 2}, {"DrovikRestore", 3}});
    MakeIntEnum(creation, "NetworkType",
                {{"Sdti", 0}, {"Drovik", 1}, {"PushSdti", 3}, {"PushDrovik", 4}, {"PushUnknown", 5}});
    using CreationType = ClipCreationEventArgs::CreationType;
    using NetworkType = ClipCreationEventArgs::NetworkType;
    CommandInit<const Clip&, const Clip&, CreationType, NetworkType>(
        creation, py::arg("clip_before"), py::arg("clip_after"), py::arg("creation_type"),
        py::arg("network_type"))
        .def_property_readonly("creation_type", &ClipCreationEventArgs::GetCreationType)
        .def_property_readonly("network_type", &ClipCreationEventArgs::GetNetworkType)
        .def_property_readonly("creation_type_string", &ClipCreationEventArgs::GetCreationTypeString)
        .def_property_readonly("network_type_string", &ClipCreationEventArgs::GetNetworkTypeString);
    DefineClip(creation, "clip_before", &ClipCreationEventArgs::GetClipBefore);
    DefineClip(creation, "clip_after", &ClipCreationEventArgs::GetClipAfter);
    Class<ClipCreationFinishedEventArgs, ClipCreationEventArgs> finished(module,
                                                                         "ClipCreationFinishedEventArgs");
    CommandInit<const Clip&, const Clip&, CreationType, NetworkType>(
        finished, py::arg("clip_before"), py::arg("clip_after"), py::arg("creation_type"),
        py::arg("network_type"));
    Class<ClipCreationFailedEventArgs, ClipCreationEventArgs> failed(module, "ClipCreationFailedEventArgs");
    FailedInit<const Clip&, const Clip&, CreationType, NetworkType>(
        failed, py::arg("clip_before"), py::arg("clip_after"), py::arg("creation_type"),
        py::arg("network_type"));

    BindTwoClips<ClipUpdateEventArgs, ClipUpdateFailedEventArgs>(module, "ClipUpdateEventArgs",
                                                                 "ClipUpdateFailedEventArgs");
    Class<ClipUpdateFinishedEventArgs, ClipUpdateEventArgs> updateFinished(module,
                                                                           "ClipUpdateFinishedEventArgs");
    CommandInit<bool, const Clip&, const Clip&>(updateFinished, py::arg("flag"), py::arg("first_clip"),
                                                py::arg("second_clip"))
        .def_property_readonly("flag", &ClipUpdateFinishedEventArgs::GetFlag);
    BindTwoClips<ClipMoveEventArgs, ClipMoveFailedEventArgs>(module, "ClipMoveEventArgs",
                                                             "ClipMoveFailedEventArgs");
    Class<ClipMoveFinishedEventArgs, ClipMoveEventArgs> moveFinished(module, "ClipMoveFinishedEventArgs");
    CommandInit<const Clip&, const Clip&>(moveFinished, py::arg("first_clip"), py::arg("second_clip"));

    // Deletion: one clip and two bytes; its failure three bytes and two flags more.
    Class<ClipDeletionEventArgs, ClipCommandEventArgs> deletion(module, "ClipDeletionEventArgs");
    CommandInit<const Clip&, U8, U8>(deletion, py::arg("clip"), py::arg("first_byte"), py::arg("second_byte"))
        .def_property_readonly("first_byte", &ClipDeletionEventArgs::GetFirstByte)
        .def_property_readonly("second_byte", &ClipDeletionEventArgs::GetSecondByte);
    DefineClip(deletion, "clip", &ClipDeletionEventArgs::GetClip);
    Class<ClipDeletionFinishedEventArgs, ClipDeletionEventArgs> deletionFinished(
        module, "ClipDeletionFinishedEventArgs");
    CommandInit<const Clip&, U8, U8>(deletionFinished, py::arg("clip"), py::arg("first_byte"),
                                     py::arg("second_byte"));
    Class<ClipDeletionFailedEventArgs, ClipDeletionEventArgs> deletionFailed(module,
                                                                             "ClipDeletionFailedEventArgs");
    FailedInit<const Clip&, U8, U8, U8, bool, bool>(deletionFailed, py::arg("clip"), py::arg("first_byte"),
                                                    py::arg("second_byte"), py::arg("third_byte"),
                                                    py::arg("first_flag"), py::arg("second_flag"))
        .def_property_readonly("third_byte", &ClipDeletionFailedEventArgs::GetThirdByte)
        .def_property_readonly("first_flag", &ClipDeletionFailedEventArgs::GetFirstFlag)
        .def_property_readonly("second_flag", &ClipDeletionFailedEventArgs::GetSecondFlag);
}

// The mass operations: a count.
template <class X, class Failed>
void BindMass(py::module_& module, const char* name, const char* failedName) {
    Class<X, ClipCommandEventArgs> cls(module, name);
    CommandInit<U32>(cls, py::arg("count")).def_property_readonly("count", &X::GetCount);
    Class<Failed, X> failed(module, failedName);
    FailedInit<U32>(failed, py::arg("count"));
}

// Creation and update of an angles group: a value, two angles and a list of them.
template <class X, class Finished, class Failed>
void BindAnglesGroup(py::module_& module, const char* name, const char* finishedName,
                     const char* failedName) {
    Class<X, ClipCommandEventArgs>(module, name)
        .def(py::init<U32, const Data::Guid&, U32, Angle, Angle, const Angles&>(), py::arg("command_number"),
             py::arg("command_guid"), py::arg("value"), py::arg("first_angle"), py::arg("second_angle"),
             py::arg("angles"))
        .def_property_readonly("value", &X::GetValue)
        .def_property_readonly("first_angle", &X::GetFirstAngle, py::return_value_policy::copy)
        .def_property_readonly("second_angle", &X::GetSecondAngle, py::return_value_policy::copy)
        .def_property_readonly("angles", [](const X& self) { return Tuple(self.GetAngles()); });
    Class<Finished, X>(module, finishedName)
        .def(py::init<U32, const Data::Guid&, U32, Angle, Angle, const Angles&>(), py::arg("command_number"),
             py::arg("command_guid"), py::arg("value"), py::arg("first_angle"), py::arg("second_angle"),
             py::arg("angles"));
    Class<Failed, X>(module, failedName)
        .def(py::init<U32, const Data::Guid&, Result, I16, U32, Angle, Angle, const Angles&>(),
             py::arg("command_number"), py::arg("command_guid"), py::arg("result"), py::arg("error_code"),
             py::arg("value"), py::arg("first_angle"), py::arg("second_angle"), py::arg("angles"))
        .def_property_readonly("result", &Failed::GetResult)
        .def_property_readonly("error_code", &Failed::GetErrorCode);
}

void BindAngles(py::module_& module) {
    py::class_<Angle> angle(module, "Angle",
                            "One camera angle of an angles group: five opaque 32-bit words.");
    angle.def(py::init<>(), "All five words zero.")
        .def(py::init([](const std::array<U32, Angle::WordCount>& words) { return Angle{words}; }),
             py::arg("words"))
        .def(
            "__eq__", [](const Angle& self, const Angle& other) { return self == other; }, py::is_operator())
        .def(
            "__ne__", [](const Angle& self, const Angle& other) { return self != other; }, py::is_operator())
        .def("__repr__",
             [](const Angle& self) { return py::str("Angle({!r})").format(py::cast(self.words)); });
    DefineWhole<U32>(angle, "words", &Angle::words, "The five words, read and written whole.");

    BindAnglesGroup<AnglesGroupCreationEventArgs, AnglesGroupCreationFinishedEventArgs,
                    AnglesGroupCreationFailedEventArgs>(module, "AnglesGroupCreationEventArgs",
                                                        "AnglesGroupCreationFinishedEventArgs",
                                                        "AnglesGroupCreationFailedEventArgs");
    BindAnglesGroup<AnglesGroupUpdateEventArgs, AnglesGroupUpdateFinishedEventArgs,
                    AnglesGroupUpdateFailedEventArgs>(module, "AnglesGroupUpdateEventArgs",
                                                      "AnglesGroupUpdateFinishedEventArgs",
                                                      "AnglesGroupUpdateFailedEventArgs");

    Class<AnglesGroupDeletionEventArgs, ClipCommandEventArgs>(module, "AnglesGroupDeletionEventArgs")
        .def(py::init<U32, const Data::Guid&, U32>(), py::arg("command_number"), py::arg("command_guid"),
             py::arg("value"))
        .def_property_readonly("value", &AnglesGroupDeletionEventArgs::GetValue);
    Class<AnglesGroupDeletionFinishedEventArgs, AnglesGroupDeletionEventArgs>(
        module, "AnglesGroupDeletionFinishedEventArgs")
        .def(py::init<U32, const Data::Guid&, U32>(), py::arg("command_number"), py::arg("command_guid"),
             py::arg("value"));
    Class<AnglesGroupDeletionFailedEventArgs, AnglesGroupDeletionEventArgs>(
        module, "AnglesGroupDeletionFailedEventArgs")
        .def(py::init<U32, const Data::Guid&, Result, I16, U32>(), py::arg("command_number"),
             py::arg("command_guid"), py::arg("result"), py::arg("error_code"), py::arg("value"))
        .def_property_readonly("result", &AnglesGroupDeletionFailedEventArgs::GetResult)
        .def_property_readonly("error_code", &AnglesGroupDeletionFailedEventArgs::GetErrorCode);
}

// A class of no data of its own.
template <class X, class Base>
void BindPlain(py::module_& module, const char* name) {
    Class<X, Base>(module, name).def(py::init<>());
}

void BindArgs(py::module_& module) {
    MakeIntEnum(module, "OperationResult", {{"Success", 0}, {"Failure", 1}});

    py::class_<EventArgs, std::shared_ptr<EventArgs>>(module, "EventArgs",
                                                      "The base of every event's arguments.")
        .def(py::init<>());
    BindPlain<CommandEventArgs, EventArgs>(module, "CommandEventArgs");
    py::class_<StatusEventArgs, EventArgs, std::shared_ptr<StatusEventArgs>>(module, "StatusEventArgs")
        .def(py::init<>())
        .def_property_readonly("time", &StatusEventArgs::GetTime, "UNSET_TIME until set.")
        .attr("UNSET_TIME") = StatusEventArgs::UnsetTime;

    BindClipCommandArgs(module);
    BindMass<MassClipUpdateEventArgs, MassClipUpdateFailedEventArgs>(module, "MassClipUpdateEventArgs",
                                                                     "MassClipUpdateFailedEventArgs");
    BindMass<MassClipDeletionEventArgs, MassClipDeletionFailedEventArgs>(module, "MassClipDeletionEventArgs",
                                                                         "MassClipDeletionFailedEventArgs");
    BindAngles(module);
    BindPlain<ClipStatusEventArgs, StatusEventArgs>(module, "ClipStatusEventArgs");
    BindPlain<RecordingRangesChangedEventArgs, ClipStatusEventArgs>(module,
                                                                    "RecordingRangesChangedEventArgs");

    BindPlain<ChannelCommandEventArgs, CommandEventArgs>(module, "ChannelCommandEventArgs");
    BindPlain<RecorderTransportProcessedEventArgs, ChannelCommandEventArgs>(
        module, "RecorderTransportProcessedEventArgs");
    BindPlain<PlayerLoadProcessedEventArgs, ChannelCommandEventArgs>(module, "PlayerLoadProcessedEventArgs");
    BindPlain<PlayerTransportProcessedEventArgs, ChannelCommandEventArgs>(
        module, "PlayerTransportProcessedEventArgs");
    using Data::Channels::PlayerState;
    using Data::Channels::RecorderState;
    Class<ChannelStatusEventArgs, StatusEventArgs>(module, "ChannelStatusEventArgs")
        .def(py::init<const Data::Channels::Guid&>(), py::arg("channel_guid"),
             "Its time, the system clock's now.")
        .def_property_readonly("channel_guid", &ChannelStatusEventArgs::GetChannelGuid,
                               py::return_value_policy::copy)
        .def("store_system_time", &ChannelStatusEventArgs::StoreSystemTime,
             "Nanoseconds since the epoch, by the system clock.");
    Class<RecorderStateChangedEventArgs, ChannelStatusEventArgs>(module, "RecorderStateChangedEventArgs")
        .def(py::init<const Data::Channels::Guid&, RecorderState::StatusChange, const RecorderState&>(),
             py::arg("channel_guid"), py::arg("status_change"), py::arg("state"))
        .def_property_readonly("status_change", &RecorderStateChangedEventArgs::GetStatusChange)
        .def_property_readonly("state", &RecorderStateChangedEventArgs::GetState,
                               py::return_value_policy::copy);
    Class<PlayerStateChangedEventArgs, ChannelStatusEventArgs>(module, "PlayerStateChangedEventArgs")
        .def(py::init<const Data::Channels::Guid&, PlayerState::StatusChange, const PlayerState&>(),
             py::arg("channel_guid"), py::arg("status_change"), py::arg("state"))
        .def_property_readonly("status_change", &PlayerStateChangedEventArgs::GetStatusChange)
        .def_property_readonly("state", &PlayerStateChangedEventArgs::GetState,
                               py::return_value_policy::copy);

    BindPlain<ServerStatusEventArgs, StatusEventArgs>(module, "ServerStatusEventArgs");
    BindPlain<ServerAddedEventArgs, ServerStatusEventArgs>(module, "ServerAddedEventArgs");
    BindPlain<ServerRemovedEventArgs, ServerStatusEventArgs>(module, "ServerRemovedEventArgs");
    BindPlain<DisconnectedFromNetworkEventArgs, ServerStatusEventArgs>(module,
                                                                       "DisconnectedFromNetworkEventArgs");
}

// ---- Event types ----------------------------------------------------------------------------------

// The queue record of each kind of event, bound as the scope of its Type enumeration, whose names are
// read from `names` in value order.
template <class Event>
void BindEventType(py::module_& module, const char* name, const std::vector<std::string>& names) {
    py::class_<Event> event(module, name);
    std::vector<std::pair<std::string, std::int64_t>> members;
    for (std::size_t i = 0; i < names.size(); ++i) {
        members.emplace_back(names[i], static_cast<std::int64_t>(i));
    }
    MakeIntEnum(event, "Type", members);
}

void BindEventTypes(py::module_& module) {
    BindEventType<ClipCommandEvent>(module, "ClipCommandEvent",
                                    {"ClipCreation",
                                     "ClipCreationFinished",
                                     "ClipCreationFailed",
                                     "ClipUpdateFinished",
                                     "ClipUpdateFailed",
                                     "ClipDeletionFinished",
                                     "ClipDeletionFailed",
                                     "ClipMove",
                                     "ClipMoveFinished",
                                     "ClipMoveFailed",
                                     "MassClipUpdate",
                                     "MassClipUpdateFailed",
                                     "MassClipDeletion",
                                     "MassClipDeletionFailed",
                                     "AnglesGroupCreationFinished",
                                     "AnglesGroupCreationFailed",
                                     "AnglesGroupUpdateFinished",
                                     "AnglesGroupUpdateFailed",
                                     "AnglesGroupDeletionFinished",
                                     "AnglesGroupDeletionFailed"});
    BindEventType<ClipStatusEvent>(module, "ClipStatusEvent", {"RecordingRangesChanged"});
    BindEventType<ChannelCommandEvent>(
        module, "ChannelCommandEvent",
        {"RecorderTransportProcessed", "PlayerLoadProcessed", "PlayerTransportProcessed"});
    BindEventType<ChannelStatusEvent>(module, "ChannelStatusEvent",
                                      {"RecorderStateChanged", "PlayerStateChanged"});
    BindEventType<ServerStatusEvent>(module, "ServerStatusEvent",
                                     {"ServerAdded", "ServerRemoved", "DisconnectedFromNetwork"});
}

// ---- Notifiers ------------------------------------------------------------------------------------

// Each notifier's specific callback lists. Rows below finds the one of each EventTypes row by its
// type, so a list missing here, or one too many, does not compile.
template <class Notifier>
struct Lists;

template <>
struct Lists<PlurexClipNotifyer> {
    using N = PlurexClipNotifyer;
    static constexpr auto members = std::make_tuple(
        &N::clipCreationCallbacks, &N::clipCreationFinishedCallbacks, &N::clipCreationFailedCallbacks,
        &N::clipUpdateFinishedCallbacks, &N::clipUpdateFailedCallbacks, &N::clipDeletionFinishedCallbacks,
        &N::clipDeletionFailedCallbacks, &N::clipMoveCallbacks, &N::clipMoveFinishedCallbacks,
        &N::clipMoveFailedCallbacks, &N::massClipUpdateCallbacks, &N::massClipUpdateFailedCallbacks,
        &N::massClipDeletionCallbacks, &N::massClipDeletionFailedCallbacks,
        &N::anglesGroupCreationFinishedCallbacks, &N::anglesGroupCreationFailedCallbacks,
        &N::anglesGroupUpdateFinishedCallbacks, &N::anglesGroupUpdateFailedCallbacks,
        &N::anglesGroupDeletionFinishedCallbacks, &N::anglesGroupDeletionFailedCallbacks,
        &N::recordingRangesChangedCallbacks);
};

template <>
struct Lists<PlurexChannelNotifyer> {
    using N = PlurexChannelNotifyer;
    static constexpr auto members =
        std::make_tuple(&N::recorderTransportProcessedCallbacks, &N::playerLoadProcessedCallbacks,
                        &N::playerTransportProcessedCallbacks, &N::recorderStateChangedCallbacks,
                        &N::playerStateChangedCallbacks);
};

template <>
struct Lists<PlurexServerNotifyer> {
    using N = PlurexServerNotifyer;
    static constexpr auto members = std::make_tuple(&N::serverAddedCallbacks, &N::serverRemovedCallbacks,
                                                    &N::disconnectedFromNetworkCallbacks);
};

// What the notifier's EventTypes table gives at run time: the row of an argument class.
template <class Notifier, class Table = typename Notifier::EventTypes>
struct Rows;

template <class Notifier, class... Row>
struct Rows<Notifier, EventTypeTable<Row...>> {
    static_assert(sizeof...(Row) == std::tuple_size_v<decltype(Lists<Notifier>::members)>,
                  "one specific list for each row of EventTypes");

    // Posts through the library's one-argument SendEvent of the row of exactly the arguments' class,
    // as C++ code holding that class would; false when no row names it.
    static bool Send(Notifier& notifier, EventArgs& args) { return (SendIf<Row>(notifier, args) || ...); }

    // Appends to the specific list of the row of exactly class `type`; false when no row names it.
    static bool Add(Notifier& notifier, const py::handle& type, const GilObject& callable) {
        return (AddIf<Row>(notifier, type, callable) || ...);
    }

    // None names no class: the library refuses null in every typed form, the first row's serves.
    static void SendNull(Notifier& notifier) {
        using First = typename std::tuple_element_t<0, std::tuple<Row...>>::ArgsType;
        notifier.SendEvent(std::shared_ptr<First>());
    }

private:
    template <class R>
    static bool SendIf(Notifier& notifier, EventArgs& args) {
        using Args = typename R::ArgsType;
        if (typeid(args) != typeid(Args)) {
            return false;
        }
        notifier.SendEvent(Queued(static_cast<Args*>(&args)));
        return true;
    }

    template <class R>
    static bool AddIf(Notifier& notifier, const py::handle& type, const GilObject& callable) {
        using Args = typename R::ArgsType;
        if (!type.is(py::type::of<Args>())) {
            return false;
        }
        using List = typename Notifier::template Callbacks<Args>;
        (notifier.*std::get<List Notifier::*>(Lists<Notifier>::members)).push_back(Specific<Args>(callable));
        return true;
    }
};

// A notifier as Python holds it. run and run_for give the GIL up, so another Python thread could
// change the callback lists the library is walking, or start a second consumer, which the library
// does not allow and which would crash the interpreter: the thread that runs it is kept here, and
// those calls from any other thread raise RuntimeError instead. Only touched with the GIL held.
template <class Notifier>
struct Guarded : Notifier {
    std::thread::id runner;
    int depth = 0;  // a callback may run its notifier again

    bool RunByAnotherThread() const { return depth > 0 && runner != std::this_thread::get_id(); }
};

template <class Notifier>
using NotifierClass = py::class_<Guarded<Notifier>>;

// Refuses a change of the lists from a thread other than the one running the notifier, if any.
template <class Notifier>
void CheckListsFree(const Guarded<Notifier>& self, const std::string& name) {
    if (self.RunByAnotherThread()) {
        throw std::runtime_error(name +
                                 " is running on another thread: add callbacks before it runs, "
                                 "or from its callbacks");
    }
}

// Marks the notifier run by this thread for the lifetime of the object; made and destroyed with the
// GIL held.
template <class Notifier>
class Running {
public:
    Running(Guarded<Notifier>& notifier, const std::string& name) : notifier_(notifier) {
        if (notifier.RunByAnotherThread()) {
            throw std::runtime_error(name + " is already running on another thread");
        }
        if (notifier.depth++ == 0) {
            notifier.runner = std::this_thread::get_id();
        }
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() {
        if (--notifier_.depth == 0) {
            notifier_.runner = std::thread::id();
        }
    }

private:
    Guarded<Notifier>& notifier_;
};

// What the three notifiers share: the one-argument send_event, the specific lists, run, run_for and
// wake. Each adds its two-argument send_event and its generic lists before.
template <class Notifier>
void DefineNotifier(NotifierClass<Notifier>& cls) {
    using Self = Guarded<Notifier>;
    const std::string name = py::str(cls.attr("__name__"));
    cls.def(py::init<>())
        .def(
            "send_event",
            [name](Self& self, EventArgs* args) {
                if (args == nullptr) {
                    Rows<Notifier>::SendNull(self);
                } else if (!Rows<Notifier>::Send(self, *args)) {
                    throw py::type_error(Existing(*args).get_type().attr("__name__").cast<std::string>() +
                                         " has no event type of its own in " + name +
                                         ": post it with send_event(args, type)");
                }
            },
            py::arg("args"))
        .def(
            "add_callback",
            [name](Self& self, const py::object& argsClass, const py::function& callback) {
                CheckListsFree(self, name);
                if (!Rows<Notifier>::Add(self, argsClass, GilObject(callback))) {
                    throw py::type_error(name + " has no callback list for " +
                                         py::repr(argsClass).cast<std::string>());
                }
            },
            py::arg("args_class"), py::arg("callback"))
        .def("run",
             [name](Self& self) {
                 Running<Notifier> running(self, name);
                 py::gil_scoped_release release;
                 self.Run();
             })
        .def(
            "run_for",
            [name](Self& self, long long timeoutMs) {
                Running<Notifier> running(self, name);
                py::gil_scoped_release release;
                return self.RunFor(std::chrono::milliseconds(timeoutMs));
            },
            py::arg("timeout_ms"))
        .def("wake", &Self::Wake);
}

// The two-argument send_event for a queue whose events have arguments of class Base and type Type.
template <class Notifier, class Base, class Type>
void DefineSend(NotifierClass<Notifier>& cls) {
    cls.def(
        "send_event",
        [](Guarded<Notifier>& self, Base* args, Type type) { self.SendEvent(Queued(args), type); },
        py::arg("args"), py::arg("type"));
}

// A method appending to a generic list.
template <class Notifier, class Type, class Base>
void DefineGeneric(NotifierClass<Notifier>& cls, const char* name,
                   std::vector<std::function<void(Type, const Base&)>> Notifier::*list) {
    const std::string className = py::str(cls.attr("__name__"));
    cls.def(
        name,
        [list, className](Guarded<Notifier>& self, const py::function& callback) {
            CheckListsFree(self, className);
            (self.*list).push_back(Generic<Type, Base>(GilObject(callback)));
        },
        py::arg("callback"));
}

void BindNotifiers(py::module_& module) {
    NotifierClass<PlurexClipNotifyer> clip(module, "PlurexClipNotifyer",
                                           "Carries clip events from any thread to callbacks run by run().");
    DefineSend<PlurexClipNotifyer, ClipCommandEventArgs, ClipCommandEvent::Type>(clip);
    DefineSend<PlurexClipNotifyer, ClipStatusEventArgs, ClipStatusEvent::Type>(clip);
    DefineGeneric(clip, "add_generic_command_callback", &PlurexClipNotifyer::genericCommandCallbacks);
    DefineGeneric(clip, "add_generic_status_callback", &PlurexClipNotifyer::genericStatusCallbacks);
    DefineNotifier(clip);

    NotifierClass<PlurexChannelNotifyer> channel(
        module, "PlurexChannelNotifyer", "Carries channel events from any thread to callbacks run by run().");
    DefineSend<PlurexChannelNotifyer, ChannelCommandEventArgs, ChannelCommandEvent::Type>(channel);
    DefineSend<PlurexChannelNotifyer, ChannelStatusEventArgs, ChannelStatusEvent::Type>(channel);
    DefineGeneric(channel, "add_generic_command_callback", &PlurexChannelNotifyer::genericCommandCallbacks);
    DefineGeneric(channel, "add_generic_status_callback", &PlurexChannelNotifyer::genericStatusCallbacks);
    DefineNotifier(channel);

    NotifierClass<PlurexServerNotifyer> server(
        module, "PlurexServerNotifyer", "Carries server events from any thread to callbacks run by run().");
    DefineSend<PlurexServerNotifyer, ServerStatusEventArgs, ServerStatusEvent::Type>(server);
    DefineGeneric(server, "add_generic_callback", &PlurexServerNotifyer::genericCallbacks);
    DefineNotifier(server);
}

}  // namespace

void BindNotifications(py::module_& module) {
    BindArgs(module);
    BindEventTypes(module);
    BindNotifiers(module);
}

}  // namespace PlurexPython

#pragma once

// The library's enumerations without a table, as they cross into Python: each arrives as a member of
// the module's enum.IntEnum or enum.IntFlag class made for it, and any int (a member included) is
// taken from Python. A value an IntEnum does not name arrives as the plain int, since the library
// carries every 32-bit value; a mask arrives as its IntFlag, whatever bits are set.

#include "Bindings.h"

#include "PlurexData/channels/PlayerState.h"
#include "PlurexData/channels/RecorderState.h"
#include "PlurexData/cuepoints/CuePointDbEventType.h"
#include "PlurexData/data/OperationResult.h"
#include "PlurexData/notification/ChannelCommandEvent.h"
#include "PlurexData/notification/ChannelStatusEvent.h"
#include "PlurexData/notification/ClipCommandEvent.h"
#include "PlurexData/notification/ClipCommandEventArgs.h"
#include "PlurexData/notification/ClipCreationEventArgs.h"
#include "PlurexData/notification/ClipStatusEvent.h"
#include "PlurexData/notification/ServerStatusEvent.h"

#include <type_traits>

namespace PlurexPython {

/// The Python class of enumeration E: `Class()` finds it where the binding put it, `mask` says
/// whether it is an IntFlag.
template <class E>
struct PythonEnum {};

#define PLUREX_PYTHON_ENUM(Enum, isMask, scope, name)            \
    template <>                                                  \
    struct PythonEnum<Enum> {                                    \
        static constexpr bool mask = isMask;                     \
        static py::object Class() { return (scope).attr(name); } \
    }

namespace NotificationNames = Korv::Plurex::Notification;
namespace ChannelNames = Korv::Plurex::Data::Channels;

PLUREX_PYTHON_ENUM(ChannelNames::PlayerState::StatusChange, true, py::type::of<ChannelNames::PlayerState>(),
                   "StatusChange");
PLUREX_PYTHON_ENUM(ChannelNames::RecorderState::StatusChange, true,
                   py::type::of<ChannelNames::RecorderState>(), "StatusChange");
PLUREX_PYTHON_ENUM(Korv::Plurex::Data::OperationResult, false, py::module_::import("plurexdata"),
                   "OperationResult");
PLUREX_PYTHON_ENUM(NotificationNames::ClipCommandEventArgs::RequestSource, false,
                   py::type::of<NotificationNames::ClipCommandEventArgs>(), "RequestSource");
PLUREX_PYTHON_ENUM(NotificationNames::ClipCreationEventArgs::CreationType, false,
                   py::type::of<NotificationNames::ClipCreationEventArgs>(), "CreationType");
PLUREX_PYTHON_ENUM(NotificationNames::ClipCreationEventArgs::NetworkType, false,
                   py::type::of<NotificationNames::ClipCreationEventArgs>(), "NetworkType");
PLUREX_PYTHON_ENUM(NotificationNames::ClipCommandEvent::Type, false,
                   py::type::of<NotificationNames::ClipCommandEvent>(), "Type");
PLUREX_PYTHON_ENUM(NotificationNames::ClipStatusEvent::Type, false,
                   py::type::of<NotificationNames::ClipStatusEvent>(), "Type");
PLUREX_PYTHON_ENUM(NotificationNames::ChannelCommandEvent::Type, false,
                   py::type::of<NotificationNames::ChannelCommandEvent>(), "Type");
PLUREX_PYTHON_ENUM(NotificationNames::ChannelStatusEvent::Type, false,
                   py::type::of<NotificationNames::ChannelStatusEvent>(), "Type");
PLUREX_PYTHON_ENUM(NotificationNames::ServerStatusEvent::Type, false,
                   py::type::of<NotificationNames::ServerStatusEvent>(), "Type");
PLUREX_PYTHON_ENUM(Korv::Plurex::BusinessObjects::CuePoints::CuePointDbEventType, false,
                   py::module_::import("plurexdata"), "CuePointDbEventType");

#undef PLUREX_PYTHON_ENUM

template <class E, class = void>
struct HasPythonEnum : std::false_type {};
template <class E>
struct HasPythonEnum<E, std::void_t<decltype(PythonEnum<E>::Class())>> : std::true_type {};

}  // namespace PlurexPython

namespace pybind11::detail {

template <class E>
struct type_caster<E, std::enable_if_t<std::is_enum_v<E> && PlurexPython::HasPythonEnum<E>::value>> {
    using Underlying = std::underlying_type_t<E>;
    PYBIND11_TYPE_CASTER(E, const_name("int"));

    bool load(handle source, bool convert) {
        make_caster<Underlying> number;
        if (!number.load(source, convert)) {
            return false;
        }
        value = static_cast<E>(cast_op<Underlying>(number));
        return true;
    }

    static handle cast(E source, return_value_policy, handle) {
        const auto number = static_cast<std::int64_t>(static_cast<Underlying>(source));
        const object enumeration = PlurexPython::PythonEnum<E>::Class();
        if (PlurexPython::PythonEnum<E>::mask) {
            return enumeration(number).release();
        }
        return PlurexPython::EnumOrInt(enumeration, number).release();
    }
};

}  // namespace pybind11::detail

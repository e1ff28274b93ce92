#pragma once

#include <cstddef>
#include <tuple>
#include <type_traits>

namespace Korv::Plurex::Notification {

/// One row of an EventTypeTable: event type `TypeValue` and the class its specific callback list
/// receives.
template <class Args, auto TypeValue>
struct EventTypeRow {
    /// The class the type's specific list receives.
    using ArgsType = Args;
    /// The event type (a value of one of the event Type enumerations).
    static constexpr auto Type = TypeValue;
};

/// Finds an argument class's event type at compile time: the notifiers' one-argument SendEvent reads
/// the type from such a table, so it cannot be posted under the wrong one.
///
/// Only the exact class counts: a class derived from a row's class (or a const one) names no row,
/// and a class named by several rows has no single type. Either way Count is not 1 and the notifiers'
/// one-argument SendEvent does not take it.
template <class... Rows>
class EventTypeTable {
private:
    // The position of the first row naming `Args`, or the number of rows when none does.
    template <class Args>
    static constexpr std::size_t IndexOf() noexcept {
        constexpr bool names[] = {std::is_same_v<Args, typename Rows::ArgsType>...};
        std::size_t i = 0;
        while (i < sizeof...(Rows) && !names[i]) {
            ++i;
        }
        return i;
    }

public:
    /// How many rows name exactly class `Args`.
    template <class Args>
    static constexpr std::size_t Count = (std::size_t{0} + ... +
                                          std::size_t{std::is_same_v<Args, typename Rows::ArgsType>});

    /// The type of the one row naming `Args`; ill-formed unless Count<Args> is 1.
    template <class Args>
    static constexpr auto TypeOf = std::tuple_element_t<IndexOf<Args>(), std::tuple<Rows...>>::Type;
};

}  // namespace Korv::Plurex::Notification

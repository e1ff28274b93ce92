#pragma once

#include "PlurexData/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace Korv::Plurex::Data {

/// A tree of plain values, the shape of a JSON document: null, a boolean, an integer, a floating-point
/// number, a string, an array, or an object whose members keep the order they were set in. The
/// library's structured forms (ClipToValue) use it, so that the tool and the bindings map them to
/// their own documents without the library depending on either.
///
/// An integer is signed (Kind::Int) whenever it fits in 64 signed bits, whichever type it was built
/// from; Kind::UInt holds only the integers above INT64_MAX. So two trees holding the same numbers
/// compare equal however their numbers were typed.
class PLUREXDATA_API Value {
public:
    /// What a value holds.
    enum class Kind : std::int32_t { Null, Bool, Int, UInt, Double, String, Array, Object };

    /// One member of an object: its key and its value.
    using Member = std::pair<std::string, Value>;

    /// Null.
    Value() noexcept = default;
    /// Null.
    Value(std::nullptr_t) noexcept {}
    /// A boolean.
    Value(bool value) noexcept : data_(value) {}
    /// An integer of any integral type but bool: Kind::Int, or Kind::UInt above INT64_MAX.
    template <class T, std::enable_if_t<std::is_integral_v<T> && !std::is_same_v<T, bool>, int> = 0>
    Value(T value) noexcept {
        if constexpr (std::is_signed_v<T>) {
            data_ = static_cast<std::int64_t>(value);
        } else {
            SetUnsigned(value);
        }
    }
    /// A floating-point number.
    Value(double value) noexcept : data_(value) {}
    /// A string; any bytes, though documents expect UTF-8.
    Value(std::string value) noexcept : data_(std::move(value)) {}
    /// A string.
    Value(const char* value) : data_(std::string(value)) {}

    /// An array of `items`.
    static Value Array(std::vector<Value> items = {});
    /// An object of `members` in their order; a key given twice keeps its first place and its last
    /// value, as Set does.
    static Value Object(std::vector<Member> members = {});

    /// What the value holds.
    Kind GetKind() const noexcept { return static_cast<Kind>(data_.index()); }

    /// The value itself. Each throws std::logic_error("<held> where <wanted> was expected") on
    /// another kind, the kinds named as ToString(Kind) does: "a string where an integer was expected".
    ///@{
    bool AsBool() const;
    /// Kind::Int.
    std::int64_t AsInt64() const;
    /// Kind::UInt, or Kind::Int at 0 or above; a negative Int throws as another kind does.
    std::uint64_t AsUInt64() const;
    double AsDouble() const;
    const std::string& AsString() const;
    /// The items of an array, in order.
    const std::vector<Value>& Items() const;
    /// The members of an object, in the order they were set.
    const std::vector<Member>& Members() const;
    ///@}

    /// Adds `item` at the end of an array; throws as Items() on another kind.
    void Append(Value item);

    /// The value of the member `key` of an object, or nullptr when it has none; throws as Members()
    /// on another kind.
    const Value* Find(std::string_view key) const;
    /// Sets the member `key` of an object: in its place when it has one, else added at the end;
    /// throws as Members() on another kind.
    void Set(std::string key, Value value);

    /// The same kind and the same contents, members compared in order.
    ///@{
    bool operator==(const Value& other) const;
    bool operator!=(const Value& other) const { return !(*this == other); }
    ///@}

private:
    void SetUnsigned(std::uint64_t value) noexcept;

    // In the order of Kind.
    std::variant<std::nullptr_t, bool, std::int64_t, std::uint64_t, double, std::string, std::vector<Value>,
                 std::vector<Member>>
        data_;
};

/// The kind's name in messages: "null", "a boolean", "an integer", "an unsigned integer", "a number",
/// "a string", "an array", "an object"; "unknown" for a value outside the enumeration.
PLUREXDATA_API std::string ToString(Value::Kind kind);

}  // namespace Korv::Plurex::Data

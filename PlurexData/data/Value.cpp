#include "PlurexData/data/Value.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

namespace Korv::Plurex::Data {

namespace {

[[noreturn]] void Refuse(Value::Kind held, Value::Kind wanted) {
    throw std::logic_error(ToString(held) + " where " + ToString(wanted) + " was expected");
}

}  // namespace

Value Value::Array(std::vector<Value> items) {
    Value value;
    value.data_ = std::move(items);
    return value;
}

Value Value::Object(std::vector<Member> members) {
    Value value;
    value.data_ = std::vector<Member>();
    for (Member& member : members) {
        value.Set(std::move(member.first), std::move(member.second));
    }
    return value;
}

void Value::SetUnsigned(std::uint64_t value) noexcept {
    if (value <= static_cast<std::uint64_t>(INT64_MAX)) {
        data_ = static_cast<std::int64_t>(value);
    } else {
        data_ = value;
    }
}

bool Value::AsBool() const {
    if (const auto* value = std::get_if<bool>(&data_)) {
        return *value;
    }
    Refuse(GetKind(), Kind::Bool);
}

std::int64_t Value::AsInt64() const {
    if (const auto* value = std::get_if<std::int64_t>(&data_)) {
        return *value;
    }
    Refuse(GetKind(), Kind::Int);
}

std::uint64_t Value::AsUInt64() const {
    if (const auto* value = std::get_if<std::uint64_t>(&data_)) {
        return *value;
    }
    if (const auto* value = std::get_if<std::int64_t>(&data_); value != nullptr && *value >= 0) {
        return static_cast<std::uint64_t>(*value);
    }
    Refuse(GetKind(), Kind::UInt);
}

double Value::AsDouble() const {
    if (const auto* value = std::get_if<double>(&data_)) {
        return *value;
    }
    Refuse(GetKind(), Kind::Double);
}

const std::string& Value::AsString() const {
    if (const auto* value = std::get_if<std::string>(&data_)) {
        return *value;
    }
    Refuse(GetKind(), Kind::String);
}

const std::vector<Value>& Value::Items() const {
    if (const auto* value = std::get_if<std::vector<Value>>(&data_)) {
        return *value;
    }
    Refuse(GetKind(), Kind::Array);
}

const std::vector<Value::Member>& Value::Members() const {
    if (const auto* value = std::get_if<std::vector<Member>>(&data_)) {
        return *value;
    }
    Refuse(GetKind(), Kind::Object);
}

void Value::Append(Value item) {
    Items();  // throws for another kind
    std::get<std::vector<Value>>(data_).push_back(std::move(item));
}

const Value* Value::Find(std::string_view key) const {
    const auto& members = Members();
    const auto found = std::find_if(members.begin(), members.end(),
                                    [&](const Member& member) { return member.first == key; });
    return found == members.end() ? nullptr : &found->second;
}

void Value::Set(std::string key, Value value) {
    Members();  // throws for another kind
    auto& members = std::get<std::vector<Member>>(data_);
    const auto found = std::find_if(members.begin(), members.end(),
                                    [&](const Member& member) { return member.first == key; });
    if (found != members.end()) {
        found->second = std::move(value);
    } else {
        members.emplace_back(std::move(key), std::move(value));
    }
}

bool Value::operator==(const Value& other) const {
    return data_ == other.data_;
}

std::string ToString(Value::Kind kind) {
    switch (kind) {
        case Value::Kind::Null:
            return "null";
        case Value::Kind::Bool:
            return "a boolean";
        case Value::Kind::Int:
            return "an integer";
        case Value::Kind::UInt:
            return "an unsigned integer";
        case Value::Kind::Double:
            return "a number";
        case Value::Kind::String:
            return "a string";
        case Value::Kind::Array:
            return "an array";
        case Value::Kind::Object:
            return "an object";
    }
    return "unknown";
}

}  // namespace Korv::Plurex::Data

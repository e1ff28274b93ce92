#include "PlurexData/data/Value.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>

using Korv::Plurex::Data::Value;
using Kind = Value::Kind;

namespace {

// Integers take the signed kind whenever they fit, whatever type they came as, so equal numbers are
// equal values; only those above INT64_MAX are unsigned.
TEST(Value, IntegerKinds) {
    const struct {
        Value value;
        Kind kind;
    } cases[] = {
        {Value(), Kind::Null},
        {Value(nullptr), Kind::Null},
        {Value(false), Kind::Bool},
        {Value('a'), Kind::Int},
        {Value(std::uint16_t{65535}), Kind::Int},
        {Value(std::uint64_t{INT64_MAX}), Kind::Int},
        {Value(std::uint64_t{INT64_MAX} + 1), Kind::UInt},
        {Value(INT64_MIN), Kind::Int},
        {Value(0.5f), Kind::Double},
        {Value("1"), Kind::String},
        {Value::Array(), Kind::Array},
        {Value::Object(), Kind::Object},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.value.GetKind(), c.kind) << ToString(c.kind);
    }
    EXPECT_EQ(Value(std::uint32_t{7}), Value(std::int8_t{7}));
    EXPECT_EQ(Value(-1).AsInt64(), -1);
    EXPECT_EQ(Value(5).AsUInt64(), 5u);
    EXPECT_EQ(Value(UINT64_MAX).AsUInt64(), UINT64_MAX);
    EXPECT_NE(Value(1), Value(1.0));
    EXPECT_NE(Value(1), Value(true));
}

TEST(Value, WrongKindThrowsNamingBoth) {
    const auto message = [](auto call) {
        try {
            call();
        } catch (const std::logic_error& e) {
            return std::string(e.what());
        }
        return std::string("no exception");
    };
    EXPECT_EQ(message([] { Value("x").AsInt64(); }), "a string where an integer was expected");
    EXPECT_EQ(message([] { Value(-1).AsUInt64(); }), "an integer where an unsigned integer was expected");
    EXPECT_EQ(message([] { Value(UINT64_MAX).AsInt64(); }),
              "an unsigned integer where an integer was expected");
    EXPECT_EQ(message([] { Value(1).AsDouble(); }), "an integer where a number was expected");
    EXPECT_EQ(message([] { Value().AsBool(); }), "null where a boolean was expected");
    EXPECT_EQ(message([] { Value::Object().Append(1); }), "an object where an array was expected");
    EXPECT_EQ(message([] { Value::Array().Find("a"); }), "an array where an object was expected");
    EXPECT_EQ(message([] { Value(true).Set("a", 1); }), "a boolean where an object was expected");
}

// Members keep the order they were first set in; setting a key again replaces its value in place.
TEST(Value, ObjectMembersKeepTheirOrder) {
    Value object = Value::Object({{"b", 1}, {"a", 2}, {"b", 3}});
    object.Set("c", Value::Array({1, "x"}));
    object.Set("a", nullptr);
    ASSERT_EQ(object.Members().size(), 3u);
    EXPECT_EQ(object.Members()[0], Value::Member("b", 3));
    EXPECT_EQ(object.Members()[1], Value::Member("a", nullptr));
    EXPECT_EQ(object.Members()[2].second.Items()[1].AsString(), "x");
    EXPECT_EQ(object.Find("d"), nullptr);
    // Order is part of equality: the same members in another order are another object.
    EXPECT_NE(Value::Object({{"a", 1}, {"b", 2}}), Value::Object({{"b", 2}, {"a", 1}}));
}

}  // namespace

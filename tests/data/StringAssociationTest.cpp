#include "PlurexData/data/StringAssociation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using Korv::Plurex::Data::StringAssociation;

namespace {

enum class Colour : std::int32_t { Black = -1, Red = 1, Green = 2, Blue = 3, Grey = 4 };

// A table without a default: only tests build one.
const StringAssociation<Colour> noDefault({{Colour::Green, "Green"}, {Colour::Red, "Red"}});

template <class Call>
std::string OutOfRange(Call call) {
    try {
        call();
    } catch (const std::out_of_range& e) {
        return e.what();
    }
    return "no exception";
}

}  // namespace

TEST(StringAssociation, WithoutDefaultUnknownsThrow) {
    EXPECT_EQ(noDefault.ToString(Colour::Red), "Red");
    EXPECT_EQ(noDefault.ToType("Green"), Colour::Green);
    EXPECT_FALSE(noDefault.HasDefault());
    EXPECT_EQ(OutOfRange([] { noDefault.ToString(Colour::Blue); }), "Unknown value");
    EXPECT_EQ(OutOfRange([] { noDefault.ToType("Foo"); }), "Unknown value : Foo");
    EXPECT_EQ(OutOfRange([] { noDefault.ToType(" Red"); }), "Unknown value :  Red");
    EXPECT_EQ(OutOfRange([] { noDefault.ToType("red"); }), "Unknown value : red");
    EXPECT_EQ(OutOfRange([] { noDefault.ToType(""); }), "Unknown value : ");
}

TEST(StringAssociation, DefaultWithoutRowFailsAsMapAt) {
    const StringAssociation<Colour> table({{Colour::Red, "Red"}}, Colour::Blue);
    EXPECT_EQ(OutOfRange([&] { table.ToString(Colour::Green); }), "map::at");
    EXPECT_EQ(table.ToType("Green"), Colour::Blue);
    EXPECT_EQ(table.ToString(Colour::Red), "Red");
}

TEST(StringAssociation, FirstRowWinsAValueAndTheLowerValueWinsAName) {
    const StringAssociation<Colour> table({{Colour::Red, "Red"},
                                           {Colour::Red, "Rouge"},
                                           {Colour::Grey, "Shared"},
                                           {Colour::Green, "Shared"},
                                           {Colour::Blue, "Same"},
                                           {Colour::Black, "Same"}},
                                          Colour::Grey);
    EXPECT_EQ(table.ToString(Colour::Red), "Red");
    // The ignored row leaves no trace in the reverse map either.
    EXPECT_EQ(table.ToType("Rouge"), Colour::Grey);
    EXPECT_EQ(table.ToType("Shared"), Colour::Green);
    EXPECT_EQ(table.ToString(Colour::Grey), "Shared");
    // Values are ordered as signed numbers: -1 is the lower.
    EXPECT_EQ(table.ToType("Same"), Colour::Black);
    std::vector<Colour> order;
    for (const auto& row : table.GetNames()) {
        order.push_back(row.first);
    }
    EXPECT_EQ(order,
              (std::vector<Colour>{Colour::Black, Colour::Red, Colour::Green, Colour::Blue, Colour::Grey}));
    // GetRows keeps the construction order, without the ignored row, naming the strings ToString
    // returns, the default marked.
    std::vector<std::pair<Colour, bool>> rows;
    for (const auto& row : table.GetRows()) {
        EXPECT_EQ(&row.name, &table.ToString(row.value));
        rows.emplace_back(row.value, row.isDefault);
    }
    EXPECT_EQ(rows, (std::vector<std::pair<Colour, bool>>{{Colour::Red, false},
                                                          {Colour::Grey, true},
                                                          {Colour::Green, false},
                                                          {Colour::Blue, false},
                                                          {Colour::Black, false}}));
    ASSERT_EQ(noDefault.GetRows().size(), 2u);
    EXPECT_EQ(noDefault.GetRows()[0].value, Colour::Green);
    EXPECT_FALSE(noDefault.GetRows()[0].isDefault || noDefault.GetRows()[1].isDefault);
}

// Names that differ only in bytes above 0x7f, in embedded NULs, in length or in case: each reads
// back to its own value, which takes one consistent byte order in the reverse map.
TEST(StringAssociation, NamesCompareByteWise) {
    const std::vector<std::string> names = {"",         "a",    std::string("a\0", 2),
                                            "ab",       "aB",   "A",
                                            "\x7f",     "\x80", "\xff",
                                            "\xff\xff", "b",    "a\xe9",
                                            "a\x01",    "ba",   std::string("\0", 1),
                                            "Ab"};
    enum class Index : int {};
    const StringAssociation<Index> table({{Index{0}, names[0]},
                                          {Index{1}, names[1]},
                                          {Index{2}, names[2]},
                                          {Index{3}, names[3]},
                                          {Index{4}, names[4]},
                                          {Index{5}, names[5]},
                                          {Index{6}, names[6]},
                                          {Index{7}, names[7]},
                                          {Index{8}, names[8]},
                                          {Index{9}, names[9]},
                                          {Index{10}, names[10]},
                                          {Index{11}, names[11]},
                                          {Index{12}, names[12]},
                                          {Index{13}, names[13]},
                                          {Index{14}, names[14]},
                                          {Index{15}, names[15]}});
    ASSERT_EQ(names.size(), 16u);
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(table.ToType(names[i]), Index(static_cast<int>(i))) << i;
        EXPECT_EQ(&table.ToString(Index(static_cast<int>(i))),
                  &table.GetNames().at(Index(static_cast<int>(i))));
    }
    EXPECT_EQ(OutOfRange([&] { table.ToType("\xfe"); }), "Unknown value : \xfe");
    EXPECT_THROW(table.ToType(std::string("a\0\0", 3)), std::out_of_range);
}

namespace {

using Names = std::vector<std::string>;

// Names drawn from few bytes, so that many share prefixes, heads or lengths around eight.
Names RandomNames(std::size_t count, unsigned seed) {
    const char alphabet[] = {'\0', 'a', 'b', '\x7f', '\x80', '\xff'};
    std::mt19937 random(seed);
    std::set<std::string> names;
    while (names.size() < count) {
        std::string name(random() % 19, ' ');
        for (char& c : name) {
            c = alphabet[random() % sizeof alphabet];
        }
        names.insert(name);
    }
    Names shuffled(names.begin(), names.end());
    std::shuffle(shuffled.begin(), shuffled.end(), random);
    return shuffled;
}

enum class Slot : int {};

template <std::size_t... I>
std::unique_ptr<StringAssociation<Slot>> TableOf(const Names& names, std::index_sequence<I...>) {
    return std::make_unique<StringAssociation<Slot>>(
        std::initializer_list<StringAssociation<Slot>::Row>{{Slot(I), names[I]}...}, Slot(-1));
}

}  // namespace

TEST(StringAssociation, NameOrderIsStringCompareAndHeadsAgreeWithIt) {
    using NameLess = StringAssociation<Slot>::NameLess;
    const Names names = RandomNames(400, 7);
    for (const std::string& a : names) {
        for (const std::string& b : names) {
            const bool less = a.compare(b) < 0;
            ASSERT_EQ(NameLess()(&a, &b), less)
                << testing::PrintToString(a) << ' ' << testing::PrintToString(b);
            const auto headA = NameLess::Head(a), headB = NameLess::Head(b);
            ASSERT_TRUE(headA == headB || (headA < headB) == less)
                << testing::PrintToString(a) << ' ' << testing::PrintToString(b);
        }
    }
}

TEST(StringAssociation, EveryNameOfALargeTableReadsBack) {
    constexpr std::size_t count = 64;
    const Names all = RandomNames(2 * count, 11);
    const Names names(all.begin(), all.begin() + count);
    const auto table = TableOf(names, std::make_index_sequence<count>{});
    for (std::size_t i = 0; i < count; ++i) {
        EXPECT_EQ(table->ToType(names[i]), Slot(static_cast<int>(i))) << testing::PrintToString(names[i]);
    }
    for (std::size_t i = count; i < all.size(); ++i) {
        EXPECT_EQ(table->ToType(all[i]), Slot(-1)) << testing::PrintToString(all[i]);
    }
}

#pragma once

// What every identifier owes the containers it keys: < follows CompareTo, is a strict weak order whose
// equivalence is ==, equal values hash equal, and streaming writes ToString. Written once, instantiated beside each
// identifier's own tests, over values drawn from small spaces so that equal values built apart
// come up often.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <unordered_set>
#include <vector>

// A value of T drawn from a small space; specialised by each test file for its types.
template <class T>
T SampleKey(std::mt19937& random);

template <class T>
class IdentifierKeys : public testing::Test {
protected:
    static std::vector<T> Samples() {
        std::mt19937 random(99);
        std::vector<T> values;
        for (int i = 0; i < 120; ++i) {
            values.push_back(SampleKey<T>(random));
        }
        return values;
    }
};

TYPED_TEST_SUITE_P(IdentifierKeys);

TYPED_TEST_P(IdentifierKeys, LessIsCompareToAndAStrictWeakOrder) {
    const auto values = TestFixture::Samples();
    const auto equivalent = [](const TypeParam& a, const TypeParam& b) { return !(a < b) && !(b < a); };
    for (const TypeParam& a : values) {
        for (const TypeParam& b : values) {
            // < follows CompareTo and tells apart what == tells apart.
            ASSERT_TRUE(a.CompareTo(b) >= 0 || a < b) << a << " | " << b;
            ASSERT_TRUE(!(a < b) || a.CompareTo(b) <= 0) << a << " | " << b;
            ASSERT_EQ(equivalent(a, b), a == b) << a << " | " << b;
            ASSERT_FALSE(a < b && b < a) << a << " | " << b;
            for (const TypeParam& c : values) {
                ASSERT_TRUE(!(a < b && b < c) || a < c) << a << " | " << b << " | " << c;
                ASSERT_TRUE(!(equivalent(a, b) && equivalent(b, c)) || equivalent(a, c))
                    << a << " | " << b << " | " << c;
            }
        }
    }
}

TYPED_TEST_P(IdentifierKeys, EqualValuesHashEqualAndOthersApart) {
    const auto values = TestFixture::Samples();
    const std::hash<TypeParam> hash;
    std::size_t equalPairs = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        for (std::size_t j = i + 1; j < values.size(); ++j) {
            if (values[i] == values[j]) {
                ++equalPairs;
                ASSERT_EQ(hash(values[i]), hash(values[j])) << values[i] << " | " << values[j];
            } else {
                // Not owed, but a collision among so few values means a field left out of the hash.
                EXPECT_NE(hash(values[i]), hash(values[j])) << values[i] << " | " << values[j];
            }
        }
    }
    EXPECT_GT(equalPairs, 0u);
}

TYPED_TEST_P(IdentifierKeys, StreamsItsText) {
    for (const TypeParam& value : TestFixture::Samples()) {
        std::ostringstream out;
        out << value << '|';
        ASSERT_EQ(out.str(), value.ToString() + '|');
    }
}

// Ordered and unordered containers alike keep one value per class of ==.
TYPED_TEST_P(IdentifierKeys, ContainersKeepOnePerClass) {
    const auto values = TestFixture::Samples();
    std::vector<TypeParam> distinct;
    for (const TypeParam& value : values) {
        if (std::none_of(distinct.begin(), distinct.end(), [&](const TypeParam& d) { return d == value; })) {
            distinct.push_back(value);
        }
    }
    std::map<TypeParam, int> mapped;
    for (const TypeParam& value : values) {
        ++mapped[value];
    }
    EXPECT_EQ(std::unordered_set<TypeParam>(values.begin(), values.end()).size(), distinct.size());
    EXPECT_EQ(std::set<TypeParam>(values.begin(), values.end()).size(), distinct.size());
    EXPECT_EQ(mapped.size(), distinct.size());
    EXPECT_LT(distinct.size(), values.size());
}

REGISTER_TYPED_TEST_SUITE_P(IdentifierKeys, LessIsCompareToAndAStrictWeakOrder,
                            EqualValuesHashEqualAndOthersApart, StreamsItsText, ContainersKeepOnePerClass);

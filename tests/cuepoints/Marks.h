#pragma once

#include "PlurexData/cuepoints/CuePoint.h"
#include "PlurexData/cuepoints/CuePointUser.h"
#include "PlurexData/data/clips/UmId.h"
#include "PlurexData/data/servers/ServerId.h"

#include <gtest/gtest.h>

#include <vector>

namespace CuePointTests {

using Korv::Plurex::BusinessObjects::CuePoints::CuePoint;
using Korv::Plurex::Data::Clips::UmId;
using Korv::Plurex::Data::Servers::ServerId;
using List = std::vector<CuePoint>;
using Tcs = std::vector<long long>;
using Nums = std::vector<int>;

inline CuePoint Mark(long long tc, const char* clip = "CLIPA", int server = 10, bool train = false) {
    return CuePoint(tc, 0, ServerId(server), UmId(clip), train);
}

inline CuePoint TrainMark(long long tc, int server = 10) {
    return Mark(tc, "TRAIN", server, true);
}

// Adds a copy of `mark`, for the cases that do not look at what the add writes back.
inline int Add(Korv::Plurex::BusinessObjects::CuePoints::CuePointUser& user, CuePoint mark) {
    return user.AddCuePointToList(mark);
}

template <class Exception, class Action>
void ExpectThrow(Action action, const char* message) {
    try {
        action();
        ADD_FAILURE() << "no exception, expected " << message;
    } catch (const Exception& e) {
        EXPECT_STREQ(e.what(), message);
    }
}

template <class T>
std::vector<T> Each(const List& list, T (CuePoint::*get)() const noexcept) {
    std::vector<T> values;
    for (const CuePoint& mark : list) {
        values.push_back((mark.*get)());
    }
    return values;
}
inline Tcs Positions(const List& list) {
    return Each(list, &CuePoint::GetTc);
}
inline Nums Numbers(const List& list) {
    return Each(list, &CuePoint::GetNumber);
}

}  // namespace CuePointTests

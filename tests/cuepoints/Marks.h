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

inline std::vector<long long> Positions(const std::vector<CuePoint>& list) {
    std::vector<long long> positions;
    for (const CuePoint& mark : list) {
        positions.push_back(mark.GetTc());
    }
    return positions;
}

inline std::vector<int> Numbers(const std::vector<CuePoint>& list) {
    std::vector<int> numbers;
    for (const CuePoint& mark : list) {
        numbers.push_back(mark.GetNumber());
    }
    return numbers;
}

}  // namespace CuePointTests

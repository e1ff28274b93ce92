#include "PlurexData/system/Delegate.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

using Korv::System::Delegate;

TEST(Delegate, CallsListenersInOrderAndReadsTheCountAfterEachCall) {
    Delegate<void(const std::string&)> delegate;
    std::string calls;
    delegate.Add([&](const std::string& text) { calls += "a" + text; });
    const auto second = delegate.Add([&](const std::string& text) {
        calls += "b" + text;
        // Added during the round, so called in it.
        delegate.Add([&](const std::string& inner) { calls += "c" + inner; });
    });
    delegate.Invoke("1");
    EXPECT_EQ(calls, "a1b1c1");
    EXPECT_EQ(delegate.GetCount(), 3U);
    EXPECT_TRUE(delegate.Remove(second));
    EXPECT_FALSE(delegate.Remove(second));
    calls.clear();
    delegate("2");
    EXPECT_EQ(calls, "a2c2");
    delegate.Clear();
    delegate("3");
    EXPECT_EQ(calls, "a2c2");
}

TEST(Delegate, AListenerMayRemoveItselfAndEmptyOnesAreRefused) {
    Delegate<void(int)> delegate;
    int total = 0;
    auto owned = std::make_shared<int>(5);
    Delegate<void(int)>::Token self = 0;
    self = delegate.Add([&, owned](int value) {
        delegate.Remove(self);  // destroys this closure's stored copy while it runs
        total += value * *owned;
    });
    owned.reset();
    delegate.Add([&](int value) { total += value; });  // skipped: it moved into the removed slot
    delegate.Invoke(2);
    EXPECT_EQ(total, 10);
    delegate.Invoke(2);
    EXPECT_EQ(total, 12);
    try {
        delegate.Add(nullptr);
        ADD_FAILURE();
    } catch (const std::invalid_argument& e) {
        EXPECT_STREQ(e.what(), "Null listener");
    }
}

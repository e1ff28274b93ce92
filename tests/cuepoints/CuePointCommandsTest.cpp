#include "Marks.h"
#include "PlurexData/cuepoints/CuePointCopyCommand.h"
#include "PlurexData/cuepoints/CuePointDbEventArgs.h"
#include "PlurexData/cuepoints/CuePointDeleteCommand.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using namespace CuePointTests;
using namespace Korv::Plurex::BusinessObjects::CuePoints;

TEST(CuePointCommands, EqualityClearDefaultsAndNulls) {
    const CuePointDeleteCommand clip(UmId("CLIP"), false), train(UmId("CLIP"), true);
    EXPECT_TRUE(!(clip == train) && clip != train);
    EXPECT_TRUE(clip == CuePointDeleteCommand(UmId("CLIP", true), false));  // UmId == ignores the flag
    const auto* none = static_cast<const CuePointDeleteCommand*>(nullptr);
    EXPECT_TRUE(!(clip == none) && clip != none);
    CuePointDeleteCommand cleared(UmId("CLIP"), true);
    cleared.Clear();
    EXPECT_TRUE(cleared == CuePointDeleteCommand(UmId::Empty(), false) && CuePointDeleteCommand() == cleared);
    ExpectThrow<std::invalid_argument>([none] { CuePointDeleteCommand{none}; }, "Null CuePointDeleteCommand");

    const CuePointCopyCommand copy;
    EXPECT_TRUE(!copy.IsTrain() && copy.GetCamera() == 0 && copy.GetServerId().GetValue() == -1);
    ExpectThrow<std::invalid_argument>(
        [] { CuePointCopyCommand{static_cast<const CuePointCopyCommand*>(nullptr)}; },
        "Null CuePointCopyCommand");
}

TEST(CuePointDbEventArgs, CarriesWhatItWasGivenAndDefaultsTheRest) {
    EXPECT_EQ(static_cast<int>(CuePointDbEventType::CuePointAdded), 1);
    EXPECT_EQ(static_cast<int>(CuePointDbEventType::CuePointRemoved), 2);
    EXPECT_EQ(static_cast<int>(CuePointDbEventType::CuePointsRemovedAll), 4);

    const CuePointDbEventArgs added(2, CuePointDbEventType::CuePointAdded, Mark(77));
    EXPECT_TRUE(added.GetUser() == 2 && added.GetType() == CuePointDbEventType::CuePointAdded &&
                added.GetCuePoint().GetTc() == 77);
    EXPECT_TRUE(added.GetDeleteCommand() == CuePointDeleteCommand());
    const CuePointDeleteCommand command(UmId("CLIP"), true);
    const CuePointDbEventArgs removed(3, CuePointDbEventType::CuePointsRemovedAll, command);
    EXPECT_TRUE(removed.GetDeleteCommand() == command);
    EXPECT_EQ(removed.GetCuePoint().GetServerId().GetValue(), -1);

    // Handed around and destroyed through the root class.
    std::unique_ptr<Korv::System::EventArgs> root =
        std::make_unique<CuePointDbEventArgs>(1, CuePointDbEventType::CuePointRemoved);
    const auto* back = dynamic_cast<const CuePointDbEventArgs*>(root.get());
    ASSERT_NE(back, nullptr);
    EXPECT_TRUE(back->GetUser() == 1 && back->GetCuePoint().GetTc() == 0);
}

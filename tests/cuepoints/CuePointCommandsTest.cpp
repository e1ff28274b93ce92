#include "Marks.h"
#include "PlurexData/cuepoints/CuePointCopyCommand.h"
#include "PlurexData/cuepoints/CuePointDbEventArgs.h"
#include "PlurexData/cuepoints/CuePointDeleteCommand.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using namespace CuePointTests;
using namespace Korv::Plurex::BusinessObjects::CuePoints;

TEST(CuePointDeleteCommand, EqualityClearAndNulls) {
    const CuePointDeleteCommand clip(UmId("CLIP"), false), train(UmId("CLIP"), true);
    EXPECT_FALSE(clip == train);
    EXPECT_TRUE(clip != train);
    EXPECT_TRUE(clip == CuePointDeleteCommand(UmId("CLIP", true), false));  // UmId == ignores the flag
    EXPECT_FALSE(clip == static_cast<const CuePointDeleteCommand*>(nullptr));
    EXPECT_TRUE(clip != static_cast<const CuePointDeleteCommand*>(nullptr));

    CuePointDeleteCommand cleared(UmId("CLIP"), true);
    cleared.Clear();
    EXPECT_TRUE(cleared == CuePointDeleteCommand(UmId::Empty(), false));
    EXPECT_TRUE(CuePointDeleteCommand() == cleared);
    cleared.SetClipId(UmId("NEXT"), true);
    EXPECT_TRUE(cleared.IsTrain());
    EXPECT_STREQ(cleared.GetClipId().GetUmId(), "NEXT");
    EXPECT_TRUE(CuePointDeleteCommand(&train) == train);
    ExpectThrow<std::invalid_argument>(
        [] { CuePointDeleteCommand{static_cast<const CuePointDeleteCommand*>(nullptr)}; },
        "Null CuePointDeleteCommand");
}

TEST(CuePointCopyCommand, DefaultsFormsAndNullCopy) {
    CuePointCopyCommand command;
    EXPECT_FALSE(command.IsTrain());
    EXPECT_EQ(command.GetCamera(), 0);
    EXPECT_EQ(command.GetServerId().GetValue(), -1);
    command.SetClipIdSource(UmId("SRC"), true);
    EXPECT_TRUE(command.IsTrain());
    EXPECT_TRUE(CuePointCopyCommand(&command).IsTrain());
    ExpectThrow<std::invalid_argument>(
        [] { CuePointCopyCommand{static_cast<const CuePointCopyCommand*>(nullptr)}; },
        "Null CuePointCopyCommand");
}

TEST(CuePointDbEventArgs, CarriesWhatItWasGivenAndDefaultsTheRest) {
    EXPECT_EQ(static_cast<int>(CuePointDbEventType::CuePointAdded), 1);
    EXPECT_EQ(static_cast<int>(CuePointDbEventType::CuePointRemoved), 2);
    EXPECT_EQ(static_cast<int>(CuePointDbEventType::CuePointsRemovedAll), 4);

    CuePoint mark = Mark(77);
    mark.SetNumber(5);
    const CuePointDbEventArgs added(2, CuePointDbEventType::CuePointAdded, mark);
    EXPECT_EQ(added.GetUser(), 2);
    EXPECT_EQ(added.GetType(), CuePointDbEventType::CuePointAdded);
    EXPECT_EQ(added.GetCuePoint().GetNumber(), 5);
    EXPECT_TRUE(added.GetDeleteCommand() == CuePointDeleteCommand());

    const CuePointDbEventArgs removed(3, CuePointDbEventType::CuePointsRemovedAll,
                                      CuePointDeleteCommand(UmId("CLIP"), true));
    EXPECT_TRUE(removed.GetDeleteCommand() == CuePointDeleteCommand(UmId("CLIP"), true));
    EXPECT_EQ(removed.GetCuePoint().GetServerId().GetValue(), -1);

    // Handed around and destroyed through the root class.
    std::unique_ptr<Korv::System::EventArgs> root =
        std::make_unique<CuePointDbEventArgs>(1, CuePointDbEventType::CuePointRemoved);
    const auto* back = dynamic_cast<const CuePointDbEventArgs*>(root.get());
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->GetUser(), 1);
    EXPECT_EQ(back->GetCuePoint().GetTc(), 0);
}

#include "PlurexData/multiviewer/MultiviewerDataOverrides.h"

#include <gtest/gtest.h>

#include <stdexcept>

using Korv::Plurex::Multiviewer::MultiviewerDataOverrides;
using Korv::Plurex::Multiviewer::PlayerDataOverrides;

TEST(MultiviewerDataOverrides, SixPlayersWithEveryOverrideAbsent) {
    const MultiviewerDataOverrides overrides;
    for (unsigned int i = 0; i < 6; ++i) {
        const PlayerDataOverrides& player = overrides[i];
        EXPECT_FALSE(player.ClipCreationIn() || player.ClipCreationOut() ||
                     player.IsFirstControlledMediaOutput() || player.ControlMode() || player.ProgramMode() ||
                     player.IsPostRollEnabled() || player.Message());
    }
    for (unsigned int index : {6u, 7u, 0xFFFFFFFFu}) {
        try {
            overrides[index];
            ADD_FAILURE() << index;
        } catch (const std::out_of_range& e) {
            EXPECT_STREQ(e.what(), "MultiviewerDataOverrides: index out of range");
        }
    }
}

TEST(MultiviewerDataOverrides, SetDisableAndSetAgain) {
    MultiviewerDataOverrides overrides;
    PlayerDataOverrides& player = overrides[5];
    player.ClipCreationIn(0);
    ASSERT_TRUE(player.ClipCreationIn().has_value());
    EXPECT_EQ(*player.ClipCreationIn(), 0u);
    player.Message("x");
    player.DisableMessage();
    EXPECT_FALSE(player.Message());
    player.Message("y");
    EXPECT_EQ(player.Message(), "y");
    player.ControlMode(PlayerDataOverrides::ControlType::Remote);
    player.DisableControlMode();
    EXPECT_FALSE(player.ControlMode());
    player.IsPostRollEnabled(false);
    EXPECT_EQ(player.IsPostRollEnabled(), false);
    EXPECT_FALSE(overrides[4].ClipCreationIn());  // players are independent
}

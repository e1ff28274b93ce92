#include "Samples.h"

#include "PlurexData/channels/PlayerState.h"
#include "PlurexData/channels/RecorderState.h"
#include "PlurexData/notification/AnglesGroupCreationFailedEventArgs.h"
#include "PlurexData/notification/AnglesGroupCreationFinishedEventArgs.h"
#include "PlurexData/notification/AnglesGroupDeletionFailedEventArgs.h"
#include "PlurexData/notification/AnglesGroupDeletionFinishedEventArgs.h"
#include "PlurexData/notification/AnglesGroupUpdateFailedEventArgs.h"
#include "PlurexData/notification/AnglesGroupUpdateFinishedEventArgs.h"
#include "PlurexData/notification/ClipCreationFailedEventArgs.h"
#include "PlurexData/notification/ClipCreationFinishedEventArgs.h"
#include "PlurexData/notification/ClipDeletionFailedEventArgs.h"
#include "PlurexData/notification/ClipDeletionFinishedEventArgs.h"
#include "PlurexData/notification/ClipMoveFailedEventArgs.h"
#include "PlurexData/notification/ClipMoveFinishedEventArgs.h"
#include "PlurexData/notification/ClipUpdateFailedEventArgs.h"
#include "PlurexData/notification/ClipUpdateFinishedEventArgs.h"
#include "PlurexData/notification/DisconnectedFromNetworkEventArgs.h"
#include "PlurexData/notification/MassClipDeletionFailedEventArgs.h"
#include "PlurexData/notification/MassClipUpdateFailedEventArgs.h"
#include "PlurexData/notification/PlayerLoadProcessedEventArgs.h"
#include "PlurexData/notification/PlayerStateChangedEventArgs.h"
#include "PlurexData/notification/RecorderStateChangedEventArgs.h"
#include "PlurexData/notification/RecordingRangesChangedEventArgs.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

using namespace Korv::Plurex::Notification;
using namespace NotificationTests;
using Korv::Plurex::Data::OperationResult;
using Korv::Plurex::Data::Channels::PlayerState;
using Korv::Plurex::Data::Channels::RecorderState;
using Korv::Plurex::Data::Clips::Angle;
using ChannelGuid = Korv::Plurex::Data::Channels::Guid;
using CreationType = ClipCreationEventArgs::CreationType;
using NetworkType = ClipCreationEventArgs::NetworkType;

namespace {

constexpr long long Min64 = std::numeric_limits<long long>::min();

// The six common arguments of the clip commands, at the edges of their widths.
#define COMMON 0xFFFFFFFFu, Source::Network, 0x80000000u, std::uint16_t{0xFFFF}, SampleGuid(), Min64

void ExpectCommon(const ClipCommandEventArgs& args) {
    EXPECT_EQ(args.GetCommandNumber(), 0xFFFFFFFFu);
    EXPECT_EQ(args.GetRequestSource(), Source::Network);
    EXPECT_EQ(args.GetThirdValue(), 0x80000000u);
    EXPECT_EQ(args.GetFourthValue(), 0xFFFF);
    EXPECT_EQ(args.CommandGuid(), SampleGuid());
    EXPECT_EQ(args.GetReservedWord(), -1);
    EXPECT_EQ(args.GetValue64(), Min64);
}

std::int64_t SystemNanoseconds() {
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

// Waits until the system clock has moved past `time`.
void WaitPast(std::int64_t time) {
    while (SystemNanoseconds() <= time) {
    }
}

Angle MakeAngle(std::uint32_t first) {
    return Angle{{first, first + 1, first + 2, first + 3, first + 4}};
}

}  // namespace

TEST(ClipCommandEventArgs, KeepsTheCommonFieldsWithTheReservedWordAtMinusOne) {
    ExpectCommon(ClipCommandEventArgs(COMMON));
    const ClipCommandEventArgs zero(0, Source::Local, 0, 0, Guid::Empty(), 0);
    EXPECT_EQ(zero.GetReservedWord(), -1);
    EXPECT_EQ(zero.CommandGuid(), Guid::Empty());
}

TEST(ClipCommandEventArgs, RequestSourceTexts) {
    struct Case {
        std::int32_t source;
        const char* longForm;
        const char* shortForm;
    };
    for (const Case& c : {Case{0, "Local", "LR"}, Case{1, "Network", "NR"}, Case{2, "Unknown", "UR"},
                          Case{7, "Unknown", "UR"}, Case{-1, "Unknown", "UR"}}) {
        const ClipCommandEventArgs args(1, static_cast<Source>(c.source), 0, 0, SampleGuid(), 0);
        EXPECT_STREQ(args.GetRequestSourceString(false), c.longForm) << c.source;
        EXPECT_STREQ(args.GetRequestSourceString(true), c.shortForm) << c.source;
    }
}

TEST(ClipCreationEventArgs, CreationAndNetworkTypeTexts) {
    const char* const creation[] = {"Make", "Copy", "QorvaneRestore", "DrovikRestore", "Unknown"};
    const char* const network[] = {"Sdti",       "Drovik",      "Unknown", "PushSdti",
                                   "PushDrovik", "PushUnknown", "Unknown"};
    for (std::int32_t value = -1; value < 7; ++value) {
        const ClipCreationEventArgs args(COMMON, Clip(), Clip(), static_cast<CreationType>(value),
                                         static_cast<NetworkType>(value));
        EXPECT_STREQ(args.GetCreationTypeString(), value < 0 || value > 4 ? "Unknown" : creation[value])
            << value;
        EXPECT_STREQ(args.GetNetworkTypeString(), value < 0 ? "Unknown" : network[value]) << value;
    }
}

TEST(ClipCommandEventArgs, ConstructorsTakeTheirArgumentsInOrder) {
    const Clip one = TaggedClip(1), two = TaggedClip(2);

    const ClipCreationFinishedEventArgs created(COMMON, one, two, CreationType::DrovikRestore,
                                                NetworkType::PushDrovik);
    ExpectCommon(created);
    EXPECT_EQ(created.GetClipBefore(), one);
    EXPECT_EQ(created.GetClipAfter(), two);
    EXPECT_EQ(created.GetCreationType(), CreationType::DrovikRestore);
    EXPECT_EQ(created.GetNetworkType(), NetworkType::PushDrovik);

    const ClipCreationFailedEventArgs creationFailed(COMMON, static_cast<OperationResult>(-7),
                                                     std::int16_t{-32768}, two, one, CreationType::Copy,
                                                     NetworkType::Drovik);
    ExpectCommon(creationFailed);
    EXPECT_EQ(creationFailed.GetResult(), static_cast<OperationResult>(-7));
    EXPECT_EQ(creationFailed.GetErrorCode(), -32768);
    EXPECT_EQ(creationFailed.GetClipBefore(), two);
    EXPECT_EQ(creationFailed.GetClipAfter(), one);
    EXPECT_STREQ(creationFailed.GetCreationTypeString(), "Copy");
    EXPECT_STREQ(creationFailed.GetNetworkTypeString(), "Drovik");

    const ClipUpdateFinishedEventArgs updated(COMMON, true, one, two);
    ExpectCommon(updated);
    EXPECT_TRUE(updated.GetFlag());
    EXPECT_EQ(updated.GetFirstClip(), one);
    EXPECT_EQ(updated.GetSecondClip(), two);

    const ClipUpdateFailedEventArgs updateFailed(COMMON, OperationResult::Failure, std::int16_t{5}, two, one);
    ExpectCommon(updateFailed);
    EXPECT_EQ(updateFailed.GetResult(), OperationResult::Failure);
    EXPECT_EQ(updateFailed.GetErrorCode(), 5);
    EXPECT_EQ(updateFailed.GetFirstClip(), two);
    EXPECT_EQ(updateFailed.GetSecondClip(), one);

    const ClipDeletionFinishedEventArgs deleted(COMMON, one, 0xFF, 7);
    ExpectCommon(deleted);
    EXPECT_EQ(deleted.GetClip(), one);
    EXPECT_EQ(deleted.GetFirstByte(), 0xFF);
    EXPECT_EQ(deleted.GetSecondByte(), 7);

    const ClipDeletionFailedEventArgs deletionFailed(COMMON, OperationResult::Failure, std::int16_t{-2}, two,
                                                     3, 4, 5, false, true);
    ExpectCommon(deletionFailed);
    EXPECT_EQ(deletionFailed.GetResult(), OperationResult::Failure);
    EXPECT_EQ(deletionFailed.GetErrorCode(), -2);
    EXPECT_EQ(deletionFailed.GetClip(), two);
    EXPECT_EQ(deletionFailed.GetFirstByte(), 3);
    EXPECT_EQ(deletionFailed.GetSecondByte(), 4);
    EXPECT_EQ(deletionFailed.GetThirdByte(), 5);
    EXPECT_FALSE(deletionFailed.GetFirstFlag());
    EXPECT_TRUE(deletionFailed.GetSecondFlag());

    const ClipMoveFinishedEventArgs moved(COMMON, one, two);
    ExpectCommon(moved);
    EXPECT_EQ(moved.GetFirstClip(), one);
    EXPECT_EQ(moved.GetSecondClip(), two);
    const ClipMoveFailedEventArgs moveFailed(COMMON, OperationResult::Success, std::int16_t{32767}, two, one);
    ExpectCommon(moveFailed);
    EXPECT_EQ(moveFailed.GetErrorCode(), 32767);
    EXPECT_EQ(moveFailed.GetFirstClip(), two);
    EXPECT_EQ(moveFailed.GetSecondClip(), one);

    const MassClipUpdateFailedEventArgs massUpdate(COMMON, OperationResult::Failure, std::int16_t{-1},
                                                   0xFFFFFFFEu);
    ExpectCommon(massUpdate);
    EXPECT_EQ(massUpdate.GetResult(), OperationResult::Failure);
    EXPECT_EQ(massUpdate.GetErrorCode(), -1);
    EXPECT_EQ(massUpdate.GetCount(), 0xFFFFFFFEu);
    const MassClipDeletionFailedEventArgs massDeletion(COMMON, static_cast<OperationResult>(9),
                                                       std::int16_t{8}, 6u);
    ExpectCommon(massDeletion);
    EXPECT_EQ(massDeletion.GetResult(), static_cast<OperationResult>(9));
    EXPECT_EQ(massDeletion.GetErrorCode(), 8);
    EXPECT_EQ(massDeletion.GetCount(), 6u);
}

namespace {

// What every angle-group event built with command number 41 and SampleGuid() carries in common.
void ExpectAngleGroupCommon(const ClipCommandEventArgs& args) {
    EXPECT_EQ(args.GetCommandNumber(), 41u);
    EXPECT_EQ(args.GetRequestSource(), static_cast<Source>(2));
    EXPECT_STREQ(args.GetRequestSourceString(false), "Unknown");
    EXPECT_STREQ(args.GetRequestSourceString(true), "UR");
    EXPECT_EQ(args.GetThirdValue(), 0u);
    EXPECT_EQ(args.GetFourthValue(), 0u);
    EXPECT_EQ(args.CommandGuid(), SampleGuid());
    EXPECT_EQ(args.GetReservedWord(), -1);
    EXPECT_EQ(args.GetValue64(), -1);
}

template <class Finished, class Failed>
void CheckAngleGroupPair() {
    const std::vector<Angle> angles{MakeAngle(100), MakeAngle(200), MakeAngle(300)};
    const Finished finished(41, SampleGuid(), 0xFFFFFFFFu, MakeAngle(10), MakeAngle(20), angles);
    ExpectAngleGroupCommon(finished);
    EXPECT_EQ(finished.GetValue(), 0xFFFFFFFFu);
    EXPECT_EQ(finished.GetFirstAngle(), MakeAngle(10));
    EXPECT_EQ(finished.GetSecondAngle(), MakeAngle(20));
    EXPECT_EQ(finished.GetAngles(), angles);

    const Failed failed(41, SampleGuid(), OperationResult::Failure, std::int16_t{-9}, 3u, MakeAngle(20),
                        MakeAngle(10), std::vector<Angle>{});
    ExpectAngleGroupCommon(failed);
    EXPECT_EQ(failed.GetResult(), OperationResult::Failure);
    EXPECT_EQ(failed.GetErrorCode(), -9);
    EXPECT_EQ(failed.GetValue(), 3u);
    EXPECT_EQ(failed.GetFirstAngle(), MakeAngle(20));
    EXPECT_EQ(failed.GetSecondAngle(), MakeAngle(10));
    EXPECT_TRUE(failed.GetAngles().empty());
}

}  // namespace

TEST(AnglesGroupEventArgs, FillTheCommonFieldsThemselves) {
    CheckAngleGroupPair<AnglesGroupCreationFinishedEventArgs, AnglesGroupCreationFailedEventArgs>();
    CheckAngleGroupPair<AnglesGroupUpdateFinishedEventArgs, AnglesGroupUpdateFailedEventArgs>();

    const AnglesGroupDeletionFinishedEventArgs deleted(41, SampleGuid(), 12u);
    ExpectAngleGroupCommon(deleted);
    EXPECT_EQ(deleted.GetValue(), 12u);
    const AnglesGroupDeletionFailedEventArgs deletionFailed(41, SampleGuid(), static_cast<OperationResult>(4),
                                                            std::int16_t{-4}, 13u);
    ExpectAngleGroupCommon(deletionFailed);
    EXPECT_EQ(deletionFailed.GetResult(), static_cast<OperationResult>(4));
    EXPECT_EQ(deletionFailed.GetErrorCode(), -4);
    EXPECT_EQ(deletionFailed.GetValue(), 13u);
}

TEST(EventArgs, DynamicTypesCrossTheLibraryBoundary) {
    const std::shared_ptr<Korv::System::EventArgs> failed = std::make_shared<ClipUpdateFailedEventArgs>(
        COMMON, OperationResult::Failure, std::int16_t{1}, Clip(), Clip());
    EXPECT_NE(std::dynamic_pointer_cast<ClipUpdateEventArgs>(failed), nullptr);
    EXPECT_NE(std::dynamic_pointer_cast<CommandEventArgs>(failed), nullptr);
    EXPECT_EQ(std::dynamic_pointer_cast<ClipUpdateFinishedEventArgs>(failed), nullptr);
    EXPECT_EQ(std::dynamic_pointer_cast<StatusEventArgs>(failed), nullptr);

    const std::shared_ptr<Korv::System::EventArgs> load = std::make_shared<PlayerLoadProcessedEventArgs>();
    EXPECT_NE(std::dynamic_pointer_cast<ChannelCommandEventArgs>(load), nullptr);
    EXPECT_NE(std::dynamic_pointer_cast<CommandEventArgs>(load), nullptr);
    EXPECT_EQ(std::dynamic_pointer_cast<ClipCommandEventArgs>(load), nullptr);

    const std::shared_ptr<Korv::System::EventArgs> ranges =
        std::make_shared<RecordingRangesChangedEventArgs>();
    EXPECT_NE(std::dynamic_pointer_cast<ClipStatusEventArgs>(ranges), nullptr);
    EXPECT_EQ(std::dynamic_pointer_cast<ServerStatusEventArgs>(ranges), nullptr);
    const std::shared_ptr<Korv::System::EventArgs> lost =
        std::make_shared<DisconnectedFromNetworkEventArgs>();
    EXPECT_NE(std::dynamic_pointer_cast<ServerStatusEventArgs>(lost), nullptr);
    EXPECT_NE(std::dynamic_pointer_cast<StatusEventArgs>(lost), nullptr);
}

TEST(StatusEventArgs, TimeIsUnsetUntilStamped) {
    EXPECT_EQ(static_cast<std::uint64_t>(DisconnectedFromNetworkEventArgs().GetTime()),
              0x8000000000000001ULL);
    EXPECT_EQ(static_cast<std::uint64_t>(RecordingRangesChangedEventArgs().GetTime()), 0x8000000000000001ULL);
}

TEST(ChannelStatusEventArgs, StampsTheSystemClockAndCopiesKeepTheStamp) {
    const ChannelGuid guid(ChannelGuid::Type::Second, 12, 345678);
    const std::int64_t before = SystemNanoseconds();
    ChannelStatusEventArgs first(guid);
    const std::int64_t after = SystemNanoseconds();
    EXPECT_LE(before, first.GetTime());
    EXPECT_LE(first.GetTime(), after);
    EXPECT_EQ(first.GetChannelGuid(), guid);

    WaitPast(first.GetTime());
    const ChannelStatusEventArgs second(guid);
    EXPECT_EQ(second.GetChannelGuid(), first.GetChannelGuid());
    EXPECT_GT(second.GetTime(), first.GetTime());

    WaitPast(second.GetTime());
    const ChannelStatusEventArgs copy(first);
    EXPECT_EQ(copy.GetTime(), first.GetTime());
    EXPECT_EQ(copy.GetChannelGuid(), guid);

    first.StoreSystemTime();
    EXPECT_GT(first.GetTime(), second.GetTime());
}

TEST(StateChangedEventArgs, CopyTheSnapshotAndKeepTheStampThroughCopyAndMove) {
    const ChannelGuid guid(ChannelGuid::Type::First, 3, 99);
    RecorderState recorder(5, 6);
    recorder.SetName("REC1");
    recorder.status = 9;
    RecorderStateChangedEventArgs recorderArgs(guid, RecorderState::StatusChange::Status, recorder);
    recorder.status = 0;  // the event holds its own copy
    EXPECT_EQ(recorderArgs.GetStatusChange(), RecorderState::StatusChange::Status);
    EXPECT_EQ(recorderArgs.GetState().status, 9u);
    EXPECT_STREQ(recorderArgs.GetState().GetName(), "REC1");
    EXPECT_EQ(recorderArgs.GetChannelGuid(), guid);

    WaitPast(recorderArgs.GetTime());
    const RecorderStateChangedEventArgs recorderCopy(recorderArgs);
    EXPECT_EQ(recorderCopy.GetTime(), recorderArgs.GetTime());
    EXPECT_TRUE(recorderCopy.GetState() == recorderArgs.GetState());
    const RecorderStateChangedEventArgs recorderMoved(std::move(recorderArgs));
    EXPECT_EQ(recorderMoved.GetTime(), recorderCopy.GetTime());
    EXPECT_EQ(recorderMoved.GetState().status, 9u);

    PlayerState player(7, 8);
    player.thirdValue = 77;
    const auto change = PlayerState::StatusChange::Name | PlayerState::StatusChange::SecondClipOnAir;
    PlayerStateChangedEventArgs playerArgs(guid, change, player);
    EXPECT_EQ(playerArgs.GetStatusChange(), change);
    EXPECT_TRUE(playerArgs.GetState() == player);
    EXPECT_NE(playerArgs.GetState().inBoundary.get(), player.inBoundary.get());

    WaitPast(playerArgs.GetTime());
    const PlayerStateChangedEventArgs playerCopy(playerArgs);
    EXPECT_EQ(playerCopy.GetTime(), playerArgs.GetTime());
    const PlayerStateChangedEventArgs playerMoved(std::move(playerArgs));
    EXPECT_EQ(playerMoved.GetTime(), playerCopy.GetTime());
    EXPECT_EQ(playerMoved.GetState().thirdValue, 77u);
    EXPECT_EQ(playerMoved.GetChannelGuid(), guid);
}

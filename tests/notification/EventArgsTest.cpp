#include "Samples.h"

#include <chrono>
#include <limits>
#include <string>
#include <tuple>
#include <utility>

using namespace NotificationTests;
using CreationType = ClipCreationEventArgs::CreationType;
using NetworkType = ClipCreationEventArgs::NetworkType;

namespace {

// The common fields as COMMON passes them, or as the angle-group events fill them themselves from
// command number 41.
void ExpectCommon(const ClipCommandEventArgs& args, bool angleGroup = false) {
    EXPECT_EQ(args.GetCommandNumber(), angleGroup ? 41u : 0xFFFFFFFFu);
    EXPECT_EQ(args.GetRequestSource(), angleGroup ? static_cast<Source>(2) : Source::Network);
    EXPECT_EQ(args.GetThirdValue(), angleGroup ? 0u : 0x80000000u);
    EXPECT_EQ(args.GetFourthValue(), angleGroup ? 0 : 0xFFFF);
    EXPECT_EQ(args.CommandGuid(), SampleGuid());
    EXPECT_EQ(args.GetReservedWord(), -1);
    EXPECT_EQ(args.GetValue64(), angleGroup ? -1 : std::numeric_limits<long long>::min());
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

// A default clip told apart from others by a field the clip's equality compares.
Clip TaggedClip(std::int32_t tag) {
    Clip clip;
    clip.value1 = tag;
    return clip;
}

Angle MakeAngle(std::uint32_t first) {
    return Angle{{first, first + 1, first + 2, first + 3, first + 4}};
}

}  // namespace

TEST(ClipCommandEventArgs, RequestSourceTextsAndTheReservedWord) {
    struct Case {
        std::int32_t source;
        const char* longForm;
        const char* shortForm;
    };
    for (const Case& c : {Case{0, "Local", "LR"}, Case{1, "Network", "NR"}, Case{2, "Unknown", "UR"},
                          Case{7, "Unknown", "UR"}, Case{-1, "Unknown", "UR"}}) {
        const ClipCommandEventArgs args(1, static_cast<Source>(c.source), 0, 0, Guid::Empty(), 0);
        EXPECT_STREQ(args.GetRequestSourceString(false), c.longForm) << c.source;
        EXPECT_STREQ(args.GetRequestSourceString(true), c.shortForm) << c.source;
        EXPECT_EQ(args.GetReservedWord(), -1);
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

// Same-typed neighbours get different values, so each field is compared against the argument meant for it.
TEST(ClipCommandEventArgs, ConstructorsTakeTheirArgumentsInOrder) {
    using std::tuple;
    const Clip one = TaggedClip(1), two = TaggedClip(2);
    const OperationResult fail = OperationResult::Failure, odd = static_cast<OperationResult>(-7);

    const ClipCreationFinishedEventArgs created(COMMON, one, two, CreationType::DrovikRestore,
                                                NetworkType::PushDrovik);
    EXPECT_EQ(tuple(created.GetClipBefore(), created.GetClipAfter(), created.GetCreationType(),
                    created.GetNetworkType()),
              tuple(one, two, CreationType::DrovikRestore, NetworkType::PushDrovik));
    const ClipCreationFailedEventArgs createFail(COMMON, odd, std::int16_t{-32768}, two, one,
                                                 CreationType::Copy, NetworkType::Drovik);
    EXPECT_EQ(tuple(createFail.GetResult(), createFail.GetErrorCode(), createFail.GetClipBefore(),
                    createFail.GetClipAfter(), std::string(createFail.GetCreationTypeString()),
                    std::string(createFail.GetNetworkTypeString())),
              tuple(odd, -32768, two, one, "Copy", "Drovik"));

    const ClipUpdateFinishedEventArgs updated(COMMON, true, one, two);
    EXPECT_EQ(tuple(updated.GetFlag(), updated.GetFirstClip(), updated.GetSecondClip()),
              tuple(true, one, two));
    const ClipUpdateFailedEventArgs updateFail(COMMON, fail, std::int16_t{5}, two, one);
    EXPECT_EQ(tuple(updateFail.GetResult(), updateFail.GetErrorCode(), updateFail.GetFirstClip(),
                    updateFail.GetSecondClip()),
              tuple(fail, 5, two, one));

    const ClipDeletionFinishedEventArgs deleted(COMMON, one, 0xFF, 7);
    EXPECT_EQ(tuple(deleted.GetClip(), deleted.GetFirstByte(), deleted.GetSecondByte()), tuple(one, 0xFF, 7));
    const ClipDeletionFailedEventArgs deleteFail(COMMON, fail, std::int16_t{-2}, two, 3, 4, 5, false, true);
    EXPECT_EQ(tuple(deleteFail.GetResult(), deleteFail.GetErrorCode(), deleteFail.GetClip(),
                    deleteFail.GetFirstByte(), deleteFail.GetSecondByte(), deleteFail.GetThirdByte(),
                    deleteFail.GetFirstFlag(), deleteFail.GetSecondFlag()),
              tuple(fail, -2, two, 3, 4, 5, false, true));

    const ClipMoveFinishedEventArgs moved(COMMON, one, two);
    EXPECT_EQ(tuple(moved.GetFirstClip(), moved.GetSecondClip()), tuple(one, two));
    const ClipMoveFailedEventArgs moveFail(COMMON, OperationResult::Success, std::int16_t{32767}, two, one);
    EXPECT_EQ(tuple(moveFail.GetResult(), moveFail.GetErrorCode(), moveFail.GetFirstClip(),
                    moveFail.GetSecondClip()),
              tuple(OperationResult::Success, 32767, two, one));

    const MassClipUpdateFailedEventArgs massUpdate(COMMON, fail, std::int16_t{-1}, 0xFFFFFFFEu);
    EXPECT_EQ(tuple(massUpdate.GetResult(), massUpdate.GetErrorCode(), massUpdate.GetCount()),
              tuple(fail, -1, 0xFFFFFFFEu));
    const MassClipDeletionFailedEventArgs massDelete(COMMON, odd, std::int16_t{8}, 6u);
    EXPECT_EQ(tuple(massDelete.GetResult(), massDelete.GetErrorCode(), massDelete.GetCount()),
              tuple(odd, 8, 6u));

    for (const ClipCommandEventArgs* args : std::initializer_list<const ClipCommandEventArgs*>{
             &created, &createFail, &updated, &updateFail, &deleted, &deleteFail, &moved, &moveFail,
             &massUpdate, &massDelete}) {
        ExpectCommon(*args);
    }
}

namespace {

template <class Finished, class Failed>
void CheckAngleGroupPair() {
    using std::tuple;
    const std::vector<Angle> angles{MakeAngle(100), MakeAngle(200), MakeAngle(300)};
    const Finished finished(41, SampleGuid(), 0xFFFFFFFFu, MakeAngle(10), MakeAngle(20), angles);
    ExpectCommon(finished, true);
    EXPECT_EQ(
        tuple(finished.GetValue(), finished.GetFirstAngle(), finished.GetSecondAngle(), finished.GetAngles()),
        tuple(0xFFFFFFFFu, MakeAngle(10), MakeAngle(20), angles));

    const Failed failed(41, SampleGuid(), OperationResult::Failure, std::int16_t{-9}, 3u, MakeAngle(20),
                        MakeAngle(10), std::vector<Angle>{});
    ExpectCommon(failed, true);
    EXPECT_EQ(tuple(failed.GetResult(), failed.GetErrorCode(), failed.GetValue(), failed.GetFirstAngle(),
                    failed.GetSecondAngle(), failed.GetAngles().size()),
              tuple(OperationResult::Failure, -9, 3u, MakeAngle(20), MakeAngle(10), 0u));
}

}  // namespace

TEST(AnglesGroupEventArgs, FillTheCommonFieldsThemselves) {
    CheckAngleGroupPair<AnglesGroupCreationFinishedEventArgs, AnglesGroupCreationFailedEventArgs>();
    CheckAngleGroupPair<AnglesGroupUpdateFinishedEventArgs, AnglesGroupUpdateFailedEventArgs>();

    const AnglesGroupDeletionFinishedEventArgs deleted(41, SampleGuid(), 12u);
    ExpectCommon(deleted, true);
    EXPECT_EQ(deleted.GetValue(), 12u);
    const AnglesGroupDeletionFailedEventArgs deleteFail(41, SampleGuid(), static_cast<OperationResult>(4),
                                                        std::int16_t{-4}, 13u);
    ExpectCommon(deleteFail, true);
    EXPECT_EQ(std::tuple(deleteFail.GetResult(), deleteFail.GetErrorCode(), deleteFail.GetValue()),
              std::tuple(static_cast<OperationResult>(4), -4, 13u));
}

TEST(EventArgs, DynamicTypesCrossTheLibraryBoundary) {
    using Base = std::shared_ptr<Korv::System::EventArgs>;
    const Base failed = std::make_shared<ClipUpdateFailedEventArgs>(COMMON, OperationResult::Failure,
                                                                    std::int16_t{1}, Clip(), Clip());
    EXPECT_NE(std::dynamic_pointer_cast<ClipUpdateEventArgs>(failed), nullptr);
    EXPECT_NE(std::dynamic_pointer_cast<CommandEventArgs>(failed), nullptr);
    EXPECT_EQ(std::dynamic_pointer_cast<ClipUpdateFinishedEventArgs>(failed), nullptr);
    EXPECT_EQ(std::dynamic_pointer_cast<StatusEventArgs>(failed), nullptr);
    const Base load = std::make_shared<PlayerLoadProcessedEventArgs>();
    EXPECT_NE(std::dynamic_pointer_cast<ChannelCommandEventArgs>(load), nullptr);
    EXPECT_EQ(std::dynamic_pointer_cast<ClipCommandEventArgs>(load), nullptr);
    const Base ranges = std::make_shared<RecordingRangesChangedEventArgs>();
    EXPECT_NE(std::dynamic_pointer_cast<ClipStatusEventArgs>(ranges), nullptr);
    EXPECT_EQ(std::dynamic_pointer_cast<ServerStatusEventArgs>(ranges), nullptr);
    const Base lost = std::make_shared<DisconnectedFromNetworkEventArgs>();
    EXPECT_NE(std::dynamic_pointer_cast<ServerStatusEventArgs>(lost), nullptr);
    EXPECT_NE(std::dynamic_pointer_cast<StatusEventArgs>(lost), nullptr);
}

TEST(StatusEventArgs, TimeIsUnsetUntilStamped) {
    EXPECT_EQ(static_cast<std::uint64_t>(DisconnectedFromNetworkEventArgs().GetTime()),
              0x8000000000000001ULL);
    EXPECT_EQ(static_cast<std::uint64_t>(RecordingRangesChangedEventArgs().GetTime()), 0x8000000000000001ULL);
}

TEST(ChannelStatusEventArgs, StampsTheSystemClock) {
    const ChannelGuid guid(ChannelGuid::Type::Second, 12, 345678);
    const std::int64_t before = SystemNanoseconds();
    ChannelStatusEventArgs first(guid);
    const std::int64_t after = SystemNanoseconds();
    EXPECT_LE(before, first.GetTime());
    EXPECT_LE(first.GetTime(), after);
    EXPECT_EQ(first.GetChannelGuid(), guid);

    const std::int64_t stamped = first.GetTime();
    WaitPast(stamped);
    first.StoreSystemTime();
    EXPECT_GT(first.GetTime(), stamped);
    EXPECT_LE(first.GetTime(), SystemNanoseconds());
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

#include "PlurexData/channels/AbsoluteBoundary.h"
#include "PlurexData/channels/PlayerState.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

using namespace Korv::Plurex::Data::Channels;
using Change = PlayerState::StatusChange;

namespace {

// The fields CompareStatus reads.
struct Snapshot {
    std::int32_t mode = 0;
    std::int32_t numerator = 0, denominator = 1;
    std::uint32_t position = 0, end = 0;
    bool first = false, second = false;
    const char* firstText = "CLIP0001";
    const char* secondText = "CLIP0002";
    const char* name = "";
    std::uint32_t word1 = 0;

    PlayerState Make() const {
        PlayerState state;
        state.SetName(name);
        state.infoOnAir.mode = mode;
        state.infoOnAir.word1 = word1;
        state.infoOnAir.rateNumerator = numerator;
        state.infoOnAir.rateDenominator = denominator;
        state.infoOnAir.values[0] = 0x7700000000LL + position;  // only the low word is the position
        state.infoOnAir.end = end;
        state.clipsOnAir[0].clipPresent = first;
        std::strncpy(state.clipsOnAir[0].clip.text1, firstText, 8);
        state.clipsOnAir[1].clipPresent = second;
        std::strncpy(state.clipsOnAir[1].clip.text1, secondText, 8);
        return state;
    }
};

Snapshot Playing(std::int32_t mode, std::uint32_t end, std::uint32_t position) {
    Snapshot s;
    s.mode = mode;
    s.end = end;
    s.position = position;
    s.first = true;
    return s;
}

Snapshot With(Snapshot s, void (*change)(Snapshot&)) {
    change(s);
    return s;
}

}  // namespace

TEST(PlayerState, CompareStatusReachesEveryBitAndBranch) {
    struct Case {
        const char* what;
        Snapshot self, other;
        std::uint32_t expected;
    };
    const Snapshot idle;
    const Snapshot playing = Playing(3, 100, 10);
    const Case cases[] = {
        {"defaults", idle, idle, 0},
        {"name", idle, With(idle, [](Snapshot& s) { s.name = "PGM1"; }), 0x001},
        {"mode, then below 2 nothing more", idle,
         With(idle,
              [](Snapshot& s) {
                  s.mode = 1;
                  s.first = true;
              }),
         0x002},
        {"info word 1", idle, With(idle, [](Snapshot& s) { s.word1 = 9; }), 0x004},
        {"rate cleared", With(idle, [](Snapshot& s) { s.numerator = 2; }), idle, 0x008},
        {"rate set", idle, With(idle, [](Snapshot& s) { s.numerator = 2; }), 0x010},
        // Two clips on air (mode 7 and above): presence or leading text of each.
        {"second clip only here, mode 8", With(Playing(8, 0, 0), [](Snapshot& s) { s.second = true; }),
         Playing(8, 0, 0), 0x800},
        {"first clip text, mode 8", Playing(8, 0, 0),
         With(Playing(8, 0, 0), [](Snapshot& s) { s.firstText = "OTHER"; }), 0x040},
        {"second clip ignored at mode 4", With(Playing(4, 100, 10), [](Snapshot& s) { s.second = true; }),
         Playing(4, 100, 10), 0},
        // One clip on air (modes 2 to 6), the other's first clip absent.
        {"first clip gone", playing, With(playing, [](Snapshot& s) { s.first = false; }), 0x040},
        {"both absent", With(playing, [](Snapshot& s) { s.first = false; }),
         With(playing, [](Snapshot& s) { s.first = false; }), 0},
        // One clip on air, the other's first clip present.
        {"steady", playing, playing, 0},
        {"leading text", playing, With(playing, [](Snapshot& s) { s.firstText = "CLIP0009"; }), 0x040},
        {"this one idle", With(playing, [](Snapshot& s) { s.mode = 1; }), playing, 0x022},
        {"this clip absent", With(playing, [](Snapshot& s) { s.first = false; }), playing, 0x060},
        {"nothing left there, this clip absent", With(playing, [](Snapshot& s) { s.first = false; }),
         Playing(3, 11, 10), 0x040},
        {"nothing left there", playing, Playing(3, 11, 10), 0},
        {"nothing left here", Playing(3, 11, 10), playing, 0x020},
        // remaining = (end - 1 - position) * numerator / denominator in unsigned 32-bit arithmetic:
        // -2 / 3 is not 0 when divided as unsigned, so time remains there.
        {"negative remaining divided as unsigned",
         With(Playing(3, 11, 10),
              [](Snapshot& s) {
                  s.numerator = 1;
                  s.denominator = 3;
              }),
         With(Playing(3, 10, 11),
              [](Snapshot& s) {
                  s.numerator = 1;
                  s.denominator = 3;
              }),
         0x020},
        // 0x80000000 * 2 wraps to 0: nothing left.
        {"product wraps to zero",
         With(playing,
              [](Snapshot& s) {
                  s.first = false;
                  s.numerator = 2;
              }),
         With(Playing(3, 0x80000001u, 0), [](Snapshot& s) { s.numerator = 2; }), 0x040},
        // A negative numerator does not scale: 89 left.
        {"negative numerator not applied", Playing(3, 11, 10),
         With(playing, [](Snapshot& s) { s.numerator = -1; }), 0x030},
    };
    for (const Case& c : cases) {
        const auto mask = static_cast<std::uint32_t>(c.self.Make().CompareStatus(c.other.Make()));
        EXPECT_EQ(mask, c.expected) << c.what;
        EXPECT_EQ(mask & 0x780u, 0u) << c.what;  // the gap stays clear
    }
}

TEST(PlayerState, CopiesOwnTheirBoundaries) {
    auto source = std::make_unique<PlayerState>(7, 8);
    source->inBoundary = std::make_unique<AbsoluteBoundary>(Korv::TimePoints::TimePoint(42));
    PlayerState copy(*source);
    PlayerState assigned;
    assigned = *source;
    source.reset();
    for (const PlayerState* state : {&copy, &assigned}) {
        EXPECT_EQ(state->GetFirstId(), 7u);
        EXPECT_TRUE(state->inBoundary->Equals(AbsoluteBoundary(Korv::TimePoints::TimePoint(42))));
        EXPECT_TRUE(state->outBoundary->IsEmpty());
    }
    EXPECT_TRUE(copy == assigned);
    assigned.outBoundary = std::make_unique<AbsoluteBoundary>(Korv::TimePoints::TimePoint(1));
    EXPECT_FALSE(copy == assigned);
}

// A moved-from state keeps both boundaries, empty, and stays usable; the target has the source's.
TEST(PlayerState, MovesLeaveTheSourceEmptyBoundaries) {
    const AbsoluteBoundary at42(Korv::TimePoints::TimePoint(42));
    PlayerState source(7, 8);
    source.inBoundary = at42.Clone();
    PlayerState moved(std::move(source));
    PlayerState assigned;
    assigned = std::move(moved);
    for (const PlayerState* from : {&source, &moved}) {
        ASSERT_NE(from->inBoundary, nullptr);
        ASSERT_NE(from->outBoundary, nullptr);
        EXPECT_TRUE(from->inBoundary->IsEmpty());
        EXPECT_TRUE(from->outBoundary->IsEmpty());
        EXPECT_TRUE(*from == PlayerState(7, 8));  // equality reads both boundaries
    }
    EXPECT_TRUE(assigned.inBoundary->Equals(at42));
    EXPECT_TRUE(assigned.outBoundary->IsEmpty());
    EXPECT_EQ(assigned.GetSecondId(), 8u);
}

// A server's block is 27 consecutive 32-bit words, the eight 64-bit values from word 9 (byte 36) on,
// on 32-bit and 64-bit hosts alike: copied over the structure, every field reads its own word.
TEST(PlayerInfoOnAir, IsTwentySevenConsecutiveWords) {
    std::uint32_t words[27];
    for (std::uint32_t i = 0; i < 27; ++i) {
        words[i] = 100 + i;
    }
    PlayerInfoOnAir info;
    ASSERT_EQ(sizeof info, sizeof words);
    std::memcpy(&info, words, sizeof words);
    EXPECT_EQ(info.word8, 108u);
    EXPECT_EQ(info.Position(), 109u);
    for (std::uint32_t v = 0; v < PlayerInfoOnAir::ValueCount; ++v) {
        const std::uint32_t low = 109 + 2 * v;  // little-endian host: low word first
        EXPECT_EQ(info.values[v], static_cast<std::int64_t>((std::uint64_t{low + 1} << 32) | low)) << v;
    }
    EXPECT_EQ(info.end, 125u);
    EXPECT_EQ(info.word26, 126u);
}

TEST(PlayerState, DefaultsAndEquality) {
    const PlayerState state;
    EXPECT_EQ(state.ChannelMode(), 0);
    EXPECT_EQ(state.timeValues[3], static_cast<std::int64_t>(0x8000000000000001ULL));
    EXPECT_EQ(state.infoOnAir.rateDenominator, 1);
    EXPECT_EQ(state.infoOnAir.word6, 1u);
    EXPECT_FALSE(state.clipsOnAir[1].clipPresent);
    EXPECT_EQ(state.clipsOnAir[1].timeValue, static_cast<std::int64_t>(0x8000000000000001ULL));
    EXPECT_TRUE(state.inBoundary->IsEmpty());
    EXPECT_TRUE(state == PlayerState());
    EXPECT_FALSE(state == PlayerState(0, 1));
    PlayerState other;
    other.infoOnAir.values[7] = 1;
    EXPECT_FALSE(state == other);
    other = state;
    other.clipsOnAir[0].clip.value1 = 5;
    EXPECT_FALSE(state == other);
}

#include "PlurexData/channels/PlayerState.h"

#include "PlurexData/channels/AbsoluteBoundary.h"
#include "PlurexData/channels/TimeValue.h"

#include <cstring>
#include <utility>

namespace Korv::Plurex::Data::Channels {

namespace {

using TimePoints::TimeCode;

std::unique_ptr<Boundary> EmptyBoundary() {
    return std::make_unique<AbsoluteBoundary>(TimePoints::TimePoint::Empty());
}

std::unique_ptr<Boundary> CloneOf(const std::unique_ptr<Boundary>& boundary) {
    return boundary ? boundary->Clone() : nullptr;
}

bool SameBoundary(const std::unique_ptr<Boundary>& a, const std::unique_ptr<Boundary>& b) {
    if (!a || !b) {
        return !a && !b;
    }
    return a->Equals(*b);
}

std::array<TimeCode, PlayerState::TimecodeCount> DefaultTimecodes() {
    const TimeCode& d = Clips::Clip::DefaultTimecode();
    return {d, d, d, d, d, d, d, d};
}

// The samples left to play, as players have always reported them: computed in unsigned 32-bit
// arithmetic, so a position past the end wraps to a large number, which is then scaled by the rate
// (the product wrapping too) and divided as unsigned. Receivers compare it with zero.
std::uint32_t Remaining(const PlayerInfoOnAir& info) noexcept {
    std::uint32_t remaining = info.end - 1u - info.Position();
    if (info.rateNumerator > 0 && info.rateDenominator != 0) {
        remaining = remaining * static_cast<std::uint32_t>(info.rateNumerator) /
                    static_cast<std::uint32_t>(info.rateDenominator);
    }
    return remaining;
}

bool IsPlayingOneClip(std::int32_t mode) noexcept {
    return mode >= 2 && mode <= 6;
}

bool SameLeadingText(const PlayerClipOnAir& a, const PlayerClipOnAir& b) noexcept {
    return std::strncmp(a.clip.text1, b.clip.text1, sizeof a.clip.text1) == 0;
}

// A clip on air changed when it came or went, or when both are there with other leading texts.
bool ClipOnAirChanged(const PlayerClipOnAir& a, const PlayerClipOnAir& b) noexcept {
    return a.clipPresent != b.clipPresent || (a.clipPresent && !SameLeadingText(a, b));
}

}  // namespace

PlayerState::PlayerState() : PlayerState(0, 0) {}

PlayerState::PlayerState(unsigned int firstId, unsigned int secondId)
    : ChannelState(firstId, secondId),
      timeValues{UnsetTime, UnsetTime, UnsetTime, UnsetTime},
      timecodes(DefaultTimecodes()),
      inBoundary(EmptyBoundary()),
      outBoundary(EmptyBoundary()) {}

PlayerState::PlayerState(const PlayerState& other)
    : ChannelState(other),
      firstValue(other.firstValue),
      secondValue(other.secondValue),
      infoOnAir(other.infoOnAir),
      clipsOnAir(other.clipsOnAir),
      timeValues(other.timeValues),
      timecodes(other.timecodes),
      thirdValue(other.thirdValue),
      inBoundary(CloneOf(other.inBoundary)),
      outBoundary(CloneOf(other.outBoundary)) {}

PlayerState& PlayerState::operator=(const PlayerState& other) {
    if (this != &other) {
        // Clone first, so that a failed allocation leaves this state as it was.
        auto in = CloneOf(other.inBoundary);
        auto out = CloneOf(other.outBoundary);
        ChannelState::operator=(other);
        firstValue = other.firstValue;
        secondValue = other.secondValue;
        infoOnAir = other.infoOnAir;
        clipsOnAir = other.clipsOnAir;
        timeValues = other.timeValues;
        timecodes = other.timecodes;
        thirdValue = other.thirdValue;
        inBoundary = std::move(in);
        outBoundary = std::move(out);
    }
    return *this;
}

// A state always has both boundaries, the moved-from one included: it gets empty ones, made before
// anything moves so that a failed allocation leaves both states as they were.
PlayerState::PlayerState(PlayerState&& other)
    : ChannelState(std::move(other)),
      firstValue(other.firstValue),
      secondValue(other.secondValue),
      infoOnAir(other.infoOnAir),
      clipsOnAir(std::move(other.clipsOnAir)),
      timeValues(other.timeValues),
      timecodes(std::move(other.timecodes)),
      thirdValue(other.thirdValue),
      inBoundary(EmptyBoundary()),
      outBoundary(EmptyBoundary()) {
    inBoundary.swap(other.inBoundary);
    outBoundary.swap(other.outBoundary);
}

PlayerState& PlayerState::operator=(PlayerState&& other) {
    if (this != &other) {
        auto in = EmptyBoundary();
        auto out = EmptyBoundary();
        ChannelState::operator=(std::move(other));
        firstValue = other.firstValue;
        secondValue = other.secondValue;
        infoOnAir = other.infoOnAir;
        clipsOnAir = std::move(other.clipsOnAir);
        timeValues = other.timeValues;
        timecodes = std::move(other.timecodes);
        thirdValue = other.thirdValue;
        inBoundary = std::exchange(other.inBoundary, std::move(in));
        outBoundary = std::exchange(other.outBoundary, std::move(out));
    }
    return *this;
}

PlayerState::~PlayerState() = default;

int PlayerState::ChannelMode() const {
    return 0;
}

bool PlayerState::operator==(const PlayerState& other) const {
    return SameIdentity(other) && ChannelMode() == other.ChannelMode() && infoOnAir == other.infoOnAir &&
           clipsOnAir == other.clipsOnAir && timecodes == other.timecodes && firstValue == other.firstValue &&
           secondValue == other.secondValue && timeValues == other.timeValues &&
           thirdValue == other.thirdValue && SameBoundary(inBoundary, other.inBoundary) &&
           SameBoundary(outBoundary, other.outBoundary);
}

PlayerState::StatusChange PlayerState::CompareStatus(const PlayerState& other) const noexcept {
    StatusChange change = StatusChange::None;
    const PlayerInfoOnAir& mine = infoOnAir;
    const PlayerInfoOnAir& theirs = other.infoOnAir;
    if (!SameName(other)) {
        change = change | StatusChange::Name;
    }
    if (mine.mode != theirs.mode) {
        change = change | StatusChange::Mode;
    }
    if (mine.word1 != theirs.word1) {
        change = change | StatusChange::InfoWord1;
    }
    if (theirs.rateNumerator == 0 && mine.rateNumerator != 0) {
        change = change | StatusChange::RateCleared;
    }
    if (theirs.rateNumerator != 0 && mine.rateNumerator == 0) {
        change = change | StatusChange::RateSet;
    }

    const std::int32_t mode = theirs.mode;
    if (mode < 2) {
        return change;
    }
    const PlayerClipOnAir& myFirst = clipsOnAir[0];
    const PlayerClipOnAir& theirFirst = other.clipsOnAir[0];
    if (mode >= 7) {
        if (ClipOnAirChanged(myFirst, theirFirst)) {
            change = change | StatusChange::FirstClipOnAir;
        }
        if (ClipOnAirChanged(clipsOnAir[1], other.clipsOnAir[1])) {
            change = change | StatusChange::SecondClipOnAir;
        }
        return change;
    }
    if (!theirFirst.clipPresent) {
        if (myFirst.clipPresent) {
            change = change | StatusChange::FirstClipOnAir;
        }
        return change;
    }
    // The terms are looked at in this order only, as the receivers' own test does.
    const bool theirsRemaining = Remaining(theirs) != 0;
    const bool allHold =
        theirsRemaining && IsPlayingOneClip(mine.mode) && myFirst.clipPresent && Remaining(mine) != 0;
    if (theirsRemaining && !allHold) {
        change = change | StatusChange::RemainingTime;
    }
    // A clip that is not here counts as changed unless every term held; otherwise the texts decide.
    const bool firstChanged = (!allHold && !myFirst.clipPresent) || !SameLeadingText(myFirst, theirFirst);
    if (firstChanged) {
        change = change | StatusChange::FirstClipOnAir;
    }
    return change;
}

}  // namespace Korv::Plurex::Data::Channels

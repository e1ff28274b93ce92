#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/timepoints/TimeCodeBuilder.h"
#include "PlurexData/timepoints/VideoRates.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using Korv::Plurex::Data::Clips::Clip;
using Korv::Plurex::Data::Clips::VideoStandard;
using Korv::TimePoints::Rate;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::TimeCodeBuilder;
using Korv::TimePoints::VideoRates;

namespace {

const Rate r50 = VideoRates::Rate50();
const Rate r60 = VideoRates::Rate60();

// "ok", or the exception's type and message.
template <class Call>
std::string Outcome(Call call) {
    try {
        call();
    } catch (const std::invalid_argument& e) {
        return std::string("invalid_argument: ") + e.what();
    } catch (const std::out_of_range& e) {
        return std::string("out_of_range: ") + e.what();
    }
    return "ok";
}

const std::string RateMessage = "invalid_argument: Timecode Rate inconsistent with Clip Rate";
const std::string IncompatibleMessage = "out_of_range: TimeCode Incompatibilty";

Clip WithStandard(VideoStandard standard) {
    Clip clip;
    clip.VideoStandard(standard);
    return clip;
}

TimeCode Build(int year, int month, int day, int hour, int minute, int second, int frame, const Rate& rate,
               bool drop = false, unsigned char flag = 0) {
    return TimeCodeBuilder(year, month, day, hour, minute, second, frame, rate, drop, flag).Build();
}

}  // namespace

TEST(ClipTimecodes, InBoundSettersTakeOnlyTheClipRate) {
    Clip pal;
    EXPECT_EQ(Outcome([&] { pal.InBoundTodTimecode(TimeCode(r50, 1234)); }), "ok");
    EXPECT_EQ(pal.inBoundTodTimecode, TimeCode(r50, 1234));
    EXPECT_EQ(Outcome([&] { pal.InBoundUserTimecode(TimeCode(r60, 1)); }), RateMessage);
    EXPECT_EQ(Outcome([&] { pal.InBoundUserTimecode(TimeCode(Rate(100, 2), 1)); }), RateMessage);
    EXPECT_EQ(pal.inBoundUserTimecode, Clip::DefaultTimecode());
    for (VideoStandard standard :
         {VideoStandard::Ntsc, VideoStandard::Unknown, static_cast<VideoStandard>(9)}) {
        Clip clip = WithStandard(standard);
        EXPECT_EQ(Outcome([&] { clip.InBoundTodTimecode(TimeCode(r50, 1)); }), RateMessage);
        EXPECT_FALSE(clip.TrySetInBoundUserTimecode(TimeCode(r50, 1)));
        EXPECT_TRUE(clip.TrySetInBoundUserTimecode(TimeCode(r60, 7, true, 3)));
        EXPECT_EQ(clip.inBoundUserTimecode, TimeCode(r60, 7, true, 3));
    }
}

TEST(ClipTimecodes, PositionSettersCountFromTheInPosition) {
    using Setter = void (Clip::*)(const TimeCode&);
    using TrySetter = bool (Clip::*)(const TimeCode&);
    struct Case {
        Setter set;
        TrySetter trySet;
        bool user;
        std::int64_t Clip::*target;
    };
    const Case cases[] = {
        {&Clip::ShortInBoundTodTimecode, &Clip::TrySetShortInBoundTodTimecode, false, &Clip::shortInPosition},
        {&Clip::ShortOutBoundTodTimecode, &Clip::TrySetShortOutBoundTodTimecode, false,
         &Clip::shortOutPosition},
        {&Clip::OutBoundTodTimecode, &Clip::TrySetOutBoundTodTimecode, false, &Clip::outPosition},
        {&Clip::ShortInBoundUserTimecode, &Clip::TrySetShortInBoundUserTimecode, true,
         &Clip::shortInPosition},
        {&Clip::ShortOutBoundUserTimecode, &Clip::TrySetShortOutBoundUserTimecode, true,
         &Clip::shortOutPosition},
        {&Clip::OutBoundUserTimecode, &Clip::TrySetOutBoundUserTimecode, true, &Clip::outPosition},
    };
    for (const Case& c : cases) {
        Clip clip = WithStandard(VideoStandard::Ntsc);
        clip.inPosition = 1000;
        // Each reference is 5000; the other in-bound timecode is far off, to show which one counts.
        clip.InBoundTodTimecode(TimeCode(r60, c.user ? 900000 : 5000, false, 2));
        clip.InBoundUserTimecode(TimeCode(r60, c.user ? 5000 : 900000, false, 2));
        (clip.*c.set)(TimeCode(r60, 5100, false, 2));
        EXPECT_EQ(clip.*c.target, 1100);
        // Earlier than the reference (a Tod out point past midnight): no wrap.
        EXPECT_TRUE((clip.*c.trySet)(TimeCode(r60, 4000, false, 2)));
        EXPECT_EQ(clip.*c.target, 0);

        const Clip before = clip;
        EXPECT_EQ(Outcome([&] { (clip.*c.set)(TimeCode(r50, 5100, false, 2)); }), RateMessage);
        EXPECT_EQ(Outcome([&] { (clip.*c.set)(TimeCode(r60, 5100, true, 2)); }), IncompatibleMessage);
        EXPECT_EQ(Outcome([&] { (clip.*c.set)(TimeCode(r60, 5100, false, 0)); }), IncompatibleMessage);
        EXPECT_FALSE((clip.*c.trySet)(TimeCode(r60, 5100, true, 2)));
        EXPECT_TRUE(clip == before);
        EXPECT_EQ(clip.inPosition, 1000);
    }
    // The rate is checked against the clip before the timecodes are compared.
    Clip pal;
    pal.inBoundTodTimecode = TimeCode(r60, 0);
    EXPECT_EQ(Outcome([&] { pal.OutBoundTodTimecode(TimeCode(r60, 10)); }), RateMessage);
    pal.inBoundTodTimecode = TimeCode(Rate(25, 1), 0);
    EXPECT_EQ(Outcome([&] { pal.OutBoundTodTimecode(TimeCode(r50, 10)); }), IncompatibleMessage);
}

TEST(ClipTimecodes, NewStandardRebuildsDateTimeAndFrame) {
    Clip clip;
    clip.InBoundTodTimecode(Build(2024, 2, 29, 13, 45, 30, 42, r50, false, 1));
    clip.InBoundUserTimecode(Build(1999, 12, 31, 23, 59, 59, 49, r50));
    clip.VideoStandard(VideoStandard::Ntsc);
    EXPECT_EQ(clip.inBoundTodTimecode, Build(2024, 2, 29, 13, 45, 30, 42, r60, false, 1));
    EXPECT_EQ(clip.inBoundUserTimecode, Build(1999, 12, 31, 23, 59, 59, 49, r60));
    EXPECT_TRUE(clip.TrySetInBoundTodTimecode(Build(2030, 6, 1, 0, 0, 0, 59, r60)));
    EXPECT_TRUE(clip.TrySetInBoundUserTimecode(Build(2030, 6, 1, 0, 1, 0, 4, r60, true)));

    // Unknown counts at 60/1 like Ntsc: the timecodes stay as they are, drop-frame included.
    const Clip ntsc = clip;
    clip.VideoStandard(VideoStandard::Unknown);
    EXPECT_EQ(clip.inBoundTodTimecode, ntsc.inBoundTodTimecode);
    EXPECT_EQ(clip.inBoundUserTimecode, ntsc.inBoundUserTimecode);

    // Frames 50 to 59 do not exist at 50/1: the last frame of the second; 50/1 has no drop-frame.
    clip.VideoStandard(VideoStandard::Pal);
    EXPECT_EQ(clip.inBoundTodTimecode, Build(2030, 6, 1, 0, 0, 0, 49, r50));
    EXPECT_EQ(clip.inBoundUserTimecode, Build(2030, 6, 1, 0, 1, 0, 4, r50));
}

TEST(ClipTimecodes, RebuildNeverThrows) {
    Clip clip;
    // What a record can carry at 50/1: counts up to 2^62 - 1, far past 2261.
    clip.inBoundTodTimecode = TimeCode(r50, (1LL << 62) - 1, false, 1);
    // The first sample after the builder's last year.
    clip.inBoundUserTimecode = TimeCode(r50, Build(2261, 12, 31, 23, 59, 59, 49, r50).GetTotalSample() + 1);
    clip.VideoStandard(VideoStandard::Ntsc);
    EXPECT_EQ(clip.inBoundTodTimecode, TimeCode(r60, 0, false, 1));
    EXPECT_EQ(clip.inBoundUserTimecode, TimeCode(r60, 0));

    // Rates that only direct assignment gives, and a negative count.
    Clip odd;
    odd.inBoundTodTimecode = Build(2001, 1, 1, 10, 1, 0, 2, Rate(30, 1), true);  // no frame 2 at 60 drop
    odd.inBoundUserTimecode = TimeCode(Rate(30000, 1001), 99);
    odd.VideoStandard(VideoStandard::Ntsc);
    EXPECT_EQ(odd.inBoundTodTimecode, Build(2001, 1, 1, 10, 1, 0, 4, r60, true));
    EXPECT_EQ(odd.inBoundUserTimecode, TimeCode(r60, 0));
    odd.inBoundTodTimecode = TimeCode(r60, -5);
    odd.VideoStandard(VideoStandard::Pal);
    EXPECT_EQ(odd.inBoundTodTimecode, TimeCode(r50, 0));
}

// Only a change of standard rebuilds; only Pal clears the legacy drop flag.
TEST(ClipTimecodes, SameStandardChangesNothingAndPalClearsTheLegacyDropFlag) {
    Clip clip = WithStandard(VideoStandard::Ntsc);
    clip.inBoundTodTimecode = TimeCode(Rate(30, 1), 77, true, 1);
    clip.isLegacyTimecodeDrop = true;
    const Clip before = clip;
    clip.VideoStandard(VideoStandard::Ntsc);
    EXPECT_TRUE(clip == before);
    clip.VideoStandard(VideoStandard::Unknown);
    EXPECT_TRUE(clip.isLegacyTimecodeDrop);
    clip.VideoStandard(VideoStandard::Pal);
    EXPECT_FALSE(clip.isLegacyTimecodeDrop);
    clip.isLegacyTimecodeDrop = true;
    clip.VideoStandard(VideoStandard::Ntsc);
    EXPECT_TRUE(clip.isLegacyTimecodeDrop);
}

#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/data/clips/RecordingRange.h"
#include "PlurexData/data/clips/Train.h"
#include "PlurexData/timepoints/VideoRates.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace Korv::Plurex::Data::Clips;
using Korv::TimePoints::TimeCode;
using Korv::TimePoints::VideoRates;
namespace E = Korv::Plurex::Data::Clips::Essences;

namespace {

// Over types 0 to 3 and values -1 to 22: the setter stores exactly the values `accepted` lists for the
// type, returning true, and otherwise keeps the field and returns false.
template <class Value>
void ExpectAccepted(bool (Clip::Essence::*set)(Value) noexcept, Value Clip::Essence::*field,
                    const std::vector<int> (&accepted)[3]) {
    for (int type = 0; type <= 3; ++type) {
        for (int value = -1; value <= 22; ++value) {
            Clip::Essence essence(static_cast<E::Type>(type));
            const int before = static_cast<int>(essence.*field);
            const bool expected =
                type < 3 && std::count(accepted[type].begin(), accepted[type].end(), value) == 1;
            EXPECT_EQ((essence.*set)(static_cast<Value>(value)), expected) << type << " " << value;
            EXPECT_EQ(static_cast<int>(essence.*field), expected ? value : before) << type << " " << value;
        }
    }
}

}  // namespace

TEST(Clip, Defaults) {
    const Clip clip;
    for (const char* text : {clip.text1, clip.text2, clip.text3, clip.text4}) {
        EXPECT_EQ(std::string(text, 9), std::string(8, ' ') + '\0');
    }
    EXPECT_FALSE(clip.name.unicode);
    EXPECT_EQ(std::string(clip.name.text, 26), std::string(24, ' ') + std::string(2, '\0'));
    EXPECT_EQ(std::string(clip.varId.text, 34), std::string(32, ' ') + std::string(2, '\0'));
    for (const auto& keyword : clip.keywords) {
        EXPECT_FALSE(keyword.unicode);
        EXPECT_EQ(std::string(keyword.text, 14), std::string(12, ' ') + std::string(2, '\0'));
    }
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(clip.rawBytes), 8), std::string(8, '\0'));
    EXPECT_FALSE(clip.is3D || clip.isDual || clip.isTwinRec || clip.isLegacyTimecodeDrop);
    EXPECT_EQ(clip.attribute1, 0);
    EXPECT_EQ(clip.attribute3, static_cast<Camera>(0));
    EXPECT_EQ(clip.attribute8, UserProtect::None);
    EXPECT_EQ(clip.attribute12, FillAndKeyStatus::None);
    EXPECT_EQ(clip.videoStandard, VideoStandard::Pal);
    EXPECT_EQ(clip.attribute13, WideColorGamut::Unknown);
    EXPECT_EQ(clip.attribute18, SourceEngine::None);
    EXPECT_EQ(clip.inPosition + clip.shortInPosition + clip.shortOutPosition + clip.outPosition, 0);
    EXPECT_EQ(clip.value1 | clip.shortValue1 | clip.value2 | clip.value3 | clip.value4 | clip.value5, 0);
    EXPECT_EQ(clip.shortValue2, 65535);
    EXPECT_EQ(clip.byteValue, 1);
    EXPECT_EQ(static_cast<unsigned long long>(clip.value64), 0x8000000000000001ULL);
    EXPECT_EQ(clip.inBoundTodTimecode, TimeCode(VideoRates::Rate50(), 0));
    EXPECT_EQ(clip.inBoundUserTimecode, TimeCode(VideoRates::Rate50(), 0));
    EXPECT_EQ(Clip::DefaultTimecode(), TimeCode(VideoRates::Rate50(), 0, false, 0));
    EXPECT_EQ(&Clip::DefaultTimecode(), &Clip::DefaultTimecode());
    for (int type = 0; type < 3; ++type) {
        EXPECT_EQ(clip.essences[type], Clip::Essence(static_cast<E::Type>(type)));
    }
}

TEST(ClipEssence, ClearSetsTheTableOfItsType) {
    struct Row {
        int type, metadata, field4, video, audio, info;
    };
    for (const Row& row : {Row{0, 0, 1, 0, 0, 0}, Row{1, 3, 1, 18, 1, 9}, Row{2, 4, 0, 19, 2, 10},
                           Row{3, 7, 7, 7, 7, 7}, Row{-1, 7, 7, 7, 7, 7}}) {
        Clip::Essence essence;
        essence.flag = essence.field2 = essence.field4 = 7;
        essence.value1 = essence.value2 = essence.value3 = essence.value4 = 7;
        essence.metadata = static_cast<E::Metadata>(7);
        essence.videoCompressionType = static_cast<E::VideoCompressionType>(7);
        essence.audioCompressionType = static_cast<E::AudioCompressionType>(7);
        essence.videoCompressionInfo = static_cast<E::VideoCompressionInfo>(7);
        essence.Clear(static_cast<E::Type>(row.type));
        SCOPED_TRACE(row.type);
        EXPECT_EQ(static_cast<int>(essence.type), row.type);
        EXPECT_EQ(
            essence.flag | essence.field2 | essence.value1 | essence.value2 | essence.value3 | essence.value4,
            0);
        // Types without a row keep these five.
        EXPECT_EQ((std::vector<int>{static_cast<int>(essence.metadata), essence.field4,
                                    static_cast<int>(essence.videoCompressionType),
                                    static_cast<int>(essence.audioCompressionType),
                                    static_cast<int>(essence.videoCompressionInfo)}),
                  (std::vector<int>{row.metadata, row.field4, row.video, row.audio, row.info}));
    }
}

TEST(ClipEssence, SettersAcceptOnlyWhatSuitsTheType) {
    ExpectAccepted(&Clip::Essence::Metadata, &Clip::Essence::metadata, {{0, 1, 2}, {3}, {4}});
    ExpectAccepted(&Clip::Essence::VideoCompressionType, &Clip::Essence::videoCompressionType,
                   {{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17}, {18}, {19, 20}});
    ExpectAccepted(&Clip::Essence::AudioCompressionType, &Clip::Essence::audioCompressionType,
                   {{0}, {1}, {2}});
    ExpectAccepted(&Clip::Essence::VideoCompressionInfo, &Clip::Essence::videoCompressionInfo,
                   {{0, 1, 2, 3, 4, 5, 6, 7, 8}, {9}, {10}});
}

TEST(ClipEssence, EqualityReadsTheFlagAsABoolean) {
    Clip::Essence a(E::Type::LongGop);
    Clip::Essence b(E::Type::LongGop);
    a.flag = 1;
    b.flag = 9;
    EXPECT_TRUE(a == b);
    b.flag = 0;
    EXPECT_TRUE(a != b);
    const std::function<void(Clip::Essence&)> changes[] = {
        [](Clip::Essence& e) { e.type = E::Type::LowRes; },
        [](Clip::Essence& e) { e.field2 = 1; },
        [](Clip::Essence& e) { e.metadata = E::Metadata::Unknown; },
        [](Clip::Essence& e) { e.field4 = 0; },
        [](Clip::Essence& e) { e.videoCompressionType = E::VideoCompressionType::Unknown; },
        [](Clip::Essence& e) { e.audioCompressionType = E::AudioCompressionType::Unknown; },
        [](Clip::Essence& e) { e.videoCompressionInfo = E::VideoCompressionInfo::Unknown; },
        [](Clip::Essence& e) { e.value1 = 1; },
        [](Clip::Essence& e) { e.value2 = 1; },
        [](Clip::Essence& e) { e.value3 = 1; },
        [](Clip::Essence& e) { e.value4 = 1; },
    };
    for (const auto& change : changes) {
        Clip::Essence changed(E::Type::LongGop);
        change(changed);
        EXPECT_FALSE(changed == Clip::Essence(E::Type::LongGop)) << &change - changes;
    }
}

TEST(Clip, EqualityLeavesOutFourFieldsAndReadsAttribute1AsABoolean) {
    const Clip base;
    Clip same;
    same.attribute2 = ArchiveStatus::Stored;
    same.attribute5 = AlphaArchiveStatus::Important;
    same.value2 = 5;
    same.value4 = -5;
    EXPECT_TRUE(same == base);
    Clip one, seven;
    one.attribute1 = 1;
    seven.attribute1 = 7;
    EXPECT_TRUE(one == seven);
    EXPECT_TRUE(one != base);

    // Every other field counts, including the terminators of the clip texts and the text lengths.
    const std::function<void(Clip&)> changes[] = {
        [](Clip& c) { c.keywords[4].unicode = true; },
        [](Clip& c) { c.keywords[0].text[13] = 'x'; },
        [](Clip& c) { c.rawBytes[7] = 1; },
        [](Clip& c) { std::memcpy(c.text1, "AB\0\0\0\0\0\0", 8); },
        [](Clip& c) { c.text4[7] = 'x'; },
        [](Clip& c) { c.name.unicode = true; },
        [](Clip& c) { c.name.text[25] = 'x'; },
        [](Clip& c) { c.varId.text[0] = 'x'; },
        [](Clip& c) { c.is3D = true; },
        [](Clip& c) { c.isLegacyTimecodeDrop = true; },
        [](Clip& c) { c.attribute3 = Camera::A; },
        [](Clip& c) { c.attribute8 = UserProtect::All; },
        [](Clip& c) { c.videoStandard = VideoStandard::Unknown; },
        [](Clip& c) { c.attribute18 = SourceEngine::Derush; },
        [](Clip& c) { c.outPosition = 1; },
        [](Clip& c) { c.shortValue1 = 1; },
        [](Clip& c) { c.value3 = 1; },
        [](Clip& c) { c.byteValue = 0; },
        [](Clip& c) { c.value5 = 1; },
        [](Clip& c) { c.inBoundUserTimecode = TimeCode(VideoRates::Rate50(), 0, false, 1); },
        [](Clip& c) { c.value64 = 0; },
        [](Clip& c) { c.essences[2].value4 = 1; },
    };
    for (const auto& change : changes) {
        Clip changed;
        change(changed);
        EXPECT_FALSE(changed == base) << &change - changes;
        EXPECT_TRUE(changed != base) << &change - changes;
    }
    // "AB" then NULs differs from "AB" then spaces; bytes after the NUL do not count.
    Clip nul, spaces, tail;
    std::memcpy(nul.text2, "AB\0\0\0\0\0\0", 8);
    std::memcpy(spaces.text2, "AB      ", 8);
    std::memcpy(tail.text2, "AB\0xyz\0\0", 8);
    EXPECT_FALSE(nul == spaces);
    EXPECT_TRUE(nul == tail);
}

TEST(Train, MarksItsOwnCopyOfTheClip) {
    Clip clip;
    const TimeCode head(VideoRates::Rate50(), 500);
    const std::vector<RecordingRange> ranges{{0, 100}, {150, 400}};
    const Train copied(clip, ranges, true, false, head);
    EXPECT_EQ(clip.attribute1, 0);
    EXPECT_EQ(copied.GetClip().attribute1, 1);
    EXPECT_EQ(copied.GetRecordingRanges(), ranges);
    EXPECT_TRUE(copied.IsRecording());
    EXPECT_FALSE(copied.IsLooping());
    EXPECT_EQ(copied.GetHeadTimecode(), head);

    clip.attribute1 = 5;
    auto owned = std::make_unique<Clip>(clip);
    const Clip* address = owned.get();
    Train train(std::move(owned), std::vector<RecordingRange>{{10, 20}}, false, true, TimeCode(head));
    EXPECT_EQ(&train.GetClip(), address);
    EXPECT_EQ(train.GetClip().attribute1, 5);
    EXPECT_TRUE(train.IsLooping());

    Train moved(std::move(train));
    EXPECT_EQ(&moved.GetClip(), address);
    EXPECT_EQ(moved.GetRecordingRanges().at(0).GetDuration(), 10);
    static_assert(!std::is_copy_constructible_v<Train> && !std::is_copy_assignable_v<Train>);
    static_assert(std::is_nothrow_move_constructible_v<Train> && std::is_nothrow_move_assignable_v<Train>);

    std::vector<RecordingRange> kept{{1, 2}};
    try {
        Train refused(std::unique_ptr<Clip>(), std::move(kept), false, false, TimeCode(head));
        ADD_FAILURE() << "no exception";
    } catch (const std::invalid_argument& e) {
        EXPECT_STREQ(e.what(), "null Clip");
    }
    EXPECT_EQ(kept.size(), 1u);
}

#include "PlurexData/PlurexData.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdint>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace Clips = Korv::Plurex::Data::Clips;
namespace Essences = Korv::Plurex::Data::Clips::Essences;

namespace {

using Rows = std::vector<std::pair<int, std::string>>;

Rows ParseRows(const std::string& text) {
    Rows rows;
    std::istringstream in(text);
    std::string value, name;
    while (in >> value >> name) {
        if (name.back() == ',') {
            name.pop_back();
        }
        rows.emplace_back(std::stoi(value), name);
    }
    return rows;
}

// A row as GetRows lists it: value, the address of its name, whether it is the default.
using Listed = std::vector<std::tuple<int, const std::string*, bool>>;

// One enumeration: its rows as the wire knows them, its two conversions seen through int, and its
// rows as GetRows lists them.
struct Table {
    std::string name;
    int defaultValue;
    Rows rows;
    std::string (*toString)(int);
    int (*toValue)(const std::string&);
    Listed (*listed)();

    // `rows` as "value name, value name, ...".
    template <class E, E (*To)(const std::string&) noexcept>
    static Table Of(std::string name, int defaultValue, const std::string& rows) {
        static_assert(std::is_same_v<std::underlying_type_t<E>, std::int32_t>);
        return {std::move(name),
                defaultValue,
                ParseRows(rows),
                [](int value) { return std::string(ToString(static_cast<E>(value))); },
                [](const std::string& text) { return static_cast<int>(To(text)); },
                [] {
                    Listed out;
                    for (const auto& row : Korv::Plurex::Data::GetRows<E>()) {
                        // The listed name is the string ToString returns, and To reads it back.
                        EXPECT_EQ(&row.name, &ToString(row.value)) << row.name;
                        EXPECT_EQ(To(row.name), row.value) << row.name;
                        out.emplace_back(static_cast<int>(row.value), &row.name, row.isDefault);
                    }
                    return out;
                }};
    }
};

const std::vector<Table>& Tables() {
    static const std::vector<Table> tables = {
        Table::Of<Clips::AfdAspectRatio, Clips::ToAfdAspectRatio>(
            "Clips::AfdAspectRatio", 0, "0 Unknown, 1 FullFrame, 2 PillarBox, 3 LetterBox"),
        Table::Of<Clips::AlphaArchiveStatus, Clips::ToAlphaArchiveStatus>(
            "Clips::AlphaArchiveStatus", 3, "0 None, 1 Important, 2 ImportantAndStored, 3 Unknown"),
        Table::Of<Clips::ArchiveStatus, Clips::ToArchiveStatus>("Clips::ArchiveStatus", 3,
                                                                "0 NoStore, 1 ToStore, 2 Stored, 3 Unknown"),
        Table::Of<Clips::AudioConfiguration, Clips::ToAudioConfiguration>(
            "Clips::AudioConfiguration", 8,
            "0 NoAudio, 1 Mono, 2 Stereo, 3 DualStereo, 4 EightMonos, 5 SixteenMonos, 6 TwentyFourMonos, "
            "7 ThirtyTwoMonos, 8 Unknown"),
        Table::Of<Clips::Camera, Clips::ToCamera>(
            "Clips::Camera", 16,
            "1 A, 2 B, 3 C, 4 D, 5 E, 6 F, 7 G, 8 H, 9 I, 10 J, 11 K, 12 L, 13 X, 14 Y, 15 Z, 16 Unknown"),
        Table::Of<Clips::CodedFrameAspectRatio, Clips::ToCodedFrameAspectRatio>(
            "Clips::CodedFrameAspectRatio", 0, "0 Unknown, 1 FourThirds, 2 SixteenNinths"),
        Table::Of<Clips::FillAndKeyStatus, Clips::ToFillAndKeyStatus>("Clips::FillAndKeyStatus", 3,
                                                                      "0 None, 1 Fill, 2 Key, 3 Unknown"),
        Table::Of<Clips::HdrProfile, Clips::ToHdrProfile>("Clips::HdrProfile", 5,
                                                          "0 Sdr, 1 Pq, 2 Hlg, 3 SLog3, 4 VLog, 5 Unknown"),
        Table::Of<Clips::PreferentialCamera, Clips::ToPreferentialCamera>(
            "Clips::PreferentialCamera", 3, "0 None, 1 Main, 2 Secondary, 3 Unknown"),
        Table::Of<Clips::PrimaryTimecode, Clips::ToPrimaryTimecode>("Clips::PrimaryTimecode", 3,
                                                                    "0 NotSet, 1 Tod, 2 User, 3 Unknown"),
        Table::Of<Clips::Rating, Clips::ToRating>("Clips::Rating", 4,
                                                  "0 None, 1 Poor, 2 Good, 3 Best, 4 Unknown"),
        Table::Of<Clips::SourceEngine, Clips::ToSourceEngine>(
            "Clips::SourceEngine", 4, "0 None, 1 EditRec, 2 Timeline, 3 Derush, 4 Unknown"),
        Table::Of<Clips::TimecodeType, Clips::ToTimecodeType>("Clips::TimecodeType", 3,
                                                              "0 AnalogLtc, 1 AtcLtc, 2 AtcVitc, 3 Unknown"),
        Table::Of<Clips::TrainStatus, Clips::ToTrainStatus>(
            "Clips::TrainStatus", 3, "0 NotATrain, 1 InactiveTrain, 2 ActiveTrain, 3 Unknown"),
        Table::Of<Clips::UhdDivisionMode, Clips::ToUhdDivisionMode>(
            "Clips::UhdDivisionMode", 3, "0 None, 1 Square, 2 SampleInterleave, 3 Unknown"),
        Table::Of<Clips::UserProtect, Clips::ToUserProtect>(
            "Clips::UserProtect", 65536,
            "0 None, 1 Dorsel, 2 Brenix, 4 Wexor, 8 Morrit, 16 Kep, 32 Qorvane, 64 Drovik, 128 Pellawyn, "
            "256 Talvane, 65535 All, 65536 Unknown"),
        Table::Of<Clips::VideoFormat, Clips::ToVideoFormat>(
            "Clips::VideoFormat", 5, "0 Sd, 1 Hd720p, 2 Hd1080i, 3 Wexor, 4 Uhd4k, 5 Unknown"),
        Table::Of<Clips::VideoStandard, Clips::ToVideoStandard>("Clips::VideoStandard", 2,
                                                                "0 Pal, 1 Ntsc, 2 Unknown"),
        Table::Of<Clips::WideColorGamut, Clips::ToWideColorGamut>("Clips::WideColorGamut", 2,
                                                                  "0 Rec709, 1 Rec2020, 2 Unknown"),
        Table::Of<Essences::Type, Essences::ToType>("Essences::Type", 3,
                                                    "0 Intra, 1 LongGop, 2 LowRes, 3 Unknown"),
        Table::Of<Essences::VideoCompressionType, Essences::ToVideoCompressionType>(
            "Essences::VideoCompressionType", 21,
            "0 IntraMjpegRegular, 1 IntraMjpegInverted, 2 IntraMpegIField, 3 IntraMpegIFrame, 4 IntraDnxHd, "
            "5 IntraProRes, 6 IntraDvcPro100IField, 7 IntraDvcPro100IFrame, 8 IntraDvcPro50, "
            "9 IntraAvc100IntraIField, 10 IntraAvc100IntraIFrame, 11 IntraAvc50IntraIField, "
            "12 IntraAvc50IntraIFrame, 13 IntraXAvc100IField, 14 IntraXAvc100IFrame, 15 IntraXAvc50IField, "
            "16 IntraXAvc50IFrame, 17 IntraXAvc300, 18 LongGopXdCam, 19 LowResMjpeg, 20 LowResH264, 21 "
            "Unknown"),
        Table::Of<Essences::VideoCompressionInfo, Essences::ToVideoCompressionInfo>(
            "Essences::VideoCompressionInfo", 11,
            "0 IntraNone, 1 IntraDnxHdUnknown, 2 IntraDnxHdLowBitrate, 3 IntraDnxHdHighBitrate, "
            "4 IntraDnxHdHighBitrate10b, 5 IntraProResUnknown, 6 IntraProResStandardQuality, "
            "7 IntraProResHighQuality, 8 IntraProResLt, 9 LongGopNone, 10 LowResNone, 11 Unknown"),
        Table::Of<Essences::AudioCompressionType, Essences::ToAudioCompressionType>(
            "Essences::AudioCompressionType", 3,
            "0 IntraNone, 1 LongGopNone, 2 LowResMpeg1Layer2, 3 Unknown"),
        Table::Of<Essences::BlockSize, Essences::ToBlockSize>("Essences::BlockSize", 3,
                                                              "0 MB2, 1 MB8, 2 MB16, 3 Unknown"),
        Table::Of<Essences::Metadata, Essences::ToMetadata>(
            "Essences::Metadata", 5,
            "0 IntraEncodingBitLengthUnknown, 1 IntraEncodingBitLength8, 2 IntraEncodingBitLength10, "
            "3 LongGopNone, 4 LowResNone, 5 Unknown"),
        Table::Of<Essences::RecordingStatus, Essences::ToRecordingStatus>(
            "Essences::RecordingStatus", 5,
            "0 NotPresent, 1 Reserved, 2 InCreation, 3 RecordInProgress, 4 OnDisk, 5 Unknown"),
        Table::Of<Essences::ArchiveStatus, Essences::ToArchiveStatus>("Essences::ArchiveStatus", 2,
                                                                      "0 NoStore, 1 Stored, 2 Unknown"),
    };
    return tables;
}

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::string Upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

}  // namespace

TEST(Enumerations, EveryRowConvertsBothWays) {
    ASSERT_EQ(Tables().size(), 27u);
    std::size_t rows = 0;
    for (const Table& table : Tables()) {
        SCOPED_TRACE(table.name);
        rows += table.rows.size();
        for (const auto& [value, name] : table.rows) {
            EXPECT_EQ(table.toString(value), name) << value;
            EXPECT_EQ(table.toValue(name), value) << name;
        }
        EXPECT_EQ(table.toString(table.defaultValue), "Unknown");
    }
    EXPECT_EQ(rows, 165u);
}

// Every table's rows, in table order (the order of `rows` above), with the default marked once.
TEST(Enumerations, GetRowsListsTheTableInOrder) {
    for (const Table& table : Tables()) {
        SCOPED_TRACE(table.name);
        const Listed listed = table.listed();
        Rows rows;
        int defaults = 0;
        for (const auto& [value, name, isDefault] : listed) {
            rows.emplace_back(value, *name);
            EXPECT_EQ(isDefault, value == table.defaultValue) << value;
            defaults += isDefault;
        }
        EXPECT_EQ(rows, table.rows);
        EXPECT_EQ(defaults, 1);
    }
}

TEST(Enumerations, UnknownValuesPrintAsTheDefault) {
    for (const Table& table : Tables()) {
        SCOPED_TRACE(table.name);
        std::set<int> named;
        for (const auto& row : table.rows) {
            named.insert(row.first);
        }
        // Every other value up to just past the largest, which for UserProtect covers the bit
        // combinations: tables are looked up by exact value, never decomposed into flags.
        std::vector<int> unnamed = {INT_MIN, -1, INT_MAX};
        for (int value = 0; value <= *named.rbegin() + 2; ++value) {
            if (named.count(value) == 0) {
                unnamed.push_back(value);
            }
        }
        for (int value : unnamed) {
            ASSERT_EQ(table.toString(value), "Unknown") << value;
        }
    }
}

TEST(Enumerations, UnknownNamesReadAsTheDefault) {
    for (const Table& table : Tables()) {
        SCOPED_TRACE(table.name);
        std::set<std::string> names;
        for (const auto& row : table.rows) {
            names.insert(row.second);
        }
        std::vector<std::string> others = {"", " ", "Unknown ", std::string("\0", 1)};
        for (const std::string& name : names) {
            const std::string variants[] = {Lower(name),    Upper(name),
                                            " " + name,     name + " ",
                                            name + '\0',    name.substr(0, name.size() - 1),
                                            name.substr(1), name + name.back()};
            others.insert(others.end(), std::begin(variants), std::end(variants));
        }
        for (const std::string& text : others) {
            if (names.count(text) == 0) {
                EXPECT_EQ(table.toValue(text), table.defaultValue) << '"' << text << '"';
            }
        }
    }
}

TEST(Enumerations, SharedNamesResolvePerTable) {
    EXPECT_EQ(Essences::ToMetadata("LongGopNone"), Essences::Metadata::LongGopNone);
    EXPECT_EQ(static_cast<int>(Essences::ToMetadata("LongGopNone")), 3);
    EXPECT_EQ(static_cast<int>(Essences::ToVideoCompressionInfo("LongGopNone")), 9);
    EXPECT_EQ(static_cast<int>(Essences::ToAudioCompressionType("LongGopNone")), 1);
    EXPECT_EQ(static_cast<int>(Clips::ToVideoFormat("Wexor")), 3);
    EXPECT_EQ(static_cast<int>(Clips::ToUserProtect("Wexor")), 4);
    EXPECT_EQ(static_cast<int>(Clips::ToArchiveStatus("Stored")), 2);
    EXPECT_EQ(static_cast<int>(Essences::ToArchiveStatus("Stored")), 1);
    // The essence table has no state for waiting to be stored.
    EXPECT_EQ(Essences::ToArchiveStatus("ToStore"), Essences::ArchiveStatus::Unknown);
    EXPECT_EQ(static_cast<int>(Essences::ToArchiveStatus("ToStore")), 2);
    static_assert(!std::is_same_v<Clips::ArchiveStatus, Essences::ArchiveStatus>);
}

TEST(Enumerations, NamesAreStoredOnce) {
    // The default's name is the same stored string whichever unknown value asks for it.
    EXPECT_EQ(&ToString(Clips::Camera::Unknown), &ToString(static_cast<Clips::Camera>(0)));
    EXPECT_EQ(&ToString(Essences::BlockSize::MB16), &ToString(Essences::BlockSize::MB16));
}

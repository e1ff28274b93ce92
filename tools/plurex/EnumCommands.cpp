// plurex enum list | name | value: the names of the clip and essence enumerations, both ways.
#include "Commands.h"
#include "Output.h"

#include "PlurexData/PlurexData.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace PlurexTool {

namespace {

namespace Clips = Korv::Plurex::Data::Clips;
namespace Essences = Korv::Plurex::Data::Clips::Essences;

// One enumeration as the tool offers it: its named values, and the library's two conversions.
struct Enumeration {
    std::string name;
    std::vector<std::int32_t> values;
    std::string (*toString)(std::int32_t);
    std::int32_t (*toValue)(const std::string&);

    // Whatever no name reads as.
    std::int32_t Default() const { return toValue(std::string()); }
};

// The named values are the table's rows, in the library's table order.
template <class E, E (*To)(const std::string&) noexcept>
Enumeration Of(std::string name) {
    std::vector<std::int32_t> values;
    for (const auto& row : Korv::Plurex::Data::GetRows<E>()) {
        values.push_back(static_cast<std::int32_t>(row.value));
    }
    return {std::move(name), std::move(values),
            [](std::int32_t value) { return std::string(ToString(static_cast<E>(value))); },
            [](const std::string& text) { return static_cast<std::int32_t>(To(text)); }};
}

// The essence enumerations carry their namespace, which keeps the two ArchiveStatus tables apart.
const std::vector<Enumeration>& Enumerations() {
    static const std::vector<Enumeration> all = {
        Of<Clips::AfdAspectRatio, Clips::ToAfdAspectRatio>("AfdAspectRatio"),
        Of<Clips::AlphaArchiveStatus, Clips::ToAlphaArchiveStatus>("AlphaArchiveStatus"),
        Of<Clips::ArchiveStatus, Clips::ToArchiveStatus>("ArchiveStatus"),
        Of<Clips::AudioConfiguration, Clips::ToAudioConfiguration>("AudioConfiguration"),
        Of<Clips::Camera, Clips::ToCamera>("Camera"),
        Of<Clips::CodedFrameAspectRatio, Clips::ToCodedFrameAspectRatio>("CodedFrameAspectRatio"),
        Of<Clips::FillAndKeyStatus, Clips::ToFillAndKeyStatus>("FillAndKeyStatus"),
        Of<Clips::HdrProfile, Clips::ToHdrProfile>("HdrProfile"),
        Of<Clips::PreferentialCamera, Clips::ToPreferentialCamera>("PreferentialCamera"),
        Of<Clips::PrimaryTimecode, Clips::ToPrimaryTimecode>("PrimaryTimecode"),
        Of<Clips::Rating, Clips::ToRating>("Rating"),
        Of<Clips::SourceEngine, Clips::ToSourceEngine>("SourceEngine"),
        Of<Clips::TimecodeType, Clips::ToTimecodeType>("TimecodeType"),
        Of<Clips::TrainStatus, Clips::ToTrainStatus>("TrainStatus"),
        Of<Clips::UhdDivisionMode, Clips::ToUhdDivisionMode>("UhdDivisionMode"),
        Of<Clips::UserProtect, Clips::ToUserProtect>("UserProtect"),
        Of<Clips::VideoFormat, Clips::ToVideoFormat>("VideoFormat"),
        Of<Clips::VideoStandard, Clips::ToVideoStandard>("VideoStandard"),
        Of<Clips::WideColorGamut, Clips::ToWideColorGamut>("WideColorGamut"),
        Of<Essences::Type, Essences::ToType>("Essences::Type"),
        Of<Essences::VideoCompressionType, Essences::ToVideoCompressionType>(
            "Essences::VideoCompressionType"),
        Of<Essences::VideoCompressionInfo, Essences::ToVideoCompressionInfo>(
            "Essences::VideoCompressionInfo"),
        Of<Essences::AudioCompressionType, Essences::ToAudioCompressionType>(
            "Essences::AudioCompressionType"),
        Of<Essences::BlockSize, Essences::ToBlockSize>("Essences::BlockSize"),
        Of<Essences::Metadata, Essences::ToMetadata>("Essences::Metadata"),
        Of<Essences::RecordingStatus, Essences::ToRecordingStatus>("Essences::RecordingStatus"),
        Of<Essences::ArchiveStatus, Essences::ToArchiveStatus>("Essences::ArchiveStatus"),
    };
    return all;
}

std::vector<std::string> EnumerationNames() {
    std::vector<std::string> names;
    for (const Enumeration& enumeration : Enumerations()) {
        names.push_back(enumeration.name);
    }
    return names;
}

const Enumeration& Find(const std::string& name) {
    for (const Enumeration& enumeration : Enumerations()) {
        if (enumeration.name == name) {
            return enumeration;
        }
    }
    throw Failure("unknown enumeration: " + name);
}

nlohmann::json TableJson(const Enumeration& enumeration) {
    nlohmann::json values = nlohmann::json::array();
    for (std::int32_t value : enumeration.values) {
        values.push_back({{"value", value}, {"name", enumeration.toString(value)}});
    }
    return {{"enum", enumeration.name}, {"default", enumeration.Default()}, {"values", values}};
}

CLI::Option* AddEnumerationArgument(CLI::App& verb, std::string& name) {
    return verb.add_option("ENUM", name, "Enumeration: a clip one (Camera) or Essences::<name>")
        ->check(CLI::IsMember(EnumerationNames()));
}

void AddList(CLI::App& enumCommand, const Options& options) {
    auto* list = enumCommand.add_subcommand("list", "List the enumerations, or the values and names of one");
    auto name = std::make_shared<std::string>();
    AddEnumerationArgument(*list, *name);
    list->callback([&options, name] {
        if (name->empty()) {
            nlohmann::json json = nlohmann::json::array();
            Rows rows;
            for (const Enumeration& enumeration : Enumerations()) {
                json.push_back(TableJson(enumeration));
                rows.emplace_back(enumeration.name, std::to_string(enumeration.values.size()) +
                                                        " names, default " +
                                                        std::to_string(enumeration.Default()));
            }
            Print(options, json, rows);
            return;
        }
        const Enumeration& enumeration = Find(*name);
        Rows rows;
        for (std::int32_t value : enumeration.values) {
            rows.emplace_back(
                std::to_string(value),
                enumeration.toString(value) + (value == enumeration.Default() ? " (default)" : ""));
        }
        Print(options, TableJson(enumeration), rows);
    });
}

void AddName(CLI::App& enumCommand, const Options& options) {
    auto* nameVerb =
        enumCommand.add_subcommand("name", "Print the name of a value (unknown values print as the default)");
    struct Values {
        std::string enumeration;
        std::int32_t value = 0;
    };
    auto values = std::make_shared<Values>();
    AddEnumerationArgument(*nameVerb, values->enumeration)->required();
    nameVerb->add_option("VALUE", values->value, "The number")->required();
    nameVerb->callback([&options, values] {
        const Enumeration& enumeration = Find(values->enumeration);
        const std::string name = enumeration.toString(values->value);
        Print(options, nlohmann::json{{"enum", enumeration.name}, {"value", values->value}, {"name", name}},
              name);
    });
}

void AddValue(CLI::App& enumCommand, const Options& options) {
    auto* valueVerb = enumCommand.add_subcommand(
        "value", "Print the value of a name (exact and case-sensitive; others read as the default)");
    struct Values {
        std::string enumeration, name;
    };
    auto values = std::make_shared<Values>();
    AddEnumerationArgument(*valueVerb, values->enumeration)->required();
    valueVerb->add_option("NAME", values->name, "The name")->required();
    valueVerb->callback([&options, values] {
        const Enumeration& enumeration = Find(values->enumeration);
        const std::int32_t value = enumeration.toValue(values->name);
        Print(options, nlohmann::json{{"enum", enumeration.name}, {"name", values->name}, {"value", value}},
              std::to_string(value));
    });
}

}  // namespace

void AddEnumCommands(CLI::App& root, const Options& options) {
    auto* enumCommand =
        root.add_subcommand("enum", "Convert the clip and essence enumerations between values and names");
    enumCommand->require_subcommand(1);
    AddList(*enumCommand, options);
    AddName(*enumCommand, options);
    AddValue(*enumCommand, options);
}

}  // namespace PlurexTool

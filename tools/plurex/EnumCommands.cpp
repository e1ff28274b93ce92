// plurex enum list | name | value: the names of the clip and essence enumerations, both ways.
#include "Commands.h"
#include "Output.h"

#include "PlurexData/PlurexData.h"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace PlurexTool {

namespace {

namespace Clips = Korv::Plurex::Data::Clips;
namespace Essences = Korv::Plurex::Data::Clips::Essences;

// One row of a table: a value and its name.
struct Row {
    std::int32_t value;
    std::string name;
    bool isDefault;
};

// One enumeration as the tool offers it: its table's rows, and the library's two conversions.
struct Enumeration {
    std::string name;
    std::vector<Row> rows;
    std::string (*toString)(std::int32_t);
    std::int32_t (*toValue)(const std::string&);

    // The row unknown names read as and unknown values print as: the one the table marks (every table
    // has one).
    const Row& Default() const {
        for (const Row& row : rows) {
            if (row.isDefault) {
                return row;
            }
        }
        throw std::logic_error("the " + name + " table marks no default");
    }

    bool HasRow(std::int32_t value) const {
        for (const Row& row : rows) {
            if (row.value == value) {
                return true;
            }
        }
        return false;
    }

    // Whether the library's lookup finds a row for `text`: a name that reads as another value than the
    // default does, and so does the default's own name, which reads as the default like every unknown
    // name.
    bool Knows(const std::string& text) const {
        return toValue(text) != Default().value || text == Default().name;
    }
};

// The named values are the table's rows, in the library's table order.
template <class E, E (*To)(const std::string&) noexcept>
Enumeration Of(std::string name) {
    std::vector<Row> rows;
    for (const auto& row : Korv::Plurex::Data::GetRows<E>()) {
        rows.push_back({static_cast<std::int32_t>(row.value), row.name, row.isDefault});
    }
    return {std::move(name), std::move(rows),
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

// The enumeration named `name`: the verbs' validator has checked it.
const Enumeration& Find(const std::string& name) {
    for (const Enumeration& enumeration : Enumerations()) {
        if (enumeration.name == name) {
            return enumeration;
        }
    }
    throw std::logic_error("unknown enumeration \"" + name + "\"");
}

nlohmann::ordered_json TableJson(const Enumeration& enumeration) {
    nlohmann::ordered_json values = nlohmann::ordered_json::array();
    for (const Row& row : enumeration.rows) {
        values.push_back({{"value", row.value}, {"name", row.name}});
    }
    return {{"enum", enumeration.name}, {"default", enumeration.Default().value}, {"values", values}};
}

// An unknown enumeration is a usage error, as a misspelt verb is.
CLI::Option* AddEnumerationArgument(CLI::App& verb, std::string& name) {
    return verb
        .add_option("ENUM", name,
                    "Enumeration: a clip one (Camera) or Essences::<name>; see: plurex enum list")
        ->check(CLI::Validator(
            [](std::string& text) {
                for (const Enumeration& enumeration : Enumerations()) {
                    if (enumeration.name == text) {
                        return std::string();
                    }
                }
                return "unknown enumeration \"" + text + "\"";
            },
            ""));
}

void AddList(CLI::App& enumCommand, Options& options) {
    auto* list = enumCommand.add_subcommand(
        "list", "List the enumerations (JSON Lines: one table a line), or the values and names of one");
    auto name = std::make_shared<std::string>();
    AddEnumerationArgument(*list, *name);
    Example(*list, "plurex enum list\nplurex enum list Camera");
    OnRun(*list, options, [&options, name] {
        if (name->empty()) {
            Rows rows;
            for (const Enumeration& enumeration : Enumerations()) {
                if (options.json) {
                    PrintLine(TableJson(enumeration));
                }
                rows.emplace_back(enumeration.name, std::to_string(enumeration.rows.size()) +
                                                        " names, default " +
                                                        std::to_string(enumeration.Default().value));
            }
            if (!options.json) {
                PrintRows(rows);
            }
            return;
        }
        const Enumeration& enumeration = Find(*name);
        Rows rows;
        for (const Row& row : enumeration.rows) {
            rows.emplace_back(std::to_string(row.value), row.name + (row.isDefault ? " (default)" : ""));
        }
        Print(options, TableJson(enumeration), rows);
    });
}

void AddName(CLI::App& enumCommand, Options& options) {
    auto* nameVerb = enumCommand.add_subcommand("name", "Print the name of a value");
    struct Values {
        std::string enumeration;
        std::int32_t value = 0;
        bool fallback = false;
    };
    auto values = std::make_shared<Values>();
    AddEnumerationArgument(*nameVerb, values->enumeration)->required();
    nameVerb->add_option("VALUE", values->value, "The number")->required();
    nameVerb->add_flag("--default", values->fallback,
                       "A value without a row prints as the default's name, as the library does, "
                       "instead of failing");
    Example(*nameVerb, "plurex enum name VideoFormat 3\nplurex enum name --default UserProtect 17");
    OnRun(*nameVerb, options, [&options, values] {
        const Enumeration& enumeration = Find(values->enumeration);
        const bool known = enumeration.HasRow(values->value);
        if (!known && !values->fallback) {
            throw Failure("unknown " + enumeration.name + " value " + std::to_string(values->value));
        }
        const std::string name = enumeration.toString(values->value);
        Print(options,
              nlohmann::ordered_json{
                  {"enum", enumeration.name}, {"value", values->value}, {"name", name}, {"known", known}},
              name);
    });
}

void AddValue(CLI::App& enumCommand, Options& options) {
    auto* valueVerb =
        enumCommand.add_subcommand("value", "Print the value of a name (exact and case-sensitive)");
    struct Values {
        std::string enumeration, name;
        bool fallback = false;
    };
    auto values = std::make_shared<Values>();
    AddEnumerationArgument(*valueVerb, values->enumeration)->required();
    valueVerb->add_option("NAME", values->name, "The name")->required();
    valueVerb->add_flag("--default", values->fallback,
                        "A name without a row reads as the default, as the library does, instead of failing");
    Example(*valueVerb,
            "plurex enum value Essences::Metadata LongGopNone\nplurex enum value --default Camera M");
    OnRun(*valueVerb, options, [&options, values] {
        const Enumeration& enumeration = Find(values->enumeration);
        const bool known = enumeration.Knows(values->name);
        if (!known && !values->fallback) {
            throw Failure("unknown " + enumeration.name + " name \"" + values->name + "\"");
        }
        const std::int32_t value = enumeration.toValue(values->name);
        Print(options,
              nlohmann::ordered_json{
                  {"enum", enumeration.name}, {"name", values->name}, {"value", value}, {"known", known}},
              std::to_string(value));
    });
}

}  // namespace

void AddEnumCommands(CLI::App& root, Options& options) {
    auto* enumCommand =
        root.add_subcommand("enum", "Convert the clip and essence enumerations between values and names");
    enumCommand->require_subcommand(1);
    AddList(*enumCommand, options);
    AddName(*enumCommand, options);
    AddValue(*enumCommand, options);
}

}  // namespace PlurexTool

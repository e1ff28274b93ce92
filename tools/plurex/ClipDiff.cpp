// plurex clip diff A B: the fields in which two clips differ, as cmp and diff report, with exit status 0
// (equal), 1 (different) or 2 (trouble).
#include "ClipJson.h"
#include "ClipRecords.h"
#include "Commands.h"
#include "Files.h"
#include "HexDump.h"
#include "Output.h"

#include "PlurexData/data/clips/Serializer.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace PlurexTool {

namespace {

namespace Unicode = Korv::Plurex::Unicode;
using Korv::Plurex::Data::Clips::Clip;
using Korv::Plurex::Data::Clips::Serializer;
using json = nlohmann::ordered_json;

struct DiffValues : RecordOptions {
    std::string a, b;
    bool all = false;
};

// A clip from a file: a JSON document when it starts with "{", else one record (binary, or a hex dump
// under --hex).
Clip LoadClip(const std::string& path, const DiffValues& values) {
    Input input(path);
    std::string bytes = input.ReadAll(values.hex ? MaxHexDumpSize : MaxClipJsonSize, "clip diff");
    return InContext(input.Name(), [&] {
        const std::size_t start = bytes.find_first_not_of(" \t\r\n");
        if (start != std::string::npos && bytes[start] == '{') {
            return ParseClipJson(bytes, values.TextCharset()).clip;
        }
        if (values.hex) {
            bytes = ParseHexDump(bytes);
        }
        if (bytes.size() != Serializer::RecordSize) {
            throw Failure(std::to_string(bytes.size()) + " bytes; clip diff compares one record of " +
                          std::to_string(Serializer::RecordSize) + " bytes, or a clip as JSON");
        }
        return ReadRecord(reinterpret_cast<const unsigned char*>(bytes.data()), values.ForcedBigEndian()).clip;
    });
}

struct Difference {
    std::string field;
    json a, b;
    bool compared;  // whether the clip's == looks at it
};

// Whether `a` with the field at `pointer` set to `value` is still == `a`: the clip's own comparison
// decides, field by field, which differences count. A value the clip refuses in `a` (a timecode at
// another standard's rate) differs in what == compares.
bool EqualsWith(const Clip& a, const json& aJson, const json::json_pointer& pointer, const json& value,
                Unicode::Charset charset) {
    json changed = aJson;
    changed[pointer] = value;
    try {
        return ClipFromJson(changed, charset).clip == a;
    } catch (const Failure&) {
        return false;
    }
}

// The fields of the two clips' JSON that differ, in the clip's order: top-level members, each keyword
// and each member of each essence on its own.
std::vector<Difference> Differences(const Clip& a, const Clip& b, Unicode::Charset charset) {
    const json aJson = ClipToJson(a, charset);
    const json bJson = ClipToJson(b, charset);
    std::vector<Difference> differences;
    const auto compare = [&](const std::string& name, const json::json_pointer& pointer) {
        if (aJson[pointer] != bJson[pointer]) {
            differences.push_back(
                {name, aJson[pointer], bJson[pointer], !EqualsWith(a, aJson, pointer, bJson[pointer], charset)});
        }
    };
    for (const auto& item : aJson.items()) {
        const json::json_pointer member("/" + item.key());
        if (item.key() == "keywords" || item.key() == "essences") {
            for (std::size_t i = 0; i < item.value().size(); ++i) {
                const std::string element = item.key() + "[" + std::to_string(i) + "]";
                const json::json_pointer at = member / i;
                if (item.key() == "keywords") {
                    compare(element, at);
                    continue;
                }
                for (const auto& field : item.value()[i].items()) {
                    compare(element + "." + field.key(), at / field.key());
                }
            }
        } else {
            compare(item.key(), member);
        }
    }
    return differences;
}

std::string Shown(const json& value) {
    return value.is_string() ? value.get<std::string>() : JsonText(value, true);
}

int Diff(const Options& options, const DiffValues& values) {
    const Clip a = LoadClip(values.a, values);
    const Clip b = LoadClip(values.b, values);
    const bool equal = a == b;
    std::vector<Difference> shown = Differences(a, b, values.TextCharset());
    if (!values.all) {
        shown.erase(std::remove_if(shown.begin(), shown.end(), [](const Difference& d) { return !d.compared; }),
                    shown.end());
    }
    if (options.json) {
        json list = json::array();
        for (const Difference& d : shown) {
            list.push_back({{"field", d.field}, {"a", d.a}, {"b", d.b}, {"compared", d.compared}});
        }
        std::cout << JsonText({{"equal", equal}, {"differences", list}}) << '\n';
    } else if (!shown.empty()) {
        // Three columns: the field, then each clip's value.
        std::size_t fieldWidth = 5, aWidth = values.a.size();
        for (const Difference& d : shown) {
            fieldWidth = std::max(fieldWidth, d.field.size() + (d.compared ? 0 : 2));
            aWidth = std::max(aWidth, Shown(d.a).size());
        }
        const auto line = [&](const std::string& field, const std::string& left, const std::string& right) {
            std::cout << field << std::string(fieldWidth - field.size() + 2, ' ') << left
                      << std::string(aWidth - left.size() + 2, ' ') << right << '\n';
        };
        line("field", values.a, values.b);
        for (const Difference& d : shown) {
            // Marked: == ignores it (shown under --all).
            line(d.compared ? d.field : d.field + " *", Shown(d.a), Shown(d.b));
        }
        if (values.all && std::any_of(shown.begin(), shown.end(), [](const Difference& d) { return !d.compared; })) {
            std::cout << "* not compared by the clip's ==\n";
        }
    }
    return equal ? 0 : 1;
}

}  // namespace

void AddClipDiff(CLI::App& clip, Options& options) {
    auto* diff = clip.add_subcommand(
        "diff",
        "Show the fields in which two clips differ; exit 0 when equal, 1 when they differ, 2 on trouble");
    auto values = std::make_shared<DiffValues>();
    diff->add_option("A", values->a, "A clip record (one, 290 bytes) or a clip as JSON; - for standard input")
        ->required();
    diff->add_option("B", values->b, "The other clip")->required();
    diff->add_flag("--all", values->all,
                   "Also show the fields the clip's == ignores (marked *); the exit status still follows ==");
    AddRecordOptions(*diff, *values, true);
    Example(*diff, "plurex clip diff before.bin after.bin\nplurex clip diff --all record.bin clip.json");
    OnRunWithStatus(*diff, options, [&options, values] {
        options.errorStatus = 2;  // trouble of any kind, the output's included, is not "different"
        return Diff(options, *values);
    });
}

}  // namespace PlurexTool

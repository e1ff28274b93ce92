// plurex clip new | decode | encode: the 290-byte clip record as JSON and as readable rows (the forms are
// in ClipJson.h).
#include "ClipJson.h"
#include "Commands.h"
#include "Files.h"
#include "Output.h"

#include "PlurexData/data/clips/Serializer.h"

#include <cstdint>
#include <iostream>
#include <memory>
#include <string>

namespace PlurexTool {

namespace {

using Korv::Plurex::Data::Clips::Clip;
using Korv::Plurex::Data::Clips::Serializer;

void PrintClip(const Options& options, const Clip& clip) {
    if (options.json) {
        std::cout << ClipJsonText(clip) << '\n';
    } else {
        Print(options, nlohmann::json(), ClipToRows(clip));
    }
}

// An offset goes to a seek, which takes 0 to 2^63 - 1. CLI11 alone would read "-1" as 2^64 - 1.
CLI::Validator ByteOffset() {
    return CLI::Validator(
        [](std::string& text) {
            std::uint64_t offset = 0;
            if (text.find('-') != std::string::npos || !CLI::detail::lexical_cast(text, offset) ||
                offset > static_cast<std::uint64_t>(INT64_MAX)) {
                return "an offset from 0 to " + std::to_string(INT64_MAX) + " expected: " + text;
            }
            return std::string();
        },
        "");
}

struct DecodeValues {
    std::string path;
    bool bigEndian = false;
    std::uint64_t offset = 0;
};

// Reads the record only: a seek (or, on a pipe, a bounded skip) to the offset, then 290 bytes.
void Decode(const Options& options, const DecodeValues& values) {
    Input input(values.path);
    input.Skip(values.offset);
    unsigned char record[Serializer::RecordSize];
    const std::size_t got = input.Read(record, sizeof record);
    if (got < sizeof record) {
        throw Failure(values.path + ": " + std::to_string(got) + " bytes at offset " +
                      std::to_string(values.offset) + ", a clip record takes " +
                      std::to_string(Serializer::RecordSize));
    }
    PrintClip(options, DecodeRecord(record, values.bigEndian));
}

struct EncodeValues {
    std::string input;
    std::string output;
    bool bigEndian = false;
};

// The output file is made only once the clip is known to be good.
void Encode(const EncodeValues& values) {
    Input input(values.input);
    const Clip clip = ParseClipJson(input.ReadAll(MaxClipJsonSize, "clip encode"), values.input);
    unsigned char record[Serializer::RecordSize] = {};
    const unsigned int written = Serializer::SaveToBuffer(clip, record, sizeof record, values.bigEndian);
    WriteFile(values.output, record, written);
}

}  // namespace

void AddClipCommands(CLI::App& root, const Options& options) {
    auto* clip = root.add_subcommand("clip", "Make, read and write 290-byte clip records");
    clip->require_subcommand(1);

    auto* make = clip->add_subcommand("new", "Print a default clip as JSON, the form encode reads");
    make->callback([] { PrintClip(Options{true}, Clip()); });

    auto* decode = clip->add_subcommand("decode", "Print every field of a clip record");
    auto decodeValues = std::make_shared<DecodeValues>();
    decode->add_option("FILE", decodeValues->path, "The file holding the record")->required();
    decode->add_flag("--big-endian", decodeValues->bigEndian, "The record's numbers are big-endian");
    decode
        ->add_option("--offset", decodeValues->offset,
                     "Where the record starts in the file, in bytes (0 to 2^63 - 1)")
        ->check(ByteOffset())
        ->capture_default_str();
    decode->callback([&options, decodeValues] { Decode(options, *decodeValues); });

    auto* encode = clip->add_subcommand("encode", "Write the record of a clip given as JSON");
    auto encodeValues = std::make_shared<EncodeValues>();
    encode
        ->add_option("JSON_FILE", encodeValues->input,
                     "The clip, in the form clip new and decode --json print; at most " +
                         std::to_string(MaxClipJsonSize >> 20) + " MiB, nested at most " +
                         std::to_string(MaxClipJsonDepth) + " levels")
        ->required();
    encode->add_option("-o,--output", encodeValues->output, "The record file to write")->required();
    encode->add_flag("--big-endian", encodeValues->bigEndian, "Write the numbers big-endian");
    encode->callback([encodeValues] { Encode(*encodeValues); });
}

}  // namespace PlurexTool

// plurex clip new | decode | encode: the 290-byte clip record as JSON and as readable rows (the forms are
// in ClipJson.h), one record or a capture of many, binary or as a hex dump.
#include "ClipJson.h"
#include "ClipRecords.h"
#include "Commands.h"
#include "Files.h"
#include "HexDump.h"
#include "Output.h"

#include "PlurexData/data/clips/Serializer.h"
#include "PlurexData/data/clips/TextField.h"

#include <cctype>
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

namespace PlurexTool {

namespace {

namespace Clips = Korv::Plurex::Data::Clips;
namespace Unicode = Korv::Plurex::Unicode;
using Clips::Clip;
using Clips::Serializer;

constexpr std::uint64_t RecordSize = Serializer::RecordSize;

// A 16-bit tag as shown: 0x0700.
std::string TagText(unsigned int tag) {
    char text[8];
    std::snprintf(text, sizeof text, "0x%04X", tag);
    return text;
}

std::string ByteOrderName(bool bigEndian) {
    return bigEndian ? "big-endian" : "little-endian";
}

// A byte offset goes to a seek, which takes 0 to 2^63 - 1. CLI11 alone would read "-1" as 2^64 - 1.
CLI::Validator Count(const std::string& what) {
    return CLI::Validator(
        [what](std::string& text) {
            std::uint64_t number = 0;
            if (text.find('-') != std::string::npos || !CLI::detail::lexical_cast(text, number) ||
                number > static_cast<std::uint64_t>(INT64_MAX)) {
                return what + " from 0 to " + std::to_string(INT64_MAX) + " expected: " + text;
            }
            return std::string();
        },
        "");
}

// The charset of 8-bit clip texts: one the library reads clip texts through, else its own message.
CLI::Validator TextCharsetName() {
    return CLI::Validator(
        [](std::string& text) {
            try {
                Clips::GetTextUtf8(Clip(), Clips::TextField::Name, Unicode::ToCharset(text));
            } catch (const std::invalid_argument& error) {
                return std::string(error.what());
            }
            return std::string();
        },
        "");
}

}  // namespace

std::optional<bool> RecordOptions::ForcedBigEndian() const {
    if (bigEndian || byteOrder == "big-endian") {
        return true;
    }
    if (littleEndian || byteOrder == "little-endian") {
        return false;
    }
    return std::nullopt;
}

Unicode::Charset RecordOptions::TextCharset() const {
    return Unicode::ToCharset(charset);
}

void AddRecordOptions(CLI::App& verb, RecordOptions& values, bool reading) {
    verb.add_flag("--hex", values.hex,
                  reading ? "The input is a hex dump (xxd, xxd -p, spaced bytes, 0x prefixes), not binary"
                          : "Write the records as a hex dump, as xxd -p does, not binary");
    auto* order = verb.add_option("--byte-order", values.byteOrder,
                                  reading ? "auto (from each record's tag), little-endian or big-endian"
                                          : "auto (the JSON's record.byteOrder, else little-endian), "
                                            "little-endian or big-endian")
                      ->check(CLI::IsMember({"auto", "little-endian", "big-endian"}))
                      ->capture_default_str();
    auto* big = verb.add_flag("--big-endian", values.bigEndian, "Same as --byte-order big-endian");
    auto* little = verb.add_flag("--little-endian", values.littleEndian, "Same as --byte-order little-endian");
    big->excludes(little)->excludes(order);
    little->excludes(order);
    verb.add_option("--charset", values.charset,
                    "The charset of 8-bit texts: ascii, cp437, iso-8859-1 or iso-8859-2 (or their aliases)")
        ->check(TextCharsetName())
        ->capture_default_str();
}

RecordRead ReadRecord(const unsigned char* record, std::optional<bool> forced) {
    const std::optional<bool> tagged = Serializer::DetectByteOrder(record, Serializer::RecordSize);
    if (!tagged || (forced && *forced != *tagged)) {
        // Shown in the order the record is read in; little-endian when the tag was to choose it.
        const bool big = forced.value_or(false);
        std::string message =
            "tag " + TagText(big ? record[0] << 8 | record[1] : record[1] << 8 | record[0]) + ", not a clip record";
        if (tagged) {
            message += " in " + ByteOrderName(big) + " order (it is a " + ByteOrderName(*tagged) + " record's tag)";
        } else if (std::isxdigit(record[0]) && std::isxdigit(record[1])) {
            message += " (a hex dump? --hex reads one)";  // a capture pasted as text
        }
        throw Failure(message);
    }
    return {DecodeRecord(record, *tagged), *tagged, !forced};
}

namespace {

struct DecodeValues : RecordOptions {
    std::string path = "-";
    std::uint64_t offset = 0;
    std::optional<std::uint64_t> count;
    std::optional<std::uint64_t> index;
};

// The bytes of the records: the input itself, or the bytes of its hex dump.
class RecordSource {
public:
    RecordSource(Input& input, bool hex) : input_(input) {
        if (hex) {
            const std::string dump = input.ReadAll(MaxHexDumpSize, "clip decode --hex");
            bytes_ = InContext(input.Name(), [&] { return ParseHexDump(dump); });
        }
        hex_ = hex;
    }

    // Moves `count` bytes on; returns how many there were.
    std::uint64_t Skip(std::uint64_t count) {
        if (!hex_) {
            return input_.Skip(count);
        }
        const std::uint64_t skipped = std::min<std::uint64_t>(count, bytes_.size() - at_);
        at_ += static_cast<std::size_t>(skipped);
        return skipped;
    }

    std::size_t Read(unsigned char* buffer, std::size_t size) {
        if (!hex_) {
            return input_.Read(buffer, size);
        }
        const std::size_t got = bytes_.copy(reinterpret_cast<char*>(buffer), size, at_);
        at_ += got;
        return got;
    }

private:
    Input& input_;
    bool hex_ = false;
    std::string bytes_;
    std::size_t at_ = 0;
};

void PrintRecord(const Options& options, const RecordRead& read, std::uint64_t index, std::uint64_t offset,
                 Unicode::Charset charset, bool first) {
    if (options.json) {
        nlohmann::ordered_json record{{"record",
                                       {{"index", index},
                                        {"offset", offset},
                                        {"byteOrder", ByteOrderName(read.bigEndian)},
                                        {"tag", Serializer::RecordTag}}}};
        record.update(ClipToJson(read.clip, charset));
        PrintLine(record);
        return;
    }
    Rows rows{{"record", std::to_string(index) + " at offset " + std::to_string(offset)},
              {"byte order", ByteOrderName(read.bigEndian) + (read.fromTag ? " (from the tag)" : " (as told)")},
              {"tag", TagText(Serializer::RecordTag)}};
    const Rows clip = ClipToRows(read.clip, charset);
    rows.insert(rows.end(), clip.begin(), clip.end());
    if (!first) {
        std::cout << '\n';
    }
    PrintRows(rows);
}

// Reads the records in sequence from the offset (a seek, or on a pipe a bounded skip), each read and
// printed before the next: a capture of any length takes one record's memory.
void Decode(const Options& options, const DecodeValues& values) {
    const Unicode::Charset charset = values.TextCharset();
    const std::optional<bool> forced = values.ForcedBigEndian();
    Input input(values.path);
    RecordSource source(input, values.hex);
    std::uint64_t first = 0;
    std::uint64_t count = values.count.value_or(UINT64_MAX);
    if (values.index) {
        first = *values.index;
        count = 1;
        if (first > (static_cast<std::uint64_t>(INT64_MAX) - values.offset) / RecordSize) {
            throw Failure("record " + std::to_string(first) + " lies beyond offset " + std::to_string(INT64_MAX),
                          "--index");
        }
    }
    const std::uint64_t start = values.offset + first * RecordSize;
    const std::uint64_t skipped = source.Skip(start);
    for (std::uint64_t i = 0; i < count; ++i) {
        const std::uint64_t index = first + i;
        const std::uint64_t offset = start + i * RecordSize;
        const std::string context =
            input.Name() + ": record " + std::to_string(index) + " at offset " + std::to_string(offset);
        unsigned char record[Serializer::RecordSize];
        const std::size_t got = source.Read(record, sizeof record);
        if (got == 0 && i > 0) {
            return;
        }
        if (got == 0) {
            throw Failure("no record: the input ends at byte " + std::to_string(std::min(skipped, start)), context);
        }
        if (got < sizeof record) {
            throw Failure("a partial record, " + std::to_string(got) + " of " + std::to_string(RecordSize) +
                              " bytes",
                          context);
        }
        const RecordRead read = InContext(context, [&] { return ReadRecord(record, forced); });
        PrintRecord(options, read, index, offset, charset, i == 0);
    }
}

struct EncodeValues : RecordOptions {
    std::string input = "-";
};

// Writes each record as soon as it is made, binary or (with --hex) collected and written as lines.
class RecordWriter {
public:
    RecordWriter(const EncodeValues& values) : forced_(values.ForcedBigEndian()), hex_(values.hex) {}

    void Write(const ClipDocument& document) {
        unsigned char record[Serializer::RecordSize] = {};
        const unsigned int written = Serializer::SaveToBuffer(
            document.clip, record, sizeof record, forced_.value_or(document.bigEndian.value_or(false)));
        if (hex_) {
            hex_bytes_.append(reinterpret_cast<const char*>(record), written);
        } else {
            std::cout.write(reinterpret_cast<const char*>(record), written);
        }
    }

    void Finish() {
        std::cout << FormatHexLines(reinterpret_cast<const unsigned char*>(hex_bytes_.data()), hex_bytes_.size());
    }

private:
    std::optional<bool> forced_;
    bool hex_;
    std::string hex_bytes_;
};

bool IsBlank(const std::string& line) {
    return line.find_first_not_of(" \t\r") == std::string::npos;
}

// One JSON Lines document: its errors name its line, as a single document's name theirs ("line 3,
// column 7: ...", or "line 3: " before a field's error).
ClipDocument ParseLine(const std::string& line, std::size_t number, Unicode::Charset charset) {
    try {
        return ParseClipJson(line, charset);
    } catch (const Failure& failure) {
        std::string message = failure.what();
        const std::string where = "line " + std::to_string(number);
        if (message.compare(0, 8, "line 1, ") == 0) {
            throw Failure(where + message.substr(6));
        }
        throw Failure(message, where);
    }
}

// The next line that is not blank, appended with its line end to `read`; false at the end of the input.
bool NextDocumentLine(Input& input, std::string& line, std::string& read, std::size_t& lineNumber) {
    while (input.ReadLine(line, MaxClipJsonSize, "clip encode")) {
        ++lineNumber;
        read += line + '\n';
        if (!IsBlank(line)) {
            return true;
        }
    }
    return false;
}

// One document (a clip as clip new prints it), or JSON Lines (one clip a line, as decode --json prints
// them): two lines in a row that are each a whole JSON value start JSON Lines, and each line's errors
// name its line.
void Encode(const Options& options, const EncodeValues& values) {
    if (!values.hex && options.outputIsTerminal) {
        throw Failure("binary records are not written to a terminal: give -o FILE, or -o - to write them anyway");
    }
    const Unicode::Charset charset = values.TextCharset();
    Input input(values.input);
    RecordWriter writer(values);
    std::string line;
    std::string read;
    std::size_t lineNumber = 0;
    std::size_t firstLine = 0;
    bool lines = NextDocumentLine(input, line, read, lineNumber) && nlohmann::ordered_json::accept(line);
    const std::string first = line;
    firstLine = lineNumber;
    lines = lines && NextDocumentLine(input, line, read, lineNumber);
    if (!lines) {
        input.PutBack(read);
        const std::string text = input.ReadAll(MaxClipJsonSize, "clip encode");
        writer.Write(InContext(input.Name(), [&] { return ParseClipJson(text, charset); }));
        writer.Finish();
        return;
    }
    const auto write = [&](const std::string& document, std::size_t number) {
        writer.Write(InContext(input.Name(), [&] { return ParseLine(document, number, charset); }));
    };
    write(first, firstLine);
    do {
        write(line, lineNumber);
        read.clear();
    } while (NextDocumentLine(input, line, read, lineNumber));
    writer.Finish();
}

}  // namespace

void AddClipCommands(CLI::App& root, Options& options) {
    auto* clip = root.add_subcommand("clip", "Make, read, write and compare 290-byte clip records");
    clip->require_subcommand(1);

    auto* make = clip->add_subcommand("new", "Print a default clip as JSON, the form encode reads");
    Example(*make, "plurex clip new > clip.json");
    OnRun(*make, options, [] { std::cout << JsonText(ClipToJson(Clip())) << '\n'; });

    auto* decode = clip->add_subcommand(
        "decode", "Print every field of each clip record of a file or capture, in sequence");
    auto decodeValues = std::make_shared<DecodeValues>();
    decode->add_option("FILE", decodeValues->path, "The records; standard input when left out or -");
    decode->add_option("--offset", decodeValues->offset, "Where the first record starts, in bytes")
        ->check(Count("an offset"))
        ->capture_default_str();
    auto* count = decode->add_option("--count", decodeValues->count, "Decode at most N records")
                      ->check(Count("a count"));
    decode->add_option("--index", decodeValues->index, "Decode record N only (counted from 0 at --offset)")
        ->check(Count("an index"))
        ->excludes(count);
    AddRecordOptions(*decode, *decodeValues, true);
    Example(*decode, "plurex clip decode capture.bin --count 2\n"
                     "xxd -p record.bin | plurex --json clip decode --hex");
    OnRun(*decode, options, [&options, decodeValues] { Decode(options, *decodeValues); });

    auto* encode = clip->add_subcommand("encode", "Write the records of clips given as JSON or JSON Lines");
    auto encodeValues = std::make_shared<EncodeValues>();
    encode->add_option("JSON_FILE", encodeValues->input,
                       "The clips, in the form clip new and decode --json print; standard input when left out "
                       "or -. A document takes at most " +
                           std::to_string(MaxClipJsonSize >> 20) + " MiB, nested at most " +
                           std::to_string(MaxClipJsonDepth) + " levels");
    AddRecordOptions(*encode, *encodeValues, false);
    Example(*encode, "plurex clip encode clip.json -o record.bin\n"
                     "plurex --json clip decode capture.bin | plurex clip encode --big-endian -o capture-be.bin");
    OnRun(*encode, options, [&options, encodeValues] { Encode(options, *encodeValues); });

    AddClipDiff(*clip, options);
}

}  // namespace PlurexTool

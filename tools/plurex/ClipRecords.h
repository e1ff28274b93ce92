#pragma once

// What clip decode and clip diff share: how records are read (byte order, tag, hex dumps) and the
// options that say so.

#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/unicode/Charset.h"

#include <CLI/CLI.hpp>

#include <cstddef>
#include <optional>
#include <string>

namespace PlurexTool {

// Hex dumps are read whole; beyond this an endless input would take all memory.
constexpr std::size_t MaxHexDumpSize = 64 * 1024 * 1024;

// The options of the verbs that read records.
struct RecordOptions {
    bool hex = false;
    std::string byteOrder = "auto";  // auto, little-endian or big-endian
    bool bigEndian = false;          // --big-endian
    bool littleEndian = false;       // --little-endian
    std::string charset = "iso-8859-1";

    // The byte order the options force, if any.
    std::optional<bool> ForcedBigEndian() const;
    // The charset of 8-bit texts (checked when the options were parsed).
    Korv::Plurex::Unicode::Charset TextCharset() const;
};

// --hex, --byte-order, --big-endian, --little-endian and --charset; `reading` words the help for
// verbs that read records, else for those that write them.
void AddRecordOptions(CLI::App& verb, RecordOptions& values, bool reading);

// A record as read: the clip, the byte order it was read in, and whether its tag chose that order.
struct RecordRead {
    Korv::Plurex::Data::Clips::Clip clip;
    bool bigEndian = false;
    bool fromTag = false;
};

// The 290 bytes at `record` as a clip: in the byte order its tag says, or the one `forced` gives.
// Throws a Failure for a tag that is not the clip record's in that order ("tag 0x1234, not a clip
// record"), and the library's exception for a record the clip refuses.
RecordRead ReadRecord(const unsigned char* record, std::optional<bool> forced);

struct Options;
// clip diff, beside the verbs of ClipCommands.cpp.
void AddClipDiff(CLI::App& clip, Options& options);

}  // namespace PlurexTool

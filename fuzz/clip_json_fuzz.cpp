// The plurex tool's clip JSON (tools/plurex/ClipJson.cpp), from both sides:
// - the input as a 290-byte record (cut, or padded with zeros), big-endian when the input's length is
//   odd: a record the clip takes prints as JSON that reads back to the same clip, which saves to the
//   same bytes;
// - the input as JSON text: it reads to a clip whose JSON reads back to it, or fails with the tool's
//   Failure: one line, what is wrong without the JSON library's prefix;
// - the input as a hex dump (tools/plurex/HexDump.cpp): it reads to bytes that print as xxd -p lines
//   and read back the same, or fails with a one-line Failure.
// Any other exception, a crash or a hang is a finding.
#include "ClipJson.h"
#include "HexDump.h"
#include "Output.h"

#include "PlurexData/data/clips/Serializer.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

using Korv::Plurex::Data::Clips::Clip;
using Korv::Plurex::Data::Clips::Serializer;

namespace {

using Record = std::array<unsigned char, 290>;

void Check(bool condition, const char* what, const std::string& detail = std::string()) {
    if (!condition) {
        std::fprintf(stderr, "%s\n%s\n", what, detail.c_str());
        std::abort();
    }
}

Record Saved(const Clip& clip, bool big) {
    Record record{};
    Check(Serializer::SaveToBuffer(clip, record.data(), static_cast<unsigned int>(record.size()), big) ==
              record.size(),
          "SaveToBuffer wrote less than a record");
    return record;
}

// JSON the tool printed reads back to the clip it was printed from.
void CheckReadsBack(const Clip& clip, bool big) {
    const std::string text = PlurexTool::JsonText(PlurexTool::ClipToJson(clip));
    Clip back;
    try {
        back = PlurexTool::ParseClipJson(text).clip;
    } catch (const std::exception& e) {
        Check(false, e.what(), text);
    }
    Check(Saved(back, big) == Saved(clip, big), "the printed JSON saves to other bytes", text);
    Check(back == clip, "the printed JSON reads to another clip", text);
}

void FuzzRecord(const std::uint8_t* data, std::size_t size, bool big) {
    Record record{};
    std::memcpy(record.data(), data, size < record.size() ? size : record.size());
    Clip clip;
    try {
        clip = PlurexTool::DecodeRecord(record.data(), big);
    } catch (const std::invalid_argument&) {
        return;  // a timecode rate the standard refuses: decode reports it
    }
    PlurexTool::ClipToRows(clip);
    CheckReadsBack(clip, big);
}

void FuzzText(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    Clip clip;
    try {
        clip = PlurexTool::ParseClipJson(text).clip;
    } catch (const PlurexTool::Failure& e) {
        const std::string message = e.what();
        Check(message.find('\n') == std::string::npos, "a message of more than one line", message);
        Check(message.rfind("[json.exception.", 0) != 0 && message.rfind("parse error at ", 0) != 0,
              "the JSON library's prefix", message);
        return;
    }
    CheckReadsBack(clip, false);
}

void FuzzHex(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    std::string bytes;
    try {
        bytes = PlurexTool::ParseHexDump(text);
    } catch (const PlurexTool::Failure& e) {
        Check(std::string(e.what()).find('\n') == std::string::npos, "a message of more than one line", e.what());
        return;
    }
    Check(bytes.size() <= size / 2, "more bytes than digit pairs", text);
    const std::string lines =
        PlurexTool::FormatHexLines(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    Check(PlurexTool::ParseHexDump(lines) == bytes, "xxd -p lines read back to other bytes", lines);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // One byte order per input, by its length, which a mutation changes as easily as a byte: the
    // round trip is most of the work. The big-endian seed has a byte after its record.
    FuzzRecord(data, size, size % 2 == 1);
    FuzzText(data, size);
    FuzzHex(data, size);
    return 0;
}

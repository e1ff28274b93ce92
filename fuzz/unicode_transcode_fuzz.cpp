// Transcode between any two charsets (the first two bytes pick them): the result is what the
// decoder and encoder give one virtual call at a time, and well-formed UTF-8 comes back unchanged
// through UTF-16 and UTF-32. After ASCII padding that ends a little before the end of a block or of
// one of the chunks the conversion works through (the rest of the same two bytes pick which), the
// input converts to the same bytes: where the chunks fall changes nothing. TranscodeStrict gives
// the same where it succeeds; where it stops, it has written the lenient conversion of the bytes
// before the failing character, and the rest stops again at its own start for the same reason.
#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/Transcode.h"
#include "unicode/ReferenceTranscode.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <optional>
#include <string>

using namespace Korv::Plurex::Unicode;

namespace {

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    const auto& charsets = GetCharsets();
    const Charset from = charsets[data[0] % charsets.size()];
    const Charset to = charsets[data[1] % charsets.size()];
    const std::string input(reinterpret_cast<const char*>(data + 2), size - 2);

    const std::string output = Transcode(input, from, to);
    Check(output == PlurexTest::ReferenceTranscode(input, from, to));

    // The conversion stages at most 16 KiB of output at a time: these are the input sizes of its
    // chunks (16 KiB over the most bytes a pair writes per input unit, times the unit's width,
    // rounded down to 64 bytes), and 64, a block. Half the inputs are tried after padding.
    const std::size_t boundaries[] = {64, 4096, 5440, 8192, 10880, 16384, 32768, 65536};
    const std::size_t choice = data[0] / charsets.size() % (2 * std::size(boundaries));
    if (choice < std::size(boundaries)) {
        const std::size_t padding = boundaries[choice] - data[1] / charsets.size() * 4 % 64;
        // Whole units of `from` (padding is a multiple of 4), whatever its width.
        const std::string pad = Transcode(std::string(padding, 'a'), Charset::Ascii, from).substr(0, padding);
        Check(Transcode(pad + input, from, to) == Transcode(pad, from, to) + output);
    }

    std::string reused = "left over";
    Transcode(input, from, to, reused);
    Check(reused == output);

    std::string strict = "left over";
    const std::optional<TranscodeProblem> problem = TryTranscodeStrict(input, from, to, strict);
    const bool converted = !problem;
    if (converted) {
        Check(strict == output);
    } else {
        const std::size_t offset = problem->offset;
        Check(offset < input.size());
        Check(strict == Transcode(input.substr(0, offset), from, to));
        Check((problem->reason == TranscodeProblem::Reason::Unmappable) == (problem->codePoint != 0));
        std::string rest;
        const std::optional<TranscodeProblem> again =
            TryTranscodeStrict(input.substr(offset), from, to, rest);
        Check(again && again->offset == 0 && again->reason == problem->reason &&
              again->codePoint == problem->codePoint);
    }

    // UTF-8 that comes back unchanged from UTF-8 is well-formed (no byte dropped, no overlong form,
    // nothing refused): exactly what strict conversion accepts. It then survives a round trip
    // through the other Unicode forms.
    const bool wellFormed = from == Charset::Utf8 && Transcode(input, Charset::Utf8, Charset::Utf8) == input;
    if (from == Charset::Utf8 && to == Charset::Utf8) {
        Check(converted == wellFormed);
    }
    if (wellFormed) {
        for (const Charset via : {Charset::Utf16LE, Charset::Utf16BE, Charset::Utf32LE, Charset::Utf32BE}) {
            Check(Transcode(Transcode(input, Charset::Utf8, via), via, Charset::Utf8) == input);
        }
    }
    return 0;
}

// Whole-buffer conversion of 1 MB of text against glibc iconv converting the same bytes.
// Goals: ratio <= 0.67 (1.5x iconv's throughput) on mostly-ASCII text, <= 1 on accented text.
#include "BenchRatio.h"

#include "PlurexData/unicode/Transcode.h"

#include <iconv.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Korv::Plurex::Unicode::Charset;
using Korv::Plurex::Unicode::Transcode;

// Every accented letter below exists in code page 437 and in ISO 8859-2, so that each pair converts
// the same text without loss.
const std::string MostlyAscii =
    "Clip 0042 was recorded on server 10, camera B, from 12:34:56:07 to 12:35:10:00; the operator "
    "marked three cue points and sent it to the Zürich replay channel. ";
const std::string Accented =
    "Größe, Übergänge, Ökonomie, süße Äpfel; café, été, éléphant; canción, México, Díaz, fútbol, "
    "açúcar; Überlänge für Künstler. ";

class Iconv {
public:
    Iconv(const char* from, const char* to) : descriptor_(iconv_open(to, from)) {
        if (reinterpret_cast<std::intptr_t>(descriptor_) == -1) {
            throw std::runtime_error(std::string("iconv_open failed: ") + from + " to " + to);
        }
    }
    Iconv(const Iconv&) = delete;
    Iconv& operator=(const Iconv&) = delete;
    ~Iconv() { iconv_close(descriptor_); }

    // Converts the whole input into `output` (sized by the caller) and returns the bytes written.
    std::size_t Convert(const std::string& input, std::vector<char>& output) {
        char* in = const_cast<char*>(input.data());
        std::size_t inLeft = input.size();
        char* out = output.data();
        std::size_t outLeft = output.size();
        iconv(descriptor_, nullptr, nullptr, nullptr, nullptr);
        if (iconv(descriptor_, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1)) {
            throw std::runtime_error("iconv failed");
        }
        return output.size() - outLeft;
    }

private:
    iconv_t descriptor_;
};

// `text` repeated to 1 MB (whole repetitions), in the charset `name`.
std::string Megabyte(const std::string& text, const char* name) {
    std::string utf8;
    while (utf8.size() + text.size() <= (1u << 20)) {
        utf8 += text;
    }
    Iconv toCharset("UTF-8", name);
    std::vector<char> output(utf8.size() * 4);
    return std::string(output.data(), toCharset.Convert(utf8, output));
}

void Convert(benchmark::State& state, const std::string* text, Charset from, const char* fromName, Charset to,
             const char* toName) {
    const std::string input = Megabyte(*text, fromName);
    Iconv baseline(fromName, toName);
    std::vector<char> baselineOutput(input.size() * 4);
    std::string output;
    Transcode(input, from, to, output);
    if (output.size() != baseline.Convert(input, baselineOutput) ||
        output.compare(0, output.size(), baselineOutput.data(), output.size()) != 0) {
        state.SkipWithError("the conversion differs from iconv's");
        return;
    }
    PlurexBench::CompareWithBaseline(
        state,
        [&] {
            Transcode(input, from, to, output);
            benchmark::DoNotOptimize(output.data());
        },
        [&] { benchmark::DoNotOptimize(baseline.Convert(input, baselineOutput)); }, 1);
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * input.size()));
}

void Register(const char* text, const std::string* content) {
    struct Pair {
        const char* label;
        Charset from;
        const char* fromName;
        Charset to;
        const char* toName;
    };
    const Pair pairs[] = {
        {"Utf8To28592", Charset::Utf8, "UTF-8", Charset::CodePage28592, "ISO-8859-2"},
        {"Utf8To437", Charset::Utf8, "UTF-8", Charset::CodePage437, "IBM437"},
        {"437ToUtf8", Charset::CodePage437, "IBM437", Charset::Utf8, "UTF-8"},
        {"Utf8ToUtf16LE", Charset::Utf8, "UTF-8", Charset::Utf16LE, "UTF-16LE"},
    };
    for (const Pair& pair : pairs) {
        benchmark::RegisterBenchmark((std::string("Transcode/") + pair.label + "/" + text).c_str(), Convert,
                                     content, pair.from, pair.fromName, pair.to, pair.toName)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    }
}

}  // namespace

int main(int argc, char** argv) {
    Register("MostlyAscii", &MostlyAscii);
    Register("Accented", &Accented);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

// plurex text convert | charsets
#include "Commands.h"
#include "Files.h"
#include "HexDump.h"
#include "Output.h"

#include "PlurexData/unicode/ByteOrderMark.h"
#include "PlurexData/unicode/Charset.h"
#include "PlurexData/unicode/Transcode.h"
#include "PlurexData/unicode/TranscodeProblem.h"

#include <cstddef>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace PlurexTool {

namespace {

namespace Unicode = Korv::Plurex::Unicode;
using Unicode::Charset;

// Transcoding takes the whole text at once; beyond this an endless input (/dev/zero) would take all
// memory.
constexpr std::size_t MaxTextSize = 64 * 1024 * 1024;

// The names whose byte order a byte order mark decides; the library's ToMarkedCharset knows them.
const char* const MarkedNames[] = {"utf-16", "utf-32"};

// What --from names: a charset, or a family whose input's byte order mark decides.
struct Source {
    Charset charset;
    bool marked;
};

// What --to names: the charset written, and the byte order mark written ahead of it.
struct Target {
    Charset charset;
    std::string_view mark;
};

Source ToSource(const std::string& name) {
    return InContext("--from", [&] {
        const std::optional<Charset> family = Unicode::ToMarkedCharset(name);
        return family ? Source{*family, true} : Source{Unicode::ToCharset(name), false};
    });
}

// "utf-16" and "utf-32" are written little-endian with a mark, as iconv writes them here.
Target ToTarget(const std::string& name) {
    return InContext("--to", [&] {
        const std::optional<Charset> family = Unicode::ToMarkedCharset(name);
        if (!family) {
            return Target{Unicode::ToCharset(name), {}};
        }
        const Charset little = *family == Charset::Utf16BE ? Charset::Utf16LE : Charset::Utf32LE;
        return Target{little, Unicode::GetByteOrderMark(little)};
    });
}

void WriteOutput(const Options& options, Charset from, Charset to, const std::string& output) {
    if (!options.json) {
        std::cout.write(output.data(), static_cast<std::streamsize>(output.size()));
        return;
    }
    nlohmann::ordered_json json{{"from", Unicode::ToString(from)},
                                {"to", Unicode::ToString(to)},
                                {"bytes", output.size()},
                                {"hex", ToHex(reinterpret_cast<const unsigned char*>(output.data()), output.size())}};
    if (to == Charset::Utf8) {
        json["text"] = output;
    }
    std::cout << JsonText(json) << '\n';
}

struct ConvertValues {
    std::string from, to, file;
    bool strict = false;
};

void Convert(const Options& options, const ConvertValues& values) {
    // Both names are checked before any input is read.
    const Source source = ToSource(values.from);
    const Target target = ToTarget(values.to);
    Input input(values.file.empty() ? "-" : values.file);
    const std::string bytes = input.ReadAll(MaxTextSize, "text convert");
    Charset from = source.charset;
    std::size_t skipped = 0;
    if (source.marked) {
        const Unicode::ByteOrderMark mark = Unicode::ReadByteOrderMark(bytes, source.charset);
        from = mark.charset;
        skipped = mark.size;
    }
    const std::string_view text = std::string_view(bytes).substr(skipped);
    std::string output;
    std::optional<Unicode::TranscodeProblem> problem;
    if (values.strict) {
        problem = Unicode::TryTranscodeStrict(text, from, target.charset, output);
    } else {
        Unicode::Transcode(text, from, target.charset, output);
    }
    // iconv writes the mark with the first character: an empty output, or a stop before any
    // character, writes nothing.
    if (!output.empty()) {
        output.insert(0, target.mark);
    }
    WriteOutput(options, from, target.charset, output);
    if (problem) {
        // The library counts from the text after the mark; the offset said is the input's.
        std::string message = problem->message;
        if (skipped != 0) {
            message = "byte " + std::to_string(problem->offset + skipped) + message.substr(message.find(':'));
        }
        throw Failure(message, input.Name());
    }
}

void AddConvert(CLI::App& text, Options& options) {
    auto values = std::make_shared<ConvertValues>();
    auto* convert = text.add_subcommand(
        "convert",
        "Convert text between charsets, standard input to standard output unless FILE is given; at "
        "most " +
            std::to_string(MaxTextSize >> 20) + " MiB");
    convert
        ->add_option("-f,--from", values->from,
                     "The charset of the input (see: plurex text charsets); utf-16 and utf-32 read a byte "
                     "order mark, big-endian without one")
        ->required();
    convert
        ->add_option("-t,--to", values->to,
                     "The charset to write; utf-16 and utf-32 are written little-endian after a byte order "
                     "mark")
        ->required();
    convert->add_flag("--strict", values->strict,
                      "Stop at the first byte that does not decode or character the target lacks, after "
                      "writing what came before it (else such bytes are dropped and such characters "
                      "replaced)");
    convert->add_option("FILE", values->file, "The file to read; standard input when left out or -");
    Example(*convert,
            "plurex text convert -f cp437 -t utf-8 names.txt\n"
            "plurex text convert --strict -f utf-16 -t iso-8859-1 - < title.txt > title-latin1.txt");
    OnRun(*convert, options, [&options, values] { Convert(options, *values); });
}

void AddCharsets(CLI::App& text, Options& options) {
    auto* charsets =
        text.add_subcommand("charsets", "List the charsets and the other names they go by (JSON Lines)");
    Example(*charsets, "plurex text charsets");
    OnRun(*charsets, options, [&options] {
        Rows rows;
        const auto add = [&](const std::string& name, const std::vector<std::string>& aliases, bool marked) {
            std::string joined;
            for (const std::string& alias : aliases) {
                joined += (joined.empty() ? "" : ", ") + alias;
            }
            if (options.json) {
                PrintLine({{"name", name}, {"aliases", aliases}, {"byteOrderMark", marked}});
            }
            rows.emplace_back(name, (joined.empty() ? "-" : joined) +
                                        (marked ? " (byte order mark: read on input, none meaning "
                                                  "big-endian; written on output, little-endian)"
                                                : ""));
        };
        for (const Charset charset : Unicode::GetCharsets()) {
            add(Unicode::ToString(charset), Unicode::GetAliases(charset), false);
        }
        for (const char* name : MarkedNames) {
            add(name, {}, true);
        }
        if (!options.json) {
            PrintRows(rows);
        }
    });
}

}  // namespace

void AddTextCommands(CLI::App& root, Options& options) {
    auto* text = root.add_subcommand("text", "Convert text between the charsets of the devices");
    text->require_subcommand(1);
    AddConvert(*text, options);
    AddCharsets(*text, options);
}

}  // namespace PlurexTool

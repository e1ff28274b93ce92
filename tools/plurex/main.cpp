// plurex: the library's data model on the command line, for the engineers who debug what crosses the
// wire. Errors are one line on standard error, "plurex: CONTEXT: MESSAGE", with status 1; usage errors
// add the verb's usage line and give status 2. Under --json both are a JSON object instead.
#include "Commands.h"
#include "Files.h"
#include "Output.h"

#include "PlurexData/Version.h"

#include <unistd.h>
#include <cstring>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

using PlurexTool::Failure;
using PlurexTool::JsonText;
using PlurexTool::Report;

// A command line the parser cannot take: the message and the verb whose usage line goes with it.
struct UsageError {
    std::string message;
    const CLI::App* verb;
};

// Whether --json is among the options, looked for before the parser has run: a usage error is reported
// in the form the caller asked for, also when the parser stops before it reaches the flag.
bool WantsJson(int argc, char** argv) {
    for (int i = 1; i < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        if (std::strcmp(argv[i], "--json") == 0) {
            return true;
        }
    }
    return false;
}

std::string UsageLine(const CLI::App& verb) {
    // Every verb has the root's formatter, a CLI::Formatter (see main).
    return std::static_pointer_cast<CLI::Formatter>(verb.get_formatter())->make_usage(&verb, PlurexTool::FullName(verb));
}

std::vector<std::string> VerbNames(const CLI::App& group) {
    std::vector<std::string> names;
    for (const CLI::App* verb : group.get_subcommands({})) {
        names.push_back(verb->get_name());
    }
    return names;
}

// Follows the verbs named on the command line from the root, as the parser will, so that an unknown or
// missing verb is named as such ("unknown verb "bogus"") rather than as a missing subcommand. Only
// the root's -o takes a value before the last verb.
void CheckVerbs(const CLI::App& root, int argc, char** argv) {
    const CLI::App* at = &root;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--help" || word == "-h" || word == "--version") {
            return;
        }
        if (word == "-o" || word == "--output") {
            ++i;
            continue;
        }
        if (word.empty() || word[0] == '-') {
            continue;
        }
        if (at->get_subcommands({}).empty()) {
            return;  // a verb's own arguments
        }
        const CLI::App* next = nullptr;
        for (const CLI::App* verb : at->get_subcommands({})) {
            if (verb->get_name() == word) {
                next = verb;
            }
        }
        if (next == nullptr) {
            const std::string group = at == &root ? "" : at->get_name() + " ";
            throw UsageError{"unknown " + group + "verb \"" + word + "\"", at};
        }
        at = next;
    }
    if (!at->get_subcommands({}).empty()) {
        std::string names;
        for (const std::string& name : VerbNames(*at)) {
            names += (names.empty() ? "" : ", ") + name;
        }
        throw UsageError{"a verb is required: " + names, at};
    }
}

// Every level lists its verbs under "Verbs:" in its help.
void ListAsVerbs(CLI::App& group) {
    for (CLI::App* verb : group.get_subcommands({})) {
        verb->group("Verbs");
        ListAsVerbs(*verb);
    }
}

// The verb the parser was in when it stopped: the last one named.
const CLI::App& LastVerb(const CLI::App& root) {
    const CLI::App* at = &root;
    while (!at->get_subcommands().empty()) {
        at = at->get_subcommands().front();
    }
    return *at;
}

void ReportUsage(bool json, const UsageError& error) {
    std::string usage = UsageLine(*error.verb);
    usage.erase(usage.find_last_not_of('\n') + 1);
    if (json) {
        std::cerr << JsonText({{"error", error.message}, {"context", nullptr}, {"usage", usage.substr(7)}}, true)
                  << '\n';
    } else {
        std::cerr << "plurex: " << error.message << '\n' << usage << '\n';
    }
}

// Runs the chosen verb with its output in place; returns the exit status. Standard output gets
// `standard` back before anything is reported (standard error is tied to it).
int Run(bool json, PlurexTool::Options& options, std::streambuf* standard) {
    std::optional<PlurexTool::OutputTarget> file;
    int status = 0;
    try {
        if (!options.output.empty() && options.output != "-") {
            file.emplace(options.output);
            std::cout.rdbuf(file->Buffer());
        }
        options.outputIsTerminal = options.output.empty() && ::isatty(STDOUT_FILENO) == 1;
        status = options.action();
        if (file) {
            std::cout.flush();
            file->Commit();
        }
    } catch (const Failure& failure) {
        std::cout.rdbuf(standard);
        // A failure's own status (a usage error's 2) stands; a plain one takes the verb's.
        const int own = failure.Status() == 1 ? options.errorStatus : failure.Status();
        status = Report(json, Failure(failure.what(), failure.Context(), own));
    } catch (const std::exception& error) {  // the library's own message
        std::cout.rdbuf(standard);
        status = Report(json, Failure(error.what(), std::string(), options.errorStatus));
    }
    std::cout.rdbuf(standard);
    return status;
}

}  // namespace

int main(int argc, char** argv) {
    PlurexTool::KeepStandardDescriptors();
    const bool json = WantsJson(argc, argv);
    // Standard output is written through a buffer that keeps the reason of a failed write.
    PlurexTool::OutputTarget standardOutput("");
    std::streambuf* const original = std::cout.rdbuf(standardOutput.Buffer());

    CLI::App app{"Make, read and check the identifiers, records and texts that PlurexData devices exchange.",
                 "plurex"};
    auto formatter = std::make_shared<CLI::Formatter>();
    formatter->label("SUBCOMMAND", "VERB");
    app.formatter(formatter);
    app.footer("Run \"plurex help VERB\" or \"plurex VERB --help\" for a verb's options and an example.");
    PlurexTool::Options options;
    app.add_flag("--json", options.json,
                 "Print results as JSON (JSON Lines where there are many), and errors as JSON on standard error");
    app.add_option("-o,--output", options.output,
                   "Write the output to FILE instead of standard output; FILE appears only when the run succeeds")
        ->type_name("FILE");
    // The library's version is the loaded shared object's, which may differ from the headers' the
    // tool was built with.
    app.set_version_flag("--version", [] {
        return std::string("plurex ") + PLUREXDATA_VERSION_STRING + "\nlibKorv.PlurexData " +
               Korv::Plurex::Version();
    });
    app.require_subcommand(1);
    app.fallthrough();

    PlurexTool::AddIdentifierCommands(app, options);
    PlurexTool::AddChannelCommands(app, options);
    PlurexTool::AddClipCommands(app, options);
    PlurexTool::AddTimecodeCommands(app, options);
    PlurexTool::AddEnumCommands(app, options);
    PlurexTool::AddTextCommands(app, options);
    PlurexTool::AddHelpCommand(app, options);
    ListAsVerbs(app);

    int status = 0;
    try {
        CheckVerbs(app, argc, argv);
        app.parse(argc, argv);
        status = options.action ? Run(json, options, standardOutput.Buffer()) : 0;
    } catch (const UsageError& error) {
        ReportUsage(json, error);
        status = 2;
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) {  // --help, --version
            app.exit(error);
        } else {
            ReportUsage(json, UsageError{error.what(), &LastVerb(app)});
            status = 2;
        }
    }
    // Output lost on the way (a full disk, /dev/full) fails the run, also for --help and --version.
    std::cout.rdbuf(standardOutput.Buffer());
    try {
        standardOutput.Commit();
    } catch (const Failure& failure) {
        status = Report(json, Failure(failure.what(), failure.Context(), options.errorStatus));
    }
    std::cout.rdbuf(original);
    return status;
}

// plurex: the library's data model on the command line, for the engineers who debug what crosses
// the wire. Errors print the library's own message with status 1; usage errors give status 2.
#include "Commands.h"
#include "Output.h"

#include "PlurexData/Version.h"

#include <exception>
#include <iostream>
#include <string>

int main(int argc, char** argv) {
    CLI::App app{"Make, read and check the identifiers, records and texts that PlurexData devices exchange.",
                 "plurex"};
    PlurexTool::Options options;
    app.add_flag("--json", options.json, "Print structured output as JSON");
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

    int status = 0;
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        status = app.exit(error) == 0 ? 0 : 2;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    // Output lost on the way (a full disk, /dev/full) fails the run, also for --help and --version.
    if (!std::cout.flush()) {
        std::cerr << "cannot write standard output\n";
        return 1;
    }
    return status;
}

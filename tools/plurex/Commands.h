#pragma once

#include <CLI/CLI.hpp>

namespace PlurexTool {

struct Options;

// Each area of the library adds its verbs to the root command. A verb runs as the callback of its
// subcommand; it throws the library's exception or a Failure, which main() reports with status 1.
void AddIdentifierCommands(CLI::App& root, const Options& options);

}  // namespace PlurexTool

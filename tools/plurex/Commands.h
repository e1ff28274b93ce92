#pragma once

#include "PlurexData/data/Guid.h"

#include <CLI/CLI.hpp>

#include <string>

namespace PlurexTool {

struct Options;

// Each area of the library adds its verbs to the root command. A verb runs as the callback of its
// subcommand; it throws the library's exception or a Failure, which main() reports with status 1.
void AddIdentifierCommands(CLI::App& root, const Options& options);
void AddChannelCommands(CLI::App& root, const Options& options);
void AddClipCommands(CLI::App& root, const Options& options);
void AddTimecodeCommands(CLI::App& root, const Options& options);
void AddEnumCommands(CLI::App& root, const Options& options);
void AddTextCommands(CLI::App& root, const Options& options);

// The GUID a text names. The library reads malformed text as the empty GUID; the tool tells the two
// apart by the text and fails with "not a GUID: TEXT".
Korv::Plurex::Data::Guid ParseGuid(const std::string& text);

}  // namespace PlurexTool

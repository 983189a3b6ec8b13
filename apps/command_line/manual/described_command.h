// A program's command line as plain data, from which manual pages and completions are made.
#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "apps/command_line/notes.h"
#include "apps/command_line/offered.h"

namespace lumenkit::cli {

/// An option or a positional argument.
struct DescribedOption {
    std::vector<std::string> names;  ///< "-j", "--jobs"; none for a positional argument
    std::string placeholder;         ///< "N"; empty for an option without a value
    std::string optionalValue = {};  ///< "=all": the option may have this value; usually empty
    std::string description;
    Offered offered;
    bool required = false;
    bool repeats = false;
};

/// A program or one of its commands.
struct DescribedCommand {
    std::string name;  ///< "lumenkit" or "check"
    std::string description;
    std::vector<DescribedOption> positionals;
    std::vector<DescribedOption> options;
    Notes notes;
    bool needsCommand = false;
    std::vector<DescribedCommand> commands;  ///< without hidden ones
};

/// Describes a program or a command with what its help shows.
DescribedCommand Described(const CLI::App& app);

/// Returns the names, and the last one with the optional value.
std::vector<std::string> WordsOf(const DescribedOption& option);

/// Returns whether the option takes a value.
inline bool TakesValue(const DescribedOption& option) {
    return !option.placeholder.empty();
}

}  // namespace lumenkit::cli

#include <utility>

#include "apps/command_line/manual/completion.h"

namespace lumenkit::cli {

DescribedCommand WithHelp(DescribedCommand program) {
    DescribedOption command{.names = {},
                            .placeholder = "COMMAND",
                            .optionalValue = {},
                            .description = {},
                            .offered = {}};
    for (const DescribedCommand& known : program.commands) {
        command.offered.words.push_back({known.name, known.description});
    }
    program.commands.push_back({.name = "help",
                                .description = "Print the help of a command",
                                .positionals = {std::move(command)},
                                .options = {},
                                .notes = {},
                                .needsCommand = false,
                                .commands = {}});
    return program;
}

}  // namespace lumenkit::cli

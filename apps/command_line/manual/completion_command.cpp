#include <iostream>
#include <stdexcept>
#include <string>

#include "apps/command_line/choice.h"
#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/manual/commands.h"
#include "apps/command_line/manual/completion.h"

namespace lumenkit::cli {

namespace {

using Script = std::string (*)(const DescribedCommand& program);

}  // namespace

void AddCompletionCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand(
        "completion", "Print a script that completes commands, options and files in a shell");
    const auto script = std::make_shared<Script>(nullptr);
    AddChoice<Script>(*command, "SHELL", "SHELL", "The shell: bash, zsh or fish",
                      {{"bash", BashCompletion}, {"zsh", ZshCompletion}, {"fish", FishCompletion}},
                      [script](Script chosen) { *script = chosen; })
        ->required();
    const std::string name = program.get_name();
    SetNotes(*command,
             {.sections = {{.text = "An installed program needs no such script: the shells find "
                                    "the one that is installed with it. File names are completed "
                                    "by their extensions in bash if its package bash-completion "
                                    "is installed."}},
              .exitStatuses = {{exitDone, "success"},
                               {exitUnusable, "wrong arguments, or the script cannot be written"}},
              .examples = {"source <(" + name + " completion bash)",
                           "source <(" + name + " completion zsh)",
                           name + " completion fish | source"}});
    command->callback([&program, script, &status] {
        std::cout << (*script)(WithHelp(Described(program)));
        if (!std::cout.flush()) {
            throw std::runtime_error("cannot write the script");
        }
        status = exitDone;
    });
}

}  // namespace lumenkit::cli

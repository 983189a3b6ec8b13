// The command line. Each command has a separate file.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include <CLI/CLI.hpp>

#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/manual/commands.h"
#include "apps/command_line/offered.h"
#include "apps/command_line/program.h"
#include "apps/lumenform/commands.h"

namespace lumenkit::lumenform {

namespace {

// A file is opened in the designer.
std::string CommandForFile(const std::string& argument) {
    std::error_code unknown;
    const bool isFile = std::filesystem::exists(argument, unknown) ||
                        std::filesystem::path(argument).has_extension();
    return isFile ? "design" : "";
}

int Run(int argc, char** argv) {
    CLI::App program("Designs, runs and draws form files with the controls of lumenkit.",
                     "lumenform");
    cli::SetUpProgram(program, LUMENKIT_VERSION);
    program.require_subcommand(0, 1);
    cli::SetNotes(
        program,
        {.sections = {{.text =
                           "Without a command, lumenform opens the start screen of the designer."}},
         .exitStatuses = {{cli::exitDone, "success"},
                          {cli::exitReported, "a control reported an error"},
                          {cli::exitUnusable,
                           "wrong arguments, or files that cannot be read or written"}},
         .examples = {"lumenform new order.frm", "lumenform order.frm",
                      "lumenform design order.frm", "lumenform run order.frm",
                      "lumenform render order.frm -o order.png --scale 2",
                      "lumenform render --help"},
         .insteadOfCommand = cli::FormFiles()});
    int status = cli::exitDone;
    AddDesignCommand(program, status);
    AddNewCommand(program, status);
    AddRenderCommand(program, status);
    AddRunCommand(program, status);
    cli::AddCompletionCommand(program, status);
    cli::AddWriteManualCommand(program, status);
    return cli::RunProgram(program, argc, argv, status, CommandForFile);
}

}  // namespace

}  // namespace lumenkit::lumenform

int main(int argc, char** argv) {
    try {
        return lumenkit::lumenform::Run(argc, argv);
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "lumenform: %s\n", error.what()));
        return lumenkit::cli::exitUnusable;
    }
}

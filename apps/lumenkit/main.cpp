// The command line. Each command has a separate file.
#include <cstdio>
#include <exception>

#include <CLI/CLI.hpp>

#include "apps/command_line/exit_status.h"
#include "apps/command_line/help_formatter.h"
#include "apps/command_line/manual/commands.h"
#include "apps/command_line/program.h"
#include "apps/lumenkit/color_option.h"
#include "apps/lumenkit/commands.h"
#include "apps/lumenkit/error_line.h"

namespace lumenkit::cli {

namespace {

int Run(int argc, char** argv) {
    CLI::App program(
        "Compiles captions, checks captions and form files, and drives controls "
        "without a display.",
        "lumenkit");
    SetUpProgram(program, LUMENKIT_VERSION);
    program.require_subcommand(1);
    SetNotes(
        program,
        {.sections = {ColorVariables()},
         .exitStatuses = {{exitDone, "success"},
                          {exitReported, "check found mistakes, or a control reported an error"},
                          {exitUnusable,
                           "wrong arguments, or files that cannot be read or written"}},
         .examples = {"lumenkit compile samples/captions/headline.txt",
                      "lumenkit check samples/forms",
                      R"(echo '{"do":"new","class":"VMemo","id":"m"}' | lumenkit drive)",
                      "lumenkit compile --help"}});
    int status = exitDone;
    Coloring color = Coloring::Auto;
    AddCheckCommand(program, color, status);
    AddCompileCommand(program, status);
    AddDriveCommand(program, status);
    AddCompletionCommand(program, status);
    AddColorOption(program, color);
    AddWriteManualCommand(program, status);
    try {
        return RunProgram(program, argc, argv, status);
    } catch (const std::exception& error) {
        WriteErrorLine(error.what(), color);
        return exitUnusable;
    }
}

}  // namespace

}  // namespace lumenkit::cli

int main(int argc, char** argv) {
    try {
        return lumenkit::cli::Run(argc, argv);
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "lumenkit: %s\n", error.what()));
        return lumenkit::cli::exitUnusable;
    }
}

// The command line: one file per command, joined here.
#include <exception>
#include <iostream>

#include <CLI/CLI.hpp>

#include "apps/lumenkit/compile_command.h"
#include "apps/lumenkit/drive_command.h"
#include "apps/lumenkit/exit_status.h"

int main(int argc, char** argv) {
    using namespace lumenkit::cli;
    CLI::App program("Works with lumenkit's captions and controls without a screen.", "lumenkit");
    program.set_version_flag("--version", LUMENKIT_VERSION);
    program.require_subcommand(1);
    program.footer(
        "Examples:\n"
        "  lumenkit compile samples/captions/headline.txt\n"
        "  echo '{\"do\":\"new\",\"class\":\"VMemo\",\"id\":\"m\"}' | lumenkit drive\n"
        "  lumenkit compile --help");
    int status = exitDone;
    AddCompileCommand(program, status);
    AddDriveCommand(program, status);
    try {
        program.parse(argc, argv);
        return status;
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? exitDone : exitUnusable;
    } catch (const std::exception& error) {
        std::cerr << "lumenkit: " << error.what() << '\n';
        return exitUnusable;
    }
}

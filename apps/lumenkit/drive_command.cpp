#include "apps/lumenkit/drive_command.h"

#include <iostream>
#include <string>

#include "apps/lumenkit/drive/session.h"
#include "apps/lumenkit/exit_status.h"
#include "project/lumenkit_classes.h"

namespace lumenkit::cli {

namespace {

int Drive() {
    DriveSession session(lumenkitClasses);
    for (std::string line; !session.HasQuit() && std::getline(std::cin, line);) {
        if (line.find_first_not_of(" \t\r") != std::string::npos) {
            std::cout << session.Serve(line) << '\n' << std::flush;
        }
    }
    return exitDone;
}

}  // namespace

void AddDriveCommand(CLI::App& program, int& status) {
    CLI::App* const command = program.add_subcommand(
        "drive", "Drive controls without a screen: one JSON request a line in, one answer out");
    command->footer(
        "docs/drive.md lists the requests. Exit status 0 when the input ends or asks to quit.\n"
        "\n"
        "Example:\n"
        "  printf '%s\\n' '{\"do\":\"new\",\"class\":\"VLabel\",\"id\":\"a\"}' \\\n"
        "    '{\"do\":\"draw\",\"id\":\"a\"}' | lumenkit drive");
    command->callback([&status] { status = Drive(); });
}

}  // namespace lumenkit::cli

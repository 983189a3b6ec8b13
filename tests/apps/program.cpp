#include "tests/apps/program.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/file_bytes.h"

namespace lumenkit::testing {

namespace {

std::string PathOf(const char* name) {
    return ::testing::TempDir() + "lumenkit_app_test_" + std::to_string(getpid()) + "_" + name;
}

void Write(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace

Outcome RunProgram(const std::string& arguments, const std::string& input) {
    const std::string in = PathOf("in");
    const std::string out = PathOf("out");
    const std::string errors = PathOf("errors");
    Write(in, input);
    const std::string command =
        LUMENKIT_PROGRAM " " + arguments + " <" + in + " >" + out + " 2>" + errors;
    const int result = std::system(command.c_str());
    Outcome outcome{WIFEXITED(result) ? WEXITSTATUS(result) : -1, FileBytes(out),
                    FileBytes(errors)};
    for (const std::string& path : {in, out, errors}) {
        std::remove(path.c_str());
    }
    return outcome;
}

Outcome RunOnTerminal(const std::string& arguments, const std::string& variables) {
    const std::string command = "unset NO_COLOR CLICOLOR_FORCE; export TERM=xterm; " + variables +
                                " exec " LUMENKIT_PROGRAM " " + arguments;
    int terminal = -1;
    const pid_t program = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (program == 0) {
        execl("/bin/sh", "/bin/sh", "-c", command.c_str(), nullptr);
        _exit(127);
    }
    Outcome outcome;
    std::array<char, 4096> block{};
    // read() fails when the program has closed the other end.
    for (ssize_t count = 1; count > 0;) {
        count = read(terminal, block.data(), block.size());
        outcome.output.append(block.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    close(terminal);
    int status = 0;
    waitpid(program, &status, 0);
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

std::string FileWith(const std::string& bytes) {
    std::string path = PathOf("caption.txt");
    Write(path, bytes);
    return path;
}

}  // namespace lumenkit::testing

#include "tests/apps/drive/conversation.h"

#include <array>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumenkit::testing {

namespace {

constexpr int patience = 30000;  // milliseconds

void Require(bool done) {
    if (!done) {
        throw std::system_error(errno, std::generic_category());
    }
}

[[noreturn]] void BecomeProgram(int input, int output) {
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    execl(LUMENKIT_PROGRAM, LUMENKIT_PROGRAM, "drive", nullptr);
    _exit(127);
}

}  // namespace

Conversation::Conversation() {
    std::array<int, 2> in{};
    std::array<int, 2> out{};
    Require(pipe2(in.data(), O_CLOEXEC) == 0 && pipe2(out.data(), O_CLOEXEC) == 0);
    program_ = fork();
    Require(program_ >= 0);
    if (program_ == 0) {
        BecomeProgram(in[0], out[1]);
    }
    close(in[0]);
    close(out[1]);
    toProgram_ = in[1];
    fromProgram_ = out[0];
}

// NOLINTNEXTLINE(bugprone-exception-escape): a program that does not end fails the test anyway
Conversation::~Conversation() {
    if (toProgram_ >= 0) {
        End();
    }
    close(fromProgram_);
}

void Conversation::Say(const std::string& bytes) {
    std::size_t said = 0;
    while (said < bytes.size()) {
        const ssize_t count = write(toProgram_, bytes.data() + said, bytes.size() - said);
        Require(count > 0);
        said += static_cast<std::size_t>(count);
    }
}

std::optional<std::string> Conversation::Hear() {
    for (;;) {
        if (const std::size_t end = heard_.find('\n'); end != std::string::npos) {
            const std::string line = heard_.substr(0, end);
            heard_.erase(0, end + 1);
            return line;
        }
        pollfd answer = {.fd = fromProgram_, .events = POLLIN, .revents = 0};
        std::array<char, 4096> block{};
        const ssize_t count =
            poll(&answer, 1, patience) > 0 ? read(fromProgram_, block.data(), block.size()) : 0;
        if (count <= 0) {
            return std::nullopt;
        }
        heard_.append(block.data(), static_cast<std::size_t>(count));
    }
}

int Conversation::End() {
    close(toProgram_);
    toProgram_ = -1;
    int status = 0;
    Require(waitpid(program_, &status, 0) == program_);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace lumenkit::testing

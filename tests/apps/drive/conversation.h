// Runs the built program and talks to it through two pipes, as a client does.
#pragma once

#include <optional>
#include <string>

#include <sys/types.h>

namespace lumenkit::testing {

class Conversation {
 public:
    /// Starts "lumenkit drive".
    Conversation();
    ~Conversation();  // NOLINT(bugprone-exception-escape)
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    void Say(const std::string& bytes);
    /// Returns the next line; nothing if none comes within 30 seconds or the program has ended.
    std::optional<std::string> Hear();
    /// Closes the input, waits for the program to end and returns its exit status.
    int End();

 private:
    pid_t program_ = 0;
    int toProgram_ = -1;
    int fromProgram_ = -1;
    std::string heard_;
};

}  // namespace lumenkit::testing

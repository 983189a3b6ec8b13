// The built program at the other end of two pipes, as a client would talk to it.
#pragma once

#include <optional>
#include <string>

#include <sys/types.h>

namespace lumenkit::testing {

class Conversation {
 public:
    /// Starts "lumenkit drive".
    Conversation();
    ~Conversation();
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    void Say(const std::string& bytes);
    /// The next line; nothing where none comes within seconds or the program has ended.
    std::optional<std::string> Hear();
    /// Ends the input and waits for the program; its exit status.
    int End();

 private:
    pid_t program_ = 0;
    int toProgram_ = -1;
    int fromProgram_ = -1;
    std::string heard_;
};

}  // namespace lumenkit::testing

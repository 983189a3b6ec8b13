// Calls of the system and the reasons for which they fail.
#pragma once

#include <cerrno>
#include <string>
#include <system_error>

namespace lumenkit::forms {

/// Remembers the error of the last call that it ran. Allocates memory only in Reason.
class SystemCall {
 public:
    /// Runs the call and returns its result.
    template <typename Call>
    auto Run(const Call& call) {
        errno = 0;
        const auto result = call();
        error_ = errno;
        return result;
    }

    /// Returns ": " and the reason in the words of the system, or an empty text if it gave none.
    std::string Reason() const {
        return error_ == 0 ? std::string() : ": " + std::generic_category().message(error_);
    }

 private:
    int error_ = 0;
};

}  // namespace lumenkit::forms

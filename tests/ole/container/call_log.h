#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace lumenkit::container {

/// Records the calls that a control makes to its container.
class CallLog {
 public:
    using Lines = std::vector<std::string>;

    void Add(std::string line) {
        lines_.push_back(line);
        if (heard) {
            heard(line);
        }
    }
    /// Called for each call, after it is recorded.
    std::function<void(const std::string& line)> heard;

    Lines Take() { return std::exchange(lines_, {}); }

 private:
    Lines lines_;
};

}  // namespace lumenkit::container

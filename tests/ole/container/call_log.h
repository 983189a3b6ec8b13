#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace lumenkit::container {

/// What a control said to its container, call by call.
class CallLog {
 public:
    using Lines = std::vector<std::string>;

    void Add(std::string line) {
        lines_.push_back(line);
        if (heard) {
            heard(line);
        }
    }
    /// Runs with each call, after it was written down.
    std::function<void(const std::string& line)> heard;

    Lines Take() { return std::exchange(lines_, {}); }

 private:
    Lines lines_;
};

}  // namespace lumenkit::container

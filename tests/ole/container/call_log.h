#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lumenkit::container {

/// What a control said to its container, call by call.
class CallLog {
 public:
    using Lines = std::vector<std::string>;

    void Add(std::string line) { lines_.push_back(std::move(line)); }
    Lines Take() { return std::exchange(lines_, {}); }

 private:
    Lines lines_;
};

}  // namespace lumenkit::container

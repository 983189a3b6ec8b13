#pragma once

namespace lumenkit {

/// Adds one to a counter and takes it off on destruction, also when an exception leaves the scope.
class ScopedCount {
 public:
    explicit ScopedCount(int& count) : count_(count) { ++count_; }
    ~ScopedCount() { --count_; }
    ScopedCount(const ScopedCount&) = delete;
    ScopedCount& operator=(const ScopedCount&) = delete;

 private:
    int& count_;
};

}  // namespace lumenkit

#pragma once

namespace lumenkit {

/// Sets a flag to true and clears it on destruction, also when an exception leaves the scope.
class RaisedFlag {
 public:
    explicit RaisedFlag(bool& flag) : flag_(flag) { flag = true; }
    ~RaisedFlag() { flag_ = false; }
    RaisedFlag(const RaisedFlag&) = delete;
    RaisedFlag& operator=(const RaisedFlag&) = delete;

 private:
    bool& flag_;
};

}  // namespace lumenkit

#pragma once

namespace lumenkit {

/// A flag that is True as long as this object lives; an error on the way ends that too.
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

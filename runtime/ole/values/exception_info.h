// The description of an error in a call through IDispatch.
#pragma once

#include "frame/runtime_error.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// Fills in the known data of a runtime error. The receiver frees the texts.
void Describe(const RuntimeError& error, EXCEPINFO& exception);

/// An EXCEPINFO that owns its texts.
class ExceptionInfo {
 public:
    ExceptionInfo() = default;
    ~ExceptionInfo();
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;

    EXCEPINFO* Get() { return &information_; }
    /// Raises the error that is described.
    [[noreturn]] void Raise();

 private:
    EXCEPINFO information_ = {};
};

}  // namespace lumenkit::ole

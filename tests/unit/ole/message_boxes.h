#pragma once

#include <string>
#include <vector>

#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// Prevents message boxes from opening on this thread, and counts them.
class MessageBoxes {
 public:
    MessageBoxes();
    ~MessageBoxes();
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;

    /// Returns the number of boxes prevented since the last call.
    static int Take();

 private:
    HHOOK hook_;
};

}  // namespace lumenkit::ole

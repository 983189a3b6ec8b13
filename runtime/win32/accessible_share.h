#pragma once

namespace lumenkit::win32 {

/// Counts an object that screen readers hold, as long as it lives.
class AccessibleShare {
 public:
    AccessibleShare();
    ~AccessibleShare();
    AccessibleShare(const AccessibleShare&) = delete;
    AccessibleShare& operator=(const AccessibleShare&) = delete;
};

/// Returns the number of these objects. The module must stay loaded while there are any.
int LiveAccessibleObjects();

}  // namespace lumenkit::win32

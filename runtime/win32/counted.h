#pragma once

#include <atomic>

#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// A COM object that is destroyed with its last reference. The creator holds the first one; see
/// Adopted. Derived classes answer QueryInterface.
template <typename... Interfaces>
class Counted : public Interfaces... {
 public:
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    virtual ~Counted() = default;

    ULONG STDMETHODCALLTYPE AddRef() final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() final {
        const ULONG left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

 protected:
    Counted() = default;

 private:
    std::atomic<ULONG> references_ = 1;
};

}  // namespace lumenkit::win32

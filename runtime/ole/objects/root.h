#pragma once

#include <atomic>

#include "runtime/ole/objects/component.h"
#include "runtime/ole/values/ole_header.h"
#include "runtime/win32/life.h"

namespace lumenkit::ole {

/// The non-delegating IUnknown of an object, and the object's life. A derived class defines its
/// interfaces in Find.
///
/// A client may release the object while one of the object's calls is running, for example in an
/// event. The object is then destroyed, and no longer counted by its component, when the last of
/// these calls has returned.
class Root : public IUnknown, public win32::Life {
 public:
    Root(Component& component, IUnknown* outer)
        : share_(component), controlling_(outer == nullptr ? *this : *outer) {}
    Root(const Root&) = delete;
    Root& operator=(const Root&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** object) final {
        if (object == nullptr) {
            return E_POINTER;
        }
        IUnknown* const found = interfaceId == IID_IUnknown ? this : Find(interfaceId);
        *object = found;
        if (found == nullptr) {
            return E_NOINTERFACE;
        }
        found->AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() final {
        const ULONG left = --references_;
        if (left == 0) {
            // Calls during the destruction must not destroy the object again.
            references_ = ending;
            if (Holds() == 0) {
                End();
            } else {
                EndLater();
                Released();
            }
        } else if (outlasts_ && left == ending) {
            outlasts_ = false;
            delete this;
        }
        return left;
    }

 protected:
    virtual ~Root() = default;

    /// Returns the interface without adding a reference, or null if there is none. Must not throw.
    virtual IUnknown* Find(REFIID interfaceId) noexcept = 0;
    /// Called when no client holds the object but one of its calls is still running. Releases all
    /// other objects.
    virtual void Released() noexcept = 0;
    IUnknown& Controlling() const { return controlling_; }

 private:
    void End() final {
        if (references_ == ending) {
            delete this;
        } else {
            outlasts_ = true;
        }
    }

    static constexpr ULONG ending = 0x40000000;

    Component::Share share_;
    IUnknown& controlling_;
    std::atomic<ULONG> references_ = 1;
    // A reference was taken while the object was being destroyed.
    bool outlasts_ = false;
};

}  // namespace lumenkit::ole

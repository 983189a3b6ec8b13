#pragma once

#include <atomic>

#include "runtime/ole/component.h"
#include "runtime/ole/ole_header.h"
#include "runtime/win32/life.h"

namespace lumenkit::ole {

/// The one IUnknown of an object that does not delegate; also the object's life. A class derives
/// from it and says which interfaces it has.
///
/// A client may release it while it is at work, as in an event. For the client it is gone then; it
/// ends, and ceases to count for its component, when the last of its own calls has returned.
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
            // What still happens while the object ends must not end it again.
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

    /// The interface, not counted yet; null when there is none. Must not throw.
    virtual IUnknown* Find(REFIID interfaceId) noexcept = 0;
    /// No client has it any more, but it is at work still: lets go of everybody else.
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
    // Somebody, told of the object after the last reference was given back, took another one.
    bool outlasts_ = false;
};

}  // namespace lumenkit::ole

#pragma once

#include <atomic>

#include "runtime/ole/component.h"

namespace lumenkit::ole {

/// Creates the objects of one class.
class ClassFactory final : public IClassFactory {
 public:
    ClassFactory(Component& component, const ClassDescriptor& type)
        : component_(component), share_(component), type_(type) {}
    virtual ~ClassFactory() = default;
    ClassFactory(const ClassFactory&) = delete;
    ClassFactory& operator=(const ClassFactory&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID interfaceId, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID interfaceId,
                                             void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 private:
    Component& component_;
    Component::Share share_;
    const ClassDescriptor& type_;
    std::atomic<ULONG> references_ = 1;
};

}  // namespace lumenkit::ole

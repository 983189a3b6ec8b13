#pragma once

#include "runtime/ole/objects/component.h"
#include "runtime/ole/values/counted.h"

namespace lumenkit::ole {

/// Creates the objects of one class.
class ClassFactory final : public Counted<IClassFactory, IID_IClassFactory> {
 public:
    ClassFactory(Component& component, const ClassDescriptor& type)
        : component_(component), share_(component), type_(type) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID interfaceId,
                                             void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 private:
    Component& component_;
    Component::Share share_;
    const ClassDescriptor& type_;
};

}  // namespace lumenkit::ole

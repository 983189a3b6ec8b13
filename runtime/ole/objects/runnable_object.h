#pragma once

#include "frame/class_table.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// A control is running as soon as it exists.
class RunnableObject final : public Facet<IRunnableObject> {
 public:
    RunnableObject(IUnknown& controlling, const ClassDescriptor& type)
        : Facet(controlling), type_(type) {}

    HRESULT STDMETHODCALLTYPE GetRunningClass(CLSID* classId) override;
    HRESULT STDMETHODCALLTYPE Run(IBindCtx* /*context*/) override { return S_OK; }
    BOOL STDMETHODCALLTYPE IsRunning() override { return TRUE; }
    HRESULT STDMETHODCALLTYPE LockRunning(BOOL /*lock*/, BOOL /*lastUnlockCloses*/) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetContainedObject(BOOL /*contained*/) override { return S_OK; }

 private:
    const ClassDescriptor& type_;
};

}  // namespace lumenkit::ole

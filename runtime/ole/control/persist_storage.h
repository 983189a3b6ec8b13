#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// Stores the settings in the stream "Contents" of the container's storage.
class PersistStorage final : public HeldFacet<IPersistStorage> {
 public:
    explicit PersistStorage(ControlCore& core)
        : HeldFacet(core.Controlling(), core.GetLife()), core_(core) {}

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* classId) override;
    HRESULT STDMETHODCALLTYPE IsDirty() override { return core_.IsDirty() ? S_OK : S_FALSE; }
    HRESULT STDMETHODCALLTYPE InitNew(IStorage* storage) override;
    HRESULT STDMETHODCALLTYPE Load(IStorage* storage) override;
    HRESULT STDMETHODCALLTYPE Save(IStorage* storage, BOOL sameAsLoad) override;
    HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* storage) override;
    HRESULT STDMETHODCALLTYPE HandsOffStorage() override;

 private:
    ControlCore& core_;
    bool isSaved_ = false;  // whether the last save succeeded and is not completed
};

}  // namespace lumenkit::ole

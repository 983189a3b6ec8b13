#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

class PersistBag final : public HeldFacet<IPersistPropertyBag> {
 public:
    explicit PersistBag(ControlCore& core)
        : HeldFacet(core.Controlling(), core.GetLife()), core_(core) {}

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* classId) override;
    HRESULT STDMETHODCALLTYPE InitNew() override;
    HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) override;
    HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clearDirty, BOOL saveAll) override;

 private:
    ControlCore& core_;
};

}  // namespace lumenkit::ole

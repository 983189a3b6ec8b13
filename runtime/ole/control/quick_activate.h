#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// Sets up a control for its container in one call.
class QuickActivation final : public HeldFacet<IQuickActivate> {
 public:
    explicit QuickActivation(ControlCore& core)
        : HeldFacet(core.Controlling(), core.GetLife()), core_(core) {}

    HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) override;
    HRESULT STDMETHODCALLTYPE SetContentExtent(LPSIZEL size) override;
    HRESULT STDMETHODCALLTYPE GetContentExtent(LPSIZEL size) override;

 private:
    ControlCore& core_;
};

}  // namespace lumenkit::ole

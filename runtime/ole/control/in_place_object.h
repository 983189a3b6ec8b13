#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

class InPlaceObject final : public HeldFacet<IOleInPlaceObject> {
 public:
    explicit InPlaceObject(ControlCore& core)
        : HeldFacet(core.Controlling(), core.GetLife()), core_(core) {}

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL /*enter*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
    HRESULT STDMETHODCALLTYPE UIDeactivate() override;
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT place, LPCRECT clip) override;
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override { return INPLACE_E_NOTUNDOABLE; }

 private:
    ControlCore& core_;
};

}  // namespace lumenkit::ole

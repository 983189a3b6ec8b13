#pragma once

#include "runtime/ole/control_core.h"
#include "runtime/ole/held_facet.h"

namespace lumenkit::ole {

class OleControl final : public HeldFacet<IOleControl> {
 public:
    explicit OleControl(ControlCore& core)
        : HeldFacet(core.Controlling(), core.GetLife()), core_(core) {}

    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* information) override;
    HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* message) override;
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID property) override;
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL freeze) override;

 private:
    ControlCore& core_;
};

}  // namespace lumenkit::ole

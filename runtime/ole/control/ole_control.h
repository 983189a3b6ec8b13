#pragma once

#include <memory>

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

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
    struct TableEnd {
        void operator()(HACCEL table) const { DestroyAcceleratorTable(table); }
    };

    ControlCore& core_;
    // The table of mnemonics for the container, which only reads it.
    std::unique_ptr<std::remove_pointer_t<HACCEL>, TableEnd> table_;
};

}  // namespace lumenkit::ole

#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

class ActiveObject final : public HeldFacet<IOleInPlaceActiveObject> {
 public:
    /// `core` need not be constructed yet.
    ActiveObject(IUnknown& controlling, win32::Life& life, ControlCore& core)
        : HeldFacet(controlling, life), core_(core) {}

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL /*enter*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL /*active*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL /*active*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT /*border*/, IOleInPlaceUIWindow* /*window*/,
                                           BOOL /*frame*/) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL /*enable*/) override { return S_OK; }

 private:
    ControlCore& core_;
};

}  // namespace lumenkit::ole

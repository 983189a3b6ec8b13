#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// IViewObject, IViewObject2 and IViewObjectEx.
class ViewObject final : public HeldFacet<IViewObjectEx> {
 public:
    using Continue = BOOL(STDMETHODCALLTYPE*)(ULONG_PTR);

    explicit ViewObject(ControlCore& core)
        : HeldFacet(core.Controlling(), core.GetLife()), core_(core) {}

    HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* aspectInfo,
                                   DVTARGETDEVICE* target, HDC targetDevice, HDC device,
                                   LPCRECTL place, LPCRECTL window, Continue proceed,
                                   ULONG_PTR context) override;
    HRESULT STDMETHODCALLTYPE GetColorSet(DWORD aspect, LONG index, void* aspectInfo,
                                          DVTARGETDEVICE* target, HDC targetDevice,
                                          LOGPALETTE** colors) override;
    HRESULT STDMETHODCALLTYPE Freeze(DWORD /*aspect*/, LONG /*index*/, void* /*aspectInfo*/,
                                     DWORD* /*freeze*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Unfreeze(DWORD /*freeze*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
    HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target,
                                        LPSIZEL size) override;
    HRESULT STDMETHODCALLTYPE GetRect(DWORD aspect, LPRECTL place) override;
    HRESULT STDMETHODCALLTYPE GetViewStatus(DWORD* status) override;
    HRESULT STDMETHODCALLTYPE QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point,
                                            LONG closeness, DWORD* hit) override;
    HRESULT STDMETHODCALLTYPE QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT area,
                                           LONG closeness, DWORD* hit) override;
    HRESULT STDMETHODCALLTYPE GetNaturalExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target,
                                               HDC targetDevice, DVEXTENTINFO* information,
                                               LPSIZEL size) override;

 private:
    ControlCore& core_;
};

}  // namespace lumenkit::ole

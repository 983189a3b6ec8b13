#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

class OleObject final : public HeldFacet<IOleObject> {
 public:
    explicit OleObject(ControlCore& core)
        : HeldFacet(core.Controlling(), core.GetLife()), core_(core) {}

    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override;
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) override;
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR /*container*/, LPCOLESTR /*object*/) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Close(DWORD saveOption) override;
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD /*which*/, IMoniker* /*moniker*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject* /*data*/, BOOL /*creation*/,
                                           DWORD /*reserved*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD reserved, IDataObject** data) override;
    HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, MSG* message, IOleClientSite* site, LONG index,
                                     HWND parent, LPCRECT place) override;
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) override;
    HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* classId) override;
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* name) override;
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* size) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* size) override;
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** advises) override;
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) override;
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE* /*palette*/) override { return E_NOTIMPL; }

 private:
    void Hide();
    HRESULT ShowProperties(HWND parent);

    ControlCore& core_;
};

}  // namespace lumenkit::ole

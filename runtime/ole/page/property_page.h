#pragma once

#include "runtime/ole/objects/facet.h"
#include "runtime/ole/page/page_core.h"

namespace lumenkit::ole {

/// IPropertyPage and IPropertyPage2.
class PropertyPageFace final : public HeldFacet<IPropertyPage2> {
 public:
    PropertyPageFace(IUnknown& controlling, win32::Life& life, PageCore& core)
        : HeldFacet(controlling, life), core_(core) {}

    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* site) override;
    HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT place, BOOL modal) override;
    HRESULT STDMETHODCALLTYPE Deactivate() override;
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* information) override;
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG count, IUnknown** objects) override;
    HRESULT STDMETHODCALLTYPE Show(UINT command) override;
    HRESULT STDMETHODCALLTYPE Move(LPCRECT place) override;
    HRESULT STDMETHODCALLTYPE IsPageDirty() override { return core_.Changed() ? S_OK : S_FALSE; }
    HRESULT STDMETHODCALLTYPE Apply() override;
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR /*folder*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) override;
    HRESULT STDMETHODCALLTYPE EditProperty(DISPID property) override;

 private:
    PageCore& core_;
    bool active_ = false;
};

}  // namespace lumenkit::ole

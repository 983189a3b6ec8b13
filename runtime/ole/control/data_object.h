#pragma once

#include "runtime/ole/control/control_core.h"
#include "runtime/ole/objects/facet.h"

namespace lumenkit::ole {

/// The control's picture as a metafile of either kind or as a bitmap.
class DataObject final : public HeldFacet<IDataObject> {
 public:
    /// `core` need not be constructed yet.
    DataObject(IUnknown& controlling, win32::Life& life, ControlCore& core)
        : HeldFacet(controlling, life), core_(core) {}

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override;
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC* format, STGMEDIUM* medium) override;
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override;
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC* format,
                                                    FORMATETC* canonical) override;
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC* /*format*/, STGMEDIUM* /*medium*/,
                                      BOOL /*release*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override;
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink,
                                      DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA** advises) override;

 private:
    ControlCore& core_;
};

}  // namespace lumenkit::ole

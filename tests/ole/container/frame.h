#pragma once

#include "tests/ole/container/call_log.h"
#include "tests/ole/container/counted.h"

namespace lumenkit::container {

/// The container's frame, which the UI-active control calls.
class Frame final : public Counted<IOleInPlaceFrame> {
 public:
    explicit Frame(CallLog& log) : Counted(IID_IOleInPlaceFrame), log_(log) {}

    const ole::ComPtr<IOleInPlaceActiveObject>& Active() const { return active_; }
    void Forget() { active_.Reset(); }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* /*window*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL /*enter*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetBorder(RECT* /*border*/) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS /*widths*/) override {
        return INPLACE_E_NOTOOLSPACE;
    }
    HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS /*widths*/) override {
        log_.Add("SetBorderSpace");
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object,
                                              LPCOLESTR /*name*/) override {
        active_ = object;
        log_.Add(object == nullptr ? "SetActiveObject none" : "SetActiveObject");
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU /*menu*/, OLEMENUGROUPWIDTHS* /*widths*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU /*menu*/, HOLEMENU /*shared*/,
                                      HWND /*object*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU /*menu*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR /*text*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL /*enable*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* /*message*/, WORD /*id*/) override {
        return S_FALSE;
    }

 private:
    CallLog& log_;
    ole::ComPtr<IOleInPlaceActiveObject> active_;
};

}  // namespace lumenkit::container

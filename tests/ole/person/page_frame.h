#pragma once

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>
#include <wrl/client.h>

namespace lumenkit::person {

/// A window with one property page above the buttons Apply and Close, as designers show it.
class PageFrame final : public IPropertyPageSite {
 public:
    /// Shows the page of class `type` for `control`.
    PageFrame(HWND owner, REFCLSID type, IUnknown& control);
    ~PageFrame();
    PageFrame(const PageFrame&) = delete;
    PageFrame& operator=(const PageFrame&) = delete;

    /// Null after the window was closed.
    HWND Window() const { return window_; }
    bool TranslateKey(MSG& message);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override;
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* locale) override;
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** container) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) override;

 private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void ShowDirt();
    void Close();

    HWND window_ = nullptr;
    HWND apply_ = nullptr;
    Microsoft::WRL::ComPtr<IPropertyPage> page_;
};

}  // namespace lumenkit::person

#include "samples/atl_host/atl_windows.h"

namespace atl_host {

namespace {

// The functions of atl.dll, loaded at run time: only Microsoft's compiler has a header for them.
struct AtlLibrary {
    using Init = BOOL(WINAPI*)();
    using GetControl = HRESULT(WINAPI*)(HWND, IUnknown**);
    using Attach = HRESULT(WINAPI*)(IUnknown*, HWND, IUnknown**);
    using AdviseSink = HRESULT(WINAPI*)(IUnknown*, IUnknown*, REFIID, DWORD*);

    HMODULE module = LoadLibraryW(L"atl.dll");
    Init init = Entry<Init>("AtlAxWinInit");
    GetControl getControl = Entry<GetControl>("AtlAxGetControl");
    Attach attach = Entry<Attach>("AtlAxAttachControl");
    AdviseSink advise = Entry<AdviseSink>("AtlAdvise");
    bool isReady = init != nullptr && getControl != nullptr && attach != nullptr &&
                   advise != nullptr && init() != FALSE;

    template <typename Function>
    Function Entry(const char* name) const {
        FARPROC const entry = module == nullptr ? nullptr : GetProcAddress(module, name);
        return reinterpret_cast<Function>(reinterpret_cast<void*>(entry));
    }
};

const AtlLibrary& Atl() {
    static const AtlLibrary library;
    return library;
}

/// Returns the child window of `form` that is `window` or contains it. Returns `form` for `form`.
HWND HostOf(HWND window, HWND form) {
    while (window != nullptr && window != form && GetParent(window) != form) {
        window = GetParent(window);
    }
    return window;
}

}  // namespace

HWND PlaceControl(HWND parent, const wchar_t* name, const RECT& place, IPropertyBag& settings) {
    CLSID type = {};
    ComPtr<IPersistPropertyBag> control;
    if (!Atl().isReady || FAILED(CLSIDFromProgID(name, &type)) ||
        FAILED(CoCreateInstance(type, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&control))) ||
        FAILED(control->Load(&settings, nullptr))) {
        return nullptr;
    }
    HWND const window = CreateWindowExW(
        WS_EX_CONTROLPARENT, L"AtlAxWin", nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
        place.left, place.top, place.right - place.left, place.bottom - place.top, parent, nullptr,
        nullptr, nullptr);
    // Wine attaches the control only if the caller asks for the site.
    ComPtr<IUnknown> site;
    return SUCCEEDED(Atl().attach(control.Get(), window, &site)) ? window : nullptr;
}

ComPtr<IUnknown> ControlIn(HWND window) {
    ComPtr<IUnknown> control;
    if (window != nullptr && Atl().isReady) {
        Atl().getControl(window, &control);
    }
    return control;
}

bool Advise(HWND window, IDispatch& sink, REFIID events) {
    const ComPtr<IUnknown> control = ControlIn(window);
    DWORD cookie = 0;
    return control != nullptr && SUCCEEDED(Atl().advise(control.Get(), &sink, events, &cookie));
}

bool TranslateKey(HWND form, MSG& message) {
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) {
        return false;
    }
    const auto control = ControlIn<IOleInPlaceActiveObject>(HostOf(message.hwnd, form));
    if (control != nullptr && control->TranslateAccelerator(&message) == S_OK) {
        return true;
    }
    return IsDialogMessageW(form, &message) != FALSE;
}

}  // namespace atl_host

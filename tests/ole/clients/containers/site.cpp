#include "tests/ole/clients/containers/site.h"

namespace lumenkit::clients {

Site::Site(bool userMode)
    : userMode_(userMode),
      window_(CreateWindowExW(0, L"Static", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 640, 480,
                              nullptr, nullptr, nullptr, nullptr)) {}

Site::~Site() {
    EXPECT_EQ(references_, 0) << "the control holds on to its site";
    DestroyWindow(window_);
}

HRESULT Site::QueryInterface(REFIID iid, void** object) {
    *object = nullptr;
    if (iid == IID_IUnknown || iid == IID_IOleClientSite) {
        *object = static_cast<IOleClientSite*>(this);
    } else if (iid == IID_IOleInPlaceSite || iid == IID_IOleWindow) {
        *object = static_cast<IOleInPlaceSite*>(this);
    } else if (iid == IID_IOleControlSite) {
        *object = static_cast<IOleControlSite*>(this);
    } else if (iid == IID_IDispatch) {
        *object = static_cast<IDispatch*>(this);
    } else if (iid == IID_IPropertyNotifySink) {
        *object = static_cast<IPropertyNotifySink*>(this);
    }
    if (*object != nullptr) {
        ++references_;
    }
    return *object == nullptr ? E_NOINTERFACE : S_OK;
}

HRESULT Site::OnPosRectChange(LPCRECT position) {
    place = *position;
    return Called("OnPosRectChange");
}

HRESULT Site::Invoke(DISPID property, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                     UINT*) {
    switch (property) {
        case DISPID_AMBIENT_USERMODE:
            result->vt = VT_BOOL;
            result->boolVal = userMode_ ? VARIANT_TRUE : VARIANT_FALSE;
            return S_OK;
        case DISPID_AMBIENT_BACKCOLOR:
            result->vt = VT_I4;
            result->lVal = 0x00FFFF;
            return S_OK;
        case DISPID_AMBIENT_DISPLAYNAME:
            result->vt = VT_BSTR;
            result->bstrVal = SysAllocString(L"Control1");
            return S_OK;
        default:
            return DISP_E_MEMBERNOTFOUND;
    }
}

Notices::Notices(IUnknown& control, Site& site) {
    ComPtr<IConnectionPointContainer> points;
    EXPECT_EQ(control.QueryInterface(IID_PPV_ARGS(&points)), S_OK);
    EXPECT_EQ(points->FindConnectionPoint(IID_IPropertyNotifySink, &point_), S_OK);
    EXPECT_EQ(point_->Advise(site.Client(), &cookie_), S_OK);
}

Notices::~Notices() {
    EXPECT_EQ(point_->Unadvise(cookie_), S_OK);
}

}  // namespace lumenkit::clients

#include "tests/ole/container/site.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "frame/automation/member_binding.h"
#include "runtime/ole/entries.h"
#include "runtime/ole/module/identifiers.h"
#include "runtime/win32/pixels.h"

namespace lumenkit::container {

using ole::ComPtr;

namespace {

std::string TextOf(const RECT& place) {
    return std::to_string(place.left) + "," + std::to_string(place.top) + "," +
           std::to_string(place.right) + "," + std::to_string(place.bottom);
}

int PixelsPerInch() {
    return win32::Resolution::OfScreen().x;
}

constexpr std::array moveParameters = {
    Parameter{u"Left", ValueType::Variant, false},
    Parameter{u"Top", ValueType::Variant, false},
    Parameter{u"Width", ValueType::Variant, false},
    Parameter{u"Height", ValueType::Variant, false},
};

constexpr std::array extenderMembers = {
    ReadOnlyProperty<&Site::Name>(1, u"Name", u""),
    Property<&Site::Tag, &Site::SetTag>(2, u"Tag", u""),
    ReadOnlyProperty<&Site::Left>(3, u"Left", u""),
    ReadOnlyProperty<&Site::Top>(4, u"Top", u""),
    ReadOnlyProperty<&Site::Width>(5, u"Width", u""),
    ReadOnlyProperty<&Site::Height>(6, u"Height", u""),
    ReadOnlyProperty<&Site::Visible>(7, u"Visible", u""),
    Method<&Site::Move>(8, u"Move", u"", moveParameters),
};

constexpr InterfaceTable extenderTable = {.name = u"Extender", .members = extenderMembers};

}  // namespace

ComPtr<IUnknown> Create(const ClassTable& classes, TextView name) {
    const auto found = std::ranges::find(classes.classes, name, &ClassDescriptor::name);
    ComPtr<IClassFactory> factory;
    ComPtr<IUnknown> object;
    if (found == classes.classes.end() ||
        FAILED(ole::VBDllGetClassObject(classes, ole::GuidOf(found->uniqueIdentifier),
                                        IID_PPV_ARGS(&factory))) ||
        FAILED(factory->CreateInstance(nullptr, IID_PPV_ARGS(&object)))) {
        throw std::runtime_error("the object cannot be created");
    }
    return object;
}

Form::Form()
    : window_(CreateWindowExW(0, L"STATIC", L"form", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 600,
                              400, nullptr, nullptr, nullptr, nullptr)) {
    if (window_ == nullptr) {
        throw std::runtime_error("no window");
    }
}

Form::~Form() {
    DestroyWindow(window_);
}

const InterfaceTable& Site::ExtenderMembers() {
    return extenderTable;
}

Site::Site(Form& form) : form_(&form) {
    ambients_.Set(DISPID_AMBIENT_DISPLAYNAME, Text(u"probe"));
}

Site::~Site() {
    LetGo();
}

void Site::Take(ComPtr<IUnknown> object) {
    object_ = std::move(object);
    As<IOleObject>()->SetClientSite(&clientSite_);
}

void Site::LetGo() {
    if (object_ == nullptr) {
        return;
    }
    const ComPtr<IOleObject> ole = As<IOleObject>();
    ole->Close(OLECLOSE_NOSAVE);
    ole->SetClientSite(nullptr);
    object_.Reset();
}

void Site::Drop() {
    frame_.Forget();
    object_.Reset();
}

HRESULT Site::DoVerb(LONG verb) {
    return As<IOleObject>()->DoVerb(verb, nullptr, &clientSite_, 0, form_->Window(), &place_);
}

void Site::SetPlace(const RECT& place) {
    place_ = place;
    As<IOleInPlaceObject>()->SetObjectRects(&place, &place);
}

float Site::Left() const {
    return win32::ToTwips(static_cast<int>(place_.left), PixelsPerInch());
}
float Site::Top() const {
    return win32::ToTwips(static_cast<int>(place_.top), PixelsPerInch());
}
float Site::Width() const {
    return win32::ToTwips(static_cast<int>(place_.right - place_.left), PixelsPerInch());
}
float Site::Height() const {
    return win32::ToTwips(static_cast<int>(place_.bottom - place_.top), PixelsPerInch());
}

void Site::Move(const Value& left, const Value& top, const Value& width, const Value& height) {
    const host::Placement placement = {ToSingle(left), ToSingle(top), ToSingle(width),
                                       ToSingle(height)};
    SetPlace(win32::ToPixels(placement, win32::Resolution::OfScreen()));
}

HRESULT Site::QueryInterface(REFIID iid, void** object) {
    IUnknown* found = nullptr;
    if (iid == IID_IUnknown || iid == IID_IOleClientSite) {
        found = &clientSite_;
    } else if (iid == IID_IOleInPlaceSite || iid == IID_IOleWindow) {
        found = &inPlaceSite_;
    } else if (iid == IID_IOleControlSite) {
        found = &controlSite_;
    } else if (iid == IID_IDispatch) {
        found = &ambients_;
    }
    *object = found;
    if (found == nullptr) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

HRESULT Site::ClientSiteFace::SaveObject() {
    site_.Said("SaveObject");
    return S_OK;
}
HRESULT Site::ClientSiteFace::ShowObject() {
    site_.Said("ShowObject");
    return S_OK;
}
HRESULT Site::ClientSiteFace::OnShowWindow(BOOL show) {
    site_.Said(show != FALSE ? "OnShowWindow" : "OnShowWindow off");
    return S_OK;
}
HRESULT Site::ClientSiteFace::RequestNewObjectLayout() {
    site_.Said("RequestNewObjectLayout");
    return E_NOTIMPL;
}

HRESULT Site::InPlaceSiteFace::GetWindow(HWND* window) {
    site_.Said("GetWindow");
    *window = site_.form_->Window();
    return S_OK;
}
HRESULT Site::InPlaceSiteFace::CanInPlaceActivate() {
    site_.Said("CanInPlaceActivate");
    return site_.allowsActivation ? S_OK : S_FALSE;
}
HRESULT Site::InPlaceSiteFace::OnInPlaceActivate() {
    site_.Said("OnInPlaceActivate");
    return S_OK;
}
HRESULT Site::InPlaceSiteFace::OnUIActivate() {
    site_.Said("OnUIActivate");
    return S_OK;
}
HRESULT Site::InPlaceSiteFace::GetWindowContext(IOleInPlaceFrame** frame,
                                                IOleInPlaceUIWindow** document, LPRECT place,
                                                LPRECT clip, LPOLEINPLACEFRAMEINFO information) {
    site_.Said("GetWindowContext");
    *frame = ComPtr<IOleInPlaceFrame>(&site_.frame_).Detach();
    *document = nullptr;
    *place = site_.place_;
    *clip = site_.place_;
    information->hwndFrame = site_.form_->Window();
    return S_OK;
}
HRESULT Site::InPlaceSiteFace::OnUIDeactivate(BOOL /*undoable*/) {
    site_.Said("OnUIDeactivate");
    return S_OK;
}
HRESULT Site::InPlaceSiteFace::OnInPlaceDeactivate() {
    site_.Said("OnInPlaceDeactivate");
    return S_OK;
}
HRESULT Site::InPlaceSiteFace::OnPosRectChange(LPCRECT place) {
    site_.Said("OnPosRectChange " + TextOf(*place));
    if (site_.allowsMoving) {
        site_.SetPlace(*place);
    }
    return S_OK;
}

HRESULT Site::ControlSiteFace::OnControlInfoChanged() {
    site_.Said("OnControlInfoChanged");
    return S_OK;
}
HRESULT Site::ControlSiteFace::GetExtendedControl(IDispatch** extender) {
    *extender = site_.hasExtender ? ComPtr<IDispatch>(&site_.extender_).Detach() : nullptr;
    return site_.hasExtender ? S_OK : E_NOTIMPL;
}
HRESULT Site::ControlSiteFace::TranslateAccelerator(MSG* /*message*/, DWORD /*keys*/) {
    site_.Said("TranslateAccelerator");
    return S_FALSE;
}
HRESULT Site::ControlSiteFace::OnFocus(BOOL got) {
    site_.Said(got != FALSE ? "OnFocus" : "OnFocus lost");
    return S_OK;
}
HRESULT Site::ControlSiteFace::ShowPropertyFrame() {
    site_.Said("ShowPropertyFrame");
    return E_NOTIMPL;
}

}  // namespace lumenkit::container

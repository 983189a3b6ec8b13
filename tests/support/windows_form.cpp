#include "tests/support/windows_form.h"

#include <array>

#include "frame/automation/member_binding.h"

namespace lumenkit::testing {

namespace {

constexpr std::array moveParameters = {
    Parameter{u"Left", ValueType::Single}, Parameter{u"Top", ValueType::Single},
    Parameter{u"Width", ValueType::Single}, Parameter{u"Height", ValueType::Single}};

constexpr std::array members = {
    ReadOnlyProperty<&FormExtender::Name>(1, u"Name", u""),
    ReadOnlyProperty<&FormExtender::Tag>(2, u"Tag", u""),
    ReadOnlyProperty<&FormExtender::Left>(3, u"Left", u""),
    ReadOnlyProperty<&FormExtender::Top>(4, u"Top", u""),
    ReadOnlyProperty<&FormExtender::Width>(5, u"Width", u""),
    ReadOnlyProperty<&FormExtender::Height>(6, u"Height", u""),
    Property<&FormExtender::Visible, &FormExtender::SetVisible>(7, u"Visible", u""),
    Method<&FormExtender::Move>(8, u"Move", u"", moveParameters),
};

constexpr InterfaceTable extenderTable = {u"Extender", members};

HWND NewForm(HINSTANCE module) {
    constexpr const wchar_t* className = L"lumenkitTestForm";
    WNDCLASSW design = {};
    design.lpfnWndProc = DefWindowProcW;
    design.hInstance = module;
    design.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    design.lpszClassName = className;
    RegisterClassW(&design);
    return CreateWindowExW(0, className, L"form", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 700,
                           500, nullptr, nullptr, module, nullptr);
}

host::Placement PlaceOf(FormControl& control) {
    return win32::ToTwips(control.Place(), control.GetForm().PixelsPerInch());
}

}  // namespace

float FormExtender::Left() const {
    return PlaceOf(control).left;
}

float FormExtender::Top() const {
    return PlaceOf(control).top;
}

float FormExtender::Width() const {
    return PlaceOf(control).width;
}

float FormExtender::Height() const {
    return PlaceOf(control).height;
}

bool FormExtender::Visible() const {
    return control.IsVisible();
}

void FormExtender::SetVisible(bool visible) {
    control.SetVisible(visible);
}

void FormExtender::Move(float left, float top, float width, float height) {
    control.MoveTo(win32::ToPixels({.left = left, .top = top, .width = width, .height = height},
                                   control.GetForm().PixelsPerInch()));
}

WindowsForm::WindowsForm(const ClassTable& classes, win32::Resolution resolution)
    : module_(GetModuleHandleW(nullptr)),
      window_(NewForm(module_)),
      resolution_(resolution),
      application_(module_),
      context_{module_, classes, fonts_, application_, interaction_, resolution} {
    SetForegroundWindow(window_);
    SetFocus(window_);
}

WindowsForm::~WindowsForm() {
    DestroyWindow(window_);
}

void WindowsForm::Pump() {
    MSG message = {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

FormControl::FormControl(WindowsForm& form, const ClassDescriptor& type, SIZE size)
    : form_(form),
      site_(form.Faults(), &form.GetLog(), type.eventTable, u"probe"),
      extender_(extenderTable, &members_),
      place_{20, 20, 20 + size.cx, 20 + size.cy},
      hosted_(std::make_unique<win32::HostedControl>(form.Context(), type, *this, size)) {}

FormControl::~FormControl() = default;

void FormControl::Start(host::PropertyBag* bag) {
    if (bag == nullptr) {
        hosted_->StartNew();
    } else {
        hosted_->StartSaved(*bag);
    }
    place_.right = place_.left + hosted_->Size().cx;
    place_.bottom = place_.top + hosted_->Size().cy;
    isVisible_ = true;
    hosted_->Attach(form_.Window(), place_);
}

void FormControl::MoveTo(const RECT& place) {
    place_ = place;
    RECT everything = {};
    GetClientRect(form_.Window(), &everything);
    hosted_->Place(place, everything);
}

void FormControl::SetVisible(bool visible) {
    isVisible_ = visible;
    hosted_->SetVisible(visible);
}

void FormControl::RequestSize(SIZE size) {
    if (agreesToSize) {
        place_.right = place_.left + size.cx;
        place_.bottom = place_.top + size.cy;
        hosted_->SetSize(size);
    }
}

void FormControl::FocusChanged(bool inside) {
    ++(inside ? focusGained : focusLost);
}

host::FontRef FormControl::AmbientFont() const {
    return form_.Fonts().NewFont(u"MS Sans Serif", 10);
}

}  // namespace lumenkit::testing

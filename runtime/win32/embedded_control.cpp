#include "runtime/win32/embedded_control.h"

#include "frame/host/accepted_values.h"
#include "runtime/win32/element.h"

namespace lumenkit::win32 {

std::unique_ptr<host::EmbeddedControl> EmbedControl(const Elements& elements,
                                                    const host::Design& design,
                                                    const ClassDescriptor& type) {
    return std::make_unique<EmbeddedControl>(elements, design, type);
}

EmbeddedControl::EmbeddedControl(const Elements& elements, const host::Design& design,
                                 const ClassDescriptor& type)
    : owner_(elements.window.Handle()),
      parent_(ParentWindow(elements, design)),
      resolution_(elements.context.resolution),
      placement_(design.placement),
      visible_(design.visible),
      ambient_([&fonts = elements.context.fonts](
                   TextView name, float points) { return fonts.NewFont(name, points); },
               elements.userMode),
      extender_(*this, design.name) {
    RequireSize(placement_.width, placement_.height);
    ControlSite& site = *this;
    control_.emplace(elements.context, type, site, SizeOf(ToPixels(placement_, resolution_)),
                     elements.window.GetLife());
    PlaceWindow();  // the control may have requested another size
    control_->StartNew();
    if (visible_) {
        Attach();
    }
}

// Puts the window behind its existing siblings.
void EmbeddedControl::Attach() {
    control_->Attach(parent_, ToPixels(placement_, resolution_));
    SetWindowPos(control_->Handle(), HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void EmbeddedControl::Move(const host::Placement& placement) {
    RequireSize(placement.width, placement.height);
    placement_ = placement;
    PlaceWindow();
}

void EmbeddedControl::PlaceWindow() {
    const RECT place = ToPixels(placement_, resolution_);
    if (control_->IsAttached()) {
        control_->Place(place, place);
    }
    control_->SetSize(SizeOf(place));
}

void EmbeddedControl::RequestSize(SIZE size) {
    placement_.width = ToTwips(static_cast<int>(size.cx), resolution_.x);
    placement_.height = ToTwips(static_cast<int>(size.cy), resolution_.y);
    if (control_) {
        PlaceWindow();
    }
}

void EmbeddedControl::SetVisible(bool visible) {
    visible_ = visible;
    if (visible && !control_->IsAttached()) {
        Attach();
    } else {
        control_->SetVisible(visible);
    }
}

void EmbeddedControl::SetEnabled(bool enabled) {
    enabled_ = enabled;
    EnableWindow(control_->Handle(), enabled ? TRUE : FALSE);
}

void EmbeddedControl::Refresh() {
    if (control_->Handle() != nullptr) {
        RedrawWindow(control_->Handle(), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }
}

void EmbeddedControl::FocusChanged(bool inside) {
    SendMessageW(owner_, constituentFocusMessage, inside ? 1 : 0, 0);
}

}  // namespace lumenkit::win32

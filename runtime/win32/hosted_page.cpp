#include "runtime/win32/hosted_page.h"

#include <algorithm>

#include "frame/runtime_error.h"
#include "runtime/win32/element.h"
#include "runtime/win32/hosted_control.h"
#include "runtime/win32/keyboard.h"
#include "runtime/win32/pixels.h"

namespace lumenkit::win32 {

namespace {

SIZE LaidOutSize(const ClassDescriptor& type, Resolution resolution) {
    return {ToPixels(type.pageWidth, resolution.x), ToPixels(type.pageHeight, resolution.y)};
}

// Calls `call` with each constituent directly on the page until it returns true.
template <typename Call>
bool AnyPart(HWND page, Call&& call) {
    for (HWND child = GetWindow(page, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        auto* const part = dynamic_cast<Element*>(Window::Of(child));
        if (part != nullptr && call(*part)) {
            return true;
        }
    }
    return false;
}

}  // namespace

HostedPage::HostedPage(const Context& context, const ClassDescriptor& type,
                       host::PropertyPageSite& site, host::SelectedControls& selectedControls,
                       Life* life)
    : HostedWindow(context.module, LaidOutSize(type, context.resolution), life),
      title_(type.pageTitle),
      size_(LaidOutSize(type, context.resolution)),
      screen_(context.resolution),
      constituents_({context, *this, true}, &EmbedControl),
      host_{.site = site,
            .selectedControls = selectedControls,
            .screen = screen_,
            .interaction = context.interaction,
            .constituents = constituents_} {
    if (type.createPage == nullptr) {
        Raise(ErrorNumber::CannotCreateObject);
    }
    page_ = type.createPage(host_);
    page_->PropertyPage_Initialize();
}

HostedPage::~HostedPage() {
    page_.reset();
    Destroy();
}

bool HostedPage::TranslateKey(const MSG& message) {
    return TranslateKeyInside(Handle(), message);
}

bool HostedPage::FocusOn(TextView name) {
    return AnyPart(Handle(), [&](const Element& part) {
        if (!SameText(part.Name(), name, Compare::IgnoreCase)) {
            return false;
        }
        SetFocus(part.Handle());
        return true;
    });
}

void HostedPage::FollowSize() const {
    const SIZE now = WindowSize();
    const SIZE growth = {std::max(now.cx - size_.cx, 0L), std::max(now.cy - size_.cy, 0L)};
    AnyPart(Handle(), [&](Element& part) {
        part.FollowPage(growth);
        return false;
    });
}

LRESULT HostedPage::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SIZE) {
        FollowSize();
    }
    if (message == WM_ERASEBKGND) {
        RECT area = {};
        GetClientRect(Handle(), &area);
        FillRect(reinterpret_cast<HDC>(wParam), &area, GetSysColorBrush(COLOR_BTNFACE));
        return 1;
    }
    return HostedWindow::HandleMessage(message, wParam, lParam);
}

}  // namespace lumenkit::win32

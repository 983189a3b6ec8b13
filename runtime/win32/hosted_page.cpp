#include "runtime/win32/hosted_page.h"

#include "frame/runtime_error.h"
#include "runtime/win32/hosted_control.h"
#include "runtime/win32/keyboard.h"
#include "runtime/win32/pixels.h"

namespace lumenkit::win32 {

namespace {

SIZE LaidOutSize(const ClassDescriptor& type) {
    const Resolution resolution = Resolution::OfScreen();
    return {ToPixels(type.pageWidth, resolution.x), ToPixels(type.pageHeight, resolution.y)};
}

}  // namespace

HostedPage::HostedPage(const Context& context, const ClassDescriptor& type,
                       host::PropertyPageSite& site, host::SelectedControls& selectedControls,
                       Life* life)
    : HostedWindow(context.module, LaidOutSize(type), life),
      title_(type.pageTitle),
      size_(LaidOutSize(type)),
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

LRESULT HostedPage::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        RECT area = {};
        GetClientRect(Handle(), &area);
        FillRect(reinterpret_cast<HDC>(wParam), &area, GetSysColorBrush(COLOR_BTNFACE));
        return 1;
    }
    return HostedWindow::HandleMessage(message, wParam, lParam);
}

}  // namespace lumenkit::win32

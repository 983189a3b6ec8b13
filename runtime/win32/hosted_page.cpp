#include "runtime/win32/hosted_page.h"

#include "frame/runtime_error.h"
#include "runtime/win32/constituents.h"
#include "runtime/win32/hosted_window.h"
#include "runtime/win32/keyboard.h"
#include "runtime/win32/pixels.h"
#include "runtime/win32/screen.h"

namespace lumenkit::win32 {

namespace {

SIZE LaidOutSize(const ClassDescriptor& type, Resolution resolution) {
    return {ToPixels(type.pageWidth, resolution.x), ToPixels(type.pageHeight, resolution.y)};
}

}  // namespace

class HostedPage::Body final : public HostedWindow {
 public:
    Body(const Context& context, const ClassDescriptor& type, host::PropertyPageSite& site,
         host::SelectedControls& selectedControls, Life* life);
    ~Body() override;
    Body(const Body&) = delete;
    Body& operator=(const Body&) = delete;

    PropertyPage& GetPage() { return *page_; }
    SIZE Size() const { return size_; }

    using HostedWindow::MoveInto;
    using HostedWindow::MoveTo;
    using HostedWindow::Park;
    using HostedWindow::Show;

 private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    SIZE size_;
    Screen screen_{Resolution::OfScreen()};
    Constituents constituents_;
    PageHost host_;
    std::unique_ptr<PropertyPage> page_;
};

HostedPage::Body::Body(const Context& context, const ClassDescriptor& type,
                       host::PropertyPageSite& site, host::SelectedControls& selectedControls,
                       Life* life)
    : HostedWindow(context.module, LaidOutSize(type, Resolution::OfScreen()), life),
      size_(LaidOutSize(type, Resolution::OfScreen())),
      constituents_(context, *this, true),
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

HostedPage::Body::~Body() {
    page_.reset();
    Destroy();
}

LRESULT HostedPage::Body::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND: {
            RECT area = {};
            GetClientRect(Handle(), &area);
            FillRect(reinterpret_cast<HDC>(wParam), &area, GetSysColorBrush(COLOR_BTNFACE));
            return 1;
        }
        case WM_SYSCOLORCHANGE:
        case WM_THEMECHANGED:
        case WM_SETTINGCHANGE:
            SettingsChanged(message, wParam, lParam);
            return 0;
        default:
            return HostedWindow::HandleMessage(message, wParam, lParam);
    }
}

HostedPage::HostedPage(const Context& context, const ClassDescriptor& type,
                       host::PropertyPageSite& site, host::SelectedControls& selectedControls,
                       Life* life)
    : body_(std::make_unique<Body>(context, type, site, selectedControls, life)) {}

HostedPage::~HostedPage() = default;

PropertyPage& HostedPage::GetPage() {
    return body_->GetPage();
}

SIZE HostedPage::Size() const {
    return body_->Size();
}

void HostedPage::Attach(HWND parent, const RECT& place) {
    body_->MoveInto(parent, place);
}

void HostedPage::Place(const RECT& place) {
    body_->MoveTo(place);
}

void HostedPage::SetVisible(bool visible) {
    body_->Show(visible && body_->IsAttached());
}

void HostedPage::Detach() {
    body_->Park();
}

HWND HostedPage::Window() const {
    return body_->Handle();
}

bool HostedPage::TranslateKey(const MSG& message) {
    return TranslateKeyInside(body_->Handle(), message);
}

}  // namespace lumenkit::win32

#pragma once

#include <memory>
#include <optional>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/win32/constituents.h"
#include "runtime/win32/hosted_window.h"
#include "runtime/win32/screen.h"

namespace lumenkit::win32 {

/// One property page with its window and constituents. Used only on the thread that created it.
/// Errors of the page's procedures reach the caller, which shows them.
class HostedPage final : public HostedWindow {
 public:
    /// Creates the page and runs PropertyPage_Initialize. `type` must be a page; raises 429 for
    /// another class. `site` and `selectedControls` must outlive the page. `life` is used as in
    /// HostedControl.
    HostedPage(const Context& context, const ClassDescriptor& type, host::PropertyPageSite& site,
               host::SelectedControls& selectedControls, Life* life = nullptr);
    ~HostedPage() override;
    HostedPage(const HostedPage&) = delete;
    HostedPage& operator=(const HostedPage&) = delete;

    PropertyPage& GetPage() { return *page_; }
    Object& Automation() { return page_->Automation(); }
    /// The size that the page is designed for, in pixels. In a larger window, the constituents
    /// whose edges move grow or move with the page.
    SIZE Size() const { return size_; }

    /// Puts the window into `parent` at `place`, hidden.
    void Attach(HWND parent, const RECT& place) { MoveInto(parent, place); }
    void Place(const RECT& place) { MoveTo(place); }
    void SetVisible(bool visible) { Show(visible); }
    /// Moves the window back to the hidden parking window.
    void Detach() { Park(); }

    /// Gives the focus to the constituent with this name. Returns false if there is none.
    bool FocusOn(TextView name);
    /// Does the same as HostedControl::TranslateKey, and handles the mnemonics of the page's
    /// constituents.
    bool TranslateKey(const MSG& message);

    std::optional<Description> Describe() override {
        return Description{.role = propertyPageRole, .name = Text(title_)};
    }

 private:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void FollowSize() const;

    TextView title_;
    SIZE size_;
    Screen screen_;
    Constituents constituents_;
    PageHost host_;
    std::unique_ptr<PropertyPage> page_;
};

}  // namespace lumenkit::win32

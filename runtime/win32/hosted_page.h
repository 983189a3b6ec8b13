#pragma once

#include <memory>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/win32/context.h"
#include "runtime/win32/life.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// One property page with its window and constituents. Used only on the thread that created it.
/// Errors of the page's procedures reach the caller, which shows them.
class HostedPage {
 public:
    /// Creates the page and runs PropertyPage_Initialize. `type` must be a page; raises 429 for
    /// another class. `site` and `selectedControls` must outlive the page. `life` is used as in
    /// HostedControl.
    HostedPage(const Context& context, const ClassDescriptor& type, host::PropertyPageSite& site,
               host::SelectedControls& selectedControls, Life* life = nullptr);
    ~HostedPage();
    HostedPage(const HostedPage&) = delete;
    HostedPage& operator=(const HostedPage&) = delete;

    PropertyPage& GetPage();
    Object& Automation() { return GetPage().Automation(); }
    /// The size that the page is designed for, in pixels.
    SIZE Size() const;

    /// Puts the window into `parent` at `place`, hidden.
    void Attach(HWND parent, const RECT& place);
    void Place(const RECT& place);
    void SetVisible(bool visible);
    /// Moves the window back to the hidden parking window.
    void Detach();
    HWND Window() const;

    /// Does the same as HostedControl::TranslateKey, and handles the mnemonics of the page's
    /// constituents.
    bool TranslateKey(const MSG& message);

 private:
    class Body;
    std::unique_ptr<Body> body_;
};

}  // namespace lumenkit::win32

#pragma once

#include <memory>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/win32/context.h"
#include "runtime/win32/life.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// One property page with its window and constituents. Belongs to the thread that made it. Errors
/// of the page's procedures come out of it, as they are the host's to show.
class HostedPage {
 public:
    /// Creates the page and runs PropertyPage_Initialize. `type` is a page's; raises 429 for
    /// another class. `site` and `selectedControls` must outlive the page. `life` as a
    /// HostedControl's.
    HostedPage(const Context& context, const ClassDescriptor& type, host::PropertyPageSite& site,
               host::SelectedControls& selectedControls, Life* life = nullptr);
    ~HostedPage();
    HostedPage(const HostedPage&) = delete;
    HostedPage& operator=(const HostedPage&) = delete;

    PropertyPage& GetPage();
    Object& Automation() { return GetPage().Automation(); }
    /// What the page is laid out for, in pixels.
    SIZE Size() const;

    /// Puts the window into `parent` at `place`, hidden.
    void Attach(HWND parent, const RECT& place);
    void Place(const RECT& place);
    void SetVisible(bool visible);
    /// Puts the window back where it is not seen.
    void Detach();
    HWND Window() const;

    /// As HostedControl::TranslateKey; mnemonics of the page's constituents too.
    bool TranslateKey(const MSG& message);

 private:
    class Body;
    std::unique_ptr<Body> body_;
};

}  // namespace lumenkit::win32

#pragma once

#include <memory>
#include <vector>

#include "frame/class_table.h"
#include "frame/control.h"
#include "runtime/memory/constituents.h"
#include "runtime/memory/form.h"
#include "runtime/memory/page_site.h"

namespace lumenkit::memory {

class HostedControl;

/// A property page as a designer shows it. Errors of the page propagate to the caller.
class HostedPage {
 public:
    /// Creates the page and runs PropertyPage_Initialize. Throws std::logic_error for a class that
    /// is not a page. The form must outlive it.
    HostedPage(Form& form, const ClassDescriptor& type);
    ~HostedPage() = default;
    HostedPage(const HostedPage&) = delete;
    HostedPage& operator=(const HostedPage&) = delete;

    /// Changes the selection of the designer and runs PropertyPage_SelectionChanged. The controls
    /// must outlive the page or the next selection.
    void Select(const std::vector<HostedControl*>& controls);
    void SelectObjects(std::vector<ObjectRef> controls);
    /// Runs PropertyPage_ApplyChanges. Does not change the Changed flag of the site.
    void Apply();

    PropertyPage& GetPage() { return *page_; }
    Object& Automation() { return page_->Automation(); }
    PageSite& Site() { return site_; }
    SelectedControls& Selected() { return selectedControls_; }
    Constituents& Parts() { return constituents_; }

 private:
    PageSite site_;
    SelectedControls selectedControls_;
    Constituents constituents_;
    PageHost host_;
    std::unique_ptr<PropertyPage> page_;
};

}  // namespace lumenkit::memory

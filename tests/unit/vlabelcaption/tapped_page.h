#pragma once

#include <memory>

#include "project/lumenkit_classes.h"
#include "runtime/memory/constituents.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/page_site.h"
#include "runtime/memory/text_box.h"
#include "tests/unit/vlabelcaption/tapped_constituents.h"

namespace lumenkit::testing {

/// A caption page whose constituents are TappedConstituents.
class TappedPage {
 public:
    TappedPage() { page_->PropertyPage_Initialize(); }

    memory::Form& Form() { return form_; }
    TappedConstituents& Taps() { return taps_; }
    PropertyPage& Page() { return *page_; }
    memory::TextBox& Caption() { return parts_.Get<memory::TextBox>(u"txtCaption"); }
    void Select(ObjectRef edited) {
        selected_.Assign({std::move(edited)});
        page_->PropertyPage_SelectionChanged();
    }

 private:
    memory::Form form_{lumenkitClasses};
    memory::PageSite site_{form_.Faults()};
    memory::SelectedControls selected_{form_.Faults()};
    memory::Constituents parts_{form_, nullptr, true, memory::EmbedControl};
    TappedConstituents taps_{parts_};
    PageHost host_{.site = site_,
                   .selectedControls = selected_,
                   .screen = form_.GetScreen(),
                   .interaction = form_.GetInteraction(),
                   .constituents = taps_};
    std::unique_ptr<PropertyPage> page_ = form_.FindClass(u"VLabelCaption").createPage(host_);
};

}  // namespace lumenkit::testing

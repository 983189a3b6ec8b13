#pragma once

#include "forms/block.h"
#include "forms/document.h"
#include "forms/form_bag.h"
#include "frame/class_table.h"
#include "frame/text.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"

namespace lumenkit::windowless {

/// A control of a form file, alone on a form without windows. It is visible whatever is saved,
/// because a program may show it later. The constructor does not start it.
class LoneControl {
 public:
    /// All arguments must outlive the control.
    LoneControl(const forms::Document& document, forms::Block& block, const ClassDescriptor& type,
                bool userMode);
    LoneControl(const LoneControl&) = delete;
    LoneControl& operator=(const LoneControl&) = delete;
    ~LoneControl() = default;

    memory::Form& Form() { return form_; }
    /// The saved properties.
    forms::FormBag& Saved() { return saved_; }
    memory::HostedControl& Hosted() { return hosted_; }

 private:
    memory::Placing PlacingIn(bool userMode);

    memory::Form form_;
    forms::FormBag saved_;
    Text tag_;
    memory::HostedControl hosted_;
};

}  // namespace lumenkit::windowless

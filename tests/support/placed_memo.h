// A memo on the memory runtime, with accessors for tests.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/text_box.h"
#include "runtime/memory/user.h"
#include "tests/support/vmemo_probe.h"
#include "vmemo/vmemo.h"

namespace lumenkit::testing {

class PlacedMemo {
 public:
    /// Makes a new control.
    explicit PlacedMemo(const memory::Placing& placing = {});
    /// Loads a control from `bag`.
    explicit PlacedMemo(host::PropertyBag& bag, const memory::Placing& placing = {});

    VMemo& Memo() { return static_cast<VMemo&>(placed_.GetControl()); }
    VMemo* operator->() { return &Memo(); }
    VMemoProbe Probe() { return VMemoProbe(Memo()); }
    memory::HostedControl& Placed() { return placed_; }
    memory::Form& Form() { return form_; }
    memory::FaultPlan& Faults() { return form_.Faults(); }

    memory::TextBox& Box(std::int16_t index) {
        return placed_.Parts().Get<memory::TextBox>(u"Text1", index);
    }
    memory::TextBox& ActiveBox();
    /// Returns the indices of the visible boxes.
    std::vector<std::int16_t> VisibleBoxes();
    /// The contents and the caret position of the active box.
    Text Shown() { return ActiveBox().Contents(); }
    std::int32_t Caret();

    // Actions of the user in the active box.
    bool PutCaret(std::int32_t position) { return Select(position, 0); }
    bool Select(std::int32_t start, std::int32_t length) {
        return user_.Select(ActiveBox(), start, length);
    }
    bool Type(TextView text) { return user_.Type(ActiveBox(), text); }
    bool Paste(TextView text) { return user_.Paste(ActiveBox(), text); }
    memory::User& User() { return user_; }

    /// Returns the log since the last call: see TakeLogLines.
    std::vector<std::string> TakeLog();

 private:
    enum class Start { Later };
    PlacedMemo(const memory::Placing& placing, Start);

    memory::Form form_;
    memory::HostedControl placed_;
    memory::User user_;
};

}  // namespace lumenkit::testing

// An option list on the memory runtime, with accessors for tests.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "runtime/memory/form.h"
#include "runtime/memory/frame_box.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/option_button.h"
#include "runtime/memory/user.h"
#include "voptlist/voptlist.h"

namespace lumenkit::host {

/// For the messages of failed tests.
inline void PrintTo(const Placement& place, std::ostream* out) {
    *out << "{" << place.left << ", " << place.top << ", " << place.width << ", " << place.height
         << "}";
}

}  // namespace lumenkit::host

namespace lumenkit::testing {

class PlacedOptionList {
 public:
    enum class Mode { Design, Run };

    /// Creates the control without starting it: see StartNew and StartSaved.
    explicit PlacedOptionList(Mode mode, const memory::Placing& placing = {});

    static std::unique_ptr<PlacedOptionList> New(Mode mode, const memory::Placing& placing = {});
    static std::unique_ptr<PlacedOptionList> Saved(Mode mode, host::PropertyBag& bag,
                                                   const memory::Placing& placing = {});

    VOptList& List() { return static_cast<VOptList&>(placed_.GetControl()); }
    VOptList* operator->() { return &List(); }
    memory::HostedControl& Placed() { return placed_; }
    memory::Form& Form() { return form_; }
    memory::FaultPlan& Faults() { return form_.Faults(); }
    void SetMode(Mode mode) { placed_.GetAmbient().SetUserMode(mode == Mode::Run); }

    memory::FrameBox& Frame() { return placed_.Parts().Get<memory::FrameBox>(u"Frame1"); }
    /// Returns all buttons, hidden ones included.
    std::vector<memory::OptionButton*> Buttons() const;
    memory::OptionButton& Button(std::size_t index) const { return *Buttons().at(index); }
    /// Returns "value;caption" for each button, followed by " *" if it is selected, and in
    /// parentheses if it is hidden.
    std::vector<std::string> Items() const;
    /// Clicks a button as the user does. Returns false if it cannot be clicked.
    bool Click(std::size_t index) { return memory::User(form_).Click(Button(index)); }

    /// Returns the log since the last call: "changed Contents", "event Click", "message ..." for a
    /// message box, "error 387 in pLetText" for an error box of the module VOPTLIST. "no beep, "
    /// precedes the line of a box that is shown without a beep.
    std::vector<std::string> TakeLog();

    /// Whether `action` calls `member` ("Frame.Place"). The first such call fails.
    template <typename Action>
    bool Uses(TextView member, Action&& action) {
        Faults().FailCall(member, 1, ErrorNumber::InternalError);
        action();
        const bool used = !Faults().IsArmed();
        Faults().Clear();
        return used;
    }

 private:
    memory::Form form_;
    memory::HostedControl placed_;
};

}  // namespace lumenkit::testing

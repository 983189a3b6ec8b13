#pragma once

#include "frame/host/constituents.h"
#include "runtime/win32/context.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

class Window;

/// Creates the constituents of one control or page as native windows inside its window.
class Constituents final : public host::Constituents {
 public:
    /// `owner` is the window of the control or page. It exists already and outlives the
    /// constituents and this object. `userMode` is reported to embedded controls.
    Constituents(const Context& context, Window& owner, bool userMode)
        : context_(context), owner_(owner), userMode_(userMode) {}

    std::unique_ptr<host::TextBox> AddTextBox(const host::TextBoxDesign& design,
                                              host::TextBoxEvents& events) override;
    std::unique_ptr<host::OptionButtons> AddOptionButtons(
        const host::OptionButtonDesign& design, host::Frame& frame,
        host::OptionButtonEvents& events) override;
    std::unique_ptr<host::Frame> AddFrame(const host::CaptionDesign& design) override;
    std::unique_ptr<host::Label> AddLabel(const host::CaptionDesign& design) override;
    std::unique_ptr<host::CheckBox> AddCheckBox(const host::CaptionDesign& design,
                                                host::ClickEvents& events) override;
    std::unique_ptr<host::CommandButton> AddCommandButton(const host::CaptionDesign& design,
                                                          host::ClickEvents& events) override;
    std::unique_ptr<host::PictureBox> AddPictureBox(const host::Design& design) override;
    std::unique_ptr<host::ScrollBar> AddScrollBar(const host::Design& design,
                                                  host::Orientation orientation,
                                                  host::ScrollBarEvents& events) override;
    std::unique_ptr<host::EmbeddedControl> AddControl(const host::Design& design,
                                                      TextView programmaticIdentifier) override;

 private:
    const Context& context_;
    Window& owner_;
    bool userMode_;
};

}  // namespace lumenkit::win32

#pragma once

#include <memory>

#include "frame/class_table.h"
#include "frame/host/constituents.h"
#include "runtime/win32/elements.h"

namespace lumenkit::win32 {

/// Creates a new control of the class `type` on a control or page.
using EmbedFunction = std::unique_ptr<host::EmbeddedControl> (*)(const Elements& elements,
                                                                 const host::Design& design,
                                                                 const ClassDescriptor& type);

/// Creates the constituents of one control or page as native windows inside its window.
class Constituents final : public host::Constituents {
 public:
    /// The window of the control or page exists already. It and this object must outlive the
    /// constituents. `embed` creates the constituents that are controls themselves.
    Constituents(const Elements& elements, EmbedFunction embed)
        : elements_(elements), embed_(embed) {}

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
    Elements elements_;
    EmbedFunction embed_;
};

}  // namespace lumenkit::win32

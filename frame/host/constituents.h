#pragma once

#include <memory>

#include "frame/host/option_buttons.h"
#include "frame/host/simple_constituents.h"
#include "frame/host/text_box.h"
#include "frame/text.h"

namespace lumenkit::host {

/// Creates the constituents of one control or page. The tab order is the order of creation. Where
/// two constituents overlap, the one created first is in front. Event receivers and parents must
/// outlive the constituent; designs are only read during the call.
class Constituents {
 public:
    virtual ~Constituents() = default;

    virtual std::unique_ptr<TextBox> AddTextBox(const TextBoxDesign& design,
                                                TextBoxEvents& events) = 0;
    /// Creates element 0 of an array inside `frame`. `design.index` and `design.parent` are
    /// ignored.
    virtual std::unique_ptr<OptionButtons> AddOptionButtons(const OptionButtonDesign& design,
                                                            Frame& frame,
                                                            OptionButtonEvents& events) = 0;
    virtual std::unique_ptr<Frame> AddFrame(const CaptionDesign& design) = 0;
    virtual std::unique_ptr<Label> AddLabel(const CaptionDesign& design) = 0;
    virtual std::unique_ptr<CheckBox> AddCheckBox(const CaptionDesign& design,
                                                  ClickEvents& events) = 0;
    virtual std::unique_ptr<CommandButton> AddCommandButton(const CaptionDesign& design,
                                                            ClickEvents& events) = 0;
    virtual std::unique_ptr<PictureBox> AddPictureBox(const Design& design) = 0;
    virtual std::unique_ptr<ScrollBar> AddScrollBar(const Design& design, Orientation orientation,
                                                    ScrollBarEvents& events) = 0;
    /// Creates a control of the class with this programmatic identifier ("lumenkit.VLabel") and
    /// initialises it as a newly placed one. Raises 429 when there is no such class.
    virtual std::unique_ptr<EmbeddedControl> AddControl(const Design& design,
                                                        TextView programmaticIdentifier) = 0;
};

}  // namespace lumenkit::host

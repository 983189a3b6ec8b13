#pragma once

#include <memory>

#include "frame/host/option_buttons.h"
#include "frame/host/simple_constituents.h"
#include "frame/host/text_box.h"
#include "frame/text.h"

namespace lumenkit::host {

/// Makes the constituents of one control or page. The tab order is the order in which they are
/// made; where two overlap, the one made first is in front. Event receivers must outlive the
/// constituent, parents too; designs are only read.
class Constituents {
 public:
    virtual ~Constituents() = default;

    virtual std::unique_ptr<TextBox> AddTextBox(const TextBoxDesign& design,
                                                TextBoxEvents& events) = 0;
    /// Element 0 of an array that lies in `frame`; `design.index` and `design.parent` are not used.
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
    /// A new control of the class with this programmatic identifier ("lumenkit.VLabel"), set up as
    /// a newly placed one. Raises 429 when there is no such class.
    virtual std::unique_ptr<EmbeddedControl> AddControl(const Design& design,
                                                        TextView programmaticIdentifier) = 0;
};

}  // namespace lumenkit::host

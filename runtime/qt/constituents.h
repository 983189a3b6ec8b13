#pragma once

#include <QPointer>
#include <QWidget>
#include <list>

#include "frame/host/constituents.h"
#include "runtime/qt/context.h"

namespace lumenkit::qt {

class Element;

/// Makes the constituents of one control or page: widgets that lie on its area.
class Constituents final : public host::Constituents {
 public:
    /// `area` is the drawing area of the control, or the page. `userMode` is what embedded controls
    /// are told; where it is false no constituent takes the keyboard. All must outlive the
    /// constituents, and this object too.
    Constituents(const Context& context, QWidget& area, bool userMode)
        : context_(context), area_(area), userMode_(userMode) {}

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

    const Context& GetContext() const { return context_; }
    QWidget& Area() const { return area_; }
    bool UserMode() const { return userMode_; }
    /// Those that exist, in the order in which they were made.
    const std::list<Element*>& All() const { return elements_; }
    /// The constituent with this name, and index in a control array, without regard to case; null
    /// when there is none.
    Element* Find(TextView name, std::int16_t index = -1) const;

    /// From now on none of them notifies anything: their control is about to end.
    void Disconnect();
    /// The palette of the area has other colours.
    void ApplyColors();

    /// Lets a label that was made just before `element` name it.
    void Name(const Element& element) const;

    // For the elements, as they come and go.
    std::list<Element*>::iterator Register(Element& element);
    void Unregister(std::list<Element*>::iterator position) { elements_.erase(position); }

 private:
    const Context& context_;
    QWidget& area_;
    bool userMode_;
    std::list<Element*> elements_;
};

}  // namespace lumenkit::qt
